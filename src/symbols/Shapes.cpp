#include "symbols/Shapes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace ladrix {

namespace {

struct Point {
    Single a, b;
};

Point turnedPoint(Single a, Single b, Turn turn) {
    switch (turn) {
        case Turn::Clockwise:
            return {-b, a};
        case Turn::CounterClockwise:
            return {b, -a};
        case Turn::Half:
            return {-a, -b};
        case Turn::MirrorLeftRight:
            return {-a, b};
        case Turn::MirrorTopBottom:
            return {a, -b};
        case Turn::None:
            break;
    }
    return {a, b};
}

Single degreesAboveZero(Single degrees) {
    Single result = std::fmod(degrees, 360.0f);
    if (result <= 0) result += 360;
    return result;
}

std::pair<Single, Single> turnedAngles(Single start, Single end, Turn turn) {
    switch (turn) {
        case Turn::Clockwise:
            return {start - 90, end - 90};
        case Turn::CounterClockwise:
            return {start + 90, end + 90};
        case Turn::Half:
            return {start + 180, end + 180};
        case Turn::MirrorLeftRight:
            return {180 - end, 180 - start};
        case Turn::MirrorTopBottom:
            return {-end, -start};
        case Turn::None:
            break;
    }
    return {start, end};
}

bool isTwoPoint(PrimitiveKind kind) {
    return kind == PrimitiveKind::Line || kind == PrimitiveKind::Box ||
           kind == PrimitiveKind::FilledBox;
}

bool angleWithin(double angle, double start, double end) {
    const double sweep = std::fmod(end - start + 720, 360);
    const double offset = std::fmod(angle - start + 720, 360);
    return sweep == 0 || offset <= sweep;
}

void addArc(Extent& extent, const Primitive& p) {
    const auto at = [&](double degrees) {
        const double radians = degrees * Pi / 180;
        extent.add(p.a1 + static_cast<Single>(p.r * std::cos(radians)),
                   p.b1 - static_cast<Single>(p.r * std::sin(radians)));
    };
    at(p.start);
    at(p.end);
    for (const double axis : {0.0, 90.0, 180.0, 270.0})
        if (angleWithin(axis, p.start, p.end)) at(axis);
}

Single reachOf(std::span<const Primitive> primitives) {
    Single reach = 0;
    for (const Primitive& p : primitives) {
        reach = std::max({reach, std::fabs(p.a1) + p.r, std::fabs(p.b1) + p.r});
        if (isTwoPoint(p.kind)) reach = std::max({reach, std::fabs(p.a2), std::fabs(p.b2)});
    }
    return reach;
}

}  // namespace

Primitive turned(const Primitive& p, Turn turn, Single moveA, Single moveB) {
    Primitive result = p;
    const Point first = turnedPoint(p.a1, p.b1, turn);
    result.a1 = first.a + moveA;
    result.b1 = first.b + moveB;
    if (isTwoPoint(p.kind)) {
        const Point second = turnedPoint(p.a2, p.b2, turn);
        result.a2 = second.a + moveA;
        result.b2 = second.b + moveB;
    }
    if (p.kind == PrimitiveKind::Arc && turn != Turn::None) {
        const auto [start, end] = turnedAngles(p.start, p.end, turn);
        result.start = degreesAboveZero(start);
        result.end = degreesAboveZero(end);
    }
    return result;
}

std::vector<Primitive> expanded(const Block& block) {
    std::vector<Primitive> result;
    result.reserve(block.primitives.size());
    for (const Primitive& p : block.primitives)
        result.push_back(turned(p, block.turn, block.moveA, block.moveB));
    return result;
}

Extent extentOf(std::span<const Primitive> primitives) {
    Extent extent;
    for (const Primitive& p : primitives) {
        if (isTwoPoint(p.kind)) {
            extent.add(p.a1, p.b1);
            extent.add(p.a2, p.b2);
        } else if (p.kind == PrimitiveKind::Circle) {
            extent.add(p.a1 - p.r, p.b1 - p.r);
            extent.add(p.a1 + p.r, p.b1 + p.r);
        } else if (p.kind == PrimitiveKind::Arc) {
            addArc(extent, p);
        }
    }
    return extent;
}

std::span<const Primitive> Shape::primitives(Short orientation) const {
    if (anyOrientation) return orientations[0];
    if (orientation < 0 || orientation >= MaxOrientations) return {};
    return orientations[static_cast<std::size_t>(orientation)];
}

Extent Shape::extent(Short orientation) const {
    if (anyOrientation) return extents[0];
    if (orientation < 0 || orientation >= MaxOrientations) return {};
    return extents[static_cast<std::size_t>(orientation)];
}

Extent Shape::placedExtent(Short orientation, Single x, Single y, Single scaleX,
                           Single scaleY) const {
    const Extent own = extent(orientation);
    Extent placed;
    if (own.empty()) return placed;
    const Single widest =
        std::max({std::fabs(scaleX), std::fabs(scaleY), hasAbsolute ? 1.0f : 0.0f});
    // Unequal scales move an arc's ends along a circle that stays round: the whole circle counts.
    const Single whole = reaches[anyOrientation ? 0 : static_cast<std::size_t>(orientation)];
    const Single seen = std::max(
        {std::fabs(own.left), std::fabs(own.top), std::fabs(own.right), std::fabs(own.bottom)});
    const Single reach = widest * (scaleX == scaleY && !hasAbsolute ? seen : whole);
    placed.add(x - reach, y - reach);
    placed.add(x + reach, y + reach);
    return placed;
}

Shape shapeOf(const Symbol& symbol) {
    Shape shape;
    shape.symbol = &symbol;
    for (const Block& block : symbol.blocks) {
        shape.anyOrientation = block.orientation == AnyOrientation;
        const auto index =
            shape.anyOrientation ? std::size_t{0} : static_cast<std::size_t>(block.orientation);
        shape.orientations.at(index) = expanded(block);
        shape.extents.at(index) = extentOf(shape.orientations[index]);
        shape.reaches.at(index) = reachOf(shape.orientations[index]);
        for (const Primitive& p : shape.orientations[index])
            if (p.absolute != 0) shape.hasAbsolute = true;
    }
    return shape;
}

}  // namespace ladrix
