// User symbols as picture buttons in columns and rows, in the look of the palette. Whoever owns it
// says what stands where; the widget paints, tells presses, and drags a button where that is
// allowed.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Surface.h"
#include "qt/KeyCodes.h"

namespace ladrix {

struct SymbolButton {
    std::shared_ptr<const Picture> picture;
    QString tip;
    int column = 0, row = 0;  // negative or beyond the edge: out of view
};

class SymbolButtons final : public QWidget {
    Q_OBJECT

  public:
    static constexpr int Cell = 30;  // pixels, with the dividing line

    explicit SymbolButtons(QWidget* parent);

    void setButtons(std::vector<SymbolButton> buttons);
    const std::vector<SymbolButton>& buttons() const { return buttons_; }
    // The first row that is seen.
    void setFirstRow(int row);
    int firstRow() const { return firstRow_; }

    // By their order in `buttons`.
    QRect rectOf(int button) const;    // in pixels, empty if it is out of view
    int buttonAt(QPoint point) const;  // -1: none

    // Asked when a press begins to move; false keeps it a press. Empty: nothing is dragged.
    std::function<bool(int button)> mayDrag;

  signals:
    void clicked(int button);
    void menuRequested(int button);
    void dropped(int button);  // a drag ends over this one; -1: over none
    void wheelTurned(int steps, bool sideways);

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    void paintButton(QPainter& painter, int button, const QRect& cell);
    void paintDrag(QPainter& painter);
    void hover(int button);
    void endDrag();

    std::vector<SymbolButton> buttons_;
    int firstRow_ = 0;
    int hovered_ = -1, held_ = -1;
    QPoint pressedAt_, pointer_;
    bool dragging_ = false;
    WheelNotches wheel_;
};

// A user symbol's picture in a button of this size: as it is in the middle, its ground all around.
void paintSymbolPicture(QPainter& painter, const Picture& picture, const QRect& inner);

}  // namespace ladrix
