#include "qt/QtPainterPage.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "qt/QtImages.h"
#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr std::size_t LargestBatch = 4096;
constexpr double ChordError = 0.15;          // device pixels, of small curves
constexpr double LongChordError = 0.05;      // of large ones, whose long chords show their corners
constexpr double MostCurveSegments = 8192;   // of a full turn
constexpr double LargestPathRadius = 20000;  // device pixels; a larger curve goes out as lines
constexpr double FarOut = 1e7;               // painter units; beyond them lines are clipped
constexpr double ShortestDashPeriod = 2;     // device pixels; a finer pattern is drawn solid
constexpr int VisiblePenUnits = 16;          // room for the widest pen at the view's edges

// Lengths drawn and left out in turn, in inches.
std::span<const double> dashPattern(Short style) {
    static constexpr std::array<double, 2> Dash{0.125, 0.0625};
    static constexpr std::array<double, 2> Dot{0.02, 0.04};
    static constexpr std::array<double, 4> DashDot{0.125, 0.05, 0.02, 0.05};
    static constexpr std::array<double, 6> DashDotDot{0.125, 0.05, 0.02, 0.05, 0.02, 0.05};
    switch (style) {
        case 1:
            return Dash;
        case 2:
            return Dot;
        case 3:
            return DashDot;
        case 4:
            return DashDotDot;
        default:
            return {};
    }
}

double patternLength(std::span<const double> pattern) {
    double sum = 0;
    for (const double length : pattern)
        sum += length;
    return sum;
}

QColor toQColor(Long color) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
}

bool isFarOut(const QLineF& line) {
    // True for what is not a number, too.
    return !(std::abs(line.x1()) < FarOut && std::abs(line.y1()) < FarOut &&
             std::abs(line.x2()) < FarOut && std::abs(line.y2()) < FarOut);
}

bool isFinite(const QLineF& line) {
    return std::isfinite(line.x1()) && std::isfinite(line.y1()) && std::isfinite(line.x2()) &&
           std::isfinite(line.y2());
}

bool isOutside(const QLineF& line, const QRectF& rect) {
    return (line.x1() < rect.left() && line.x2() < rect.left()) ||
           (line.x1() > rect.right() && line.x2() > rect.right()) ||
           (line.y1() < rect.top() && line.y2() < rect.top()) ||
           (line.y1() > rect.bottom() && line.y2() > rect.bottom());
}

struct Span {
    double from = 0, to = 1;  // along the line
};

// The part of a line inside a rectangle, by Liang and Barsky.
std::optional<Span> inside(const QLineF& line, const QRectF& rect) {
    Span span;
    const auto cut = [&span](double step, double distance) {
        if (step == 0) return distance >= 0;
        const double t = distance / step;
        if (step < 0) {
            span.from = std::max(span.from, t);
        } else {
            span.to = std::min(span.to, t);
        }
        return span.from <= span.to;
    };
    const bool met =
        cut(-line.dx(), line.x1() - rect.left()) && cut(line.dx(), rect.right() - line.x1()) &&
        cut(-line.dy(), line.y1() - rect.top()) && cut(line.dy(), rect.bottom() - line.y1());
    return met ? std::optional(span) : std::nullopt;
}

double fullTurn(double start, double end) {
    const double sweep = std::fmod(end - start, 2 * Pi);
    return sweep > 0 ? sweep : sweep + 2 * Pi;
}

// A control character from a damaged record has no glyph and would spoil an SVG file.
QString printable(std::string_view text) {
    QString result = toQString(text);
    for (QChar& c : result)
        if (c.unicode() < u' ' || c.unicode() >= 0xFFFE) c = u' ';
    return result;
}

}  // namespace

QtPainterPage::QtPainterPage(std::string name, Medium medium)
    : name_(std::move(name)), medium_(medium) {}

void QtPainterPage::reset(QPainter* painter, const PageView& view) {
    painter_ = painter;
    view_ = view;
    if (view_.target.isEmpty()) view_.target = QRectF(painter->window());
    if (view_.scaleY == 0) view_.scaleY = view_.scale;
    if (view_.unitsPerInch == 0) view_.unitsPerInch = view_.scale;
    straight_.clear();
    curved_.clear();
    pen_ = Pen{};
    deviceScale_ = std::sqrt(std::abs(painter->deviceTransform().determinant()));

    const double room = VisiblePenUnits * view_.penUnit;
    const QRectF wide = view_.target.adjusted(-room, -room, room, room);
    visible_.left = static_cast<Single>((wide.left() - view_.left) / view_.scale);
    visible_.top = static_cast<Single>((wide.top() - view_.top) / view_.scaleY);
    visible_.right = static_cast<Single>((wide.right() - view_.left) / view_.scale);
    visible_.bottom = static_cast<Single>((wide.bottom() - view_.top) / view_.scaleY);

    painter_->setRenderHint(QPainter::Antialiasing);
    painter_->setRenderHint(QPainter::TextAntialiasing);
    painter_->setRenderHint(QPainter::SmoothPixmapTransform);
    painter_->setRenderHint(QPainter::LosslessImageRendering);
    painter_->setBrush(Qt::NoBrush);
}

