#include "qt/QtCanvas.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/PageFile.h"
#include "qt/QtImages.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr double PixelsPerInch = 96;
constexpr double PenRoom = 4;   // logical pixels around what a pen draws
constexpr int ShadowRings = 8;  // soft edge of the page's shadow, logical pixels
constexpr int ShadowDrop = 2;
constexpr QColor Shade{30, 40, 60};

// What `shade` of this strength (of 255) gives on the desk.
QColor onDesk(const QColor& shade, int strength) {
    const auto mixed = [strength](int over, int under) {
        return under + (over - under) * strength / 255;
    };
    return {mixed(shade.red(), theme::Desk.red()), mixed(shade.green(), theme::Desk.green()),
            mixed(shade.blue(), theme::Desk.blue())};
}

// One outline of the page's shadow, `ring` pixels out. Every view wipes the canvas, so its long
// sides are plain fills; only the corners are smoothed.
void paintRing(QPainter& painter, const QRectF& page, int ring) {
    const QColor color = onDesk(Shade, (ShadowRings + 1 - ring) * 4);
    const QRectF outer = page.adjusted(-ring, -ring, ring, ring);
    const double corner = ring + 1;
    const double width = outer.width() - 2 * corner, height = outer.height() - 2 * corner;
    painter.fillRect(QRectF(outer.left() + corner, outer.top(), width, 1), color);
    painter.fillRect(QRectF(outer.left() + corner, outer.bottom() - 1, width, 1), color);
    painter.fillRect(QRectF(outer.left(), outer.top() + corner, 1, height), color);
    painter.fillRect(QRectF(outer.right() - 1, outer.top() + corner, 1, height), color);
    const QRectF line = outer.adjusted(0.5, 0.5, -0.5, -0.5);
    const double turn = 2 * corner - 1, right = line.right() - turn, low = line.bottom() - turn;
    constexpr int Quarter = 90 * 16;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(QRectF(right, line.top(), turn, turn), 0, Quarter);
    painter.drawArc(QRectF(line.left(), line.top(), turn, turn), Quarter, Quarter);
    painter.drawArc(QRectF(line.left(), low, turn, turn), 2 * Quarter, Quarter);
    painter.drawArc(QRectF(right, low, turn, turn), 3 * Quarter, Quarter);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

}  // namespace

QtCanvas::QtCanvas() {
    arrange();
}

QtCanvas::~QtCanvas() {
    endPainting();
}

void QtCanvas::resize(QSize viewport, double pixelRatio) {
    if (viewport == viewport_ && pixelRatio == pixelRatio_ && !image_.isNull()) return;
    endPainting();
    viewport_ = viewport;
    pixelRatio_ = pixelRatio;
    image_ = {};  // two of them at once would be the program's largest use of memory
    image_ = QImage((QSizeF(viewport) * pixelRatio).toSize(), QImage::Format_RGB32);
    image_.setDevicePixelRatio(pixelRatio);
    allDamaged_ = true;
    arrange();
}

void QtCanvas::SetScale(Single left, Single top, Single zoom) {
    endPainting();
    scaleLeft_ = left;
    scaleTop_ = top;
    zoom_ = zoom;
    arrange();
}

// The page's corner falls on a whole device pixel, so that scrolling never blurs a line.
void QtCanvas::arrange() {
    view_.scale = PixelsPerInch * zoom_;
    const auto onPixel = [this](double at) { return std::round(at * pixelRatio_) / pixelRatio_; };
    view_.left = wholePage_ ? 0 : onPixel(Margin - scaleLeft_ * view_.scale);
    view_.top = wholePage_ ? 0 : onPixel(Margin - scaleTop_ * view_.scale);
    view_.penUnit = 1;
    view_.target = QRectF(QPointF(0, 0), QSizeF(viewport_));
    visible_ = {inchesX(-PenRoom), inchesY(-PenRoom), inchesX(viewport_.width() + PenRoom),
                inchesY(viewport_.height() + PenRoom)};
}

QPointF QtCanvas::toPixels(double x, double y) const {
    return {view_.left + x * view_.scale, view_.top + y * view_.scale};
}

Single QtCanvas::inchesX(double pixel) const {
    return static_cast<Single>((pixel - view_.left) / view_.scale);
}

Single QtCanvas::inchesY(double pixel) const {
    return static_cast<Single>((pixel - view_.top) / view_.scale);
}

