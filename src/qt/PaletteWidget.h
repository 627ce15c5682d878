// The palette at the side: all buttons are painted by one widget, their images made from the
// symbols when they are first seen and kept.
#pragma once

#include <QImage>
#include <QToolButton>
#include <QWidget>
#include <map>

#include "app/Program.h"
#include "qt/KeyCodes.h"

namespace ladrix {

// The images of buttons in black on nothing, at one pixel ratio.
class ButtonImages {
  public:
    static constexpr int Side = 29;  // logical pixels

    const QImage& of(const std::string& tag, Short orientation, double pixelRatio);

  private:
    double pixelRatio_ = 0;
    std::map<std::pair<std::string, Short>, QImage> images_;
};

class PaletteWidget final : public QWidget {
    Q_OBJECT

  public:
    static constexpr int Columns = 4;
    static constexpr int Cell = ButtonImages::Side + 1;  // with its dividing line

    PaletteWidget(Program& program, ButtonImages& images, QWidget* parent);

    void refresh();

    // Where a button stands, in the widget's pixels; empty if it is not shown.
    QRect buttonRect(Short index) const;

    int rowsInAll() const { return static_cast<int>(shownButtons_.size() + Columns - 1) / Columns; }
    int rowsInView() const { return std::max(1, height() / Cell); }
    int firstRow() const { return firstRow_; }
    void scrollTo(int row);
    void reveal(Short index);  // scrolls until the button is in view

  signals:
    void handled();
    void scrolled();  // by the wheel, by a change of the list, or by the size

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    QRect cellRect(int place) const;
    Short buttonAt(QPoint point) const;  // -1: none
    void hover(Short index);
    void paintButton(QPainter& painter, Short index, const QRect& cell);
    const PaletteButton& state(Short index) const;

    Program& program_;
    ButtonImages& images_;
    std::vector<Short> shownButtons_;  // the indices of the visible ones, in order
    unsigned version_ = 0;
    int firstRow_ = 0;
    Short hovered_ = -1, held_ = -1;
    WheelNotches wheel_;
};

// picMoreSym, the fly-out of a button's orientations, laid over the window beside the button.
class FlyOutWidget final : public QWidget {
    Q_OBJECT

  public:
    FlyOutWidget(Program& program, ButtonImages& images, PaletteWidget& palette, QWidget* parent);

    void refresh();

  signals:
    void handled();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    int variantAt(QPoint point) const;  // -1: none

    Program& program_;
    ButtonImages& images_;
    PaletteWidget& palette_;
    FlyOut shown_;
    int hovered_ = -1;
};

// picTools: the palette and, where the window is too low for it, the buttons that turn its pages.
class PalettePanel final : public QWidget {
    Q_OBJECT

  public:
    PalettePanel(Program& program, ButtonImages& images, QWidget* parent);

    void refresh() { palette_->refresh(); }
    PaletteWidget& palette() { return *palette_; }

  signals:
    void handled();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    QToolButton* makeTurner(const char* name, const char* icon, const QString& tip, int direction);
    void arrange();

    PaletteWidget* palette_;
    QWidget* picMoreSymbols_;
    QToolButton *cmdPrev_, *cmdNext_;
};

}  // namespace ladrix
