#include "qt/PaletteWidget.h"

#include <QHBoxLayout>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "canvas/tools/PaletteButtons.h"
#include "canvas/tools/Tools.h"
#include "qt/QtPainterPage.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr Short DrawingTools = 12;  // the first buttons, on white
constexpr int Mark = 5;             // side of the corner mark
constexpr int MarkReach = 9;        // of a press on it
constexpr int RowsPerWheelStep = 2;
constexpr int Inset = theme::Unit;  // around the palette
constexpr int TurnerHeight = 24;

void paintMark(QPainter& painter, const QRect& cell) {
    const QPoint corner = cell.bottomRight() - QPoint(1, 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::TextQuiet);
    const QPoint triangle[] = {corner, corner - QPoint(Mark, 0), corner - QPoint(0, Mark)};
    painter.drawPolygon(triangle, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

const QImage& ButtonImages::of(const std::string& tag, Short orientation, double pixelRatio) {
    if (pixelRatio != pixelRatio_) images_.clear();
    pixelRatio_ = pixelRatio;
    QImage& image = images_[{tag, orientation}];
    if (!image.isNull()) return image;
    const int pixels = qRound(Side * pixelRatio);
    image = QImage(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QtPainterPage page("picButton");
    page.reset(&painter, {.scale = Side, .penUnit = 1, .target = QRectF(0, 0, Side, Side)});
    drawButtonImage(page, tag, orientation);
    page.flush();
    return image;
}

PaletteWidget::PaletteWidget(Program& program, ButtonImages& images, QWidget* parent)
    : QWidget(parent), program_(program), images_(images) {
    setObjectName("cmdSym");
    setAccessibleName(tr("Symbols"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFixedWidth(Columns * Cell + 1);
}

const PaletteButton& PaletteWidget::state(Short index) const {
    return program_.editor.form.cmdSym[static_cast<std::size_t>(index)];
}

void PaletteWidget::refresh() {
    const FormLX& form = program_.editor.form;
    if (version_ == form.PaletteVersion) return;
    version_ = form.PaletteVersion;
    shownButtons_.clear();
    const auto end = std::min(form.cmdSym.size(), std::size_t{BuiltInButtonCount} + 1);
    for (std::size_t i = 0; i < end; ++i)
        if (form.cmdSym[i].Visible) shownButtons_.push_back(static_cast<Short>(i));
    scrollTo(firstRow_);
    update();
}

void PaletteWidget::scrollTo(int row) {
    const int last = std::max(0, rowsInAll() - rowsInView());
    firstRow_ = std::clamp(row, 0, last);
    update();
    emit scrolled();
}

void PaletteWidget::reveal(Short index) {
    const auto found = std::lower_bound(shownButtons_.begin(), shownButtons_.end(), index);
    if (found == shownButtons_.end() || *found != index) return;
    const int row = static_cast<int>(found - shownButtons_.begin()) / Columns;
    if (row < firstRow_) scrollTo(row);
    if (row >= firstRow_ + rowsInView()) scrollTo(row - rowsInView() + 1);
}

QRect PaletteWidget::cellRect(int place) const {
    return {place % Columns * Cell, (place / Columns - firstRow_) * Cell, Cell + 1, Cell + 1};
}

QRect PaletteWidget::buttonRect(Short index) const {
    const auto found = std::lower_bound(shownButtons_.begin(), shownButtons_.end(), index);
    if (found == shownButtons_.end() || *found != index) return {};
    const QRect cell = cellRect(static_cast<int>(found - shownButtons_.begin()));
    return rect().intersects(cell) ? cell : QRect();
}

Short PaletteWidget::buttonAt(QPoint point) const {
    if (!rect().contains(point)) return -1;
    const int column = std::min(point.x() / Cell, Columns - 1);
    const int place = (point.y() / Cell + firstRow_) * Columns + column;
    if (place >= static_cast<int>(shownButtons_.size())) return -1;
    return shownButtons_[static_cast<std::size_t>(place)];
}

void PaletteWidget::hover(Short index) {
    if (index == hovered_) return;
    update(buttonRect(hovered_));
    hovered_ = index;
    update(buttonRect(hovered_));
}

bool PaletteWidget::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const Short index = buttonAt(help->pos());
    if (index < 0) {
        QToolTip::hideText();
    } else {
        QToolTip::showText(help->globalPos(), toQString(state(index).Tag), this, buttonRect(index));
    }
    return true;
}

void PaletteWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::Chrome);
    for (std::size_t place = 0; place < shownButtons_.size(); ++place) {
        const QRect cell = cellRect(static_cast<int>(place));
        if (cell.intersects(event->rect())) paintButton(painter, shownButtons_[place], cell);
    }
}

void PaletteWidget::paintButton(QPainter& painter, Short index, const QRect& cell) {
    const PaletteButton& button = state(index);
    const bool held = index == held_ && index == hovered_;
    QColor ground = index < DrawingTools ? QColor(Qt::white) : theme::Face;
    if (index == hovered_) ground = held ? theme::FaceDown : theme::FaceHover;
    if (button.Pressed) ground = theme::color(Cyan);
    const QRect inner = cell.adjusted(1, 1, -1, -1);
    painter.fillRect(inner, ground);
    painter.setPen(index == hovered_ ? theme::Edge : theme::Hairline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell.adjusted(0, 0, -1, -1));
    painter.drawImage(inner.topLeft(),
                      images_.of(button.Tag, button.ButtonOrientation, devicePixelRatioF()));
    if (button.HasOrientations) paintMark(painter, cell);
}

void PaletteWidget::resizeEvent(QResizeEvent*) {
    scrollTo(firstRow_);
}

void PaletteWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const Short index = buttonAt(at);
    hover(index);
    if (index < 0 || event->buttons() != Qt::NoButton) return;
    const QPoint inside = at - buttonRect(index).topLeft();
    cmdSym_MouseMove(program_.editor, index, static_cast<Single>(inside.x()) * TwipsPerPixel,
                     static_cast<Single>(inside.y()) * TwipsPerPixel);
    emit handled();
}

void PaletteWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    held_ = buttonAt(event->position().toPoint());
    hover(held_);
    update(buttonRect(held_));
}

