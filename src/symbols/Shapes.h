// From table entries to plain lists of primitives: turns and mirrors are worked out here, once.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "symbols/Symbol.h"

namespace ladrix {

// `p` turned about (0, 0), then moved. An arc keeps its counter-clockwise sense; angles come back
// above 0 and up to 360 degrees.
Primitive turned(const Primitive& p, Turn turn, Single moveA, Single moveB);

// The primitives of a block, turned where the block says so.
std::vector<Primitive> expanded(const Block& block);

// What the primitives cover at scale 1, the insertion point at (0, 0); line width not counted.
Extent extentOf(std::span<const Primitive> primitives);

constexpr Short MaxOrientations = 5;

// A symbol ready to be drawn: one list for each orientation, empty where it has no drawing.
struct Shape {
    const Symbol* symbol = nullptr;
    std::array<std::vector<Primitive>, MaxOrientations> orientations;
    std::array<Extent, MaxOrientations> extents;
    // How far the points and whole circles go from the insertion point on either axis, at scale 1.
    std::array<Single, MaxOrientations> reaches{};
    bool hasAbsolute = false;  // some figures are inches: extents hold at scale 1 only
    bool anyOrientation = false;

    // The list for an orientation; empty for one outside the symbol's own.
    std::span<const Primitive> primitives(Short orientation) const;
    Extent extent(Short orientation) const;  // at scale 1, the insertion point at (0, 0)

    // A rectangle that surely holds the symbol placed at (x, y) inches; for culling.
    Extent placedExtent(Short orientation, Single x, Single y, Single scaleX, Single scaleY) const;
};

Shape shapeOf(const Symbol& symbol);

}  // namespace ladrix
