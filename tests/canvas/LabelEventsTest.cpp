// Labels under the pointer, and the commands on those that are selected.
#include "canvas/labels/LabelEdit.h"
#include "canvas/labels/LabelEvents.h"
#include "canvas/view/Painting.h"

#include "Bench.h"
#include "canvas/gestures/CopyMove.h"
#include "canvas/labels/LabelCommands.h"
#include "canvas/labels/Labels.h"
#include "canvas/view/Zoom.h"

namespace ladrix::test {
namespace {

struct LabelledBench : Bench {
    LabelledBench() {
        load("", line("A|1|1|100|Arial|10|False|False") + line("BB|3|2|101|Arial|10|False|False") +
                     line("CCC|5|3|102|Arial|10|False|False"));
    }
    static constexpr Single Wide = 0.6f * 10 / 72, High = 1.2f * 10 / 72;

    void press(Short label, Single x, Single y) { lbl_MouseDown(editor, label, LeftButton, x, y); }
    void release(Short label) {
        if (lbl_MouseUp(editor)) lbl_Click(editor, label);
    }
    void click(Short label) {
        press(label, 0, 0);
        release(label);
    }
    void drag(Short label, Single dx, Single dy) {
        press(label, 4, 4);
        lbl_MouseMove(editor, LeftButton, 4 + dx / 2, 4 + dy / 2);
        lbl_MouseMove(editor, LeftButton, 4 + dx, 4 + dy);
        release(label);
    }
    std::vector<Long> shownColors() const {
        std::vector<Long> colors;
        for (const LabelControl& control : editor.form.lbl)
            colors.push_back(control.ForeColor);
        return colors;
    }
    const std::vector<Short>& marks() const { return drawing.labels.LabelSelected; }
    const std::vector<Single>& left() const { return drawing.labels.LabelX; }
    const std::vector<Single>& top() const { return drawing.labels.LabelY; }
};

struct LabelEventsTest : testing::Test, LabelledBench {};

TEST(LabelUnderThePointer, IsWhereItsTextIsPaintedAtEveryZoom) {
    for (const auto& [step, times] : {std::pair{ZoomStep::In, 12}, std::pair{ZoomStep::Out, 5}}) {
        SCOPED_TRACE(times);
        LabelledBench bench;
        for (int i = 0; i < times; ++i)
            zoomByWheel(bench.editor, step, 3, 2);
        const auto at = [&](Single x, Single y) {
            return labelAt(bench.editor, x, y).value_or(-1);
        };
        const auto wide = bench.Wide, high = bench.High;
        EXPECT_EQ(at(3, 2), 1);
        EXPECT_EQ(at(3 + 1.9f * wide, 2 + 0.95f * high), 1);
        EXPECT_EQ(at(3 + 2.2f * wide, 2.05f), -1);
        EXPECT_EQ(at(3.05f, 2 + 1.1f * high), -1);
        EXPECT_EQ(at(2.99f, 2.05f), -1);
        bench.drawing.labels.LabelX[2] = 3;
        bench.drawing.labels.LabelY[2] = 2;
        RedrawDrawing(bench.editor);
        EXPECT_EQ(at(3, 2), 2) << "the uppermost";
    }
}

TEST(LabelUnderThePointer, MayBeTheTickOfAnEmptyOneWhichKeepsItsSizeOnTheScreen) {
    for (const Single zoom : {0.5f, 1.0f, 4.0f}) {
        SCOPED_TRACE(zoom);
        LabelledBench bench;
        bench.editor.ZoomFactor = zoom;
        bench.drawing.labels.LabelText[1].clear();
        RedrawDrawing(bench.editor);
        const auto at = [&](Single screenX, Single screenY) {
            return labelAt(bench.editor, 3 + screenX / zoom, 2 + screenY / zoom).value_or(-1);
        };
        EXPECT_EQ(at(0.24f, 0.24f), 1);
        for (const auto& [x, y] : {std::pair{0.26f, 0.1f}, {0.1f, 0.26f}, {-0.01f, 0.1f}})
            EXPECT_EQ(at(x, y), -1) << x << ", " << y;
    }
}

TEST_F(LabelEventsTest, LabelsLeaveThePressToTheCanvasWhileThatIsAskedForAPoint) {
    EXPECT_EQ(labelAt(editor, 1, 1), 0);
    for (bool* pending :
         {&editor.SimulationMode, &editor.gesture.ZoomInPending, &editor.gesture.ZoomOutPending,
          &editor.gesture.CopyArmed, &editor.gesture.TextAlignPending}) {
        *pending = true;
        EXPECT_EQ(labelAt(editor, 1, 1), std::nullopt);
        *pending = false;
    }
    for (bool* pending :
         {&editor.SimulationMode, &editor.gesture.ZoomInPending, &editor.gesture.ZoomOutPending}) {
        *pending = true;
        click(0);
        lbl_MouseDown(editor, 0, RightButton, 1, 1);
        *pending = false;
    }
    EXPECT_THAT(marks(), ElementsAre(0, 0, 0));
    EXPECT_THAT(machine.dialogs.popUps, IsEmpty());
}

TEST_F(LabelEventsTest, LabelClickTogglesAndCountsAndIsNoStep) {
    const Long pink = editor.SelectionColor;
    click(1);
    EXPECT_THAT(marks(), ElementsAre(0, 1, 0));
    EXPECT_THAT(shownColors(), ElementsAre(100, pink, 102));
    EXPECT_EQ(editor.LastSelectedLabel, 1);
    EXPECT_EQ(message(), "1 device has been selected for Move, Copy or Delete.");
    EXPECT_TRUE(enabled(Menu::mnuEditText) && enabled(Menu::mnuEditTextCaption));
    EXPECT_FALSE(enabled(Menu::mnuEditTextAlignTop));
    // A hand trembles, less so where the page is large.
    drag(0, 0.02f, -0.02f);
    EXPECT_THAT(shownColors(), ElementsAre(pink, pink, 102));
    EXPECT_FALSE(enabled(Menu::mnuEditTextCaption)) << "of which one?";
    EXPECT_TRUE(enabled(Menu::mnuEditTextAlignTop));
    click(0);
    click(1);
    EXPECT_THAT(marks(), ElementsAre(0, 0, 0));
    EXPECT_THAT(shownColors(), ElementsAre(100, 101, 102));
    EXPECT_FALSE(enabled(Menu::mnuEditText));
    EXPECT_EQ(snapshots, 0);
    EXPECT_FALSE(drawing.DrawingChanged);
}

TEST_F(LabelEventsTest, LabelDragMovesAllThatIsSelectedByOneOffsetAndEndsTheSelection) {
    click(0);
    click(1);
    drag(0, 1.5f, -0.25f);
    EXPECT_THAT(left(), ElementsAre(2.5f, 4.5f, 5));
    EXPECT_THAT(top(), ElementsAre(0.75f, 1.75f, 3));
    EXPECT_EQ(labels()[1], "BB|4.5|1.75|101|Arial|10|False|False");
    EXPECT_THAT(marks(), ElementsAre(0, 0, 0));
    EXPECT_THAT(shownColors(), ElementsAre(100, 101, 102));
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_EQ(snapshots, 1);
    EXPECT_TRUE(drawing.DrawingChanged);
    // One that is not selected comes along with the hand that holds it.
    click(1);
    drag(2, 0, 1);
    EXPECT_THAT(top(), ElementsAre(0.75f, 2.75f, 4));
    EXPECT_EQ(snapshots, 2);
    // Zoomed in, a small way on the page is a long one for the hand.
    for (int i = 0; i < 12; ++i)
        zoomByWheel(editor, ZoomStep::In, 3, 2);
    drag(2, 0, 0.02f);
    EXPECT_FLOAT_EQ(top()[2], 4.02f);
}

TEST_F(LabelEventsTest, LabelDragIsDroppedByEscapeAndByUndo) {
    const auto begin = [&] {
        press(1, 4, 4);
        lbl_MouseMove(editor, LeftButton, 6, 6);
        EXPECT_EQ(editor.form.lbl[1].Left, 5) << "the label follows";
        EXPECT_EQ(left()[1], 3) << "its row waits for the release";
    };
    begin();
    play("key 27 0");
    lbl_MouseMove(editor, LeftButton, 7, 7);
    release(1);
    EXPECT_EQ(editor.form.lbl[1].Left, 3);
    EXPECT_THAT(marks(), ElementsAre(0, 0, 0));
    begin();
    drawing.labels.clear();
    RedrawDrawing(editor);
    release(1);
    EXPECT_EQ(snapshots, 0);
}

TEST_F(LabelEventsTest, LabelPressDropsTheToolAndGivesAUserSymbolItsPoint) {
    play("tool Line; click 1 1; move 3 2");
    click(1);
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
    EXPECT_EQ(editor.gesture.LineStartX, NoPoint);
    EXPECT_THAT(marks(), ElementsAre(0, 1, 0));

    std::vector<Single> point;
    editor.SymbolPointTaken = [&](Single x, Single y, Short label) {
        point = {static_cast<Single>(label), x, y};
    };
    editor.gesture.SavingUserSymbol = true;
    press(2, 5.1f, 3.1f);
    release(2);
    EXPECT_EQ(editor.LastSelectedLabel, 2);
    EXPECT_THAT(point, IsEmpty()) << "no point is wanted yet";
    editor.gesture.SymbolPointPending = true;
    press(2, 5.1f, 3.1f);
    release(2);
    EXPECT_THAT(point, ElementsAre(2, 5.1f, 3.1f));
    EXPECT_THAT(marks(), ElementsAre(0, 1, 0)) << "the press picks nothing";
}

TEST(LabelAlignment, PutsTheSelectedLabelsAtTheNextPress) {
    struct Case {
        void (*command)(Editor&);
        const char* box;
        std::vector<Single> left, top;
    };
    const Single wide = LabelledBench::Wide;
    const Case cases[] = {
        {mnuEditTextAlignLeft_Click, "Please click a left alignment point.", {2.1f, 2.1f}, {1, 2}},
        {mnuEditTextAlignRight_Click,
         "Please click a right alignment point.",
         {2.1f - wide, 2.1f - 2 * wide},
         {1, 2}},
        {mnuEditTextAlignTop_Click, "Please click a top alignment point.", {1, 3}, {6.3f, 6.3f}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.box);
        LabelledBench bench;
        bench.click(0);
        bench.click(1);
        c.command(bench.editor);
        EXPECT_EQ(bench.boxes().back(), c.box);
        bench.play("move 2.1 6.3; press 2.1 6.3; release");
        EXPECT_THAT(bench.left(), ElementsAre(c.left[0], c.left[1], 5));
        EXPECT_THAT(bench.top(), ElementsAre(c.top[0], c.top[1], 3));
        EXPECT_EQ(bench.snapshots, 1);
        EXPECT_FALSE(bench.editor.gesture.BandArmed) << "the press meant nothing else";
        bench.play("press 8 8; release");
        EXPECT_EQ(bench.left()[0], c.left[0]) << "one press only";
    }
}

TEST_F(LabelEventsTest, LabelAlignmentIsGivenUpByEscape) {
    click(0);
    mnuEditTextAlignLeft_Click(editor);
    play("key 27 0; press 8 8; release");
    EXPECT_EQ(left()[0], 1);
    EXPECT_EQ(snapshots, 0);
}

TEST_F(LabelEventsTest, CaptionOnlyEditsTheOneSelectedLabelInPlaceAndEnterEndsIt) {
    const auto type = [&](const char* text) {
        editor.form.txtEdit.Text = text;
        txtEdit_Change(editor);
    };
    mnuEditTextCaption_Click(editor);
    EXPECT_FALSE(editor.form.picText.Visible);
    click(1);
    mnuEditTextCaption_Click(editor);
    EXPECT_TRUE(editor.form.picText.Visible);
    EXPECT_EQ(editor.form.txtEdit.Text, "BB");
    EXPECT_EQ(editor.form.txtEdit.SelectAllRequests, 1);
    EXPECT_EQ(editor.form.FocusRequest, Focus::TextEdit);
    txtEdit_GotFocus(editor);
    type("BBBB");
    EXPECT_FLOAT_EQ(editor.form.lbl[1].Left, 3 - Wide) << "about its centre";
    EXPECT_TRUE(labels()[1].starts_with("BB|")) << "until it is kept";
    EXPECT_EQ(editor.form.lbl[1].ForeColor, editor.SelectionColor);
    txtEdit_EnterPressed(editor);
    EXPECT_TRUE(labels()[1].starts_with("BBBB|"));
    EXPECT_EQ(snapshots, 1);
    EXPECT_FALSE(editor.form.picText.Visible);
    EXPECT_THAT(shownColors(), ElementsAre(100, 101, 102));
    EXPECT_EQ(editor.SelectedCount, 0);

    // A drag of the label ends the edit first, as a step of its own.
    click(0);
    mnuEditTextCaption_Click(editor);
    type("Q");
    drag(0, 1, 0);
    EXPECT_TRUE(labels()[0].starts_with("Q|2|"));
    EXPECT_EQ(snapshots, 3);
    EXPECT_FALSE(editor.form.picText.Visible);
}

TEST_F(LabelEventsTest, TextOptionsAreCheckedAndTakeEffect) {
    drawing.AttachLabels = true;
    mnuOptionAddSpace_Click(editor);
    mnuOptAutoIncrement_Click(editor);
    mnuOptionLabelColor_Click(editor);
    EXPECT_TRUE(checked(Menu::mnuOptionAddSpace) && checked(Menu::mnuOptAutoIncrement) &&
                checked(Menu::mnuOptionLabelColor));
    editor.CurrentColor = Red;
    play("tool Fuse; click 1 3");
    EXPECT_EQ(drawing.labels.row(3).text, "FU ");
    EXPECT_EQ(drawing.labels.row(3).color, Red);
    mnuOptionAddSpace_Click(editor);
    EXPECT_FALSE(checked(Menu::mnuOptionAddSpace) || editor.AddSpace);
}

TEST_F(LabelEventsTest, SmallFontIsGivenToAllLabelsAndToNewOnesInOneStep) {
    mnuOptionSmallerFont_Click(editor);
    EXPECT_THAT(drawing.labels.LabelFontSize, ElementsAre(7, 7, 7));
    EXPECT_EQ(labels()[2], "CCC|5|3|102|Arial|7|False|False");
    EXPECT_EQ(editor.form.lbl[2].Font.size, 7);
    EXPECT_EQ(drawing.DefaultFontSize, 7);
    EXPECT_TRUE(drawing.DrawingChanged);
    mnuOptionSmallerFont_Click(editor);
    EXPECT_EQ(snapshots, 1) << "nothing was left to change";
}

}  // namespace
}  // namespace ladrix::test
