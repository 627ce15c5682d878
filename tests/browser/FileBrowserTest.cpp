#include "browser/FileBrowser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "browser/BrowserFolders.h"
#include "browser/BrowserSaving.h"
#include "browser/DrawingSketch.h"
#include "browser/Favorites.h"
#include "canvas/file/DrawingCommands.h"
#include "platform/Encoding.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::FakeDialogs;
using test::Operation;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view IllegalName =
    "Action Cancelled. File and Folder Names cannot include\r\n"
    "any of the following characters: / \\ : * ? < > | ";

// A contact, a line and a label on this page.
std::string drawingText(std::string_view pageKey, std::string_view description = "") {
    std::string text;
    if (!description.empty()) {
        text = "///File Description///\r\n" + std::string(description) +
               "\r\n///End File Description///\r\n";
    }
    std::string records =
        "InsertNormallyOpenAux|3.125|2.5|0||1|1|0|False\r\n"
        "InsertSavedLine|1|1|4.5|1|0|0\r\n\r\n"
        "Start|3.2|2.75|0|Arial|10|False|False\r\n///Picture Files///\r\n";
    std::replace(records.begin(), records.end(), '|', '\xFF');
    return text.append(pageKey).append("\r\n\r\n") + records;
}

class FileBrowserTest : public testing::Test {
  protected:
    FileBrowserTest() {
        fake.folder.makeFolder("drawings");
        editor.drawing.TempFolder = editor.AppFilePath = fake.folder / "program/";
        editor.drawing.PageLayoutKey = "8.5x11Landscape";
    }

    void showOpen() {
        editor.drawing.SaveInProgress = false;
        frmFile_Load(browser, editor, favorites, {drawings});
    }
    void showSave() {
        editor.drawing.SaveInProgress = true;
        frmFile_Load(browser, editor, favorites, {drawings});
    }
    void saveAs(const std::string& name) {
        txtSaveAs_Change(browser, name);
        cmdSaveAs_Click(browser, editor);
    }
    int indexOf(std::string_view name) const {
        for (std::size_t i = 0; i < browser.entries.size(); ++i)
            if (browser.entries[i].name == name) return static_cast<int>(i);
        ADD_FAILURE() << name << " is not listed";
        return -1;
    }
    void click(std::string_view name) { FileList1_Click(browser, editor, indexOf(name)); }
    void doubleClick(std::string_view name) { FileList1_DblClick(browser, editor, indexOf(name)); }
    std::vector<std::string> listed() const {
        std::vector<std::string> names;
        for (const FileEntry& entry : browser.entries)
            names.push_back(entry.name);
        return names;
    }
    void placeLine() {
        Device line;
        line.name = "InsertSavedLine";
        line.x = line.x2 = 2;
        line.y = 1;
        line.y2 = 3;
        RecordDevice(editor.drawing, fake.platform, line);
    }

    test::FakePlatform fake;
    Editor editor{fake.platform};
    FileBrowser browser;
    Favorites favorites;
    const std::string drawings = fake.folder / "drawings/";
};

using FileBrowserOpenTest = FileBrowserTest;
using FileBrowserSaveTest = FileBrowserTest;
using FileBrowserFoldersTest = FileBrowserTest;

const FakeDialogs::Box Unreadable{"File structure corrupted and cannot be read.",
                                  "Bad File Structure", Buttons::Ok};
const FakeDialogs::Box Illegal{std::string(IllegalName), "Illegal Filename", Buttons::Ok};

TEST_F(FileBrowserOpenTest, StartsWithNothingChosenAndNothingGivenUpUntilAPreview) {
    fake.folder.write("drawings/a.els", drawingText("8.5x11Portrait"));
    placeLine();
    showOpen();
    EXPECT_TRUE(browser.Visible);
    EXPECT_EQ(browser.Caption, "Opening File From...");
    EXPECT_EQ(browser.BrowserFolder, drawings);
    EXPECT_EQ(browser.Selected, -1);
    EXPECT_FALSE(browser.cmdOpenOK.Enabled || browser.txtSaveAs.Visible);
    cmdOpenOK_Click(browser, editor);
    EXPECT_TRUE(browser.Visible) << "OK without a choice does nothing";
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 1);
    EXPECT_TRUE(editor.drawing.DrawingChanged);
    click("a.els");
    cmdOpenCancel_Click(browser, editor);
    EXPECT_FALSE(browser.Visible);
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 2) << "a cancel restores nothing";
    EXPECT_EQ(editor.form.lblMessage.Caption,
              "The drawing is now the preview of a.els. What stood there before is gone.");
    EXPECT_FALSE(editor.drawing.DrawingChanged);
}

