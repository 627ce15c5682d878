#include "qt/StretchHandle.h"

#include <QMouseEvent>
#include <QPainter>

#include "canvas/view/Stretch.h"
#include "qt/KeyCodes.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int DotPitch = 6, DotSize = 2;  // logical pixels

}  // namespace

StretchHandle::StretchHandle(Program& program, QWidget* parent)
    : QWidget(parent), program_(program) {
    setObjectName("stretchHandle");
    setToolTip(tr("Drag to make the view narrower or wider"));
    setMouseTracking(true);
    hide();
}

void StretchHandle::refresh() {
    const bool sizing = program_.editor.form.picFramePointer == MousePointer::SizeWidth;
    setCursor(sizing ? Qt::SizeHorCursor : Qt::ArrowCursor);
}

Single StretchHandle::frameX(const QMouseEvent& event) const {
    return static_cast<Single>(qRound(event.position().x()) + x()) * TwipsPerPixel;
}

void StretchHandle::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::Chrome);
    painter.fillRect(0, 0, 1, height(), theme::Hairline);
    const QPoint centre = rect().center();
    for (int row = -2; row <= 2; ++row)
        painter.fillRect(centre.x(), centre.y() + row * DotPitch, DotSize, DotSize,
                         theme::TextQuiet);
}

void StretchHandle::mousePressEvent(QMouseEvent* event) {
    picFrame_MouseDown(program_.editor, classicButton(event->button()), frameX(*event));
    emit handled();
}

void StretchHandle::mouseMoveEvent(QMouseEvent* event) {
    picFrame_MouseMove(program_.editor, classicButton(event->buttons()), frameX(*event));
    emit handled();
}

void StretchHandle::mouseReleaseEvent(QMouseEvent*) {
    picFrame_MouseUp(program_.editor);
    emit handled();
}

}  // namespace ladrix
