// Picks by line, grip, band and picture, Select All, delete, and what follows the count.
#include "canvas/Selection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "canvas/Pointer.h"
#include "canvas/Redraw.h"
#include "document/Records.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SelectionBench : Bench {
    void load(std::string_view devices, std::string_view labels = "") {
        drawing.DeviceString = devices;
        drawing.LabelString = labels;
        ParseDeviceString(drawing, machine.platform);
        ParseLabelString(drawing, machine.platform);
        RedrawDrawing(editor);
        canvas.persistent.clear();
        canvas.persistentCls = 0;
    }
    void addPicture(PictureRow row) {
        drawing.PictureTable.push_back(std::move(row));
        ++drawing.PictureCount;
        editor.img.push_back(std::make_shared<FakePicture>(10, 20));
        RebuildPictureString(drawing, machine.platform);
    }
    // A person's click on the grip that the pointer has brought up.
    void clickGrip(const char* move) {
        play(move);
        ASSERT_TRUE(editor.form.pointer.picGrip.Visible) << move;
        picGrip_Click(editor);
    }
    std::vector<Short> marks() const { return drawing.devices.DeviceSelected; }
    bool enabled(Menu entry) { return editor.form.menu[entry].Enabled; }
};

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
        {Vertical, 2.0625f, 2, 1, true},  {Vertical, 2.07f, 2, 1, false},
        {Vertical, 1.9375f, 1, 1, true},  {Vertical, 2.05f, 4.01f, 1, false},
        {Vertical, 2.04f, 2, 2, false},   {Vertical, 2.03f, 2, 2, true},
        {Vertical, 2.12f, 2, 0.5f, true}, {Horizontal, 2, 3.0625f, 1, true},
        {Horizontal, 2, 2.93f, 1, false}, {Horizontal, 0.99f, 3.01f, 1, false},
        {Horizontal, 4, 3.01f, 1, true},  {Diagonal, 3, 5, 1, true},  // the far corner
        {Diagonal, 4.9f, 6.9f, 1, true},  {Diagonal, 2.99f, 6, 1, false},
        {Diagonal, 4, 7.01f, 1, false},   {Vertical, 2, 2, 1, false},  // both passes
        {Horizontal, 2.5f, 3, 1, false},
    };
    for (const Case& c : cases) {
        SelectionBench bench;
        bench.load(c.line);
        bench.editor.ZoomFactor = c.zoom;
        picLX_MouseDown(bench.editor, LeftButton, 0, c.x, c.y);
        EXPECT_EQ(bench.marks()[0] != 0, c.hit) << c.x << ", " << c.y << " at " << c.zoom;
    }
}

TEST(LinePick, TogglesAndPaintsOnlyTheLineOverItself) {
    SelectionBench bench;
    bench.load(Vertical + Horizontal + line("InsertGround|2.03|2|0||1|1|0|False"));
    const std::string records = bench.drawing.DeviceString;
    bench.play("press 2.03 2; release");
    EXPECT_THAT(bench.marks(), ElementsAre(1, 0, 0)) << "a symbol is picked by its grip alone";
    ASSERT_EQ(bench.canvas.persistent.size(), 1u);
    EXPECT_EQ(bench.canvas.persistent[0].color, bench.editor.SelectionColor);
    EXPECT_EQ(bench.message(), "1 device has been selected for Move, Copy or Delete.");
    bench.play("press 2.5 3.01; release");
    EXPECT_EQ(bench.message(), "2 devices have been selected for Move, Copy or Delete.");
    bench.play("press 2.03 2; release");
    EXPECT_THAT(bench.marks(), ElementsAre(0, 1, 0));
    ASSERT_EQ(bench.canvas.persistent.size(), 3u);
    EXPECT_EQ(bench.canvas.persistent[2].color, 255) << "back to its own colour";
    EXPECT_EQ(bench.canvas.persistentCls, 0);
    EXPECT_EQ(bench.drawing.DeviceString, records);
    EXPECT_FALSE(bench.drawing.NoRecord);
    EXPECT_EQ(bench.snapshots, 0);
}

TEST(LinePick, NeedsAnIdlePointerAndAHitToChangeAnything) {
    SelectionBench bench;
    bench.load(Vertical);
    bench.editor.form.lblMessage.Caption = "as it was";
    bench.play("press 6 6; release");
    EXPECT_EQ(bench.message(), "as it was");
    bench.play("tool Ground; click 2.03 2; key 27 0; right 2.03 2; release");
    EXPECT_EQ(bench.marks()[0], 0);
}

