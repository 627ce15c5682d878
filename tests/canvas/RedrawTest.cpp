// The picture on the canvas made again from the tables, and the way back to idle.

#include <cmath>
#include <set>

#include "Bench.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/tools/LineWidth.h"
#include "canvas/view/Painting.h"
#include "document/Records.h"

namespace ladrix::test {
namespace {

std::vector<std::string> painted(const Bench& bench) {
    std::vector<std::string> lines;
    for (const Primitive& primitive : bench.canvas.persistent)
        lines.push_back(describe(primitive));
    return lines;
}

using RedrawTest = BenchTest;

TEST_F(RedrawTest, RedrawPaintsTheTableInItsOrderAndRecordsNothing) {
    load(line("InsertCircle|2|2|0.5|255|0|1") + line("InsertSavedLine|1|1|3|1|0|0") +
         line("InsertJumper90|1|5|16711680||0|0|0|False") + line("InsertArc|4|4|0.5|0|0||1|2|0.5"));
    drawing.devices.DeviceSelected[1] = 1;
    canvas.AutoRedraw = false;
    canvas.Text(0, 0, {}, "ghost", Red);
    RedrawDrawing(editor);
    EXPECT_THAT(
        painted(*this),
        ElementsAre("Circle 2.5,2 radius 0.5 color 255 width 1 style 0",
                    "Line 1,1 3,1 color 16711935 width 1 style 0",
                    "Line 1,5 1.125,5 color 16711680 width 1 style 0",
                    "Line 1.375,5 1.5,5 color 16711680 width 1 style 0",
                    "Arc 1.25,5 radius 0.125 from 6.28319 to 3.14159 color 16711680 width 1 "
                    "style 0",
                    "Arc 4,4 radius 0.5 from 1 to 2 aspect 0.5 color 0 width 1 style 0"));
    EXPECT_THAT(canvas.temporary, IsEmpty());
    EXPECT_EQ(drawing.devices.DeviceCount, 4);
    EXPECT_FALSE(drawing.NoRecord);
    EXPECT_FALSE(editor.Redrawing);
    EXPECT_EQ(drawing.devices.DeviceSelected[1], 1) << "the selection stays";
}

TEST_F(RedrawTest, RedrawWritesAChangedColumnBackToTheRecords) {
    load(line("InsertLamp|2|2|0||1|1|0|False"));
    drawing.devices.DeviceColor[0] = 255;
    RedrawDrawing(editor);
    EXPECT_THAT(devices(), ElementsAre("InsertLamp|2|2|255||1|1|0|False"));
}

TEST(Redraw, LeavesOutWhatLiesWhollyOutsideTheView) {
    const std::string devices =
        line("InsertSavedLine|1|1|8|1|0|0") + line("InsertCircle|1.9|2|0.1|1|0|1") +
        line("InsertLamp|1.6|3|2||1|1|0|False") + line("InsertSolidCircle|5|5|1|3|0|1") +
        line("InsertArc|5|2|0.5|4|4||3.14|6.28|1") + line("InsertLamp|5|8|5||1|1|0|False") +
        line("InsertSavedSquare|0|0|8|9|6|0") + line("InsertArc|4.5|7|0|0|7||1|2|1");
    Bench whole;
    whole.load(devices);
    RedrawDrawing(whole.editor);
    Bench part;
    part.load(devices);
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

TEST_F(RedrawTest, RedrawTellsASymbolThatFailsAndPaintsTheRest) {
    load(line("InsertFromElsewhere|2|2|0||1|1|0|False") + line("InsertSavedLine|1|1|3|1|0|0"));
    editor.symbols.DrawUserSymbol = [](const DeviceBlock&) {
        throw Failure{failure::Overflow, "too far"};
    };
    canvas.view = {0, 0, 1, 1};  // a user symbol may reach anywhere
    RedrawDrawing(editor);
    EXPECT_THAT(boxes(), ElementsAre("Couldn't handle this symbol as requested."));
    EXPECT_EQ(canvas.persistent.size(), 1u);
}

TEST_F(RedrawTest, RedrawRepairsLabelsWithoutAFont) {
    drawing.DefaultFontName = "Courier New";
    drawing.DefaultFontSize = 12;
    load("", "Old, 1, 1, 0\r\nOlder, 2, 2, 255\r\n");
    RedrawDrawing(editor);
    const LabelTable& labels = drawing.labels;
    EXPECT_THAT(labels.LabelFontName, ElementsAre("Courier New", "Arial"));
    EXPECT_THAT(labels.LabelFontSize, ElementsAre(12, 8));
    RedrawDrawing(editor);
    EXPECT_THAT(labels.LabelFontName, ElementsAre("Courier New", "Arial"));
    EXPECT_EQ(editor.form.lbl.at(1).Font.name, "Arial");
}

TEST_F(RedrawTest, RedrawLabelControlsFollowTheTable) {
    load("", line("One|1|2|255|Arial|8|False|True") + line("Two|3|4|0|Symbol|12|True|False"));
    drawing.labels.LabelSelected[1] = 1;
    RedrawDrawing(editor);
    auto& lbl = editor.form.lbl;
    ASSERT_EQ(lbl.size(), 2u);
    EXPECT_EQ(lbl[0].Caption, "One");
    EXPECT_EQ(lbl[0].Left, 1);
    EXPECT_EQ(lbl[0].Top, 2);
    EXPECT_EQ(lbl[0].ForeColor, 255);
    EXPECT_EQ(lbl[0].Font, (FontSpec{"Arial", 8, false, true}));
    EXPECT_EQ(lbl[1].ForeColor, editor.SelectionColor);
    mnuOptionThickDevices_Click(editor);
    EXPECT_TRUE(lbl[0].Font.bold) << "thick drawing forces bold";
    mnuOptionThickDevices_Click(editor);
    EXPECT_FALSE(lbl[0].Font.bold);
    load("", line("One|1|2|255|Arial|8|False|True"));
    RedrawDrawing(editor);
    EXPECT_EQ(lbl.size(), 1u);
}

TEST(FontFitting, StepsFromTheStoredSizeUntilThePaperWidthIsCrossed) {
    const std::pair<Single, Single> zoomsAndSteps[] = {{1, 0.1f},    {2, 0.2f},       {3.8f, 0.3f},
                                                       {4.8f, 0.4f}, {5.9f, 0.5f},    {22.7f, 0.6f},
                                                       {0.8f, 0.1f}, {0.32768f, 0.1f}};
    for (const auto& [zoom, step] : zoomsAndSteps) {
        SCOPED_TRACE(zoom);
        Bench bench;
        bench.editor.ZoomFactor = zoom;
        const Single size = fittedFontSize(bench.editor, {"Arial", 10, false, false});
        const Single exact = 10 * zoom;  // of fonts whose width is in proportion
        EXPECT_GE(size, exact * 0.999f - (zoom < 1 ? step : 0));
        EXPECT_LT(size, exact * 1.001f + (zoom < 1 ? 0 : step));
        const Single steps = (size - 10) / step;
        EXPECT_NEAR(steps, std::round(steps), 0.01);
    }
}

TEST_F(RedrawTest, RedrawPaintsTheGridBelowAndPicturesAbove) {
    load(line("InsertSavedLine|1|1|3|1|77|0"));
    drawing.PictureTable = {{1, 2, 3, 4, "a.png", "", false}, {0, 0, 1, 1, "b.png", "", false}};
    drawing.PictureCount = 2;
    editor.img = {std::make_shared<FakePicture>(10, 20), nullptr};
    editor.GridOn = true;
    RedrawDrawing(editor);
    const auto& layer = canvas.persistent;
    ASSERT_GT(layer.size(), 2u);
    EXPECT_EQ(layer.front().color, RGB(239, 239, 239));
    EXPECT_EQ(layer[layer.size() - 2].color, 77);
    EXPECT_EQ(describe(layer.back()), "Picture 1,2 3 by 4 of 10x20 pixels");
    editor.SimulationMode = true;
    RedrawDrawing(editor);
    EXPECT_EQ(layer.size(), 2u) << "no grid while simulating";
}

TEST_F(RedrawTest, ResetBringsEveryControlBackToIdleAndKeepsTheSettings) {
    play("tool Small Circle; click 1 1; tool Arc Up; click 2 2; move 3 3");
    const std::string records = drawing.DeviceString;
    MenuStates& menu = editor.form.menu;
    const Menu ofTheSelection[] = {Menu::mnuEditTextAlignLeft, Menu::mnuEditTextAlignRight,
                                   Menu::mnuEditTextAlignTop,  Menu::mnuEditCopy,
                                   Menu::mnuEditMove,          Menu::mnuEditDelete};
    for (const Menu entry : ofTheSelection)
        menu[entry].Enabled = true;
    menu[Menu::mnuEditSelectAll].Enabled = false;
    editor.form.picColors.Visible = editor.form.picMoreSym.Visible = true;
    editor.form.cmbScale.Enabled = editor.form.cmdScaleOK.Enabled = false;
    drawing.devices.DeviceSelected = {1, 1};
    editor.SelectedCount = editor.SelectedDeviceCount = 2;
    editor.gesture.CopyFromX = editor.gesture.CopyToY = 3;
    editor.gesture.SavingUserSymbol = editor.gesture.SymbolPointPending = editor.SnapshotPending =
        true;
    editor.SnapStep = 0.5f;
    editor.ZoomFactor = 1.25f;
    editor.CurrentColor = editor.SelectionColor = 255;
    colorReset(editor, true);
    snapshots = 0;

    mnuOptionReset_Click(editor);
    EXPECT_EQ(
        message(),
        "Drawing Reset and Ready. Click on a symbol for placement. Current Zoom Scale = 125%");
    EXPECT_EQ(editor.form.cmdReset.BackColor, ButtonFace);
    EXPECT_FALSE(editor.form.picColors.Visible || editor.form.picMoreSym.Visible ||
                 editor.form.picRadius.Visible);
    EXPECT_TRUE(editor.form.cmbScale.Enabled && editor.form.cmdScaleOK.Enabled);
    for (const Menu entry : ofTheSelection)
        EXPECT_FALSE(enabled(entry)) << static_cast<int>(entry);
    EXPECT_FALSE(enabled(Menu::mnuEditPaste));
    EXPECT_TRUE(enabled(Menu::mnuEditSelectAll));
    EXPECT_THAT(drawing.devices.DeviceSelected, ElementsAre(0, 0));
    EXPECT_EQ(editor.SelectedCount + editor.SelectedDeviceCount + editor.SelectedLabelCount, 0);
    EXPECT_EQ(editor.gesture.CopyFromX + editor.gesture.CopyToY, 0);
    EXPECT_FALSE(editor.gesture.SavingUserSymbol || editor.gesture.SymbolPointPending);
    EXPECT_EQ(editor.form.pointer.Pointer, MousePointer::Default);
    EXPECT_EQ(editor.form.FocusRequest, Focus::Canvas);
    EXPECT_FALSE(editor.form.pointer.LineV.Visible);
    EXPECT_EQ(snapshots, 1) << "the pending one";

    EXPECT_EQ(drawing.DeviceString, records);
    EXPECT_EQ(editor.RepeatTool, buttonOf("Arc Up"));
    EXPECT_EQ(editor.SnapStep, 0.5f);
    EXPECT_EQ(editor.ZoomFactor, 1.25f);
    EXPECT_EQ(editor.CurrentColor, 255);
    EXPECT_EQ(editor.SelectionColor, 255);

    editor.gesture.CopyStage = 1;
    cmdReset_Click(editor);
    EXPECT_TRUE(enabled(Menu::mnuEditPaste)) << "while a copy buffer stands";
    EXPECT_EQ(editor.gesture.CopyStage, 0);
    EXPECT_EQ(snapshots, 1);
}

TEST_F(RedrawTest, ThicknessOfAllSymbolsIsTheCanvasesAndLinesObeyIt) {
    load(line("InsertSavedLine|1|1|3|1|0|0") + line("InsertSavedLine|1|2|3|2|0|DrawWidth=2") +
         line("InsertGround|1|3|0||1|1|0|False"));
    const auto widths = [&] {
        RedrawDrawing(editor);
        std::vector<Short> found;
        for (std::size_t i = 0; i < 3; ++i)
            found.push_back(canvas.persistent.at(i).DrawWidth);
        return found;
    };
    EXPECT_THAT(widths(), ElementsAre(1, 2, 1));
    mnuOptionThickDevices_Click(editor);
    EXPECT_TRUE(checked(Menu::mnuOptionThickDevices));
    EXPECT_THAT(widths(), ElementsAre(2, 2, 2));
    mnuOptionThickDevices_Click(editor);
    EXPECT_THAT(widths(), ElementsAre(1, 2, 1));
    EXPECT_FALSE(checked(Menu::mnuOptionThickDevices));
}

}  // namespace
}  // namespace ladrix::test
