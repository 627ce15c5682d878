// A PDF of the largest drawing beside the bare writer's loop over the same primitives, the preview
// beside a redraw of the same size, and the longest time that a print keeps the window waiting.
#include <QApplication>
#include <QBuffer>
#include <QPdfWriter>
#include <algorithm>
#include <cstdio>

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

// The machine's own files, but for the one that is printed: no disk is measured.
class NoDisk final : public Files {
  public:
    char separator() const override { return '/'; }
    std::vector<FileEntry> list(const std::string&) override { return {}; }
    std::optional<FileEntry> status(const std::string&) override { return std::nullopt; }
    std::string read(const std::string&, std::uintmax_t) override { return {}; }
    void replace(const std::string&, std::string_view, bool) override {}
    void append(const std::string&, std::string_view) override {}
    void copy(const std::string&, const std::string&) override {}
    void remove(const std::string&) override {}
    void rename(const std::string&, const std::string&) override {}
    void makeFolder(const std::string&) override {}
    void removeFolder(const std::string&) override {}
    bool writable(const std::string&) override { return true; }
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
    double last = WallClock::now(), longest = 0;
    const auto former = bench.machine.platform.LetEventsRun;
    bench.machine.platform.LetEventsRun = [&] {
        longest = std::max(longest, WallClock::now() - last);
        if (former) former();
        last = WallClock::now();
    };
    const auto print = [&] {
        last = WallClock::now();
        PrintDrawing(editor, printing);
    };
    const auto bare = [&] { writeBare(collector.primitives); };
    printLine(std::string("PDF, ") + title, byTurns(Rounds, print, bare), Limit);
    std::printf("%-44s %10.3f %10s %8s %7.0f %s\n", "  longest wait of the window, ms", longest, "",
                "", LongestWait, longest <= LongestWait ? "ok" : "OVER");
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
    NoDisk noDisk;
    bench.machine.platform.files = &noDisk;
    connectPlatform(bench.machine, bench.program, *bench.window);
    printHeading("Printing 32,767 devices beside the bare writer and a redraw, ms");
    compare(bench, "lines", Outlines::Lines);
    compare(bench, "curved", Outlines::Curved);
    return 0;
}