TEST_F(FileBrowserOpenTest, AClickPreviewsTheDevicesAloneAndTheDescription) {
    fake.folder.write("drawings/a.els", drawingText("11x17Landscape", "Conveyor\r\nstart"));
    showOpen();
    click("a.els");
    EXPECT_EQ(browser.Caption, "Open... a.els");
    EXPECT_EQ(browser.framPreview.Caption, "Drawing Preview");
    EXPECT_EQ(browser.txtDescription.Text, "Conveyor\r\nstart");
    EXPECT_EQ(browser.PreviewWidth, 17);
    EXPECT_EQ(browser.PreviewHeight, 11);
    EXPECT_TRUE(browser.cmdOpenOK.Enabled);
    test::RecordingPage page;
    drawPreview(browser, editor, page);
    ASSERT_FALSE(page.primitives.empty());
    for (const test::Primitive& primitive : page.primitives)
        EXPECT_NE(primitive.kind, test::Primitive::Kind::Text) << primitive;
    EXPECT_EQ(page.primitives.back().x2, 4.5f) << page.primitives.back();
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 2) << "drawing a preview records nothing";
    EXPECT_EQ(editor.drawing.PageLayoutKey, "8.5x11Landscape");
}

TEST_F(FileBrowserOpenTest, APageMissingInThePreviewsTableKeepsTheFormerOne) {
    const std::pair<const char*, Single> pages[] = {{"11x17Portrait", 11},
                                                    {"17x22Landscape", 11},
                                                    {"10x14Landscape", 11},
                                                    {"10x14Portrait", 10}};
    for (const auto& [page, width] : pages)
        fake.folder.write("drawings/" + std::string(page) + ".els", drawingText(page));
    showOpen();
    for (const auto& [page, width] : pages) {
        click(std::string(page) + ".els");
        EXPECT_EQ(browser.PreviewWidth, width) << page;
        EXPECT_EQ(browser.PreviewHeight, width == 11 ? 17 : 14) << page;
    }
}

TEST_F(FileBrowserOpenTest, AFileThatCannotBeReadShowsTheBoxAndAnotherCanBeChosen) {
    fake.folder.write("drawings/good.els", drawingText("8.5x11Portrait", "Good"));
    fake.folder.write("drawings/locked.els", drawingText("8.5x11Portrait"));
    fake.files.fail(Operation::Read, {failure::PermissionDenied, "Denied"}, "locked");
    fake.folder.write("drawings/huge.els", "");
    std::filesystem::resize_file(fake.folder.native("drawings/huge.els"), LargestDocument + 1);
    showOpen();
    for (const char* name : {"locked.els", "locked.els", "huge.els"}) {
        SCOPED_TRACE(name);
        click("good.els");
        fake.dialogs.boxes.clear();
        click(name);
        EXPECT_THAT(fake.dialogs.boxes, ElementsAre(Unreadable)) << "each time";
        EXPECT_FALSE(readSketch(editor, drawings + name)) << "the sheet of previews agrees";
        EXPECT_FALSE(browser.PreviewShown);
        EXPECT_EQ(browser.txtDescription.Text, "");
        test::RecordingPage page;
        drawPreview(browser, editor, page);
        EXPECT_THAT(page.primitives, IsEmpty());
    }
    click("good.els");
    cmdOpenOK_Click(browser, editor);
    EXPECT_EQ(editor.drawing.CurrentFileName, "good.els");
    EXPECT_EQ(editor.drawing.labels.LabelCount, 1);
    EXPECT_FALSE(browser.Visible);
}

TEST_F(FileBrowserOpenTest, ADoubleClickOpensADrawingAndATemplate) {
    fake.folder.write("drawings/frame.tpl", drawingText("8.5x11Portrait"));
    fake.folder.write("drawings/a.els", drawingText("8.5x11Portrait"));
    showOpen();
    EXPECT_THAT(listed(), ElementsAre("a.els", "frame.tpl"));
    doubleClick("frame.tpl");
    frmFile_Unload(browser, editor);
    EXPECT_TRUE(editor.drawing.TemplateActive);
    EXPECT_EQ(editor.drawing.CurrentFolder, drawings);
    showOpen();
    doubleClick("a.els");
    EXPECT_GT(editor.drawing.devices.DeviceCount, 2) << "the template's and the file's";
    EXPECT_FALSE(browser.Visible);
}

