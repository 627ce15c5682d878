// Between the drawing's file and the tables: old files, unknown pages, pictures.
#include "canvas/file/DrawingIO.h"

#include <filesystem>

#include "Bench.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/file/PictureFiles.h"

namespace ladrix::test {
namespace {

using DrawingIOTest = BenchTest;

TEST_F(DrawingIOTest, AnOldFileHasNoPageKey) {
    const auto dateBack = [&] {
        using namespace std::chrono;
        const auto old = system_clock::from_time_t(1262304000);  // 2010
        std::filesystem::last_write_time(machine.folder.native(document("Old.els")),
                                         file_clock::from_sys(time_point_cast<nanoseconds>(old)));
    };
    machine.folder.write(document("Old.els"), "OwnSymbol, 1, 1, 0, \r\n\r\nT1, 1, 2, 255\r\n");
    open("Old.els");
    EXPECT_EQ(drawing.PageLayoutKey, "OwnSymbol, 1, 1, 0, ");
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    dateBack();
    open("Old.els");
    EXPECT_EQ(drawing.PageLayoutKey, "8.5x11Portrait");
    EXPECT_THAT(drawing.devices.DeviceName, ElementsAre("OwnSymbol"));
    EXPECT_THAT(drawing.labels.LabelText, ElementsAre("T1"));

    machine.folder.write(document("Old.els"), "InsertTransformer, 1, 1, 0, \r\n\r\n\r\n");
    open("Old.els");
    EXPECT_THAT(drawing.devices.DeviceOrientation, ElementsAre(2)) << "whatever its date";
    save("New.els");
    EXPECT_THAT(file("New.els"), HasSubstr("8.5x11Portrait\r\n\r\nInsertTransformer\xFF"));
    EXPECT_THAT(reports(), IsEmpty());
}

TEST_F(DrawingIOTest, TheKeyOfAnUnknownPageIsKeptAndLeavesThePageAsItWas) {
    writeDocument("A.els", line(Ground), "", "17x22Portrait");
    writeDocument("B.els", line(Ground), "", "A4");
    open("A.els");
    open("B.els");
    EXPECT_EQ(editor.PageWidth, 17);
    EXPECT_THAT(devices(), ElementsAre(Ground));
    save("B.els");
    EXPECT_TRUE(file("B.els").starts_with("A4\r\n\r\n"));
    mnuFileNew_Click(editor);
    EXPECT_EQ(drawing.PageLayoutKey, "8.5x11Portrait") << "a foreign text is no page";
}

TEST_F(DrawingIOTest, TooManyDevicesAreReportedOnceAndTheFileKeepsThem) {
    std::string devices;
    for (int i = 0; i <= LargestCount; ++i)
        devices += line(Ground);
    writeDocument("Huge.els", devices);
    open("Huge.els");
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_THAT(machine.reports[0].text, HasSubstr("32767"));
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    save("Huge.els");
    EXPECT_GT(file("Huge.els").size(), devices.size());
}

struct PictureBench : Bench {
    PictureBench() {
        machine.folder.write("elsewhere/logo.bmp", "picture bytes");
        addPicture(
            {0.5f, 0.5f, 2, 1.25f, "logo.bmp", machine.folder / "elsewhere/logo.bmp", false});
    }
};

struct PictureFilesTest : testing::Test, PictureBench {};

TEST_F(PictureFilesTest, AreCopiedBesideTheDrawingAndComeBackWithIt) {
    save("Plan.els");
    EXPECT_EQ(machine.folder.read("documents/Plan/logo.bmp"), "picture bytes");
    EXPECT_THAT(file("Plan.els"),
                testing::EndsWith("///Picture Files///\r\n" + line("logo.bmp|0.5|0.5|2|1.25")));
    open("Plan.els");
    ASSERT_EQ(drawing.PictureCount, 1);
    EXPECT_EQ(drawing.PictureTable[0].FullPath, machine.folder / "documents/Plan/logo.bmp");
    EXPECT_EQ(drawing.PictureTable[0].Height, 1.25f);
    EXPECT_EQ(canvas.persistent.back().kind, Primitive::Kind::Picture);
    EXPECT_THAT(machine.images.loaded, ElementsAre(machine.folder / "documents/Plan/logo.bmp"));
}

TEST_F(PictureFilesTest, ThatAreInTheirFolderAlreadyNeedNoSource) {
    machine.folder.write("documents/Plan/logo.bmp", "kept");
    std::filesystem::remove(machine.folder.native("elsewhere/logo.bmp"));
    save("Plan.els");
    EXPECT_THAT(reports(), IsEmpty());
    EXPECT_EQ(machine.folder.read("documents/Plan/logo.bmp"), "kept");
    EXPECT_FALSE(drawing.DrawingChanged);
}

TEST_F(PictureFilesTest, WhoseFileHasGoneAreWrittenFromWhatWasReadOfThem) {
    keepPictureFile(editor, drawing.PictureTable[0].FullPath);
    std::filesystem::remove(machine.folder.native("elsewhere/logo.bmp"));
    save("Plan.els");
    EXPECT_EQ(machine.folder.read("documents/Plan/logo.bmp"), "picture bytes");
    EXPECT_EQ(drawing.PictureTable[0].FullPath, machine.folder / "documents/Plan/logo.bmp");

    open("Plan.els");
    std::filesystem::remove_all(machine.folder.native("documents/Plan"));
    save("Copy.els");
    EXPECT_EQ(machine.folder.read("documents/Copy/logo.bmp"), "picture bytes");
    EXPECT_EQ(drawing.PictureTable[0].FullPath, machine.folder / "documents/Copy/logo.bmp");
    EXPECT_FALSE(drawing.DrawingChanged);
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(PictureFilesTest, TakeAFreeNameWhereTheFolderHoldsAnotherFile) {
    machine.folder.write("documents/Plan/LOGO.bmp", "another's");
    machine.folder.write("documents/Plan/logo (2).bmp", "a third");
    addPicture({3, 3, 1, 1, "logo.bmp", machine.folder / "elsewhere/logo.bmp", false});
    for (const char* again : {"first", "second"}) {
        SCOPED_TRACE(again);
        save("Plan.els");
        EXPECT_EQ(machine.folder.read("documents/Plan/LOGO.bmp"), "another's");
        EXPECT_EQ(machine.folder.read("documents/Plan/logo (3).bmp"), "picture bytes");
        EXPECT_THAT(file("Plan.els"), HasSubstr(line("logo (3).bmp|3|3|1|1")));
        EXPECT_EQ(machine.folder.entries("documents/Plan").size(), 3u);
    }
    save("Other.els");
    EXPECT_EQ(machine.folder.read("documents/Other/logo (3).bmp"), "picture bytes");
}

TEST(PictureFiles, ThatCannotBeWrittenAreNamedOnceAndTheDrawingStandsWithoutThem) {
    for (const Operation operation : {Operation::Copy, Operation::MakeFolder}) {
        PictureBench bench;
        bench.addPicture({3, 3, 1, 1, "logo.bmp", bench.drawing.PictureTable[0].FullPath, false});
        bench.machine.folder.write(bench.document("Plan.els"), "old");
        bench.machine.files.fail(operation, {failure::PathFileAccess, "No space left on device"});
        bench.drawing.AfterSave = After::New;
        bench.save("Plan.els");
        EXPECT_THAT(bench.boxes(), ElementsAre("The picture logo.bmp could not be written:\r\n"
                                               "No space left on device\r\n\r\n"
                                               "The drawing has been saved without it."));
        EXPECT_THAT(bench.reports(), IsEmpty());
        EXPECT_TRUE(bench.file("Plan.els").ends_with(bench.drawing.PictureString));
        EXPECT_TRUE(bench.drawing.DrawingChanged);
        EXPECT_EQ(bench.drawing.PictureCount, 2) << "nothing is given up";
        bench.machine.files.heal();
        bench.drawing.AfterSave = After::Nothing;
        mnuFileSave_Click(bench.editor);
        EXPECT_FALSE(bench.drawing.DrawingChanged);
        EXPECT_EQ(bench.machine.folder.read("documents/Plan/logo.bmp"), "picture bytes");
    }
}

TEST_F(DrawingIOTest, DamagedOrMissingPicturesAreToldAndTheRestIsShown) {
    machine.folder.write("documents/Plan/a.bmp", "x");
    machine.folder.write("documents/Plan/b.bmp", "x");
    machine.images.damaged = {"a.bmp"};
    writeDocument("Plan.els", "",
                  "///Picture Files///\r\n" + line("a.bmp|1|1|1|1") + line("gone.bmp|2|2|1|1") +
                      line("b.bmp|3|3|1|1"));
    open("Plan.els");
    EXPECT_EQ(machine.reports.size(), 1u);
    EXPECT_THAT(boxes(), ElementsAre("1 picture could not be found."));
    ASSERT_EQ(editor.img.size(), 2u);
    EXPECT_EQ(editor.img[0], nullptr);
    ASSERT_EQ(canvas.persistent.size(), 1u);
    EXPECT_EQ(canvas.persistent[0].x1, 3);
}

TEST_F(DrawingIOTest, PicturesOfATemplateDoNotStayBehindInAFileWithoutAny) {
    machine.folder.write("documents/Frame/a.bmp", "x");
    writeDocument("Frame.tpl", line(Ground), "///Picture Files///\r\n" + line("a.bmp|1|1|1|1"));
    writeDocument("B.els", line(Ground));
    open("Frame.tpl");
    ASSERT_EQ(drawing.PictureCount, 1);
    open("B.els");
    EXPECT_EQ(drawing.PictureCount, 0);
    EXPECT_THAT(drawing.PictureTable, IsEmpty());
    EXPECT_THAT(editor.img, IsEmpty());
}

}  // namespace
}  // namespace ladrix::test
