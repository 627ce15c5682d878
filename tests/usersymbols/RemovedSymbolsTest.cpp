#include "usersymbols/RemovedSymbols.h"

#include <filesystem>
#include <functional>

#include "LibraryBench.h"
#include "support/Failures.h"
#include "usersymbols/LibManager.h"
#include "usersymbols/SavingForms.h"

namespace ladrix {
namespace {

using Names = std::vector<std::string>;

const std::string Removals = "documents/Backups/Removed Symbols";

struct RemovedSymbolsTest : test::LibraryBench {
    const std::string removals = removalsFolder(machine.files, editor.BasePath);

    void removeOther() {
        removeLibrary(machine.files, removals, {editor.BasePath, "Other Symbols"});
    }
    // What stands in the newest removal.
    Names inNewest() const { return disk.entries(Removals + "/" + disk.entries(Removals).back()); }
};

const Names FilesOfA = {"A.bmp", "A.uds", "A_Cyan.bmp", "Other Symbols.lib"};

TEST_F(RemovedSymbolsTest, ARemovedLibraryIsTakenAwayWholeWithWhatOthersHavePutThere) {
    write("Other Symbols", {"A"});
    disk.write("documents/Other Symbols/notes.txt", "mine");
    disk.write("documents/Other Symbols/photo.bmp", "mine");
    removeOther();
    EXPECT_FALSE(disk.has("documents/Other Symbols") || disk.has("documents/Other Symbols.lib"));
    EXPECT_TRUE(disk.entries(Removals).at(0).ends_with(" Other Symbols/"));
    EXPECT_EQ(inNewest(), (Names{"A.bmp", "A.uds", "A_Cyan.bmp", "Other Symbols.lib", "notes.txt",
                                 "photo.bmp"}));
    write("Other Symbols", {"A"});
    disk.makeFolder("documents/Other Symbols/Older");
    EXPECT_EQ(test::failureNumber([&] { removeOther(); }), failure::PathFileAccess);
    EXPECT_EQ(list("Other Symbols"), "A") << "one with a folder inside is left alone";
}

TEST_F(RemovedSymbolsTest, OfALinkedLibraryOnlyTheLinkGoes) {
    write("Elsewhere/Shared", {"A"});
    disk.write("documents/Other Symbols.lib", "A\r\n");
    std::filesystem::create_directory_symlink(disk.native("documents/Elsewhere/Shared"),
                                              disk.native("documents/Other Symbols"));
    removeOther();
    EXPECT_FALSE(disk.has("documents/Other Symbols") || disk.has("documents/Other Symbols.lib"));
    EXPECT_EQ(list("Elsewhere/Shared"), "A");
    EXPECT_EQ(disk.entries("documents/Elsewhere/Shared"), (Names{"A.bmp", "A.uds", "A_Cyan.bmp"}));
    EXPECT_EQ(inNewest(), FilesOfA);
}

TEST_F(RemovedSymbolsTest, WhereTheFolderCannotBeMovedItsSymbolsAreCopiedAndOthersFilesStay) {
    machine.files.fail(test::Operation::Rename, {failure::PathFileAccess, "another disk"});
    write("Other Symbols", {"A"});
    removeOther();
    EXPECT_FALSE(disk.has("documents/Other Symbols") || disk.has("documents/Other Symbols.lib"));
    EXPECT_EQ(inNewest(), FilesOfA);
    write("Other Symbols", {"A"});
    disk.write("documents/Other Symbols/notes.txt", "mine");
    EXPECT_EQ(test::failureNumber([&] { removeOther(); }), failure::PathFileAccess);
    EXPECT_EQ(disk.entries("documents/Other Symbols"), Names{"notes.txt"});
    EXPECT_EQ(disk.entries(Removals).size(), 2u);
}

TEST_F(RemovedSymbolsTest, NothingIsRemovedAtTheStartByItsNameAlone) {
    write("Other Symbols", {"A"});
    const Names foreign = {"documents/.ladrix-removed Mine Symbols/notes.txt",
                           "documents/.ladrix-removed Mine Symbols/A.uds",
                           "documents/Other Symbols/photo.bmp.new",
                           "documents/Other Symbols/B.uds.new"};
    for (const std::string& name : foreign)
        disk.write(name, "mine");
    load();
    for (const std::string& name : foreign)
        EXPECT_TRUE(disk.has(name)) << name;
}

TEST_F(RemovedSymbolsTest, WhatCannotBeFinishedInOneLibraryKeepsNothingElse) {
    write("User Symbols", {"A", "B"});
    write("Other Symbols", {"C"});
    for (const char* file : {"A.uds", "A.bmp", "A_Cyan.bmp", "B.uds", "B.bmp", "B_Cyan.bmp"})
        disk.write("documents/User Symbols/" + std::string(file) + ".new", "BM new");
    machine.files.fail(test::Operation::Copy, {failure::DeviceIO, "broken"}, "A.bmp");
    load();
    EXPECT_EQ(symbols.LibraryList, (Names{"Other Symbols.lib", "User Symbols.lib"}));
    EXPECT_EQ(symbols.UserSymbolName, (Names{"A", "B"}));
    EXPECT_EQ(script("User Symbols/A"), "Line:0:0:0.5:0 of User Symbols/A\r\n");
    EXPECT_EQ(script("User Symbols/B"), "BM new");
    machine.files.heal();
    load();
    EXPECT_EQ(script("User Symbols/A"), "BM new");
    EXPECT_EQ(disk.read("documents/User Symbols/A.bmp"), "BM new") << "no mixed set";
}

TEST_F(RemovedSymbolsTest, TheNewestTwoHundredStayAndOnlyWhatIsOursIsDiscarded) {
    const auto removal = [](int number) {
        const auto digits = [](int value) { return std::to_string(100 + value).substr(1); };
        return Removals + "/2020-01-01 00-" + digits(number / 60) + "-" + digits(number % 60);
    };
    for (int i = 0; i < 201; ++i) {
        const std::string folder = removal(i);
        for (const char* file : {"A.uds", "A.bmp", "A_Cyan.bmp"})
            disk.write(folder + "/" + file, "old");
        disk.write(folder + "/User Symbols.lib", "A\r\n");
    }
    disk.write(removal(0) + "/notes.txt", "mine");
    disk.write(Removals + "/2019-01-01 00-00-00/A.uds", "no list: not ours");
    disk.write("documents/linked/User Symbols.lib", "A\r\n");
    std::filesystem::create_directory_symlink(disk.native("documents/linked"),
                                              disk.native(Removals + "/2018-01-01 00-00-00"));
    write("Other Symbols", {"A"});
    keepSymbols(machine.files, removals, {editor.BasePath, "Other Symbols"}, {"A", "none"});
    const std::vector<RemovedItem> items = removedItems(machine.files, removals);
    ASSERT_EQ(items.size(), RemovalsKept);
    EXPECT_EQ(items.front().Library, "Other Symbols");
    EXPECT_EQ(disk.entries(removal(0)), Names{"notes.txt"});
    EXPECT_FALSE(disk.has(removal(1)));
    EXPECT_TRUE(disk.has(Removals + "/2019-01-01 00-00-00/A.uds"));
    EXPECT_TRUE(disk.has("documents/linked/User Symbols.lib"));
}

// --- One way in which symbols of "User Symbols" (A, B, C) and "Other Symbols" (B, D) go

using Bench = test::LibraryBench;

struct Way {
    const char* name;
    std::function<void(Bench&)> run;
    const char *lists, *kept;  // afterwards; what is kept, with the library that it came from
};

void manage(Bench& bench, const std::vector<Short>& rows, Answer answer,
            void (*command)(LibManager&, UserSymbols&, Editor&)) {
    LibManager manager;
    mnuLibManageUserLibraries_Click(manager, bench.symbols, bench.editor);
    lstDestinationLibrary_Click(manager, bench.editor, 0);
    for (const Short row : rows)
        frmLibManager_cmdSym_Click(manager, row);
    bench.dialogs.answers = {answer};
    command(manager, bench.symbols, bench.editor);
}

void deleteFirst(Bench& bench) {
    bench.symbols.ContextButton = bench.symbols.FirstUserButton;
    bench.dialogs.answers = {Answer::Yes};
    DeleteUserSymbol(bench.symbols, bench.editor);
}

void moveFirst(Bench& bench) {
    bench.symbols.ContextButton = bench.symbols.FirstUserButton;
    TransferUserSymbol(bench.symbols, bench.editor, Transfer::Move, bench.editor.BasePath,
                       "Other Symbols.lib");
}

void overwrite(Bench& bench) {
    makeIconPictures(bench.symbols, bench.machine.platform);
    bench.symbols.compiler.SymbolScriptText = "new";
    bench.symbols.frmUS.txtSymbolName.Text = "a";
    bench.dialogs.answers = {Answer::Yes};
    frmUS_cmdSave_Click(bench.symbols, bench.editor);
}

const Way Ways[] = {
    {"Deleted", deleteFirst, "B C, B D", "User/A"},
    {"Overwritten", overwrite, "B C a, B D", "User/a"},
    {"DeletedInTheManager",
     [](Bench& b) {
         manage(b, {0, 2}, Answer::Yes, cmdDelete_Click);
     },
     "B, B D", "User/A User/C"},
    {"ReplacedByACopy",
     [](Bench& b) {
         manage(b, {0, 1}, Answer::Yes, cmdCopy_Click);
     },
     "A B C, D A B", "Other/B"},
    {"DroppedByAMove",
     [](Bench& b) {
         manage(b, {0, 1, 2}, Answer::Cancel, cmdMove_Click);
     },
     ", B D A", "User/B User/C"},
    {"ReplacedByAMove", [](Bench& b) { manage(b, {1}, Answer::Yes, cmdMove_Click); }, "A C, D B",
     "Other/B"},
    {"MovedByItsButton", moveFirst, "B C, B D A", ""},
};

struct RemovalWaysTest : Bench, testing::WithParamInterface<Way> {
    const std::string removals = removalsFolder(machine.files, editor.BasePath);

