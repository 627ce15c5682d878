// Labels under the pointer, and the commands on those that are selected.
#include "canvas/LabelEvents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "canvas/CopyMove.h"
#include "canvas/LabelCommands.h"
#include "canvas/Labels.h"
#include "canvas/Pointer.h"
#include "canvas/Redraw.h"
#include "canvas/TextProperties.h"
#include "canvas/Undo.h"
#include "canvas/Zoom.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct LabelledBench : Bench {
    // A at (1, 1), BB at (3, 2), CCC at (5, 3), each in Arial 10.
    LabelledBench() {
        for (Short i = 0; i < 3; ++i) {
            const auto n = static_cast<Single>(i);
            RecordLabel(drawing, machine.platform,
                        {std::string(static_cast<std::size_t>(i) + 1, static_cast<char>('A' + i)),
                         1 + 2 * n, 1 + n, 100 + i, "Arial", 10, false, false});
        }
        RedrawDrawing(editor);
        drawing.DrawingChanged = false;
        snapshots = 0;
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
    bool enabled(Menu entry) const { return editor.form.menu[entry].Enabled; }
    const std::vector<Short>& marks() const { return drawing.labels.LabelSelected; }
    const std::vector<Single>& left() const { return drawing.labels.LabelX; }
    const std::vector<Single>& top() const { return drawing.labels.LabelY; }
};

TEST(LabelUnderThePointer, IsWhereItsTextIsPaintedAtEveryZoom) {
    for (const auto& [step, times] :
         {std::pair{ZoomStep::In, 0}, std::pair{ZoomStep::In, 12}, std::pair{ZoomStep::Out, 5}}) {
        LabelledBench bench;
        for (int i = 0; i < times; ++i)
            zoomByWheel(bench.editor, step, 3, 2);
        const auto at = [&](Single x, Single y) {
            return labelAt(bench.editor, x, y).value_or(-1);
        };
        const auto wide = bench.Wide, high = bench.High;
        EXPECT_EQ(at(3, 2), 1) << times;
        EXPECT_EQ(at(3 + 1.9f * wide, 2 + 0.95f * high), 1) << times;
        EXPECT_EQ(at(3 + 2.2f * wide, 2.05f), -1) << times;
        EXPECT_EQ(at(3.05f, 2 + 1.1f * high), -1) << times;
        EXPECT_EQ(at(2.99f, 2.05f), -1) << times;
        bench.drawing.labels.LabelX[2] = 3;
        bench.drawing.labels.LabelY[2] = 2;
        RedrawDrawing(bench.editor);
        EXPECT_EQ(at(3, 2), 2) << "the uppermost";
    }
}

TEST(LabelUnderThePointer, LeavesThePressToTheCanvasWhileThatIsAskedForAPoint) {
    LabelledBench bench;
    Editor& editor = bench.editor;
    for (bool Editor::*flag :
         {&Editor::SimulationMode, &Editor::ZoomInPending, &Editor::ZoomOutPending,
          &Editor::CopyArmed, &Editor::TextAlignPending}) {
        editor.*flag = true;
        EXPECT_EQ(labelAt(editor, 1, 1), std::nullopt);
        editor.*flag = false;
    }
    EXPECT_EQ(labelAt(editor, 1, 1), 0);
    for (bool Editor::*flag :
         {&Editor::SimulationMode, &Editor::ZoomInPending, &Editor::ZoomOutPending}) {
        editor.*flag = true;
        bench.click(0);
        lbl_MouseDown(editor, 0, RightButton, 1, 1);
        editor.*flag = false;
    }
    EXPECT_THAT(bench.marks(), ElementsAre(0, 0, 0));
    EXPECT_THAT(bench.machine.dialogs.popUps, IsEmpty());
}

