// Between the drawing's file and the tables: old files, unknown pages, pictures.
#include "canvas/DrawingIO.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "Bench.h"
#include "canvas/DrawingCommands.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* Ground = "InsertGround|1|1|0||1|1|0|False";

void open(Bench& bench, const std::string& name) {
    bench.drawing.CurrentFileName = name;
    OpenDrawing(bench.editor);
}

void save(Bench& bench, const std::string& name) {
    bench.drawing.CurrentFileName = name;
    SaveDrawing(bench.editor);
}

void dateBack(const Bench& bench, const std::string& name) {
    using namespace std::chrono;
    const auto old = system_clock::from_time_t(1262304000);  // 2010
    std::filesystem::last_write_time(bench.machine.folder.native(bench.document(name)),
                                     file_clock::from_sys(time_point_cast<nanoseconds>(old)));
}

TEST(OldFile, HasNoPageKeyWhateverItsDateWhenItBeginsWithADevice) {
    for (const bool old : {false, true}) {
        Bench bench;
        bench.machine.folder.write(bench.document("Old.els"),
                                   "InsertTransformer, 1, 1, 0, \r\nInsertLamp, 2, 2, 255, \r\n\r\n"
                                   "T1, 1, 2, 255\r\n");
        if (old) dateBack(bench, "Old.els");
        open(bench, "Old.els");
        EXPECT_EQ(bench.drawing.PageLayoutKey, "8.5x11Portrait");
        EXPECT_THAT(bench.drawing.devices.DeviceName,
                    ElementsAre("InsertTransformer", "InsertLamp"));
        EXPECT_THAT(bench.drawing.devices.DeviceOrientation, ElementsAre(2, 0));
        EXPECT_THAT(bench.drawing.labels.LabelText, ElementsAre("T1"));
        EXPECT_THAT(bench.drawing.labels.LabelFontName, ElementsAre("Arial"));
        save(bench, "New.els");
        EXPECT_THAT(bench.machine.folder.read(bench.document("New.els")),
                    HasSubstr("8.5x11Portrait\r\n\r\nInsertTransformer\xFF"));
        EXPECT_THAT(bench.machine.reports, IsEmpty());
    }
}

TEST(OldFile, OfBefore2011HasNoPageKeyThoughItDoesNotBeginWithADevice) {
    Bench bench;
    bench.machine.folder.write(bench.document("Old.els"),
                               "OwnSymbol, 1, 1, 0, \r\n\r\nT1, 1, 2, 255\r\n");
    open(bench, "Old.els");
    EXPECT_EQ(bench.drawing.PageLayoutKey, "OwnSymbol, 1, 1, 0, ");
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 0);
    dateBack(bench, "Old.els");
    open(bench, "Old.els");
    EXPECT_EQ(bench.drawing.PageLayoutKey, "8.5x11Portrait");
    EXPECT_THAT(bench.drawing.devices.DeviceName, ElementsAre("OwnSymbol"));
    EXPECT_THAT(bench.drawing.labels.LabelText, ElementsAre("T1"));
}

TEST(PageKey, OfAnUnknownPageIsKeptAndLeavesThePageAsItWas) {
    Bench bench;
    bench.writeDocument("A.els", line(Ground), "", "17x22Portrait");
    bench.writeDocument("B.els", line(Ground), "", "A4");
    open(bench, "A.els");
    open(bench, "B.els");
    EXPECT_EQ(bench.editor.PageWidth, 17);
    EXPECT_EQ(bench.drawing.PageLayoutKey, "A4");
    EXPECT_THAT(bench.devices(), ElementsAre(Ground));
    save(bench, "B.els");
    EXPECT_EQ(bench.machine.folder.read(bench.document("B.els")).substr(0, 6), "A4\r\n\r\n");
}

TEST(EmptyDrawing, SavedAndReadIsStillEmptyOnItsPage) {
    Bench bench;
    bench.drawing.PageLayoutKey = "10x14Landscape";
    save(bench, "Empty.els");
    EXPECT_EQ(bench.machine.folder.read(bench.document("Empty.els")),
              "10x14Landscape\r\n\r\n\r\n///Picture Files///\r\n");
    Bench second;
    second.machine.folder.write(second.document("Empty.els"),
                                "10x14Landscape\r\n\r\n\r\n///Picture Files///\r\n");
    open(second, "Empty.els");
    EXPECT_EQ(second.drawing.devices.DeviceCount + second.drawing.labels.LabelCount, 0);
    EXPECT_EQ(second.drawing.PictureCount, 0);
    EXPECT_EQ(second.drawing.PageLayoutKey, "10x14Landscape");
    EXPECT_THAT(second.machine.dialogs.boxes, IsEmpty());
}

TEST(DamagedFile, YieldsWhatItHoldsWithoutAFailure) {
    struct Case {
        const char* text;
        int devices, labels;
    };
    for (const Case& c :
         {Case{"", 0, 0}, Case{"nonsense", 0, 0}, Case{"8.5x11Portrait\r\n\r\n", 0, 0},
          Case{"8.5x11Portrait\r\n\r\n\r\nA\xFF"
               "1\xFF"
               "2\xFF"
               "0\r\n",
               0, 1}}) {
        Bench bench;
        bench.play("tool Ground; click 1 1; key 27 0");
        bench.machine.folder.write(bench.document("D.els"), c.text);
        open(bench, "D.els");
        EXPECT_EQ(bench.drawing.devices.DeviceCount, c.devices) << c.text;
        EXPECT_EQ(bench.drawing.labels.LabelCount, c.labels) << c.text;
        EXPECT_THAT(bench.machine.reports, IsEmpty()) << c.text;
    }
}

