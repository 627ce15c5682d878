// Presses, moves and releases on the canvas: snap, cursor, grip, band, ghost and placement.
#include "canvas/Pointer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
        {-0.25f, 1, 8.5f, std::nullopt},      //
    };
    for (const Case& c : cases)
        EXPECT_EQ(snapLineAt(c.position, c.step, c.limit), c.line)
            << c.position << " at step " << c.step;
}

TEST(Snap, AHalvedAndHalvedStepStillEndsInTimeAndOnALine) {
    const Single step = 0.25f / 65536;
    const auto lineFound = snapLineAt(4.1f, step, 8.5f);
    ASSERT_TRUE(lineFound);
    EXPECT_NEAR(*lineFound, 4.1f, step);
}

TEST(Placement, StandsOnTheLastSnapPointNeverUnderThePointer) {
    Bench bench;
    bench.play("tool Ground; click 1.02 2.97; click 1.1 3.13; click 2.12 4.01");
    EXPECT_THAT(bench.devices(),
                ElementsAre("InsertGround|1|3|0||1|1|0|False", "InsertGround|1|3|0||1|1|0|False",
                            "InsertGround|1|4|0||1|1|0|False"));
    EXPECT_EQ(bench.coordinates(), "1, 4");
    EXPECT_EQ(bench.editor.ZoomPointX, 1);
    EXPECT_EQ(bench.editor.ZoomPointY, 4);
}

TEST(Placement, RecordsColourScaleOrientationAndDrawsOnThePersistentLayer) {
    Bench bench;
    bench.editor.CurrentColor = 255;
    bench.editor.SymbolScaleX = bench.editor.SymbolScaleY = 1.5f;
    bench.button("Capacitor").ButtonOrientation = 2;
    bench.play("tool Capacitor; move 2 2");
    const std::size_t ghost = bench.canvas.temporary.size();
    bench.canvas.persistent.clear();
    bench.play("press 2 2");
    EXPECT_THAT(bench.devices(), ElementsAre("InsertCapacitor|2|2|255||1.5|1.5|2|False"));
    EXPECT_EQ(bench.canvas.persistent.size(), ghost);
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    EXPECT_EQ(bench.snapshots, 1);
}

TEST(Placement, CirclesAndArcsTakeTheirRadiusAndAnglesFromThePanel) {
    Bench bench;
    bench.play("tool Small Circle; click 1 1; tool Connection Point; click 2 1");
    bench.play("tool Arc Left; click 3 1; tool Arc Down; click 4 1");
    EXPECT_THAT(bench.devices(),
                ElementsAre("InsertCircle|1|1|0.0375|0||1", "InsertSolidCircle|2|1|0.025|0||1",
                            "InsertArc|3|1|0.125|1|0||1.570796|4.712389|1",
                            "InsertArc|4|1|0.125|4|0||3.141593|6.283185|1"));
}

TEST(Placement, TheCrashCopyHoldsWhatStoodBeforeThePress) {
    Bench bench;
    bench.play("tool Ground; click 1 1");
    EXPECT_EQ(bench.machine.folder.read("program/Temp_Drawing.els"), "8.5x11Portrait\r\n\r\n\r\n");
    bench.play("click 2 1");
    EXPECT_EQ(bench.machine.folder.read("program/Temp_Drawing.els"),
              "8.5x11Portrait\r\n\r\n" + line("InsertGround|1|1|0||1|1|0|False") + "\r\n");
    EXPECT_TRUE(bench.drawing.DrawingChanged);
}

TEST(Placement, GoesOnWhenTheCrashCopyCannotBeWritten) {
    Bench bench;
    bench.machine.files.fail(Operation::Replace,
                             {failure::DiskFull, "Temp_Drawing.els: No space left on device"});
    bench.play("tool Ground; click 1 1");
    ASSERT_EQ(bench.machine.reports.size(), 1u);
    EXPECT_THAT(bench.machine.reports[0].text, testing::HasSubstr("No space left on device"));
    EXPECT_EQ(bench.devices().size(), 1u);
}

