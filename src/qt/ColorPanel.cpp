#include "qt/ColorPanel.h"

#include <QMouseEvent>
#include <QPainter>

#include "canvas/tools/Colors.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr int Columns = 6;
constexpr int Cell = 24;
constexpr int Gap = theme::Unit;
constexpr int Inset = 2 * theme::Unit;
constexpr int Pitch = Cell + Gap;
constexpr int Top = 27;  // from the head of the tool strip

void paintSwatch(QPainter& painter, const QRect& rect, const QColor& fill, const QColor& edge) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), theme::Radius - 1,
                            theme::Radius - 1);
}

QColor edgeOf(const QColor& fill) {
    return fill.lightness() > 200 ? theme::Edge.darker(110) : fill.darker(130);
}

}  // namespace

ColorSwatch::ColorSwatch(QWidget* parent) : QAbstractButton(parent) {
    setFixedSize(sizeHint());
    setFocusPolicy(Qt::TabFocus);
}

QSize ColorSwatch::sizeHint() const {
    return {theme::ControlHeight, theme::ControlHeight};
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor fill = palette().color(QPalette::Button);
    const bool marked = underMouse() || hasFocus();
    paintSwatch(painter, rect().adjusted(3, 3, -3, -3), fill,
                marked ? theme::Accent : edgeOf(fill));
}

ColorPanel::ColorPanel(Program& program, QWidget* anchor)
    : QWidget(anchor->window(), Qt::Popup), program_(program), anchor_(anchor) {
    setObjectName("picColors");
    setMouseTracking(true);
}

void ColorPanel::refresh() {
    const bool wanted = program_.editor.form.picColors.Visible;
    if (wanted == isVisible()) return;
    if (!wanted) return hide();
    const int rows = (cellCount() + Columns - 1) / Columns;
    setAttribute(Qt::WA_NoMouseReplay, false);
    setFixedSize(2 * Inset + Columns * Pitch - Gap, 2 * Inset + rows * Pitch - Gap);
    move(anchor_->parentWidget()->mapToGlobal(QPoint(anchor_->x(), Top)));
    hovered_ = -1;
    show();
}

QRect ColorPanel::cellRect(int index) const {
    return {Inset + index % Columns * Pitch, Inset + index / Columns * Pitch, Cell, Cell};
}

int ColorPanel::cellAt(QPoint point) const {
    for (int i = 0; i < cellCount(); ++i)
        if (cellRect(i).contains(point)) return i;
    return -1;
}

void ColorPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::Face);
    painter.setPen(theme::Edge);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    for (int i = 0; i < cellCount(); ++i) {
        const QColor fill =
            theme::color(program_.editor.form.lblColor[static_cast<std::size_t>(i)]);
        paintSwatch(painter, cellRect(i), fill, edgeOf(fill));
    }
    if (hovered_ < 0) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::Accent, 2));
    painter.drawRoundedRect(cellRect(hovered_).adjusted(-2, -2, 2, 2), theme::Radius,
                            theme::Radius);
}

// Without this the press that closes the panel would reach its button and open it again.
void ColorPanel::mousePressEvent(QMouseEvent* event) {
    const QPoint onAnchor = anchor_->mapFromGlobal(event->globalPosition().toPoint());
    if (anchor_->rect().contains(onAnchor)) setAttribute(Qt::WA_NoMouseReplay);
    QWidget::mousePressEvent(event);
}

void ColorPanel::mouseMoveEvent(QMouseEvent* event) {
    hovered_ = cellAt(event->position().toPoint());
    update();
}

void ColorPanel::mouseReleaseEvent(QMouseEvent* event) {
    choose(cellAt(event->position().toPoint()));
}

void ColorPanel::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
            emit escapePressed();
            return;
        case Qt::Key_Left:
            return moveMark(-1);
        case Qt::Key_Right:
            return moveMark(1);
        case Qt::Key_Up:
            return moveMark(-Columns);
        case Qt::Key_Down:
            return moveMark(Columns);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            return choose(hovered_);
        default:
            return;
    }
}

// By key; the first press marks the first cell.
void ColorPanel::moveMark(int step) {
    const int target = hovered_ < 0 ? 0 : hovered_ + step;
    if (target < 0 || target >= cellCount()) return;
    hovered_ = target;
    update();
}

void ColorPanel::choose(int index) {
    if (index < 0) return;
    lblColor_Click(program_.editor, static_cast<std::size_t>(index));
    emit handled();
}

// Closed by the toolkit: the state follows.
void ColorPanel::hideEvent(QHideEvent*) {
    program_.editor.form.picColors.Visible = false;
}

}  // namespace ladrix
