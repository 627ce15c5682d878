// Copy and move by two points.
#include "canvas/CopyMove.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Bench.h"
#include "canvas/Redraw.h"
#include "canvas/Selection.h"
#include "document/Records.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// Every kind of device, a label and a picture, all of them selected.
struct CopyBench : Bench {
    CopyBench() {
        drawing.DeviceString =
            line("InsertSavedLine|1|1|2|1|255|0") + line("InsertSavedSquare|1|2|2|3|0|3") +
            line("InsertCircle|3|1|0.25|0||1") + line("InsertArc|3|2|0.5|1|7|0|0|1.570796|1") +
            line("InsertLamp|4|1|9||2|2|1|True");
        drawing.LabelString = line("Motor|5|1|3|Arial|10|True|False");
        ParseDeviceString(drawing, machine.platform);
        ParseLabelString(drawing, machine.platform);
        drawing.PictureTable = {{6, 1, 1, 0.5f, "a.png", "/far/a.png", false}};
        drawing.PictureCount = 1;
        editor.img = {std::make_shared<FakePicture>(10, 20)};
        RebuildPictureString(drawing, machine.platform);
        original = drawing.DeviceString;
        mnuEditSelectAll_Click(editor);
        snapshots = 0;
    }
    std::string original;

    const std::vector<FakeDialogs::Box>& boxes() const { return machine.dialogs.boxes; }
};

TEST(Copy, PastesAtEachClickUntilEscape) {
    CopyBench bench;
    const MenuStates& menu = bench.editor.form.menu;
    mnuEditCopy_Click(bench.editor);
    EXPECT_EQ(bench.message(), "7 devices have been copied. Select copy start point.");
    EXPECT_FALSE(menu[Menu::mnuEditCopy].Enabled || menu[Menu::mnuEditMove].Enabled ||
                 menu[Menu::mnuEditSelectAll].Enabled);
    EXPECT_EQ(bench.editor.form.cmdReset.BackColor, Cyan);
    bench.play("release");
    EXPECT_EQ(bench.message(), "Select copy start point.");

    bench.play("click 1.02 0.99");
    EXPECT_EQ(bench.message(), "First point found. Select new insertion point.");
    EXPECT_FALSE(bench.editor.BandArmed);
    EXPECT_EQ(bench.snapshots, 0);
    bench.play("click 1.5 4");
    EXPECT_THAT(bench.devices(), testing::Contains("InsertSavedSquare|1.5|5|2.5|6|0|3"));
    EXPECT_EQ(bench.drawing.DeviceString.substr(bench.original.size()),
              line("InsertSavedLine|1.5|4|2.5|4|255|0") +
                  line("InsertSavedSquare|1.5|5|2.5|6|0|3") + line("InsertCircle|3.5|4|0.25|0||1") +
                  line("InsertArc|3.5|5|0.5|1|7|0|0|1.570796|1") +
                  line("InsertLamp|4.5|4|9||2|2|1|True"));
    EXPECT_EQ(bench.drawing.LabelString,
              line("Motor|5|1|3|Arial|10|True|False") + line("Motor|5.5|4|3|Arial|10|True|False"));
    EXPECT_EQ(bench.drawing.PictureString, line("a.png|6|1|1|0.5") + line("a.png|6.5|4|1|0.5"));
    EXPECT_EQ(bench.editor.img.at(1), bench.editor.img.at(0));
    EXPECT_EQ(bench.drawing.PictureTable.at(1).FullPath, "/far/a.png");
    EXPECT_EQ(bench.editor.form.lbl.size(), 2u);
    EXPECT_EQ(bench.message(), "Select another insertion point or press ESC to end.");
    EXPECT_EQ(bench.editor.SelectedCount, 7) << "nothing in the copy is selected";
    EXPECT_FALSE(bench.drawing.PictureTable.at(1).Selected);
    EXPECT_EQ(bench.snapshots, 1);
    EXPECT_TRUE(bench.drawing.DrawingChanged);

    bench.play("click 1 1");
    EXPECT_EQ(bench.drawing.DeviceString.substr(bench.drawing.DeviceString.size() -
                                                bench.original.size()),
              bench.original)
        << "an offset of nothing gives an exact duplicate";
    EXPECT_EQ(bench.snapshots, 2);
    bench.play("key 27 0; click 3 5");
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 15);
}

TEST(Copy, HoldsTheItemsAsTheyWereAtTheFirstPoint) {
    CopyBench bench;
    mnuEditCopy_Click(bench.editor);
    bench.play("click 1 1");
    bench.drawing.devices.DeviceX[4] = 8;
    bench.drawing.labels.LabelText[0] = "changed";
    bench.play("click 1 2");
    EXPECT_EQ(bench.devices().back(), "InsertLamp|4|2|9||2|2|1|True");
    EXPECT_EQ(bench.labels().back(), "Motor|5|2|3|Arial|10|True|False");
}