// A release on the corner mark opens the fly-out as a pointer in the button's middle does.
void PaletteWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const QPoint at = event->position().toPoint();
    const Short index = held_;
    held_ = -1;
    update(buttonRect(index));
    if (index < 0 || buttonAt(at) != index) return;
    const QPoint fromCorner = buttonRect(index).bottomRight() - at;
    if (state(index).HasOrientations && fromCorner.x() + fromCorner.y() <= MarkReach) {
        constexpr Single Middle = ButtonImages::Side / 2.0f * TwipsPerPixel;
        cmdSym_MouseMove(program_.editor, index, Middle, Middle);
    } else {
        cmdSym_Click(program_.editor, index);
    }
    emit handled();
}

void PaletteWidget::leaveEvent(QEvent*) {
    hover(-1);
}

void PaletteWidget::wheelEvent(QWheelEvent* event) {
    const int steps = wheel_.take(event->angleDelta().y());
    if (steps != 0) scrollTo(firstRow_ - steps * RowsPerWheelStep);
    event->accept();
}

FlyOutWidget::FlyOutWidget(Program& program, ButtonImages& images, PaletteWidget& palette,
                           QWidget* parent)
    : QWidget(parent), program_(program), images_(images), palette_(palette) {
    setObjectName("picMoreSym");
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    hide();
    connect(&palette, &PaletteWidget::scrolled, this, [this] {
        program_.editor.form.picMoreSym.Visible = false;
        refresh();
    });
}

// At the button's right edge, level with its top, and wholly in the window.
void FlyOutWidget::refresh() {
    const FlyOut& now = program_.editor.form.picMoreSym;
    if (shown_ == now) return;
    shown_ = now;
    hovered_ = -1;
    const QRect button = now.Visible ? palette_.buttonRect(now.Index) : QRect();
    if (button.isEmpty()) return hide();
    resize(PaletteWidget::Cell + 1, now.Count * PaletteWidget::Cell + 1);
    const QPoint beside = palette_.mapTo(parentWidget(), button.topRight());
    const int lowest = parentWidget()->height() - height() - Inset;
    move(beside.x(), std::max(0, std::min(beside.y(), lowest)));
    raise();
    show();
    update();
}

