#include "app/LibraryCommands.h"

#include <gtest/gtest.h>

#include "app/CommandTable.h"
#include "app/Startup.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/tools/Tools.h"
#include "support/FakePlatform.h"
#include "usersymbols/RemovedSymbols.h"

namespace ladrix {
namespace {

struct LibraryCommandsTest : testing::Test {
    test::FakePlatform fake;
    Program program{fake.platform};

    void write(const std::string& library, const std::vector<std::string>& names) {
        std::string list;
        fake.folder.makeFolder(library);
        for (const std::string& name : names) {
            fake.folder.write(library + "/" + name + ".uds", "Line:0:0:1:0\r\nDot:1:0:0\r\n");
            fake.folder.write(library + "/" + name + ".bmp", "BM");
            fake.folder.write(library + "/" + name + "_Cyan.bmp", "BM");
            list += name + "\r\n";
        }
        fake.folder.write(library + ".lib", list);
    }
    // What the user chooses in the file dialog.
    void chooses(const std::string& file) {
        fake.dialogs.duringForm = [this, file](Form) {
            program.frmFile.Chosen = true;
            program.frmFile.BrowserFolder = program.paths.BasePath;
            program.frmFile.BrowserFile = file;
        };
    }
};

TEST_F(LibraryCommandsTest, TheStartLoadsTheDefaultLibraryBehindTheBuiltInButtons) {
    write("documents/Ladrix/User Symbols", {"Ground", "Motor"});
    fake.folder.makeFolder("documents/Ladrix/Data Files");
    std::string preferences;
    for (int line = 0; line < 25; ++line)
        preferences += "Reserve Bit 00:\r\n";
    fake.folder.write("documents/Ladrix/Data Files/UserPreferences.upf",
                      preferences + "Reserve Bit 25:30\r\n");
    ASSERT_TRUE(startProgram(program));
    EXPECT_EQ(program.usersymbols.MaxSymbolsPerLibrary, 30 * 23);
    EXPECT_EQ(program.editor.form.cmdSym[93].Tag, "Motor");
    EXPECT_TRUE(fake.dialogs.boxes.empty());

    // A symbol that bears the name of a built-in one is itself.
    Editor& editor = program.editor;
    cmdSym_Click(editor, 92);
    picLX_MouseMove(editor, 0, 0, 2, 2);
    EXPECT_EQ(fake.picLX.temporary.size(), 2u);
    picLX_MouseDown(editor, LeftButton, 0, 2, 2);
    EXPECT_EQ(editor.drawing.devices.DeviceName,
              (std::vector<std::string>{"InsertSavedLine", "InsertSolidCircle"}));
    EXPECT_EQ(editor.UndoTop, 1);
}

TEST_F(LibraryCommandsTest, TheSampleLibraryIsOfferedOnce) {
    write("program/Sample Symbols", {"VFD"});
    ASSERT_TRUE(startProgram(program));
    EXPECT_TRUE(program.usersymbols.LibraryList.empty());
    chooses("Sample Symbols.lib");
    mnuLibOpen_Click(program);
    EXPECT_EQ(program.usersymbols.UserSymbolName, std::vector<std::string>{"VFD"});
    EXPECT_EQ(program.usersymbols.LibraryFolder, program.paths.BasePath);

    removeLibrary(fake.files, removalsFolder(fake.files, program.paths.BasePath),
                  {program.paths.BasePath, "Sample Symbols"});
    chooses("");
    mnuLibOpen_Click(program);
    EXPECT_FALSE(fake.folder.has("documents/Ladrix/Sample Symbols.lib"));
    EXPECT_TRUE(fake.dialogs.boxes.empty());
}

TEST_F(LibraryCommandsTest, AStartedSimulationHidesTheButtonsThatWereArranged) {
    write("documents/Ladrix/User Symbols", {"a", "b"});
    ASSERT_TRUE(startProgram(program));
    runCommand(program, Menu::mnuLibManageOrder);
    ASSERT_TRUE(program.editor.Arranging);
    runCommand(program, Menu::mnuSimCircuit0);
    EXPECT_TRUE(program.editor.SimulationMode);
    EXPECT_FALSE(program.editor.Arranging || program.usersymbols.cmdSaveSymbolOrder.Visible);
    EXPECT_FALSE(program.editor.form.cmdSym[92].Visible);
}

TEST_F(LibraryCommandsTest, ATransferAsksForItsTargetAndCanBeCancelled) {
    write("documents/Ladrix/User Symbols", {"a", "b"});
    write("documents/Ladrix/Other Symbols", {});
    ASSERT_TRUE(startProgram(program));
    mnuLibManageMove_Click(program);  // no button is under the menu
    EXPECT_TRUE(fake.dialogs.forms.empty());
    program.usersymbols.ContextButton = 92;
    mnuLibManageMove_Click(program);  // cancelled
    EXPECT_EQ(program.usersymbols.UserSymbolCount, 2);
    chooses("Other Symbols.lib");
    mnuLibManageMove_Click(program);
    EXPECT_EQ(program.usersymbols.UserSymbolName, std::vector<std::string>{"b"});
    EXPECT_EQ(fake.folder.read("documents/Ladrix/Other Symbols.lib"), "a\r\n");
}

}  // namespace
}  // namespace ladrix
