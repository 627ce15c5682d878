// What is asked before a save replaces a file, and what is kept of it; a backup copy opened in the
// drawing's place.
#include "canvas/file/SaveGuard.h"

#include <filesystem>

#include "Bench.h"
#include "canvas/file/DrawingCommands.h"
#include "document/DrawingFile.h"

namespace ladrix::test {
namespace {

// "Mine.els", opened with a ground in it, and a lamp placed since.
struct SaveBench : Bench {
    SaveBench() {
        editor.BasePath = machine.folder / "base/";
        machine.folder.makeFolder("base");
        writeDocument("Mine.els", line(Ground));
        open("Mine.els");
        play("tool Lamp; click 2 2; key 27 0");
    }
    void change(const char* text) { machine.folder.write(document("Mine.els"), text); }
    std::string file() const { return Bench::file("Mine.els"); }
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
        return boxes().empty() ? "" : boxes()[0].substr(0, boxes()[0].find('\r'));
    }
};

struct SaveGuardTest : testing::Test, SaveBench {};

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
        bench.machine.dialogs.answers = {c.answer};
        if (c.inBrowser)
            SaveDrawingAs(bench.editor, bench.drawing.CurrentFolder, "Mine.els");
        else
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
        bench.machine.dialogs.answers = {Answer::No};
        mnuFileSave_Click(bench.editor);
        EXPECT_EQ(bench.firstLine(), c.saved ? "" : c.question);
    }
}

TEST_F(SaveGuardTest, ASaveKeepsTheFormerTextAndNothingWhereItChangesNothing) {
    const std::string former = file();
    mnuFileSave_Click(editor);
    EXPECT_THAT(copies(), ElementsAre(former));
    mnuFileSave_Click(editor);
    EXPECT_THAT(copies(), ElementsAre(former));
}

TEST_F(SaveGuardTest, ThePreviewInTheDrawingsPlaceIsAskedAboutUntilItIsSaved) {
    mnuFileSave_Click(editor);
    const std::string saved = file();
    writeDocument("Other.els", line(Ground));
    ASSERT_TRUE(ReadPreview(editor, drawing.CurrentFolder, "Other.els"));
    EXPECT_EQ(editor.PreviewedFile, "Other.els");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        machine.dialogs.boxes.clear();
        machine.dialogs.answers = {answer};
        const SaveOutcome outcome = SaveDrawing(editor);
        ASSERT_EQ(machine.dialogs.boxes.size(), 1u);
        EXPECT_EQ(machine.dialogs.boxes[0].buttons, Buttons::YesNoDefaultNo);
        EXPECT_EQ(firstLine(), "The preview of Other.els stands in the place of Mine.els.");
        EXPECT_EQ(file() == saved, answer == Answer::No);
        EXPECT_EQ(outcome.result, answer == Answer::No ? SaveResult::Refused : SaveResult::Saved);
    }
    EXPECT_THAT(copies(), testing::Contains(saved));
    play("tool Lamp; click 2 2; key 27 0");
    machine.dialogs.boxes.clear();
    mnuFileSave_Click(editor);
    EXPECT_THAT(boxes(), IsEmpty());
    const std::pair<const char*, std::function<void()>> ends[] = {
        {"new", [&] { mnuFileNew_Click(editor); }},
        {"open", [&] { OpenNamedDrawing(editor, drawing.CurrentFolder, "Other.els"); }},
        {"save as", [&] { SaveDrawingAs(editor, drawing.CurrentFolder, "Third.els"); }},
    };
    for (const auto& [name, end] : ends) {
        ReadPreview(editor, drawing.CurrentFolder, "Other.els");
        end();
        EXPECT_EQ(editor.PreviewedFile, "") << name;
    }
}

TEST_F(SaveGuardTest, APreviewLeavesThePicturesAlone) {
    addPicture({1, 1, 1, 1, "logo.bmp", "logo.bmp", false});
    const std::string pictures = drawing.PictureString;
    writeDocument("Other.els", line(Ground), line("Motor|1|2|0|Arial|8|False|False"));
    ASSERT_TRUE(ReadPreview(editor, drawing.CurrentFolder, "Other.els"));
    EXPECT_THAT(devices(), ElementsAre(Ground));
    EXPECT_EQ(drawing.labels.LabelCount, 0);
    EXPECT_EQ(drawing.LabelString, "");
    EXPECT_EQ(drawing.PictureTable.size() + editor.img.size(), 2u);
    EXPECT_EQ(drawing.PictureString, pictures);
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
            EXPECT_THAT(bench.boxes(), ElementsAre(HasSubstr("No backup copy of Mine.els could be "
                                                             "made:\r\nNo space left")));
            bench.machine.files.heal();
            EXPECT_EQ(bench.isSaved(), answer == Answer::Yes);
            EXPECT_EQ(bench.drawing.DrawingChanged, answer == Answer::No);
            EXPECT_EQ(bench.drawing.CurrentFileName, "Mine.els") << "to be saved elsewhere";
        }
    }
}

TEST_F(SaveGuardTest, ABackupTakesTheDrawingsPlaceUnderItsNameUntilItIsSaved) {
    const std::string former = file();
    mnuFileSave_Click(editor);
    const std::string saved = file();
    const std::string copy = machine.folder.entries(backups()).at(0);
    const std::string home = drawing.CurrentFolder;
    // A template in force is no part of a copy.
    drawing.TemplateActive = true;
    drawing.TemplateDevices = line("InsertFuse|3|3|0||1|1|0|False");
    editor.backups.offered = drawing.CurrentFolder = BackupsOfDrawing(editor);
    editor.backups.CurrentFolder = home;
    editor.backups.CurrentFileName = "Mine.els";
    open(copy.c_str());
    EXPECT_THAT(devices(), ElementsAre(Ground));
    EXPECT_EQ(drawing.CurrentFolder + drawing.CurrentFileName, home + "Mine.els");
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_TRUE(drawing.TemplateActive);
    const std::string date = copy.substr(0, copy.size() - 4);
    EXPECT_THAT(editor.form.Caption, HasSubstr("Mine.els (backup of " + date + ")"));
    EXPECT_EQ(file(), saved) << "nothing is written yet";

    editor.backups.offered.clear();
    mnuFileSave_Click(editor);
    EXPECT_EQ(file(), former + "///Picture Files///\r\n");
    EXPECT_THAT(copies(), testing::UnorderedElementsAre(former, saved));
    EXPECT_TRUE(editor.form.Caption.ends_with("File Name: Mine.els"));
    EXPECT_THAT(boxes(), IsEmpty());
}

TEST_F(SaveGuardTest, ABackupThatCannotBeReadLeavesTheDrawing) {
    mnuFileSave_Click(editor);
    const std::string home = drawing.CurrentFolder;
    editor.backups = {BackupsOfDrawing(editor), home, "Mine.els", ""};
    drawing.CurrentFolder = editor.backups.offered;
    open("2026-01-01 00-00-00.els");
    EXPECT_EQ(machine.reports.size(), 1u);
    EXPECT_THAT(devices(), ElementsAre(Ground, Lamp));
    EXPECT_EQ(drawing.CurrentFolder + drawing.CurrentFileName, home + "Mine.els");
}

}  // namespace
}  // namespace ladrix::test
