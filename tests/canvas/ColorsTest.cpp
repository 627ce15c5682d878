// Colour, width and figures given to a selection: what each kind of device takes, and that each is
// one step of the history.
#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/labels/LabelCommands.h"
#include "canvas/tools/Colors.h"
#include "canvas/tools/LineWidth.h"

#include "Bench.h"
#include "canvas/gestures/Selection.h"
#include "canvas/history/Undo.h"
#include "canvas/tools/RadiusFields.h"

namespace ladrix::test {
namespace {

// One device of each kind, all selected but the last; and two labels, the first selected.
struct RestyleBench : Bench {
    RestyleBench() {
        load(line("InsertSavedLine|1|1|2|1|0|0") + line("InsertSavedSquare|1|2|2|3|0|3") +
                 line("InsertCircle|3|1|0.25|0||1") + line("InsertSolidCircle|4|1|0.25|0||1") +
                 line("InsertSemiCircle|5|1|0.25|1|0|") + line("InsertArc|6|1|0.25|1|0||1|2|1") +
                 line("InsertLamp|7|1|0||1|1|0|False") + line("InsertCircle|3|3|0.5|0||1"),
             line("a|5|5|7|Arial|8|False|False") + line("b|6|6|7|Arial|8|False|False"));
        drawing.TakeUndoSnapshot = [this] { TakeUndoSnapshot(editor); };
        ClearHistory(editor);
        drawing.devices.DeviceSelected = {1, 1, 1, 1, 1, 1, 1, 0};
        drawing.labels.LabelSelected = {1, 0};
        RecountSelection(editor);
        canvas.persistentCls = 0;
        start = text();
    }
    std::string text() const { return drawing.DeviceString + drawing.LabelString; }
    void expectOneStep() {
        const std::string after = text();
        EXPECT_NE(after, start);
        EXPECT_TRUE(drawing.DrawingChanged);
        EXPECT_EQ(editor.UndoTop, 1);
        EXPECT_EQ(canvas.persistentCls, 1) << "one redraw";
        mnuEditUndo_Click(editor);
        EXPECT_EQ(text(), start);
        EXPECT_FALSE(editor.form.picRadius.Visible) << "its figures were of the selection";
        mnuEditRedo_Click(editor);
        EXPECT_EQ(text(), after);
    }
    std::string start;
};

struct ColorsTest : testing::Test, RestyleBench {};

TEST(Colour, GoesToTheSelectedDevicesAndToLabelsWhenTheyTakeColour) {
    for (const bool labelsToo : {false, true}) {
        RestyleBench bench;
        if (labelsToo) mnuOptionLabelColor_Click(bench.editor);
        bench.editor.form.lblColor = {Red, Blue};
        cmdColors_Click(bench.editor);
        EXPECT_TRUE(bench.editor.form.picColors.Visible);
        lblColor_Click(bench.editor, 1);
        EXPECT_EQ(bench.editor.CurrentColor, Blue);
        EXPECT_EQ(bench.editor.form.picSelectedColor.BackColor, Blue);
        EXPECT_FALSE(bench.editor.form.picColors.Visible);
        EXPECT_EQ(bench.editor.SelectedCount, 0) << "the editor is reset";
        EXPECT_EQ(bench.editor.SelectionColor, Magenta);
        const auto& colors = bench.drawing.devices.DeviceColor;
        EXPECT_THAT(colors, ElementsAre(Blue, Blue, Blue, Blue, Blue, Blue, Blue, Black));
        EXPECT_THAT(bench.drawing.labels.LabelColor, ElementsAre(labelsToo ? Blue : 7, 7));
        bench.expectOneStep();
    }
}

TEST_F(ColorsTest, ColourWithoutASelectionIsThatOfNewItemsOnly) {
    ResetEditor(editor);
    play("key 82 6");  // Ctrl+Alt+R
    lblColor_Click(editor, 1000);
    EXPECT_EQ(editor.CurrentColor, Red);
    EXPECT_EQ(text(), start);
    EXPECT_EQ(editor.UndoTop, 0);
}

TEST(SelectionColour, IsTheNextColourChosenUnlessAResetComesFirst) {
    for (const bool reset : {false, true}) {
        Bench bench;
        mnuOptChangeSelectionColor_Click(bench.editor);
        EXPECT_TRUE(bench.editor.form.picColors.Visible);
        if (reset) bench.play("key 27 0");
        bench.editor.form.picSelectedColor.BackColor = Blue;
        picSelectedColor_Click(bench.editor);
        bench.play("key 82 6");
        EXPECT_EQ(bench.editor.SelectionColor, reset ? Magenta : Blue) << "once only";
    }
}

TEST(Width, ALineFollowsItsButtonAllElseOnlyWithThickSymbols) {
    for (const bool thickDevices : {false, true}) {
        RestyleBench bench;
        bench.editor.symbols.ThickDevices = thickDevices;
        cmdDrawWidth_Click(bench.editor, 0);
        const std::string_view other = thickDevices ? "DrawWidth=2" : "";
        const auto& tags = bench.drawing.devices.DeviceWidthTag;
        EXPECT_THAT(tags, ElementsAre("DrawWidth=2", other, other, other, other, other, other, ""));
        EXPECT_EQ(bench.editor.form.cmdDrawWidth[0].BackColor, Cyan);
        EXPECT_EQ(bench.editor.form.cmdDrawWidth[1].BackColor, ButtonFace);
        bench.expectOneStep();
        mnuEditSelectAll_Click(bench.editor);
        cmdDrawWidth_Click(bench.editor, 1);
        EXPECT_THAT(tags, testing::Each(""));
        ResetEditor(bench.editor);
        cmdDrawWidth_Click(bench.editor, 0);
        EXPECT_EQ(bench.editor.UndoTop, 2) << "with nothing selected there is no step";
    }
}

TEST(ApplyRadius, GoesToSelectedCirclesAndArcsTheAnglesToArcs) {
    struct Case {
        const char* typed;
        Single circle, arc;
        const char* shown;
    };
    for (const Case& c : {Case{"0,75", 0.75f, 0.75f, "0.75"}, {".,", 0.0375f, 0.125f, "0.125"}}) {
        RestyleBench bench;
        FormLX& form = bench.editor.form;
        form.picRadius.Visible = true;
        form.txtRadius.Text = c.typed;
        form.txtCircleStart.Text = "90";
        form.txtCircleEnd.Text = "no number";
        bench.editor.ArcEndAngle = 4;
        txtCircleStart_Change(bench.editor);
        txtCircleEnd_Change(bench.editor);
        cmdCircle_Click(bench.editor);
        const DeviceTable& devices = bench.drawing.devices;
        EXPECT_THAT(devices.DeviceRadius,
                    ElementsAre(0, 0, c.circle, c.circle, c.arc, c.arc, 0, 0.5f));
        EXPECT_FLOAT_EQ(devices.DeviceStartAngle[5], 1.570796f);
        EXPECT_EQ(devices.DeviceEndAngle[5], 4);
        EXPECT_EQ(devices.DeviceStartAngle[2], 0);
        EXPECT_EQ(form.txtRadius.Text, c.shown) << "of the last one";
        EXPECT_EQ(form.FocusRequest, Focus::Canvas);
        EXPECT_EQ(bench.editor.SelectedCount, 8) << "the selection stays for the next try";
        bench.expectOneStep();
    }
}

TEST_F(ColorsTest, ApplyRadiusWithoutASelectionIsForNewCircles) {
    ResetEditor(editor);
    editor.form.txtRadius.Text = "2";
    cmdCircle_Click(editor);
    EXPECT_EQ(editor.UndoTop, 0);
    EXPECT_EQ(editor.CircleRadius, 2);
    txtCircleStart_KeyDown(editor, 13);
    EXPECT_EQ(editor.form.FocusRequest, Focus::CircleEnd) << "Enter leads on";
}

}  // namespace
}  // namespace ladrix::test
