#include "qt/SymbolButtons.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "qt/QtImages.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

void paintSymbolPicture(QPainter& painter, const Picture& picture, const QRect& inner) {
    const auto* shown = dynamic_cast<const QtPicture*>(&picture);
    if (shown == nullptr || shown->image().isNull()) return;
    const QImage& image = shown->image();
    painter.fillRect(inner, image.pixelColor(0, 0));
    const QSize size = image.size().boundedTo(inner.size());
    QRect target(QPoint(), image.size().scaled(size, Qt::KeepAspectRatio));
    target.moveCenter(inner.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
}

SymbolButtons::SymbolButtons(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void SymbolButtons::setButtons(std::vector<SymbolButton> buttons) {
    buttons_ = std::move(buttons);
    const int count = static_cast<int>(buttons_.size());
    if (hovered_ >= count) hovered_ = -1;
    if (held_ >= count) endDrag();
    update();
}

void SymbolButtons::setFirstRow(int row) {
    if (firstRow_ == row) return;
    firstRow_ = row;
    update();
}

QRect SymbolButtons::rectOf(int button) const {
    if (button < 0 || button >= static_cast<int>(buttons_.size())) return {};
    const SymbolButton& at = buttons_[static_cast<std::size_t>(button)];
    const QRect cell(at.column * Cell, (at.row - firstRow_) * Cell, Cell + 1, Cell + 1);
    return at.column >= 0 && rect().contains(cell.center()) ? cell : QRect();
}

int SymbolButtons::buttonAt(QPoint point) const {
    if (!rect().contains(point)) return -1;
    const int column = point.x() / Cell, row = point.y() / Cell + firstRow_;
    const auto found = std::find_if(
        buttons_.begin(), buttons_.end(),
        [&](const SymbolButton& button) { return button.column == column && button.row == row; });
    return found == buttons_.end() ? -1 : static_cast<int>(found - buttons_.begin());
}

bool SymbolButtons::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int button = buttonAt(help->pos());
    if (button < 0 || dragging_)
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(),
                           plainTip(buttons_[static_cast<std::size_t>(button)].tip), this,
                           rectOf(button));
    return true;
}

void SymbolButtons::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::Chrome);
    for (int i = 0; i < static_cast<int>(buttons_.size()); ++i) {
        const QRect cell = rectOf(i);
        if (!cell.isEmpty() && cell.intersects(event->rect())) paintButton(painter, i, cell);
    }
    if (dragging_) paintDrag(painter);
}

void SymbolButtons::paintButton(QPainter& painter, int button, const QRect& cell) {
    const QRect inner = cell.adjusted(1, 1, -1, -1);
    painter.fillRect(inner, theme::Face);
    const SymbolButton& shown = buttons_[static_cast<std::size_t>(button)];
    if (dragging_ && button == held_) painter.setOpacity(0.3);
    if (shown.picture) paintSymbolPicture(painter, *shown.picture, inner);
    painter.setOpacity(1);
    const bool marked = button == hovered_;
    if (marked && dragging_) {
        painter.fillRect(
            inner, QColor(theme::Accent.red(), theme::Accent.green(), theme::Accent.blue(), 60));
    } else if (marked) {
        painter.fillRect(inner, QColor(0, 0, 0, button == held_ ? 36 : 16));
    }
    painter.setPen(marked ? (dragging_ ? theme::Accent : theme::Edge) : theme::Hairline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
}

void SymbolButtons::paintDrag(QPainter& painter) {
    const SymbolButton& dragged = buttons_[static_cast<std::size_t>(held_)];
    QRect icon(0, 0, Cell - 1, Cell - 1);
    icon.moveCenter(pointer_);
    painter.setOpacity(0.85);
    if (dragged.picture) paintSymbolPicture(painter, *dragged.picture, icon);
    painter.setOpacity(1);
    painter.setPen(theme::Accent);
    painter.drawRect(icon.adjusted(-1, -1, 0, 0));
}

void SymbolButtons::hover(int button) {
    if (button == hovered_) return;
    hovered_ = button;
    update();
}

void SymbolButtons::mousePressEvent(QMouseEvent* event) {
    const int button = buttonAt(event->position().toPoint());
    if (event->button() == Qt::RightButton && button >= 0 && !dragging_) emit menuRequested(button);
    if (event->button() != Qt::LeftButton) return;
    held_ = button;
    pressedAt_ = event->position().toPoint();
    hover(button);
    update();
}

void SymbolButtons::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position().toPoint();
    hover(buttonAt(pointer_));
    if (held_ < 0 || !event->buttons().testFlag(Qt::LeftButton)) return;
    const bool far = (pointer_ - pressedAt_).manhattanLength() >= QApplication::startDragDistance();
    if (!dragging_ && far && mayDrag && mayDrag(held_)) {
        dragging_ = true;
        setCursor(Qt::ClosedHandCursor);
    }
    if (dragging_) update();
}

void SymbolButtons::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || held_ < 0) return;
    const int held = held_, under = buttonAt(event->position().toPoint());
    const bool dragged = dragging_;
    endDrag();
    if (dragged)
        emit dropped(under);
    else if (under == held)
        emit clicked(held);
}

void SymbolButtons::endDrag() {
    held_ = -1;
    dragging_ = false;
    unsetCursor();
    update();
}

void SymbolButtons::leaveEvent(QEvent*) {
    hover(-1);
}

void SymbolButtons::wheelEvent(QWheelEvent* event) {
    const QPoint turn = event->angleDelta();
    const bool sideways = turn.x() != 0 || event->modifiers().testFlag(Qt::ShiftModifier);
    const int steps = wheel_.take(turn.x() != 0 ? turn.x() : turn.y());
    if (steps != 0) emit wheelTurned(-steps, sideways);
    event->accept();
}

}  // namespace ladrix
