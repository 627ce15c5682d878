#include "usersymbols/UserPalette.h"

#include "LibraryBench.h"
#include "usersymbols/Compiler.h"
#include "usersymbols/LibManager.h"
#include "usersymbols/RemovedSymbols.h"
#include "usersymbols/SavingForms.h"
#include "usersymbols/UserButtonOrder.h"

namespace ladrix {
namespace {

struct UserPaletteTest : test::LibraryBench {
    ButtonCell cell(int symbol) const {
        return cellOf(symbols, symbols.UserButtonPlace[static_cast<std::size_t>(symbol)]);
    }
    Short button(int symbol) const { return static_cast<Short>(symbols.FirstUserButton + symbol); }
    void drag(int from, int to) {
        ASSERT_TRUE(beginButtonDrag(symbols, editor, button(from)));
        cmdSym_DragDrop(symbols, editor, to < 0 ? Short{5} : button(to));
    }
};

TEST_F(UserPaletteTest, ColumnsFillFromTheTopAndScrollByOne) {
    write("User Symbols", test::numbered(49));
    symbols.PaletteRows = 24;
    load();
    EXPECT_EQ(symbols.FirstUserButton, 92);
    EXPECT_EQ(symbols.LastUserButton, 92 + 49);
    EXPECT_EQ(cell(23), (ButtonCell{0, 23}));
    EXPECT_EQ(cell(24), (ButtonCell{1, 0}));
    EXPECT_EQ(cell(48), (ButtonCell{2, 0}));
    EXPECT_EQ(symbols.UserButtonPlace[25].Top - symbols.UserButtonPlace[24].Top, 435);

    cmdNext_Click(symbols, editor);
    EXPECT_EQ(cell(24), (ButtonCell{0, 0}));
    EXPECT_EQ(editor.form.cmdSym[92].Left, symbols.UserButtonPlace[0].Left) << "buttons follow";
    LayOutUserButtons(symbols, editor);
    EXPECT_EQ(cell(0).column, -1) << "a change of the same library keeps the scroll";
    showUserButton(symbols, editor, button(48), 1);
    EXPECT_EQ(cell(48).column, 0);
    showUserButton(symbols, editor, button(0), 1);
    EXPECT_EQ(cell(0).column, 0);

    cmdPrev_Click(symbols, editor);
    write("Other Symbols", {"A"});
    ListUserLibraries(symbols, editor);
    OpenUserLibrary(symbols, editor, editor.BasePath, "Other Symbols.lib");
    EXPECT_EQ(cell(0), (ButtonCell{0, 0})) << "another library begins at the left";
    EXPECT_FALSE(editor.form.cmdSym[93].Visible);
}

TEST_F(UserPaletteTest, NothingScrollsWithoutSymbols) {
    write("User Symbols", {});
    load();
    const Single left = symbols.UserButtonLeft;
    cmdNext_Click(symbols, editor);
    cmdPrev_Click(symbols, editor);
    EXPECT_EQ(symbols.UserButtonLeft, left);
}

TEST_F(UserPaletteTest, ARightPressBelongsToAUserButtonAlone) {
    write("User Symbols", {"A"});
    load();
    openUserButtonMenu(symbols, editor, 91);
    EXPECT_TRUE(dialogs.popUps.empty());
    editor.form.menu[Menu::mnuLibManageDelete].Enabled = false;
    openUserButtonMenu(symbols, editor, 92);
    EXPECT_EQ(symbols.ContextButton, 92);
    EXPECT_EQ(dialogs.popUps, std::vector<std::string>{"mnuLibManage"});
    EXPECT_TRUE(editor.form.menu[Menu::mnuLibManageDelete].Enabled);
}

TEST_F(UserPaletteTest, DraggedButtonsTakeTheirPlacesAndAreSavedInOneGo) {
    write("User Symbols", {"A", "B", "C", "D"});
    load();
    EXPECT_FALSE(beginButtonDrag(symbols, editor, button(0))) << "not in the mode";
    mnuLibManageOrder_Click(symbols, editor);
    EXPECT_EQ(lastBox(),
              "Click and Drag the button to its new position. Click \"Save User Symbol Order\" "
              "when through.");
    EXPECT_FALSE(beginButtonDrag(symbols, editor, 91));
    struct {
        int from, to;
        const char* order;
    } const moves[] = {{0, 2, "B C A D"}, {3, 1, "B D C A"}, {2, 2, "B D C A"}, {1, -1, "B D C A"}};
    for (const auto& move : moves) {
        drag(move.from, move.to);
        EXPECT_EQ(tags(), move.order) << move.from << " to " << move.to;
    }
    EXPECT_EQ(symbols.UserSymbolFile[0], "B.uds") << "the script goes with its name";
    EXPECT_EQ(list("User Symbols"), "A B C D") << "unsaved";

    machine.files.fail(test::Operation::Replace, {failure::DiskFull, "full"}, ".lib");
    cmdSaveSymbolOrder_Click(symbols, editor);
    EXPECT_EQ(machine.reports.size(), 1u);
    EXPECT_TRUE(editor.Arranging) << "what was arranged is still there to be saved";
    EXPECT_EQ(tags(), "B D C A");
    machine.files.heal();
    cmdSaveSymbolOrder_Click(symbols, editor);
    EXPECT_FALSE(editor.Arranging);
    EXPECT_FALSE(symbols.cmdSaveSymbolOrder.Visible);
    EXPECT_EQ(list("User Symbols"), "B D C A");
    EXPECT_EQ(tags(), "B D C A");
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
}

TEST_F(UserPaletteTest, ASimulationEndsTheOrderModeAndNoButtonComesBackMeanwhile) {
    write("User Symbols", {"A", "B"});
    load();
    leaveButtonOrder(symbols, editor);
    EXPECT_EQ(machine.files.count(test::Operation::Replace), 0) << "nothing outside the mode";
    mnuLibManageOrder_Click(symbols, editor);
    drag(0, 1);
    EXPECT_EQ(tags(), "B A");
    leaveButtonOrder(symbols, editor);
    EXPECT_FALSE(editor.Arranging || symbols.cmdSaveSymbolOrder.Visible);
    EXPECT_EQ(tags(), "A B") << "it was not saved";
    EXPECT_EQ(list("User Symbols"), "A B");
    editor.SimulationMode = true;
    ReloadLibrary(symbols, editor);
    EXPECT_FALSE(editor.form.cmdSym[92].Visible);
    EXPECT_EQ(editor.form.cmdSym[92].Tag, "A") << "shown when it ends";
}

struct SavingFormsTest : UserPaletteTest {
    SavingFormsTest() {
        write("User Symbols", {"A", "B"});
        load();
    }
    void compileAndName(const std::string& name) {
        makeIconPictures(symbols, machine.platform);
        symbols.compiler.SymbolScriptText = "new";
        symbols.frmUS.Visible = true;
        symbols.frmUS.txtSymbolName.Text = name;
        frmUS_cmdSave_Click(symbols, editor);
    }
};

TEST_F(SavingFormsTest, ASymbolIsSavedUnderAFreeName) {
    compileAndName("");
    EXPECT_TRUE(symbols.frmUS.Visible);
    compileAndName("a/b");
    EXPECT_EQ(dialogs.boxes.back().title, "Illegal Filename");
    EXPECT_TRUE(symbols.frmUS.Visible);
    compileAndName("C");
    EXPECT_FALSE(symbols.frmUS.Visible);
    EXPECT_EQ(lastBox(), "Symbol Saved");
    EXPECT_EQ(list("User Symbols"), "A B C");
    EXPECT_EQ(tags(), "A B C");
    EXPECT_EQ(editor.form.lblMessage.Caption, "Symbol Saved. Hit ESC to reset the drawing.");
    symbols.compiler.SymbolScriptLines = {"Line", ""};
    compileAndName("D");
    EXPECT_NE(editor.form.lblMessage.Caption.find("it will draw nothing"), std::string::npos);
}

TEST_F(SavingFormsTest, TheFirstSymbolsLibraryIsKnownAtOnce) {
    removeLibrary(machine.files, removalsFolder(machine.files, editor.BasePath),
                  {editor.BasePath, "User Symbols"});
    load();
    ASSERT_TRUE(symbols.LibraryList.empty());
    compileAndName("first");
    EXPECT_EQ(symbols.LibraryList, std::vector<std::string>{"User Symbols.lib"});
    StepUserLibrary(symbols, editor, 1);
    EXPECT_EQ(tags(), "first");
    LibManager manager;
    mnuLibManageUserLibraries_Click(manager, symbols, editor);
    EXPECT_EQ(manager.lstDestinationLibrary.List, symbols.LibraryList);
}

TEST_F(SavingFormsTest, ATakenNameIsAskedAbout) {
    dialogs.answers = {Answer::No};
    compileAndName("a");
    EXPECT_EQ(dialogs.boxes.back(),
              (test::FakeDialogs::Box{"File already exists. Overwrite?", "Duplicate File Name",
                                      Buttons::YesNo}));
    EXPECT_TRUE(symbols.frmUS.Visible);
    EXPECT_EQ(symbols.frmUS.txtSymbolName.SelectAllRequests, 1);
    EXPECT_EQ(list("User Symbols"), "A B");
    dialogs.answers = {Answer::Yes};
    compileAndName("A");
    EXPECT_EQ(list("User Symbols"), "B A");
    EXPECT_EQ(disk.read("documents/User Symbols/A.uds"), "new");
}

TEST_F(SavingFormsTest, WhatCannotBeWrittenStaysInTheForm) {
    machine.files.fail(test::Operation::Replace, {failure::DiskFull, "full"});
    compileAndName("C");
    EXPECT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(editor.form.lblMessage.Caption, "The symbol was not saved. full");
    EXPECT_TRUE(symbols.frmUS.Visible);
    EXPECT_EQ(symbols.compiler.SymbolScriptText, "new");
    EXPECT_EQ(list("User Symbols"), "A B");
}

TEST_F(SavingFormsTest, TheButtonsColourIsOneOfSixtyFour) {
    symbols.ButtonBackColor = 0xFF00;
    frmButtonColor_Load(symbols);
    const FormButtonColor& form = symbols.frmButtonColor;
    EXPECT_EQ(form.cmdBackColor.BackColor, 0xFF00);
    EXPECT_EQ(form.cmdColor[0].BackColor, White);
    for (std::size_t i = 1; i < form.cmdColor.size(); ++i)
        EXPECT_NE(form.cmdColor[i].BackColor, form.cmdColor[i - 1].BackColor) << i;
    cmdColor_Click(symbols, 10);
    EXPECT_EQ(symbols.ButtonBackColor, 0xFF00) << "not before OK";
    frmButtonColor_cmdOK_Click(symbols, editor);
    EXPECT_EQ(symbols.ButtonBackColor, form.cmdColor[10].BackColor);
    EXPECT_EQ(editor.form.lblMessage.Caption,
              "Please Select an Insertion Point for your Symbol (X-Y Coordinates)");
}

}  // namespace
}  // namespace ladrix
