// The tool in hand: what a press on a palette button does, its panel and its fly-out.
#include "canvas/tools/Tools.h"

#include "Bench.h"
#include "canvas/tools/RadiusFields.h"

namespace ladrix::test {
namespace {

using ToolsTest = BenchTest;

TEST_F(ToolsTest, ToolPressKeepsExactlyOneButtonPressed) {
    play("tool Ground; tool Lamp");
    EXPECT_FALSE(button("Ground").Pressed);
    EXPECT_TRUE(button("Lamp").Pressed);
    EXPECT_EQ(button("Lamp").DeviceName, "InsertLamp");
    const unsigned version = editor.form.PaletteVersion;
    play("key 27 0");
    EXPECT_FALSE(button("Lamp").Pressed);
    EXPECT_GT(editor.form.PaletteVersion, version) << "the view must hear of it";
}

TEST_F(ToolsTest, ToolPressEndsWhatWasUnderWay) {
    play("tool Ground; click 1 1; key 27 0");
    editor.gesture.ZoomInPending = editor.gesture.ZoomOutPending = true;
    editor.gesture.MouseIsDown = true;
    drawing.devices.DeviceSelected[0] = 1;
    editor.SelectedCount = editor.SelectedDeviceCount = 1;
    editor.gesture.CopyStage = 1;
    play("tool Lamp");
    EXPECT_FALSE(editor.gesture.ZoomInPending || editor.gesture.ZoomOutPending);
    EXPECT_FALSE(editor.gesture.MouseIsDown);
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_EQ(drawing.devices.DeviceSelected[0], 0);
    EXPECT_EQ(editor.gesture.CopyStage, 0);
    EXPECT_EQ(editor.gesture.ToolName, "Lamp");

    play("tool Line; click 1 1; move 2 2; tool Lamp");
    EXPECT_THAT(canvas.temporary, IsEmpty()) << "the rubber line";
    EXPECT_EQ(editor.gesture.LineStartX, NoPoint);
}

TEST_F(ToolsTest, ToolPressWhileThePaletteIsArrangedDoesNothing) {
    editor.Arranging = true;
    play("tool Lamp");
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
    EXPECT_FALSE(button("Lamp").Pressed);
}

TEST_F(ToolsTest, ToolPressRepeatPressesTheLastToolEvenAfterAReset) {
    mnuEditRepeat_Click(editor);
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
    play("tool Lamp; key 27 0");
    mnuEditRepeat_Click(editor);
    EXPECT_EQ(editor.gesture.ToolName, "Lamp");
    EXPECT_TRUE(button("Lamp").Pressed);
}

TEST(RadiusPanel, OpensForCirclesAndArcsWithTheirLastRadius) {
    struct Case {
        const char* tag;
        const char* preset;
        const char* afterTyping;  // 0.5 typed, another tool pressed, this one pressed again
    };
    const Case cases[] = {{"Small Circle", "0.0375", "0.5"},
                          {"Large Circle", "0.125", "0.5"},
                          {"Connection Point", "0.025", "0.025"},
                          {"Arc Left", "0.125", "0.5"}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.tag);
        Bench bench;
        FormLX& form = bench.editor.form;
        const std::string press = std::string("tool ") + c.tag;
        bench.play(press);
        EXPECT_TRUE(form.picRadius.Visible);
        EXPECT_EQ(form.txtRadius.Text, c.preset);
        form.txtRadius.Text = "0,5";  // either decimal mark
        txtRadius_Change(bench.editor);
        bench.play("click 2 2");
        EXPECT_FLOAT_EQ(bench.drawing.devices.DeviceRadius.at(0), 0.5f);
        bench.play("tool Lamp");
        EXPECT_FALSE(form.picRadius.Visible);
        bench.play(press);
        EXPECT_EQ(form.txtRadius.Text, c.afterTyping);
    }
}

TEST_F(ToolsTest, RadiusPanelEachKindOfCircleKeepsItsOwnRadiusAllArcsShareOne) {
    const auto type = [&](const char* radius) {
        editor.form.txtRadius.Text = radius;
        txtRadius_Change(editor);
    };
    play("tool Small Circle");
    type("0.06");
    play("tool Arc Up");
    type("0.75");
    const std::pair<const char*, const char*> cases[] = {
        {"tool Large Circle", "0.125"}, {"tool Arc Right", "0.75"}, {"tool Small Circle", "0.06"}};
    for (const auto& [tool, radius] : cases) {
        play(tool);
        EXPECT_EQ(editor.form.txtRadius.Text, radius) << tool;
    }
    EXPECT_FLOAT_EQ(editor.CircleRadius, 0.06f);
}

TEST(RadiusPanel, ShowsTheAnglesOfAnArcInDegrees) {
    struct Case {
        const char* tag;
        const char* start;
        const char* end;
    };
    for (const Case& c : {Case{"Arc Left", "90.0", "270.0"}, Case{"Arc Right", "270.0", "90.0"},
                          Case{"Arc Up", "360.0", "180.0"}, Case{"Arc Down", "180.0", "360.0"}}) {
        SCOPED_TRACE(c.tag);
        Bench bench;
        FormLX& form = bench.editor.form;
        bench.play(std::string("tool ") + c.tag);
        EXPECT_EQ(form.txtCircleStart.Text, c.start);
        EXPECT_EQ(form.txtCircleEnd.Text, c.end);
        EXPECT_TRUE(form.RadiusPanelWide && form.txtCircleStart.Enabled);
        form.txtCircleStart.Text = "45";
        txtCircleStart_Change(bench.editor);
        form.txtCircleEnd.Text = "none";
        txtCircleEnd_Change(bench.editor);
        bench.play("click 2 2; tool Small Circle");
        EXPECT_NEAR(bench.drawing.devices.DeviceStartAngle.at(0), Pi / 4, 1e-6);
        EXPECT_EQ(bench.drawing.devices.DeviceEndAngle.at(0), bench.editor.ArcEndAngle);
        EXPECT_FALSE(form.RadiusPanelWide || form.txtCircleStart.Enabled ||
                     form.txtCircleEnd.Enabled || form.lblCircle[1].Visible);
    }
}

TEST_F(ToolsTest, RadiusPanelReportsARadiusThatIsNoNumberAndKeepsTheLast) {
    editor.form.txtRadius.Text = "x";
    txtRadius_Change(editor);
    EXPECT_THAT(machine.reports, IsEmpty()) << "no tool, no meaning";
    play("tool Large Circle");
    for (const char* text : {"", "1..2"}) {
        editor.form.txtRadius.Text = text;
        txtRadius_Change(editor);
    }
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(machine.reports[0].description, "Radius information invalid.");
    EXPECT_EQ(machine.reports[0].number, failure::TypeMismatch);
    EXPECT_FLOAT_EQ(editor.CircleRadius, 0.125f);
    for (const char allowed : {'0', '9', '.', ',', '\b'})
        EXPECT_TRUE(numberKeyAllowed(allowed)) << allowed;
    for (const char dropped : {'-', 'e', ' ', '/', ':'})
        EXPECT_FALSE(numberKeyAllowed(dropped)) << dropped;
}

TEST_F(ToolsTest, FlyOutOpensBesideAButtonWithOrientationsOnly) {
    struct Case {
        const char* tag;
        Single dx, dy;
        int count;  // of its orientations; 0: it stays closed
    };
    for (const Case& c : {Case{"Capacitor", 100, 335, 4},
                          {"Capacitor", 99, 200, 0},
                          {"Capacitor", 200, 336, 0},
                          {"AC Capacitor", 200, 200, 2},
                          {"Ground", 200, 200, 0}}) {
        SCOPED_TRACE(c.tag);
        const auto& flyOut = editor.form.picMoreSym;
        cmdSym_MouseMove(editor, buttonOf(c.tag), c.dx, c.dy);
        EXPECT_EQ(flyOut.Visible, c.count > 0);
        if (c.count == 0) continue;
        EXPECT_EQ(flyOut.Index, buttonOf(c.tag));
        EXPECT_EQ(flyOut.Count, c.count);
        play("move 1 1; move 1 2");
        EXPECT_FALSE(flyOut.Visible) << "the canvas closes it";
    }
}

}  // namespace
}  // namespace ladrix::test
