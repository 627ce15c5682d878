// A full redraw of the largest drawing, beside a bare painter loop over the very same primitives in
// the same run. The bare loop changes its pen only where the colour changes.
#include <QGuiApplication>
#include <QImage>

#include "FullDrawing.h"
#include "Measure.h"
#include "qt/QtPainterPage.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Rounds = 15;
constexpr int Width = 1920, Height = 1080;
constexpr double RedrawLimit = 1.15;
constexpr double OutsideLimit = 0.05;  // "next to nothing"

struct Scene {
    Drawing drawing;
    Symbols symbols;
    Platform platform;
};

void drawOnPage(QPainter& painter, QtPainterPage& page, Scene& scene, double left) {
    PageView view;
    view.left = left;
    page.reset(&painter, view);
    drawAll(scene.symbols, scene.drawing, scene.platform, page);
    page.flush();
}

void compare(const std::string& title, Outlines outlines) {
    Scene scene;
    scene.drawing.devices = fullTable(symbolsOfEight(outlines), LargestCount, Width / PixelsPerInch,
                                      Height / PixelsPerInch);
    Collector collector;
    drawAll(scene.symbols, scene.drawing, scene.platform, collector);

    QImage image(Width, Height, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QtPainterPage page("bench");
    const auto bare = [&] { drawBare(painter, collector.primitives); };
    const auto seen = [&] { drawOnPage(painter, page, scene, 0); };
    const auto outside = [&] { drawOnPage(painter, page, scene, 2.0 * Width); };
    const std::string count = std::to_string(collector.primitives.size());
    printLine(title + ", " + count + " primitives", byTurns(Rounds, seen, bare), RedrawLimit);
    printLine(title + ", all outside the view", byTurns(Rounds, outside, bare), OutsideLimit);
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    printHeading("Full redraw of 32,767 devices at 1920 x 1080 beside a bare painter loop, ms");
    compare("lines", Outlines::Lines);
    compare("curved", Outlines::Curved);
    return 0;
}