    RemovalWaysTest() {
        write("User Symbols", {"A", "B", "C"});
        write("Other Symbols", {"B", "D"});
        load();
    }
    std::string lists() const { return list("User Symbols") + ", " + list("Other Symbols"); }
    // Each with the content that it had.
    std::string kept() {
        std::string text;
        for (const RemovedItem& item : removedItems(machine.files, removals)) {
            const std::string library(item.Library, 0, item.Library.find(' '));
            const std::string name = item.Name == "a" ? "A" : item.Name;
            EXPECT_EQ(machine.platform.files->read(item.Folder + item.Name + ".uds"),
                      "Line:0:0:0.5:0 of " + item.Library + "/" + name + "\r\n");
            text += (text.empty() ? "" : " ") + library + "/" + item.Name;
        }
        return text;
    }
};

TEST_P(RemovalWaysTest, KeepsWhatStandsNowhereElseBeforeItGoes) {
    machine.files.calls.clear();
    GetParam().run(*this);
    EXPECT_EQ(lists(), GetParam().lists);
    EXPECT_EQ(kept(), GetParam().kept);
    EXPECT_TRUE(machine.reports.empty());
    // Folders, copies, their list; only then the library's list and its files.
    enum class Stage { Folder, Copies, KeptList, Library, Removal } reached = Stage::Folder;
    for (const auto& [operation, path] : machine.files.calls) {
        const bool isKept = path.starts_with(removals);
        std::optional<Stage> stage;
        if (operation == test::Operation::MakeFolder) stage = Stage::Folder;
        if (operation == test::Operation::Copy && isKept) stage = Stage::Copies;
        if (operation == test::Operation::Replace && isKept) stage = Stage::KeptList;
        if (operation == test::Operation::Replace && path == editor.BasePath + "User Symbols.lib")
            stage = Stage::Library;
        if (operation == test::Operation::Remove && path.ends_with(".uds")) stage = Stage::Removal;
        if (!stage) continue;
        EXPECT_GE(*stage, reached) << path;
        reached = *stage;
    }
}

TEST_P(RemovalWaysTest, RemovesNothingThatCannotBeKept) {
    if (std::string_view(GetParam().kept).empty()) return;
    const Failure full{failure::DiskFull, "No space left on device"};
    for (const auto& [operation, part] : {std::pair{test::Operation::MakeFolder, "Backups"},
                                          {test::Operation::Copy, "Removed Symbols"},
                                          {test::Operation::Replace, "Removed Symbols"}}) {
        SCOPED_TRACE(static_cast<int>(operation));
        machine.files.fail(operation, full, part);
        GetParam().run(*this);
        machine.files.heal();
        EXPECT_TRUE(list("User Symbols").find("A B C") == 0) << list("User Symbols");
        EXPECT_EQ(kept(), "");
        ASSERT_EQ(machine.reports.size(), 1u);
        EXPECT_EQ(machine.reports[0].text, full.text);
        machine.reports.clear();
        if (operation == test::Operation::MakeFolder) continue;
        EXPECT_EQ(disk.entries(Removals), Names{}) << "and nothing half is left";
    }
}

INSTANTIATE_TEST_SUITE_P(, RemovalWaysTest, testing::ValuesIn(Ways),
                         [](const auto& way) { return way.param.name; });

}  // namespace
}  // namespace ladrix