TEST(LabelClick, TogglesAndCountsAndIsNoStep) {
    LabelledBench bench;
    const Long pink = bench.editor.SelectionColor;
    bench.click(1);
    EXPECT_THAT(bench.marks(), ElementsAre(0, 1, 0));
    EXPECT_THAT(bench.shownColors(), ElementsAre(100, pink, 102));
    EXPECT_EQ(bench.editor.LastSelectedLabel, 1);
    EXPECT_EQ(bench.message(), "1 device has been selected for Move, Copy or Delete.");
    EXPECT_TRUE(bench.enabled(Menu::mnuEditText));
    EXPECT_TRUE(bench.enabled(Menu::mnuEditTextCaption));
    EXPECT_FALSE(bench.enabled(Menu::mnuEditTextAlignTop));
    // A hand trembles, less so where the page is large.
    bench.drag(0, 0.02f, -0.02f);
    EXPECT_THAT(bench.marks(), ElementsAre(1, 1, 0));
    EXPECT_THAT(bench.shownColors(), ElementsAre(pink, pink, 102));
    EXPECT_FALSE(bench.enabled(Menu::mnuEditTextCaption)) << "of which one?";
    EXPECT_TRUE(bench.enabled(Menu::mnuEditTextAlignTop));
    bench.click(0);
    bench.click(1);
    EXPECT_THAT(bench.marks(), ElementsAre(0, 0, 0));
    EXPECT_THAT(bench.shownColors(), ElementsAre(100, 101, 102));
    EXPECT_FALSE(bench.enabled(Menu::mnuEditText));
    EXPECT_EQ(bench.snapshots, 0);
    EXPECT_FALSE(bench.drawing.DrawingChanged);
}

TEST(LabelDrag, MovesAllThatIsSelectedByOneOffsetAndEndsTheSelection) {
    LabelledBench bench;
    bench.click(0);
    bench.click(1);
    bench.drag(0, 1.5f, -0.25f);
    EXPECT_THAT(bench.left(), ElementsAre(2.5f, 4.5f, 5));
    EXPECT_THAT(bench.top(), ElementsAre(0.75f, 1.75f, 3));
    EXPECT_EQ(bench.labels()[1], "BB|4.5|1.75|101|Arial|10|False|False");
    EXPECT_THAT(bench.marks(), ElementsAre(0, 0, 0));
    EXPECT_THAT(bench.shownColors(), ElementsAre(100, 101, 102));
    EXPECT_EQ(bench.editor.SelectedCount, 0);
    EXPECT_EQ(bench.snapshots, 1);
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    // One that is not selected comes along with the hand that holds it.
    bench.click(1);
    bench.drag(2, 0, 1);
    EXPECT_THAT(bench.top(), ElementsAre(0.75f, 2.75f, 4));
    EXPECT_EQ(bench.snapshots, 2);
    // Zoomed in, a small way on the page is a long one for the hand.
    for (int i = 0; i < 12; ++i)
        zoomByWheel(bench.editor, ZoomStep::In, 3, 2);
    bench.drag(2, 0, 0.02f);
    EXPECT_FLOAT_EQ(bench.top()[2], 4.02f);
}

TEST(LabelDrag, IsDroppedByEscapeAndByUndo) {
    const auto begin = [](LabelledBench& bench) {
        bench.press(1, 4, 4);
        lbl_MouseMove(bench.editor, LeftButton, 6, 6);
        EXPECT_EQ(bench.editor.form.lbl[1].Left, 5) << "the label follows";
        EXPECT_EQ(bench.left()[1], 3) << "its row waits for the release";
    };
    LabelledBench bench;
    begin(bench);
    bench.play("key 27 0");
    lbl_MouseMove(bench.editor, LeftButton, 7, 7);
    bench.release(1);
    EXPECT_EQ(bench.editor.form.lbl[1].Left, 3);
    EXPECT_THAT(bench.marks(), ElementsAre(0, 0, 0));
    begin(bench);
    bench.drawing.labels.clear();
    RedrawDrawing(bench.editor);
    bench.release(1);
    EXPECT_EQ(bench.snapshots, 0);
}

TEST(LabelMenu, ComesWithTheRightButtonAndTheDoubleClickForASelectedLabel) {
    LabelledBench bench;
    bench.click(0);
    lbl_MouseDown(bench.editor, 2, RightButton, 5, 3);
    EXPECT_THAT(bench.marks(), ElementsAre(1, 0, 1));
    EXPECT_EQ(bench.editor.LastSelectedLabel, 2);
    EXPECT_THAT(bench.machine.dialogs.popUps, ElementsAre("mnuEditText"));
    bench.click(2);
    lbl_DblClick(bench.editor, 2);
    EXPECT_THAT(bench.marks(), ElementsAre(1, 0, 1)) << "whatever the first click has made of it";
    EXPECT_EQ(bench.machine.dialogs.popUps.size(), 2u);
}

