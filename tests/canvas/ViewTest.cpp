// How the page lies in the frame: sizes, bars and grid.
#include "canvas/View.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "canvas/Colors.h"

namespace ladrix::test {
namespace {

using testing::IsEmpty;

TEST(Page, TakesItsSizeFromTheKeyAndKeepsItForAnUnknownOne) {
    Bench bench;
    const auto apply = [&](const char* key) {
        bench.drawing.PageLayoutKey = key;
        ApplyPageLayout(bench.editor);
    };
    apply("297x420Landscape");
    EXPECT_EQ(bench.editor.PageWidth, 16.54f);
    EXPECT_EQ(bench.editor.PageHeight, 11.69f);
    EXPECT_EQ(bench.editor.CanvasScaleWidth, 16.54f);
    EXPECT_EQ(bench.editor.CanvasScaleHeight, 11.69f);
    bench.play("tool Ground; click 1 1");
    bench.canvas.persistent.clear();
    for (const char* key : {"", "8.5X11Portrait", "8.5x11", "A4"}) {
        apply(key);
        EXPECT_EQ(bench.editor.PageWidth, 16.54f) << key;
    }
    EXPECT_FALSE(bench.canvas.persistent.empty()) << "the drawing is painted on it";
}

TEST(Page, OfAnotherSizeLimitsTheSnapLines) {
    Bench bench;
    bench.play("tool Ground; click 12 1");
    EXPECT_FALSE(bench.editor.SnapXFound);
    bench.drawing.PageLayoutKey = "17x22Portrait";
    ApplyPageLayout(bench.editor);
    bench.play("move 11 1; click 12 1");
    EXPECT_EQ(bench.devices().back(), "InsertGround|12|1|0||1|1|0|False");
}

TEST(ScrollBars, StandOnlyWhereThePageIsLargerThanTheFrame) {
    struct Case {
        Single width, height;  // inches of the frame
        bool horizontal, vertical;
        int maxX, maxY;
    };
    for (const Case& c : {Case{8.5f, 6.75f, false, true, 0, 425}, Case{5, 12, true, false, 350, 0},
                          Case{5, 5, true, true, 350, 600}, Case{20, 20, false, false, 0, 0}}) {
        Bench bench;
        bench.editor.HScrollTarget = bench.editor.VScrollTarget = 9999;
        Form_Resize(bench.editor, c.width * TwipsPerInch, c.height * TwipsPerInch);
        const FormLX& form = bench.editor.form;
        EXPECT_EQ(form.HScroll1.Visible, c.horizontal) << c.width;
        EXPECT_EQ(form.VScroll1.Visible, c.vertical) << c.height;
        EXPECT_EQ(form.HScroll1.Max, c.maxX);
        EXPECT_EQ(form.VScroll1.Max, c.maxY);
        EXPECT_EQ(form.HScroll1.Value, c.maxX) << "held within";
        EXPECT_EQ(form.VScroll1.Value, c.maxY);
        EXPECT_FLOAT_EQ(bench.editor.VisibleWidth, c.width);
        EXPECT_FLOAT_EQ(bench.editor.VisibleHeight, c.height);
        if (!c.vertical) continue;
        EXPECT_EQ(form.VScroll1.LargeChange, static_cast<int>(c.height * 100));
        EXPECT_EQ(form.VScroll1.SmallChange, static_cast<int>(c.height * 10));
    }
}

TEST(ScrollBars, MoveTheViewAndRedraw) {
    Bench bench;
    bench.play("tool Ground; click 1 1; key 27 0");
    Form_Resize(bench.editor, 5 * TwipsPerInch, 5 * TwipsPerInch);
    bench.canvas.persistent.clear();
    const int redraws = bench.canvas.persistentCls;
    bench.editor.form.HScroll1.Value = 125;
    HScroll1_Change(bench.editor);
    bench.editor.form.VScroll1.Value = 250;
    VScroll1_Change(bench.editor);
    EXPECT_EQ(bench.editor.ScaleLeft, 1.25f);
    EXPECT_EQ(bench.editor.ScaleTop, 2.5f);
    EXPECT_EQ(bench.canvas.scaleLeft, 1.25f);
    EXPECT_EQ(bench.canvas.scaleTop, 2.5f);
    EXPECT_FALSE(bench.canvas.persistent.empty());
    EXPECT_EQ(bench.canvas.persistentCls, redraws + 2) << "one redraw each";
    EXPECT_EQ(bench.editor.form.FocusRequest, Focus::Canvas);
    EXPECT_TRUE(bench.editor.symbols.SkipUserSymbolOnce);
    bench.editor.ZoomInPending = true;
    HScroll1_Change(bench.editor);
    EXPECT_FALSE(bench.editor.symbols.SkipUserSymbolOnce);
}

TEST(ScrollBars, KeepTheirPlaceWhenTheFrameIsResized) {
    Bench bench;
    Form_Resize(bench.editor, 5 * TwipsPerInch, 5 * TwipsPerInch);
    bench.play("click 3 2; key 187 2; key 34 0");
    const int below = bench.editor.form.VScroll1.Value;
    ASSERT_GT(below, 0);
    Form_Resize(bench.editor, 5.5f * TwipsPerInch, 5 * TwipsPerInch);
    EXPECT_EQ(bench.editor.form.VScroll1.Value, below) << "not back to where the zoom had put it";
    EXPECT_FLOAT_EQ(bench.canvas.scaleTop, static_cast<Single>(below) / 100);
}

TEST(ScrollBars, AreHiddenInSimulationAndStillScroll) {
    Bench bench;
    bench.editor.SimulationMode = true;
    Form_Resize(bench.editor, 5 * TwipsPerInch, 5 * TwipsPerInch);
    EXPECT_FALSE(bench.editor.form.HScroll1.Visible || bench.editor.form.VScroll1.Visible);
    MovePageDown(bench.editor);
    EXPECT_FLOAT_EQ(bench.canvas.scaleTop, 6);
    MovePageUp(bench.editor);
    EXPECT_EQ(bench.canvas.scaleTop, 0);
}

TEST(ScrollTo, IsExactHeldWithinThePageAndCostsOneRedraw) {
    struct Case {
        Single left, top, atLeft, atTop;
        int redraws;
    };
    for (const Case& c : {Case{1.2345f, 2.0004f, 1.2345f, 2.0004f, 1}, Case{-3, 4, 0, 4, 1},
                          Case{99, 99, 3.5f, 6, 1}, Case{-1, -1, 0, 0, 0}}) {
        Bench bench;
        Form_Resize(bench.editor, 5 * TwipsPerInch, 5 * TwipsPerInch);
        const int redraws = bench.canvas.persistentCls;
        ScrollTo(bench.editor, c.left, c.top);
        EXPECT_FLOAT_EQ(bench.canvas.scaleLeft, c.atLeft);
        EXPECT_FLOAT_EQ(bench.canvas.scaleTop, c.atTop);
        EXPECT_EQ(bench.canvas.persistentCls, redraws + c.redraws) << c.left;
        EXPECT_NEAR(bench.editor.form.HScroll1.Value, c.atLeft * 100, 0.51);
        EXPECT_NEAR(bench.editor.form.VScroll1.Value, c.atTop * 100, 0.51);
    }
}

TEST(ScrollTo, BringsTheGhostBackUnderAPointerThatHasNotMoved) {
    Bench bench;
    Form_Resize(bench.editor, 5 * TwipsPerInch, 5 * TwipsPerInch);
    bench.play("tool Lamp; move 3 3");
    bench.canvas.temporary.clear();
    bench.play("move 3 3");
    ASSERT_THAT(bench.canvas.temporary, IsEmpty());
    ScrollTo(bench.editor, 1, 1);
    bench.play("move 3 3");
    EXPECT_FALSE(bench.canvas.temporary.empty());
}

TEST(ResetZoom, ShowsTheUpperLeftAtFullSize) {
    Bench bench;
    Form_Resize(bench.editor, 5 * TwipsPerInch, 5 * TwipsPerInch);
    bench.editor.ZoomFactor = 2;
    bench.editor.ZoomStepCount = 3;
    bench.editor.form.VScroll1.Value = 300;
    VScroll1_Change(bench.editor);
    ResetZoom(bench.editor);
    EXPECT_EQ(bench.editor.ZoomFactor, 1);
    EXPECT_EQ(bench.editor.ZoomStepCount, 0);
    EXPECT_EQ(bench.canvas.scaleTop, 0);
    EXPECT_EQ(bench.canvas.scaleZoom, 1);
    EXPECT_EQ(bench.editor.VisibleHeight, 5);
}

TEST(Grid, IsPaintedThinInItsPitchAndNeverRecorded) {
    Bench bench;
    bench.editor.GridFollowsSnap = true;
    bench.editor.SnapStep = 1;
    bench.canvas.DrawWidth = 2;
    bench.canvas.Text(1, 1, {}, "old", Black);
    DrawGrid(bench.editor);
    const auto& layer = bench.canvas.persistent;
    ASSERT_EQ(layer.size(), 4u + 5u) << "2, 4, 6, 8 across and 2 to 10 down";
    EXPECT_EQ(describe(layer[0]), "Line 2,0 2,11 color 15724527 width 1 style 0");
    EXPECT_EQ(describe(layer[4]), "Line 0,2 8.5,2 color 15724527 width 1 style 0");
    EXPECT_EQ(bench.canvas.DrawWidth, 2);
    EXPECT_EQ(bench.drawing.DeviceString, "");
    EXPECT_FALSE(bench.drawing.DrawingChanged);
    bench.editor.SnapStep = 1e-6f;
    DrawGrid(bench.editor);
    EXPECT_THAT(layer, IsEmpty()) << "one that would be a grey page is left out";
    bench.editor.SnapStep = 1;
    mnuOptBlackBackground_Click(bench.editor);
    EXPECT_EQ(bench.canvas.BackColor, Black);
    DrawGrid(bench.editor);
    EXPECT_EQ(layer.at(0).color, RGB(32, 32, 32));
    EXPECT_EQ(layer.at(3).color, RGB(64, 64, 64)) << "every fourth";
}

TEST(Grid, CostsOnlyTheLinesInView) {
    Bench bench;
    bench.editor.GridFollowsSnap = true;
    bench.editor.SnapStep = 0.005f;
    bench.editor.ZoomFactor = 20;
    bench.canvas.view = {4, 5, 4.095f, 5.025f};
    DrawGrid(bench.editor);
    ASSERT_EQ(bench.canvas.persistent.size(), 10u + 3u);
    EXPECT_NEAR(bench.canvas.persistent[0].x1, 4, 1e-5);
    EXPECT_NEAR(bench.canvas.persistent[10].y1, 5, 1e-5);
    bench.canvas.view = {-9, -9, -1, -1};
    DrawGrid(bench.editor);
    EXPECT_THAT(bench.canvas.persistent, IsEmpty());
}

}  // namespace
}  // namespace ladrix::test
