#include "app/FailureLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "app/LibraryCommands.h"
#include "app/Preferences.h"
#include "app/Startup.h"
#include "browser/PreferencesCopy.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

const std::string LogName = "Error Log.txt";

struct FailureLogTest : testing::Test {
    test::FakePlatform fake;
    Program program{fake.platform};

    void SetUp() override {
        ASSERT_TRUE(startProgram(program));
        fake.platform.locale.generalDate = [] { return "2011-01-10 12:00:00"; };
    }
    std::string log() const {
        return fake.folder.read("documents/Ladrix/Data Files/Error Log.txt");
    }
    bool hasLog() const { return fake.folder.has("documents/Ladrix/Data Files/Error Log.txt"); }
    void report(std::string_view description) {
        fake.platform.ReportError(description, {failure::DiskFull, "No space left on device"});
    }
};

constexpr std::string_view Entry =
    "2011-01-10 12:00:00\r\nSaving\r\nError Number: 61\r\nError Description: No space left on "
    "device\r\n\r\n";

TEST_F(FailureLogTest, ARepeatedFailureShowsOneBoxAndLogsTwoEntries) {
    fake.dialogs.answers = {Answer::Ok};
    report("Saving");
    report("Saving");
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_EQ(fake.dialogs.boxes[0].title, "Program Error");
    EXPECT_EQ(fake.dialogs.boxes[0].text,
              std::string(Entry) +
                  "\r\nIf this error keeps occurring, please upgrade the software. Look\r\nunder "
                  "Help for more details about upgrading.");
    EXPECT_EQ(log(), std::string(Entry) + std::string(Entry));
}

TEST_F(FailureLogTest, FailuresInTurnShowABoxEachTimeAndAreLoggedOnOkOnly) {
    fake.dialogs.answers = {Answer::Cancel, Answer::Cancel};
    report("A");
    report("B");
    EXPECT_FALSE(hasLog());
    fake.dialogs.answers = {Answer::Ok};
    fake.files.fail(test::Operation::Append, {failure::PermissionDenied, "no"});
    report("A");
    EXPECT_EQ(fake.dialogs.boxes.size(), 3u) << "a failure to log brings up no second report";
}

TEST_F(FailureLogTest, TheViewerShowsTheLogAndHandsItOverWithTheDrawing) {
    fake.dialogs.answers = {Answer::Ok};
    report("Saving");
    fake.folder.write("documents/Ladrix/Drawings/pump.els", "the drawing");
    fake.folder.write("documents/Ladrix/pump.els", "an older copy");
    program.editor.drawing.CurrentFolder = program.paths.DrawingsPath;
    program.editor.drawing.CurrentFileName = "pump.els";

    mnuAdminViewErrorLog_Click(program);
    EXPECT_EQ(fake.dialogs.forms, std::vector<Form>{Form::frmLog});
    EXPECT_EQ(program.frmLog.txtLog, Entry);

    frmLog_cmdExport_Click(program);
    EXPECT_EQ(fake.folder.read("documents/Ladrix/Error Log.txt"), Entry);
    EXPECT_EQ(fake.folder.read("documents/Ladrix/pump.els"), "the drawing");
    EXPECT_EQ(fake.dialogs.boxes.back().title, "Error Log Transferred");

    program.editor.drawing.CurrentFolder = program.paths.BasePath;
    frmLog_cmdExport_Click(program);
    EXPECT_EQ(fake.folder.read("documents/Ladrix/pump.els"), "the drawing") << "upon itself";

    frmLog_cmdView_Click(program);
    EXPECT_EQ(fake.shell.opened, std::vector<std::string>{program.paths.DataFilesPath + LogName});
}

TEST_F(FailureLogTest, WithoutALogNothingIsExportedAndAFormerExportStays) {
    fake.folder.write("documents/Ladrix/Error Log.txt", "exported last year");
    frmLog_cmdExport_Click(program);
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_EQ(fake.dialogs.boxes[0].text, "There is no error log to export.");
    EXPECT_EQ(fake.folder.read("documents/Ladrix/Error Log.txt"), "exported last year");
}

