// Editing the largest drawing: each gesture beside the painting that it is allowed, in the same
// run; how often the size of a font is fitted; and what a full history holds beside the drawing.
#include <malloc.h>

#include <array>

#include "EditorWindow.h"
#include "FullDrawing.h"
#include "Measure.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/gestures/Selection.h"
#include "canvas/history/History.h"
#include "canvas/history/Undo.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"
#include "canvas/view/Zoom.h"
#include "document/Records.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Rounds = 9;
constexpr double StepLimit = 1.15;   // beside the painting that a step is allowed
constexpr double PickLimit = 0.1;    // of a redraw, for a hundred of 32,767
constexpr Single Left = 1, Top = 1;  // where the hundred lie, inches

void require(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

// The hundred lie apart from the others, so that a band holds them alone.
void fill(EditorWindow& window) {
    Drawing& drawing = window.editor().drawing;
    drawing.PageLayoutKey = "17x22Landscape";
    drawing.devices = fullTable(symbolsOfEight(Outlines::Curved), LargestCount,
                                window.visibleWidth(), window.visibleHeight() - 2);
    DeviceTable& devices = drawing.devices;
    for (Single& y : devices.DeviceY)
        y += 2;
    for (std::size_t i = 0; i < 100; ++i) {
        devices.DeviceX[i] = Left + 0.05f * static_cast<Single>(1 + i % 10);
        devices.DeviceY[i] = Top + 0.05f * static_cast<Single>(1 + i / 10);
    }
    ApplyPageLayout(window.editor());
    window.showAll();
}

void band(Editor& editor) {
    picLX_MouseMove(editor, 0, 0, Left - 0.2f, Top - 0.2f);
    picLX_MouseDown(editor, LeftButton, 0, Left - 0.2f, Top - 0.2f);
    picLX_MouseMove(editor, LeftButton, 0, Left + 0.6f, Top + 0.6f);
    picLX_MouseUp(editor, LeftButton, 0, Left + 0.6f, Top + 0.6f);
}

void comparePicks(EditorWindow& window) {
    Editor& editor = window.editor();
    const auto redraw = [&] { paintDrawing(editor); };
    const auto pickBand = [&] {
        band(editor);
        require(editor.SelectedCount % 100 == 0, "the band has not picked the hundred");
        window.showAll();
    };
    const auto pickOne = [&] {
        picLX_MouseMove(editor, 0, 0, Left + 0.05f, Top + 0.05f);
        picGrip_Click(editor);
        window.showAll();
    };
    printLine("a band over 100, beside a redraw", byTurns(2 * Rounds, pickBand, redraw), PickLimit);
    printLine("a pick of one, beside a redraw", byTurns(2 * Rounds, pickOne, redraw), PickLimit);
    ResetEditor(editor);
}

// A step beside one painting of the very view that it has led to.
template <class Step>
Medians besideRedraw(EditorWindow& window, const Step& step) {
    std::vector<double> steps, redraws;
    for (int round = 0; round <= Rounds; ++round) {
        const double ofStep = milliseconds([&] { step(round); });
        const double ofRedraw = milliseconds([&] { paintDrawing(window.editor()); });
        window.showAll();
        if (round == 0) continue;
        steps.push_back(ofStep);
        redraws.push_back(ofRedraw);
    }
    return {median(steps), median(redraws)};
}

void compareViews(EditorWindow& window) {
    Editor& editor = window.editor();
    const auto scroll = [&](int round) {
        editor.form.VScroll1.Value = round % 2 == 0 ? 100 : 0;
        VScroll1_Change(editor);
    };
    const auto zoom = [&](int round) { round % 2 == 0 ? ZoomIn(editor) : ZoomOut(editor); };
    const auto wheel = [&](int round) {
        zoomByWheel(editor, round % 2 == 0 ? ZoomStep::In : ZoomStep::Out, 5, 5);
    };
    printLine("a scroll step, beside a redraw", besideRedraw(window, scroll), StepLimit);
    ResetZoom(editor);
    printLine("a zoom step, beside a redraw", besideRedraw(window, zoom), StepLimit);
    ResetZoom(editor);
    printLine("a turn of the wheel, beside a redraw", besideRedraw(window, wheel), StepLimit);
    ResetZoom(editor);
}

void compareUndo(EditorWindow& window) {
    Editor& editor = window.editor();
    RebuildDeviceString(editor.drawing, editor.platform);
    ClearHistory(editor);
    editor.drawing.devices.DeviceColor[5] = Blue;
    recordStep(editor);
    int round = 0;
    const auto step = [&] {
        round++ % 2 == 0 ? mnuEditUndo_Click(editor) : mnuEditRedo_Click(editor);
    };
    const auto parts = [&] {
        ParseDeviceString(editor.drawing, editor.platform);
        RedrawDrawing(editor);
    };
    printLine("undo or redo, beside a parse and a redraw", byTurns(Rounds, step, parts), StepLimit);
    require(editor.drawing.devices.DeviceCount == LargestCount, "the step has lost devices");
}

// ---- Fonts

class CountedFonts final : public Fonts {
  public:
    explicit CountedFonts(Fonts& real) : real_(real) {}
    int measured = 0;

    std::vector<std::string> families() override { return real_.families(); }
    Single textWidth(const FontSpec& font, std::string_view text) override {
        ++measured;
        return real_.textWidth(font, text);
    }
    Single textHeight(const FontSpec& font) override { return real_.textHeight(font); }

  private:
    Fonts& real_;
};

int measurementsOf(EditorWindow& window, CountedFonts& fonts, Short count) {
    Editor& editor = window.editor();
    editor.drawing.devices.clear();
    editor.drawing.labels.clear();
    for (Short i = 0; i < count; ++i)
        editor.drawing.labels.append({"CR " + std::to_string(i), static_cast<Single>(i % 8), 1, 0,
                                      "Arial", 8, false, false});
    editor.fittedFonts.sizes.clear();
    fonts.measured = 0;
    ZoomIn(editor);
    for (int i = 0; i < 3; ++i)
        paintDrawing(editor);
    ResetZoom(editor);
    return fonts.measured;
}

void compareFonts(EditorWindow& window) {
    Fonts* const real = window.machine.platform.fonts;
    CountedFonts fonts(*real);
    window.machine.platform.fonts = &fonts;
    const double one = measurementsOf(window, fonts, 1);
    const double thousand = measurementsOf(window, fonts, 1000);
    window.machine.platform.fonts = real;
    require(one > 0, "nothing was fitted");
    printLine("1,000 labels beside one", {thousand, one}, 1);
}

// ---- History

std::size_t allocated() {
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
}

using Change = void (*)(DeviceTable& devices, std::size_t step);

double historyMiB(EditorWindow& window, Change change) {
    Editor& editor = window.editor();
    editor.drawing.labels.clear();
    editor.drawing.devices = fullTable(symbolsOfEight(Outlines::Lines), 5000, 10, 7);
    recordStep(editor);
    ClearHistory(editor);
    const std::size_t before = allocated();
    for (std::size_t step = 1; step < 1000; ++step) {
        change(editor.drawing.devices, step);
        recordStep(editor);
    }
    const double used = static_cast<double>(allocated() - before) / (1024 * 1024);
    require(editor.UndoTop == 999, "not every step was recorded");
    ClearHistory(editor);
    return used;
}

void compareHistory(EditorWindow& window) {
    const auto line = [&](const char* name, Change change) {
        printLine(name, {historyMiB(window, change), 64}, 1);
    };
    line("one device more",
         [](DeviceTable& devices, std::size_t) { devices.append(devices.row(7)); });
    line("one device moved anywhere", [](DeviceTable& devices, std::size_t step) {
        devices.DeviceX[step * 7919 % 5000] += 0.25f;
    });
    line("the first deleted", [](DeviceTable& devices, std::size_t) {
        devices.DeviceSelected[0] = 1;
        devices.eraseSelected();
    });
    line("a hundred recoloured", [](DeviceTable& devices, std::size_t step) {
        for (std::size_t i = 0; i < 100; ++i)
            devices.DeviceColor[(step * 100 + i) % 5000] = static_cast<Long>(step);
    });
    line("all moved", [](DeviceTable& devices, std::size_t) {
        for (Single& x : devices.DeviceX)
            x += 0.25f;
    });
}

}  // namespace

int main(int argc, char** argv) {
    chooseDisplay();
    try {
        EditorWindow window(argc, argv);
        fill(window);
        printHeading("Editing 32,767 devices at 1920 x 1080, ms");
        comparePicks(window);
        compareViews(window);
        compareUndo(window);
        printHeading("Fitting the size of a font at one zoom, measurements of text");
        compareFonts(window);
        printHeading("1,000 snapshots of 5,000 devices, MiB beside 64");
        compareHistory(window);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "EditBench: %s\n", error.what());
        return 1;
    }
    return 0;
}