PageView QtCanvas::viewFor(const QRect& clip) const {
    PageView view = view_;
    view.target = clip;
    return view;
}

QtPainterPage* QtCanvas::persistentPage() {
    if (painter_.isActive()) return &page_;
    if (image_.isNull()) return nullptr;
    beginPainting(painter_);
    page_.reset(&painter_, view_);
    return &page_;
}

void QtCanvas::beginPainting(QPainter& painter) {
    painter.begin(&image_);
    if (place_) painter.setClipRect(*place_);
}

void QtCanvas::endPainting() {
    if (!painter_.isActive()) return;
    page_.flush();
    painter_.end();
}

const QImage& QtCanvas::persistentLayer() {
    endPainting();
    return image_;
}

void QtCanvas::paintTemporaryLayer(QPainter& painter, const QRect& clip) {
    if (temporary_.empty()) return;
    painter.save();
    overlay_.reset(&painter, viewFor(clip));
    for (const auto& primitive : temporary_)
        primitive(overlay_);
    overlay_.flush();
    painter.restore();
}

void QtCanvas::wipeTemporaryLayer() {
    if (temporary_.empty()) return;
    wipedBounds_ |= temporaryBounds_;
    temporaryBounds_ = {};
    temporary_.clear();
}

QRegion QtCanvas::takeDamage() {
    QRegion region;
    if (allDamaged_) {
        region = QRect(QPoint(0, 0), viewport_);
    } else {
        region += wipedBounds_.toAlignedRect();
        region += persistentDamage_.toAlignedRect();
        if (temporaryGrown_) region += temporaryBounds_.toAlignedRect();
        region &= QRect(QPoint(0, 0), viewport_);
    }
    allDamaged_ = temporaryGrown_ = false;
    wipedBounds_ = persistentDamage_ = {};
    return region;
}

// Hands the primitive to the layer in force, with the drawing properties of this moment. Its bounds
// are asked for only where they count: not in a redraw, which damages all.
template <class Bounds, class Draw>
void QtCanvas::draw(const Bounds& boundsOf, Draw primitive) {
    const auto paint = [fillStyle = FillStyle, fillColor = ink(FillColor), width = DrawWidth,
                        style = DrawStyle, primitive](QtPainterPage& page) {
        page.FillStyle = fillStyle;
        page.FillColor = fillColor;
        page.DrawWidth = width;
        page.DrawStyle = style;
        primitive(page);
    };
    if (!AutoRedraw) {
        temporaryBounds_ |= boundsOf() & view_.target;
        temporaryGrown_ = true;
        temporary_.emplace_back(paint);
        return;
    }
    wipeTemporaryLayer();
    if (!allDamaged_ && !place_) persistentDamage_ |= boundsOf() & view_.target;
    if (QtPainterPage* page = persistentPage()) paint(*page);
}

QRectF QtCanvas::pixelBounds(Single x1, Single y1, Single x2, Single y2) const {
    const double room = PenRoom + DrawWidth;
    return QRectF(toPixels(x1, y1), toPixels(x2, y2))
        .normalized()
        .adjusted(-room, -room, room, room);
}

QRectF QtCanvas::textBounds(Single x, Single y, double points, std::size_t length) const {
    const double size = points / 72 * view_.scale;
    const QPointF corner = toPixels(x, y);
    return QRectF(corner.x() - size, corner.y() - size / 2,
                  size * (2 + 1.5 * static_cast<double>(length)), size * 2.5);
}

void QtCanvas::Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) {
    draw([&] { return pixelBounds(x1, y1, x2, y2); },
         [=, inked = ink(color)](QtPainterPage& page) { page.Line(x1, y1, x2, y2, inked, form); });
}

void QtCanvas::Circle(Single x, Single y, Single radius, Long color, Single aspect) {
    draw(
        [&] { return pixelBounds(x - radius, y - radius, x + radius, y + radius); },
        [=, inked = ink(color)](QtPainterPage& page) { page.Circle(x, y, radius, inked, aspect); });
}

void QtCanvas::Arc(Single x, Single y, Single radius, Long color, double start, double end,
                   Single aspect) {
    draw([&] { return pixelBounds(x - radius, y - radius, x + radius, y + radius); },
         [=, inked = ink(color)](QtPainterPage& page) {
             page.Arc(x, y, radius, inked, start, end, aspect);
         });
}

