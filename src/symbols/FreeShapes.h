// The free shapes: lines, squares, circles and arcs with real geometry in place of a scale. They
// are what hand-drawn work and user symbols are made of.
#pragma once

#include <string_view>

#include "symbols/DrawDevice.h"

namespace ladrix {

enum class FreeShape { None, Line, Square, Circle, SolidCircle, SemiCircle, Arc };

FreeShape freeShapeOf(std::string_view name);

// Draws the block's free shape. Corrected arguments (aspect, radius, angles) stay in the block.
void drawFreeShape(FreeShape shape, Symbols& symbols, const Platform& platform);

// The name and fields under which the block's free shape is recorded. Lines and squares are
// recorded by their tools, not here.
Device recordOfFreeShape(FreeShape shape, const DeviceBlock& block);

Extent freeShapeExtent(FreeShape shape, const DeviceTable& table, Short index);

}  // namespace ladrix
