// Presses, moves and releases on the canvas: snap, cursor, grip, band, ghost and placement.
#include "canvas/gestures/Pointer.h"
#include "canvas/view/SnapLines.h"

#include "Bench.h"

namespace ladrix::test {
namespace {

using PointerTest = BenchTest;

TEST(Snap, TakesTheHighestLineWithinItsTolerance) {
    struct Case {
        Single step, position, limit;
        std::optional<Single> line;
    };
    const Case cases[] = {
        {0.25f, 0.30f, 8.5f, 0.25f},          // the tolerance is a fifth of the step
        {0.25f, 0.31f, 8.5f, std::nullopt},   //
        {0.25f, -0.04f, 8.5f, 0.0f},          //
        {0.25f, 8.54f, 8.5f, 8.5f},           // the edge of the page is a line
        {0.25f, 8.74f, 8.5f, std::nullopt},   // beyond it there is none
        {0.05f, 0.059f, 8.5f, 0.05f},         //
        {0.05f, 0.065f, 8.5f, std::nullopt},  //
        {0.04f, 0.02f, 8.5f, 0.04f},          // half a step: the higher of two lines
        {0.04f, 0.015f, 8.5f, 0.0f},          //
        {20, 3, 8.5f, 0.0f},                  // wider than the page
        {0, 1, 8.5f, std::nullopt},           //
    };
    for (const Case& c : cases)
        EXPECT_EQ(snapLineAt(c.position, c.step, c.limit), c.line)
            << c.position << " at step " << c.step;
}

TEST_F(PointerTest, PlacementStandsOnTheLastSnapPointNeverUnderThePointer) {
    play("tool Ground; click 1.02 2.97; click 1.1 3.13; click 2.12 4.01");
    EXPECT_THAT(devices(),
                ElementsAre("InsertGround|1|3|0||1|1|0|False", "InsertGround|1|3|0||1|1|0|False",
                            "InsertGround|1|4|0||1|1|0|False"));
    EXPECT_EQ(coordinates(), "1, 4");
    EXPECT_EQ(editor.ZoomPointX, 1);
    EXPECT_EQ(editor.ZoomPointY, 4);
}

TEST_F(PointerTest, PlacementRecordsColourScaleOrientationAndDrawsOnThePersistentLayer) {
    editor.CurrentColor = 255;
    editor.SymbolScaleX = editor.SymbolScaleY = 1.5f;
    button("Capacitor").ButtonOrientation = 2;
    play("tool Capacitor; move 2 2");
    const std::size_t ghost = canvas.temporary.size();
    canvas.persistent.clear();
    play("press 2 2");
    EXPECT_THAT(devices(), ElementsAre("InsertCapacitor|2|2|255||1.5|1.5|2|False"));
    EXPECT_EQ(canvas.persistent.size(), ghost);
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_EQ(snapshots, 1);
}

TEST_F(PointerTest, PlacementTheCrashCopyHoldsWhatStoodBeforeThePress) {
    play("tool Ground; click 1 1");
    EXPECT_EQ(machine.folder.read("program/Temp_Drawing.els"), "8.5x11Portrait\r\n\r\n\r\n");
    play("click 2 1");
    EXPECT_EQ(machine.folder.read("program/Temp_Drawing.els"),
              "8.5x11Portrait\r\n\r\n" + line(Ground) + "\r\n");
    EXPECT_TRUE(drawing.DrawingChanged);
    machine.files.fail(Operation::Replace, {failure::DiskFull, "No space left on device"});
    play("click 3 1");
    EXPECT_THAT(reports(), ElementsAre(failure::DiskFull));
    EXPECT_EQ(devices().size(), 3u) << "the work goes on without it";
}

TEST(Placement, AFullDrawingRefusesTheNextDeviceWithOneReport) {
    for (const char* script :
         {"tool Normally Open Contact; click 2 2", "tool Dashed Line; click 1 1; click 5 1"}) {
        Bench bench;
        bench.fillDevices(LargestCount);
        const std::string before = bench.drawing.DeviceString;
        bench.drawing.AttachLabels = true;
        bench.play(script);
        EXPECT_THAT(bench.reports(), ElementsAre(failure::Overflow)) << script;
        EXPECT_EQ(bench.drawing.devices.DeviceCount, LargestCount);
        EXPECT_EQ(bench.drawing.DeviceString, before);
        EXPECT_THAT(bench.labels(), IsEmpty()) << "a label of no device";
    }
}

TEST(Readout, ShowsTheSnapPointOrThePointerToFourDecimals) {
    const std::pair<const char*, const char*> cases[] = {
        {"move 1.23456 2.5", "X = 1,2346, Y = 2,5"},
        {"tool Ground; move 1.02 2.97", "X = 1, Y = 3"},
        {"tool Ground; move 1.02 2.9", "X = 1,02, Y = 2,9"},  // on one axis only
        {"tool Text; move 1.02 2.97", "X = 1,02, Y = 2,97"},  // text stays unsnapped
    };
    for (const auto& [script, shown] : cases) {
        Bench bench;
        bench.machine.platform.locale.decimalMark = ',';
        bench.play(script);
        EXPECT_EQ(bench.coordinates(), shown) << script;
    }
}

TEST_F(PointerTest, CrossHairRunsOverThePageWhileThePointerIsOnAPoint) {
    play("tool Ground; move 1.01 2.01");
    const Overlay vertical{true, 1, 0, 0, 11}, horizontal{true, 0, 2, 8.5f, 0};
    EXPECT_EQ(editor.form.pointer.LineV, vertical);
    EXPECT_EQ(editor.form.pointer.LineH, horizontal);
    play("move 1.01 2.1");
    EXPECT_FALSE(editor.form.pointer.LineV.Visible);
    EXPECT_FALSE(editor.form.pointer.LineH.Visible);
    play("move 1 2; key 27 0");
    EXPECT_FALSE(editor.form.pointer.LineV.Visible);
}

TEST_F(PointerTest, GhostIsRedUnderThePointerAndBlueOnTheSnapPoint) {
    struct Case {
        Single x, y, drawnX, drawnY;
        Long color;
    };
    // Blue within half the snap tolerance, 0.025 inches, on both axes.
    const Case cases[] = {{1.02f, 2.02f, 1, 2, Blue},
                          {1.03f, 2, 1.03f, 2, Red},
                          {1.02f, 2.03f, 1.02f, 2.03f, Red},
                          {1.1f, 2.1f, 1.1f, 2.1f, Red}};
    play("tool Lamp; move 1 2");
    for (const Case& c : cases) {
        picLX_MouseMove(editor, 0, 0, c.x + 3, c.y);
        picLX_MouseMove(editor, 0, 0, c.x, c.y);
        ASSERT_FALSE(canvas.temporary.empty());
        const Primitive& circle = canvas.temporary.front();
        EXPECT_EQ(circle.color, c.color);
        EXPECT_FLOAT_EQ(circle.x1, c.drawnX + 0.25f);
        EXPECT_FLOAT_EQ(circle.y1, c.drawnY);
    }
}

TEST_F(PointerTest, GhostCostsOneSymbolRecordsNothingAndLeavesThePersistentLayer) {
    drawing.AttachLabels = true;
    play("tool Lamp; click 1 1; move 3 3");
    const auto persistent = canvas.persistent;
    const int wipes = canvas.temporaryCls;
    play("move 4 4");
    EXPECT_EQ(canvas.temporary.size(), 7u);
    EXPECT_EQ(canvas.temporaryCls, wipes + 1);
    play("move 4 4");
    EXPECT_EQ(canvas.temporaryCls, wipes + 1) << "the pointer has not moved";
    EXPECT_EQ(canvas.persistent, persistent);
    EXPECT_EQ(devices().size(), 1u);
    EXPECT_EQ(labels().size(), 1u);
    EXPECT_FALSE(drawing.DrawingPreview);
    EXPECT_TRUE(canvas.AutoRedraw);
}

TEST_F(PointerTest, CursorFollowsZoomThenToolThenNothing) {
    const auto shape = [&](const char* script) {
        play(script);
        return editor.form.pointer.Pointer;
    };
    EXPECT_EQ(shape("move 1 1"), MousePointer::Default);
    EXPECT_EQ(shape("tool Lamp; move 1 2"), MousePointer::Cross);
    editor.gesture.ZoomOutPending = true;
    EXPECT_EQ(shape("move 1 3"), MousePointer::ZoomOut);
    editor.gesture.ZoomInPending = true;
    EXPECT_EQ(shape("move 1 4"), MousePointer::ZoomIn);
    EXPECT_EQ(shape("key 27 0; move 1 5"), MousePointer::Default);
}

TEST_F(PointerTest, GripMarksTheLastDeviceUnderAnIdlePointer) {
    play("tool Ground; click 1 1; click 2 2; click 2 2; key 27 0; move 2.04 1.96");
    const Overlay& grip = editor.form.pointer.picGrip;
    EXPECT_TRUE(grip.Visible);
    EXPECT_FLOAT_EQ(grip.Left, 2 - 0.0375f);
    EXPECT_FLOAT_EQ(grip.Top, 2 - 0.0375f);
    play("move 2.06 2");
    EXPECT_FALSE(grip.Visible);
    play("move 1.01 1; press 1.01 1");
    EXPECT_FALSE(grip.Visible) << "a press takes it away";
    play("release; tool Lamp; move 2 2");
    EXPECT_FALSE(grip.Visible) << "none while a tool is pressed";
    editor.ZoomFactor = 2;  // the reach and the size are the screen's
    play("key 27 0; move 2.03 2");
    EXPECT_FALSE(grip.Visible);
    play("move 2.02 2");
    EXPECT_TRUE(grip.Visible);
    EXPECT_FLOAT_EQ(grip.Left, 2 - 0.01875f);
}

TEST_F(PointerTest, BandShowsOnlyTowardsTheLowerRightAndGoesWithTheButton) {
    const PointerState& pointer = editor.form.pointer;
    play("move 2 2; press 2 2; drag 3 5");
    EXPECT_EQ(pointer.shpSelect, (Overlay{true, 2, 2, 1, 3}));
    EXPECT_TRUE(editor.gesture.BandShown);
    play("release");
    EXPECT_FALSE(pointer.shpSelect.Visible || editor.gesture.BandShown || editor.gesture.BandArmed);

    play("press 4 4; drag 3 3");
    EXPECT_TRUE(editor.gesture.BandShown);
    EXPECT_FALSE(pointer.shpSelect.Visible);
    play("release");

    editor.BlackBackground = true;
    play("press 4 4; drag 5 5");
    EXPECT_TRUE(pointer.shpSelectLight.Visible);
    EXPECT_FALSE(pointer.shpSelect.Visible);
    play("key 27 0; drag 6 6");
    EXPECT_FALSE(pointer.shpSelectLight.Visible) << "ESC ends the band";
}

TEST(Band, StartsNeitherWithAToolNorWithTheRightButtonNorByMovingAlone) {
    for (const char* script : {"tool Ground; press 2 2; drag 3 3", "right 2 2; drag 3 3",
                               "move 2 2; press 2 2; move 3 3"}) {
        Bench bench;
        bench.play(script);
        EXPECT_FALSE(bench.editor.gesture.BandShown) << script;
        EXPECT_FALSE(bench.editor.form.pointer.shpSelect.Visible) << script;
    }
}

TEST_F(PointerTest, RightButtonOpensTheDrawingMenuButResetsTheDashedLine) {
    editor.form.menu[Menu::mnuEditCopy].Enabled = editor.form.menu[Menu::mnuEditMove].Enabled =
        false;
    play("tool Line; click 1 1; click 2 1; right 3 1; release");
    EXPECT_THAT(machine.dialogs.popUps, ElementsAre("mnuEditDrawing"));
    EXPECT_NE(editor.gesture.CurrentTool, -1);
    EXPECT_TRUE(enabled(Menu::mnuEditCopy) && enabled(Menu::mnuEditMove));
    EXPECT_THAT(canvas.temporary, IsEmpty());
    EXPECT_EQ(devices().size(), 1u);

    play("tool Dashed Line; click 1 2; right 3 1; release");
    EXPECT_EQ(machine.dialogs.popUps.size(), 1u);
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
    EXPECT_EQ(editor.gesture.LineStartX, NoPoint);
}

TEST_F(PointerTest, PressPlacesNothingWhileAZoomIsPendingOrTheSimulationRuns) {
    play("tool Ground; move 3 3");
    editor.gesture.ZoomInPending = true;
    play("press 3.1 4.2; release");
    EXPECT_EQ(editor.ZoomPointX, 3.1f);
    EXPECT_EQ(editor.ZoomPointY, 4.2f);
    EXPECT_FALSE(editor.gesture.MouseIsDown);
    editor.gesture.ZoomInPending = false;
    editor.SimulationMode = true;
    const std::string shown = coordinates();
    play("click 4 4; right 4 4; release");
    EXPECT_EQ(coordinates(), shown);
    EXPECT_THAT(devices(), IsEmpty());
    EXPECT_THAT(machine.dialogs.popUps, IsEmpty());
}

TEST(DoubleClick, EndsThePolylineAndArmsTheNextInItsStyle) {
    for (const std::string tool : {"Line", "Dashed Line", "Square", "Dashed Square"}) {
        SCOPED_TRACE(tool);
        Bench bench;
        bench.play("tool " + tool + "; click 1 1; double 2 1");
        const char* next = tool.starts_with("Dashed") ? "Dashed Line" : "Line";
        EXPECT_EQ(bench.editor.gesture.ToolName, next);
        EXPECT_EQ(bench.editor.gesture.LineStartX, NoPoint);
        EXPECT_GT(bench.drawing.devices.DeviceCount, 0);
        EXPECT_TRUE(bench.button(next).Pressed);
    }
    Bench zooming;
    zooming.editor.gesture.ZoomInPending = true;
    picLX_DblClick(zooming.editor);
    EXPECT_EQ(zooming.editor.gesture.CurrentTool, -1);
}

TEST_F(PointerTest, PicturesAreOutlinedUnderThePointerAtFullSizeOnly) {
    drawing.PictureTable = {{1, 1, 2, 1, "a.png", "", false}, {5, 5, 1, 1, "b.png", "", false}};
    drawing.PictureCount = 2;
    const auto outlines = [&](const char* script) {
        canvas.temporary.clear();
        play(script);
        return canvas.temporary.size();
    };
    EXPECT_EQ(outlines("move 2 1.5"), 1u);
    EXPECT_EQ(describe(canvas.temporary[0]), "Line 1,1 3,2 Box color 16776960 width 1 style 0");
    EXPECT_EQ(outlines("move 4 4"), 0u);
    editor.gesture.ZoomInPending = true;
    EXPECT_EQ(outlines("move 2 1.6"), 0u);
    editor.gesture.ZoomInPending = false;
    editor.ZoomFactor = 1.25f;
    EXPECT_EQ(outlines("move 2 1.7"), 0u);
}

TEST_F(PointerTest, ARestingPointerIsToldOfAsByAMove) {
    play("move 3.02 3.01; tool Ground");
    canvas.temporary.clear();
    picLX_MouseMove(editor, 0, 0, 3.02f, 3.01f);
    EXPECT_THAT(canvas.temporary, IsEmpty()) << "no move: the pointer stands where it was";
    picLX_PointerRests(editor, 0, 3.02f, 3.01f);
    EXPECT_FALSE(canvas.temporary.empty()) << "the new tool's ghost";
    EXPECT_EQ(editor.SnapX, 3);
}

TEST_F(PointerTest, ARightPressLeavesNoButtonHeldAndNoBand) {
    play("press 1 1; drag 4 4");
    ASSERT_TRUE(editor.form.pointer.shpSelect.Visible);
    play("right 4 4");
    EXPECT_FALSE(editor.form.pointer.shpSelect.Visible);
    EXPECT_FALSE(editor.gesture.MouseIsDown || editor.gesture.BandArmed ||
                 editor.gesture.BandShown);
    play("tool Text; move 2 2; right 2 2; move 5 5");
    EXPECT_EQ(editor.gesture.TextGhostX, 5) << "the ghost goes on following";
}

}  // namespace
}  // namespace ladrix::test
