// Picks by line, grip, band and picture, Select All, delete, and what follows the count.
#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/PictureEvents.h"
#include "canvas/gestures/Selection.h"

#include "Bench.h"
#include "canvas/gestures/Pointer.h"
#include "document/Records.h"

namespace ladrix::test {
namespace {

struct SelectionBench : Bench {
    // A person's click on the grip that the pointer has brought up.
    void clickGrip(const char* move) {
        play(move);
        ASSERT_TRUE(editor.form.pointer.picGrip.Visible) << move;
        picGrip_Click(editor);
    }
    std::vector<Short> marks() const { return drawing.devices.DeviceSelected; }
};

struct SelectionTest : testing::Test, SelectionBench {};

const std::string Vertical = line("InsertSavedLine|2|1|2|4|255|0");
const std::string Horizontal = line("InsertSavedLine|4|3|1|3|0|0");  // from right to left
const std::string Diagonal = line("InsertSavedLine|5|5|3|7|0|0");

TEST(LinePick, ReachesASixteenthOfAnInchOnTheScreenFromALineOnAnAxis) {
    struct Case {
        const std::string& line;
        Single x, y, zoom;
        bool hit;
    };
    const Case cases[] = {
        {Vertical, 2.0625f, 2, 1, true},
        {Vertical, 2.07f, 2, 1, false},
        {Vertical, 1.9375f, 1, 1, true},
        {Vertical, 2.05f, 4.01f, 1, false},
        {Vertical, 2.04f, 2, 2, false},
        {Vertical, 2.12f, 2, 0.5f, true},
        {Vertical, 2, 2, 1, false},  // both passes
        {Horizontal, 2, 3.0625f, 1, true},
        {Horizontal, 2, 2.93f, 1, false},
        {Horizontal, 0.99f, 3.01f, 1, false},
        {Horizontal, 4, 3.01f, 1, true},
        {Diagonal, 3, 5, 1, true},  // the far corner
        {Diagonal, 4.9f, 6.9f, 1, true},
        {Diagonal, 2.99f, 6, 1, false},
        {Diagonal, 4, 7.01f, 1, false},
    };
    for (const Case& c : cases) {
        SelectionBench bench;
        bench.load(c.line);
        bench.editor.ZoomFactor = c.zoom;
        picLX_MouseDown(bench.editor, LeftButton, 0, c.x, c.y);
        EXPECT_EQ(bench.marks()[0] != 0, c.hit) << c.x << ", " << c.y << " at " << c.zoom;
    }
}

TEST_F(SelectionTest, LinePickTogglesAndPaintsOnlyTheLinesPlace) {
    load(Vertical + Horizontal + line("InsertGround|2.03|2|0||1|1|0|False"));
    const std::string records = drawing.DeviceString;
    play("press 2.03 2; release");
    EXPECT_THAT(marks(), ElementsAre(1, 0, 0)) << "a symbol is picked by its grip alone";
    ASSERT_EQ(canvas.persistent.size(), 1u);
    EXPECT_EQ(canvas.persistent[0].color, editor.SelectionColor);
    EXPECT_EQ(message(), "1 device has been selected for Move, Copy or Delete.");
    play("press 2.5 3.01; release");
    EXPECT_EQ(message(), "2 devices have been selected for Move, Copy or Delete.");
    play("press 2.03 2; release");
    EXPECT_THAT(marks(), ElementsAre(0, 1, 0));
    ASSERT_GT(canvas.persistent.size(), 3u);
    EXPECT_EQ(canvas.persistent[2].color, 255) << "back to its own colour";
    EXPECT_EQ(canvas.persistent[3].color, editor.SelectionColor) << "what crosses it lies above";
    ASSERT_THAT(canvas.repainted, SizeIs(1));
    EXPECT_EQ(canvas.repainted[0].left, 2);
    EXPECT_EQ(canvas.repainted[0].bottom, 4);
    EXPECT_EQ(canvas.persistentCls, 0);
    EXPECT_EQ(drawing.DeviceString, records);
    EXPECT_FALSE(drawing.NoRecord);
    EXPECT_EQ(snapshots, 0);
}

TEST_F(SelectionTest, GripsRightButtonOpensTheEditMenu) {
    load(Vertical);
    play("press 2.03 2; release");
    editor.form.menu[Menu::mnuEditCopy].Enabled = false;
    picGrip_MouseDown(editor, RightButton);
    EXPECT_TRUE(enabled(Menu::mnuEditCopy));
    EXPECT_THAT(machine.dialogs.popUps, ElementsAre("mnuEdit"));
}

TEST_F(SelectionTest, LinePickNeedsAnIdlePointerAndAHitToChangeAnything) {
    load(Vertical);
    editor.form.lblMessage.Caption = "as it was";
    play("press 6 6; release");
    EXPECT_EQ(message(), "as it was");
    play("tool Ground; click 2.03 2; key 27 0; right 2.03 2; release");
    EXPECT_EQ(marks()[0], 0);
}

TEST_F(SelectionTest, GripPickTogglesAllDevicesUnderTheGripWithTheirOwnScale) {
    load(line("InsertLamp|2|2|0||2|2|0|False") + line("InsertGround|2.03|2|0||1|1|0|False") +
         line("InsertSavedLine|2|2.06|5|5|0|0"));
    clickGrip("move 1.99 2");
    EXPECT_THAT(marks(), ElementsAre(1, 1, 0));
    EXPECT_FALSE(editor.form.pointer.picGrip.Visible);
    EXPECT_EQ(editor.form.FocusRequest, Focus::Canvas);
    EXPECT_EQ(editor.SelectedDeviceCount, 2);
    EXPECT_EQ(editor.form.lblSelected.Caption, "2 items selected");
    EXPECT_EQ(canvas.persistentCls, 0);
    ASSERT_FALSE(canvas.persistent.empty());
    EXPECT_FLOAT_EQ(canvas.persistent[0].x1, 2.5f) << "the lamp at twice its size";
    clickGrip("move 2 2");
    EXPECT_THAT(marks(), ElementsAre(0, 0, 0));
    EXPECT_EQ(editor.form.lblSelected.Caption, "");
}

TEST_F(SelectionTest, PanelShowsTheFiguresWhileOneKindIsSelected) {
    load(line("InsertCircle|1|1|0.25|0|0|1") + line("InsertCircle|2|1|0.5|0|0|1") +
         line("InsertArc|3|1|0.75|1|0|0|1.570796|4.712389|1") +
         line("InsertLamp|4|1|0||1|1|0|False"));
    const FormLX& form = editor.form;
    clickGrip("move 1 1");
    EXPECT_TRUE(form.picRadius.Visible && !form.RadiusPanelWide);
    EXPECT_EQ(form.txtRadius.Text, "0.25");
    clickGrip("move 2 1");
    EXPECT_EQ(form.txtRadius.Text, "0.5");
    EXPECT_EQ(editor.CircleRadius, 0.5f);
    clickGrip("move 2.01 1");
    EXPECT_EQ(form.txtRadius.Text, "0.25") << "the one that is left";
    clickGrip("move 4 1");
    EXPECT_FALSE(form.picRadius.Visible) << "of two kinds";
    play("key 27 0");
    clickGrip("move 3 1");
    EXPECT_TRUE(form.picRadius.Visible && form.RadiusPanelWide);
    EXPECT_EQ(form.txtRadius.Text + ' ' + form.txtCircleStart.Text + ' ' + form.txtCircleEnd.Text,
              "0.75 90.0 270.0");
    EXPECT_FLOAT_EQ(editor.ArcEndAngle, 4.712389f);
    clickGrip("move 3.01 1");
    EXPECT_FALSE(form.picRadius.Visible);
}

TEST_F(SelectionTest, BandPickTogglesWhatLiesStrictlyInside) {
    load(
        line("InsertLamp|2|2|0||1|1|0|False") + line("InsertSavedSquare|3|3|9|9|0|0") +
            line("InsertLamp|4|2|0||1|1|0|False") + line("InsertLamp|1|2|0||0|0|0|False"),
        line("inside|1.5|1.5|7|Arial|8|False|False") + line("outside|1.5|4|7|Arial|8|False|False"));
    addPicture({1.5f, 1.5f, 2, 2, "in.png", "", false});
    addPicture({1.5f, 1.5f, 2.5f, 2, "across.png", "", false});
    drawing.devices.DeviceSelected[0] = 1;
    canvas.persistent.clear();
    play("move 1 1; press 1 1; drag 4 4; release");
    EXPECT_THAT(marks(), ElementsAre(0, 1, 0, 0)) << "one in the band was selected already";
    EXPECT_THAT(drawing.labels.LabelSelected, ElementsAre(1, 0));
    EXPECT_EQ(editor.form.lbl[0].ForeColor, editor.SelectionColor);
    EXPECT_EQ(editor.form.lbl[1].ForeColor, 7);
    EXPECT_TRUE(drawing.PictureTable[0].Selected);
    EXPECT_FALSE(drawing.PictureTable[1].Selected);
    EXPECT_EQ(editor.SelectedCount, 3);
    EXPECT_EQ(canvas.persistentCls, 0);
    EXPECT_THAT(canvas.repainted, SizeIs(1)) << "the lamp's place";
    EXPECT_EQ(canvas.persistent.back().color, editor.SelectionColor) << "the square over itself";

    play("press 4 4; drag 1 1; release");
    EXPECT_EQ(editor.SelectedCount, 3) << "towards the upper left nothing is picked";
}

TEST_F(SelectionTest, RecountLetsMenusScaleGuideAndResetFollowTheCount) {
    load(Vertical, line("a|5|5|0|Arial|8|False|False") + line("b|6|6|0|Arial|8|False|False"));
    struct Case {
        Short device, first, second;
        bool edits, text, aligns;
        Short lastLabel;
    };
    for (const Case& c : {Case{0, 0, 0, false, false, false, -1},
                          {1, 0, 0, true, false, false, -1},
                          {0, 0, 1, true, true, false, 1},
                          {1, 1, 1, true, true, true, -1},
                          {0, 0, 0, false, false, false, -1}}) {
        const int count = c.device + c.first + c.second;
        SCOPED_TRACE(count);
        drawing.devices.DeviceSelected[0] = c.device;
        drawing.labels.LabelSelected = {c.first, c.second};
        RecountSelection(editor);
        EXPECT_EQ(editor.SelectedCount, count);
        for (const Menu entry : {Menu::mnuEditCopy, Menu::mnuEditMove, Menu::mnuEditDelete})
            EXPECT_EQ(enabled(entry), c.edits);
        EXPECT_EQ(enabled(Menu::mnuEditText), c.text);
        EXPECT_EQ(enabled(Menu::mnuEditTextAlignTop), c.aligns);
        EXPECT_EQ(editor.form.cmbScale.Enabled, !c.edits);
        EXPECT_EQ(editor.form.cmdReset.BackColor == Cyan, c.edits);
        EXPECT_EQ(editor.LastSelectedLabel, c.lastLabel);
    }
    EXPECT_EQ(message(), "Task completed. Drawing reset and ready.");
}

TEST_F(SelectionTest, SelectAllMarksEverythingUntilAReset) {
    load(Vertical + Diagonal, line("a|5|5|7|Arial|8|False|False"));
    addPicture({1, 1, 2, 2, "a.png", "", false});
    mnuEditSelectAll_Click(editor);
    EXPECT_EQ(editor.SelectedCount, 4);
    EXPECT_EQ(canvas.persistentCls, 1) << "one redraw";
    ASSERT_EQ(canvas.persistent.size(), 3u);
    for (const Long color :
         {canvas.persistent[0].color, canvas.persistent[1].color, editor.form.lbl[0].ForeColor})
        EXPECT_EQ(color, editor.SelectionColor);
    play("key 27 0");
    EXPECT_THAT(marks(), ElementsAre(0, 0));
    EXPECT_EQ(editor.form.lbl[0].ForeColor, 7);
    EXPECT_FALSE(drawing.PictureTable[0].Selected);
    EXPECT_EQ(editor.form.lblSelected.Caption, "");
    RecountSelection(editor);
    EXPECT_EQ(editor.SelectedCount, 0);
}

TEST_F(SelectionTest, DeleteTakesTheSelectedOutAndKeepsTheOrderOfTheRest) {
    load(line("InsertLamp|1|1|0||1|1|0|False") + Vertical + line("InsertCircle|3|1|0.5|0|0|1") +
             Diagonal,
         line("a|5|5|0|Arial|8|False|False") + line("b|6|6|0|Arial|8|False|False"));
    addPicture({1, 1, 2, 2, "a.png", "", true});
    addPicture({4, 4, 2, 2, "b.png", "", false});
    const auto kept = editor.img[1];
    drawing.devices.DeviceSelected = {1, 0, 1, 0};
    drawing.labels.LabelSelected = {1, 0};
    RecountSelection(editor);
    mnuEditDelete_Click(editor);
    EXPECT_THAT(devices(),
                ElementsAre("InsertSavedLine|2|1|2|4|255|0", "InsertSavedLine|5|5|3|7|0|0"));
    EXPECT_THAT(labels(), ElementsAre("b|6|6|0|Arial|8|False|False"));
    EXPECT_EQ(drawing.PictureString, line("b.png|4|4|2|2"));
    EXPECT_THAT(editor.img, ElementsAre(kept));
    EXPECT_EQ(editor.form.lbl.size(), 1u);
    EXPECT_EQ(message(), "Selected Items Deleted");
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_EQ(snapshots, 1);

    mnuEditSelectAll_Click(editor);
    mnuEditDelete_Click(editor);
    EXPECT_EQ(drawing.DeviceString + drawing.LabelString + drawing.PictureString, "");
    mnuEditDelete_Click(editor);
    EXPECT_THAT(boxes(), ElementsAre("Nothing selected to delete."));
    EXPECT_EQ(snapshots, 2);
}

TEST_F(SelectionTest, PicturePickTakesThePressAtFullSizeFromAnIdleEditor) {
    addPicture({1, 1, 2, 1, "a.png", "", false});
    addPicture({2, 1, 2, 1, "b.png", "", false});
    EXPECT_EQ(pictureAt(editor, 2.5f, 1), 1) << "the uppermost";
    EXPECT_EQ(pictureAt(editor, 1.5f, 2), 0);
    EXPECT_EQ(pictureAt(editor, 1.5f, 2.01f), std::nullopt);
    editor.ZoomFactor = 1.25f;
    EXPECT_EQ(pictureAt(editor, 1.5f, 1.5f), std::nullopt);
    editor.ZoomFactor = 1;
    for (bool* busy :
         {&editor.gesture.CopyArmed, &editor.gesture.ZoomInPending, &editor.gesture.ZoomOutPending,
          &editor.gesture.TextAlignPending, &editor.SimulationMode}) {
        *busy = true;
        EXPECT_EQ(pictureAt(editor, 1.5f, 1.5f), std::nullopt);
        *busy = false;
    }
    play("tool Ground");
    EXPECT_EQ(pictureAt(editor, 1.5f, 1.5f), std::nullopt) << "a tool places";
}

TEST_F(SelectionTest, PicturePickAClickTogglesADragMovesAndResets) {
    addPicture({1, 1, 2, 1, "a.png", "", false});
    img_MouseDown(editor, 0, LeftButton, 1.5f, 1.5f);
    img_MouseMove(editor, LeftButton, 1.5f, 1.5f);
    img_MouseUp(editor);
    EXPECT_TRUE(drawing.PictureTable[0].Selected);
    EXPECT_EQ(editor.SelectedPicture, 0);
    EXPECT_EQ(editor.SelectedCount, 1);
    EXPECT_EQ(snapshots, 0);

    canvas.persistentCls = 0;
    img_MouseDown(editor, 0, LeftButton, 1.5f, 1.5f);
    img_MouseMove(editor, LeftButton, 2, 2.25f);
    img_MouseMove(editor, LeftButton, 2.5f, 2.25f);
    EXPECT_EQ(canvas.persistentCls, 0) << "a drag redraws nothing";
    EXPECT_THAT(canvas.temporary, testing::SizeIs(2));
    drawing.DrawingChanged = false;
    img_MouseUp(editor);
    EXPECT_EQ(drawing.PictureString, line("a.png|2|1.75|2|1"));
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_FALSE(drawing.DrawingChanged);
    EXPECT_EQ(snapshots, 0) << "the place alone is stored";
    EXPECT_THAT(canvas.temporary, IsEmpty());
    img_MouseMove(editor, LeftButton, 4, 4);
    EXPECT_EQ(drawing.PictureTable[0].Left, 2) << "the drag is over";

    img_MouseDown(editor, 0, LeftButton, 2.5f, 2);
    img_MouseMove(editor, LeftButton, 5, 5);
    play("key 27 0");
    img_MouseUp(editor);
    EXPECT_EQ(drawing.PictureTable[0].Left, 2) << "ESC gives the drag up";
}

}  // namespace
}  // namespace ladrix::test
