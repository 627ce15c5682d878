#include "usersymbols/Libraries.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "LibraryBench.h"
#include "platform/Encoding.h"
#include "support/FaultyFiles.h"
#include "usersymbols/LibManager.h"
#include "usersymbols/RemovedSymbols.h"
#include "usersymbols/SavingForms.h"

namespace ladrix {
namespace {

using test::SymbolBench;
using test::TemporaryFolder;

struct LibrariesTest : test::LibraryBench {
    std::string listText(const std::string& library) const {
        return disk.read("documents/" + library + ".lib");
    }
    void choose(const std::string& name) {
        const auto& names = symbols.UserSymbolName;
        const auto row = std::find(names.begin(), names.end(), name) - names.begin();
        symbols.ContextButton = static_cast<Short>(symbols.FirstUserButton + row);
    }
};

TEST_F(LibrariesTest, TheStartFindsLibrariesAndBringsBackTheirLists) {
    write("zinc Symbols", {"a"});
    write("User Symbols", {});
    write("Other Library", {"x"});
    test::writeSymbol(disk, "Kept Symbols", "k");
    disk.write("documents/Kept Symbols/Kept Symbols.lib", "from the safety copy\r\n");
    test::writeSymbol(disk, "Lost Symbols", "b");
    disk.write("documents/Lost Symbols/a.uds", "without pictures");
    ListUserLibraries(symbols, editor);
    EXPECT_EQ(symbols.LibraryList,
              (std::vector<std::string>{"Kept Symbols.lib", "Lost Symbols.lib", "User Symbols.lib",
                                        "zinc Symbols.lib"}));
    EXPECT_EQ(symbols.LibraryIndex, 2);
    EXPECT_EQ(listText("Kept Symbols"), "from the safety copy\r\n");
    EXPECT_EQ(listText("Lost Symbols"), "a\r\nb\r\n");
    EXPECT_EQ(notes.size(), 2u);
}

TEST_F(LibrariesTest, TheShippedListIsTakenOverButNothingElse) {
    UpdateOldUserSymbols(symbols, editor);
    EXPECT_FALSE(disk.has("documents/User Symbols.lib"));
    disk.write("program/Default User Symbols.lib", "one\r\n");
    disk.write("program/User Symbols/one.uds", "script");
    UpdateOldUserSymbols(symbols, editor);
    EXPECT_EQ(listText("User Symbols"), "one\r\n");
    EXPECT_FALSE(disk.has("documents/User Symbols"));
    disk.write("documents/User Symbols.lib", "mine\r\n");
    UpdateOldUserSymbols(symbols, editor);
    EXPECT_EQ(listText("User Symbols"), "mine\r\n");
    EXPECT_TRUE(dialogs.boxes.empty() && machine.reports.empty());
}

TEST_F(LibrariesTest, AnOldListIsRenamedAndAMissingLibraryIsMarked) {
    disk.write("documents/User Symbol Structure.txt", "old\n");
    ReadLibraryStructure(symbols, editor);
    EXPECT_TRUE(symbols.LibraryMissing);  // no folder
    EXPECT_EQ(listText("User Symbols"), "old\n");
    disk.makeFolder("documents/User Symbols");
    ReadLibraryStructure(symbols, editor);
    EXPECT_FALSE(symbols.LibraryMissing);
    EXPECT_EQ(symbols.LibraryLines, std::vector<std::string>{"old"});
}

TEST_F(LibrariesTest, WhatIsIncompleteIsSkippedAndWhatIsDamagedStays) {
    write("User Symbols", {"good", "gone", "damaged", "huge", "LAST"});
    disk.write("documents/User Symbols/damaged.bmp", "noise");
    disk.write("documents/User Symbols/huge.uds", std::string(LargestScript + 1, 'x'));
    machine.files.remove(disk / "documents/User Symbols/gone_Cyan.bmp");
    machine.files.rename(disk / "documents/User Symbols/LAST.uds",
                         disk / "documents/User Symbols/last.UDS");
    load();
    EXPECT_EQ(symbols.UserSymbolName, (std::vector<std::string>{"good", "damaged", "LAST"}));
    EXPECT_EQ(symbols.UserSymbolScript[2], "Line:0:0:0.5:0 of User Symbols/LAST\r\n");
    EXPECT_EQ(notes.size(), 3u);
    EXPECT_EQ(machine.reports.size(), 1u);  // the script that is too large
    const PaletteButton& first =
        editor.form.cmdSym[static_cast<std::size_t>(symbols.FirstUserButton)];
    EXPECT_EQ(first.Tag, "good");
    EXPECT_TRUE(first.Visible && first.UpPicture && first.CyanPicture);

    WriteLibraryStructure(symbols, editor);
    EXPECT_EQ(listText("User Symbols"), "good\r\ndamaged\r\nLAST\r\nhuge\r\n");
    EXPECT_EQ(disk.read("documents/User Symbols/User Symbols.lib"), listText("User Symbols"));
    EXPECT_TRUE(disk.has("documents/User Symbols/gone.uds"));
}

// A list that could not be read, or the folder beside it, is no empty one.
TEST_F(LibrariesTest, AfterAFailedReadNothingOfTheListIsLost) {
    struct {
        test::Operation operation;
        const char *part, *afterSaving, *scripts;
        std::size_t reports;  // of loading and saving
    } const cases[] = {
        {test::Operation::Read, "Symbols.lib", "a b c", "a b c", 2},
        {test::Operation::List, "User Symbols/", "a b c", "a b c", 2},
        {test::Operation::Read, "/b.uds", "a c new b", "a b c new", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.part);
        machine.reports.clear();
        removeSymbols(machine.files, symbols.SymbolFolder, {"new"});
        write("User Symbols", {"a", "b", "c"});
        const auto saveNew = [&] {
            makeIconPictures(symbols, machine.platform);
            symbols.compiler.SymbolScriptText = "Line:0:0:1:0\r\n";
            symbols.frmUS.txtSymbolName.Text = "new";
            frmUS_cmdSave_Click(symbols, editor);
        };
        machine.files.fail(c.operation, {failure::DeviceIO, "Input/output error"}, c.part);
        editor.platform.attempt("Open", [&] { ReloadLibrary(symbols, editor); });
        saveNew();
        EXPECT_EQ(machine.reports.size(), c.reports);
        for (const auto& report : machine.reports)
            EXPECT_EQ(report.text, "Input/output error");
        machine.files.heal();
        EXPECT_EQ(list("User Symbols"), c.afterSaving);
        EXPECT_EQ(scripts("User Symbols"), c.scripts) << "no symbol that is in no list";
        saveNew();
        for (const char* name : {"a", "b", "c", "new"})
            EXPECT_NE((" " + list("User Symbols") + " ").find(" " + std::string(name) + " "),
                      std::string::npos)
                << name;
    }
}

TEST_F(LibrariesTest, AListOfManyIsReadOnceAndItsFaultsAreCounted) {
    const auto callsFor = [&](int names) {
        std::string missing;
        for (int i = 0; i < names; ++i)
            missing += "Gone " + std::to_string(i) + "\r\n";
        write("User Symbols", {"A"});
        disk.write("documents/User Symbols.lib", "A\r\n" + missing);
        notes.clear();
        machine.files.calls.clear();
        ReloadLibrary(symbols, editor);
        return machine.files.calls.size();
    };
    const std::size_t calls = callsFor(100), more = callsFor(400);
    EXPECT_LE(more, 4 * calls);
    ASSERT_EQ(notes.size(), 21u);
    EXPECT_TRUE(notes[19].ends_with("Gone 19: left out, a file is missing."));
    EXPECT_EQ(notes[20], "User Symbols.lib: 380 more symbols like these.");
}

TEST_F(LibrariesTest, NamesBeyondTheLargestCountStayInTheList) {
    write("User Symbols", {"A", "last"});
    std::string text;
    for (int i = 0; i < LargestCount; ++i)
        text += "A\r\n";
    disk.write("documents/User Symbols.lib", text + "last\r\n");
    ReloadLibrary(symbols, editor);
    EXPECT_EQ(symbols.UserSymbolCount, LargestCount);
    WriteLibraryStructure(symbols, editor);
    EXPECT_EQ(listText("User Symbols"), text + "last\r\n");
    LibManager manager;
    mnuLibManageUserLibraries_Click(manager, symbols, editor);
    mnuFileSaveOrder_Click(manager, symbols, editor);
    EXPECT_EQ(listText("User Symbols"), text + "last\r\n");
}

TEST_F(LibrariesTest, DeletingTheLastSymbolLeavesTheList) {
    write("User Symbols", {"a", "b"});
    load();
    choose("a");
    DeleteUserSymbol(symbols, editor);  // answered No
    EXPECT_TRUE(disk.has("documents/User Symbols/a.uds"));
    for (const std::string name : {"a", "b"}) {
        choose(name);
        dialogs.answers = {Answer::Yes};
        DeleteUserSymbol(symbols, editor);
        EXPECT_EQ(listText("User Symbols"), "b\r\n") << name;
    }
    EXPECT_EQ(symbols.UserSymbolCount, 0);
    EXPECT_EQ(disk.entries("documents/User Symbols"), std::vector<std::string>{"User Symbols.lib"});
    symbols.ContextButton = 91;
    DeleteUserSymbol(symbols, editor);
    EXPECT_EQ(dialogs.boxes.size(), 3u);
}

TEST_F(LibrariesTest, RenamingTakesTheFilesAndKeepsTheOrder) {
    write("User Symbols", {"a", "b", "c"});
    disk.write("documents/User Symbols/orphan.bmp", "BM");
    load();
    struct Attempt {
        std::string answer, box, list;
    };
    const std::vector<Attempt> attempts = {
        {"", "", "a\r\nb\r\nc\r\n"},
        {"b", "", "a\r\nb\r\nc\r\n"},
        {"C", "", "a\r\nb\r\nc\r\n"},  // reported: its files would be another's
        {"c", "Name not allowed. Another button with the same name already exists in this library.",
         "a\r\nb\r\nc\r\n"},
        {"x/y",
         "Action Cancelled. File and Folder Names cannot include\r\n"
         "any of the following characters: / \\ : * ? < > | ",
         "a\r\nb\r\nc\r\n"},
        {"Orphan", "", "a\r\nb\r\nc\r\n"},  // reported
        {"Motor", "", "a\r\nMotor\r\nc\r\n"},
    };
    for (const Attempt& attempt : attempts) {
        dialogs.boxes.clear();
        choose("b");
        dialogs.inputAnswers = {attempt.answer};
        RenameUserSymbol(symbols, editor);
        EXPECT_EQ(lastBox(), attempt.box);
        EXPECT_EQ(listText("User Symbols"), attempt.list) << attempt.answer;
    }
    EXPECT_EQ(machine.reports.size(), 2u);
    choose("Motor");
    dialogs.inputAnswers = {"MOTOR"};
    RenameUserSymbol(symbols, editor);
    EXPECT_EQ(script("User Symbols/MOTOR"), "Line:0:0:0.5:0 of User Symbols/b\r\n");
    EXPECT_EQ(symbols.UserSymbolName[1], "MOTOR");
    EXPECT_FALSE(disk.has("documents/User Symbols/b.uds") ||
                 disk.has("documents/User Symbols/Motor.bmp"));
}

// "A_Cyan.bmp" would belong to both.
TEST_F(LibrariesTest, NoSymbolIsNamedLikeTheSecondPictureOfAnother) {
    const auto saved = [&](const std::string& name) {
        symbols.compiler.SymbolScriptText = "script";
        makeIconPictures(symbols, machine.platform);
        symbols.frmUS.txtSymbolName.Text = name;
        frmUS_cmdSave_Click(symbols, editor);
    };
    const auto renamed = [&](const std::string& name) {
        choose("other");
        dialogs.inputAnswers = {name};
        RenameUserSymbol(symbols, editor);
    };
    const auto openSource = [&](const std::string& name) {
        write("Source Symbols", {name, "fits"});
        OpenUserLibrary(symbols, editor, editor.BasePath, "Source Symbols.lib");
    };
    const auto transferred = [&](const std::string& name) {
        openSource(name);
        choose(name);
        TransferUserSymbol(symbols, editor, Transfer::Move, editor.BasePath, "User Symbols.lib");
    };
    const auto merged = [&](const std::string& name) {
        write("Source Symbols", {name});
        MergeUserLibrary(symbols, editor, editor.BasePath, "Source Symbols.lib");
        dialogs.boxes.push_back({editor.form.lblMessage.Caption, "Name Rejected", Buttons::Ok});
    };
    const auto moved = [&](const std::string& name) {
        openSource(name);
        ListUserLibraries(symbols, editor);
        LibManager manager;
        mnuLibManageUserLibraries_Click(manager, symbols, editor);
        lstDestinationLibrary_Click(manager, editor, 1);
        frmLibManager_cmdSym_Click(manager, 0);
        cmdMove_Click(manager, symbols, editor);
        EXPECT_EQ(list("Source Symbols"), name + " fits") << "it stays where it is";
    };
    const std::vector<std::pair<const char*, std::function<void(const std::string&)>>> ways = {
        {"saved", saved},
        {"renamed", renamed},
        {"transferred", transferred},
        {"merged", merged},
        {"moved", moved}};
    struct {
        const char *there, *name, *reason;
    } const names[] = {
        {"A", "A_cyan",
         "A symbol cannot be named \"A_cyan\": its picture would be the second one of a symbol "
         "\"A\"."},
        {"B", "A_Cyan",
         "A symbol cannot be named \"A_Cyan\": its picture would be the second one of a symbol "
         "\"A\"."},
        {"a_cyan", "A",
         "A symbol cannot be named \"A\" here: its second picture would be that of the symbol "
         "\"A_Cyan\"."},
    };
    for (const auto& [how, way] : ways)
        for (const auto& c : names) {
            SCOPED_TRACE(std::string(how) + ": " + c.name + " beside " + c.there);
            removeSymbols(machine.files, editor.BasePath + "User Symbols/",
                          {"a_cyan", "A", "B", "other"});
            write("User Symbols", {c.there, "other"});
            OpenUserLibrary(symbols, editor, editor.BasePath, "User Symbols.lib");
            const std::string before = scripts("User Symbols");
            dialogs.boxes.clear();
            way(c.name);
            ASSERT_FALSE(dialogs.boxes.empty());
            EXPECT_NE(lastBox().find(c.reason), std::string::npos) << lastBox();
            EXPECT_EQ(dialogs.boxes.back().title, "Name Rejected");
            EXPECT_EQ(scripts("User Symbols"), before);
        }
    EXPECT_TRUE(machine.reports.empty());
}

TEST_F(LibrariesTest, SymbolsThatShareAPictureFromBeforeCanBeRemovedApart) {
    for (const bool first : {true, false}) {
        write("User Symbols", {"A", "A_Cyan", "B"});
        load();
        ASSERT_EQ(symbols.UserSymbolCount, 3);
        choose(first ? "A" : "A_Cyan");
        dialogs.answers = {Answer::Yes};
        DeleteUserSymbol(symbols, editor);
        EXPECT_EQ(list("User Symbols"), first ? "A_Cyan B" : "A B");
        choose(first ? "A_Cyan" : "A");
        dialogs.inputAnswers = {"C"};
        RenameUserSymbol(symbols, editor);
        EXPECT_EQ(list("User Symbols"), "C B");
        EXPECT_FALSE(disk.has("documents/User Symbols/A_Cyan.bmp"));
        removeSymbols(machine.files, symbols.SymbolFolder, {"C"});
    }
    EXPECT_TRUE(machine.reports.empty());
}

TEST_F(LibrariesTest, TransfersStopAtAFullLibraryAndAtASymbolOfTheSameName) {
    write("User Symbols", {"a", "b"});
    write("Other Symbols", {"b"});
    load();
    const auto transfer = [&](const std::string& name, Transfer kind) {
        choose(name);
        TransferUserSymbol(symbols, editor, kind, editor.BasePath, "Other Symbols.lib");
    };
    transfer("b", Transfer::Move);
    EXPECT_EQ(lastBox(), "Symbol transfer failed. Symbol already exists in selected library.");
    symbols.MaxSymbolsPerLibrary = 1;
    transfer("a", Transfer::Move);
    EXPECT_EQ(lastBox(), "Symbol library is full. Please select another library.");
    symbols.MaxSymbolsPerLibrary = 2;
    transfer("a", Transfer::Copy);
    EXPECT_EQ(listText("User Symbols"), "a\r\nb\r\n");
    EXPECT_EQ(listText("Other Symbols"), "b\r\na\r\n");
    EXPECT_EQ(script("Other Symbols/a"), "Line:0:0:0.5:0 of User Symbols/a\r\n");
}

TEST_F(LibrariesTest, MergingStopsAboveTheLimitAndSkipsClashes) {
    write("User Symbols", {"a"});
    write("Other Symbols", {"b", "A", "c"});
    machine.files.remove(disk / "documents/Other Symbols/c.bmp");
    load();
    const auto merge = [&] {
        MergeUserLibrary(symbols, editor, editor.BasePath, "Other Symbols.lib");
    };
    symbols.MaxSymbolsPerLibrary = 3;
    merge();
    EXPECT_EQ(lastBox(),
              "Current library count of 1 symbols \r\nplus the merge count of 3 exceeds \r\nthe "
              "maximum allowed which is 3.\r\nPlease open another library and try again later.");
    symbols.MaxSymbolsPerLibrary = 4;
    merge();
    EXPECT_EQ(listText("User Symbols"), "a\r\nb\r\n");
    EXPECT_EQ(script("User Symbols/a"), "Line:0:0:0.5:0 of User Symbols/a\r\n");
    EXPECT_EQ(symbols.UserSymbolCount, 2);
    MergeUserLibrary(symbols, editor, editor.BasePath, "No Symbols.lib");
    EXPECT_EQ(lastBox(), "Library folder does not exist.");
}

TEST_F(LibrariesTest, LibrariesAreMadeOpenedAndSteppedThrough) {
    StepUserLibrary(symbols, editor, 1);
    EXPECT_EQ(lastBox(), "User library does not exist in " + editor.BasePath);
    write("User Symbols", {"a"});
    load();
    dialogs.inputAnswers = {"Motor", "Motor", "Lost"};
    NewUserLibrary(symbols, editor);
    EXPECT_EQ(lastBox(), "Motor Symbols has been successfully created.");
    EXPECT_EQ(listText("Motor Symbols"), "");
    EXPECT_EQ(symbols.LibraryFile, "Motor Symbols.lib");
    EXPECT_EQ(editor.form.Caption, "Ladrix - Current Library: Motor Symbols - File Name: Untitled");
    NewUserLibrary(symbols, editor);
    EXPECT_EQ(lastBox(), "Symbol Folder Already Exists - Cannot Overwrite");
    disk.write("documents/Lost Symbols.lib", "a\r\n");
    NewUserLibrary(symbols, editor);
    EXPECT_EQ(lastBox(), "Symbol File Already Exists - Cannot Overwrite");
    EXPECT_EQ(listText("Lost Symbols"), "a\r\n") << "a list without its folder is not emptied";
    editor.PreviousTool = 95;
    for (const auto& [step, file] : std::vector<std::pair<int, std::string>>{
             {1, "User Symbols.lib"}, {1, "Motor Symbols.lib"}, {-1, "User Symbols.lib"}}) {
        StepUserLibrary(symbols, editor, step);
        EXPECT_EQ(symbols.LibraryFile, file);
    }
    EXPECT_EQ(symbols.UserSymbolCount, 1);
    EXPECT_EQ(editor.PreviousTool, -1);
}

// --- Every change, broken off at every change of the disk

struct Killed {};

// Each symbol of each library as a fresh start finds it: "library/name" to its three files.
using Shelf = std::map<std::string, std::string>;

std::string contentOf(Files& files, const std::string& folder, const std::string& name) {
    const SymbolFiles content = readSymbol(files, folder, FolderIndex(files, folder), name);
    return content.script + "|" + content.picture + "|" + content.cyanPicture;
}

Shelf shelfAfterStart(const TemporaryFolder& disk, Platform& platform) {
    DiskFiles files;
    platform.files = &files;
    Editor editor(platform);
    editor.BasePath = disk / "documents/";
    editor.AppFilePath = disk / "program/";
    UserSymbols symbols;
    LoadDeviceButtons(editor);
    ListUserLibraries(symbols, editor);
    Shelf shelf;
    for (const std::string& library : symbols.LibraryList) {
        selectLibrary(symbols, editor, editor.BasePath, library);
        ReloadLibrary(symbols, editor);
        for (const std::string& name : symbols.UserSymbolName)
            shelf[symbols.LibraryName + "/" + lowerCase(name)] =
                contentOf(files, symbols.SymbolFolder, name);
    }
    return shelf;
}

// What is kept of removed symbols.
std::set<std::string> keptContents(const TemporaryFolder& disk) {
    DiskFiles files;
    std::set<std::string> contents;
    for (const RemovedItem& item : removedItems(files, removalsFolder(files, disk / "documents/")))
        if (!item.IsLibrary) contents.insert(contentOf(files, item.Folder, item.Name));
    return contents;
}

struct Change {
    std::string name;
    std::function<void(SymbolBench&)> run;
    bool moves = false;  // may leave the symbol in both of its places
};

void chooseFirst(SymbolBench& bench) {
    bench.symbols.ContextButton = bench.symbols.FirstUserButton;
}

void save(SymbolBench& bench, const std::string& name) {
    makeIconPictures(bench.symbols, bench.machine.platform);
    bench.symbols.compiler.SymbolScriptText = "script new";
    try {
        SaveUserSymbol(bench.symbols, bench.editor, name);
    } catch (const Failure& failure) {
        bench.machine.platform.ReportError("Save", failure);
    }
}

void onFiles(SymbolBench& bench, const std::function<void(Files&, const std::string&)>& run) {
    try {
        run(*bench.machine.platform.files, bench.editor.BasePath);
    } catch (const Failure& failure) {
        bench.machine.platform.ReportError("Files", failure);
    }
}

const std::vector<Change>& changes() {
    static const std::vector<Change> all = {
        {"save", [](SymbolBench& b) { save(b, "new"); }},
        {"overwrite", [](SymbolBench& b) { save(b, "a"); }},
        {"overwrite in another case", [](SymbolBench& b) { save(b, "A"); }, true},
        {"delete",
         [](SymbolBench& b) {
             chooseFirst(b);
             b.machine.dialogs.answers = {Answer::Yes};
             DeleteUserSymbol(b.symbols, b.editor);
         }},
        {"rename",
         [](SymbolBench& b) {
             chooseFirst(b);
             b.machine.dialogs.inputAnswers = {"renamed"};
             RenameUserSymbol(b.symbols, b.editor);
         }},
        {"move",
         [](SymbolBench& b) {
             chooseFirst(b);
             TransferUserSymbol(b.symbols, b.editor, Transfer::Move, b.editor.BasePath,
                                "Other Symbols.lib");
         },
         true},
        {"merge",
         [](SymbolBench& b) {
             MergeUserLibrary(b.symbols, b.editor, b.editor.BasePath, "Other Symbols.lib");
         }},
        {"rename the library",
         [](SymbolBench& b) {
             onFiles(b, [](Files& files, const std::string& folder) {
                 renameLibrary(files, folder, "Other Symbols", "Else Symbols");
             });
         }},
        {"remove the library",
         [](SymbolBench& b) {
             onFiles(b, [](Files& files, const std::string& folder) {
                 removeLibrary(files, removalsFolder(files, folder), {folder, "Other Symbols"});
             });
         }},
    };
    return all;
}

struct Outcome {
    bool finished = false;
    std::size_t reports = 0;
    Shelf shelf;
    std::set<std::string> kept;
    std::vector<std::string> leftovers;
};

// Runs the change and breaks it off at the given change of the disk: by a kill, or by a failing
// step.
Outcome runBroken(const Change& change, int at, bool kill) {
    SymbolBench bench;
    const TemporaryFolder& disk = bench.machine.folder;
    test::writeLibrary(disk, "User Symbols", {"a", "b", "c"});
    test::writeLibrary(disk, "Other Symbols", {"x", "y"});
    ListUserLibraries(bench.symbols, bench.editor);
    ReloadLibrary(bench.symbols, bench.editor);
    int calls = 0;
    Outcome outcome{true, 0, {}, {}, {}};
    test::FaultyFiles files;
    files.beforeChange = [&] {
        if (calls++ != at) return;
        outcome.finished = false;
        if (kill) throw Killed{};
        throw Failure{failure::DiskFull, "No space"};
    };
    bench.machine.platform.files = &files;
    try {
        change.run(bench);
    } catch (const Killed&) {
        // The process is gone.
    }
    outcome.reports = bench.machine.reports.size();
    outcome.shelf = shelfAfterStart(disk, bench.machine.platform);
    outcome.kept = keptContents(disk);
    for (const std::string& name : disk.entries("documents/User Symbols"))
        if (name.ends_with(".new")) outcome.leftovers.push_back(name);
    return outcome;
}

// Nothing is on the shelf that is neither of before nor of after, and what both have is there.
void expectEachWhole(const Shelf& shelf, const Shelf& before, const Shelf& after, bool moves,
                     const std::string& where) {
    for (const auto& [name, content] : shelf) {
        const auto old = before.find(name), made = after.find(name);
        EXPECT_TRUE((old != before.end() && old->second == content) ||
                    (made != after.end() && made->second == content))
            << where << ": " << name << " is " << content;
    }
    for (const auto& [name, content] : before)
        if (after.contains(name)) {
            EXPECT_TRUE(shelf.contains(name)) << where << ": " << name << " is lost";
        }
    EXPECT_GE(shelf.size(), std::min(before.size(), after.size())) << where;
    if (!moves) {
        EXPECT_LE(shelf.size(), std::max(before.size(), after.size())) << where;
    }
}

// What is no longer on the shelf, under whatever name, has been kept.
void expectNoneLost(const Outcome& outcome, const Shelf& before, const std::string& where) {
    std::set<std::string> there = outcome.kept;
    for (const auto& [name, content] : outcome.shelf)
        there.insert(content);
    for (const auto& [name, content] : before)
        EXPECT_TRUE(there.contains(content)) << where << ": nothing is left of " << name;
}

TEST(LibraryChangesTest, AKillOrAFailureAtAnyMomentLeavesEverySymbolWhole) {
    for (const Change& change : changes()) {
        const Shelf before = runBroken({"nothing", [](SymbolBench&) {}}, -1, true).shelf;
        const Outcome whole = runBroken(change, -1, true);
        ASSERT_NE(whole.shelf, before) << change.name;
        EXPECT_EQ(whole.reports, 0u) << change.name;
        for (const bool kill : {true, false}) {
            int at = 0;
            for (;; ++at) {
                const Outcome outcome = runBroken(change, at, kill);
                const std::string where =
                    change.name + (kill ? " killed at " : " failing at ") + std::to_string(at);
                expectEachWhole(outcome.shelf, before, whole.shelf, change.moves, where);
                expectNoneLost(outcome, before, where);
                EXPECT_EQ(outcome.leftovers, std::vector<std::string>{}) << where;
                if (outcome.finished) break;
                // What went another way in spite of it needs no report.
                if (!kill) {
                    EXPECT_TRUE(outcome.reports == 1 || outcome.shelf == whole.shelf) << where;
                }
                ASSERT_LT(at, 500) << where;
            }
            EXPECT_GT(at, 3) << change.name;
        }
    }
}

}  // namespace
}  // namespace ladrix