TEST(GripPick, TogglesAllDevicesUnderTheGripWithTheirOwnScale) {
    SelectionBench bench;
    bench.load(line("InsertLamp|2|2|0||2|2|0|False") + line("InsertGround|2.03|2|0||1|1|0|False") +
               line("InsertSavedLine|2|2.06|5|5|0|0"));
    bench.clickGrip("move 1.99 2");
    EXPECT_THAT(bench.marks(), ElementsAre(1, 1, 0));
    EXPECT_FALSE(bench.editor.form.pointer.picGrip.Visible);
    EXPECT_EQ(bench.editor.form.FocusRequest, Focus::Canvas);
    EXPECT_EQ(bench.editor.SelectedDeviceCount, 2);
    EXPECT_EQ(bench.editor.form.lblSelected.Caption, "2 items selected");
    EXPECT_EQ(bench.canvas.persistentCls, 0);
    ASSERT_FALSE(bench.canvas.persistent.empty());
    EXPECT_FLOAT_EQ(bench.canvas.persistent[0].x1, 2.5f) << "the lamp at twice its size";
    bench.clickGrip("move 2 2");
    EXPECT_THAT(bench.marks(), ElementsAre(0, 0, 0));
    EXPECT_EQ(bench.editor.form.lblSelected.Caption, "");
}

TEST(GripPick, TheRightButtonOpensTheEditMenu) {
    SelectionBench bench;
    bench.load(Vertical);
    bench.play("press 2.03 2; release");
    bench.editor.form.menu[Menu::mnuEditCopy].Enabled = false;
    picGrip_MouseDown(bench.editor, RightButton);
    EXPECT_TRUE(bench.enabled(Menu::mnuEditCopy));
    EXPECT_THAT(bench.machine.dialogs.popUps, ElementsAre("mnuEdit"));
}

TEST(Panel, ShowsTheFiguresWhileOneKindIsSelected) {
    SelectionBench bench;
    bench.load(line("InsertCircle|1|1|0.25|0|0|1") + line("InsertCircle|2|1|0.5|0|0|1") +
               line("InsertArc|3|1|0.75|1|0|0|1.570796|4.712389|1") +
               line("InsertLamp|4|1|0||1|1|0|False"));
    const FormLX& form = bench.editor.form;
    bench.clickGrip("move 1 1");
    EXPECT_TRUE(form.picRadius.Visible);
    EXPECT_FALSE(form.RadiusPanelWide);
    EXPECT_EQ(form.txtRadius.Text, "0.25");
    bench.clickGrip("move 2 1");
    EXPECT_EQ(form.txtRadius.Text, "0.5");
    EXPECT_EQ(bench.editor.CircleRadius, 0.5f);
    bench.clickGrip("move 2.01 1");
    EXPECT_EQ(form.txtRadius.Text, "0.25") << "the one that is left";
    bench.clickGrip("move 4 1");
    EXPECT_FALSE(form.picRadius.Visible) << "of two kinds";
    bench.play("key 27 0");
    bench.clickGrip("move 3 1");
    EXPECT_TRUE(form.picRadius.Visible && form.RadiusPanelWide);
    EXPECT_EQ(form.txtRadius.Text, "0.75");
    EXPECT_EQ(form.txtCircleStart.Text, "90.0");
    EXPECT_EQ(form.txtCircleEnd.Text, "270.0");
    EXPECT_FLOAT_EQ(bench.editor.ArcEndAngle, 4.712389f);
    bench.clickGrip("move 3.01 1");
    EXPECT_FALSE(form.picRadius.Visible);
}

TEST(BandPick, TogglesWhatLiesStrictlyInside) {
    SelectionBench bench;
    bench.load(
        line("InsertLamp|2|2|0||1|1|0|False") + line("InsertSavedSquare|3|3|9|9|0|0") +
            line("InsertLamp|4|2|0||1|1|0|False") + line("InsertLamp|1|2|0||0|0|0|False"),
        line("inside|1.5|1.5|7|Arial|8|False|False") + line("outside|1.5|4|7|Arial|8|False|False"));
    bench.addPicture({1.5f, 1.5f, 2, 2, "in.png", "", false});
    bench.addPicture({1.5f, 1.5f, 2.5f, 2, "across.png", "", false});
    bench.drawing.devices.DeviceSelected[0] = 1;
    bench.canvas.persistent.clear();
    bench.play("move 1 1; press 1 1; drag 4 4; release");
    EXPECT_THAT(bench.marks(), ElementsAre(0, 1, 0, 0)) << "one in the band was selected already";
    EXPECT_THAT(bench.drawing.labels.LabelSelected, ElementsAre(1, 0));
    EXPECT_EQ(bench.editor.form.lbl[0].ForeColor, bench.editor.SelectionColor);
    EXPECT_EQ(bench.editor.form.lbl[1].ForeColor, 7);
    EXPECT_TRUE(bench.drawing.PictureTable[0].Selected);
    EXPECT_FALSE(bench.drawing.PictureTable[1].Selected);
    EXPECT_EQ(bench.editor.SelectedCount, 3);
    EXPECT_EQ(bench.canvas.persistentCls, 0);
    EXPECT_EQ(bench.canvas.persistent.size(), 8u) << "a lamp of seven parts and a square";

    bench.play("press 4 4; drag 1 1; release");
    EXPECT_EQ(bench.editor.SelectedCount, 3) << "towards the upper left nothing is picked";
}

