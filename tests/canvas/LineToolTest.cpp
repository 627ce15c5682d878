// The line and square tools, click by click.
#include "canvas/tools/LineTool.h"
#include "canvas/tools/ToolTable.h"

#include "Bench.h"

namespace ladrix::test {
namespace {

using LineToolTest = BenchTest;

TEST(LineTool, RecordsOneLineForEachFurtherClick) {
    struct Case {
        const char* script;
        std::vector<std::string> devices;
    };
    const Case cases[] = {
        {"tool Line; click 1 1; click 3 1; click 3 2",
         {"InsertSavedLine|1|1|3|1|0|0", "InsertSavedLine|3|1|3|2|0|0"}},
        // On an axis the lower coordinate comes first; the polyline still goes on from the click.
        {"tool Line; click 3 1; click 1 1; click 1 0.5",
         {"InsertSavedLine|1|1|3|1|0|0", "InsertSavedLine|1|0.5|1|1|0|0"}},
        {"tool Line; click 3 3; click 1 2", {"InsertSavedLine|3|3|1|2|0|0"}},
        {"tool Line; click 2 2; click 2 2", {"InsertSavedLine|2|2|2|2|0|0"}},
        {"tool Line; click 1 1; key 27 0; tool Line; click 2 2; click 3 2",
         {"InsertSavedLine|2|2|3|2|0|0"}},
    };
    for (const Case& c : cases) {
        Bench bench;
        bench.play(c.script);
        EXPECT_THAT(bench.devices(), testing::ElementsAreArray(c.devices)) << c.script;
    }
}

TEST_F(LineToolTest, LineToolTakesColourAndThicknessOfTheMoment) {
    editor.ThickLineTool = true;
    editor.CurrentColor = 255;
    play("tool Line; click 1 1");
    canvas.persistent.clear();
    play("click 2 1");
    EXPECT_THAT(devices(), ElementsAre("InsertSavedLine|1|1|2|1|255|DrawWidth=2"));
    ASSERT_EQ(canvas.persistent.size(), 1u);
    EXPECT_EQ(describe(canvas.persistent[0]), "Line 1,1 2,1 color 255 width 2 style 0");
    EXPECT_EQ(canvas.DrawWidth, 1);
    play("tool Dashed Line; click 1 2; click 1.25 2");
    EXPECT_EQ(devices().back(), "InsertSavedLine|1|2|1.125|2|255|0") << "dashes stay thin";
}

TEST(DashedLine, IsCutIntoDashesAndGapsOfOneLength) {
    struct Case {
        const char* script;
        std::vector<std::string> devices;
    };
    // Dashes and gaps of 0.125 inches; a remainder not longer than a dash is left out.
    const Case cases[] = {
        {"click 1 1; click 1.5 1",
         {"InsertSavedLine|1|1|1.125|1|0|0", "InsertSavedLine|1.25|1|1.375|1|0|0"}},
        {"click 1.5 1; click 1 1",
         {"InsertSavedLine|1.5|1|1.375|1|0|0", "InsertSavedLine|1.25|1|1.125|1|0|0"}},
        {"click 1 1; click 1 1.5",
         {"InsertSavedLine|1|1|1|1.125|0|0", "InsertSavedLine|1|1.25|1|1.375|0|0"}},
        {"click 1 1; click 1.25 1", {"InsertSavedLine|1|1|1.125|1|0|0"}},
        {"click 1 1; click 1 1", {}},
    };
    for (const Case& c : cases) {
        Bench bench;
        bench.play(std::string("tool Dashed Line; ") + c.script);
        EXPECT_THAT(bench.devices(), testing::ElementsAreArray(c.devices)) << c.script;
    }
    Bench exact;
    exact.editor.SnapStep = 0.125f;
    exact.play("tool Dashed Line; click 1 1; click 1.125 1");
    EXPECT_THAT(exact.devices(), IsEmpty()) << "a line of one dash's length";
    exact.play("click 1.5 1");
    EXPECT_THAT(exact.devices(), ElementsAre("InsertSavedLine|1.125|1|1.25|1|0|0"))
        << "three lengths: the last, of just one, is left out; the polyline goes on from the click";
}

TEST(DashedLine, DashesOfADiagonalAreMeasuredAlongIt) {
    for (const Single sign : {1.0f, -1.0f}) {
        Bench bench;
        bench.editor.gesture.LineStartX = bench.editor.gesture.LineStartY = 5;
        bench.editor.SnapX = 5 + 3 * sign;
        bench.editor.SnapY = 9;
        bench.editor.DashSpacing = 0.5f;
        bench.editor.gesture.DashedMode = 1;
        InsertSavedLine(bench.editor, Black, "");
        const DeviceTable& table = bench.drawing.devices;
        ASSERT_EQ(table.DeviceCount, 5);
        for (std::size_t i = 0; i < 5; ++i) {
            const Single along = static_cast<Single>(i);
            EXPECT_NEAR(table.DeviceX[i], 5 + 0.6f * sign * along, 1e-5);
            EXPECT_NEAR(table.DeviceY[i], 5 + 0.8f * along, 1e-5);
            EXPECT_NEAR(table.DeviceX2[i], 5 + 0.6f * sign * (along + 0.5f), 1e-5);
            EXPECT_NEAR(table.DeviceY2[i], 5 + 0.8f * (along + 0.5f), 1e-5);
        }
        EXPECT_EQ(bench.snapshots, 1) << "for all dashes";
    }
}

TEST(DashedLine, ASpacingThatIsNoLengthEndsAtOnce) {
    for (const Single spacing : {0.0f, -1.0f, 1e-30f}) {
        Bench bench;
        bench.editor.DashSpacing = spacing;
        bench.play("tool Dashed Line; click 1 1; click 5 1");
        EXPECT_THAT(bench.devices(), IsEmpty()) << spacing;
    }
}

TEST_F(LineToolTest, SquareToolAlternatesBetweenItsCornersAndIsOneDevice) {
    play("tool Square; click 1 1");
    EXPECT_THAT(message(), HasSubstr("Move mouse and click end point."));
    EXPECT_THAT(devices(), IsEmpty());
    play("click 3 2");
    EXPECT_THAT(message(), HasSubstr("End point for Square found."));
    EXPECT_EQ(editor.gesture.LineStartX, NoPoint);
    play("click 5 5; click 4 4; click 6 3; click 6 2");
    EXPECT_THAT(devices(),
                ElementsAre("InsertSavedSquare|1|1|3|2|0|0", "InsertSavedSquare|5|5|4|4|0|0",
                            "InsertSavedSquare|6|2|6|3|0|0"));
    EXPECT_EQ(snapshots, 3);
}

TEST_F(LineToolTest, SquareToolTheDashedOneIsDrawnInItsStyleAndPutsTheSolidBack) {
    play("tool Dashed Square; click 1 1");
    canvas.persistent.clear();
    play("click 3 2");
    EXPECT_THAT(devices(), ElementsAre("InsertSavedSquare|1|1|3|2|0|3"));
    ASSERT_EQ(canvas.persistent.size(), 1u);
    EXPECT_EQ(describe(canvas.persistent[0]), "Line 1,1 3,2 Box color 0 width 1 style 3");
    EXPECT_EQ(canvas.DrawStyle, 0);
}

TEST(Rubber, FollowsTheSnapPointInMagentaOnTheTemporaryLayer) {
    struct Case {
        const char* script;
        const char* rubber;
    };
    const Case cases[] = {
        {"tool Line; click 1 1; move 2.02 3", "Line 1,1 2,3 color 16711935 width 1 style 0"},
        {"tool Square; click 1 1; move 2 3", "Line 1,1 2,3 Box color 16711935 width 1 style 0"},
        // Off the snap lines it stays at the last point.
        {"tool Line; click 1 1; move 2 3; move 2.1 3.1",
         "Line 1,1 2,3 color 16711935 width 1 style 0"},
    };
    for (const Case& c : cases) {
        Bench bench;
        bench.play(c.script);
        ASSERT_EQ(bench.canvas.temporary.size(), 1u) << c.script;
        EXPECT_EQ(describe(bench.canvas.temporary[0]), c.rubber) << c.script;
    }
    Bench bench;
    bench.play("tool Line; move 1 1; click 1 1; move 2 2; click 2 2");
    EXPECT_THAT(bench.canvas.temporary, IsEmpty()) << "the placed line stands in its place";
}

}  // namespace
}  // namespace ladrix::test