TEST(Placement, AFullDrawingRefusesTheNextDeviceWithOneReport) {
    struct Case {
        const char* script;
        bool attached;
    };
    for (const Case& c : {Case{"tool Ground; click 2 2", false},
                          Case{"tool Normally Open Contact; click 2 2", true},
                          Case{"tool Dashed Line; click 1 1; click 5 1", false}}) {
        Bench bench;
        bench.fillDevices(LargestCount);
        const std::string before = bench.drawing.DeviceString;
        bench.drawing.AttachLabels = c.attached;
        bench.play(c.script);
        ASSERT_EQ(bench.machine.reports.size(), 1u) << c.script;
        EXPECT_EQ(bench.machine.reports[0].number, failure::Overflow);
        EXPECT_EQ(bench.drawing.devices.DeviceCount, LargestCount);
        EXPECT_EQ(bench.drawing.DeviceString, before);
        EXPECT_THAT(bench.labels(), IsEmpty()) << "a label of no device";
    }
}

TEST(Placement, AUserSymbolIsHandedToItsInterpreter) {
    Bench bench;
    std::vector<std::string> asked;
    bench.editor.symbols.DrawUserSymbol = [&](const DeviceBlock& block) {
        asked.push_back(block.CurDevice + (bench.drawing.DrawingPreview ? " ghost" : " placed"));
    };
    bench.editor.form.cmdSym[92].Tag = "My Valve";
    bench.play("tool My Valve; move 1 1; press 1 1");
    EXPECT_EQ(bench.editor.ToolName, "US My Valve");
    EXPECT_THAT(asked, ElementsAre("InsertUserSymbol ghost", "InsertUserSymbol placed"));
}

TEST(Readout, ShowsTheSnapPointOrThePointerToFourDecimals) {
    struct Case {
        const char* script;
        const char* shown;
    };
    const Case cases[] = {
        {"move 1.23456 2.5", "X = 1.2346, Y = 2.5"},
        {"tool Ground; move 1.02 2.97", "X = 1, Y = 3"},
        {"tool Ground; move 1.02 2.9", "X = 1.02, Y = 2.9"},  // on one axis only
        {"tool Text; move 1.02 2.97", "X = 1.02, Y = 2.97"},  // text stays unsnapped
    };
    for (const Case& c : cases) {
        Bench bench;
        bench.play(c.script);
        EXPECT_EQ(bench.coordinates(), c.shown) << c.script;
    }
    Bench comma;
    comma.machine.platform.locale.decimalMark = ',';
    comma.play("move 1.5 2.25");
    EXPECT_EQ(comma.coordinates(), "X = 1,5, Y = 2,25");
}

TEST(CrossHair, RunsOverThePageWhileThePointerIsOnAPoint) {
    Bench bench;
    bench.play("tool Ground; move 1.01 2.01");
    const Overlay vertical{true, 1, 0, 0, 11}, horizontal{true, 0, 2, 8.5f, 0};
    EXPECT_EQ(bench.editor.form.pointer.LineV, vertical);
    EXPECT_EQ(bench.editor.form.pointer.LineH, horizontal);
    bench.play("move 1.01 2.1");
    EXPECT_FALSE(bench.editor.form.pointer.LineV.Visible);
    EXPECT_FALSE(bench.editor.form.pointer.LineH.Visible);
    bench.play("move 1 2; key 27 0");
    EXPECT_FALSE(bench.editor.form.pointer.LineV.Visible);
}

TEST(Ghost, IsRedUnderThePointerAndBlueOnTheSnapPoint) {
    struct Case {
        Single x, y, drawnX, drawnY;
        Long color;
    };
    // Blue within half the snap tolerance, 0.025 inches, on both axes.
    const Case cases[] = {{1.02f, 2.02f, 1, 2, Blue},
                          {1.03f, 2, 1.03f, 2, Red},
                          {1.02f, 2.03f, 1.02f, 2.03f, Red},
                          {1.1f, 2.1f, 1.1f, 2.1f, Red}};
    for (const Case& c : cases) {
        Bench bench;
        bench.play("tool Lamp; move 1 2");
        picLX_MouseMove(bench.editor, 0, 0, c.x + 3, c.y);
        picLX_MouseMove(bench.editor, 0, 0, c.x, c.y);
        ASSERT_FALSE(bench.canvas.temporary.empty());
        const Primitive& circle = bench.canvas.temporary.front();
        EXPECT_EQ(circle.color, c.color);
        EXPECT_FLOAT_EQ(circle.x1, c.drawnX + 0.25f);
        EXPECT_FLOAT_EQ(circle.y1, c.drawnY);
    }
}