int FlyOutWidget::variantAt(QPoint point) const {
    if (!rect().contains(point)) return -1;
    return std::min(point.y() / PaletteWidget::Cell, shown_.Count - 1);
}

void FlyOutWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto index = static_cast<std::size_t>(std::max<Short>(shown_.Index, 0));
    const PaletteButton& button = program_.editor.form.cmdSym.at(index);
    for (Short variant = 0; variant < shown_.Count; ++variant) {
        const QRect cell(0, variant * PaletteWidget::Cell, width(), PaletteWidget::Cell + 1);
        painter.setPen(variant == hovered_ ? theme::Accent : theme::TextQuiet);
        painter.setBrush(theme::color(Cyan));
        painter.drawRect(cell.adjusted(0, 0, -1, -1));
        painter.drawImage(cell.topLeft() + QPoint(1, 1),
                          images_.of(button.Tag, variant, devicePixelRatioF()));
    }
    if (hovered_ < 0) return;
    painter.setPen(QPen(theme::Accent, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(
        QRect(1, hovered_ * PaletteWidget::Cell + 1, width() - 2, PaletteWidget::Cell - 1));
}

void FlyOutWidget::mouseMoveEvent(QMouseEvent* event) {
    hovered_ = variantAt(event->position().toPoint());
    update();
}

void FlyOutWidget::mouseReleaseEvent(QMouseEvent* event) {
    const int variant = variantAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || variant < 0) return;
    cmdMoreSym_Click(program_.editor, static_cast<Short>(variant));
    emit handled();
}

void FlyOutWidget::leaveEvent(QEvent*) {
    hovered_ = -1;
    update();
}

PalettePanel::PalettePanel(Program& program, ButtonImages& images, QWidget* parent)
    : QWidget(parent),
      palette_(new PaletteWidget(program, images, this)),
      picMoreSymbols_(new QWidget(this)) {
    setObjectName("picTools");
    setFixedWidth(palette_->width() + 2 * Inset + 1);
    picMoreSymbols_->setObjectName("picMoreSymbols");
    cmdPrev_ = makeTurner("cmdPrev", "chevron-up", tr("Previous symbols"), -1);
    cmdNext_ = makeTurner("cmdNext", "chevron-down", tr("More symbols"), 1);
    auto* row = new QHBoxLayout(picMoreSymbols_);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(cmdPrev_);
    row->addWidget(cmdNext_);
    picMoreSymbols_->hide();
    connect(palette_, &PaletteWidget::handled, this, &PalettePanel::handled);
    connect(palette_, &PaletteWidget::scrolled, this, &PalettePanel::arrange);
}

QToolButton* PalettePanel::makeTurner(const char* name, const char* icon, const QString& tip,
                                      int direction) {
    auto* button = new QToolButton(picMoreSymbols_);
    button->setObjectName(name);
    button->setIcon(theme::icon(icon));
    button->setToolTip(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(button, &QToolButton::clicked, this, [this, direction] {
        const int page = std::max(1, palette_->rowsInView() - 1);
        palette_->scrollTo(palette_->firstRow() + direction * page);
    });
    return button;
}

void PalettePanel::resizeEvent(QResizeEvent*) {
    arrange();
}

void PalettePanel::arrange() {
    const QRect inner = rect().adjusted(Inset, Inset, -Inset - 1, -Inset);
    const int wanted = palette_->rowsInAll() * PaletteWidget::Cell + 1;
    const bool low = wanted > inner.height();
    const int room = low ? inner.height() - TurnerHeight : inner.height();
    const int rows = std::max(1, (room - 1) / PaletteWidget::Cell);
    palette_->setGeometry(inner.x(), inner.y(), palette_->width(),
                          std::min(wanted, rows * PaletteWidget::Cell + 1));
    picMoreSymbols_->setGeometry(inner.x(), inner.bottom() + 1 - TurnerHeight, palette_->width(),
                                 TurnerHeight);
    picMoreSymbols_->setVisible(low);
    cmdPrev_->setEnabled(palette_->firstRow() > 0);
    cmdNext_->setEnabled(palette_->firstRow() + palette_->rowsInView() < palette_->rowsInAll());
}

void PalettePanel::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::Chrome);
    painter.fillRect(width() - 1, 0, 1, height(), theme::Hairline);
}

}  // namespace ladrix
