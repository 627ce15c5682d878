// Copy and move by two points.
#include "canvas/gestures/CopyMove.h"
#include "canvas/gestures/Gesture.h"

#include "Bench.h"
#include "canvas/gestures/Selection.h"

namespace ladrix::test {
namespace {

// Every kind of device, a label and a picture, all of them selected.
struct CopyMoveTest : BenchTest {
    CopyMoveTest() {
        load(line("InsertSavedLine|1|1|2|1|255|0") + line("InsertSavedSquare|1|2|2|3|0|3") +
                 line("InsertCircle|3|1|0.25|0||1") + line("InsertArc|3|2|0.5|1|7|0|0|1.570796|1") +
                 line("InsertLamp|4|1|9||2|2|1|True"),
             line("Motor|5|1|3|Arial|10|True|False"));
        addPicture({6, 1, 1, 0.5f, "a.png", "/far/a.png", false});
        original = drawing.DeviceString;
        mnuEditSelectAll_Click(editor);
        snapshots = 0;
    }
    std::string original;
};

TEST_F(CopyMoveTest, ACopyIsPastedAtEachClickUntilEscape) {
    mnuEditCopy_Click(editor);
    EXPECT_EQ(message(), "7 devices have been copied. Select copy start point.");
    for (const Menu entry : {Menu::mnuEditCopy, Menu::mnuEditMove, Menu::mnuEditSelectAll})
        EXPECT_FALSE(enabled(entry));
    EXPECT_EQ(editor.form.cmdReset.BackColor, Cyan);

    play("release; click 1.02 0.99");
    EXPECT_EQ(message(), "First point found. Select new insertion point.");
    EXPECT_FALSE(editor.gesture.BandArmed);
    EXPECT_EQ(snapshots, 0);
    play("click 1.5 4");
    EXPECT_EQ(drawing.DeviceString.substr(original.size()),
              line("InsertSavedLine|1.5|4|2.5|4|255|0") +
                  line("InsertSavedSquare|1.5|5|2.5|6|0|3") + line("InsertCircle|3.5|4|0.25|0||1") +
                  line("InsertArc|3.5|5|0.5|1|7|0|0|1.570796|1") +
                  line("InsertLamp|4.5|4|9||2|2|1|True"));
    EXPECT_EQ(drawing.LabelString,
              line("Motor|5|1|3|Arial|10|True|False") + line("Motor|5.5|4|3|Arial|10|True|False"));
    EXPECT_EQ(drawing.PictureString, line("a.png|6|1|1|0.5") + line("a.png|6.5|4|1|0.5"));
    EXPECT_EQ(editor.img.at(1), editor.img.at(0));
    EXPECT_EQ(drawing.PictureTable.at(1).FullPath, "/far/a.png");
    EXPECT_EQ(editor.form.lbl.size(), 2u);
    EXPECT_EQ(message(), "Select another insertion point or press ESC to end.");
    EXPECT_EQ(editor.SelectedCount, 7) << "nothing in the copy is selected";
    EXPECT_FALSE(drawing.PictureTable.at(1).Selected);
    EXPECT_EQ(snapshots, 1);
    EXPECT_TRUE(drawing.DrawingChanged);

    play("click 1 1");
    EXPECT_TRUE(drawing.DeviceString.ends_with(original)) << "an offset of nothing: a duplicate";
    EXPECT_EQ(snapshots, 2);
    play("key 27 0; click 3 5");
    EXPECT_EQ(drawing.devices.DeviceCount, 15);
}

TEST_F(CopyMoveTest, ACopyHoldsTheItemsAsTheyWereAtTheFirstPoint) {
    mnuEditCopy_Click(editor);
    play("click 1 1");
    drawing.devices.DeviceX[4] = 8;
    drawing.labels.LabelText[0] = "changed";
    play("click 1 2");
    EXPECT_EQ(devices().back(), "InsertLamp|4|2|9||2|2|1|True");
    EXPECT_EQ(labels().back(), "Motor|5|2|3|Arial|10|True|False");
}

TEST_F(CopyMoveTest, ACopyExplainsItselfOnceAndTellsAnEmptySelection) {
    for (int i = 0; i < 2; ++i) {
        mnuEditSelectAll_Click(editor);
        mnuEditCopy_Click(editor);
        play("key 27 0");
    }
    mnuEditCopy_Click(editor);
    mnuEditMove_Click(editor);
    mnuEditPaste_Click(editor);
    EXPECT_THAT(boxes(), ElementsAre(testing::StartsWith(
                                         "Please select a copy start point. Items will remain in "
                                         "memory\r\nuntil the the drawing is reset"),
                                     "Nothing has been selected to copy.",
                                     "No devices have been selected.", "Nothing has been copied."));
    EXPECT_FALSE(editor.gesture.CopyArmed);
}

TEST_F(CopyMoveTest, ACopyOutlivesAResetButNotAToolPress) {
    mnuEditCopy_Click(editor);
    play("click 1 1; key 27 0");
    EXPECT_EQ(editor.copied.devices.DeviceCount, 5);
    EXPECT_TRUE(enabled(Menu::mnuEditPaste));
    EXPECT_EQ(editor.SelectedCount, 0);

    mnuEditSelectAll_Click(editor);
    mnuEditCopy_Click(editor);
    play("click 1 1; tool Ground");
    EXPECT_EQ(editor.copied.devices.DeviceCount + editor.copied.labels.LabelCount, 0);
    EXPECT_THAT(editor.copied.pictures, IsEmpty());
    EXPECT_FALSE(editor.gesture.CopyArmed || drawing.PictureTable[0].Selected);
    EXPECT_EQ(editor.SelectedCount, 0);
}

TEST_F(CopyMoveTest, ACopyThatDoesNotFitIsReportedAndAddsNothing) {
    fillDevices(LargestCount - 1);
    drawing.devices.DeviceSelected[0] = drawing.devices.DeviceSelected[1] = 1;
    RecountSelection(editor);
    mnuEditCopy_Click(editor);
    const std::string before = drawing.DeviceString;
    play("click 1 1; click 2 2");
    EXPECT_THAT(reports(), ElementsAre(failure::Overflow));
    EXPECT_EQ(drawing.DeviceString, before);
    EXPECT_EQ(drawing.devices.DeviceCount, LargestCount - 1);
    EXPECT_EQ(snapshots, 0);
}

TEST_F(CopyMoveTest, AMoveTakesTheSelectedToTheSecondPointAndEndsInAReset) {
    drawing.devices.DeviceSelected[2] = 0;
    RecountSelection(editor);
    mnuEditMove_Click(editor);
    EXPECT_EQ(message(),
              "6 devices have been selected for moving. Select first move point (FROM).");
    EXPECT_THAT(boxes(), IsEmpty());
    play("click 1 1");
    EXPECT_EQ(drawing.DeviceString, original);
    EXPECT_EQ(editor.SelectedCount, 6) << "the first point picks nothing";
    play("click 2.5 0.5");
    EXPECT_THAT(devices(),
                ElementsAre("InsertSavedLine|2.5|0.5|3.5|0.5|255|0",
                            "InsertSavedSquare|2.5|1.5|3.5|2.5|0|3", "InsertCircle|3|1|0.25|0||1",
                            "InsertArc|4.5|1.5|0.5|1|7|0|0|1.570796|1",
                            "InsertLamp|5.5|0.5|9||2|2|1|True"));
    EXPECT_THAT(labels(), ElementsAre("Motor|6.5|0.5|3|Arial|10|True|False"));
    EXPECT_EQ(drawing.PictureString, line("a.png|7.5|0.5|1|0.5"));
    EXPECT_EQ(editor.SelectedCount, 0);
    EXPECT_FALSE(editor.gesture.CopyArmed || editor.gesture.MoveMode ||
                 editor.gesture.CopyStage != 0);
    EXPECT_TRUE(drawing.DrawingChanged);
    for (const Primitive& p : canvas.persistent)
        EXPECT_NE(p.color, editor.SelectionColor);
    play("click 5 5");
    EXPECT_EQ(snapshots, 1) << "the move is over";
}

TEST_F(CopyMoveTest, AMoveOfNothingLeftChangesNothing) {
    mnuEditMove_Click(editor);
    play("click 1 1");
    ClearSelection(editor);
    play("click 3 3");
    EXPECT_EQ(drawing.DeviceString, original);
    EXPECT_EQ(snapshots, 0);
    EXPECT_FALSE(editor.gesture.CopyArmed);
}

}  // namespace
}  // namespace ladrix::test
