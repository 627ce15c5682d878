#include "canvas/file/Pictures.h"

#include "canvas/history/History.h"

#include "Bench.h"
#include "canvas/history/Undo.h"

namespace ladrix::test {
namespace {

struct PicturesTest : BenchTest {
    PicturesTest() {
        drawing.TakeUndoSnapshot = [this] { TakeUndoSnapshot(editor); };
        ClearHistory(editor);
        for (const char* folder : {"a", "b"})
            machine.folder.write(std::string(folder) + "/logo.bmp", folder);
    }

    void insert(const std::string& folder, const std::string& file = "logo.bmp") {
        InsertPicture(editor, machine.folder / (folder + "/"), file);
    }
    const PictureRow& row(std::size_t i) { return drawing.PictureTable.at(i); }
};

TEST_F(PicturesTest, StandsInItsOwnSizeInSightAndUndoTakesItAway) {
    machine.images.sizes["logo.bmp"] = {192, 48};
    editor.ScaleTop = 3;
    insert("a");
    ASSERT_EQ(drawing.PictureCount, 1);
    EXPECT_EQ(row(0).FullPath, machine.folder / "a/logo.bmp");
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_EQ(drawing.PictureString, line("logo.bmp|0.25|3.25|2|0.5"));
    mnuEditUndo_Click(editor);
    EXPECT_EQ(drawing.PictureCount, 0);
    EXPECT_THAT(editor.img, IsEmpty());
    mnuEditRedo_Click(editor);
    ASSERT_EQ(drawing.PictureCount, 1);
    EXPECT_TRUE(editor.img.at(0));
    EXPECT_EQ(row(0).Top, 3.25f);
}

TEST_F(PicturesTest, LargerThanThePageIsShrunkToIt) {
    machine.images.sizes["logo.bmp"] = {9600, 1200};
    insert("a");
    EXPECT_FLOAT_EQ(row(0).Width, 8.5f);
    EXPECT_FLOAT_EQ(row(0).Height, 8.5f / 8);
    EXPECT_GE(row(0).Left, 0);
}

TEST_F(PicturesTest, OfOneNameFromTwoFoldersKeepTheirContentsInTheFile) {
    drawing.CurrentFileName = "Plant.els";
    machine.folder.write("documents/Plant/other.bmp", "kept from a former save");
    machine.folder.write("a/other.bmp", "other");
    insert("a");
    insert("b");
    insert("a");
    insert("a", "other.bmp");
    EXPECT_EQ(row(0).FileName, "logo.bmp");
    EXPECT_EQ(row(1).FileName, "logo (2).bmp");
    EXPECT_EQ(row(2).FileName, "logo.bmp") << "the same file is kept once";
    save("Plant.els");
    EXPECT_EQ(machine.folder.read("documents/Plant/logo.bmp"), "a");
    EXPECT_EQ(machine.folder.read("documents/Plant/logo (2).bmp"), "b");
    EXPECT_EQ(machine.folder.read("documents/Plant/other (2).bmp"), "other");
    open("Plant.els");
    EXPECT_EQ(drawing.PictureCount, 4);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PicturesTest, ANameThatNoRecordCanHoldComesBackFromTheFile) {
    machine.folder.write("a/na\xEFve \xFF.bmp", "x");
    insert("a", "na\xEFve \xFF.bmp");
    save("Plant.els");
    open("Plant.els");
    ASSERT_EQ(drawing.PictureCount, 1);
    EXPECT_EQ(row(0).FileName, "na\xEFve _.bmp");
}

TEST_F(PicturesTest, AFileThatCannotBeReadLeavesTheDrawingAsItWas) {
    machine.images.damaged = {"logo.bmp"};
    EXPECT_THROW(insert("a"), Failure);
    EXPECT_THROW(insert("a", "gone.bmp"), Failure);
    machine.images.damaged.clear();
    drawing.PictureTable.resize(32767);
    drawing.PictureCount = 32767;
    EXPECT_THROW(insert("a"), Failure);
    EXPECT_EQ(drawing.PictureTable.size(), 32767u);
    EXPECT_FALSE(drawing.DrawingChanged);
}

TEST_F(PicturesTest, AreRefusedOnAZoomedPageOnly) {
    EXPECT_TRUE(makeReadyForPicture(editor));
    editor.ZoomFactor = 1.00004f;  // 100.00 in fixed point
    EXPECT_TRUE(makeReadyForPicture(editor));
    EXPECT_THAT(boxes(), IsEmpty());
    editor.ZoomFactor = 1.1f;
    EXPECT_FALSE(makeReadyForPicture(editor));
    EXPECT_THAT(boxes(), ElementsAre("Picture files cannot be inserted when the drawing is\r\n"
                                     "zoomed in or out. Change the zoom scale back to 100 %"));
}

}  // namespace
}  // namespace ladrix::test
