// A full redraw of the largest drawing, beside a bare painter loop over the very same primitives in
// the same run. The bare loop changes its pen only where the colour changes.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

#include "platform/Platform.h"
#include "qt/QtPainterPage.h"
#include "symbols/DeviceNames.h"
#include "symbols/DrawDevice.h"

namespace {

using namespace ladrix;

constexpr Short DeviceCount = 32767;
constexpr int Rounds = 15;
constexpr int Width = 1920, Height = 1080;
constexpr double PixelsPerInch = 96;
constexpr Single SymbolScale = 0.25f;
constexpr int DevicesPerColour = 8;

// The primitives of a drawing as the bare loop draws them, in pixels.
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

bool isCurve(const Primitive& p) {
    return p.kind == PrimitiveKind::Arc || p.kind == PrimitiveKind::Circle;
}

// Names of symbols of about eight outline primitives, by whether they have curves.
std::vector<std::string> symbolsOfEight(bool curved) {
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
        if (std::any_of(primitives.begin(), primitives.end(), isCurve) == curved)
            names.emplace_back(entry.name);
    }
    return names;
}

DeviceTable fullTable(const std::vector<std::string>& names) {
    constexpr int Columns = 240, Rows = (DeviceCount + Columns - 1) / Columns;
    DeviceTable table;
    for (int i = 0; i < DeviceCount; ++i) {
        Device device;
        device.name = names[static_cast<std::size_t>(i) % names.size()];
        device.x = static_cast<Single>((i % Columns + 0.1) * Width / PixelsPerInch / Columns);
        device.y = static_cast<Single>((i / Columns + 0.4) * Height / PixelsPerInch / Rows);
        device.scaleX = device.scaleY = SymbolScale;
        device.color = i / DevicesPerColour % 2 == 0 ? Black : Red;
        table.append(std::move(device));
    }
    return table;
}

// Of the processor, so that a busy machine does not count. Painting has one thread.
double milliseconds(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + Rounds / 2, values.end());
    return values[Rounds / 2];
}

struct Scene {
    Drawing drawing;
    Symbols symbols;
    Platform platform;

    void draw(Surface& surface) {
        const DeviceTable& table = drawing.devices;
        for (Short i = 0; i < table.DeviceCount; ++i)
            drawRow(symbols, drawing, platform, surface, table, i,
                    table.DeviceColor[static_cast<std::size_t>(i)]);
    }
};

void drawBare(QPainter& painter, const std::vector<BarePrimitive>& primitives) {
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

void drawOnPage(QPainter& painter, QtPainterPage& page, Scene& scene, double left) {
    PageView view;
    view.left = left;
    page.reset(&painter, view);
    scene.draw(page);
    page.flush();
}

void compare(const char* title, const std::vector<std::string>& names) {
    if (names.empty()) return;
    Scene scene;
    scene.drawing.devices = fullTable(names);
    Collector collector;
    scene.draw(collector);

    QImage image(Width, Height, QImage::Format_RGB32);
    QtPainterPage page("bench");
    std::vector<double> bare, own, outside;
    for (int round = 0; round < Rounds; ++round) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        bare.push_back(milliseconds([&] { drawBare(painter, collector.primitives); }));
        own.push_back(milliseconds([&] { drawOnPage(painter, page, scene, 0); }));
        outside.push_back(milliseconds([&] { drawOnPage(painter, page, scene, 2.0 * Width); }));
    }
    std::printf("%-8s %10zu %12.1f %12.1f %8.2f %12.1f\n", title, collector.primitives.size(),
                median(bare), median(own), median(own) / median(bare), median(outside));
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    std::printf("%d devices at %d x %d, medians of %d rounds in ms of the processor\n", DeviceCount,
                Width, Height, Rounds);
    std::printf("%-8s %10s %12s %12s %8s %12s\n", "symbols", "primitives", "bare painter",
                "full redraw", "ratio", "all outside");
    compare("lines", symbolsOfEight(false));
    compare("curved", symbolsOfEight(true));
    return 0;
}
