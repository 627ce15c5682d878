#include "app/Startup.h"

#include <gtest/gtest.h>

#include "app/LineOptions.h"
#include "app/Preferences.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/tools/PaletteButtons.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

struct StartTest : testing::Test {
    test::FakePlatform fake;
    Program program{fake.platform};

    const test::TemporaryFolder& disk() const { return fake.folder; }
    std::string documents(std::string_view name) const {
        return "documents/Ladrix/" + std::string(name);
    }
};

TEST_F(StartTest, AFirstRunMakesTheTreeSeedsItAndOpensWithoutAnyBox) {
    disk().write("program/Demo1.els", "one");
    disk().write("program/Title.tpl", "two");
    disk().write("program/readme.txt", "not a drawing");
    disk().write("program/Temp_Drawing.els", "the crash copy of a former run");

    ASSERT_TRUE(startProgram(program));

    EXPECT_TRUE(fake.dialogs.boxes.empty());
    EXPECT_TRUE(program.paths.FirstRun);
    EXPECT_EQ(
        disk().entries(documents("")),
        (std::vector<std::string>{"Bitmaps/", "Data Files/", "Drawings/", "Error Messages.txt"}));
    EXPECT_EQ(disk().entries(documents("Drawings")),
              (std::vector<std::string>{"Demo1.els", "Title.tpl"}));
    EXPECT_FALSE(program.editor.drawing.DrawingChanged);
    EXPECT_EQ(program.editor.form.Caption,
              "Ladrix - Current Library: User Symbols - File Name: Untitled");
}

TEST_F(StartTest, ASecondStartMakesOnlyWhatIsMissingAndReadsThePreferences) {
    std::string lines;
    for (int i = 10; i < 36; ++i)
        lines += "Reserve Bit 00:\r\n";
    fake.platform.locale.decimalMark = ',';
    disk().write("program/Demo1.els", "one");
    disk().write("program/UserPreferences.upf", "Reserve Bit 00:\r\n");
    disk().write(documents("Drawings/mine.els"), "mine");
    disk().write(documents("Data Files/UserPreferences.upf"), lines + "Reserve Bit 26:0,2\r\n");

    ASSERT_TRUE(startProgram(program));

    EXPECT_FALSE(program.paths.FirstRun);
    EXPECT_EQ(disk().entries(documents("Drawings")), (std::vector<std::string>{"mine.els"}));
    EXPECT_TRUE(disk().has(documents("Bitmaps")));
    EXPECT_FLOAT_EQ(program.editor.DashSpacing, 0.2f);
    EXPECT_EQ(program.UserPrefs.size(), 27u);
    EXPECT_EQ(program.editor.form.cmbScale.Text, "1,00") << "the mark of the locale";
    EXPECT_EQ(program.editor.form.cmbScale.List.front(), "0,25");
    EXPECT_EQ(program.editor.form.cmdSnap.Caption, "Snap: 0,25");
}

TEST_F(StartTest, AnotherInstanceEndsTheStartAfterItsMessage) {
    fake.shell.isOnlyInstance = false;
    EXPECT_FALSE(startProgram(program));
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_EQ(fake.dialogs.boxes[0].text,
              "Another instance of this application is currently running.");
    EXPECT_FALSE(disk().has(documents("")));
}

TEST_F(StartTest, AFolderThatCannotBeMadeIsReportedAndTheWindowOpens) {
    fake.files.fail(test::Operation::MakeFolder, {failure::PermissionDenied, "Permission denied"});
    EXPECT_TRUE(startProgram(program));
    ASSERT_FALSE(fake.dialogs.boxes.empty());
    EXPECT_NE(fake.dialogs.boxes[0].text.find("Main Sub, "), std::string::npos);
    EXPECT_NE(fake.dialogs.boxes[0].text.find("Permission denied"), std::string::npos);
    EXPECT_EQ(fake.dialogs.boxes[0].title, "Program Error");
    EXPECT_TRUE(program.editor.form.cmdSym[0].Visible);
}

