// The user's columns beside the palette, and what stands over the canvas while they are arranged.
#pragma once

#include <QFrame>
#include <QToolButton>

#include "app/Program.h"
#include "qt/SymbolButtons.h"

class QPushButton;

namespace ladrix {

// As many columns as the window has room for beside the page, at least one; no width at all while
// there is no user symbol. cmdPrev and cmdNext scroll by a column where not all are in view; rows
// that the window is too low for are scrolled by the arrows above and below them, and by the wheel.
class UserPalettePanel final : public QWidget {
    Q_OBJECT

  public:
    UserPalettePanel(Program& program, QWidget* parent);

    void refresh();
    // Scrolls until the button is in view.
    void reveal(Short button);

    SymbolButtons& buttons() { return *buttons_; }
    int columnsInView() const { return columns_; }
    int rowsInView() const;

  signals:
    void handled();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    // What the arrangement depends on beside the panel's own size.
    struct Basis {
        unsigned version = 0;
        int windowWidth = 0;
        Single pageWidth = 0;
        bool arranging = false;

        friend bool operator==(const Basis&, const Basis&) = default;
    };

    QToolButton* makeArrow(const char* name, const char* icon, const QString& tip,
                           void (UserPalettePanel::*press)());
    void turnWheel(int steps, bool sideways);
    void previousColumn();
    void nextColumn();
    void rowsUp() { scrollRows(-rowsInView() + 1); }
    void rowsDown() { scrollRows(rowsInView() - 1); }
    void scrollRows(int rows);
    void fillButtons();
    void fitWidth();
    void arrange();
    bool columnsHidden(int side) const;
    Short indexOf(int button) const;

    Program& program_;
    SymbolButtons* buttons_;
    QToolButton *cmdPrev_, *cmdNext_, *rowsUp_, *rowsDown_;
    Basis shown_;
    int columns_ = 0;
};

// The save command of the order, over the canvas at the user's columns.
class OrderBar final : public QFrame {
    Q_OBJECT

  public:
    // Stands on `canvas`, a sibling.
    OrderBar(Program& program, QWidget& canvas, QWidget* parent);

    void refresh();

  signals:
    void handled();

  private:
    Program& program_;
    QWidget& canvas_;
    QPushButton* cmdSaveSymbolOrder_;
};

}  // namespace ladrix
