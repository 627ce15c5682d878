#include "output/SaveBitmap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

struct SaveBitmapTest : testing::Test {
    test::FakePlatform machine;
    Editor editor{machine.platform};

    SaveBitmapTest() {
        machine.folder.makeFolder("bitmaps");
        editor.drawing.labels.append({"1CR", 1, 2, Red, "Arial", 8, false, false});
    }
    void save() { SaveBitmap(editor, machine.folder / "bitmaps/"); }
};

constexpr const char* GridLine = "color 15724527";

TEST_F(SaveBitmapTest, SavesThePageWithItsLabelsAndOpensThePicture) {
    machine.dialogs.inputAnswers = {"Motor"};
    machine.shell.opens = false;  // nothing happens then
    editor.ZoomFactor = 2;
    save();
    const std::string image = machine.folder.read("bitmaps/Motor.bmp");
    EXPECT_TRUE(image.starts_with("8.5x11\n")) << image;
    EXPECT_THAT(image, HasSubstr("Text 1,2 \"1CR\" Arial 8.1 color 255"));
    EXPECT_THAT(machine.shell.opened, testing::ElementsAre(machine.folder / "bitmaps/Motor.bmp"));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty()) << "the grid is off";
    EXPECT_EQ(machine.dialogs.inputBoxes[0].value, "Temporary");
    EXPECT_THAT(machine.reports, IsEmpty());
}

TEST_F(SaveBitmapTest, TheGridIsInTheImageOnYesAndOnThePageAfterwardsInAnyCase) {
    editor.GridOn = true;
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        machine.dialogs.answers = {answer};
        machine.dialogs.inputAnswers = {answer == Answer::Yes ? "with" : "without"};
        save();
        EXPECT_TRUE(editor.GridOn);
        EXPECT_THAT(machine.picLX.persistent, Not(IsEmpty()));
    }
    EXPECT_THAT(machine.folder.read("bitmaps/with.bmp"), HasSubstr(GridLine));
    EXPECT_THAT(machine.folder.read("bitmaps/without.bmp"), Not(HasSubstr(GridLine)));
    const int clears = machine.picLX.persistentCls;
    machine.dialogs.answers = {Answer::Cancel};
    save();
    EXPECT_EQ(machine.picLX.persistentCls, clears);
    EXPECT_THAT(machine.folder.entries("bitmaps"), SizeIs(2));
}

TEST_F(SaveBitmapTest, AnExistingFileIsAskedAboutAndABadNameRefused) {
    machine.folder.write("bitmaps/temporary.bmp", "former");
    machine.dialogs.inputAnswers = {"Temporary", "Temporary", "a/b", std::nullopt, ""};
    machine.dialogs.answers = {Answer::No, Answer::Yes};
    save();
    EXPECT_EQ(machine.folder.read("bitmaps/temporary.bmp"), "former");
    EXPECT_THAT(machine.shell.opened, IsEmpty());
    save();
    EXPECT_NE(machine.folder.read("bitmaps/temporary.bmp"), "former");
    save();
    save();
    EXPECT_THAT(machine.folder.entries("bitmaps"), SizeIs(1));
    save();
    EXPECT_TRUE(machine.folder.has("bitmaps/.bmp"));
}

TEST_F(SaveBitmapTest, AFullDiskIsReportedAndTheGridComesBack) {
    editor.GridOn = true;
    machine.dialogs.answers = {Answer::No};
    machine.dialogs.inputAnswers = {"Motor"};
    machine.files.fail(test::Operation::Replace, {failure::DiskFull, "full"});
    save();
    ASSERT_THAT(machine.reports, SizeIs(1));
    EXPECT_EQ(machine.reports[0].number, failure::DiskFull);
    EXPECT_TRUE(editor.GridOn);
    EXPECT_THAT(machine.shell.opened, IsEmpty());
}

}  // namespace
}  // namespace ladrix