TEST(Ghost, CostsOneSymbolRecordsNothingAndLeavesThePersistentLayer) {
    Bench bench;
    bench.drawing.AttachLabels = true;
    bench.play("tool Lamp; click 1 1; move 3 3");
    const auto persistent = bench.canvas.persistent;
    const int wipes = bench.canvas.temporaryCls;
    bench.play("move 4 4");
    EXPECT_EQ(bench.canvas.temporary.size(), 7u);
    EXPECT_EQ(bench.canvas.temporaryCls, wipes + 1);
    bench.play("move 4 4");
    EXPECT_EQ(bench.canvas.temporaryCls, wipes + 1) << "the pointer has not moved";
    EXPECT_EQ(bench.canvas.persistent, persistent);
    EXPECT_EQ(bench.devices().size(), 1u);
    EXPECT_EQ(bench.labels().size(), 1u);
    EXPECT_FALSE(bench.drawing.DrawingPreview);
    EXPECT_TRUE(bench.canvas.AutoRedraw);
}

TEST(Cursor, FollowsZoomThenToolThenNothing) {
    Bench bench;
    const auto shape = [&](const char* script) {
        bench.play(script);
        return bench.editor.form.pointer.Pointer;
    };
    EXPECT_EQ(shape("move 1 1"), MousePointer::Default);
    EXPECT_EQ(shape("tool Lamp; move 1 2"), MousePointer::Cross);
    bench.editor.ZoomOutPending = true;
    EXPECT_EQ(shape("move 1 3"), MousePointer::ZoomOut);
    bench.editor.ZoomInPending = true;
    EXPECT_EQ(shape("move 1 4"), MousePointer::ZoomIn);
    EXPECT_EQ(shape("key 27 0; move 1 5"), MousePointer::Default);
}

TEST(Grip, MarksTheLastDeviceUnderAnIdlePointer) {
    Bench bench;
    bench.play("tool Ground; click 1 1; click 2 2; click 2 2; key 27 0; move 2.04 1.96");
    const Overlay& grip = bench.editor.form.pointer.picGrip;
    EXPECT_TRUE(grip.Visible);
    EXPECT_FLOAT_EQ(grip.Left, 2 - 0.0375f);
    EXPECT_FLOAT_EQ(grip.Top, 2 - 0.0375f);
    bench.play("move 2.06 2");
    EXPECT_FALSE(grip.Visible);
    bench.play("move 1.01 1; press 1.01 1");
    EXPECT_FALSE(grip.Visible) << "a press takes it away";

    bench.play("release; tool Lamp; move 2 2");
    EXPECT_FALSE(grip.Visible) << "none while a tool is pressed";
    bench.play("key 27 0");
    bench.editor.ZoomFactor = 2;  // the reach and the size are the screen's
    bench.play("move 2.03 2");
    EXPECT_FALSE(grip.Visible);
    bench.play("move 2.02 2");
    EXPECT_TRUE(grip.Visible);
    EXPECT_FLOAT_EQ(grip.Left, 2 - 0.01875f);
}

TEST(Band, ShowsOnlyTowardsTheLowerRightAndGoesWithTheButton) {
    Bench bench;
    PointerState& pointer = bench.editor.form.pointer;
    bench.play("move 2 2; press 2 2; drag 3 5");
    const Overlay band{true, 2, 2, 1, 3};
    EXPECT_EQ(pointer.shpSelect, band);
    EXPECT_TRUE(bench.editor.BandShown);
    bench.play("release");
    EXPECT_FALSE(pointer.shpSelect.Visible);
    EXPECT_FALSE(bench.editor.BandShown);
    EXPECT_FALSE(bench.editor.BandArmed);

    bench.play("press 4 4; drag 3 3");
    EXPECT_TRUE(bench.editor.BandShown);
    EXPECT_FALSE(pointer.shpSelect.Visible);
    bench.play("release");

    bench.editor.BlackBackground = true;
    bench.play("press 4 4; drag 5 5");
    EXPECT_TRUE(pointer.shpSelectLight.Visible);
    EXPECT_FALSE(pointer.shpSelect.Visible);
    bench.play("key 27 0");
    EXPECT_FALSE(pointer.shpSelectLight.Visible) << "ESC ends the band";
    bench.play("drag 6 6");
    EXPECT_FALSE(pointer.shpSelectLight.Visible);
}

TEST(Band, StartsNeitherWithAToolNorWithTheRightButtonNorByMovingAlone) {
    for (const char* script : {"tool Ground; press 2 2; drag 3 3", "right 2 2; drag 3 3",
                               "move 2 2; press 2 2; move 3 3"}) {
        Bench bench;
        bench.play(script);
        EXPECT_FALSE(bench.editor.BandShown) << script;
        EXPECT_FALSE(bench.editor.form.pointer.shpSelect.Visible) << script;
    }
}

