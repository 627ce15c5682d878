// The tool in hand: what a press on a palette button does, its panel and its fly-out.
#include "canvas/Tools.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "canvas/RadiusFields.h"

namespace ladrix::test {
namespace {

using testing::IsEmpty;

TEST(ToolPress, PromptsByTheClassOfTheTool) {
    struct Case {
        const char* tag;
        const char* tail;
    };
    const Case cases[] = {
        {"Line", " Selected - Click a start point or press ESC to end."},
        {"Dashed Square", " Selected - Click a start point or press ESC to end."},
        {"Text",
         " Selected - Click an insertion point. Edit text either prior or after insertion and then "
         "press Enter."},
        {"Arc Up",
         " Selected - After editing the radius, start and end point in degrees, click a location."},
        {"Connection Point", " Selected - After editing the radius, click a location."},
        {"Large Circle", " Selected - After editing the radius, click a location."},
        {"Relay/Timer Coil",
         " Selected - After selecting location, type a name for the device if applicable."},
        {"My Valve",
         " Selected - After selecting location, type a name for the device if applicable."},
    };
    for (const Case& c : cases) {
        Bench bench;
        bench.editor.form.cmdSym[93].Tag = "My Valve";
        bench.play(std::string("tool ") + c.tag);
        EXPECT_EQ(bench.message(), c.tag + std::string(c.tail));
    }
}

TEST(ToolPress, KeepsExactlyOneButtonPressed) {
    Bench bench;
    bench.play("tool Ground; tool Lamp");
    EXPECT_FALSE(bench.button("Ground").Pressed);
    EXPECT_TRUE(bench.button("Lamp").Pressed);
    EXPECT_EQ(bench.button("Lamp").DeviceName, "InsertLamp");
    const unsigned version = bench.editor.form.PaletteVersion;
    bench.play("key 27 0");
    EXPECT_FALSE(bench.button("Lamp").Pressed);
    EXPECT_GT(bench.editor.form.PaletteVersion, version) << "the view must hear of it";
    bench.play("tool Ground");
    EXPECT_TRUE(bench.button("Ground").Pressed);
    EXPECT_FALSE(bench.button("Lamp").Pressed);
}

TEST(ToolPress, EndsWhatWasUnderWay) {
    Bench bench;
    bench.play("tool Ground; click 1 1; key 27 0");
    bench.editor.ZoomInPending = bench.editor.ZoomOutPending = true;
    bench.editor.MouseIsDown = true;
    bench.drawing.devices.DeviceSelected[0] = 1;
    bench.editor.SelectedCount = bench.editor.SelectedDeviceCount = 1;
    bench.editor.CopyStage = 1;
    bench.play("tool Lamp");
    EXPECT_FALSE(bench.editor.ZoomInPending || bench.editor.ZoomOutPending);
    EXPECT_FALSE(bench.editor.MouseIsDown);
    EXPECT_EQ(bench.editor.SelectedCount, 0);
    EXPECT_EQ(bench.drawing.devices.DeviceSelected[0], 0);
    EXPECT_EQ(bench.editor.CopyStage, 0);
    EXPECT_EQ(bench.editor.ToolName, "Lamp");

    bench.play("tool Line; click 1 1; move 2 2; tool Lamp");
    EXPECT_THAT(bench.canvas.temporary, IsEmpty()) << "the rubber line";
    EXPECT_EQ(bench.editor.LineStartX, NoPoint);
}

TEST(ToolPress, WhileThePaletteIsArrangedDoesNothing) {
    Bench bench;
    bench.editor.Arranging = true;
    bench.play("tool Lamp");
    EXPECT_EQ(bench.editor.CurrentTool, -1);
    EXPECT_FALSE(bench.button("Lamp").Pressed);
    EXPECT_EQ(bench.message(), "");
}

TEST(ToolPress, RepeatPressesTheLastToolEvenAfterAReset) {
    Bench bench;
    mnuEditRepeat_Click(bench.editor);
    EXPECT_EQ(bench.editor.CurrentTool, -1);
    bench.play("tool Lamp; key 27 0");
    mnuEditRepeat_Click(bench.editor);
    EXPECT_EQ(bench.editor.ToolName, "Lamp");
    EXPECT_TRUE(bench.button("Lamp").Pressed);
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
        Bench bench;
        const std::string press = std::string("tool ") + c.tag;
        bench.play(press);
        EXPECT_TRUE(bench.editor.form.picRadius.Visible) << c.tag;
        EXPECT_EQ(bench.editor.form.txtRadius.Text, c.preset) << c.tag;
        bench.editor.form.txtRadius.Text = "0,5";  // either decimal mark
        txtRadius_Change(bench.editor);
        bench.play("click 2 2");
        EXPECT_FLOAT_EQ(bench.drawing.devices.DeviceRadius.at(0), 0.5f) << c.tag;
        bench.play("tool Lamp");
        EXPECT_FALSE(bench.editor.form.picRadius.Visible) << c.tag;
        bench.play(press);
        EXPECT_EQ(bench.editor.form.txtRadius.Text, c.afterTyping) << c.tag;
    }
}

TEST(RadiusPanel, EachKindOfCircleKeepsItsOwnRadiusAllArcsShareOne) {
    Bench bench;
    const auto type = [&](const char* radius) {
        bench.editor.form.txtRadius.Text = radius;
        txtRadius_Change(bench.editor);
    };
    bench.play("tool Small Circle");
    type("0.06");
    bench.play("tool Large Circle");
    EXPECT_EQ(bench.editor.form.txtRadius.Text, "0.125");
    bench.play("tool Arc Up");
    type("0.75");
    bench.play("tool Arc Right");
    EXPECT_EQ(bench.editor.form.txtRadius.Text, "0.75");
    bench.play("tool Small Circle");
    EXPECT_EQ(bench.editor.form.txtRadius.Text, "0.06");
    EXPECT_FLOAT_EQ(bench.editor.CircleRadius, 0.06f);
}

TEST(RadiusPanel, ShowsTheAnglesOfAnArcInDegrees) {
    struct Case {
        const char* tag;
        const char* start;
        const char* end;
    };
    for (const Case& c : {Case{"Arc Left", "90.0", "270.0"}, Case{"Arc Right", "270.0", "90.0"},
                          Case{"Arc Up", "360.0", "180.0"}, Case{"Arc Down", "180.0", "360.0"}}) {
        Bench bench;
        FormLX& form = bench.editor.form;
        bench.play(std::string("tool ") + c.tag);
        EXPECT_EQ(form.txtCircleStart.Text, c.start) << c.tag;
        EXPECT_EQ(form.txtCircleEnd.Text, c.end) << c.tag;
        EXPECT_TRUE(form.RadiusPanelWide && form.txtCircleStart.Enabled) << c.tag;
        form.txtCircleStart.Text = "45";
        txtCircleStart_Change(bench.editor);
        form.txtCircleEnd.Text = "none";
        txtCircleEnd_Change(bench.editor);
        bench.play("click 2 2; tool Small Circle");
        EXPECT_NEAR(bench.drawing.devices.DeviceStartAngle.at(0), Pi / 4, 1e-6) << c.tag;
        EXPECT_EQ(bench.drawing.devices.DeviceEndAngle.at(0), bench.editor.ArcEndAngle) << c.tag;
        EXPECT_FALSE(form.RadiusPanelWide || form.txtCircleStart.Enabled ||
                     form.txtCircleEnd.Enabled || form.lblCircle[1].Visible)
            << c.tag;
    }
}

TEST(RadiusPanel, ReportsARadiusThatIsNoNumberAndKeepsTheLast) {
    Bench bench;
    bench.editor.form.txtRadius.Text = "x";
    txtRadius_Change(bench.editor);
    EXPECT_THAT(bench.machine.reports, IsEmpty()) << "no tool, no meaning";
    bench.play("tool Large Circle");
    for (const char* text : {"", "1..2"}) {
        bench.editor.form.txtRadius.Text = text;
        txtRadius_Change(bench.editor);
    }
    ASSERT_EQ(bench.machine.reports.size(), 1u);
    EXPECT_EQ(bench.machine.reports[0].description, "Radius information invalid.");
    EXPECT_EQ(bench.machine.reports[0].number, failure::TypeMismatch);
    EXPECT_FLOAT_EQ(bench.editor.CircleRadius, 0.125f);
    for (const char allowed : {'0', '9', '.', ',', '\b'})
        EXPECT_TRUE(numberKeyAllowed(allowed)) << allowed;
    for (const char dropped : {'-', 'e', ' ', '/', ':'})
        EXPECT_FALSE(numberKeyAllowed(dropped)) << dropped;
}

TEST(FlyOut, OpensBesideAButtonWithOrientationsOnly) {
    struct Case {
        const char* tag;
        Single dx, dy;
        bool opens;
    };
    for (const Case& c : {Case{"Capacitor", 100, 335, true}, Case{"Capacitor", 99, 200, false},
                          Case{"Capacitor", 200, 336, false}, Case{"AC Capacitor", 200, 200, true},
                          Case{"Ground", 200, 200, false}}) {
        Bench bench;
        cmdSym_MouseMove(bench.editor, bench.buttonOf(c.tag), c.dx, c.dy);
        EXPECT_EQ(bench.editor.form.picMoreSym.Visible, c.opens) << c.tag << ' ' << c.dx;
        if (!c.opens) continue;
        EXPECT_EQ(bench.editor.form.picMoreSym.Index, bench.buttonOf(c.tag));
        EXPECT_EQ(bench.editor.form.picMoreSym.Count, c.tag[0] == 'A' ? 2 : 4);
        bench.play("move 1 1");
        EXPECT_FALSE(bench.editor.form.picMoreSym.Visible) << "the canvas closes it";
    }
}

TEST(FlyOut, AChoiceStaysWithTheButtonAndIsWhatIsPlaced) {
    Bench bench;
    bench.play("tool Lamp");
    cmdSym_MouseMove(bench.editor, bench.buttonOf("Capacitor"), 200, 200);
    cmdMoreSym_Click(bench.editor, 3);
    EXPECT_FALSE(bench.editor.form.picMoreSym.Visible);
    EXPECT_FALSE(bench.button("Lamp").Pressed);
    EXPECT_TRUE(bench.button("Capacitor").Pressed);
    bench.play("click 1 1; tool Lamp; tool Capacitor; click 2 2");
    EXPECT_EQ(bench.drawing.devices.DeviceOrientation, (std::vector<Short>{3, 3}));

    cmdSym_MouseMove(bench.editor, bench.buttonOf("AC Capacitor"), 200, 200);
    cmdMoreSym_Click(bench.editor, 2);
    EXPECT_EQ(bench.button("AC Capacitor").ButtonOrientation, 0) << "it has two";
    EXPECT_EQ(bench.editor.ToolName, "Capacitor");
}

}  // namespace
}  // namespace ladrix::test
