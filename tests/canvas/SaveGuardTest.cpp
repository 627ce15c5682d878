// What is asked before a save replaces a file, and what is kept of it; a backup copy opened in the
// drawing's place.
#include "canvas/SaveGuard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "Bench.h"
#include "canvas/DrawingCommands.h"
#include "document/DrawingFile.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* Ground = "InsertGround|1|1|0||1|1|0|False";
constexpr const char* Lamp = "InsertLamp|2|2|0||1|1|0|False";

// "Mine.els", opened with a ground in it, and a lamp placed since.
struct SaveBench : Bench {
    SaveBench() {
        editor.BasePath = machine.folder / "base/";
        machine.folder.makeFolder("base");
        writeDocument("Mine.els", line(Ground));
        open("Mine.els");
        play("tool Lamp; click 2 2; key 27 0");
    }
    void open(const char* name) {
        drawing.CurrentFileName = name;
        OpenDrawing(editor);
    }
    void change(const char* text) { machine.folder.write(document("Mine.els"), text); }
    std::string file() const { return machine.folder.read(document("Mine.els")); }
    bool isSaved() const { return file().find("InsertLamp") != std::string::npos; }
    std::string backups() const {
        return BackupsOfDrawing(editor).substr(machine.folder.path().size());
    }
    std::vector<std::string> copies() const {
        if (!machine.folder.has(backups())) return {};
        std::vector<std::string> texts;
        for (const std::string& name : machine.folder.entries(backups()))
            texts.push_back(machine.folder.read(backups() + name));
        return texts;
    }
    std::string firstLine() const {
        if (machine.dialogs.boxes.empty()) return {};
        const std::string& text = machine.dialogs.boxes[0].text;
        return text.substr(0, text.find('\r'));
    }
};

enum class Meanwhile { Nothing, Touched, Edited, Deleted, SameAsOurs };

TEST(ASave, AsksBeforeItReplacesWhatThisRunDoesNotKnow) {
    struct Case {
        Meanwhile event;
        bool inBrowser;  // Save As, whose browser has asked for the name
        Answer answer;
        std::string question;
        bool saved;
    };
    const std::string changed =
        "Mine.els has been changed by another program. Do you want to replace it?";
    const std::string gone =
        "Mine.els is no longer in its folder. Do you want to save it there again?";
    const Case cases[] = {
        {Meanwhile::Nothing, false, Answer::Yes, "", true},
        {Meanwhile::Touched, false, Answer::Yes, "", true},
        {Meanwhile::SameAsOurs, false, Answer::Yes, "", true},
        {Meanwhile::Edited, false, Answer::Yes, changed, true},
        {Meanwhile::Edited, false, Answer::No, changed, false},
        {Meanwhile::Edited, true, Answer::Yes, "", true},
        {Meanwhile::Deleted, false, Answer::Yes, gone, true},
        {Meanwhile::Deleted, false, Answer::No, gone, false},
        {Meanwhile::Deleted, true, Answer::Yes, "", true},
    };
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(number++);
        SaveBench bench;
        const auto path = bench.machine.folder.native(bench.document("Mine.els"));
        if (c.event == Meanwhile::Touched)
            std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now());
        if (c.event == Meanwhile::Edited) bench.change("another's work");
        if (c.event == Meanwhile::SameAsOurs) bench.change(fileText(bench.drawing).c_str());
        if (c.event == Meanwhile::Deleted) std::filesystem::remove(path);
        bench.drawing.SaveInProgress = c.inBrowser;
        bench.machine.dialogs.answers = {c.answer};
        mnuFileSave_Click(bench.editor);
        EXPECT_EQ(bench.firstLine(), c.question);
        EXPECT_LE(bench.machine.dialogs.boxes.size(), 1u);
        EXPECT_EQ(bench.drawing.DrawingChanged, !c.saved);
        EXPECT_EQ(bench.message() == "File saved.", c.saved);
        EXPECT_EQ(std::filesystem::exists(path), c.saved || c.event != Meanwhile::Deleted);
        EXPECT_EQ(std::filesystem::exists(path) && bench.isSaved(), c.saved);
        const bool isKept = c.saved && c.event == Meanwhile::Edited;
        if (c.event != Meanwhile::Nothing && c.event != Meanwhile::Touched) {
            EXPECT_EQ(bench.copies(), isKept ? std::vector<std::string>{"another's work"}
                                             : std::vector<std::string>{});
        }
        // Either way the next save knows the file, or asks again.
        bench.machine.dialogs.boxes.clear();
        bench.drawing.SaveInProgress = false;
        bench.machine.dialogs.answers = {Answer::No};
        mnuFileSave_Click(bench.editor);
        EXPECT_EQ(bench.firstLine(), c.saved ? "" : c.question);
    }
}