TEST_F(FileBrowserOpenTest, AnOpenThatFailsLendsItsNameToNoOtherDrawing) {
    fake.folder.write("drawings/a.els", drawingText("8.5x11Portrait"));
    editor.drawing.CurrentFolder = drawings;
    editor.drawing.CurrentFileName = "mine.els";
    showOpen();
    click("a.els");
    fake.files.fail(Operation::Read, {failure::DeviceIO, "Input/output error"});
    cmdOpenOK_Click(browser, editor);
    ASSERT_EQ(fake.reports.size(), 1u);
    EXPECT_EQ(fake.reports[0].text, "Input/output error");
    EXPECT_NE(editor.drawing.CurrentFileName, "a.els");
}

TEST_F(FileBrowserOpenTest, ACancelledOpenDoesNotComeBackAtTheNextSave) {
    fake.dialogs.duringForm = [&](Form) {
        showOpen();
        cmdOpenCancel_Click(browser, editor);
        frmFile_Unload(browser, editor);
    };
    mnuFileOpen_Click(editor);
    editor.drawing.CurrentFolder = drawings;
    editor.drawing.CurrentFileName = "a.els";
    mnuFileSave_Click(editor);
    EXPECT_EQ(fake.dialogs.forms.size(), 1u);
}

TEST_F(FileBrowserOpenTest, APictureGoesToTheSystemsOpenerAndNotIntoTheProgram) {
    fake.folder.write("drawings/photo.BMP", "BM");
    placeLine();
    showOpen();
    EXPECT_THAT(listed(), IsEmpty());
    goToPath(browser, editor, "photo.BMP");
    cmdOpenOK_Click(browser, editor);
    EXPECT_THAT(fake.shell.opened, ElementsAre(drawings + "photo.BMP"));
    EXPECT_TRUE(browser.Visible);
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 1);
    EXPECT_EQ(editor.drawing.CurrentFileName, "");
    EXPECT_THAT(fake.dialogs.boxes, IsEmpty());
}

TEST_F(FileBrowserSaveTest, AddsTheExtensionOfTheTypeOnceAndCloses) {
    placeLine();
    const std::string foreign = fromUtf8("\xCE\xA9"), foreignFile = foreign + ".els";
    const struct {
        Short type;
        const char *typed, *file;
    } cases[] = {
        {0, "plain", "plain.els"},       {0, "typed.els", "typed.els"},
        {0, "  spaces  ", "spaces.els"}, {1, "frame", "frame.tpl"},
        {1, "frame2.tpl", "frame2.tpl"}, {0, foreign.c_str(), foreignFile.c_str()},
    };
    for (const auto& [type, typed, file] : cases) {
        showSave();
        if (type == 1) optFileType_Click(browser, editor, type);
        saveAs(typed);
        EXPECT_FALSE(browser.Visible) << typed;
        EXPECT_EQ(editor.drawing.CurrentFileName, file);
        EXPECT_FALSE(editor.drawing.DrawingChanged) << typed;
        EXPECT_TRUE(FileExists(fake.files, drawings, file)) << file;
        frmFile_Unload(browser, editor);
    }
    EXPECT_EQ(fake.folder.entries("drawings").size(), std::size(cases));
    EXPECT_TRUE(editor.drawing.TemplateActive);
    EXPECT_THAT(fake.dialogs.boxes, IsEmpty());
}

TEST_F(FileBrowserSaveTest, RefusesNamesThatNoFileMayBear) {
    placeLine();
    showSave();
    for (const char* name : {"what?", "a\\b", "../up"}) {
        fake.dialogs.boxes.clear();
        saveAs(name);
        EXPECT_THAT(fake.dialogs.boxes, ElementsAre(Illegal)) << name;
    }
    fake.dialogs.boxes.clear();
    saveAs("   ");
    EXPECT_THAT(fake.dialogs.boxes, IsEmpty());
    EXPECT_FALSE(browser.cmdSaveAs.Enabled);
    EXPECT_TRUE(browser.Visible && editor.drawing.DrawingChanged);
    EXPECT_THAT(fake.folder.entries("drawings"), IsEmpty());
}

TEST_F(FileBrowserSaveTest, AsksBeforeAFileIsReplaced) {
    fake.folder.write("drawings/Motor.els", "old");
    placeLine();
    showSave();
    fake.dialogs.answers = {Answer::No};
    saveAs("Motor");
    EXPECT_THAT(fake.dialogs.boxes,
                ElementsAre(FakeDialogs::Box{"Motor.els already exists. Do you want to replace it?",
                                             "Saving File as...", Buttons::YesNo}));
    EXPECT_EQ(fake.folder.read("drawings/Motor.els"), "old");
    EXPECT_TRUE(browser.Visible);
    EXPECT_EQ(editor.drawing.CurrentFileName, "");

    // Another spelling means the same file here as on systems that tell no case apart.
    fake.dialogs.answers = {Answer::Yes};
    saveAs("motor");
    EXPECT_THAT(fake.folder.entries("drawings"), ElementsAre("Motor.els"));
    EXPECT_THAT(fake.folder.read("drawings/Motor.els"), testing::HasSubstr("InsertSavedLine"));
    EXPECT_EQ(editor.drawing.CurrentFileName, "Motor.els");
    frmFile_Unload(browser, editor);

    fake.dialogs.boxes.clear();
    mnuFileSave_Click(editor);
    EXPECT_THAT(fake.dialogs.boxes, IsEmpty()) << "a save under its own name never asks";
}

