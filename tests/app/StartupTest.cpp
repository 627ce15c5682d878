#include "app/Startup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "app/LineOptions.h"
#include "app/Preferences.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/tools/PaletteButtons.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::Operation;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

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
    disk().write("program/Favorite Folders.hst", "/srv/pumps/\r\n");
    disk().write(documents("Drawings/mine.els"), "mine");
    disk().write(documents("Data Files/UserPreferences.upf"), lines + "Reserve Bit 26:0,2\r\n");

    ASSERT_TRUE(startProgram(program));

    EXPECT_FALSE(program.paths.FirstRun);
    EXPECT_EQ(disk().entries(documents("Drawings")), (std::vector<std::string>{"mine.els"}));
    EXPECT_TRUE(disk().has(documents("Bitmaps")));
    EXPECT_THAT(program.favorites.FavoriteFolders, ElementsAre("/srv/pumps/"));
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

TEST_F(StartTest, AFolderCheckThatFailsIsReported) {
    disk().makeFolder(documents("Drawings"));
    fake.files.failOnce(Operation::List, {failure::DeviceIO, "bad sector"});
    EXPECT_TRUE(startProgram(program));
    ASSERT_FALSE(fake.dialogs.boxes.empty());
    EXPECT_THAT(fake.dialogs.boxes[0].text,
                HasSubstr("Error encountered during Folder check. Folder Check: MySearchPath = " +
                          program.paths.BasePath + ": MyFolderName = Drawings: MyTestName = \r\n"));
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

// What the settings are after a start with these lines from the printer's name on; and the boxes.
struct Settings {
    std::string printer;
    std::optional<Short> number;
    Short weight = 2, rows = 22;
    Single dashes = 0.125f;
    std::vector<std::string> told = {};
};

TEST_F(StartTest, ALineThatCannotBeTakenIsNamedAndCostsOnlyItself) {
    const std::string bit = "Reserve Bit 00:", content(200, 'x');
    struct Case {
        std::vector<std::string> lines;
        Settings expected;
    };
    const Case cases[] = {
        {{bit + "Office", bit + "3", bit + "6", bit + "36", bit + "0.5"},
         {"Office", Short{3}, 6, 36, 0.5f}},
        {{bit, bit, bit, bit, bit}, {"", std::nullopt}},
        {{}, {"", std::nullopt}},
        {{bit + "Office", bit + "third", bit + "4", bit + "30", bit + "0,5"},
         {"Office", std::nullopt, 4, 30, 0.5f, {"Line 23, \"" + bit + "third\": "}}},
        {{"short", bit + "3", bit + "7", bit + "20", bit + "0.000001"},
         {"",
          Short{3},
          2,
          22,
          0.125f,
          {"Line 22, \"short\": It is too short.",
           "Line 24, \"" + bit + "7\": It must be from 1 to 6.",
           "Line 25, \"" + bit + "20\": It must be from 21 to 36.",
           "Line 26, \"" + bit + "0.000001\": It must be at least 0.01."}}},
        {{bit, bit + "40000", bit + "0", bit + content, bit + "-1"},
         {"",
          std::nullopt,
          2,
          22,
          0.125f,
          {"Line 23, ", "Line 24, ",
           "Line 25, \"" + bit + content.substr(0, 45) + "...\": ", "Line 26, "}}},
    };
    for (const Case& c : cases) {
        std::string text;
        for (int i = 0; i < 22; ++i)
            text += "kept\r\n";
        for (const std::string& line : c.lines)
            text += line + "\r\n";
        disk().write(documents("Data Files/UserPreferences.upf"), text);
        fake.dialogs.boxes.clear();
        Program next{fake.platform};
        ASSERT_TRUE(startProgram(next));
        const Settings& expected = c.expected;
        EXPECT_EQ(next.printing.SessionPrinterName, expected.printer);
        EXPECT_EQ(next.printing.SessionPrinterNumber, expected.number);
        EXPECT_EQ(next.printing.PrintLineWeight, expected.weight);
        EXPECT_EQ(next.editor.symbols.PrinterLineWidth, expected.weight);
        EXPECT_EQ(next.usersymbols.PaletteRows, expected.rows);
        EXPECT_FLOAT_EQ(next.editor.DashSpacing, expected.dashes);
        ASSERT_EQ(fake.dialogs.boxes.size(), expected.told.empty() ? 0u : 1u) << "one report";
        for (const std::string& line : expected.told)
            EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr(line));
        ASSERT_TRUE(SaveUserPreferences(next));
        EXPECT_EQ(disk().read(documents("Data Files/UserPreferences.upf")), text);
    }
}