TEST(TooManyDevices, AreReportedOnceAndTheFileKeepsThem) {
    Bench bench;
    std::string devices;
    for (int i = 0; i <= LargestCount; ++i)
        devices += line("InsertGround|1|1|0||1|1|0|False");
    bench.writeDocument("Huge.els", devices);
    open(bench, "Huge.els");
    ASSERT_EQ(bench.machine.reports.size(), 1u);
    EXPECT_THAT(bench.machine.reports[0].text, HasSubstr("32767"));
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 0);
    save(bench, "Huge.els");
    EXPECT_GT(bench.machine.folder.read(bench.document("Huge.els")).size(), devices.size());
}

struct PictureBench : Bench {
    PictureBench() {
        machine.folder.write("elsewhere/logo.bmp", "picture bytes");
        drawing.PictureTable = {
            {0.5f, 0.5f, 2, 1.25f, "logo.bmp", machine.folder / "elsewhere/logo.bmp", false}};
        drawing.PictureCount = 1;
        RebuildPictureString(drawing, machine.platform);
    }
};

TEST(Pictures, AreCopiedBesideTheDrawingAndComeBackWithIt) {
    PictureBench bench;
    save(bench, "Plan.els");
    EXPECT_EQ(bench.machine.folder.read("documents/Plan/logo.bmp"), "picture bytes");
    EXPECT_THAT(bench.machine.folder.read(bench.document("Plan.els")),
                testing::EndsWith("///Picture Files///\r\n" + line("logo.bmp|0.5|0.5|2|1.25")));
    open(bench, "Plan.els");
    ASSERT_EQ(bench.drawing.PictureCount, 1);
    EXPECT_EQ(bench.drawing.PictureTable[0].FullPath,
              bench.machine.folder / "documents/Plan/logo.bmp");
    EXPECT_EQ(bench.drawing.PictureTable[0].Height, 1.25f);
    EXPECT_EQ(bench.canvas.persistent.back().kind, Primitive::Kind::Picture);
    EXPECT_THAT(bench.machine.images.loaded,
                ElementsAre(bench.machine.folder / "documents/Plan/logo.bmp"));
}

TEST(Pictures, ThatAreInTheirFolderAlreadyNeedNoSource) {
    PictureBench bench;
    bench.machine.folder.write("documents/Plan/logo.bmp", "kept");
    std::filesystem::remove(bench.machine.folder.native("elsewhere/logo.bmp"));
    save(bench, "Plan.els");
    EXPECT_THAT(bench.machine.reports, IsEmpty());
    EXPECT_EQ(bench.machine.folder.read("documents/Plan/logo.bmp"), "kept");
    EXPECT_FALSE(bench.drawing.DrawingChanged);
}

TEST(Pictures, ThatCannotBeCopiedLeaveTheOldDrawingAndOneReport) {
    struct Case {
        Operation operation;
        const char* reason;
    };
    for (const Case& c : {Case{Operation::Copy, "No space left on device"},
                          Case{Operation::MakeFolder, "Permission denied"}}) {
        PictureBench bench;
        bench.machine.folder.write(bench.document("Plan.els"), "old");
        bench.machine.files.fail(c.operation, {failure::PathFileAccess, c.reason});
        save(bench, "Plan.els");
        ASSERT_EQ(bench.machine.reports.size(), 1u) << c.reason;
        EXPECT_EQ(bench.machine.reports[0].text, c.reason);
        EXPECT_EQ(bench.machine.folder.read(bench.document("Plan.els")), "old");
        EXPECT_TRUE(bench.drawing.DrawingChanged);
    }
}

TEST(Pictures, DamagedOrMissingOnesAreToldAndTheRestIsShown) {
    Bench bench;
    bench.machine.folder.write("documents/Plan/a.bmp", "x");
    bench.machine.folder.write("documents/Plan/b.bmp", "x");
    bench.machine.images.damaged = {"a.bmp"};
    bench.writeDocument("Plan.els", "",
                        "///Picture Files///\r\n" + line("a.bmp|1|1|1|1") +
                            line("gone.bmp|2|2|1|1") + line("b.bmp|3|3|1|1"));
    open(bench, "Plan.els");
    EXPECT_EQ(bench.machine.reports.size(), 1u);
    ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(bench.machine.dialogs.boxes[0].text, "1 picture could not be found.");
    ASSERT_EQ(bench.editor.img.size(), 2u);
    EXPECT_EQ(bench.editor.img[0], nullptr);
    ASSERT_EQ(bench.canvas.persistent.size(), 1u);
    EXPECT_EQ(bench.canvas.persistent[0].x1, 3);
}

TEST(Pictures, OfATemplateDoNotStayBehindInAFileWithoutAny) {
    Bench bench;
    bench.machine.folder.write("documents/Frame/a.bmp", "x");
    bench.writeDocument("Frame.tpl", line(Ground),
                        "///Picture Files///\r\n" + line("a.bmp|1|1|1|1"));
    bench.writeDocument("B.els", line(Ground));
    open(bench, "Frame.tpl");
    ASSERT_EQ(bench.drawing.PictureCount, 1);
    open(bench, "B.els");
    EXPECT_EQ(bench.drawing.PictureCount, 0);
    EXPECT_THAT(bench.drawing.PictureTable, IsEmpty());
    EXPECT_THAT(bench.editor.img, IsEmpty());
}

}  // namespace
}  // namespace ladrix::test
