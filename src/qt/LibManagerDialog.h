// frmLibManager: at the left the source and its symbols as buttons, in the middle what is selected
// and where it goes, at the right the preview.
#pragma once

#include <QDialog>

#include "app/Program.h"
#include "qt/SymbolButtons.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QListWidget;
class QMenu;
class QMenuBar;
class QPushButton;
class QScrollArea;
class QScrollBar;
class QVBoxLayout;

namespace ladrix {

class PreviewPane;

class LibManagerDialog final : public QDialog {
    Q_OBJECT

  public:
    LibManagerDialog(Program& program, QWidget* parent);
    void run();
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QMenuBar* makeMenus();
    QVBoxLayout* makeSource();
    QWidget* makeSymbols();
    QVBoxLayout* makeLists();
    QVBoxLayout* makePreview();
    QLabel* makeLabel(const QString& text, QWidget* buddy);
    // A press runs the handler and then shows the state.
    template <class Handler>
    QPushButton* makeButton(const char* name, const Control& state, Handler handler);
    template <class Handler>
    void addEntry(QMenu& menu, const char* name, const QString& caption, Handler handler);

    void showState();
    void showLists();
    void showSymbols();
    void placeColumns();

    Program& program_;
    LibManager& form_;
    QMenu* mnuEdit_ = nullptr;
    QComboBox *cmbSourceLibrary_ = nullptr, *cmbScale_ = nullptr;
    SymbolButtons* picSymbols_ = nullptr;
    QScrollArea* picMain_ = nullptr;
    QScrollBar* HScroll1_ = nullptr;
    QListWidget *lstSelected_ = nullptr, *lstDestinationLibrary_ = nullptr;
    QPushButton *cmdOpen_ = nullptr, *cmdCopy_ = nullptr, *cmdMove_ = nullptr,
                *cmdDelete_ = nullptr, *cmdExit_ = nullptr;
    QLabel *lblCurrent_ = nullptr, *picCurrent_ = nullptr, *lblOrder_ = nullptr;
    PreviewPane* picPreview_ = nullptr;
    unsigned buttonVersion_ = 0;
    bool showing_ = false;
};

}  // namespace ladrix