TEST(LabelPress, DropsTheToolAndGivesAUserSymbolItsPoint) {
    LabelledBench bench;
    bench.play("tool Line; click 1 1; move 3 2");
    bench.click(1);
    EXPECT_EQ(bench.editor.CurrentTool, -1);
    EXPECT_EQ(bench.editor.LineStartX, NoPoint);
    EXPECT_THAT(bench.marks(), ElementsAre(0, 1, 0));

    std::vector<Single> point;
    bench.editor.SymbolPointTaken = [&](Single x, Single y, Short label) {
        point = {static_cast<Single>(label), x, y};
    };
    bench.editor.SavingUserSymbol = true;
    bench.press(2, 5.1f, 3.1f);
    bench.release(2);
    EXPECT_EQ(bench.editor.LastSelectedLabel, 2);
    EXPECT_THAT(point, IsEmpty()) << "no point is wanted yet";
    bench.editor.SymbolPointPending = true;
    bench.press(2, 5.1f, 3.1f);
    bench.release(2);
    EXPECT_THAT(point, ElementsAre(2, 5.1f, 3.1f));
    EXPECT_THAT(bench.marks(), ElementsAre(0, 1, 0)) << "the press picks nothing";
}

TEST(LabelAlignment, PutsTheSelectedLabelsAtTheNextPress) {
    struct Case {
        void (*command)(Editor&);
        const char* box;
        std::vector<Single> left, top;
    };
    const Single wide = LabelledBench::Wide;
    for (const Case& c : {Case{mnuEditTextAlignLeft_Click,
                               "Please click a left alignment point.",
                               {2.1f, 2.1f, 5},
                               {1, 2, 3}},
                          Case{mnuEditTextAlignRight_Click,
                               "Please click a right alignment point.",
                               {2.1f - wide, 2.1f - 2 * wide, 5},
                               {1, 2, 3}},
                          Case{mnuEditTextAlignTop_Click,
                               "Please click a top alignment point.",
                               {1, 3, 5},
                               {6.3f, 6.3f, 3}}}) {
        LabelledBench bench;
        bench.click(0);
        bench.click(1);
        c.command(bench.editor);
        EXPECT_EQ(bench.machine.dialogs.boxes.back().text, c.box);
        bench.play("move 2.1 6.3; press 2.1 6.3; release");
        EXPECT_EQ(bench.left(), c.left) << c.box;
        EXPECT_EQ(bench.top(), c.top) << c.box;
        EXPECT_EQ(bench.snapshots, 1) << c.box;
        EXPECT_FALSE(bench.editor.BandArmed) << "the press meant nothing else";
        bench.play("press 8 8; release");
        EXPECT_EQ(bench.left(), c.left) << "one press only";
    }
    LabelledBench given_up;
    given_up.click(0);
    mnuEditTextAlignLeft_Click(given_up.editor);
    given_up.play("key 27 0; press 8 8; release");
    EXPECT_EQ(given_up.left()[0], 1);
    EXPECT_EQ(given_up.snapshots, 0);
}

TEST(CaptionOnly, EditsTheOneSelectedLabelInPlaceAndEnterEndsIt) {
    LabelledBench bench;
    Editor& editor = bench.editor;
    mnuEditTextCaption_Click(editor);
    EXPECT_FALSE(editor.form.picText.Visible);
    bench.click(1);
    mnuEditTextCaption_Click(editor);
    EXPECT_TRUE(editor.form.picText.Visible);
    EXPECT_EQ(editor.form.txtEdit.Text, "BB");
    EXPECT_EQ(editor.form.txtEdit.SelectAllRequests, 1);
    EXPECT_EQ(editor.form.FocusRequest, Focus::TextEdit);
    txtEdit_GotFocus(editor);
    editor.form.txtEdit.Text = "BBBB";
    txtEdit_Change(editor);
    EXPECT_FLOAT_EQ(bench.left()[1], 3 - bench.Wide) << "about its centre";
    EXPECT_EQ(editor.form.lbl[1].ForeColor, editor.SelectionColor);
    txtEdit_EnterPressed(editor);
    EXPECT_EQ(bench.labels()[1].substr(0, 5), "BBBB|");
    EXPECT_EQ(bench.snapshots, 1);
    EXPECT_FALSE(editor.form.picText.Visible);
    EXPECT_THAT(bench.marks(), ElementsAre(0, 0, 0));
    EXPECT_THAT(bench.shownColors(), ElementsAre(100, 101, 102));
    EXPECT_EQ(editor.SelectedCount, 0);

    // A drag of the label ends the edit first, as a step of its own.
    bench.click(0);
    mnuEditTextCaption_Click(editor);
    editor.form.txtEdit.Text = "Q";
    txtEdit_Change(editor);
    bench.drag(0, 1, 0);
    EXPECT_EQ(bench.labels()[0].substr(0, 4), "Q|2|");
    EXPECT_EQ(bench.snapshots, 3);
    EXPECT_FALSE(editor.form.picText.Visible);
}