TEST_F(FileBrowserSaveTest, OffersThePresentNameInItsOwnFolder) {
    fake.folder.makeFolder("elsewhere");
    fake.folder.write("elsewhere/frame.els", "");
    fake.folder.write("elsewhere/old.tpl", "");
    editor.drawing.CurrentFolder = fake.folder / "elsewhere/";
    editor.drawing.CurrentFileName = "frame.tpl";
    showSave();
    EXPECT_EQ(browser.BrowserFolder, fake.folder / "elsewhere/");
    EXPECT_EQ(browser.txtSaveAs.Text, "frame.els");
    EXPECT_EQ(browser.Caption, "Saving File as...");
    EXPECT_THAT(listed(), ElementsAre("frame.els"));
    optFileType_Click(browser, editor, 1);
    EXPECT_THAT(listed(), ElementsAre("old.tpl"));
    EXPECT_EQ(browser.txtSaveAs.Text, "frame.tpl");
    click("old.tpl");
    EXPECT_EQ(browser.BrowserSaveName, "old.tpl") << "a click takes the name";
    EXPECT_EQ(fake.files.count(Operation::Read), 0) << "and previews nothing";
    frmFile_Unload(browser, editor);

    showOpen();
    EXPECT_EQ(browser.BrowserFolder, fake.folder / "elsewhere/") << "the folder used last";
    EXPECT_THAT(listed(), ElementsAre("frame.els", "old.tpl"));
}

TEST_F(FileBrowserSaveTest, OfWhatCameFromTheProgramsFoldersIsOfferedInTheUsersOwn) {
    const std::string simulation = fake.folder / "program/Simulation Files/";
    fake.folder.makeFolder("program/Simulation Files");
    for (const std::string& folder : {editor.AppFilePath, simulation}) {
        editor.drawing.CurrentFolder = folder;
        showSave();
        EXPECT_EQ(browser.BrowserFolder, drawings) << folder;
        frmFile_Unload(browser, editor);
    }
}

TEST_F(FileBrowserSaveTest, ASaveThatFailsOrIsRefusedKeepsTheFormAndTheFormerName) {
    fake.folder.makeFolder("symbols");
    editor.UserSymbolsPath = fake.folder / "symbols/";
    editor.drawing.CurrentFolder = drawings;
    editor.drawing.CurrentFileName = "mine.els";
    placeLine();
    showSave();
    fake.files.failOnce(Operation::Replace, {failure::DiskFull, "No space left on device"});
    saveAs("copy");
    ASSERT_EQ(fake.reports.size(), 1u);
    EXPECT_EQ(fake.reports[0].text, "No space left on device");
    EXPECT_EQ(browser.lblNote.Caption, "The drawing was not saved. No space left on device");
    EXPECT_TRUE(browser.Visible);
    EXPECT_EQ(editor.drawing.CurrentFileName, "mine.els");
    EXPECT_TRUE(editor.drawing.DrawingChanged);
    fake.folder.write("drawings/other.els", "");
    FileList1_Refresh(browser, editor);
    click("other.els");
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 1) << "it is still a save: no preview";

    Dir1_Change(browser, editor, editor.UserSymbolsPath);
    saveAs("copy");
    EXPECT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_TRUE(browser.Visible);
    EXPECT_EQ(editor.drawing.CurrentFolder, drawings);
    EXPECT_THAT(fake.folder.entries("symbols"), IsEmpty());

    goToParentFolder(browser, editor);
    saveAs("copy");
    EXPECT_FALSE(browser.Visible);
    EXPECT_EQ(editor.drawing.CurrentFileName, "copy.els");
    EXPECT_TRUE(fake.folder.has("copy.els"));
}

