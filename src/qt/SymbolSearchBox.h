// frmFind: a field with the list of what is found, dropping from the palette. It closes when a
// symbol is chosen, by Escape, and by a press anywhere else.
#pragma once

#include <QFrame>
#include <map>

#include "app/Program.h"
#include "qt/PaletteWidget.h"

class QLabel;
class QLineEdit;
class QListView;

namespace ladrix {

class FoundSymbols;

class SymbolSearchBox final : public QFrame {
    Q_OBJECT

  public:
    // Drops from `anchor`.
    SymbolSearchBox(Program& program, ButtonImages& images, QWidget* anchor);

    // Shows the form's state: opens the box, or closes it.
    void refresh();

  signals:
    void handled();
    void chosen();  // a symbol's button has been pressed

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void open();
    void narrow(const QString& text);
    void mark();
    bool takeKey(const QKeyEvent& event);
    void choose(int row);

    Program& program_;
    QWidget* anchor_;
    FoundSymbols* found_;
    QLineEdit* txtFind_;
    QListView* lstFound_;
    QLabel* lblCount_;
};

}  // namespace ladrix
