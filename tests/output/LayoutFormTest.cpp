#include "output/LayoutForm.h"

#include <gtest/gtest.h>

#include "canvas/view/View.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

struct LayoutFormTest : testing::Test {
    test::FakePlatform machine;
    Editor editor{machine.platform};
    LayoutForm form;
};

TEST_F(LayoutFormTest, ShowsThePagesShapeInTheMiddleOfItsSquare) {
    editor.drawing.PageLayoutKey = "297x420Landscape";
    frmLayout_Load(form, editor);
    EXPECT_EQ(form.LayoutSizeIndex, 10);
    EXPECT_EQ(form.LayoutOrientationIndex, 1);
    EXPECT_EQ(form.picPreview.ScaleWidth, 450);
    EXPECT_EQ(form.shpStyle, (Overlay{true, 15, 76.5f, 420, 297}));
    EXPECT_EQ(form.lblSize.Caption, "297mm x 420mm");
    optOrient_Click(form, 0);
    optSize_Click(form, 0);
    EXPECT_EQ(form.LayoutChoice, "7.5x10.5Portrait");
    EXPECT_EQ(form.shpStyle, (Overlay{true, 8.25f, 7, 7.5f, 10})) << "half an inch short";
    EXPECT_EQ(form.picPreview.ScaleHeight, 24);
}

TEST_F(LayoutFormTest, OkTakesThePageAndExitDoesNot) {
    frmLayout_Load(form, editor);
    optSize_Click(form, 11);
    frmLayout_cmdExit_Click(form);
    EXPECT_EQ(editor.drawing.PageLayoutKey, "8.5x11Portrait");
    frmLayout_Load(form, editor);
    optSize_Click(form, 11);
    optOrient_Click(form, 1);
    editor.ZoomFactor = 2;
    frmLayout_cmdOK_Click(form, editor);
    EXPECT_FALSE(form.Visible);
    EXPECT_EQ(editor.drawing.PageLayoutKey, "17x22Landscape");
    EXPECT_EQ(editor.PageWidth, 22);
    EXPECT_EQ(editor.ZoomFactor, 1);
    editor.drawing.PageLayoutKey = "9x12Portrait";
    ApplyPageLayout(editor);
    EXPECT_EQ(editor.PageWidth, 22) << "an unknown key leaves the page as it was";
}

}  // namespace
}  // namespace ladrix
