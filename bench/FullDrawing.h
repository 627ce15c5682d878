// The largest drawing: 32,767 symbols of about eight primitives, and the same primitives for a bare
// painter loop, which changes its pen only where the colour changes.
#pragma once

#include <QPainter>
#include <algorithm>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "symbols/DeviceNames.h"
#include "symbols/DrawDevice.h"

namespace ladrix::bench {

constexpr double PixelsPerInch = 96;
constexpr Single SymbolScale = 0.25f;
constexpr int DevicesPerColour = 8;

// A primitive as the bare loop draws it, in pixels.
struct BarePrimitive {
    bool isLine = true;
    QLineF line;
    QRectF bounds;                  // of a curve
    int startAngle = 0, sweep = 0;  // sixteenths of a degree
    Long color = Black;
};

class Collector final : public Surface {
  public:
    std::vector<BarePrimitive> primitives;

    void Line(Single x1, Single y1, Single x2, Single y2, Long color, LineForm) override {
        BarePrimitive made;
        made.line = {x1 * PixelsPerInch, y1 * PixelsPerInch, x2 * PixelsPerInch,
                     y2 * PixelsPerInch};
        made.color = color;
        primitives.push_back(made);
    }
    void Circle(Single x, Single y, Single radius, Long color, Single) override {
        addCurve(x, y, radius, color, 0, 2 * Pi);
    }
    void Arc(Single x, Single y, Single radius, Long color, double start, double end,
             Single) override {
        addCurve(x, y, radius, color, start, end <= start ? end + 2 * Pi : end);
    }
    std::string_view Name() const override { return "collector"; }

  private:
    void addCurve(double x, double y, double radius, Long color, double start, double end) {
        BarePrimitive made;
        made.isLine = false;
        made.bounds = {(x - radius) * PixelsPerInch, (y - radius) * PixelsPerInch,
                       2 * radius * PixelsPerInch, 2 * radius * PixelsPerInch};
        made.startAngle = static_cast<int>(start * 180 / Pi * 16);
        made.sweep = static_cast<int>((end - start) * 180 / Pi * 16);
        made.color = color;
        primitives.push_back(made);
    }
};

inline void drawBare(QPainter& painter, const std::vector<BarePrimitive>& primitives) {
    Long color = -1;
    for (const BarePrimitive& p : primitives) {
        if (p.color != color) {
            color = p.color;
            painter.setPen(QPen(QColor(color & 0xFF, (color >> 8) & 0xFF, color >> 16), 1));
        }
        if (p.isLine) {
            painter.drawLine(p.line);
        } else {
            painter.drawArc(p.bounds, p.startAngle, p.sweep);
        }
    }
}

inline bool isCurve(const Primitive& p) {
    return p.kind == PrimitiveKind::Arc || p.kind == PrimitiveKind::Circle;
}

enum class Outlines { Lines, Curved };

// Names of symbols of about eight outline primitives, with curves or without.
inline std::vector<std::string> symbolsOfEight(Outlines outlines) {
    std::vector<std::string> names;
    for (const DeviceName& entry : deviceNames()) {
        const Shape* shape = findShape(entry.name);
        if (!shape) continue;
        const auto primitives = shape->primitives(0);
        const auto plain = [](const Primitive& p) {
            return p.kind == PrimitiveKind::Line || isCurve(p);
        };
        if (primitives.size() < 7 || primitives.size() > 9 ||
            !std::all_of(primitives.begin(), primitives.end(), plain))
            continue;
        const bool curved = std::any_of(primitives.begin(), primitives.end(), isCurve);
        if (curved == (outlines == Outlines::Curved)) names.emplace_back(entry.name);
    }
    return names;
}

// `count` of these symbols, spread evenly over so many inches of the page.
inline DeviceTable fullTable(const std::vector<std::string>& names, Short count, double width,
                             double height) {
    constexpr int Columns = 240;
    const int rows = (count + Columns - 1) / Columns;
    DeviceTable table;
    for (int i = 0; i < count; ++i) {
        Device device;
        device.name = names.at(static_cast<std::size_t>(i) % names.size());
        device.x = static_cast<Single>((i % Columns + 0.1) * width / Columns);
        device.y = static_cast<Single>((i / Columns + 0.4) * height / rows);
        device.scaleX = device.scaleY = SymbolScale;
        device.color = i / DevicesPerColour % 2 == 0 ? Black : Red;
        table.append(device);
    }
    return table;
}

// Every row on the surface, not recorded.
inline void drawAll(Symbols& symbols, Drawing& drawing, const Platform& platform,
                    Surface& surface) {
    const DeviceTable& table = drawing.devices;
    for (Short i = 0; i < table.DeviceCount; ++i)
        drawRow(symbols, drawing, platform, surface, table, i,
                table.DeviceColor[static_cast<std::size_t>(i)]);
}

}  // namespace ladrix::bench
