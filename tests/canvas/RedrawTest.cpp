// The picture on the canvas made again from the tables, and the way back to idle.
#include "canvas/Redraw.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "Bench.h"
#include "canvas/Colors.h"
#include "document/Records.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

void load(Bench& bench, std::string_view devices, std::string_view labels = "") {
    bench.drawing.DeviceString = devices;
    bench.drawing.LabelString = labels;
    ParseDeviceString(bench.drawing, bench.machine.platform);
    ParseLabelString(bench.drawing, bench.machine.platform);
}

std::vector<std::string> painted(const Bench& bench) {
    std::vector<std::string> lines;
    for (const Primitive& primitive : bench.canvas.persistent)
        lines.push_back(describe(primitive));
    return lines;
}

TEST(Redraw, PaintsTheTableInItsOrderAndRecordsNothing) {
    Bench bench;
    load(bench, line("InsertCircle|2|2|0.5|255|0|1") + line("InsertSavedLine|1|1|3|1|0|0") +
                    line("InsertJumper90|1|5|16711680||0|0|0|False") +
                    line("InsertArc|4|4|0.5|0|0||1|2|0.5"));
    bench.drawing.devices.DeviceSelected[1] = 1;
    bench.canvas.AutoRedraw = false;
    bench.canvas.Text(0, 0, {}, "ghost", Red);
    RedrawDrawing(bench.editor);
    EXPECT_THAT(
        painted(bench),
        ElementsAre("Circle 2.5,2 radius 0.5 color 255 width 1 style 0",
                    "Line 1,1 3,1 color 16711935 width 1 style 0",
                    "Line 1,5 1.125,5 color 16711680 width 1 style 0",
                    "Line 1.375,5 1.5,5 color 16711680 width 1 style 0",
                    "Arc 1.25,5 radius 0.125 from 6.28319 to 3.14159 color 16711680 width 1 "
                    "style 0",
                    "Arc 4,4 radius 0.5 from 1 to 2 aspect 0.5 color 0 width 1 style 0"));
    EXPECT_THAT(bench.canvas.temporary, IsEmpty());
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 4);
    EXPECT_FALSE(bench.drawing.NoRecord);
    EXPECT_FALSE(bench.editor.Redrawing);
    EXPECT_EQ(bench.drawing.devices.DeviceSelected[1], 1) << "the selection stays";
}

TEST(Redraw, WritesAChangedColumnBackToTheRecords) {
    Bench bench;
    load(bench, line("InsertLamp|2|2|0||1|1|0|False"));
    bench.drawing.devices.DeviceColor[0] = 255;
    RedrawDrawing(bench.editor);
    EXPECT_THAT(bench.devices(), ElementsAre("InsertLamp|2|2|255||1|1|0|False"));
}

TEST(Redraw, LeavesOutWhatLiesWhollyOutsideTheView) {
    const std::string devices =
        line("InsertSavedLine|1|1|8|1|0|0") + line("InsertCircle|1.9|2|0.1|1|0|1") +
        line("InsertLamp|1.6|3|2||1|1|0|False") + line("InsertSolidCircle|5|5|1|3|0|1") +
        line("InsertArc|5|2|0.5|4|4||3.14|6.28|1") + line("InsertLamp|5|8|5||1|1|0|False") +
        line("InsertSavedSquare|0|0|8|9|6|0") + line("InsertArc|4.5|7|0|0|7||1|2|1");
    Bench whole;
    load(whole, devices);
    RedrawDrawing(whole.editor);
    Bench part;
    load(part, devices);
    part.canvas.view = {2, 0, 4.25f, 6};
    RedrawDrawing(part.editor);
    std::set<Long> all, seen;
    for (const Primitive& primitive : whole.canvas.persistent)
        all.insert(primitive.color);
    for (const Primitive& primitive : part.canvas.persistent)
        seen.insert(primitive.color);
    EXPECT_EQ(all, (std::set<Long>{0, 1, 2, 3, 4, 5, 6, 7}));
    for (const Long touching : {0, 1, 2, 3, 6})
        EXPECT_TRUE(seen.contains(touching)) << touching;
    EXPECT_FALSE(seen.contains(5));
    EXPECT_FALSE(seen.contains(7));
    EXPECT_EQ(part.drawing.DeviceString, whole.drawing.DeviceString);
}

TEST(Redraw, TellsASymbolThatFailsAndPaintsTheRest) {
    Bench bench;
    load(bench,
         line("InsertFromElsewhere|2|2|0||1|1|0|False") + line("InsertSavedLine|1|1|3|1|0|0"));
    bench.editor.symbols.DrawUserSymbol = [](const DeviceBlock&) {
        throw Failure{failure::Overflow, "too far"};
    };
    bench.canvas.view = {0, 0, 1, 1};  // a user symbol may reach anywhere
    RedrawDrawing(bench.editor);
    ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(bench.machine.dialogs.boxes[0].text, "Couldn't handle this symbol as requested.");
    EXPECT_EQ(bench.canvas.persistent.size(), 1u);
}

