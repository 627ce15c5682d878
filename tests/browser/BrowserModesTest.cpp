// The browser in each of its modes but the drawing's own.
#include "browser/BrowserModes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "browser/BrowserFolders.h"
#include "browser/BrowserSaving.h"
#include "browser/DrawingSketch.h"
#include "browser/Favorites.h"
#include "browser/FileBrowser.h"
#include "canvas/file/DrawingCommands.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::FakeDialogs;
using test::Operation;
using testing::ElementsAre;
using testing::IsEmpty;

class BrowserModesTest : public testing::Test {
  protected:
    BrowserModesTest() {
        editor.AppFilePath = fake.folder / "program/";
        editor.BasePath = fake.folder / "base/";
        for (const char* name : {"d.els", "t.tpl", "w.html", "l.lst", "p.exe", "u.lib", "i.JPEG",
                                 "UserPreferences.upf", "other.upf", "out.pdf", "out.svg"})
            for (const char* folder : {"drawings/", "base/", "pictures/"})
                fake.folder.write(std::string(folder) + name, "8.5x11Portrait\r\n\r\n\r\n");
        fake.folder.makeFolder("drawings/sub");
        fake.folder.write("data/UserPreferences.upf", "mine");
        editor.drawing.CurrentFolder = fake.folder / "drawings/";
    }

    void show(BrowserMode mode) {
        browser.FileBrowserMode = mode;
        frmFile_Load(browser, editor, favorites,
                     {fake.folder / "drawings/", fake.folder / "pictures/", fake.folder / "data/",
                      fake.folder / "program/"});
    }
    std::vector<std::string> listed() const {
        std::vector<std::string> names;
        for (const FileEntry& entry : browser.entries)
            if (!entry.isFolder) names.push_back(entry.name);
        return names;
    }
    void click(std::string_view name) {
        for (std::size_t i = 0; i < browser.entries.size(); ++i)
            if (browser.entries[i].name == name)
                return FileList1_Click(browser, editor, static_cast<int>(i));
        ADD_FAILURE() << name << " is not listed";
    }
    void placeLine() {
        Device line;
        line.name = "InsertSavedLine";
        line.x2 = 3;
        RecordDevice(editor.drawing, fake.platform, line);
    }

    test::FakePlatform fake;
    Editor editor{fake.platform};
    FileBrowser browser;
    Favorites favorites;
};

TEST_F(BrowserModesTest, ListTheirFilesInTheirFoldersAndHandTheChoiceOver) {
    const struct {
        BrowserMode mode;
        std::vector<std::string> files;
        std::string folder, frame;
    } cases[] = {
        {BrowserMode::WebPage, {"w.html"}, "drawings/", "Drawing Preview"},
        {BrowserMode::List, {"l.lst"}, "drawings/", "Drawing Preview"},
        {BrowserMode::Program, {"p.exe"}, "drawings/", ""},
        {BrowserMode::Library, {"u.lib"}, "base/", "No Preview Available"},
        {BrowserMode::MergeLibrary, {"u.lib"}, "base/", "No Preview Available"},
        {BrowserMode::TransferLibrary, {"u.lib"}, "base/", "No Preview Available"},
        {BrowserMode::Backup, {"d.els", "t.tpl"}, "base/", "Drawing Preview"},
    };
    for (const auto& [mode, files, folder, frame] : cases) {
        SCOPED_TRACE(static_cast<int>(mode));
        show(mode);
        EXPECT_EQ(listed(), files);
        EXPECT_EQ(browser.BrowserFolder, fake.folder / folder);
        EXPECT_EQ(browser.framPreview.Visible, !frame.empty());
        EXPECT_TRUE(frame.empty() || browser.framPreview.Caption == frame);
        cmdOpenCancel_Click(browser, editor);
        EXPECT_FALSE(browser.Chosen);
        show(mode);
        click(files[0]);
        cmdOpenOK_Click(browser, editor);
        EXPECT_TRUE(browser.Chosen && !browser.Visible);
        EXPECT_EQ(browser.BrowserFolder + browser.BrowserFile, fake.folder / folder + files[0]);
        frmFile_Unload(browser, editor);
        EXPECT_EQ(browser.FileBrowserMode, BrowserMode::Drawing);
    }
    EXPECT_EQ(editor.drawing.CurrentFileName, "") << "nothing was opened";
}

TEST_F(BrowserModesTest, ALibrarysListStandsForItsFolder) {
    const auto folders = [&] {
        std::vector<std::string> names;
        for (const FileEntry& entry : browser.entries)
            if (entry.isFolder) names.push_back(entry.name);
        return names;
    };
    fake.folder.makeFolder("base/U");
    fake.folder.makeFolder("base/v");
    show(BrowserMode::TransferLibrary);
    EXPECT_THAT(folders(), ElementsAre("v"));
    FileList1_Refresh(browser, editor);
    EXPECT_THAT(folders(), ElementsAre("v"));
    show(BrowserMode::Backup);
    EXPECT_THAT(folders(), ElementsAre("U", "v"));
}