void QtCanvas::Text(Single x, Single y, const FontSpec& font, std::string_view text, Long color) {
    draw([&] { return textBounds(x, y, font.size, text.size()); },
         [=, kept = std::string(text), inked = ink(color)](QtPainterPage& page) {
             page.Text(x, y, font, kept, inked);
         });
}

void QtCanvas::PaintPicture(const Picture& picture, Single x, Single y, Single width,
                            Single height) {
    const auto* known = dynamic_cast<const QtPicture*>(&picture);
    if (!known) throw Failure{failure::InvalidCall, "Not a picture of this toolkit"};
    const auto bounds = [&] { return pixelBounds(x, y, x + width, y + height); };
    if (AutoRedraw)
        return draw(bounds, [&, x, y, width, height](QtPainterPage& page) {
            page.PaintPicture(*known, x, y, width, height);
        });
    // The temporary layer may outlive the picture; the image's pixels are shared, not copied.
    draw(bounds,
         [=, kept = *known](QtPainterPage& page) { page.PaintPicture(kept, x, y, width, height); });
}

void QtCanvas::Cls() {
    wipeTemporaryLayer();
    if (!AutoRedraw) return;
    if (place_)
        persistentDamage_ |= *place_;
    else
        allDamaged_ = true;
    endPainting();
    if (image_.isNull()) return;
    QPainter painter;
    beginPainting(painter);
    paintDesk(painter);
}

// The smallest rectangle on the edges of device pixels: a clip there cuts no pixel in two.
QRectF QtCanvas::wholePixels(const QRectF& rect) const {
    const auto low = [this](double at) { return std::floor(at * pixelRatio_) / pixelRatio_; };
    const auto high = [this](double at) { return std::ceil(at * pixelRatio_) / pixelRatio_; };
    return {QPointF(low(rect.left()), low(rect.top())),
            QPointF(high(rect.right()), high(rect.bottom()))};
}

void QtCanvas::repaint(const Extent& place, const std::function<void()>& paint) {
    const QRectF seen =
        pixelBounds(place.left, place.top, place.right, place.bottom) & view_.target;
    if (seen.isEmpty()) return;
    endPainting();
    place_ = wholePixels(seen);
    const QRectF around = place_->adjusted(-PenRoom, -PenRoom, PenRoom, PenRoom);
    const Extent formerly =
        std::exchange(visible_, {inchesX(around.left()), inchesY(around.top()),
                                 inchesX(around.right()), inchesY(around.bottom())});
    const auto restore = [&] {
        endPainting();
        place_.reset();
        visible_ = formerly;
    };
    try {
        paint();
    } catch (...) {
        restore();
        throw;
    }
    restore();
}

std::string QtCanvas::Image(Single width, Single height, const std::function<void()>& paint) {
    const double scale = PixelsPerInch * zoom_;
    QImage page = whiteImage(width * scale, height * scale, scale);
    wipeTemporaryLayer();
    endPainting();
    const QSize formerViewport = std::exchange(viewport_, page.size());
    const double formerRatio = std::exchange(pixelRatio_, 1);
    image_.swap(page);
    const auto restore = [&] {
        endPainting();
        image_.swap(page);
        viewport_ = formerViewport;
        pixelRatio_ = formerRatio;
        wholePage_ = false;
        allDamaged_ = true;
        arrange();
    };
    wholePage_ = true;
    arrange();
    try {
        paint();
    } catch (...) {
        restore();
        throw;
    }
    restore();
    return encodedImage(page, PageFormat::Bmp);
}

void QtCanvas::paintDesk(QPainter& painter) const {
    if (wholePage_) return painter.fillRect(view_.target, theme::color(BackColor));
    const Single width = editor_ ? editor_->PageWidth : 8.5f;
    const Single height = editor_ ? editor_->PageHeight : 11.0f;
    const QRectF page(toPixels(0, 0), toPixels(width, height));
    painter.fillRect(view_.target, theme::Desk);
    for (int ring = ShadowRings; ring > 0; --ring)
        paintRing(painter, page.translated(0, ShadowDrop), ring);
    painter.fillRect(page.adjusted(-1, -1, 1, 1), theme::PageEdge);
    painter.fillRect(page, theme::color(BackColor));
}

}  // namespace ladrix
