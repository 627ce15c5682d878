// The margin at the canvas' right edge by which the view is dragged narrower or wider. It stands
// there while the stretch of the view is on.
#pragma once

#include <QWidget>

#include "app/Program.h"

namespace ladrix {

class StretchHandle final : public QWidget {
    Q_OBJECT

  public:
    static constexpr int Width = 20;  // logical pixels

    // `parent` is picFrame.
    StretchHandle(Program& program, QWidget* parent);

    void refresh();

  signals:
    void handled();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    Single frameX(const QMouseEvent& event) const;

    Program& program_;
};

}  // namespace ladrix