TEST(TextOptions, AreCheckedAndTakeEffect) {
    LabelledBench bench;
    Editor& editor = bench.editor;
    bench.drawing.AttachLabels = true;
    mnuOptionAddSpace_Click(editor);
    mnuOptAutoIncrement_Click(editor);
    mnuOptionLabelColor_Click(editor);
    for (const Menu entry :
         {Menu::mnuOptionAddSpace, Menu::mnuOptAutoIncrement, Menu::mnuOptionLabelColor})
        EXPECT_TRUE(editor.form.menu[entry].Checked);
    editor.CurrentColor = Red;
    bench.play("tool Fuse; click 1 3");
    EXPECT_EQ(bench.drawing.labels.row(3).text, "FU ");
    EXPECT_EQ(bench.drawing.labels.row(3).color, Red);
    mnuOptionAddSpace_Click(editor);
    EXPECT_FALSE(editor.form.menu[Menu::mnuOptionAddSpace].Checked);
    EXPECT_FALSE(editor.AddSpace);
}

TEST(SmallFont, IsGivenToAllLabelsAndToNewOnesInOneStep) {
    LabelledBench bench;
    mnuOptionSmallerFont_Click(bench.editor);
    EXPECT_THAT(bench.drawing.labels.LabelFontSize, ElementsAre(7, 7, 7));
    EXPECT_EQ(bench.labels()[2], "CCC|5|3|102|Arial|7|False|False");
    EXPECT_EQ(bench.editor.form.lbl[2].Font.size, 7);
    EXPECT_EQ(bench.drawing.DefaultFontSize, 7);
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    mnuOptionSmallerFont_Click(bench.editor);
    EXPECT_EQ(bench.snapshots, 1) << "nothing was left to change";
}

TEST(LabelCommands, AreOneStepEachThatGoesBackAndForthToTheByte) {
    struct Case {
        const char* name;
        void (*run)(LabelledBench&);
    };
    for (const Case& c :
         {Case{"drag", [](LabelledBench& bench) { bench.drag(1, 0.3f, 0.7f); }},
          Case{"caption",
               [](LabelledBench& bench) {
                   mnuEditTextCaption_Click(bench.editor);
                   for (const char* text : {"M", "M1", "M12"}) {
                       bench.editor.form.txtEdit.Text = text;
                       txtEdit_Change(bench.editor);
                   }
                   txtEdit_EnterPressed(bench.editor);
               }},
          Case{"alignment",
               [](LabelledBench& bench) {
                   mnuEditTextAlignRight_Click(bench.editor);
                   bench.play("press 7.3 4.4; release");
               }},
          Case{"small font",
               [](LabelledBench& bench) { mnuOptionSmallerFont_Click(bench.editor); }},
          Case{"properties", [](LabelledBench& bench) {
                   TextProperties form;
                   mnuEditTextProps_Click(form, bench.editor);
                   form.cmbFontSize.Text = "10,5";
                   SaveAndExit(form, bench.editor);
               }}}) {
        LabelledBench bench;
        ClearHistory(bench.editor);
        bench.drawing.TakeUndoSnapshot = [&] { TakeUndoSnapshot(bench.editor); };
        const std::string before = bench.drawing.LabelString;
        bench.click(1);
        c.run(bench);
        const std::string after = bench.drawing.LabelString;
        EXPECT_NE(after, before) << c.name;
        EXPECT_EQ(bench.editor.UndoTop, 1) << c.name;
        mnuEditUndo_Click(bench.editor);
        EXPECT_EQ(bench.drawing.LabelString, before) << c.name;
        mnuEditRedo_Click(bench.editor);
        RebuildLabelString(bench.drawing, bench.machine.platform);
        EXPECT_EQ(bench.drawing.LabelString, after) << c.name;
    }
}

}  // namespace
}  // namespace ladrix::test