TEST_F(StartTest, AFailedSaveOfThePreferencesLeavesTheFormerOnesBesideTheProgram) {
    const std::string former = "Reserve Bit 00:former\r\n";
    disk().write(documents("Data Files/UserPreferences.upf"), former);
    ASSERT_TRUE(startProgram(program));
    fake.files.fail(Operation::Replace, {failure::DiskFull, "full"}, "Data Files");
    StoreSetting(program, Setting::PaletteRows, "30");
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("Save User Preferences"));
    EXPECT_EQ(disk().read("program/Temp_UserPreferences.upf"), former);
    EXPECT_EQ(disk().read(documents("Data Files/UserPreferences.upf")), former);
    fake.files.heal();
    StoreSetting(program, Setting::PaletteRows, "30");
    EXPECT_FALSE(disk().has("program/Temp_UserPreferences.upf"));
    EXPECT_THAT(disk().read(documents("Data Files/UserPreferences.upf")),
                HasSubstr("Reserve Bit 25:30\r\n"));
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

struct Kill {};

// Ends the start at its change number `changes`, as a kill does. False if it has come to its end.
bool startIsKilled(test::FakePlatform& machine, int changes) {
    machine.files.beforeChange = [&changes] {
        if (changes-- == 0) throw Kill{};
    };
    bool killed = false;
    try {
        Program first{machine.platform};
        EXPECT_TRUE(startProgram(first));
    } catch (const Kill&) {
        killed = true;
    }
    machine.files.beforeChange = nullptr;
    return killed;
}

TEST(FirstStart, IsTakenUpWhereverItWasKilledAndNeverOnceItHasComeToItsEnd) {
    int kills = 0;
    for (bool killed = true; killed; ++kills) {
        test::FakePlatform machine;
        const test::TemporaryFolder& disk = machine.folder;
        disk.write("program/Demo1.els", "one");
        disk.write("program/Demo2.els", "two");
        disk.write("program/Title.tpl", "three");
        killed = startIsKilled(machine, kills);
        const auto start = [&] {
            Program next{machine.platform};
            EXPECT_TRUE(startProgram(next));
            EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
        };
        start();
        EXPECT_THAT(disk.entries("documents"), ElementsAre("Ladrix/")) << kills;
        EXPECT_THAT(disk.entries("documents/Ladrix"),
                    ElementsAre("Bitmaps/", "Data Files/", "Drawings/", "Error Messages.txt"));
        EXPECT_THAT(disk.entries("documents/Ladrix/Drawings"),
                    ElementsAre("Demo1.els", "Demo2.els", "Title.tpl"));
        EXPECT_EQ(disk.read("documents/Ladrix/Drawings/Title.tpl"), "three");

        disk.write("documents/Ladrix/Drawings/Demo1.els", "mine");
        std::filesystem::remove(disk.native("documents/Ladrix/Drawings/Demo2.els"));
        start();
        EXPECT_THAT(disk.entries("documents/Ladrix/Drawings"),
                    ElementsAre("Demo1.els", "Title.tpl"));
        EXPECT_EQ(disk.read("documents/Ladrix/Drawings/Demo1.els"), "mine");
    }
    EXPECT_GT(kills, 7);
}

