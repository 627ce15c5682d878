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
        bench.editor.form.HScroll1.Value = bench.editor.form.VScroll1.Value = 9999;
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
    bench.editor.form.HScroll1.Value = 125;
    HScroll1_Change(bench.editor);
    bench.editor.form.VScroll1.Value = 250;
    VScroll1_Change(bench.editor);
    EXPECT_EQ(bench.editor.ScaleLeft, 1.25f);
    EXPECT_EQ(bench.editor.ScaleTop, 2.5f);
    EXPECT_EQ(bench.canvas.scaleLeft, 1.25f);
    EXPECT_EQ(bench.canvas.scaleTop, 2.5f);
    EXPECT_FALSE(bench.canvas.persistent.empty());
    EXPECT_TRUE(bench.editor.symbols.SkipUserSymbolOnce);
    bench.editor.ZoomInPending = true;
    HScroll1_Change(bench.editor);
    EXPECT_FALSE(bench.editor.symbols.SkipUserSymbolOnce);
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
    EXPECT_NE(layer.at(0).color, RGB(239, 239, 239));
}

}  // namespace
}  // namespace ladrix::test
