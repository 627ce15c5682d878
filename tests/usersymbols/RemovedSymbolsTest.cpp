#include "usersymbols/RemovedSymbols.h"

#include <filesystem>

#include "LibraryBench.h"
#include "support/Failures.h"

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

}  // namespace
}  // namespace ladrix
