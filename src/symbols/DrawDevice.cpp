#include "symbols/DrawDevice.h"

#include <cmath>

#include "symbols/DeviceNames.h"
#include "symbols/FreeShapes.h"
#include "symbols/Shapes.h"

namespace ladrix {

namespace {

struct Placement {
    Single x, y, scaleX, scaleY;

    Single a(const Primitive& p, Single value, std::uint8_t bit) const {
        return (p.absolute & bit) != 0 ? x + value : x + scaleX * value;
    }
    Single b(const Primitive& p, Single value, std::uint8_t bit) const {
        return (p.absolute & bit) != 0 ? y + value : y + scaleY * value;
    }
    Single radius(const Primitive& p) const {
        return std::fabs((p.absolute & AbsR) != 0 ? p.r : scaleX * p.r);
    }
};

LineForm lineForm(PrimitiveKind kind) {
    if (kind == PrimitiveKind::Box) return LineForm::Box;
    if (kind == PrimitiveKind::FilledBox) return LineForm::FilledBox;
    return LineForm::Plain;
}

// A negative scale mirrors the symbol, its arcs included.
void drawArcPrimitive(Surface& surface, const Primitive& p, const Placement& at, Long color) {
    double start = p.start, end = p.end;
    if (at.scaleX < 0) {
        const double formerStart = start;
        start = 180 - end;
        end = 180 - formerStart;
    }
    if (at.scaleY < 0) {
        const double formerStart = start;
        start = 360 - end;
        end = 360 - formerStart;
    }
    surface.Arc(at.a(p, p.a1, AbsA1), at.b(p, p.b1, AbsB1), at.radius(p), color, start * Pi / 180,
                end * Pi / 180, 1);
}

bool mayRecord(const Symbols& symbols, const Drawing& drawing) {
    return !drawing.DrawingPreview && symbols.block.obj != symbols.printer && !drawing.NoRecord;
}

void recordSymbol(Symbols& symbols, Drawing& drawing, const Platform& platform,
                  const Symbol& symbol) {
    if (!mayRecord(symbols, drawing)) return;
    const DeviceBlock& block = symbols.block;
    Device device;
    device.name = symbol.name;
    device.x = block.CurX;
    device.y = block.CurY;
    device.color = block.CurColor;
    device.widthTag = block.CurWidthTag;
    device.scaleX = block.CurScaleX;
    device.scaleY = block.CurScaleY;
    device.orientation = block.CurOrientation;
    device.flip = block.CurFlip;
    if (!drawing.AttachLabels || symbol.prefix.empty()) {
        if (!symbol.nameWithoutLabel.empty()) device.name = symbol.nameWithoutLabel;
        RecordDevice(drawing, platform, device);
        return;
    }
    drawing.LabelPending = true;
    const Single scaleX = symbol.labelAbsolute ? 1 : block.CurScaleX;
    const Single scaleY = symbol.labelAbsolute ? 1 : block.CurScaleY;
    const Single x = block.CurX + scaleX * symbol.labelA;
    const Single y = block.CurY + scaleY * symbol.labelB;
    const Short before = drawing.devices.DeviceCount;
    RecordDevice(drawing, platform, device);
    if (drawing.devices.DeviceCount == before) return;  // the table is full
    if (symbols.BeginLabel) symbols.BeginLabel(symbol.prefix, x, y);
}

void drawSymbol(Symbols& symbols, Drawing& drawing, const Platform& platform, const Shape& shape) {
    const DeviceBlock& block = symbols.block;
    const Extent extent = shape.placedExtent(block.CurOrientation, block.CurX, block.CurY,
                                             block.CurScaleX, block.CurScaleY);
    if (extent.meets(block.obj->visible()))
        drawPrimitives(*block.obj, shape.primitives(block.CurOrientation), block.CurX, block.CurY,
                       block.CurColor, block.CurScaleX, block.CurScaleY);
    recordSymbol(symbols, drawing, platform, *shape.symbol);
}

void drawFree(Symbols& symbols, Drawing& drawing, const Platform& platform, FreeShape shape) {
    drawFreeShape(shape, symbols, platform);
    if (shape == FreeShape::Line || shape == FreeShape::Square) return;
    if (!mayRecord(symbols, drawing)) return;
    Device device = recordOfFreeShape(shape, symbols.block);
    RecordDevice(drawing, platform, device);
}

// The frame of a symbol under design: a square of half an inch and its diagonals.
void drawTestSymbol(Symbols& symbols, Drawing& drawing, const Platform& platform) {
    static constexpr Primitive Frame[] = {art::Box(0, 0, 0.5f, 0.5f), art::Line(0, 0, 0.5f, 0.5f),
                                          art::Line(0.5f, 0, 0, 0.5f)};
    static constexpr Block Blocks[] = {{AnyOrientation, Frame}};
    static constexpr Symbol TestSymbol{"InsertTestSymbol", Blocks, {}};
    DeviceBlock& block = symbols.block;
    block.CurScaleX = block.CurScaleY = 1;
    block.CurOrientation = 0;
    block.CurFlip = false;
    drawPrimitives(*block.obj, Frame, block.CurX, block.CurY, block.CurColor, 1, 1);
    recordSymbol(symbols, drawing, platform, TestSymbol);
}

void drawNamed(Symbols& symbols, Drawing& drawing, const Platform& platform) {
    const std::string& name = symbols.block.CurDevice;
    if (const Shape* shape = findShape(name)) return drawSymbol(symbols, drawing, platform, *shape);
    if (const FreeShape shape = freeShapeOf(name); shape != FreeShape::None)
        return drawFree(symbols, drawing, platform, shape);
    if (name == "InsertTestSymbol") return drawTestSymbol(symbols, drawing, platform);
    if (symbols.SkipUserSymbolOnce) {
        symbols.SkipUserSymbolOnce = false;
        return;
    }
    if (symbols.DrawUserSymbol) symbols.DrawUserSymbol(symbols.block);
}

}  // namespace

void drawPrimitives(Surface& surface, std::span<const Primitive> primitives, Single x, Single y,
                    Long color, Single scaleX, Single scaleY) {
    const Placement at{x, y, scaleX, scaleY};
    Long savedFill = surface.FillColor;
    for (const Primitive& p : primitives) {
        switch (p.kind) {
            case PrimitiveKind::Line:
            case PrimitiveKind::Box:
            case PrimitiveKind::FilledBox:
                surface.Line(at.a(p, p.a1, AbsA1), at.b(p, p.b1, AbsB1), at.a(p, p.a2, AbsA2),
                             at.b(p, p.b2, AbsB2), color, lineForm(p.kind));
                break;
            case PrimitiveKind::Circle:
                surface.Circle(at.a(p, p.a1, AbsA1), at.b(p, p.b1, AbsB1), at.radius(p), color, 1);
                break;
            case PrimitiveKind::Arc:
                drawArcPrimitive(surface, p, at, color);
                break;
            case PrimitiveKind::SolidFillOn:
                savedFill = surface.FillColor;
                surface.FillStyle = 0;
                surface.FillColor = color;
                break;
            case PrimitiveKind::SolidFillOff:
                surface.FillColor = savedFill;
                surface.FillStyle = 1;
                break;
            case PrimitiveKind::FillStyleOn:
                surface.FillStyle = 0;
                break;
            case PrimitiveKind::FillStyleOff:
                surface.FillStyle = 1;
                break;
        }
    }
}

void DrawDevice(Symbols& symbols, Drawing& drawing, const Platform& platform) {
    try {
        if (symbols.block.CurScaleX == 0) symbols.block.CurScaleX = 1;
        if (symbols.block.CurScaleY == 0) symbols.block.CurScaleY = 1;
        drawNamed(symbols, drawing, platform);
    } catch (const Failure&) {
        platform.tell("Couldn't handle this symbol as requested.");
    }
}

void loadBlock(DeviceBlock& block, const DeviceTable& table, Short index, Long color) {
    const auto i = static_cast<std::size_t>(index);
    block.CurDevice = table.DeviceName[i];
    block.CurX = table.DeviceX[i];
    block.CurY = table.DeviceY[i];
    block.CurX2 = table.DeviceX2[i];
    block.CurY2 = table.DeviceY2[i];
    block.CurColor = color;
    block.CurWidthTag = table.DeviceWidthTag[i];
    block.CurRadius = block.CurRadius2 = table.DeviceRadius[i];
    block.CurDirection = table.DeviceDirection[i];
    block.CurStartAngle = table.DeviceStartAngle[i];
    block.CurEndAngle = table.DeviceEndAngle[i];
    block.CurAspect = table.DeviceAspect[i];
    block.CurScaleX = table.DeviceScaleX[i] == 0 ? 1 : table.DeviceScaleX[i];
    block.CurScaleY = table.DeviceScaleY[i] == 0 ? 1 : table.DeviceScaleY[i];
    block.CurOrientation = table.DeviceOrientation[i];
    block.CurFlip = table.DeviceFlip[i];
}

Extent deviceExtent(const DeviceTable& table, Short index) {
    const auto i = static_cast<std::size_t>(index);
    const std::string& name = table.DeviceName[i];
    const Single scaleX = table.DeviceScaleX[i] == 0 ? 1 : table.DeviceScaleX[i];
    const Single scaleY = table.DeviceScaleY[i] == 0 ? 1 : table.DeviceScaleY[i];
    if (const Shape* shape = findShape(name))
        return shape->placedExtent(table.DeviceOrientation[i], table.DeviceX[i], table.DeviceY[i],
                                   scaleX, scaleY);
    // What a user symbol covers is known to its script alone.
    const FreeShape shape = freeShapeOf(name);
    return shape == FreeShape::None ? Extent::everything() : freeShapeExtent(shape, table, index);
}

void drawRow(Symbols& symbols, Drawing& drawing, const Platform& platform, Surface& surface,
             const DeviceTable& table, Short index, Long color) {
    const bool formerly = drawing.NoRecord;
    drawing.NoRecord = true;
    loadBlock(symbols.block, table, index, color);
    symbols.block.obj = &surface;
    DrawDevice(symbols, drawing, platform);
    drawing.NoRecord = formerly;
}

}  // namespace ladrix
