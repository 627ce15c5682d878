// The dispatcher: from a device name to its drawing on a surface, and from there to the record.
//
// Callers fill the parameter block and call DrawDevice. A routine that corrects an argument (an
// aspect of 0, a radius of 0) leaves the corrected value in the block.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "document/Drawing.h"
#include "platform/Surface.h"
#include "symbols/Symbol.h"

namespace ladrix {

// The parameter block. It keeps its values between calls.
struct DeviceBlock {
    Surface* obj = nullptr;
    std::string CurDevice;
    Single CurX = 0, CurY = 0, CurX2 = 0, CurY2 = 0;
    Long CurColor = Black;
    std::string CurWidthTag;
    Single CurRadius = 0;   // of InsertArc
    Single CurRadius2 = 0;  // of circles and semicircles
    Short CurDirection = 0;
    Single CurStartAngle = 0, CurEndAngle = 0;  // radians
    Single CurAspect = 0;
    Single CurScaleX = 0, CurScaleY = 0;
    Short CurOrientation = 0;
    bool CurFlip = false;
};

struct Symbols {
    DeviceBlock block;
    const Surface* printer = nullptr;  // the one printer object: nothing drawn on it is recorded
    bool ThickDevices = false;
    Short DrawWidthCurrent = 1;  // pixels
    Short PrinterLineWidth = 2;  // pixels
    Single LastRadius = 0;
    Short LastDirection = 0;
    bool SkipUserSymbolOnce = false;

    // Set once by the layer above: begins the attached label of a device just recorded.
    std::function<void(std::string_view prefix, Single x, Single y)> BeginLabel;
    // Set once by the layer above: draws a name that is no built-in symbol.
    std::function<void(const DeviceBlock& block)> DrawUserSymbol;
};

// Draws the block's device and, on a surface other than the printer with neither NoRecord nor
// DrawingPreview on, records it. A failing surface is told in a plain box; the caller goes on.
void DrawDevice(Symbols& symbols, Drawing& drawing, const Platform& platform);

// Loads the block from a row; a scale of 0 becomes 1, radius goes to both radii where the name
// needs it. `color` is the colour to draw in.
void loadBlock(DeviceBlock& block, const DeviceTable& table, Short index, Long color);

// The page rectangle that a row's drawing covers, line width not counted: for culling and fitting.
Extent deviceExtent(const DeviceTable& table, Short index);

// Draws a row without recording it, whatever the flags: previews, exported pages, button images.
void drawRow(Symbols& symbols, Drawing& drawing, const Platform& platform, Surface& surface,
             const DeviceTable& table, Short index, Long color);

// The primitives of one orientation of a shape on any surface.
void drawPrimitives(Surface& surface, std::span<const Primitive> primitives, Single x, Single y,
                    Long color, Single scaleX, Single scaleY);

}  // namespace ladrix