TEST_F(BrowserModesTest, LibrariesAndProgramsLeaveTheDrawingAlone) {
    placeLine();
    for (const BrowserMode mode : {BrowserMode::Program, BrowserMode::Library, BrowserMode::Picture,
                                   BrowserMode::RestorePreferences, BrowserMode::SaveExport}) {
        show(mode);
        click(listed().at(0));
        EXPECT_EQ(editor.drawing.devices.DeviceCount, 1) << static_cast<int>(mode);
        EXPECT_TRUE(editor.drawing.DrawingChanged) << static_cast<int>(mode);
        frmFile_Unload(browser, editor);
    }
}

TEST_F(BrowserModesTest, AnExportTakesItsTypeFromTheNameOrTheChoice) {
    editor.drawing.CurrentFileName = "Motor.els";
    show(BrowserMode::SaveExport);
    EXPECT_EQ(browser.txtSaveAs.Text, "Motor.pdf");
    optFileType_Click(browser, editor, 2);
    EXPECT_EQ(browser.txtSaveAs.Text, "Motor.png");
    EXPECT_THAT(listed(), IsEmpty());

    browser.SuggestedName = "out.svg";
    show(BrowserMode::SaveExport);
    EXPECT_EQ(browser.optFileType, 1);
    EXPECT_THAT(listed(), ElementsAre("out.svg"));
    fake.dialogs.answers = {Answer::No, Answer::Yes};
    cmdSaveAs_Click(browser, editor);
    EXPECT_FALSE(browser.Chosen);
    txtSaveAs_Change(browser, "OUT");
    cmdSaveAs_Click(browser, editor);
    EXPECT_TRUE(browser.Chosen);
    EXPECT_EQ(browser.BrowserFile, "out.svg") << "another spelling means the same file";
    EXPECT_EQ(editor.drawing.CurrentFileName, "Motor.els");
    EXPECT_EQ(fake.files.count(Operation::Replace), 0) << "the caller writes";
}

TEST_F(BrowserModesTest, AFolderIsTheOneMarkedOrShownOrMadeUnderTheNameInTheForm) {
    show(BrowserMode::Folder);
    EXPECT_THAT(listed(), IsEmpty());
    cmdOpenOK_Click(browser, editor);
    EXPECT_EQ(browser.BrowserFolder, fake.folder / "drawings/");
    show(BrowserMode::Folder);
    click("sub");
    cmdOpenOK_Click(browser, editor);
    EXPECT_TRUE(browser.Chosen);
    EXPECT_EQ(browser.BrowserFolder, fake.folder / "drawings/sub/");

    show(BrowserMode::Folder);
    for (const char* name : {"SUB", "a:b"}) {
        txtSaveAs_Change(browser, name);
        cmdNewFolder_Click(browser, editor);
    }
    ASSERT_EQ(fake.dialogs.boxes.size(), 2u);
    EXPECT_EQ(fake.dialogs.boxes[0].text,
              "Action cancelled. A folder with that name already exists.");
    EXPECT_EQ(fake.dialogs.boxes[1].title, "Illegal Filename");
    txtSaveAs_Change(browser, "fresh");
    cmdOpenOK_Click(browser, editor);
    EXPECT_TRUE(browser.Visible) << "made and marked, not yet chosen";
    cmdOpenOK_Click(browser, editor);
    EXPECT_EQ(browser.BrowserFolder, fake.folder / "drawings/fresh/");
    EXPECT_THAT(fake.dialogs.inputBoxes, IsEmpty());
}

TEST_F(BrowserModesTest, PreferencesAreCopiedOutAndAskBeforeTheyReplace) {
    show(BrowserMode::SavePreferences);
    EXPECT_EQ(browser.lblPrompt.Caption,
              "Select a location to save the User Preferences and click OK.");
    EXPECT_EQ(browser.txtSaveAs.Text, "UserPreferences");
    fake.dialogs.answers = {Answer::No};
    cmdSaveAs_Click(browser, editor);
    EXPECT_THAT(fake.dialogs.boxes,
                ElementsAre(FakeDialogs::Box{"Overwrite existing User Preferences File?",
                                             "Duplicate File Name", Buttons::YesNo}));
    EXPECT_NE(fake.folder.read("base/UserPreferences.upf"), "mine");
    fake.dialogs.answers = {Answer::Yes};
    fake.files.failOnce(Operation::Copy, {failure::DiskFull, "No space left on device"});
    cmdSaveAs_Click(browser, editor);
    EXPECT_EQ(fake.reports.size(), 1u);
    EXPECT_TRUE(browser.Visible && !browser.Chosen);
    fake.dialogs.answers = {Answer::Yes};
    cmdSaveAs_Click(browser, editor);
    EXPECT_EQ(fake.dialogs.boxes.back().text, "User Preferences Saved.");
    EXPECT_EQ(fake.folder.read("base/UserPreferences.upf"), "mine");
    EXPECT_TRUE(browser.Chosen);
}

