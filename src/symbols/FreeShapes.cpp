#include "symbols/FreeShapes.h"

#include <cmath>

#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single DefaultRadius = 0.125f;  // inches
constexpr Single FullTurn = 6.283185f;
constexpr Single AlmostZero = 0.000001f;

void drawLine(Symbols& symbols, const Platform& platform) {
    const DeviceBlock& block = symbols.block;
    Surface& surface = *block.obj;
    const bool thick = block.CurWidthTag == "DrawWidth=2";
    const auto width = static_cast<Short>(symbols.DrawWidthCurrent * (thick ? 2 : 1));
    platform.picLX->AutoRedraw = true;
    if (!symbols.ThickDevices) {
        platform.picLX->DrawWidth = width;
        if (&surface != symbols.printer) surface.DrawWidth = width;
    }
    surface.Line(block.CurX, block.CurY, block.CurX2, block.CurY2, block.CurColor, LineForm::Plain);
    if (!symbols.ThickDevices) {
        platform.picLX->DrawWidth = symbols.DrawWidthCurrent;
        if (&surface != symbols.printer) surface.DrawWidth = symbols.DrawWidthCurrent;
    }
}

void drawSquare(Symbols& symbols, const Platform& platform) {
    const DeviceBlock& block = symbols.block;
    Surface& surface = *block.obj;
    const bool printing = &surface == symbols.printer;
    if (printing) surface.DrawWidth = symbols.DrawWidthCurrent;
    platform.picLX->AutoRedraw = true;
    const Single style = typedNumber(block.CurWidthTag).value_or(0);
    surface.DrawStyle = style >= 0 && style <= 4 ? static_cast<Short>(style) : Short{0};
    surface.Line(block.CurX, block.CurY, block.CurX2, block.CurY2, block.CurColor, LineForm::Box);
    if (printing) surface.DrawWidth = symbols.PrinterLineWidth;
    surface.DrawStyle = 0;
    if (!symbols.ThickDevices && !printing) surface.DrawWidth = 1;
}

void drawCircle(Symbols& symbols) {
    DeviceBlock& block = symbols.block;
    if (block.CurAspect == 0) block.CurAspect = 1;
    block.obj->Circle(block.CurX + block.CurRadius2, block.CurY, block.CurRadius2, block.CurColor,
                      block.CurAspect);
    symbols.LastRadius = block.CurRadius2;
}

void drawSolidCircle(Symbols& symbols) {
    DeviceBlock& block = symbols.block;
    Surface& surface = *block.obj;
    if (block.CurAspect == 0) block.CurAspect = 1;
    const Long saved = surface.FillColor;
    surface.FillStyle = 0;
    surface.FillColor = block.CurColor;
    surface.Circle(block.CurX, block.CurY, block.CurRadius2, block.CurColor, block.CurAspect);
    surface.FillColor = saved;
    surface.FillStyle = 1;
}

struct Sweep {
    Single x, y;        // centre
    double start, end;  // degrees
};

Sweep semiCircleSweep(const DeviceBlock& block) {
    const Single x = block.CurX, y = block.CurY, r = block.CurRadius2;
    switch (block.CurDirection) {
        case 2:
            return {x - r, y, 270, 90};
        case 3:
            return {x, y + r, 360, 180};
        case 4:
            return {x, y - r, 180, 360};
        default:
            return {x + r, y, 90, 270};
    }
}

void drawSemiCircle(Symbols& symbols) {
    DeviceBlock& block = symbols.block;
    if (block.CurRadius2 == 0) block.CurRadius2 = DefaultRadius;
    symbols.LastDirection = block.CurDirection;
    symbols.LastRadius = block.CurRadius2;
    if (block.CurDirection < 0 || block.CurDirection > 4) return;
    const Sweep sweep = semiCircleSweep(block);
    block.obj->Arc(sweep.x, sweep.y, block.CurRadius2, block.CurColor, sweep.start * Pi / 180,
                   sweep.end * Pi / 180, 1);
}

// The centre of a palette arc and the angles that stand in where none is given.
Sweep directedArcSweep(const DeviceBlock& block) {
    const Single x = block.CurX, y = block.CurY, r = block.CurRadius;
    switch (block.CurDirection) {
        case 1:
            return {x + r, y, 120, 240};
        case 2:
            return {x - r, y, 300, 60};
        case 3:
            return {x, y + r, 30, 150};
        default:
            return {x, y - r, 210, 330};
    }
}

