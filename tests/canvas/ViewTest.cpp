// How the page lies in the frame: sizes, bars and grid.
#include "canvas/view/Background.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"

#include "Bench.h"

namespace ladrix::test {
namespace {

struct ViewTest : BenchTest {
    void frame(Single width, Single height) {
        Form_Resize(editor, width * TwipsPerInch, height * TwipsPerInch);
    }
};

TEST_F(ViewTest, PageTakesItsSizeFromTheKeyAndKeepsItForAnUnknownOne) {
    play("tool Ground; click 12 1");
    EXPECT_FALSE(editor.gesture.SnapXFound);
    canvas.persistent.clear();
    for (const char* key : {"297x420Landscape", "", "8.5X11Portrait", "8.5x11", "A4"}) {
        drawing.PageLayoutKey = key;
        ApplyPageLayout(editor);
        EXPECT_EQ(editor.PageWidth, 16.54f) << key;
        EXPECT_EQ(editor.PageHeight, 11.69f) << key;
        EXPECT_EQ(editor.CanvasScaleWidth, 16.54f) << key;
        EXPECT_EQ(editor.CanvasScaleHeight, 11.69f) << key;
    }
    EXPECT_FALSE(canvas.persistent.empty()) << "the drawing is painted on it";
    play("move 11 1; click 12 1");
    EXPECT_EQ(devices().back(), "InsertGround|12|1|0||1|1|0|False") << "the snap lines follow";
}

TEST(ScrollBars, StandOnlyWhereThePageIsLargerThanTheFrame) {
    struct Case {
        Single width, height;  // inches of the frame
        int maxX, maxY;        // 0: no bar
    };
    for (const Case& c : {Case{8.5f, 6.75f, 0, 425}, {5, 12, 350, 0}, {5, 5, 350, 600}}) {
        SCOPED_TRACE(c.width);
        Bench bench;
        bench.editor.HScrollTarget = bench.editor.VScrollTarget = 9999;
        Form_Resize(bench.editor, c.width * TwipsPerInch, c.height * TwipsPerInch);
        const FormLX& form = bench.editor.form;
        EXPECT_EQ(form.HScroll1.Visible, c.maxX > 0);
        EXPECT_EQ(form.VScroll1.Visible, c.maxY > 0);
        EXPECT_EQ(form.HScroll1.Max, c.maxX);
        EXPECT_EQ(form.VScroll1.Max, c.maxY);
        EXPECT_EQ(form.HScroll1.Value, c.maxX) << "held within";
        EXPECT_EQ(form.VScroll1.Value, c.maxY);
        EXPECT_FLOAT_EQ(bench.editor.VisibleWidth, c.width);
        EXPECT_FLOAT_EQ(bench.editor.VisibleHeight, c.height);
        if (c.maxY == 0) continue;
        EXPECT_EQ(form.VScroll1.LargeChange, static_cast<int>(c.height * 100));
        EXPECT_EQ(form.VScroll1.SmallChange, static_cast<int>(c.height * 10));
    }
}

TEST_F(ViewTest, ScrollBarsMoveTheViewAndRedraw) {
    play("tool Ground; click 1 1; key 27 0");
    frame(5, 5);
    canvas.persistent.clear();
    const int redraws = canvas.persistentCls;
    editor.form.HScroll1.Value = 125;
    HScroll1_Change(editor);
    editor.form.VScroll1.Value = 250;
    VScroll1_Change(editor);
    EXPECT_EQ(editor.ScaleLeft, 1.25f);
    EXPECT_EQ(editor.ScaleTop, 2.5f);
    EXPECT_EQ(canvas.scaleLeft, 1.25f);
    EXPECT_EQ(canvas.scaleTop, 2.5f);
    EXPECT_FALSE(canvas.persistent.empty());
    EXPECT_EQ(canvas.persistentCls, redraws + 2) << "one redraw each";
    EXPECT_EQ(editor.form.FocusRequest, Focus::Canvas);
    EXPECT_TRUE(editor.symbols.SkipUserSymbolOnce);
    editor.gesture.ZoomInPending = true;
    HScroll1_Change(editor);
    EXPECT_FALSE(editor.symbols.SkipUserSymbolOnce);
}

TEST_F(ViewTest, ScrollBarsKeepTheirPlaceWhenTheFrameIsResized) {
    frame(5, 5);
    play("click 3 2; key 187 2; key 34 0");
    const int below = editor.form.VScroll1.Value;
    ASSERT_GT(below, 0);
    frame(5.5f, 5);
    EXPECT_EQ(editor.form.VScroll1.Value, below) << "not back to where the zoom had put it";
    EXPECT_FLOAT_EQ(canvas.scaleTop, static_cast<Single>(below) / 100);
}

TEST_F(ViewTest, ScrollBarsAreHiddenInSimulationAndStillScroll) {
    editor.SimulationMode = true;
    frame(5, 5);
    EXPECT_FALSE(editor.form.HScroll1.Visible || editor.form.VScroll1.Visible);
    MovePageDown(editor);
    EXPECT_FLOAT_EQ(canvas.scaleTop, 6);
    MovePageUp(editor);
    EXPECT_EQ(canvas.scaleTop, 0);
}

TEST_F(ViewTest, ScrollToIsExactHeldWithinThePageAndCostsOneRedraw) {
    frame(5, 5);
    struct Case {
        Single left, top, atLeft, atTop;
        int redraws;
    };
    for (const Case& c : {Case{1.2345f, 2.0004f, 1.2345f, 2.0004f, 1},
                          {-3, 4, 0, 4, 1},
                          {99, 99, 3.5f, 6, 1},
                          {-1, -1, 0, 0, 1},
                          {-1, -1, 0, 0, 0}}) {
        SCOPED_TRACE(c.left);
        const int redraws = canvas.persistentCls;
        ScrollTo(editor, c.left, c.top);
        EXPECT_FLOAT_EQ(canvas.scaleLeft, c.atLeft);
        EXPECT_FLOAT_EQ(canvas.scaleTop, c.atTop);
        EXPECT_EQ(canvas.persistentCls, redraws + c.redraws);
        EXPECT_NEAR(editor.form.HScroll1.Value, c.atLeft * 100, 0.51);
        EXPECT_NEAR(editor.form.VScroll1.Value, c.atTop * 100, 0.51);
    }
}

TEST_F(ViewTest, ScrollToBringsTheGhostBackUnderAPointerThatHasNotMoved) {
    frame(5, 5);
    play("tool Lamp; move 3 3");
    canvas.temporary.clear();
    play("move 3 3");
    ASSERT_THAT(canvas.temporary, IsEmpty());
    ScrollTo(editor, 1, 1);
    play("move 3 3");
    EXPECT_FALSE(canvas.temporary.empty());
}

TEST_F(ViewTest, GridIsPaintedThinInItsPitchAndNeverRecorded) {
    editor.GridFollowsSnap = true;
    editor.SnapStep = 1;
    canvas.DrawWidth = 2;
    canvas.Text(1, 1, {}, "old", Black);
    DrawGrid(editor);
    const auto& layer = canvas.persistent;
    ASSERT_EQ(layer.size(), 4u + 5u) << "2, 4, 6, 8 across and 2 to 10 down";
    EXPECT_EQ(describe(layer[0]), "Line 2,0 2,11 color 15724527 width 1 style 0");
    EXPECT_EQ(describe(layer[4]), "Line 0,2 8.5,2 color 15724527 width 1 style 0");
    EXPECT_EQ(canvas.DrawWidth, 2);
    EXPECT_EQ(drawing.DeviceString, "");
    EXPECT_FALSE(drawing.DrawingChanged);
    editor.SnapStep = 1e-6f;
    DrawGrid(editor);
    EXPECT_THAT(layer, IsEmpty()) << "one that would be a grey page is left out";
    editor.SnapStep = 1;
    mnuOptBlackBackground_Click(editor);
    EXPECT_EQ(canvas.BackColor, Black);
    DrawGrid(editor);
    EXPECT_EQ(layer.at(0).color, RGB(32, 32, 32));
    EXPECT_EQ(layer.at(3).color, RGB(64, 64, 64)) << "every fourth";
}

TEST_F(ViewTest, GridCostsOnlyTheLinesInView) {
    editor.GridFollowsSnap = true;
    editor.SnapStep = 0.005f;
    editor.ZoomFactor = 20;
    canvas.view = {4, 5, 4.095f, 5.025f};
    DrawGrid(editor);
    ASSERT_EQ(canvas.persistent.size(), 10u + 3u);
    EXPECT_NEAR(canvas.persistent[0].x1, 4, 1e-5);
    EXPECT_NEAR(canvas.persistent[10].y1, 5, 1e-5);
    canvas.view = {-9, -9, -1, -1};
    DrawGrid(editor);
    EXPECT_THAT(canvas.persistent, IsEmpty());
}

}  // namespace
}  // namespace ladrix::test
