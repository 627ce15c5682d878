// The colour bar's widgets: the swatch of the present colour and the panel of all cells.
#pragma once

#include <QAbstractButton>
#include <QWidget>

#include "app/Program.h"

namespace ladrix {

// picSelectedColor.
class ColorSwatch final : public QAbstractButton {
    Q_OBJECT

  public:
    explicit ColorSwatch(QWidget* parent);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
};

// picColors: drops down from its button; a press elsewhere closes it.
class ColorPanel final : public QWidget {
    Q_OBJECT

  public:
    ColorPanel(Program& program, QWidget* anchor);

    void refresh();

  signals:
    void handled();
    void escapePressed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void moveMark(int step);
    void choose(int index);
    QRect cellRect(int index) const;
    int cellAt(QPoint point) const;  // -1: none
    int cellCount() const { return static_cast<int>(program_.editor.form.lblColor.size()); }

    Program& program_;
    QWidget* anchor_;
    int hovered_ = -1;
};

}  // namespace ladrix