TEST(Redraw, RepairsLabelsWithoutAFont) {
    Bench bench;
    bench.drawing.DefaultFontName = "Courier New";
    bench.drawing.DefaultFontSize = 12;
    load(bench, "", "Old, 1, 1, 0\r\nOlder, 2, 2, 255\r\n");
    RedrawDrawing(bench.editor);
    const LabelTable& labels = bench.drawing.labels;
    EXPECT_THAT(labels.LabelFontName, ElementsAre("Courier New", "Arial"));
    EXPECT_THAT(labels.LabelFontSize, ElementsAre(12, 8));
    RedrawDrawing(bench.editor);
    EXPECT_THAT(labels.LabelFontName, ElementsAre("Courier New", "Arial"));
    EXPECT_EQ(bench.editor.form.lbl.at(1).Font.name, "Arial");
}

TEST(Redraw, LabelControlsFollowTheTable) {
    Bench bench;
    load(bench, "",
         line("One|1|2|255|Arial|8|False|True") + line("Two|3|4|0|Symbol|12|True|False"));
    bench.drawing.labels.LabelSelected[1] = 1;
    RedrawDrawing(bench.editor);
    auto& lbl = bench.editor.form.lbl;
    ASSERT_EQ(lbl.size(), 2u);
    EXPECT_EQ(lbl[0].Caption, "One");
    EXPECT_EQ(lbl[0].Left, 1);
    EXPECT_EQ(lbl[0].Top, 2);
    EXPECT_EQ(lbl[0].ForeColor, 255);
    EXPECT_EQ(lbl[0].Font, (FontSpec{"Arial", 8, false, true}));
    EXPECT_EQ(lbl[1].ForeColor, bench.editor.SelectionColor);
    mnuOptionThickDevices_Click(bench.editor);
    EXPECT_TRUE(lbl[0].Font.bold) << "thick drawing forces bold";
    mnuOptionThickDevices_Click(bench.editor);
    EXPECT_FALSE(lbl[0].Font.bold);
    load(bench, "", line("One|1|2|255|Arial|8|False|True"));
    RedrawDrawing(bench.editor);
    EXPECT_EQ(lbl.size(), 1u);
}

TEST(FontFitting, StepsFromTheStoredSizeUntilThePaperWidthIsCrossed) {
    struct Case {
        Single zoom, step;
    };
    for (const Case& c : {Case{1, 0.1f},
                          {1.25f, 0.1f},
                          {2, 0.2f},
                          {3.8f, 0.3f},
                          {4.8f, 0.4f},
                          {5.9f, 0.5f},
                          {22.7f, 0.6f},
                          {0.8f, 0.1f},
                          {0.32768f, 0.1f}}) {
        Bench bench;
        bench.editor.ZoomFactor = c.zoom;
        const Single size = fittedFontSize(bench.editor, {"Arial", 10, false, false});
        const Single exact = 10 * c.zoom;  // of fonts whose width is in proportion
        if (c.zoom >= 1) {
            EXPECT_GE(size, exact * 0.999f) << c.zoom;
            EXPECT_LT(size, exact * 1.001f + c.step) << c.zoom;
        } else {
            EXPECT_LE(size, exact * 1.001f) << c.zoom;
            EXPECT_GT(size, exact * 0.999f - c.step) << c.zoom;
        }
        const Single steps = (size - 10) / c.step;
        EXPECT_NEAR(steps, std::round(steps), 0.01) << c.zoom;
    }
}

TEST(Redraw, PaintsTheGridBelowAndPicturesAbove) {
    Bench bench;
    load(bench, line("InsertSavedLine|1|1|3|1|77|0"));
    bench.drawing.PictureTable = {{1, 2, 3, 4, "a.png", "", false},
                                  {0, 0, 1, 1, "b.png", "", false}};
    bench.drawing.PictureCount = 2;
    bench.editor.img = {std::make_shared<FakePicture>(10, 20), nullptr};
    bench.editor.GridOn = true;
    RedrawDrawing(bench.editor);
    const auto& layer = bench.canvas.persistent;
    ASSERT_GT(layer.size(), 2u);
    EXPECT_EQ(layer.front().color, RGB(239, 239, 239));
    EXPECT_EQ(layer[layer.size() - 2].color, 77);
    EXPECT_EQ(describe(layer.back()), "Picture 1,2 3 by 4 of 10x20 pixels");
    bench.editor.SimulationMode = true;
    RedrawDrawing(bench.editor);
    EXPECT_EQ(layer.size(), 2u) << "no grid while simulating";
}

