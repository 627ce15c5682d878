#include "app/FileCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/CommandTable.h"
#include "app/Startup.h"
#include "browser/BrowserFolders.h"
#include "support/FakePlatform.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {
namespace {

using testing::ElementsAre;
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