TEST_F(StartTest, WhatCannotBeCopiedIsToldTogetherAndDoesNotKeepTheRestFromIt) {
    for (int i = 100; i < 125; ++i)
        disk().write("program/Bad" + std::to_string(i) + ".els", "unreadable");
    disk().write("program/Good.els", "one");
    disk().write("program/Title.tpl", "two");
    fake.files.fail(Operation::Copy, {failure::PermissionDenied, "may not be read"}, "Bad");
    ASSERT_TRUE(startProgram(program));
    EXPECT_THAT(disk().entries(documents("Drawings")), ElementsAre("Good.els", "Title.tpl"));
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u);
    const std::string& told = fake.dialogs.boxes[0].text;
    EXPECT_THAT(told, HasSubstr("Copying Existing Drawings"));
    EXPECT_THAT(told, HasSubstr("may not be read\r\nand 5 more"));
    EXPECT_TRUE(program.paths.FirstRun);
}

TEST_F(StartTest, ACrashCopyIsToldInTheMessageGuide) {
    ASSERT_TRUE(startProgram(program));
    const std::string usual = program.editor.form.lblMessage.Caption;
    EXPECT_THAT(usual, testing::Not(HasSubstr("crash")));
    disk().write("program/Temp_Drawing.els", "8.5x11Portrait\r\n\r\n");
    Program next{fake.platform};
    ASSERT_TRUE(startProgram(next));
    EXPECT_EQ(next.editor.form.lblMessage.Caption,
              "There is a crash copy of a former drawing. \"Restore File from Crash\" in the File "
              "menu brings it back.");
    EXPECT_THAT(fake.dialogs.boxes, IsEmpty());
}

struct FallbackTest : StartTest {
    FallbackTest() {
        disk().makeFolder("temporary");
        setMode("temporary", 01777);
        setenv("TMPDIR", disk().native("temporary").c_str(), 1);
        fake.shell.folders[5] = "";
    }
    ~FallbackTest() override {
        former.empty() ? unsetenv("TMPDIR") : setenv("TMPDIR", former.c_str(), 1);
    }
    void setMode(const std::string& name, mode_t mode) const {
        ASSERT_EQ(chmod(disk().native(name).c_str(), mode), 0);
    }
    mode_t modeOf(const std::string& name) const {
        struct stat info {};
        EXPECT_EQ(stat(disk().native(name).c_str(), &info), 0) << name;
        return info.st_mode & 07777;
    }

    const std::string former = getenv("TMPDIR") ? getenv("TMPDIR") : "";
    const std::string own = "temporary/ladrix-" + std::to_string(geteuid());
};

TEST_F(FallbackTest, WithoutADocumentsFolderTheBaseIsTheUsersOwnInTheFixedRoot) {
    disk().write("program/Demo1.els", "one");
    settleFolders(program);
    EXPECT_EQ(program.paths.MyDocumentsPath, "/");
    EXPECT_EQ(program.paths.BasePath, disk() / "temporary/Ladrix/");
    EXPECT_EQ(program.paths.DataFilesPath, disk() / "temporary/Ladrix/Data Files/");
    EXPECT_EQ(modeOf("temporary/Ladrix"), 0700u);
    EXPECT_THAT(disk().entries("temporary/Ladrix/Drawings"), IsEmpty());
    EXPECT_TRUE(program.paths.FirstRun);

    Program next{fake.platform};
    settleFolders(next);
    EXPECT_EQ(next.paths.DrawingsPath, disk() / "temporary/Ladrix/Drawings/");
    EXPECT_EQ(next.paths.DataFilesPath, "") << "as it was";
    EXPECT_FALSE(next.paths.FirstRun);
}

TEST_F(FallbackTest, AFolderThatOthersCanChangeIsNotUsed) {
    disk().makeFolder("temporary/Ladrix");
    setMode("temporary/Ladrix", 0777);
    settleFolders(program);
    EXPECT_EQ(program.paths.BasePath, disk() / own + "/Ladrix/");
    EXPECT_EQ(modeOf(own), 0700u);
    EXPECT_THAT(disk().entries("temporary/Ladrix"), IsEmpty());

    setMode(own, 0770);
    Program next{fake.platform};
    ASSERT_TRUE(startProgram(next));
    ASSERT_FALSE(fake.dialogs.boxes.empty());
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("Main Sub, "));
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("that you alone may write to"));
    EXPECT_EQ(next.paths.BasePath, "");
}

}  // namespace
}  // namespace ladrix