void QtPainterPage::flush() {
    // Single lines meet at their ends and want them closed; the pieces of a curve touch already.
    const bool dashed = pen_.style != 0;
    if (!straight_.empty()) {
        painter_->setPen(qtPen(dashed ? Qt::FlatCap : hairline_ ? Qt::SquareCap : Qt::RoundCap));
        painter_->drawLines(straight_.data(), static_cast<int>(straight_.size()));
        straight_.clear();
    }
    if (!curved_.empty()) {
        painter_->setPen(qtPen(dashed || hairline_ ? Qt::FlatCap : Qt::RoundCap));
        painter_->drawLines(curved_.data(), static_cast<int>(curved_.size()));
        curved_.clear();
    }
}

QPointF QtPainterPage::toPainter(Single x, Single y) const {
    return {view_.left + x * view_.scale, view_.top + y * view_.scaleY};
}

QPointF QtPainterPage::penPoint(Single x, Single y) const {
    return {view_.left + penShift_ + x * view_.scale, view_.top + penShift_ + y * view_.scaleY};
}

QPen QtPainterPage::qtPen(Qt::PenCapStyle cap) const {
    return QPen(toQColor(pen_.color), penWidth_, Qt::SolidLine, cap,
                cap == Qt::RoundCap ? Qt::RoundJoin : Qt::MiterJoin);
}

void QtPainterPage::usePen(Long color) {
    const Short style = DrawStyle >= 1 && DrawStyle <= 4 ? DrawStyle : Short{0};
    const Pen pen{color & 0xFFFFFF, std::max(DrawWidth, Short{1}), style};
    if (pen == pen_) return;
    flush();
    pen_ = pen;
    penWidth_ = pen.width * view_.penUnit;
    hairline_ = medium_ == Medium::Raster && penWidth_ * deviceScale_ <= 1.001;
    const double pixels = std::round(penWidth_ * deviceScale_);
    const bool odd =
        std::fmod(pixels, 2) == 1 && std::abs(pixels - penWidth_ * deviceScale_) < 0.01;
    penShift_ = medium_ == Medium::Raster && odd ? 0.5 / deviceScale_ : 0;
    const double room = penWidth_ + 2 / deviceScale_;
    seen_ = view_.target.adjusted(-room, -room, room, room);
    if (medium_ == Medium::Raster) return;

    QPen vectorPen = qtPen(style == 0 ? Qt::RoundCap : Qt::FlatCap);
    if (style != 0) {
        QList<qreal> pattern;  // in pen widths
        for (const double length : dashPattern(style))
            pattern.append(length * view_.unitsPerInch / penWidth_);
        vectorPen.setDashPattern(pattern);
    }
    painter_->setPen(vectorPen);
}

void QtPainterPage::addToBatch(std::vector<QLineF>& batch, const QLineF& line) {
    batch.push_back(line);
    if (batch.size() >= LargestBatch) flush();
}

// A hairline along an axis fills its pixels instead of half of two rows or columns.
QLineF QtPainterPage::onPixels(const QLineF& line) const {
    if (!hairline_) return line;
    constexpr double Rounding = 1.0 / 128;  // a coordinate just short of a pixel belongs to it
    const auto centre = [this](double at) {
        return (std::floor((at - penShift_) * deviceScale_ + Rounding) + 0.5) / deviceScale_;
    };
    if (line.x1() != line.x2() && line.y1() != line.y2()) return line;
    return {centre(line.x1()), centre(line.y1()), centre(line.x2()), centre(line.y2())};
}

// One whole line of the present pen.
void QtPainterPage::segment(const QLineF& line) {
    if (isOutside(line, seen_)) return;
    if (pen_.style != 0 && medium_ == Medium::Raster) {
        double phase = 0;
        dashes(line, phase);
        return;
    }
    QLineF part = line;
    if (isFarOut(line)) {
        const std::optional<Span> span =
            isFinite(line) ? inside(line, seen_) : std::optional<Span>();
        if (!span) return;
        part = QLineF(line.pointAt(span->from), line.pointAt(span->to));
    }
    if (medium_ == Medium::Raster) {
        addToBatch(straight_, onPixels(part));
    } else {
        painter_->drawLine(part);
    }
}