TEST_F(FileBrowserSaveTest, AfterTheSaveOfAnUntitledDrawingTheSameFormOpensTheOther) {
    fake.folder.write("drawings/other.els", drawingText("8.5x11Portrait"));
    placeLine();
    fake.dialogs.answers = {Answer::Yes};
    fake.dialogs.duringForm = [&](Form) {
        showSave();
        saveAs("first");
        EXPECT_TRUE(browser.Visible);
        EXPECT_EQ(browser.Caption, "Opening File From...");
        EXPECT_TRUE(browser.cmdOpenOK.Visible);
        EXPECT_THAT(listed(), ElementsAre("first.els", "other.els"));
        doubleClick("other.els");
        EXPECT_FALSE(browser.Visible);
        frmFile_Unload(browser, editor);
    };
    mnuFileOpen_Click(editor);
    EXPECT_EQ(fake.dialogs.forms.size(), 1u);
    EXPECT_EQ(editor.drawing.CurrentFileName, "other.els");
    EXPECT_TRUE(fake.folder.has("drawings/first.els"));
}

TEST_F(FileBrowserFoldersTest, AFolderThatCannotBeReadIsReportedAndAVanishedOneGivesWay) {
    fake.folder.makeFolder("drawings/locked");
    fake.folder.makeFolder("drawings/a/b/c");
    showOpen();
    fake.files.fail(Operation::List, {failure::PermissionDenied, "Permission denied"}, "locked");
    doubleClick("locked");
    goToPath(browser, editor, "gone/deeper");
    ASSERT_EQ(fake.reports.size(), 2u);
    EXPECT_EQ(fake.reports[0].text, "Permission denied");
    EXPECT_EQ(browser.lblNote.Caption, fake.reports[1].text);
    EXPECT_EQ(browser.BrowserFolder, drawings) << "the present one stays";
    EXPECT_THAT(listed(), ElementsAre("a", "locked"));
    click("locked");
    EXPECT_EQ(browser.lblNote.Caption, "") << "it told of the step before";

    goToPath(browser, editor, "a/b/c");
    std::filesystem::remove_all(fake.folder.native("drawings/a/b"));
    FileList1_Refresh(browser, editor);
    EXPECT_EQ(browser.BrowserFolder, drawings + "a/") << "the nearest one above";
    std::filesystem::remove_all(fake.folder.native("drawings"));
    showOpen();
    EXPECT_EQ(browser.BrowserFolder, fake.folder.path());
    EXPECT_EQ(fake.reports.size(), 2u);
}

TEST_F(FileBrowserFoldersTest, ARefreshKeepsTheMarkOnItsNameOrTakesItAway) {
    fake.folder.write("drawings/b.els", drawingText("8.5x11Portrait", "B"));
    showOpen();
    click("b.els");
    fake.folder.write("drawings/a.els", "");
    FileList1_Refresh(browser, editor);
    EXPECT_EQ(browser.Selected, 1);
    EXPECT_TRUE(browser.PreviewShown);
    FileList1_ColumnClick(browser, BrowserOrder::Name);
    EXPECT_THAT(listed(), ElementsAre("b.els", "a.els"));
    EXPECT_EQ(browser.Selected, 0);
    std::filesystem::remove(fake.folder.native("drawings/b.els"));
    FileList1_Refresh(browser, editor);
    EXPECT_EQ(browser.Selected, -1);
    EXPECT_EQ(browser.BrowserFile, "");
    EXPECT_FALSE(browser.PreviewShown);
    EXPECT_FALSE(browser.cmdOpenOK.Enabled);
}

TEST_F(FileBrowserFoldersTest, NewFolderIsMadeAndMarked) {
    showSave();
    fake.dialogs.inputAnswers = {" Pumps ", "pumps", "a:b", "", std::nullopt};
    cmdNewFolder_Click(browser, editor);
    EXPECT_EQ(fake.dialogs.inputBoxes[0].prompt, "Please Enter a Name for the New Folder");
    EXPECT_THAT(listed(), ElementsAre("Pumps"));
    EXPECT_EQ(browser.Selected, 0);
    for (int i = 0; i < 4; ++i)
        cmdNewFolder_Click(browser, editor);
    const FakeDialogs::Box exists{"Folder Name Already Exists.", "Ladrix", Buttons::Ok};
    EXPECT_THAT(fake.dialogs.boxes, ElementsAre(exists, Illegal));
    EXPECT_THAT(fake.folder.entries("drawings"), ElementsAre("Pumps/"));

    fake.files.fail(Operation::MakeFolder, {failure::PermissionDenied, "Read-only file system"});
    fake.dialogs.inputAnswers = {"Fans"};
    cmdNewFolder_Click(browser, editor);
    ASSERT_EQ(fake.reports.size(), 1u);
    EXPECT_EQ(fake.reports[0].text, "Read-only file system");
}

}  // namespace
}  // namespace ladrix