TEST(Reset, BringsEveryControlBackToIdleAndKeepsTheSettings) {
    Bench bench;
    bench.play("tool Small Circle; click 1 1; tool Arc Up; click 2 2; move 3 3");
    Editor& editor = bench.editor;
    editor.SnapStep = 0.5f;
    editor.ZoomFactor = 1.25f;
    editor.CurrentColor = editor.SelectionColor = 255;
    editor.form.picColors.Visible = editor.form.picMoreSym.Visible = true;
    editor.form.cmbScale.Enabled = editor.form.cmdScaleOK.Enabled = false;
    for (const Menu entry :
         {Menu::mnuEditTextAlignLeft, Menu::mnuEditTextAlignRight, Menu::mnuEditTextAlignTop,
          Menu::mnuEditCopy, Menu::mnuEditMove, Menu::mnuEditDelete})
        editor.form.menu[entry].Enabled = true;
    editor.form.menu[Menu::mnuEditSelectAll].Enabled = false;
    bench.drawing.devices.DeviceSelected = {1, 1};
    editor.SelectedCount = editor.SelectedDeviceCount = 2;
    editor.CopyFromX = editor.CopyToY = 3;
    editor.SavingUserSymbol = editor.SymbolPointPending = true;
    colorReset(editor, true);
    const std::string records = bench.drawing.DeviceString;

    mnuOptionReset_Click(editor);
    EXPECT_EQ(
        bench.message(),
        "Drawing Reset and Ready. Click on a symbol for placement. Current Zoom Scale = 125%");
    EXPECT_EQ(editor.form.cmdReset.BackColor, ButtonFace);
    EXPECT_FALSE(editor.form.picColors.Visible || editor.form.picMoreSym.Visible ||
                 editor.form.picRadius.Visible);
    EXPECT_TRUE(editor.form.cmbScale.Enabled && editor.form.cmdScaleOK.Enabled);
    for (const Menu entry :
         {Menu::mnuEditTextAlignLeft, Menu::mnuEditTextAlignRight, Menu::mnuEditTextAlignTop,
          Menu::mnuEditCopy, Menu::mnuEditMove, Menu::mnuEditDelete, Menu::mnuEditPaste})
        EXPECT_FALSE(editor.form.menu[entry].Enabled) << static_cast<int>(entry);
    EXPECT_TRUE(editor.form.menu[Menu::mnuEditSelectAll].Enabled);
    EXPECT_THAT(bench.drawing.devices.DeviceSelected, ElementsAre(0, 0));
    EXPECT_EQ(editor.SelectedCount + editor.SelectedDeviceCount + editor.SelectedLabelCount, 0);
    EXPECT_EQ(editor.CopyFromX + editor.CopyToY, 0);
    EXPECT_FALSE(editor.SavingUserSymbol || editor.SymbolPointPending);
    EXPECT_EQ(editor.form.pointer.Pointer, MousePointer::Default);
    EXPECT_EQ(editor.form.FocusRequest, Focus::Canvas);
    EXPECT_FALSE(editor.form.pointer.LineV.Visible);

    EXPECT_EQ(bench.drawing.DeviceString, records);
    EXPECT_EQ(editor.RepeatTool, bench.buttonOf("Arc Up"));
    EXPECT_EQ(editor.SnapStep, 0.5f);
    EXPECT_EQ(editor.ZoomFactor, 1.25f);
    EXPECT_EQ(editor.CurrentColor, 255);
    EXPECT_EQ(editor.SelectionColor, 255);
}

TEST(Reset, KeepsPasteWhileACopyBufferStands) {
    Bench bench;
    bench.editor.CopyStage = 1;
    cmdReset_Click(bench.editor);
    EXPECT_TRUE(bench.editor.form.menu[Menu::mnuEditPaste].Enabled);
    EXPECT_EQ(bench.editor.CopyStage, 0);
}

TEST(Reset, TakesThePendingSnapshotOnce) {
    Bench bench;
    bench.editor.SnapshotPending = true;
    bench.play("key 27 0");
    EXPECT_EQ(bench.snapshots, 1);
    bench.play("key 27 0");
    EXPECT_EQ(bench.snapshots, 1);
}

TEST(Reset, OfAnEmptyDrawingLeavesABlankCanvas) {
    Bench bench;
    bench.canvas.Line(0, 0, 1, 1, Red, LineForm::Plain);
    cmdReset_Click(bench.editor);
    EXPECT_THAT(bench.canvas.persistent, IsEmpty());
    EXPECT_EQ(
        bench.message(),
        "Drawing Reset and Ready. Click on a symbol for placement. Current Zoom Scale = 100%");
}

TEST(Thickness, OfAllSymbolsIsTheCanvasesAndLinesObeyIt) {
    Bench bench;
    load(bench, line("InsertSavedLine|1|1|3|1|0|0") +
                    line("InsertSavedLine|1|2|3|2|0|DrawWidth=2") +
                    line("InsertGround|1|3|0||1|1|0|False"));
    const auto widths = [&] {
        RedrawDrawing(bench.editor);
        std::vector<Short> found;
        for (std::size_t i = 0; i < 3; ++i)
            found.push_back(bench.canvas.persistent.at(i).DrawWidth);
        return found;
    };
    EXPECT_THAT(widths(), ElementsAre(1, 2, 1));
    mnuOptionThickDevices_Click(bench.editor);
    EXPECT_TRUE(bench.editor.form.menu[Menu::mnuOptionThickDevices].Checked);
    EXPECT_THAT(widths(), ElementsAre(2, 2, 2));
    mnuOptionThickDevices_Click(bench.editor);
    EXPECT_THAT(widths(), ElementsAre(1, 2, 1));
    EXPECT_FALSE(bench.editor.form.menu[Menu::mnuOptionThickDevices].Checked);
}

}  // namespace
}  // namespace ladrix::test