// Cuts a line by the pen's pattern, beginning `phase` inches into it; moves the phase on. What
// cannot be seen is counted, not drawn.
void QtPainterPage::dashes(const QLineF& line, double& phase) {
    if (!isFinite(line)) return;
    const std::optional<Span> span = inside(line, seen_);
    const auto piece = [&](double from, double to) {
        addToBatch(straight_, onPixels({line.pointAt(from), line.pointAt(to)}));
    };
    const std::span<const double> pattern = dashPattern(pen_.style);
    const double period = patternLength(pattern);
    // So far out a dash is less than what the numbers tell apart.
    if (isFarOut(line) || period * view_.unitsPerInch * deviceScale_ < ShortestDashPeriod) {
        if (span) piece(span->from, span->to);
        return;
    }
    const double length = line.length() / view_.unitsPerInch;
    const double start = phase;
    phase = std::fmod(phase + length, period);
    if (!span || length <= 0) return;
    const double first = span->from * length;
    const double last = span->to * length;
    double at = std::floor((start + first) / period) * period - start;
    for (std::size_t i = 0; at < last; i = (i + 1) % pattern.size()) {
        const double next = at + pattern[i];
        if (i % 2 == 0 && next > first)
            piece(std::max(at, first) / length, std::min(next, last) / length);
        at = next;
    }
}

void QtPainterPage::box(const QLineF& diagonal) {
    if (medium_ == Medium::Vector && !isFarOut(diagonal)) {
        if (!isOutside(diagonal, seen_))
            painter_->drawRect(QRectF(diagonal.p1(), diagonal.p2()).normalized());
        return;
    }
    const QPointF a = diagonal.p1();
    const QPointF c = diagonal.p2();
    const QPointF b(c.x(), a.y());
    const QPointF d(a.x(), c.y());
    segment({a, b});
    segment({b, c});
    segment({d, c});
    segment({a, d});
}

// As large as the outline with its pen would be, so that a thin box never vanishes.
void QtPainterPage::fillBox(const QLineF& diagonal) {
    if (!isFinite(diagonal)) return;
    const double half = penWidth_ / 2;
    const QRectF rect = QRectF(diagonal.p1(), diagonal.p2())
                            .normalized()
                            .adjusted(-half, -half, half, half)
                            .intersected(seen_);
    if (!rect.isEmpty()) painter_->fillRect(rect, toQColor(pen_.color));
}

void QtPainterPage::Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm form) {
    usePen(color);
    const QLineF line(penPoint(x1, y1), penPoint(x2, y2));
    switch (form) {
        case LineForm::Plain:
            segment(line);
            break;
        case LineForm::Box:
            box(line);
            break;
        case LineForm::FilledBox:
            fillBox(line);
            break;
    }
}

std::optional<QtPainterPage::Curve> QtPainterPage::visibleCurve(Single x, Single y, Single radius,
                                                                Single aspect) const {
    const double longer = std::abs(radius) * view_.scale;
    const double ratio = aspect > 0 ? static_cast<double>(aspect) : 1.0;
    Curve curve;
    curve.centre = penPoint(x, y);
    curve.radiusX = ratio > 1 ? longer / ratio : longer;
    curve.radiusY = ratio > 1 ? longer : longer * ratio;
    const QLineF bounds(curve.centre.x() - curve.radiusX, curve.centre.y() - curve.radiusY,
                        curve.centre.x() + curve.radiusX, curve.centre.y() + curve.radiusY);
    if (!isFinite(bounds) || isOutside(bounds, seen_)) return std::nullopt;
    curve.whollySeen = seen_.contains(bounds.p1()) && seen_.contains(bounds.p2());
    return curve;
}

void QtPainterPage::stroke(const Curve& curve) {
    const double radius = std::max(curve.radiusX, curve.radiusY) * deviceScale_;
    const bool asLines = medium_ == Medium::Raster && (hairline_ || pen_.style != 0);
    if (asLines || radius > LargestPathRadius) {
        flatten(curve);
        return;
    }
    const QRectF bounds(curve.centre.x() - curve.radiusX, curve.centre.y() - curve.radiusY,
                        2 * curve.radiusX, 2 * curve.radiusY);
    QPainterPath path;
    if (curve.sweep >= 2 * Pi) {
        path.addEllipse(bounds);
    } else {
        path.arcMoveTo(bounds, curve.start * 180 / Pi);
        path.arcTo(bounds, curve.start * 180 / Pi, curve.sweep * 180 / Pi);
    }
    if (medium_ == Medium::Vector) {
        painter_->drawPath(path);
    } else {
        painter_->strokePath(path, qtPen(Qt::RoundCap));
    }
}

