// The canvas on the screen and its frame with the scroll bars. The widget turns pointer events into
// the canvas handlers' calls and paints what the state says: the canvas' two layers, then labels,
// the ticks of empty ones, the marks of pictures, cross-hair, band and grip, which are state and
// not widgets. The grip, the labels and, at 100 percent, the pictures take a press before the
// canvas does; the target of a press keeps the pointer until the release. A frame repaints only
// what changed.
#pragma once

#include <QScrollBar>
#include <QWidget>
#include <optional>

#include "app/Program.h"
#include "qt/KeyCodes.h"
#include "qt/QtCanvas.h"
#include "qt/StretchHandle.h"

namespace ladrix {

class CanvasWidget final : public QWidget {
    Q_OBJECT

  public:
    CanvasWidget(Program& program, QtCanvas& canvas, QWidget* parent);

    // Shows what the state says now.
    void refresh();

    // Tells the editor where the pointer rests: what lies under it may have changed. Nothing while
    // it is elsewhere or holds a button.
    void tellPointer();

    // Where a point of the page stands, in the widget's pixels.
    QPointF pixelOf(Single x, Single y) const { return canvas_.toPixels(x, y); }

  signals:
    void handled();  // a handler has run

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    enum class Target { Canvas, Grip, Label, Picture };
    enum class OverLabel { No, Unselected, Selected };

    Target targetAt(QPointF at) const;
    std::optional<Short> labelUnder(QPointF at) const;
    void lookUnder(QPointF at);
    void press(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void scrollByWheel(const QWheelEvent& event);
    void zoomByTurn(const QWheelEvent& event);
    void tellPointerAt(QPointF at);
    void movePointer(QPointF at, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    void startPan(QPointF at);
    void pan(QPointF at);
    void endPan();
    QRect pixelRect(const Overlay& overlay) const;
    void updateOverlay(const Overlay& before, const Overlay& now);
    void showPointer(MousePointer pointer);
    void fitViewport();
    void paintLabels(QPainter& painter, const QRect& clip);
    void paintEmptyLabels(QPainter& painter) const;
    void paintPictureMarks(QPainter& painter) const;
    void paintCrossHair(QPainter& painter) const;
    void paintBand(QPainter& painter) const;
    void paintGrip(QPainter& painter) const;

    Program& program_;
    QtCanvas& canvas_;
    QtPainterPage labels_{"picLX"};
    PointerState shown_;
    unsigned labelVersion_ = 0, pictureVersion_ = 0;
    Target pressed_ = Target::Canvas;  // what took the last press
    Short pressedLabel_ = -1;
    OverLabel overLabel_ = OverLabel::No, shownOverLabel_ = OverLabel::No;
    bool loaded_ = false;  // the form has its first size
    WheelNotches zoomTurn_;
    struct Pan {
        QPointF from;      // the press
        Single left, top;  // the view then
    };
    std::optional<QPointF> pointer_;  // where it was seen last; nothing while it is elsewhere
    bool toTell_ = false;             // something has changed while it was elsewhere
    std::optional<Pan> pan_;          // while the page is dragged by the middle button
};

// picFrame: the canvas with its scroll bars, which lie over the margins that the canvas leaves
// around the page, so that the view never jumps when one comes or goes. While the view is being
// stretched, a handle stands at the canvas' right edge.
class CanvasFrame final : public QWidget {
    Q_OBJECT

  public:
    CanvasFrame(Program& program, QtCanvas& canvas, QWidget* parent);

    void refresh();
    CanvasWidget& canvas() { return *picLX_; }

  signals:
    void handled();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    using Handler = void (*)(Editor&);
    QScrollBar* makeBar(Qt::Orientation orientation, const char* name, ScrollBar& state,
                        Handler changed);
    void arrange();

    Program& program_;
    CanvasWidget* picLX_;
    QScrollBar *HScroll1_, *VScroll1_;
    ScrollBar shownHScroll1_, shownVScroll1_;
    StretchHandle* handle_;
    struct Stretch {
        bool on = false;
        Single width = 0;

        friend bool operator==(const Stretch&, const Stretch&) = default;
    };
    Stretch shownStretch_;
};

}  // namespace ladrix
