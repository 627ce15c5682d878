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
constexpr double ChordError = 0.15;         // device pixels, of small curves
constexpr double LongChordError = 0.05;     // of large ones, whose long chords show their corners
constexpr double MostCurveSegments = 1e9;   // of a full turn
constexpr double LargestPathRadius = 2000;  // device pixels; of a larger curve only parts go out
constexpr double Reach = 32;                // device pixels that a line may leave the view
constexpr double FarOut = 1e7;              // painter units; beyond them dashes are drawn solid
constexpr double ShortestDashPeriod = 2;    // device pixels; a finer pattern is drawn solid
constexpr int VisiblePenUnits = 16;         // room for the widest pen at the view's edges
constexpr Single FrameMargin = 0.05f;       // inches, of the name in a picture's frame
constexpr Single FrameNamePoints = 8;

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
    const double reach = Reach / deviceScale_;
    reach_ = seen_.adjusted(-reach, -reach, reach, reach);
    if (medium_ == Medium::Vector) setVectorPen(0);
}

// With the dashes `phase` painter units into their pattern.
void QtPainterPage::setVectorPen(double phase) {
    QPen pen = qtPen(pen_.style == 0 ? Qt::RoundCap : Qt::FlatCap);
    if (pen_.style != 0) {
        const std::span<const double> lengths = dashPattern(pen_.style);
        QList<qreal> pattern;  // in pen widths
        for (const double length : lengths)
            pattern.append(length * view_.unitsPerInch / penWidth_);
        pen.setDashPattern(pattern);
        const double period = patternLength(lengths) * view_.unitsPerInch;
        pen.setDashOffset(std::fmod(phase, period) / penWidth_);
    }
    painter_->setPen(pen);
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
    if (reach_.contains(line.p1()) && reach_.contains(line.p2()))
        return medium_ == Medium::Raster ? addToBatch(straight_, onPixels(line))
                                         : painter_->drawLine(line);
    const std::optional<Span> span = isFinite(line) ? inside(line, reach_) : std::optional<Span>();
    if (!span) return;
    const QLineF part(line.pointAt(span->from), line.pointAt(span->to));
    if (medium_ == Medium::Raster) return addToBatch(straight_, onPixels(part));
    const bool shifted = pen_.style != 0 && span->from > 0;
    if (shifted) setVectorPen(span->from * line.length());
    painter_->drawLine(part);
    if (shifted) setVectorPen(0);
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
    if (medium_ == Medium::Vector && reach_.contains(diagonal.p1()) &&
        reach_.contains(diagonal.p2())) {
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
    Ellipse& ellipse = curve.ellipse;
    ellipse.centre = penPoint(x, y);
    ellipse.radiusX = ratio > 1 ? longer / ratio : longer;
    ellipse.radiusY = ratio > 1 ? longer : longer * ratio;
    curve.radius = longer * deviceScale_;
    const QLineF bounds(ellipse.centre.x() - ellipse.radiusX, ellipse.centre.y() - ellipse.radiusY,
                        ellipse.centre.x() + ellipse.radiusX, ellipse.centre.y() + ellipse.radiusY);
    if (!isFinite(bounds) || isOutside(bounds, seen_)) return std::nullopt;
    curve.whollySeen = seen_.contains(bounds.p1()) && seen_.contains(bounds.p2());
    return curve;
}

// The number of chords follows from the size on the device alone: where the view ends must not
// change what is seen.
QtPainterPage::Chords QtPainterPage::chordsOf(const Curve& curve) {
    const double error = std::clamp(10 * ChordError / curve.radius, LongChordError, ChordError);
    const double perTurn =
        std::clamp(Pi * std::sqrt(curve.radius / (2 * error)), 6.0, MostCurveSegments);
    Chords chords;
    chords.count = std::max(1.0, std::ceil(perTurn * curve.sweep.sweep / (2 * Pi)));
    chords.step = curve.sweep.sweep / chords.count;
    return chords;
}

// The ends of all chords that a part of the curve touches; each point is the former one turned.
template <class Take>
void QtPainterPage::eachPoint(const Curve& curve, const Sweep& part, const Take& take) const {
    const Chords chords = chordsOf(curve);
    const double offset = part.start - curve.sweep.start;
    const double first = std::max(0.0, std::floor(offset / chords.step));
    const bool closed = curve.sweep.sweep >= 2 * Pi;
    const double end = std::ceil((offset + part.sweep) / chords.step);
    const double last = closed ? end : std::min(chords.count, end);
    const double cosine = std::cos(chords.step);
    const double sine = std::sin(chords.step);
    double x = std::cos(curve.sweep.start + first * chords.step);
    double y = std::sin(curve.sweep.start + first * chords.step);
    const Ellipse& ellipse = curve.ellipse;
    for (double i = first; i <= last; ++i) {
        take(QPointF(ellipse.centre.x() + ellipse.radiusX * x,
                     ellipse.centre.y() - ellipse.radiusY * y));
        const double turnedX = x * cosine - y * sine;
        y = x * sine + y * cosine;
        x = turnedX;
    }
}

std::vector<Sweep> QtPainterPage::visibleParts(const Curve& curve) const {
    if (curve.whollySeen) return {curve.sweep};
    std::vector<Sweep> parts = partsInside(curve.ellipse, curve.sweep, seen_);
    // Where a full turn begins is seen only in its dashes.
    const double turn = curve.sweep.sweep, end = curve.sweep.start + turn;
    if (pen_.style == 0 && turn >= 2 * Pi && parts.size() > 1 &&
        parts.front().start == curve.sweep.start &&
        parts.back().start + parts.back().sweep >= end - turn * 1e-15) {
        parts.back().sweep += parts.front().sweep;
        parts.erase(parts.begin());
    }
    return parts;
}

void QtPainterPage::stroke(const Curve& curve) {
    if (medium_ == Medium::Raster && (hairline_ || pen_.style != 0)) return flatten(curve);
    const bool whole =
        medium_ == Medium::Raster ? curve.radius <= LargestPathRadius : curve.whollySeen;
    if (!whole) return strokeParts(curve);
    const Ellipse& ellipse = curve.ellipse;
    const QRectF bounds(ellipse.centre.x() - ellipse.radiusX, ellipse.centre.y() - ellipse.radiusY,
                        2 * ellipse.radiusX, 2 * ellipse.radiusY);
    const Sweep& sweep = curve.sweep;
    QPainterPath path;
    if (sweep.sweep >= 2 * Pi) {
        path.addEllipse(bounds);
    } else {
        path.arcMoveTo(bounds, sweep.start * 180 / Pi);
        path.arcTo(bounds, sweep.start * 180 / Pi, sweep.sweep * 180 / Pi);
    }
    if (medium_ == Medium::Vector) {
        painter_->drawPath(path);
    } else {
        painter_->strokePath(path, qtPen(Qt::RoundCap));
    }
}

// Curves on paper. On a raster the chords that any other view would show too.
void QtPainterPage::strokeParts(const Curve& curve) {
    for (const Sweep& part : visibleParts(curve)) {
        if (medium_ == Medium::Vector) {
            const Sweep before{curve.sweep.start, part.start - curve.sweep.start};
            if (pen_.style != 0) setVectorPen(lengthOf(curve.ellipse, before));
            painter_->drawPath(curvePath(curve.ellipse, part));
            continue;
        }
        QPainterPath path;
        eachPoint(curve, part, [&path](const QPointF& point) {
            if (path.elementCount() == 0) {
                path.moveTo(point);
            } else {
                path.lineTo(point);
            }
        });
        painter_->strokePath(path, qtPen(Qt::RoundCap));
    }
    if (medium_ == Medium::Vector && pen_.style != 0) setVectorPen(0);
}

void QtPainterPage::flatten(const Curve& curve) {
    for (const Sweep& part : visibleParts(curve)) {
        double phase = 0;
        if (pen_.style != 0 && !curve.whollySeen) {
            const double step = chordsOf(curve).step;
            const double first = std::floor((part.start - curve.sweep.start) / step);
            phase = lengthOf(curve.ellipse, {curve.sweep.start, std::max(0.0, first) * step}) /
                    view_.unitsPerInch;
        }
        std::optional<QPointF> from;
        eachPoint(curve, part, [&](const QPointF& to) {
            const QLineF chord(from.value_or(to), to);
            if (pen_.style != 0) {
                if (from) dashes(chord, phase);
            } else if (from && isFarOut(chord)) {
                segment(chord);
            } else if (from) {
                curved_.push_back(chord);
            }
            from = to;
        });
    }
    if (curved_.size() >= LargestBatch) flush();
}

// Out to the outer edge of the outline, which is then not needed where it has the same colour.
void QtPainterPage::fill(const Curve& curve) {
    const double half = (FillColor & 0xFFFFFF) == pen_.color ? penWidth_ / 2 : 0;
    if (half == 0) flush();
    Curve outer = curve;
    outer.ellipse.radiusX += half;
    outer.ellipse.radiusY += half;
    if (!curve.whollySeen && curve.radius > LargestPathRadius) return fillPart(outer);
    QPainterPath path;
    path.addEllipse(outer.ellipse.centre, outer.ellipse.radiusX, outer.ellipse.radiusY);
    painter_->fillPath(path, toQColor(FillColor));
}

// What is seen of a large filled curve: the points of its rim and the view's corners inside it,
// in their order around the middle.
void QtPainterPage::fillPart(const Curve& curve) {
    const Ellipse& ellipse = curve.ellipse;
    std::vector<QPointF> points;
    for (const QPointF& corner :
         {seen_.topLeft(), seen_.topRight(), seen_.bottomRight(), seen_.bottomLeft()}) {
        const QPointF offset = corner - ellipse.centre;
        if (std::hypot(offset.x() / ellipse.radiusX, offset.y() / ellipse.radiusY) < 1)
            points.push_back(corner);
    }
    for (const Sweep& part : visibleParts(curve))
        eachPoint(curve, part, [&points](const QPointF& point) { points.push_back(point); });
    if (points.empty()) return;
    QPointF middle;
    for (const QPointF& point : points)
        middle += point / static_cast<double>(points.size());
    const auto around = [&middle](const QPointF& point) {
        return std::atan2(point.y() - middle.y(), point.x() - middle.x());
    };
    std::sort(points.begin(), points.end(),
              [&](const QPointF& a, const QPointF& b) { return around(a) < around(b); });
    QPainterPath path;
    path.addPolygon(QPolygonF(QList<QPointF>(points.begin(), points.end())));
    path.closeSubpath();
    painter_->fillPath(path, toQColor(FillColor));
}

void QtPainterPage::Circle(Single x, Single y, Single radius, Long color, Single aspect) {
    usePen(color);
    std::optional<Curve> curve = visibleCurve(x, y, radius, aspect);
    if (!curve) return;
    curve->sweep = {0, 2 * Pi};
    if (FillStyle == 0) fill(*curve);
    if (FillStyle != 0 || (FillColor & 0xFFFFFF) != pen_.color) stroke(*curve);
}

void QtPainterPage::Arc(Single x, Single y, Single radius, Long color, double start, double end,
                        Single aspect) {
    usePen(color);
    std::optional<Curve> curve = visibleCurve(x, y, radius, aspect);
    if (!curve || !std::isfinite(start) || !std::isfinite(end)) return;
    curve->sweep = {start, fullTurn(start, end)};
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

// In the place of a picture that is not shown.
void QtPainterPage::paintFrame(const QtPicture& picture, Single x, Single y, Single width,
                               Single height) {
    Line(x, y, x + width, y + height, Black, LineForm::Box);
    Line(x, y, x + width, y + height, Black, LineForm::Plain);
    Line(x, y + height, x + width, y, Black, LineForm::Plain);
    Text(x + FrameMargin, y + FrameMargin, {"Arial", FrameNamePoints, false, false},
         picture.frameName(), Black);
}

void QtPainterPage::PaintPicture(const Picture& picture, Single x, Single y, Single width,
                                 Single height) {
    const auto* qtPicture = dynamic_cast<const QtPicture*>(&picture);
    if (!qtPicture) throw Failure{failure::InvalidCall, "Not a picture of this toolkit"};
    const QLineF diagonal(toPainter(x, y), toPainter(x + width, y + height));
    if (isFarOut(diagonal) || !(width > 0 && height > 0)) return;
    const QRectF rect(diagonal.p1(), diagonal.p2());
    if (!rect.intersects(view_.target)) return;
    if (qtPicture->isFrame()) return paintFrame(*qtPicture, x, y, width, height);
    flush();
    const bool shrink = medium_ == Medium::Raster;
    const QSize pixels = (rect.size() * deviceScale_).toSize();
    painter_->drawImage(rect, shrink ? qtPicture->shrunkTo(pixels) : qtPicture->image());
}

}  // namespace ladrix
