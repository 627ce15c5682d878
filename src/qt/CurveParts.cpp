#include "qt/CurveParts.h"

#include <algorithm>
#include <cmath>

#include "platform/Types.h"

namespace ladrix {

namespace {

constexpr double LargestPiece = Pi / 4;  // of a turn in one Bezier curve
constexpr int LengthSamples = 256;       // even

// Where the ellipse crosses the edges, measured onwards from the start, with both ends.
std::vector<double> cutsOf(const Ellipse& ellipse, const Sweep& whole, const QRectF& rect) {
    std::vector<double> cuts{0, whole.sweep};
    const auto add = [&](double angle) {
        double at = std::fmod(angle - whole.start, 2 * Pi);
        if (at < 0) at += 2 * Pi;
        if (at < whole.sweep) cuts.push_back(at);
    };
    for (const double x : {rect.left(), rect.right()}) {
        const double cosine = (x - ellipse.centre.x()) / ellipse.radiusX;
        if (!(std::abs(cosine) <= 1)) continue;
        add(std::acos(cosine));
        add(-std::acos(cosine));
    }
    for (const double y : {rect.top(), rect.bottom()}) {
        const double sine = (ellipse.centre.y() - y) / ellipse.radiusY;
        if (!(std::abs(sine) <= 1)) continue;
        add(std::asin(sine));
        add(Pi - std::asin(sine));
    }
    std::sort(cuts.begin(), cuts.end());
    return cuts;
}

}  // namespace

QPointF Ellipse::at(double angle) const {
    return {centre.x() + radiusX * std::cos(angle), centre.y() - radiusY * std::sin(angle)};
}

std::vector<Sweep> partsInside(const Ellipse& ellipse, const Sweep& whole, const QRectF& rect) {
    const std::vector<double> cuts = cutsOf(ellipse, whole, rect);
    std::vector<Sweep> parts;
    double end = -1;  // of the last part
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
        const double from = cuts[i], to = cuts[i + 1];
        if (to <= from || !rect.contains(ellipse.at(whole.start + (from + to) / 2))) continue;
        if (from == end) {
            parts.back().sweep += to - from;
        } else {
            parts.push_back({whole.start + from, to - from});
        }
        end = to;
    }
    return parts;
}

double lengthOf(const Ellipse& ellipse, const Sweep& part) {
    if (ellipse.radiusX == ellipse.radiusY) return ellipse.radiusX * part.sweep;
    const double step = part.sweep / LengthSamples;
    double sum = 0;  // by Simpson's rule
    for (int i = 0; i <= LengthSamples; ++i) {
        const double angle = part.start + i * step;
        const double speed =
            std::hypot(ellipse.radiusX * std::sin(angle), ellipse.radiusY * std::cos(angle));
        sum += speed * (i == 0 || i == LengthSamples ? 1 : i % 2 == 1 ? 4 : 2);
    }
    return sum * step / 3;
}

QPainterPath curvePath(const Ellipse& ellipse, const Sweep& part) {
    const int count = std::max(1, static_cast<int>(std::ceil(part.sweep / LargestPiece)));
    const double step = part.sweep / count;
    const double handle = 4.0 / 3 * std::tan(step / 4);
    const auto towards = [&](double angle) {  // where the curve heads, as long as its handle
        return QPointF(-ellipse.radiusX * std::sin(angle), -ellipse.radiusY * std::cos(angle)) *
               handle;
    };
    QPainterPath path(ellipse.at(part.start));
    for (int i = 0; i < count; ++i) {
        const double from = part.start + i * step, to = from + step;
        const QPointF end = ellipse.at(to);
        path.cubicTo(ellipse.at(from) + towards(from), end - towards(to), end);
    }
    return path;
}

}  // namespace ladrix