// Whatever fails, the originals stay as they are, and what is left of the copies is not out of
// date.
TEST_F(FailureLogTest, AnExportThatFailsIsToldAndTakesAwayNothingButFormerCopies) {
    fake.folder.write("documents/Ladrix/Data Files/Error Log.txt", "the log");
    fake.folder.write("documents/Ladrix/Drawings/pump.els", "the drawing");
    // The same folder by another name: what looks like a former copy is the drawing itself.
    std::filesystem::create_directory_symlink(fake.folder.native("documents/Ladrix"),
                                              fake.folder.native("alias"));
    fake.folder.write("documents/Ladrix/own.els", "at home in the base folder");
    struct Case {
        std::string folder, name;
        test::Operation operation;
        std::string part, log, copy;  // what is left of the copies
    };
    const Case cases[] = {
        {program.paths.DrawingsPath, "pump.els", test::Operation::Read, "pump.els", "old", "old"},
        {program.paths.DrawingsPath, "pump.els", test::Operation::Remove, "", "old", "old"},
        {program.paths.DrawingsPath, "pump.els", test::Operation::Replace, "", "", ""},
        {program.paths.DrawingsPath, "pump.els", test::Operation::Replace, ".els", "the log", ""},
        {fake.folder / "alias/", "own.els", test::Operation::Replace, "", "",
         "at home in the base folder"},
    };
    for (const Case& c : cases) {
        fake.folder.write("documents/Ladrix/Error Log.txt", "old");
        fake.folder.write("documents/Ladrix/pump.els", "old");
        program.editor.drawing.CurrentFolder = c.folder;
        program.editor.drawing.CurrentFileName = c.name;
        program.LastErrorText.clear();
        fake.dialogs.boxes.clear();
        fake.files.fail(c.operation, {failure::DiskFull, "No space left on device"}, c.part);
        frmLog_cmdExport_Click(program);
        fake.files.heal();
        ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
        EXPECT_NE(fake.dialogs.boxes[0].text.find("Export Error Log"), std::string::npos);
        const auto left = [&](const std::string& name) {
            return fake.folder.has("documents/Ladrix/" + name)
                       ? fake.folder.read("documents/Ladrix/" + name)
                       : std::string();
        };
        EXPECT_EQ(left("Error Log.txt"), c.log) << c.part;
        EXPECT_EQ(left(c.name), c.copy) << c.part;
        EXPECT_EQ(log(), "the log");
        EXPECT_EQ(fake.folder.read("documents/Ladrix/Drawings/pump.els"), "the drawing");
    }
}

// A bare name would be a file wherever the program was started from.
TEST_F(FailureLogTest, WithoutADataFolderNothingIsLoggedOrKeptInTheWorkingFolder) {
    const std::filesystem::path former = std::filesystem::current_path();
    fake.folder.makeFolder("working");
    std::filesystem::current_path(fake.folder.native("working"));
    fake.folder.write("stick/UserPreferences.upf", "Reserve Bit 00:\r\n");
    program.paths = {};
    program.PrefsFolder.clear();
    program.editor.AppFilePath.clear();

    fake.dialogs.answers = {Answer::Ok};
    report("Saving");
    appendErrorMessage(program, "a line");
    mnuAdminViewErrorLog_Click(program);
    EXPECT_EQ(program.frmLog.txtLog, "");
    frmLog_cmdView_Click(program);
    EXPECT_TRUE(fake.shell.opened.empty());
    StoreSetting(program, Setting::PaletteRows, "30");
    program.favorites.FavoriteFolders = {"/a/"};
    SaveFavorites(program.favorites, program.frmFile, program.editor);
    program.editor.drawing.CurrentFolder = "/srv/";
    program.editor.drawing.CurrentFileName = "a.els";
    KeepRecentFile(program);
    offerSampleLibrary(program);
    program.frmFile.BrowserFolder = fake.folder / "stick/";
    program.frmFile.BrowserFile = "UserPreferences.upf";
    restorePreferences(program.frmFile, program.editor);
    savePreferencesCopy(program.frmFile, program.editor, "copy.upf");

    std::filesystem::current_path(former);
    EXPECT_EQ(fake.folder.entries("working"), std::vector<std::string>{});
    for (const char* told : {"View Error Log", "Save User Preferences", "SaveFavorite Folders",
                             "Restore User Preferences"})
        EXPECT_TRUE(
            std::any_of(fake.dialogs.boxes.begin(), fake.dialogs.boxes.end(),
                        [&](const auto& box) { return box.text.find(told) != std::string::npos; }))
            << told;
}

}  // namespace
}  // namespace ladrix