TEST(Recount, LetsMenusScaleGuideAndResetFollowTheCount) {
    SelectionBench bench;
    bench.load(Vertical, line("a|5|5|0|Arial|8|False|False") + line("b|6|6|0|Arial|8|False|False"));
    const auto state = [&] {
        std::string text;
        for (const Menu entry : {Menu::mnuEditCopy, Menu::mnuEditMove, Menu::mnuEditDelete,
                                 Menu::mnuEditText, Menu::mnuEditTextAlignTop})
            text += bench.enabled(entry) ? '1' : '0';
        text += bench.editor.form.cmbScale.Enabled ? '1' : '0';
        return text + (bench.editor.form.cmdReset.BackColor == Cyan ? '1' : '0');
    };
    auto& labels = bench.drawing.labels.LabelSelected;
    struct Case {
        Short device, first, second;
        const char* state;
        Short lastLabel;
    };
    for (const Case& c :
         {Case{0, 0, 0, "0000010", -1}, Case{1, 0, 0, "1110001", -1}, Case{0, 0, 1, "1111001", 1},
          Case{1, 1, 1, "1111101", -1}, Case{0, 0, 0, "0000010", -1}}) {
        bench.drawing.devices.DeviceSelected[0] = c.device;
        labels = {c.first, c.second};
        RecountSelection(bench.editor);
        EXPECT_EQ(state(), c.state);
        EXPECT_EQ(bench.editor.LastSelectedLabel, c.lastLabel);
        EXPECT_EQ(bench.editor.SelectedCount, c.device + c.first + c.second);
    }
    EXPECT_EQ(bench.message(), "Task completed. Drawing reset and ready.");
}

TEST(SelectAll, MarksEverythingUntilAReset) {
    SelectionBench bench;
    bench.load(Vertical + Diagonal, line("a|5|5|7|Arial|8|False|False"));
    bench.addPicture({1, 1, 2, 2, "a.png", "", false});
    mnuEditSelectAll_Click(bench.editor);
    EXPECT_EQ(bench.editor.SelectedCount, 4);
    EXPECT_EQ(bench.canvas.persistentCls, 1) << "one redraw";
    ASSERT_EQ(bench.canvas.persistent.size(), 3u);
    EXPECT_EQ(bench.canvas.persistent[0].color, bench.editor.SelectionColor);
    EXPECT_EQ(bench.canvas.persistent[1].color, bench.editor.SelectionColor);
    EXPECT_EQ(bench.editor.form.lbl[0].ForeColor, bench.editor.SelectionColor);
    bench.play("key 27 0");
    EXPECT_THAT(bench.marks(), ElementsAre(0, 0));
    EXPECT_EQ(bench.editor.form.lbl[0].ForeColor, 7);
    EXPECT_FALSE(bench.drawing.PictureTable[0].Selected);
    EXPECT_EQ(bench.editor.form.lblSelected.Caption, "");
    RecountSelection(bench.editor);
    EXPECT_EQ(bench.editor.SelectedCount, 0);
}

