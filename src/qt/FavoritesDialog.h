// frmFavorites on the screen: the list of favourite folders, to be ordered, cut and added to.
#pragma once

#include <QDialog>

#include "app/Program.h"

class QLabel;
class QListWidget;
class QPushButton;

namespace ladrix {

class FavoritesDialog final : public QDialog {
    Q_OBJECT

  public:
    FavoritesDialog(Program& program, QWidget* parent);

    // Shows the form, which has been loaded, until its Visible is false.
    int run();

    void reject() override;

  private:
    QPushButton* addButton(const char* name, void (*handler)(Program& program));
    void showState();

    Program& program_;
    QLabel* lblFavorites_;
    QListWidget* lstFavorites_;
    QPushButton *cmdBrowse_, *cmdRemove_, *cmdMoveUp_, *cmdMoveDown_, *cmdSave_, *cmdExit_;
};

}  // namespace ladrix
