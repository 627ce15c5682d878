#include "canvas/Pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "canvas/Bench.h"
#include "canvas/DrawingCommands.h"
#include "canvas/Undo.h"

namespace ladrix {
namespace {

using test::Bench;
using testing::IsEmpty;

class PicturesTest : public testing::Test {
  protected:
    PicturesTest() {
        bench.drawing.CurrentFolder = bench.machine.folder / "documents/";
        bench.drawing.TakeUndoSnapshot = [this] { TakeUndoSnapshot(bench.editor); };
        bench.editor.ClearHistory = [this] { ClearHistory(bench.editor); };
        ClearHistory(bench.editor);
        for (const char* folder : {"a", "b"})
            bench.machine.folder.write(std::string(folder) + "/logo.bmp", folder);
    }

    void insert(const std::string& folder, const std::string& file = "logo.bmp") {
        InsertPicture(bench.editor, bench.machine.folder / (folder + "/"), file);
    }
    const PictureRow& row(std::size_t i) { return bench.drawing.PictureTable.at(i); }

    Bench bench;
};

TEST_F(PicturesTest, StandsInItsOwnSizeInSightAndUndoTakesItAway) {
    bench.machine.images.sizes["logo.bmp"] = {192, 48};
    bench.editor.ScaleTop = 3;
    insert("a");
    ASSERT_EQ(bench.drawing.PictureCount, 1);
    EXPECT_EQ(row(0).Width, 2);
    EXPECT_EQ(row(0).Height, 0.5f);
    EXPECT_EQ(row(0).Left, 0.25f);
    EXPECT_EQ(row(0).Top, 3.25f);
    EXPECT_EQ(row(0).FullPath, bench.machine.folder / "a/logo.bmp");
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    EXPECT_EQ(bench.drawing.PictureString,
              "logo.bmp\xFF"
              "0.25\xFF"
              "3.25\xFF"
              "2\xFF"
              "0.5\r\n");
    mnuEditUndo_Click(bench.editor);
    EXPECT_EQ(bench.drawing.PictureCount, 0);
    EXPECT_THAT(bench.editor.img, IsEmpty());
    mnuEditRedo_Click(bench.editor);
    ASSERT_EQ(bench.drawing.PictureCount, 1);
    EXPECT_TRUE(bench.editor.img.at(0));
    EXPECT_EQ(row(0).Top, 3.25f);
}

TEST_F(PicturesTest, LargerThanThePageIsShrunkToIt) {
    bench.machine.images.sizes["logo.bmp"] = {9600, 1200};
    insert("a");
    EXPECT_FLOAT_EQ(row(0).Width, 8.5f);
    EXPECT_FLOAT_EQ(row(0).Height, 8.5f / 8);
    EXPECT_GE(row(0).Left, 0);
}

TEST_F(PicturesTest, OfOneNameFromTwoFoldersKeepTheirContentsInTheFile) {
    bench.drawing.CurrentFileName = "Plant.els";
    bench.machine.folder.write("documents/Plant/other.bmp", "kept from a former save");
    bench.machine.folder.write("a/other.bmp", "other");
    insert("a");
    insert("b");
    insert("a");
    insert("a", "other.bmp");
    EXPECT_EQ(row(0).FileName, "logo.bmp");
    EXPECT_EQ(row(1).FileName, "logo (2).bmp");
    EXPECT_EQ(row(2).FileName, "logo.bmp") << "the same file is kept once";
    SaveDrawing(bench.editor);
    EXPECT_EQ(bench.machine.folder.read("documents/Plant/logo.bmp"), "a");
    EXPECT_EQ(bench.machine.folder.read("documents/Plant/logo (2).bmp"), "b");
    EXPECT_EQ(bench.machine.folder.read("documents/Plant/other (2).bmp"), "other");
    OpenDrawing(bench.editor);
    EXPECT_EQ(bench.drawing.PictureCount, 4);
    EXPECT_THAT(bench.machine.dialogs.boxes, IsEmpty());
}

TEST_F(PicturesTest, ANameThatNoRecordCanHoldComesBackFromTheFile) {
    bench.machine.folder.write("a/na\xEFve \xFF.bmp", "x");
    insert("a", "na\xEFve \xFF.bmp");
    bench.drawing.CurrentFileName = "Plant.els";
    SaveDrawing(bench.editor);
    OpenDrawing(bench.editor);
    ASSERT_EQ(bench.drawing.PictureCount, 1);
    EXPECT_EQ(row(0).FileName, "na\xEFve _.bmp");
}

TEST_F(PicturesTest, AFileThatCannotBeReadLeavesTheDrawingAsItWas) {
    bench.machine.images.damaged = {"logo.bmp"};
    EXPECT_THROW(insert("a"), Failure);
    EXPECT_THROW(insert("a", "gone.bmp"), Failure);
    bench.machine.images.damaged.clear();
    bench.drawing.PictureTable.resize(32767);
    bench.drawing.PictureCount = 32767;
    EXPECT_THROW(insert("a"), Failure);
    EXPECT_EQ(bench.drawing.PictureTable.size(), 32767u);
    EXPECT_FALSE(bench.drawing.DrawingChanged);
}

TEST_F(PicturesTest, AreRefusedOnAZoomedPageOnly) {
    EXPECT_TRUE(makeReadyForPicture(bench.editor));
    bench.editor.ZoomFactor = 1.00004f;  // 100.00 in fixed point
    EXPECT_TRUE(makeReadyForPicture(bench.editor));
    EXPECT_THAT(bench.machine.dialogs.boxes, IsEmpty());
    bench.editor.ZoomFactor = 1.1f;
    EXPECT_FALSE(makeReadyForPicture(bench.editor));
    ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(bench.machine.dialogs.boxes[0].text,
              "Picture files cannot be inserted when the drawing is\r\n"
              "zoomed in or out. Change the zoom scale back to 100 %");
}

}  // namespace
}  // namespace ladrix