void correctFreeArc(DeviceBlock& block) {
    if (block.CurStartAngle > FullTurn) block.CurStartAngle = FullTurn;
    if (block.CurEndAngle > FullTurn) block.CurEndAngle = FullTurn;
    if (block.CurStartAngle == 0) block.CurStartAngle = AlmostZero;
    if (block.CurEndAngle == 0) block.CurEndAngle = AlmostZero;
}

void drawArc(Symbols& symbols) {
    DeviceBlock& block = symbols.block;
    if (block.CurRadius == 0) block.CurRadius = DefaultRadius;
    symbols.LastRadius = block.CurRadius;
    if (block.CurAspect == 0) block.CurAspect = 1;
    Sweep sweep{block.CurX, block.CurY, 0, 0};
    if (block.CurDirection >= 1 && block.CurDirection <= 4) {
        symbols.LastDirection = block.CurDirection;
        sweep = directedArcSweep(block);
        const auto radians = [](double degrees) {
            return static_cast<Single>(degrees / 180 * 3.1415927);
        };
        if (block.CurStartAngle == 0) block.CurStartAngle = radians(sweep.start);
        if (block.CurEndAngle == 0) block.CurEndAngle = radians(sweep.end);
    } else if (block.CurDirection == 0) {
        correctFreeArc(block);
    } else {
        return;
    }
    block.obj->Arc(sweep.x, sweep.y, block.CurRadius, block.CurColor, block.CurStartAngle,
                   block.CurEndAngle, block.CurAspect);
}

}  // namespace

FreeShape freeShapeOf(std::string_view name) {
    if (name == "InsertSavedLine") return FreeShape::Line;
    if (name == "InsertSavedSquare") return FreeShape::Square;
    if (name == "InsertCircle") return FreeShape::Circle;
    if (name == "InsertSolidCircle" || name == "InsertConnectionPoint")
        return FreeShape::SolidCircle;
    if (name == "InsertSemiCircle") return FreeShape::SemiCircle;
    if (name == "InsertArc") return FreeShape::Arc;
    return FreeShape::None;
}

void drawFreeShape(FreeShape shape, Symbols& symbols, const Platform& platform) {
    switch (shape) {
        case FreeShape::Line:
            return drawLine(symbols, platform);
        case FreeShape::Square:
            return drawSquare(symbols, platform);
        case FreeShape::Circle:
            return drawCircle(symbols);
        case FreeShape::SolidCircle:
            return drawSolidCircle(symbols);
        case FreeShape::SemiCircle:
            return drawSemiCircle(symbols);
        case FreeShape::Arc:
            return drawArc(symbols);
        case FreeShape::None:
            return;
    }
}

Device recordOfFreeShape(FreeShape shape, const DeviceBlock& block) {
    Device device;
    device.x = block.CurX;
    device.y = block.CurY;
    device.color = block.CurColor;
    device.widthTag = block.CurWidthTag;
    device.radius = shape == FreeShape::Arc ? block.CurRadius : block.CurRadius2;
    switch (shape) {
        case FreeShape::Circle:
            device.name = "InsertCircle";
            device.aspect = block.CurAspect;
            break;
        case FreeShape::SolidCircle:
            device.name = "InsertSolidCircle";
            device.aspect = block.CurAspect;
            break;
        case FreeShape::SemiCircle:
            device.name = "InsertSemiCircle";
            device.direction = block.CurDirection;
            device.widthTag.clear();
            break;
        default:
            device.name = "InsertArc";
            device.direction = block.CurDirection;
            device.startAngle = block.CurStartAngle;
            device.endAngle = block.CurEndAngle;
            device.aspect = block.CurAspect;
            break;
    }
    return device;
}

Extent freeShapeExtent(FreeShape shape, const DeviceTable& table, Short index) {
    const auto i = static_cast<std::size_t>(index);
    Extent extent;
    const Single x = table.DeviceX[i], y = table.DeviceY[i];
    if (shape == FreeShape::Line || shape == FreeShape::Square) {
        extent.add(x, y);
        extent.add(table.DeviceX2[i], table.DeviceY2[i]);
        return extent;
    }
    Single reach = std::fabs(table.DeviceRadius[i]);
    if (reach == 0 && shape != FreeShape::Circle && shape != FreeShape::SolidCircle)
        reach = DefaultRadius;
    if (shape != FreeShape::SolidCircle) reach *= 2;
    extent.add(x - reach, y - reach);
    extent.add(x + reach, y + reach);
    return extent;
}

}  // namespace ladrix
