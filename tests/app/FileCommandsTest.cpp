#include "app/FileCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/CommandTable.h"
#include "app/PageCommands.h"
#include "app/Startup.h"
#include "app/UserPaletteCommands.h"
#include "browser/BrowserFolders.h"
#include "support/FakePlatform.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class FileCommandsTest : public testing::Test {
  protected:
    // A person who clicks the file of this name in the form and presses OK.
    void choose(const std::string& folder, const std::string& file) {
        fake.dialogs.duringForm = [=, this](Form) {
            loadBrowser(program);
            goToPath(program.frmFile, program.editor, folder + file);
            cmdOpenOK_Click(program.frmFile, program.editor);
            frmFile_Unload(program.frmFile, program.editor);
        };
    }

    test::FakePlatform fake;
    Program program{fake.platform};
};

TEST_F(FileCommandsTest, RestoredPreferencesAreInForceAtOnce) {
    ASSERT_TRUE(startProgram(program));
    UserSymbols& symbols = program.usersymbols;
    symbols.UserSymbolCount = 22;
    symbols.UserSymbolName.resize(22);
    symbols.UserSymbolPicture.resize(22);
    symbols.UserSymbolCyanPicture.resize(22);
    std::string lines;
    for (int i = 0; i < 25; ++i)
        lines += "Reserve Bit 00:\r\n";
    struct Case {
        std::string rows, dashes;
        int columns;
        Single spacing;
    };
    for (const auto& [rows, dashes, columns, spacing] :
         {Case{"21", "0.5", 2, 0.5f}, Case{"", "", 1, 0.125f}}) {
        fake.folder.write("stick/UserPreferences.upf", lines + "Reserve Bit 25:" + rows +
                                                           "\r\nReserve Bit 26:" + dashes + "\r\n");
        choose(fake.folder / "stick/", "UserPreferences.upf");
        runCommand(program, Menu::mnuOptRestorePreferences);
        EXPECT_EQ(program.editor.DashSpacing, spacing);
        EXPECT_EQ(userColumns(symbols), columns);
        EXPECT_EQ(program.PrefsFolder, program.paths.DataFilesPath);
    }
    program.editor.DashSpacing = 0.25f;
    fake.dialogs.duringForm = [&](Form) {
        loadBrowser(program);
        cmdOpenCancel_Click(program.frmFile, program.editor);
        frmFile_Unload(program.frmFile, program.editor);
    };
    runCommand(program, Menu::mnuOptRestorePreferences);
    EXPECT_EQ(program.editor.DashSpacing, 0.25f) << "a cancelled restore reads nothing";
}

TEST_F(FileCommandsTest, PreferencesThatCannotBeReadAreLeftAloneUntilTheyCan) {
    const std::string file = "documents/Ladrix/Data Files/UserPreferences.upf";
    const std::string former = "Reserve Bit 00:precious\r\n";
    fake.folder.write(file, former);
    fake.files.fail(test::Operation::Read, {failure::DeviceIO, "bad sector"}, "Data Files/User");
    ASSERT_TRUE(startProgram(program));
    ASSERT_EQ(fake.dialogs.boxes.size(), 1u) << "told once";
    EXPECT_THAT(fake.dialogs.boxes[0].text, HasSubstr("bad sector"));
    fake.dialogs.inputAnswers = {"0.25"};
    runCommand(program, Menu::mnuOptDashedLineConstant);
    program.usersymbols.frmUBRows.cmbRows.Text = "30";
    frmUBRows_cmdSave_Click(program);
    cmdDefaultPrinter_Click(program);
    EXPECT_EQ(fake.folder.read(file), former);
    EXPECT_FALSE(fake.folder.has("program/Temp_UserPreferences.upf"));
    EXPECT_EQ(program.editor.DashSpacing, 0.25f) << "for this run";
    ASSERT_GE(fake.dialogs.boxes.size(), 2u);
    EXPECT_THAT(fake.dialogs.boxes[1].text,
                HasSubstr("What could not be read is not written over. bad sector"));

    // A restore puts another file there; what could not be read is kept beside it.
    fake.folder.write("stick/UserPreferences.upf", "Reserve Bit 00:restored\r\n");
    choose(fake.folder / "stick/", "UserPreferences.upf");
    runCommand(program, Menu::mnuOptRestorePreferences);
    EXPECT_EQ(fake.folder.read(file), "Reserve Bit 00:restored\r\n");
    EXPECT_EQ(fake.folder.read("documents/Ladrix/Data Files/Unreadable UserPreferences.upf"),
              former);
    fake.files.heal();
    frmUBRows_cmdSave_Click(program);
    EXPECT_TRUE(fake.folder.read(file).starts_with("Reserve Bit 00:restored\r\nReserve Bit 01:"));
    EXPECT_TRUE(fake.folder.read(file).ends_with("Reserve Bit 25:30\r\n"));
}

TEST_F(FileCommandsTest, APictureIsLookedForInTheUsersPicturesAtFullScaleOnly) {
    fake.folder.write("pictures/logo.bmp", "BM");
    fake.shell.folders[39] = fake.folder / "pictures";
    ASSERT_TRUE(startProgram(program));
    choose("", "logo.bmp");
    program.editor.ZoomFactor = 0.5f;
    runCommand(program, Menu::mnuInsertPicture);
    EXPECT_THAT(fake.dialogs.forms, IsEmpty());
    program.editor.ZoomFactor = 1;
    runCommand(program, Menu::mnuInsertPicture);
    EXPECT_THAT(fake.dialogs.forms, ElementsAre(Form::frmFile));
    ASSERT_EQ(program.editor.drawing.PictureCount, 1);
    EXPECT_EQ(program.editor.drawing.PictureTable[0].FullPath, fake.folder / "pictures/logo.bmp");
}

}  // namespace
}  // namespace ladrix
