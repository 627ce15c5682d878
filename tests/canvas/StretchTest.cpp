// The view made narrower and wider by its right margin.
#include "canvas/view/Stretch.h"

#include "Bench.h"
#include "canvas/view/View.h"

namespace ladrix::test {
namespace {

struct StretchTest : BenchTest {
    FormLX& form = editor.form;

    void SetUp() override {
        Form_Resize(editor, 6 * TwipsPerInch, 5 * TwipsPerInch);
        form.FrameRoom = 6 * TwipsPerInch;
    }
    void drag(Single from, Single to) {
        picFrame_MouseDown(editor, LeftButton, from);
        picFrame_MouseMove(editor, LeftButton, to);
        picFrame_MouseUp(editor);
    }
};

TEST_F(StretchTest, TellsHowOnlyTheFirstTimeAndHidesTheBar) {
    for (const bool on : {true, false, true}) {
        mnuEditStretch_Click(editor);
        EXPECT_EQ(form.VScroll1.Visible, !on);
        EXPECT_EQ(checked(Menu::mnuEditStretch), on);
        EXPECT_THAT(boxes(), ElementsAre(testing::StartsWith("Place the mouse inside")));
    }
}

TEST_F(StretchTest, EndsAtTheRoomThereIsAndAtAnInch) {
    mnuEditStretch_Click(editor);
    drag(9000, 7560);
    EXPECT_EQ(form.StretchedWidth, 5 * TwipsPerInch);
    EXPECT_EQ(form.HScroll1.Max, 350);
    picFrame_MouseMove(editor, LeftButton, 1000);
    EXPECT_EQ(form.StretchedWidth, 5 * TwipsPerInch) << "the button is up";
    drag(8640, -90000);
    EXPECT_EQ(form.StretchedWidth, TwipsPerInch);
    drag(1440, 90000);
    EXPECT_EQ(form.StretchedWidth, 0) << "as wide as the window allows";
    EXPECT_FLOAT_EQ(editor.VisibleWidth, 6);
    picFrame_MouseDown(editor, RightButton, 8000);
    picFrame_MouseMove(editor, RightButton, 4000);
    EXPECT_EQ(form.StretchedWidth, 0);
}

}  // namespace
}  // namespace ladrix::test
