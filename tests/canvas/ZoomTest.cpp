// Zooming at a point: by pressed button, by menu and key, and by the wheel.
#include "canvas/view/Zoom.h"

#include <cmath>

#include "Bench.h"
#include "canvas/gestures/Keys.h"
#include "canvas/view/View.h"

namespace ladrix::test {
namespace {

using Box = FakeDialogs::Box;

// A frame of 5 by 5 inches over a letter page.
struct ZoomTest : BenchTest {
    void SetUp() override { Form_Resize(editor, 5 * TwipsPerInch, 5 * TwipsPerInch); }

    // Where a point of the page stands in the frame, inches of the screen.
    Single onScreenX(Single x) const { return (x - editor.ScaleLeft) * editor.ZoomFactor; }
    Single onScreenY(Single y) const { return (y - editor.ScaleTop) * editor.ZoomFactor; }
    void repeat(void (*handler)(Editor&), int times) {
        for (int i = 0; i < times; ++i)
            handler(editor);
    }
};

TEST_F(ZoomTest, RunsFromMinusFiveToFourteenStepsAndBackAndRefusesTheNextWithAReset) {
    struct Case {
        void (*there)(Editor&);
        void (*back)(Editor&);
        int steps;
        double factor;
        const char* refusal;
    };
    for (const Case& c :
         {Case{mnuEditZoomIn_Click, mnuEditZoomOut_Click, 14, 1.25, "Cannot zoom in further."},
          Case{mnuEditZoomOut_Click, mnuEditZoomIn_Click, 5, 0.8, "Cannot zoom out further."}}) {
        machine.dialogs.boxes.clear();
        repeat(c.there, c.steps);
        EXPECT_THAT(boxes(), IsEmpty());
        const Single last = editor.ZoomFactor;
        EXPECT_NEAR(last, std::pow(c.factor, c.steps), 1e-5 * last);
        EXPECT_FLOAT_EQ(editor.VisibleWidth, 5 / last);
        EXPECT_FLOAT_EQ(editor.CanvasScaleHeight, 11 / last);
        play("tool Lamp");
        c.there(editor);
        EXPECT_THAT(machine.dialogs.boxes, ElementsAre(Box{c.refusal, "Ladrix"}));
        EXPECT_EQ(editor.ZoomFactor, last);
        EXPECT_EQ(std::abs(editor.ZoomStepCount), c.steps);
        EXPECT_EQ(editor.gesture.CurrentTool, -1) << "reset";
        EXPECT_EQ(canvas.scaleZoom, last);
        repeat(c.back, c.steps);
        EXPECT_EQ(editor.ZoomFactor, 1) << "exactly";
        EXPECT_EQ(editor.VisibleHeight, 5);
    }
    machine.platform.locale.decimalMark = ',';
    repeat(&ZoomIn, 2);
    EXPECT_THAT(message(), testing::EndsWith("Current Zoom Scale = 156,25%"));
}

TEST_F(ZoomTest, APressedPointStaysWhereItIsOnTheScreen) {
    editor.form.VScroll1.Value = 300;
    VScroll1_Change(editor);
    cmdZoomIn_Click(editor);
    const Single x = onScreenX(4), y = onScreenY(6);
    play("click 4 6");
    EXPECT_FLOAT_EQ(editor.ZoomFactor, 1.25f);
    EXPECT_NEAR(onScreenX(4), x, 0.01);
    EXPECT_NEAR(onScreenY(6), y, 0.01);
    EXPECT_EQ(editor.form.HScroll1.Value, 80);  // 4 - 0.8 of the 4 inches that are visible
    EXPECT_EQ(editor.form.VScroll1.Value, 360);
    EXPECT_FLOAT_EQ(canvas.scaleTop, 3.6f);
    play("click 4 6; click 4 6");
    EXPECT_NEAR(onScreenX(4), x, 0.02);
    EXPECT_NEAR(onScreenY(6), y, 0.02);
}

TEST_F(ZoomTest, TheShareOfTheViewIsKeptFromTheStepThatLeftFullSize) {
    cmdZoomIn_Click(editor);
    play("click 2.5 1");  // half across, a fifth down
    play("click 4 6");
    EXPECT_NEAR(onScreenX(4), 2.5, 0.02) << "another point comes to the same place";
    EXPECT_NEAR(onScreenY(6), 1, 0.02);
    repeat(&ZoomOut, 2);
    play("click 3 7");
    EXPECT_NEAR(onScreenX(3), 1.5, 0.02) << "taken anew";
    EXPECT_NEAR(onScreenY(7), 2, 0.02);
}

TEST_F(ZoomTest, ATargetIsHeldWithinThePageAndIsZeroWhereThePageFits) {
    cmdZoomIn_Click(editor);
    play("click 0 0; click 0 0");
    EXPECT_EQ(editor.form.HScroll1.Value, 0);
    editor.ZoomPointX = editor.ZoomPointY = 90;
    ZoomIn(editor);
    EXPECT_EQ(editor.form.HScroll1.Value, editor.form.HScroll1.Max);
    EXPECT_EQ(editor.form.VScroll1.Value, editor.form.VScroll1.Max);
    EXPECT_FLOAT_EQ(canvas.scaleTop + editor.VisibleHeight, 11);
    repeat(&ZoomOut, 8);
    EXPECT_FALSE(editor.form.HScroll1.Visible || editor.form.VScroll1.Visible);
    EXPECT_EQ(editor.form.HScroll1.Value, 0);
    EXPECT_EQ(editor.form.VScroll1.Value, 0);
    EXPECT_EQ(canvas.scaleTop, 0);
}

TEST_F(ZoomTest, EveryStepCostsOneRedraw) {
    play("tool Ground; click 2 2; key 27 0");
    cmdZoomIn_Click(editor);
    for (const char* script : {"press 4 4", "press 4 4; release", "key 187 2", "key 189 2"}) {
        const int redraws = canvas.persistentCls;
        play(script);
        EXPECT_EQ(canvas.persistentCls, redraws + 1) << script;
    }
    const int redraws = canvas.persistentCls;
    zoomByWheel(editor, ZoomStep::Out, 3, 3);
    EXPECT_EQ(canvas.persistentCls, redraws + 1);
}

TEST_F(ZoomTest, StaysPendingUntilResetOrATool) {
    play("tool Line; click 1 1");
    cmdZoomIn_Click(editor);
    EXPECT_EQ(editor.gesture.CurrentTool, -1) << "a tool in hand is put away";
    EXPECT_EQ(editor.form.cmdZoomIn.BackColor, Cyan);
    play("click 1 1; right 1 1; release");
    EXPECT_EQ(editor.ZoomStepCount, 2) << "with either button";
    EXPECT_THAT(machine.dialogs.popUps, IsEmpty());
    cmdZoomOut_Click(editor);
    EXPECT_EQ(editor.form.cmdZoomIn.BackColor, ButtonFace);
    EXPECT_EQ(editor.form.cmdZoomOut.BackColor, Cyan);
    play("click 1 1");
    EXPECT_EQ(editor.ZoomStepCount, 1);
    for (const char* end : {"key 27 0", "tool Ground"}) {
        cmdZoomOut_Click(editor);
        play(std::string(end) + "; click 3 3; key 27 0");
        EXPECT_EQ(editor.ZoomStepCount, 1) << end;
        EXPECT_EQ(editor.form.cmdZoomOut.BackColor, ButtonFace) << end;
    }
    EXPECT_EQ(devices().size(), 1u) << "the tool's click placed again";
}

TEST_F(ZoomTest, KeysZoomAtTheLastPlacement) {
    play("tool Ground; click 3 4; key 187 2");
    EXPECT_EQ(editor.ZoomStepCount, 1);
    EXPECT_EQ(editor.gesture.CurrentTool, buttonOf("Ground")) << "the tool stays in hand";
    EXPECT_NEAR(onScreenX(3), 3, 0.01);
    EXPECT_NEAR(onScreenY(4), 4, 0.01);
    play("key 187 3; key 189 2; key 189 2; key 189 2");
    EXPECT_EQ(editor.ZoomStepCount, -1);
    play("key 187 0; key 189 1; key 187 6");
    EXPECT_EQ(editor.ZoomStepCount, -1) << "without Ctrl they are no zoom";
}

TEST_F(ZoomTest, TheWheelKeepsThePointUnderThePointerAtEveryStep) {
    play("tool Line; click 2 2; move 3 3");
    ScrollTo(editor, 1.2f, 2.5f);
    for (const Single at : {3.1f, 4.7f, 2.9f}) {
        const Single x = onScreenX(at), y = onScreenY(at + 1);
        zoomByWheel(editor, ZoomStep::In, at, at + 1);
        EXPECT_NEAR(onScreenX(at), x, 1e-4);
        EXPECT_NEAR(onScreenY(at + 1), y, 1e-4);
    }
    EXPECT_EQ(editor.ZoomStepCount, 3);
    EXPECT_NE(editor.gesture.LineStartX, NoPoint) << "the line under way goes on";
    EXPECT_EQ(message(), "Current Zoom Scale = 195.3125%");
    for (int i = 0; i < 20; ++i)
        zoomByWheel(editor, ZoomStep::In, 4, 4);
    EXPECT_EQ(editor.ZoomStepCount, 14);
    EXPECT_EQ(message(), "Cannot zoom in further.");
    EXPECT_THAT(boxes(), IsEmpty());
    for (int i = 0; i < 30; ++i)
        zoomByWheel(editor, ZoomStep::Out, 4, 4);
    EXPECT_EQ(editor.ZoomStepCount, -5);
    EXPECT_EQ(canvas.scaleLeft, 0) << "the page fits";
}

}  // namespace
}  // namespace ladrix::test