// The number of chords follows from the size on the device; each point is the former one turned.
void QtPainterPage::flatten(const Curve& curve) {
    const double radius = std::max(curve.radiusX, curve.radiusY) * deviceScale_;
    const double error = std::clamp(10 * ChordError / radius, LongChordError, ChordError);
    const double perTurn = std::clamp(Pi * std::sqrt(radius / (2 * error)), 6.0, MostCurveSegments);
    const int count = std::max(1, static_cast<int>(std::ceil(perTurn * curve.sweep / (2 * Pi))));
    const double cosine = std::cos(curve.sweep / count);
    const double sine = std::sin(curve.sweep / count);
    double x = std::cos(curve.start);
    double y = std::sin(curve.start);
    const bool plain = hairline_ && pen_.style == 0;
    double phase = 0;
    const auto point = [&] {
        return QPointF(curve.centre.x() + curve.radiusX * x, curve.centre.y() - curve.radiusY * y);
    };
    QPointF from = point();
    for (int i = 0; i < count; ++i) {
        const double turnedX = x * cosine - y * sine;
        y = x * sine + y * cosine;
        x = turnedX;
        const QPointF to = point();
        const QLineF chord(from, to);
        if (plain && (curve.whollySeen || !isFarOut(chord))) {
            if (curve.whollySeen || !isOutside(chord, seen_)) curved_.push_back(chord);
        } else if (pen_.style != 0 && medium_ == Medium::Raster) {
            dashes(chord, phase);
        } else {
            segment(chord);
        }
        from = to;
    }
    if (curved_.size() >= LargestBatch) flush();
}

// Out to the outer edge of the outline, which is then not needed where it has the same colour.
void QtPainterPage::fill(const Curve& curve) {
    const double half = (FillColor & 0xFFFFFF) == pen_.color ? penWidth_ / 2 : 0;
    if (half == 0) flush();
    if (std::max(curve.radiusX, curve.radiusY) * deviceScale_ > LargestPathRadius) return;
    QPainterPath path;
    path.addEllipse(curve.centre, curve.radiusX + half, curve.radiusY + half);
    painter_->fillPath(path, toQColor(FillColor));
}

void QtPainterPage::Circle(Single x, Single y, Single radius, Long color, Single aspect) {
    usePen(color);
    std::optional<Curve> curve = visibleCurve(x, y, radius, aspect);
    if (!curve) return;
    curve->sweep = 2 * Pi;
    if (FillStyle == 0) fill(*curve);
    if (FillStyle != 0 || (FillColor & 0xFFFFFF) != pen_.color) stroke(*curve);
}

void QtPainterPage::Arc(Single x, Single y, Single radius, Long color, double start, double end,
                        Single aspect) {
    usePen(color);
    std::optional<Curve> curve = visibleCurve(x, y, radius, aspect);
    if (!curve || !std::isfinite(start) || !std::isfinite(end)) return;
    curve->start = start;
    curve->sweep = fullTurn(start, end);
    stroke(*curve);
}

void QtPainterPage::Text(Single x, Single y, const FontSpec& font, std::string_view text,
                         Long color) {
    const PaperFont& paper = fonts_.of(font);
    const double factor = paper.inchesPerPixel * view_.unitsPerInch;
    const QPointF corner = toPainter(x, y);
    if (isFarOut({corner, corner}) || text.empty()) return;
    // Slanted and accented letters may lean out of their line a little.
    const double room = paper.height * factor;
    if (corner.x() - room > view_.target.right() || corner.y() - room > view_.target.bottom() ||
        corner.y() + 2 * room < view_.target.top())
        return;
    flush();
    painter_->save();
    painter_->translate(corner);
    painter_->scale(factor, factor);
    painter_->setFont(paper.layout);
    painter_->setPen(toQColor(color));
    painter_->drawText(QPointF(0, paper.ascent), printable(text));
    painter_->restore();
}

void QtPainterPage::PaintPicture(const Picture& picture, Single x, Single y, Single width,
                                 Single height) {
    const auto* qtPicture = dynamic_cast<const QtPicture*>(&picture);
    if (!qtPicture) throw Failure{failure::InvalidCall, "Not a picture of this toolkit"};
    const QLineF diagonal(toPainter(x, y), toPainter(x + width, y + height));
    if (isFarOut(diagonal) || !(width > 0 && height > 0)) return;
    const QRectF rect(diagonal.p1(), diagonal.p2());
    if (!rect.intersects(view_.target)) return;
    flush();
    const bool shrink = medium_ == Medium::Raster;
    const QSize pixels = (rect.size() * deviceScale_).toSize();
    painter_->drawImage(rect, shrink ? qtPicture->shrunkTo(pixels) : qtPicture->image());
}

}  // namespace ladrix