TEST_F(StartTest, TheScreensWidthEndsTheProgramAndItsHeightChoosesThePalette) {
    fake.platform.screen.Width = 14399;
    EXPECT_FALSE(startProgram(program));
    ASSERT_EQ(fake.dialogs.boxes.size(), 2u);
    EXPECT_EQ(fake.dialogs.boxes[1].text,
              "The program will now close. Please change your screen seetings and try again.");
    for (const auto& [height, button] : {std::pair{11519.0f, 24u}, std::pair{11520.0f, 28u}}) {
        fake.platform.screen = {15360, height, 15, 15};
        Program next{fake.platform};
        ASSERT_TRUE(startProgram(next));
        EXPECT_EQ(next.editor.form.cmdSym[button].Tag, "General Purpose Switch, Normally Closed");
    }
}

TEST_F(StartTest, TheDiagnosticsNameTheFoldersAndStartAfreshEachRun) {
    disk().write(documents("Error Messages.txt"), "of the last run");
    ASSERT_TRUE(startProgram(program));
    const std::string text = disk().read(documents("Error Messages.txt"));
    EXPECT_TRUE(text.starts_with("Application Path: "));
    EXPECT_NE(text.find("Computer Name: TESTBENCH\r\n"), std::string::npos);
    EXPECT_NE(text.find("My Documents: " + program.paths.MyDocumentsPath), std::string::npos);
}

TEST_F(StartTest, PreferencesThatCannotBeAreReportedAndTheDefaultsStand) {
    std::string lines;
    for (int i = 0; i < 26; ++i)
        lines += "Reserve Bit 00:\r\n";
    for (const char* last :
         {"short", "Reserve Bit 26:wide", "Reserve Bit 26:-1", "Reserve Bit 26:0.000001"}) {
        disk().write(documents("Data Files/UserPreferences.upf"), lines + last);
        program.LastErrorText.clear();
        fake.dialogs.boxes.clear();
        ASSERT_TRUE(startProgram(program));
        EXPECT_EQ(fake.dialogs.boxes.size(), 1u) << last;
        EXPECT_FLOAT_EQ(program.editor.DashSpacing, 0.125f) << last;
    }
}

TEST_F(StartTest, ADashSpacingIsStoredInTheUsersMarkAndAnAbsurdOneIsTold) {
    fake.platform.locale.decimalMark = ',';
    ASSERT_TRUE(startProgram(program));
    struct Case {
        const char *typed, *stored, *box;
    };
    for (const Case& c : {Case{"0.5", "0,5", ""},
                          {"0,25", "0,25", ""},
                          {"wide", "0,25", "Expected a numeric value."},
                          {"0", "0,25", "The dash spacing must be at least 0,01 inches."},
                          {"1e-9", "0,25", "The dash spacing must be at least 0,01 inches."},
                          {"", "0,25", ""}}) {
        fake.dialogs.boxes.clear();
        fake.dialogs.inputAnswers = {c.typed};
        mnuOptDashedLineConstant_Click(program);
        EXPECT_EQ(fake.dialogs.boxes.empty() ? "" : fake.dialogs.boxes[0].text, c.box);
        EXPECT_EQ(program.UserPrefs.at(26), std::string("Reserve Bit 26:") + c.stored) << c.typed;
    }
    Program next{fake.platform};
    next.paths = program.paths;
    next.PrefsFolder = program.PrefsFolder;
    ReadUserPreferences(next);
    EXPECT_FLOAT_EQ(next.editor.DashSpacing, 0.25f);
}

TEST_F(StartTest, WithoutADocumentsFolderTheBaseIsTheFixedRootWithoutADataFolder) {
    fake.shell.folders[5] = "";
    settleFolders(program);
    EXPECT_EQ(program.paths.MyDocumentsPath, "/");
    EXPECT_TRUE(program.paths.BasePath.ends_with("/Ladrix/"));
    EXPECT_EQ(program.paths.BasePath.find("documents"), std::string::npos);
}

}  // namespace
}  // namespace ladrix