TEST(Delete, TakesTheSelectedOutAndKeepsTheOrderOfTheRest) {
    SelectionBench bench;
    bench.load(line("InsertLamp|1|1|0||1|1|0|False") + Vertical +
                   line("InsertCircle|3|1|0.5|0|0|1") + Diagonal,
               line("a|5|5|0|Arial|8|False|False") + line("b|6|6|0|Arial|8|False|False"));
    bench.addPicture({1, 1, 2, 2, "a.png", "", true});
    bench.addPicture({4, 4, 2, 2, "b.png", "", false});
    const auto kept = bench.editor.img[1];
    bench.drawing.devices.DeviceSelected = {1, 0, 1, 0};
    bench.drawing.labels.LabelSelected = {1, 0};
    RecountSelection(bench.editor);
    mnuEditDelete_Click(bench.editor);
    EXPECT_THAT(bench.devices(),
                ElementsAre("InsertSavedLine|2|1|2|4|255|0", "InsertSavedLine|5|5|3|7|0|0"));
    EXPECT_THAT(bench.labels(), ElementsAre("b|6|6|0|Arial|8|False|False"));
    EXPECT_EQ(bench.drawing.PictureString, line("b.png|4|4|2|2"));
    EXPECT_THAT(bench.editor.img, ElementsAre(kept));
    EXPECT_EQ(bench.editor.form.lbl.size(), 1u);
    EXPECT_EQ(bench.message(), "Selected Items Deleted");
    EXPECT_EQ(bench.editor.SelectedCount, 0);
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    EXPECT_EQ(bench.snapshots, 1);

    mnuEditSelectAll_Click(bench.editor);
    mnuEditDelete_Click(bench.editor);
    EXPECT_EQ(bench.drawing.DeviceString + bench.drawing.LabelString + bench.drawing.PictureString,
              "");
    mnuEditDelete_Click(bench.editor);
    ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(bench.machine.dialogs.boxes[0].text, "Nothing selected to delete.");
    EXPECT_EQ(bench.snapshots, 2);
}

TEST(PicturePick, TakesThePressAtFullSizeFromAnIdleEditor) {
    SelectionBench bench;
    bench.addPicture({1, 1, 2, 1, "a.png", "", false});
    bench.addPicture({2, 1, 2, 1, "b.png", "", false});
    Editor& editor = bench.editor;
    EXPECT_EQ(pictureAt(editor, 2.5f, 1.5f), 1) << "the uppermost";
    EXPECT_EQ(pictureAt(editor, 1.5f, 2), 0);
    EXPECT_EQ(pictureAt(editor, 1.5f, 2.01f), std::nullopt);
    editor.ZoomFactor = 1.25f;
    EXPECT_EQ(pictureAt(editor, 1.5f, 1.5f), std::nullopt);
    editor.ZoomFactor = 1;
    for (bool* busy : {&editor.CopyArmed, &editor.ZoomInPending, &editor.ZoomOutPending,
                       &editor.TextAlignPending, &editor.SimulationMode}) {
        *busy = true;
        EXPECT_EQ(pictureAt(editor, 1.5f, 1.5f), std::nullopt);
        *busy = false;
    }
    bench.play("tool Ground");
    EXPECT_EQ(pictureAt(editor, 1.5f, 1.5f), std::nullopt) << "a tool places";
}

TEST(PicturePick, AClickTogglesADragMovesAndResets) {
    SelectionBench bench;
    bench.addPicture({1, 1, 2, 1, "a.png", "", false});
    Editor& editor = bench.editor;
    img_MouseDown(editor, 0, LeftButton, 1.5f, 1.5f);
    img_MouseMove(editor, LeftButton, 1.5f, 1.5f);
    img_MouseUp(editor);
    EXPECT_TRUE(bench.drawing.PictureTable[0].Selected);
    EXPECT_EQ(editor.SelectedPicture, 0);
    EXPECT_EQ(editor.SelectedCount, 1);
    EXPECT_EQ(bench.snapshots, 0);

    bench.canvas.persistentCls = 0;
    img_MouseDown(editor, 0, LeftButton, 1.5f, 1.5f);
    img_MouseMove(editor, LeftButton, 2, 2.25f);
    img_MouseMove(editor, LeftButton, 2.5f, 2.25f);
    EXPECT_EQ(bench.canvas.persistentCls, 0) << "a drag redraws nothing";
    EXPECT_THAT(bench.canvas.temporary, testing::SizeIs(2));
    img_MouseUp(editor);
    EXPECT_EQ(bench.drawing.PictureString, line("a.png|2|1.75|2|1"));
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_EQ(bench.snapshots, 1);
    EXPECT_THAT(bench.canvas.temporary, IsEmpty());
    img_MouseMove(editor, LeftButton, 4, 4);
    EXPECT_EQ(bench.drawing.PictureTable[0].Left, 2) << "the drag is over";

    img_MouseDown(editor, 0, LeftButton, 2.5f, 2);
    img_MouseMove(editor, LeftButton, 5, 5);
    bench.play("key 27 0");
    img_MouseUp(editor);
    EXPECT_EQ(bench.drawing.PictureTable[0].Left, 2) << "ESC gives the drag up";
    EXPECT_EQ(bench.snapshots, 1);
}

}  // namespace
}  // namespace ladrix::test