TEST_F(BrowserModesTest, PreferencesAreRestoredFromElsewhereUnderTheirNameOnly) {
    fake.folder.write("base/UserPreferences.upf", "saved");
    show(BrowserMode::RestorePreferences);
    click("other.upf");
    cmdOpenOK_Click(browser, editor);
    EXPECT_TRUE(browser.Visible);
    Dir1_Change(browser, editor, fake.folder / "data");
    click("UserPreferences.upf");
    cmdOpenOK_Click(browser, editor);
    EXPECT_EQ(fake.dialogs.boxes.back().text,
              "Restoration not possible. Source and destiny file are\r\n"
              "one and the same. Please browse to another location.");
    EXPECT_TRUE(browser.Visible);
    EXPECT_EQ(fake.folder.read("data/UserPreferences.upf"), "mine");
    Dir1_Change(browser, editor, fake.folder / "base");
    click("UserPreferences.upf");
    cmdOpenOK_Click(browser, editor);
    EXPECT_TRUE(browser.Chosen);
    EXPECT_EQ(fake.folder.read("data/UserPreferences.upf"), "saved");
}

TEST_F(BrowserModesTest, APictureIsSeenAndPlacedAndADamagedOneIsToldOnce) {
    fake.folder.write("pictures/bad.bmp", "");
    fake.images.damaged = {"bad.bmp"};
    show(BrowserMode::Picture);
    EXPECT_THAT(listed(), ElementsAre("bad.bmp", "i.JPEG"));
    FileList1_DblClick(browser, editor, 0);
    EXPECT_THAT(fake.dialogs.boxes,
                ElementsAre(FakeDialogs::Box{"File structure corrupted and cannot be read.",
                                             "Bad File Structure", Buttons::Ok}));
    EXPECT_NE(browser.PreviewNote, "");
    EXPECT_TRUE(browser.Visible);
    click("i.JPEG");
    EXPECT_TRUE(browser.PreviewPicture);
    cmdOpenOK_Click(browser, editor);
    EXPECT_FALSE(browser.Visible);
    ASSERT_EQ(editor.drawing.PictureCount, 1);
    EXPECT_EQ(editor.drawing.PictureTable[0].FileName, "i.JPEG");
    EXPECT_EQ(fake.images.loaded.size(), 2u) << "read for the preview alone";
}

TEST_F(BrowserModesTest, ASketchLeavesTheOpenDrawingAloneAndTellsNothing) {
    placeLine();
    const std::string devices = editor.drawing.DeviceString;
    fake.folder.write("drawings/good.els", "11x17Landscape\r\n\r\n" + devices + "\r\n");
    fake.folder.write("drawings/noise.els", std::string(5000, '\x93') + "\r\n\r\n\x01");
    fake.folder.write("drawings/numbers.els", "8.5x11Portrait\r\n\r\nInsertLine\xFFx\xFFy\r\n\r\n");
    const auto sketch = readSketch(editor, fake.folder / "drawings/good.els");
    ASSERT_TRUE(sketch);
    EXPECT_EQ(sketch->page.PageWidth, 17);
    EXPECT_TRUE(readSketch(editor, fake.folder / "drawings/d.els")) << "an empty drawing";
    for (const char* name : {"numbers.els", "gone.els", "sub"})
        EXPECT_FALSE(readSketch(editor, fake.folder / "drawings/" + name)) << name;
    test::RecordingPage page;
    drawSketch(editor, *sketch, page);
    ASSERT_EQ(page.primitives.size(), 1u);
    EXPECT_EQ(page.primitives[0].x2, 3);
    EXPECT_EQ(editor.drawing.DeviceString, devices);
    EXPECT_TRUE(editor.drawing.DrawingChanged);
    EXPECT_THAT(fake.dialogs.boxes, IsEmpty());
    EXPECT_THAT(fake.reports, IsEmpty());
    // The large preview and Open take the same files for readable; noise is an empty drawing.
    const std::string drawings = fake.folder / "drawings/";
    for (const char* name : {"good.els", "d.els", "noise.els", "numbers.els", "gone.els", "sub"}) {
        const bool readable = readSketch(editor, drawings + name).has_value();
        EXPECT_EQ(ReadPreview(editor, drawings, name).has_value(), readable) << name;
        OpenNamedDrawing(editor, drawings, name);
        EXPECT_EQ(!editor.drawing.CurrentFileName.empty(), readable) << name;
    }
}

}  // namespace
}  // namespace ladrix
