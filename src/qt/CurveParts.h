// The part of a large ellipse that lies inside a rectangle, so that a curve of any radius costs
// what is seen of it. Painter units; angles are radians, 0 is east, counter-clockwise.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <vector>

namespace ladrix {

struct Ellipse {
    QPointF centre;
    double radiusX = 0, radiusY = 0;

    QPointF at(double angle) const;
};

// Counter-clockwise from `start`; at most a full turn.
struct Sweep {
    double start = 0, sweep = 0;
};

// In the order in which `whole` runs. A part may touch an edge, none lies outside.
std::vector<Sweep> partsInside(const Ellipse& ellipse, const Sweep& whole, const QRectF& rect);

// To about a thousandth for ellipses, exact for circles.
double lengthOf(const Ellipse& ellipse, const Sweep& part);

// As Bezier curves that leave the ellipse by less than a hundred thousandth of its radius and, as
// they shrink with the part, by next to nothing where the part is small.
QPainterPath curvePath(const Ellipse& ellipse, const Sweep& part);

}  // namespace ladrix