TEST(RightButton, OpensTheDrawingMenuButResetsTheDashedLine) {
    Bench bench;
    bench.editor.form.menu[Menu::mnuEditCopy].Enabled = false;
    bench.editor.form.menu[Menu::mnuEditMove].Enabled = false;
    bench.play("tool Line; click 1 1; click 2 1; right 3 1; release");
    EXPECT_THAT(bench.machine.dialogs.popUps, ElementsAre("mnuEditDrawing"));
    EXPECT_NE(bench.editor.CurrentTool, -1);
    EXPECT_TRUE(bench.editor.form.menu[Menu::mnuEditCopy].Enabled);
    EXPECT_TRUE(bench.editor.form.menu[Menu::mnuEditMove].Enabled);
    EXPECT_THAT(bench.canvas.temporary, IsEmpty());
    EXPECT_EQ(bench.devices().size(), 1u);

    bench.play("tool Dashed Line; click 1 2; right 3 1; release");
    EXPECT_EQ(bench.machine.dialogs.popUps.size(), 1u);
    EXPECT_EQ(bench.editor.CurrentTool, -1);
    EXPECT_EQ(bench.editor.LineStartX, NoPoint);
}

TEST(Press, APendingZoomTakesThePointAndPlacesNothing) {
    Bench bench;
    bench.play("tool Ground; move 3 3");
    bench.editor.ZoomInPending = true;
    bench.play("press 3.1 4.2; release");
    EXPECT_EQ(bench.editor.ZoomPointX, 3.1f);
    EXPECT_EQ(bench.editor.ZoomPointY, 4.2f);
    EXPECT_FALSE(bench.editor.MouseIsDown);
    EXPECT_THAT(bench.devices(), IsEmpty());
}

TEST(Press, InSimulationNeitherPlacesNorShowsAMenu) {
    Bench bench;
    bench.play("tool Ground; move 3 3");
    bench.editor.SimulationMode = true;
    const std::string shown = bench.coordinates();
    bench.play("click 4 4; right 4 4; release");
    EXPECT_EQ(bench.coordinates(), shown);
    EXPECT_THAT(bench.devices(), IsEmpty());
    EXPECT_THAT(bench.machine.dialogs.popUps, IsEmpty());
}

TEST(DoubleClick, EndsThePolylineAndArmsTheNextInItsStyle) {
    struct Case {
        const char* tool;
        const char* next;
    };
    for (const Case& c : {Case{"Line", "Line"}, Case{"Dashed Line", "Dashed Line"},
                          Case{"Square", "Line"}, Case{"Dashed Square", "Dashed Line"}}) {
        Bench bench;
        bench.play(std::string("tool ") + c.tool + "; click 1 1; double 2 1");
        EXPECT_EQ(bench.editor.ToolName, c.next) << c.tool;
        EXPECT_EQ(bench.editor.LineStartX, NoPoint) << c.tool;
        EXPECT_GT(bench.drawing.devices.DeviceCount, 0) << c.tool;
        EXPECT_TRUE(bench.button(c.next).Pressed) << c.tool;
    }
    Bench zooming;
    zooming.editor.ZoomInPending = true;
    picLX_DblClick(zooming.editor);
    EXPECT_EQ(zooming.editor.CurrentTool, -1);
}

TEST(Pictures, AreOutlinedUnderThePointerAtFullSizeOnly) {
    Bench bench;
    bench.drawing.PictureTable = {{1, 1, 2, 1, "a.png", "", false},
                                  {5, 5, 1, 1, "b.png", "", false}};
    bench.drawing.PictureCount = 2;
    const auto outlines = [&](const char* script) {
        bench.canvas.temporary.clear();
        bench.play(script);
        return bench.canvas.temporary.size();
    };
    EXPECT_EQ(outlines("move 2 1.5"), 1u);
    EXPECT_EQ(describe(bench.canvas.temporary[0]),
              "Line 1,1 3,2 Box color 16776960 width 1 style 0");
    EXPECT_EQ(outlines("move 4 4"), 0u);
    bench.editor.ZoomInPending = true;
    EXPECT_EQ(outlines("move 2 1.6"), 0u);
    bench.editor.ZoomInPending = false;
    bench.editor.ZoomFactor = 1.25f;
    EXPECT_EQ(outlines("move 2 1.7"), 0u);
}

}  // namespace
}  // namespace ladrix::test