TEST(ASave, KeepsTheFormerTextAndNothingWhereItChangesNothing) {
    SaveBench bench;
    const std::string former = bench.file();
    mnuFileSave_Click(bench.editor);
    EXPECT_THAT(bench.copies(), ElementsAre(former));
    mnuFileSave_Click(bench.editor);
    EXPECT_THAT(bench.copies(), ElementsAre(former));
    // What a cancelled preview leaves may be saved under the drawing's name.
    const std::string saved = bench.file();
    bench.writeDocument("Other.els", line(Ground));
    ASSERT_TRUE(ReadPreview(bench.editor, bench.drawing.CurrentFolder, "Other.els"));
    mnuFileSave_Click(bench.editor);
    EXPECT_FALSE(bench.isSaved());
    EXPECT_THAT(bench.copies(), testing::UnorderedElementsAre(former, saved));
}

TEST(ASave, WithoutABackupIsMadeOnlyWhenTheUserSaysSo) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        for (const Operation fault : {Operation::MakeFolder, Operation::Replace, Operation::Read}) {
            SCOPED_TRACE(static_cast<int>(fault));
            SaveBench bench;
            const std::string part = fault == Operation::Read ? "Mine.els" : "Backups";
            bench.machine.files.fail(fault, {failure::DiskFull, "No space left on device"}, part);
            bench.machine.dialogs.answers = {answer};
            mnuFileSave_Click(bench.editor);
            ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
            EXPECT_THAT(bench.machine.dialogs.boxes[0].text,
                        HasSubstr("No backup copy of Mine.els could be made:\r\nNo space left"));
            bench.machine.files.heal();
            EXPECT_EQ(bench.isSaved(), answer == Answer::Yes);
            EXPECT_EQ(bench.drawing.DrawingChanged, answer == Answer::No);
            EXPECT_EQ(bench.drawing.CurrentFileName, "Mine.els") << "to be saved elsewhere";
        }
    }
}

TEST(ASave, ThatCannotTellWhatStandsThereReportsIt) {
    SaveBench bench;
    bench.machine.files.fail(Operation::Status, {failure::PermissionDenied, "Permission denied"},
                             "Mine.els");
    mnuFileSave_Click(bench.editor);
    ASSERT_EQ(bench.machine.reports.size(), 1u);
    EXPECT_EQ(bench.machine.reports[0].text, "Permission denied");
    EXPECT_TRUE(bench.drawing.DrawingChanged);
}

TEST(ABackup, TakesTheDrawingsPlaceUnderItsNameUntilItIsSaved) {
    SaveBench bench;
    const std::string former = bench.file();
    mnuFileSave_Click(bench.editor);
    const std::string saved = bench.file();
    const std::string copy = bench.machine.folder.entries(bench.backups()).at(0);
    const std::string home = bench.drawing.CurrentFolder;
    // A template in force is no part of a copy.
    bench.drawing.TemplateActive = true;
    bench.drawing.TemplateDevices = line("InsertFuse|3|3|0||1|1|0|False");
    bench.editor.backups.offered = bench.drawing.CurrentFolder = BackupsOfDrawing(bench.editor);
    bench.editor.backups.CurrentFolder = home;
    bench.editor.backups.CurrentFileName = "Mine.els";
    bench.open(copy.c_str());
    EXPECT_THAT(bench.devices(), ElementsAre(Ground));
    EXPECT_EQ(bench.drawing.CurrentFolder + bench.drawing.CurrentFileName, home + "Mine.els");
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    EXPECT_TRUE(bench.drawing.TemplateActive);
    const std::string date = copy.substr(0, copy.size() - 4);
    EXPECT_THAT(bench.editor.form.Caption, HasSubstr("Mine.els (backup of " + date + ")"));
    EXPECT_EQ(bench.file(), saved) << "nothing is written yet";

    bench.editor.backups.offered.clear();
    mnuFileSave_Click(bench.editor);
    EXPECT_EQ(bench.file(), former + "///Picture Files///\r\n");
    EXPECT_THAT(bench.copies(), testing::UnorderedElementsAre(former, saved));
    EXPECT_TRUE(bench.editor.form.Caption.ends_with("File Name: Mine.els"));
    EXPECT_THAT(bench.machine.dialogs.boxes, IsEmpty());
}

TEST(ABackup, ThatCannotBeReadLeavesTheDrawing) {
    SaveBench bench;
    mnuFileSave_Click(bench.editor);
    const std::string home = bench.drawing.CurrentFolder;
    bench.editor.backups = {BackupsOfDrawing(bench.editor), home, "Mine.els", ""};
    bench.drawing.CurrentFolder = bench.editor.backups.offered;
    bench.open("2026-01-01 00-00-00.els");
    EXPECT_EQ(bench.machine.reports.size(), 1u);
    EXPECT_THAT(bench.devices(), ElementsAre(Ground, Lamp));
    EXPECT_EQ(bench.drawing.CurrentFolder + bench.drawing.CurrentFileName, home + "Mine.els");
}

}  // namespace
}  // namespace ladrix::test
