#include "usersymbols/LibManager.h"

#include "LibraryBench.h"

namespace ladrix {
namespace {

struct LibManagerTest : test::LibraryBench {
    LibManager manager;

    LibManagerTest() {
        write("User Symbols", {"A", "B", "C"});
        write("Other Symbols", {"B", "D"});
        load();
        mnuLibManageUserLibraries_Click(manager, symbols, editor);
    }
    void select(const std::vector<Short>& rows) {
        for (const Short row : rows)
            frmLibManager_cmdSym_Click(manager, row);
    }
    // "User Symbols.lib" stands behind "Other Symbols.lib".
    void chooseDestination(int row) { lstDestinationLibrary_Click(manager, editor, row); }
    void open(const std::string& file) {
        manager.cmbSourceLibrary.Text = file;
        cmdOpen_Click(manager, symbols, editor);
    }
};

TEST_F(LibManagerTest, TheFormOpensOnTheCurrentLibrary) {
    EXPECT_EQ(manager.ManagerSourceFile, "User Symbols.lib");
    EXPECT_EQ(manager.ManagerSymbolName, (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_EQ(manager.cmbScale.Text, "1.00");
    EXPECT_EQ(manager.cmbScale.List.size(), 10u);
    EXPECT_FALSE(manager.cmdCopy.Enabled || manager.cmdMove.Enabled || manager.cmdDelete.Enabled);
    select({2, 0});
    EXPECT_EQ(manager.lstSelected.List, (std::vector<std::string>{"A", "C"}));
    EXPECT_EQ(manager.ManagerCurrent, 0);
    select({0});
    EXPECT_EQ(manager.ManagerSelectedCount, 1);
    EXPECT_TRUE(manager.cmdDelete.Enabled);
}

TEST_F(LibManagerTest, AnotherSourceIsAskedAboutWhileSymbolsAreSelected) {
    select({0});
    dialogs.answers = {Answer::No};
    open("Other Symbols.lib");
    EXPECT_EQ(dialogs.boxes.back().title, "Preparing to Change Libraries");
    EXPECT_EQ(manager.cmbSourceLibrary.Text, "User Symbols.lib");
    dialogs.answers = {Answer::Yes};
    open("Other Symbols.lib");
    EXPECT_EQ(manager.ManagerSymbolName, (std::vector<std::string>{"B", "D"}));
    EXPECT_EQ(manager.ManagerSelectedCount, 0);
    EXPECT_EQ(symbols.LibraryFile, "User Symbols.lib") << "the main window's own is untouched";
}

struct TransferCase {
    const char* what;
    bool move;
    std::vector<Answer> answers;
    const char *source, *destination;  // the lists after A, B and C were transferred
    const char* scriptOfB;             // where the destination's comes from
    const char* told;
};

TEST_F(LibManagerTest, TransfersAskForEachSymbolOfTheSameName) {
    const TransferCase cases[] = {
        {"copy, yes", false, {Answer::Yes}, "A B C", "D A B C", "User", "Action Complete."},
        {"copy, no", false, {Answer::No}, "A B C", "B D A C", "Other", "Action Complete."},
        {"copy, cancel", false, {Answer::Cancel}, "A B C", "B D A", "Other", "Action Complete."},
        {"move, cancel: what was not copied is removed too",
         true,
         {Answer::Cancel},
         "",
         "B D A",
         "Other",
         "Action Completed."},
        {"move, yes", true, {Answer::Yes}, "", "D A B C", "User", "Action Completed."},
    };
    for (const TransferCase& c : cases) {
        SCOPED_TRACE(c.what);
        machine.folder.write("documents/User Symbols.lib", "");
        write("User Symbols", {"A", "B", "C"});
        for (const char* name : {"A", "C"})
            removeSymbols(machine.files, editor.BasePath + "Other Symbols/", {name});
        write("Other Symbols", {"B", "D"});
        mnuLibManageUserLibraries_Click(manager, symbols, editor);
        select({0, 1, 2});
        chooseDestination(0);
        dialogs.answers.assign(c.answers.begin(), c.answers.end());
        c.move ? cmdMove_Click(manager, symbols, editor) : cmdCopy_Click(manager, symbols, editor);
        EXPECT_EQ(list("User Symbols"), c.source);
        EXPECT_EQ(list("Other Symbols"), c.destination);
        EXPECT_EQ(script("Other Symbols/B"),
                  std::string("Line:0:0:0.5:0 of ") + c.scriptOfB + " Symbols/B\r\n");
        EXPECT_EQ(lastBox(), c.told);
        EXPECT_EQ(disk.read("documents/Other Symbols/Other Symbols.lib"),
                  disk.read("documents/Other Symbols.lib"))
            << "the safety copy";
    }
}

TEST_F(LibManagerTest, NothingIsTransferredWithoutADestinationOrOntoItself) {
    select({0});
    cmdMove_Click(manager, symbols, editor);
    EXPECT_EQ(lastBox(), "No destination library was selected.");
    chooseDestination(1);
    cmdMove_Click(manager, symbols, editor);
    EXPECT_EQ(list("User Symbols"), "A B C");
    EXPECT_EQ(manager.ManagerSelectedCount, 1);
}

TEST_F(LibManagerTest, AMoveThatBreaksOffLosesNothing) {
    for (const test::Operation operation :
         {test::Operation::Replace, test::Operation::Read, test::Operation::Remove}) {
        for (int passed = 0; passed < 4; ++passed) {
            SCOPED_TRACE(static_cast<int>(operation) * 10 + passed);
            write("User Symbols", {"A", "B", "C"});
            for (const char* name : {"A", "C"})
                removeSymbols(machine.files, editor.BasePath + "Other Symbols/", {name});
            write("Other Symbols", {"D"});
            mnuLibManageUserLibraries_Click(manager, symbols, editor);
            select({0, 2});
            chooseDestination(0);
            machine.files.failOnce(operation, {failure::DeviceIO, "broken"}, passed);
            cmdMove_Click(manager, symbols, editor);
            machine.files.heal();
            const std::string all = list("User Symbols") + " " + list("Other Symbols");
            EXPECT_EQ(all.find('!'), std::string::npos) << all;
            for (const char* name : {"A", "B", "C", "D"})
                EXPECT_NE(all.find(name), std::string::npos) << name << " in " << all;
        }
    }
}

TEST_F(LibManagerTest, DeletedSymbolsLeaveListAndFolder) {
    disk.write("documents/User Symbols/Lone.uds", "kept");
    select({0, 2});
    cmdDelete_Click(manager, symbols, editor);
    EXPECT_EQ(lastBox(),
              "2 symbols have been selected for deletion. Are you sure you want to delete all "
              "selected symbols?");
    EXPECT_EQ(list("User Symbols"), "A B C") << "answered No";
    dialogs.answers = {Answer::Yes};
    cmdDelete_Click(manager, symbols, editor);
    EXPECT_EQ(lastBox(), "Items deleted.");
    EXPECT_EQ(list("User Symbols"), "B");
    EXPECT_EQ(scripts("User Symbols"), "B Lone");
    EXPECT_EQ(manager.ManagerSymbolName, std::vector<std::string>{"B"});
    frmLibManager_Unload(manager, symbols, editor);
    EXPECT_EQ(tags(), "B") << "the main window sees it";
}

TEST_F(LibManagerTest, TheOrderIsDraggedAndSaved) {
    select({2});
    EXPECT_FALSE(beginManagerDrag(manager, 2));
    mnuEditEnableOrderChange_Click(manager, editor);
    ASSERT_TRUE(beginManagerDrag(manager, 2));
    frmLibManager_cmdSym_DragDrop(manager, 0);
    EXPECT_TRUE(manager.ManagerSymbolState[0].Selected) << "the selection goes along";
    EXPECT_EQ(list("User Symbols"), "A B C");
    mnuFileSaveOrder_Click(manager, symbols, editor);
    EXPECT_EQ(list("User Symbols"), "C A B");

    symbols.UserSymbolCount = 0;
    mnuEditEnableOrderChange_Click(manager, editor);
    ASSERT_TRUE(beginManagerDrag(manager, 0));
    frmLibManager_cmdSym_DragDrop(manager, 2);
    mnuFileSaveOrder_Click(manager, symbols, editor);
    EXPECT_EQ(list("User Symbols"), "C A B") << "not while the main window has no symbol";
}

TEST_F(LibManagerTest, AListThatCannotBeReadOrHasGrownIsNotWrittenOver) {
    const Failure broken{failure::DeviceIO, "Input/output error"};
    for (const auto& [operation, part] :
         {std::pair{test::Operation::Read, "Symbols.lib"}, {test::Operation::List, "Symbols/"}}) {
        SCOPED_TRACE(part);
        machine.reports.clear();
        machine.files.fail(operation, broken, part);
        mnuLibManageUserLibraries_Click(manager, symbols, editor);
        ASSERT_EQ(machine.reports.size(), 1u);
        EXPECT_EQ(machine.reports[0].text, broken.text);
        mnuFileSaveOrder_Click(manager, symbols, editor);
        machine.files.heal();
        EXPECT_EQ(list("User Symbols"), "A B C");
        mnuFileSaveOrder_Click(manager, symbols, editor);
        EXPECT_EQ(list("User Symbols"), "A B C");
    }
    chooseDestination(0);
    select({0});
    machine.files.fail(test::Operation::Read, broken, "Other Symbols.lib");
    cmdMove_Click(manager, symbols, editor);
    machine.files.heal();
    EXPECT_EQ(list("User Symbols") + ", " + list("Other Symbols"), "A B C, B D");

    disk.write("documents/User Symbols.lib", "A\r\nB\r\nC\r\nD\r\n");
    test::writeSymbol(disk, "User Symbols", "D");
    mnuFileSaveOrder_Click(manager, symbols, editor);
    EXPECT_EQ(list("User Symbols"), "A B C D") << "another program has added one";
}

TEST_F(LibManagerTest, LibrariesAreMadeRenamedAndDeleted) {
    dialogs.inputAnswers = {"Third", "Other"};
    mnuFileNew_Click(manager, symbols, editor);
    EXPECT_EQ(lastBox(), "Third Symbols has been successfully created.");
    EXPECT_EQ(list("Third Symbols"), "");
    EXPECT_EQ(symbols.LibraryFile, "User Symbols.lib");
    mnuFileNew_Click(manager, symbols, editor);
    EXPECT_EQ(lastBox(), "Symbol Folder Already Exists - Cannot Overwrite");

    mnuFileName_Click(manager, symbols, editor);
    EXPECT_EQ(lastBox(), "Cannot rename Default Library");
    mnuFileDelete_Click(manager, symbols, editor);
    EXPECT_EQ(lastBox(), "Deleting default library is not permitted.");

    OpenUserLibrary(symbols, editor, editor.BasePath, "Other Symbols.lib");
    open("Other Symbols.lib");
    dialogs.inputAnswers = {"Fourth"};
    mnuFileName_Click(manager, symbols, editor);
    EXPECT_EQ(dialogs.inputBoxes.back().value, "Other");
    EXPECT_EQ(list("Fourth Symbols"), "B D");
    EXPECT_FALSE(disk.has("documents/Other Symbols.lib"));
    EXPECT_EQ(manager.ManagerSourceFile, "Fourth Symbols.lib");
    EXPECT_EQ(symbols.LibraryFile, "Fourth Symbols.lib") << "the open library keeps its symbols";
    EXPECT_EQ(
        manager.cmbSourceLibrary.List,
        (std::vector<std::string>{"Fourth Symbols.lib", "Third Symbols.lib", "User Symbols.lib"}));

    dialogs.answers = {Answer::Yes};
    mnuFileDelete_Click(manager, symbols, editor);
    EXPECT_FALSE(disk.has("documents/Fourth Symbols.lib"));
    EXPECT_FALSE(disk.has("documents/Fourth Symbols"));
    EXPECT_EQ(manager.ManagerSourceFile, "User Symbols.lib");
    EXPECT_EQ(symbols.LibraryFile, "User Symbols.lib");
}

TEST_F(LibManagerTest, ThePreviewShowsTheOldestScriptsAtTheirPlaceAndScale) {
    const auto drawn = [&] { return machine.images.bitmapText(*manager.picPreview->Image()); };
    picPreview_Resize(manager, editor, 960, 960, 96);
    const std::string empty = drawn();
    picPreview_MouseDown(manager, editor, 2, 3);
    EXPECT_EQ(drawn(), empty) << "no symbol was clicked";
    select({1});
    picPreview_MouseDown(manager, editor, 2, 3);
    const std::string placed = drawn();
    EXPECT_NE(placed, empty);
    EXPECT_EQ(editor.drawing.devices.DeviceCount, 0);
    mnuEditClear_Click(manager);
    EXPECT_EQ(drawn(), empty);
    lstSelected_Click(manager, editor, 0);
    EXPECT_EQ(drawn(), placed) << "at its remembered place";
    for (const char* odd : {"", "x", "0", "-2"}) {
        manager.cmbScale.Text = odd;
        cmbScale_Click(manager, editor);
        EXPECT_EQ(drawn(), placed) << odd;
    }
    manager.cmbScale.Text = "2,5";
    cmbScale_Click(manager, editor);
    EXPECT_NE(drawn(), placed);
    EXPECT_EQ(manager.ManagerSymbolState[1].ScaleX, 2.5f);
}

}  // namespace
}  // namespace ladrix