TEST(Copy, ExplainsItselfOnceAndTellsAnEmptySelection) {
    CopyBench bench;
    mnuEditCopy_Click(bench.editor);
    ASSERT_THAT(bench.boxes(), SizeIs(1));
    EXPECT_THAT(bench.boxes()[0].text,
                testing::StartsWith("Please select a copy start point. Items will remain in "
                                    "memory\r\nuntil the the drawing is reset"));
    bench.play("key 27 0");
    mnuEditSelectAll_Click(bench.editor);
    mnuEditCopy_Click(bench.editor);
    EXPECT_THAT(bench.boxes(), SizeIs(1));
    bench.play("key 27 0");
    mnuEditCopy_Click(bench.editor);
    mnuEditMove_Click(bench.editor);
    mnuEditPaste_Click(bench.editor);
    ASSERT_THAT(bench.boxes(), SizeIs(4));
    EXPECT_EQ(bench.boxes()[1].text, "Nothing has been selected to copy.");
    EXPECT_EQ(bench.boxes()[2].text, "No devices have been selected.");
    EXPECT_EQ(bench.boxes()[3].text, "Nothing has been copied.");
    EXPECT_FALSE(bench.editor.CopyArmed);
}

TEST(Copy, OutlivesAResetButNotAToolPress) {
    CopyBench bench;
    mnuEditCopy_Click(bench.editor);
    bench.play("click 1 1; key 27 0");
    EXPECT_EQ(bench.editor.copied.devices.DeviceCount, 5);
    EXPECT_TRUE(bench.editor.form.menu[Menu::mnuEditPaste].Enabled);
    EXPECT_EQ(bench.editor.SelectedCount, 0);

    mnuEditSelectAll_Click(bench.editor);
    mnuEditCopy_Click(bench.editor);
    bench.play("click 1 1; tool Ground");
    const CopyBuffer& copied = bench.editor.copied;
    EXPECT_EQ(copied.devices.DeviceCount + copied.labels.LabelCount, 0);
    EXPECT_THAT(copied.pictures, IsEmpty());
    EXPECT_FALSE(bench.editor.CopyArmed || bench.drawing.PictureTable[0].Selected);
    EXPECT_EQ(bench.editor.SelectedCount, 0);
}

TEST(Copy, ThatDoesNotFitIsReportedAndAddsNothing) {
    Bench bench;
    bench.fillDevices(LargestCount - 1);
    bench.drawing.devices.DeviceSelected[0] = bench.drawing.devices.DeviceSelected[1] = 1;
    RecountSelection(bench.editor);
    mnuEditCopy_Click(bench.editor);
    const std::string before = bench.drawing.DeviceString;
    bench.play("click 1 1; click 2 2");
    ASSERT_THAT(bench.machine.reports, SizeIs(1));
    EXPECT_EQ(bench.machine.reports[0].number, failure::Overflow);
    EXPECT_EQ(bench.drawing.DeviceString, before);
    EXPECT_EQ(bench.drawing.devices.DeviceCount, LargestCount - 1);
    EXPECT_EQ(bench.snapshots, 0);
}

TEST(Move, TakesTheSelectedToTheSecondPointAndEndsInAReset) {
    CopyBench bench;
    bench.drawing.devices.DeviceSelected[2] = 0;
    RecountSelection(bench.editor);
    mnuEditMove_Click(bench.editor);
    EXPECT_EQ(bench.message(),
              "6 devices have been selected for moving. Select first move point (FROM).");
    EXPECT_THAT(bench.boxes(), IsEmpty());
    bench.play("click 1 1");
    EXPECT_EQ(bench.drawing.DeviceString, bench.original);
    EXPECT_EQ(bench.editor.SelectedCount, 6) << "the first point picks nothing";
    bench.play("click 2.5 0.5");
    EXPECT_EQ(bench.drawing.DeviceString, line("InsertSavedLine|2.5|0.5|3.5|0.5|255|0") +
                                              line("InsertSavedSquare|2.5|1.5|3.5|2.5|0|3") +
                                              line("InsertCircle|3|1|0.25|0||1") +
                                              line("InsertArc|4.5|1.5|0.5|1|7|0|0|1.570796|1") +
                                              line("InsertLamp|5.5|0.5|9||2|2|1|True"));
    EXPECT_THAT(bench.labels(), ElementsAre("Motor|6.5|0.5|3|Arial|10|True|False"));
    EXPECT_EQ(bench.drawing.PictureString, line("a.png|7.5|0.5|1|0.5"));
    EXPECT_EQ(bench.editor.SelectedCount, 0);
    EXPECT_FALSE(bench.editor.CopyArmed || bench.editor.MoveMode || bench.editor.CopyStage != 0);
    EXPECT_EQ(bench.snapshots, 1);
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    for (const Primitive& p : bench.canvas.persistent)
        EXPECT_NE(p.color, bench.editor.SelectionColor);
    bench.play("click 5 5");
    EXPECT_EQ(bench.snapshots, 1) << "the move is over";
}

TEST(Move, OfNothingLeftChangesNothing) {
    CopyBench bench;
    mnuEditMove_Click(bench.editor);
    bench.play("click 1 1");
    ClearSelection(bench.editor);
    bench.play("click 3 3");
    EXPECT_EQ(bench.drawing.DeviceString, bench.original);
    EXPECT_EQ(bench.snapshots, 0);
    EXPECT_FALSE(bench.editor.CopyArmed);
}

}  // namespace
}  // namespace ladrix::test
