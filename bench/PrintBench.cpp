// A PDF of the largest drawing beside the bare writer's loop over the same primitives, the preview
// beside a redraw of the same size, and the most work that a print does between two chances for
// events.
#include <QApplication>
#include <QBuffer>
#include <QPdfWriter>
#include <algorithm>
#include <cstdio>
#include <ctime>

#include "EditorWindow.h"
#include "FullDrawing.h"
#include "Measure.h"
#include "output/PrintDrawing.h"
#include "qt/Application.h"
#include "qt/PreviewPicture.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Rounds = 5;
constexpr double Limit = 1.2;
constexpr double LongestWait = 50;  // milliseconds
constexpr double PageWidth = 8.5, PageHeight = 11;

// Milliseconds of this thread alone: what else the machine does does not count.
struct ThreadClock {
    static double now() {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return 1000.0 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
    }
};

void writeBare(const std::vector<BarePrimitive>& primitives) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::Letter));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(1200);
    QPainter painter(&writer);
    painter.scale(1200 / PixelsPerInch, 1200 / PixelsPerInch);
    drawBare(painter, primitives);
}

void compare(EditorWindow& bench, const char* title, Outlines outlines) {
    Editor& editor = bench.editor();
    editor.drawing.devices =
        fullTable(symbolsOfEight(outlines), LargestCount, PageWidth, PageHeight);
    RebuildDeviceString(editor.drawing, editor.platform);
    Collector collector;
    drawAll(editor.symbols, editor.drawing, editor.platform, collector);
    Printing printing;
    double last = ThreadClock::now(), longest = 0;
    const auto former = bench.machine.platform.LetEventsRun;
    bench.machine.platform.LetEventsRun = [&] {
        longest = std::max(longest, ThreadClock::now() - last);
        if (former) former();
        last = ThreadClock::now();
    };
    const std::string file = editor.drawing.CurrentFolder + "Bench";
    editor.drawing.CurrentFileName = "Bench.els";
    const auto print = [&] {
        if (editor.platform.files->status(file + ".pdf"))
            editor.platform.files->remove(file + ".pdf");
        last = ThreadClock::now();
        PrintDrawing(editor, printing);
    };
    const auto bare = [&] { writeBare(collector.primitives); };
    printLine(std::string("PDF, ") + title, byTurns(Rounds, print, bare), Limit);
    std::printf("%-44s %10.3f %10s %8s %7.0f %s\n", "  longest wait of the window", longest, "", "",
                LongestWait, longest <= LongestWait ? "ok" : "OVER");
    bench.machine.platform.LetEventsRun = former;

    QImage image(static_cast<int>(PageWidth * 96), static_cast<int>(PageHeight * 96),
                 QImage::Format_RGB32);
    const auto redraw = [&] {
        image.fill(Qt::white);
        QPainter painter(&image);
        QtPainterPage page("bench");
        page.reset(&painter, {});
        drawAll(editor.symbols, editor.drawing, editor.platform, page);
        page.flush();
    };
    const PaperArea area = previewArea(editor);
    const auto preview = [&] { previewPicture(editor, DefaultLineWeight, area, 96); };
    printLine(std::string("preview, ") + title, byTurns(Rounds, preview, redraw), Limit);
}

}  // namespace

int main(int argc, char** argv) {
    chooseDisplay();
    EditorWindow bench(argc, argv);
    connectPlatform(bench.machine, bench.program, *bench.window);
    printHeading("Printing 32,767 devices beside the bare writer and a redraw, ms");
    compare(bench, "lines", Outlines::Lines);
    compare(bench, "curved", Outlines::Curved);
    return 0;
}
