// New, open, save and the prompt before each; templates, the crash copy and the description.
#include "canvas/DrawingCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "Bench.h"

namespace ladrix::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* Ground = "InsertGround|1|1|0||1|1|0|False";
constexpr const char* Lamp = "InsertLamp|2|2|0||1|1|0|False";

struct CommandBench : Bench {
    CommandBench() {
        machine.dialogs.duringForm = [this](Form form) {
            if (form != Form::frmFile) return;
            ++(drawing.SaveInProgress ? saveBrowsers : openBrowsers);
            if (!drawing.SaveInProgress || nameInBrowser.empty()) return;
            drawing.CurrentFileName = nameInBrowser;
            SaveDrawing(editor);
        };
    }

    // A drawing of one device that has not been saved yet.
    void drawGround() { play("tool Ground; click 1 1; key 27 0"); }
    void open(const char* name) {
        drawing.CurrentFileName = name;
        OpenDrawing(editor);
    }
    bool hasFile(const char* name) const { return machine.folder.has(document(name)); }
    std::string file(const char* name) const { return machine.folder.read(document(name)); }

    // What the person does in the browser's save mode: "" cancels it.
    std::string nameInBrowser;
    int saveBrowsers = 0, openBrowsers = 0;
};

enum class Command { New, Open, Exit };

// False: the window was to be closed and stays.
bool run(CommandBench& bench, Command command) {
    if (command == Command::New) mnuFileNew_Click(bench.editor);
    if (command == Command::Open) mnuFileOpen_Click(bench.editor);
    return command != Command::Exit || Form_QueryUnload(bench.editor);
}

TEST(SavePrompt, HasThreeWaysForEachCommand) {
    struct Case {
        Command command;
        bool named;
        Answer answer;
        const char* browser;  // the name given in it
        bool saved, emptied, opens, closes, ends, changed;
    };
    const Case cases[] = {
        {Command::New, true, Answer::Yes, "", true, true, false, true, false, false},
        {Command::New, true, Answer::No, "", false, true, false, true, false, false},
        {Command::New, true, Answer::Cancel, "", false, false, false, true, false, true},
        {Command::New, false, Answer::Yes, "Mine.els", true, true, false, true, false, false},
        {Command::New, false, Answer::Yes, "", false, false, false, true, false, true},
        {Command::New, false, Answer::No, "", false, true, false, true, false, false},
        {Command::Open, true, Answer::Yes, "", true, false, true, true, false, false},
        {Command::Open, true, Answer::No, "", false, false, true, true, false, false},
        {Command::Open, true, Answer::Cancel, "", false, false, false, true, false, true},
        {Command::Open, false, Answer::Yes, "Mine.els", true, false, true, true, false, false},
        {Command::Open, false, Answer::Yes, "", false, false, false, true, false, true},
        // Yes at exit leaves the program open on a named drawing, to be closed again.
        {Command::Exit, true, Answer::Yes, "", true, false, false, false, false, false},
        {Command::Exit, true, Answer::No, "", false, false, false, true, false, false},
        {Command::Exit, true, Answer::Cancel, "", false, false, false, false, false, true},
        {Command::Exit, false, Answer::Yes, "Mine.els", true, false, false, true, true, false},
        {Command::Exit, false, Answer::Yes, "", false, false, false, false, false, true},
    };
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(number++);
        CommandBench bench;
        bench.drawGround();
        if (c.named) bench.drawing.CurrentFileName = "Mine.els";
        bench.nameInBrowser = c.browser;
        bench.machine.dialogs.answers = {c.answer};
        EXPECT_EQ(run(bench, c.command), c.closes);
        EXPECT_EQ(bench.machine.dialogs.boxes,
                  (std::vector<FakeDialogs::Box>{
                      {"The current file has been changed. Do you want to save those changes?",
                       "File Has Changed", Buttons::YesNoCancel}}));
        EXPECT_EQ(bench.hasFile("Mine.els"), c.saved);
        EXPECT_EQ(bench.drawing.devices.DeviceCount, c.emptied ? 0 : 1);
        EXPECT_EQ(bench.openBrowsers, c.opens ? 1 : 0);
        EXPECT_EQ(bench.saveBrowsers, !c.named && c.answer == Answer::Yes ? 1 : 0);
        EXPECT_EQ(bench.machine.shell.ended, c.ends);
        EXPECT_EQ(bench.drawing.DrawingChanged, c.changed);
        EXPECT_EQ(bench.drawing.CurrentFileName.empty(), c.emptied || (!c.named && !c.saved));
        EXPECT_FALSE(bench.drawing.ExitCancelled && c.command == Command::Exit);
    }
}

TEST(SavePrompt, IsLeftOutForAnUnchangedDrawingAndForTheDemos) {
    for (const Command command : {Command::New, Command::Open, Command::Exit}) {
        CommandBench unchanged;
        unchanged.drawing.CurrentFileName = "Mine.els";
        EXPECT_TRUE(run(unchanged, command));
        EXPECT_THAT(unchanged.machine.dialogs.boxes, IsEmpty());

        CommandBench demo;
        demo.drawing.CurrentFileName = "Demo2.els";
        demo.drawGround();
        EXPECT_TRUE(run(demo, command));
        EXPECT_THAT(demo.machine.dialogs.boxes, IsEmpty());
        EXPECT_FALSE(demo.drawing.DrawingChanged);
        EXPECT_FALSE(demo.hasFile("Demo2.els"));
    }
}

TEST(SavePrompt, ACancelOfLongAgoDoesNotKeepTheWindowOpen) {
    CommandBench bench;
    bench.drawGround();
    bench.drawing.CurrentFileName = "Mine.els";
    bench.machine.dialogs.answers = {Answer::Cancel};
    mnuFileOpen_Click(bench.editor);
    bench.drawing.OpenAfterSave = false;
    mnuFileSave_Click(bench.editor);
    EXPECT_TRUE(Form_QueryUnload(bench.editor));
    EXPECT_EQ(bench.machine.dialogs.boxes.size(), 1u);
}

TEST(SavePrompt, AnExitAskedForStandsUntilTheNextNewOrOpen) {
    for (const Command later : {Command::New, Command::Open, Command::Exit}) {
        CommandBench bench;
        bench.drawGround();
        bench.drawing.CurrentFileName = "Mine.els";
        bench.machine.dialogs.answers = {Answer::Yes};
        EXPECT_FALSE(Form_QueryUnload(bench.editor));
        EXPECT_TRUE(bench.drawing.ExitAfterSave);
        run(bench, later);
        EXPECT_EQ(bench.drawing.ExitAfterSave, later == Command::Exit);
        EXPECT_FALSE(bench.machine.shell.ended);
    }
}

TEST(New, ARecordedDeviceForgetsTheNewDrawingAskedFor) {
    CommandBench bench;
    bench.drawGround();
    bench.drawing.CurrentFileName = "Mine.els";
    bench.machine.dialogs.answers = {Answer::Cancel};
    mnuFileNew_Click(bench.editor);
    bench.play("tool Lamp; click 2 2; key 27 0");
    mnuFileSave_Click(bench.editor);
    EXPECT_THAT(bench.devices(), ElementsAre(Ground, Lamp));
    EXPECT_EQ(bench.drawing.CurrentFileName, "Mine.els");
}

TEST(New, EmptiesEverythingAndIsUntitled) {
    CommandBench bench;
    bench.writeDocument("A.els", line(Ground), line("Motor|1|2|0|Arial|8|False|False"));
    bench.open("A.els");
    bench.drawing.FileDescription = "Old";
    bench.editor.ZoomFactor = 2;
    int cleared = 0;
    bench.editor.ClearHistory = [&] { ++cleared; };
    mnuFileNew_Click(bench.editor);
    EXPECT_EQ(bench.drawing.DeviceString + bench.drawing.LabelString, "");
    EXPECT_EQ(bench.drawing.FileDescription, "");
    EXPECT_THAT(bench.editor.form.lbl, IsEmpty());
    EXPECT_THAT(bench.canvas.persistent, IsEmpty());
    EXPECT_EQ(bench.editor.ZoomFactor, 1);
    EXPECT_EQ(cleared, 1);
    EXPECT_EQ(bench.drawing.TitleState, 0);
    EXPECT_EQ(bench.editor.form.Caption,
              "Ladrix - Current Library: User Symbols - File Name: Untitled");
}

TEST(New, IsRefusedWhileACopyWaitsForItsPoint) {
    CommandBench bench;
    bench.drawGround();
    bench.drawing.CurrentFileName = "Mine.els";
    bench.drawing.DrawingChanged = false;
    bench.editor.CopyStage = 1;
    mnuFileNew_Click(bench.editor);
    ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(bench.machine.dialogs.boxes[0].text,
              "New drawing not possible. Copy point not selected.");
    EXPECT_THAT(bench.devices(), ElementsAre(Ground));
    EXPECT_EQ(bench.drawing.CurrentFileName, "Mine.els");
}

TEST(Save, WritesTheDrawingAndSaysSo) {
    CommandBench bench;
    bench.drawGround();
    bench.drawing.FileDescription = "Conveyor start circuit";
    bench.drawing.PageLayoutKey = "11x17Landscape";
    bench.drawing.LabelString = line("Motor|1|2|0|Arial|8|False|False");
    bench.drawing.CurrentFileName = "Mine.els";
    mnuFileSave_Click(bench.editor);
    const std::string text =
        "///File Description///\r\nConveyor start circuit\r\n"
        "///End File Description///\r\n11x17Landscape\r\n\r\n" +
        line(Ground) + "\r\n" + line("Motor|1|2|0|Arial|8|False|False") + "///Picture Files///\r\n";
    EXPECT_EQ(bench.file("Mine.els"), text);
    EXPECT_EQ(bench.message(), "File saved.");
    EXPECT_FALSE(bench.drawing.DrawingChanged);
    EXPECT_EQ(bench.drawing.TitleState, 1);
    EXPECT_THAT(bench.editor.form.Caption, HasSubstr("File Name: Mine.els"));
    EXPECT_EQ(bench.machine.folder.entries("documents"), (std::vector<std::string>{"Mine.els"}));

    CommandBench second;
    second.machine.folder.write(second.document("Mine.els"), text);
    second.open("Mine.els");
    EXPECT_EQ(second.drawing.FileDescription, "Conveyor start circuit");
    EXPECT_EQ(second.editor.PageWidth, 17);
    second.drawing.CurrentFileName = "Again.els";
    mnuFileSave_Click(second.editor);
    EXPECT_EQ(second.file("Again.els"), text) << "the same bytes";
}

TEST(Save, AnUntitledDrawingAsksForItsNameInTheBrowser) {
    CommandBench bench;
    bench.drawGround();
    mnuFileSave_Click(bench.editor);
    EXPECT_EQ(bench.saveBrowsers, 1);
    EXPECT_TRUE(bench.drawing.DrawingChanged);
    bench.drawing.CurrentFileName = "Mine.els";
    bench.nameInBrowser = "Other.els";
    mnuFileSaveAs_Click(bench.editor);
    EXPECT_EQ(bench.saveBrowsers, 2);
    EXPECT_TRUE(bench.hasFile("Other.els"));
    EXPECT_FALSE(bench.drawing.SaveInProgress);
}

TEST(Save, RefusesTheDemosAndTheSymbolFolders) {
    struct Case {
        const char* name;
        const char* folder;
        const char* text;
    };
    for (const Case& c :
         {Case{"Demo1.els", "documents/", "Could not save the demo. You are not logged in."},
          Case{"A.els", "symbols/",
               "Files cannot be saved to the User Symbols Folder. Select a different folder."},
          Case{"A.els", "buttons/",
               "Files cannot be saved to the User Buttons Folder. Select a different folder."}}) {
        CommandBench bench;
        bench.machine.folder.makeFolder("symbols");
        bench.machine.folder.makeFolder("buttons");
        bench.drawGround();
        bench.drawing.CurrentFileName = c.name;
        bench.drawing.CurrentFolder = bench.machine.folder / c.folder;
        mnuFileSave_Click(bench.editor);
        ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u) << c.text;
        EXPECT_EQ(bench.machine.dialogs.boxes[0].text, c.text);
        EXPECT_THAT(bench.machine.folder.entries(c.folder), IsEmpty());
        EXPECT_TRUE(bench.drawing.DrawingChanged);
    }
    CommandBench author;
    author.editor.LoggedIn = true;
    author.drawGround();
    author.drawing.CurrentFileName = "Demo1.els";
    mnuFileSave_Click(author.editor);
    EXPECT_TRUE(author.hasFile("Demo1.els"));
}

TEST(Save, AFailureLeavesTheOldFileTheNameAndTheMark) {
    struct Case {
        Failure failure;
        Command command;
    };
    for (const Case& c : {Case{{failure::DiskFull, "No space left on device"}, Command::New},
                          Case{{failure::PermissionDenied, "Permission denied"}, Command::Open},
                          Case{{failure::DeviceIO, "Input/output error"}, Command::Exit}}) {
        CommandBench bench;
        bench.machine.folder.write(bench.document("Mine.els"), "old");
        bench.drawGround();
        bench.drawing.CurrentFileName = "Mine.els";
        bench.machine.files.fail(Operation::Replace, c.failure, "Mine.els");
        bench.machine.dialogs.answers = {Answer::Yes};
        EXPECT_EQ(run(bench, c.command), c.command != Command::Exit);
        ASSERT_EQ(bench.machine.reports.size(), 1u) << c.failure.text;
        EXPECT_EQ(bench.machine.reports[0].number, c.failure.number);
        EXPECT_EQ(bench.machine.reports[0].text, c.failure.text);
        EXPECT_EQ(bench.file("Mine.els"), "old");
        EXPECT_EQ(bench.drawing.CurrentFileName, "Mine.els");
        EXPECT_TRUE(bench.drawing.DrawingChanged);
        EXPECT_THAT(bench.devices(), ElementsAre(Ground)) << "nothing is given up";
        EXPECT_EQ(bench.openBrowsers, 0);
        EXPECT_FALSE(bench.machine.shell.ended);
        EXPECT_EQ(bench.message(), "The drawing was not saved. " + c.failure.text);
        bench.machine.files.heal();
        bench.drawing.NewAfterSave = bench.drawing.OpenAfterSave = bench.drawing.ExitAfterSave =
            false;
        mnuFileSave_Click(bench.editor);
        EXPECT_THAT(bench.file("Mine.els"), HasSubstr("InsertGround"));
        EXPECT_FALSE(bench.drawing.DrawingChanged);
    }
}

TEST(Open, OfAFileThatCannotBeReadReportsOnceAndLeavesItAlone) {
    struct Case {
        const char* name;
        int number;
    };
    for (const Case& c : {Case{"Missing.els", failure::FileNotFound}, Case{"Locked.els", 70}}) {
        CommandBench bench;
        bench.writeDocument("Locked.els", line(Lamp));
        bench.machine.folder.write("program/Temp_Drawing.els", "crash copy");
        bench.machine.files.fail(Operation::Read, {70, "Permission denied"}, "Locked");
        bench.open(c.name);
        ASSERT_EQ(bench.machine.reports.size(), 1u) << c.name;
        EXPECT_EQ(bench.machine.reports[0].number, c.number);
        EXPECT_FALSE(bench.drawing.Reading);
        EXPECT_TRUE(bench.machine.folder.has("program/Temp_Drawing.els"));
        const std::string before = bench.file("Locked.els");
        mnuFileSave_Click(bench.editor);
        EXPECT_EQ(bench.saveBrowsers, 1) << "no name that a save could go to";
        EXPECT_EQ(bench.file("Locked.els"), before);
        EXPECT_THAT(bench.editor.form.Caption, HasSubstr("Untitled"));
    }
}

TEST(Open, OfADamagedFileShowsItsStartWithoutAName) {
    CommandBench bench;
    bench.writeDocument("damaged.els",
                        line(Ground) + line("InsertLamp|two|2|0||1|1|0|False") + line(Lamp));
    const std::string text = bench.file("damaged.els");
    bench.open("damaged.els");
    EXPECT_EQ(bench.drawing.devices.DeviceCount, 1);
    EXPECT_EQ(bench.machine.reports.size(), 1u);
    EXPECT_EQ(bench.drawing.CurrentFileName, "");
    EXPECT_THAT(bench.editor.form.lblMessage.Caption, HasSubstr("damaged.els"));
    SaveDrawing(bench.editor);
    EXPECT_EQ(bench.saveBrowsers, 1);
    EXPECT_EQ(bench.file("damaged.els"), text);
}

TEST(Open, ReplacesTheDrawingAndStartsItsHistory) {
    CommandBench bench;
    bench.drawGround();
    bench.writeDocument("B.els", line(Lamp), line("Motor|1|2|0|Arial|8|False|False"),
                        "11x17Landscape");
    std::string first;
    bench.editor.ClearHistory = [&] { first = bench.drawing.DeviceString; };
    bench.drawing.OpenAfterSave = true;
    bench.open("B.els");
    EXPECT_THAT(bench.devices(), ElementsAre(Lamp));
    EXPECT_EQ(first, line(Lamp)) << "the opened drawing is the first state";
    EXPECT_EQ(bench.editor.form.lbl.size(), 1u);
    EXPECT_EQ(bench.editor.PageWidth, 17);
    EXPECT_FALSE(bench.drawing.DrawingChanged || bench.drawing.OpenAfterSave ||
                 bench.drawing.Reading);
    EXPECT_THAT(bench.editor.form.Caption, HasSubstr("File Name: B.els"));
    EXPECT_FALSE(bench.canvas.persistent.empty());
}

TEST(Open, ADemoComesFromTheProgramsFolder) {
    CommandBench bench;
    bench.machine.folder.write("program/Demo2.els", "8.5x11Portrait\r\n\r\n" + line(Lamp) + "\r\n");
    bench.drawGround();
    bench.machine.dialogs.answers = {Answer::Cancel};
    mnuHelpDemo_Click(bench.editor, 2);
    EXPECT_THAT(bench.devices(), ElementsAre(Ground));
    bench.machine.dialogs.answers = {Answer::No};
    mnuHelpDemo_Click(bench.editor, 2);
    EXPECT_THAT(bench.devices(), ElementsAre(Lamp));
    EXPECT_EQ(bench.drawing.CurrentFileName, "Demo2.els");
}

TEST(Preview, GivesUpTheTablesAndReadsDevicesOnly) {
    CommandBench bench;
    bench.drawGround();
    bench.machine.folder.write(
        bench.document("B.els"),
        "///File Description///\r\nTwo lines\r\nof text\r\n///End File Description///\r\n"
        "11x17Landscape\r\n\r\n" +
            line(Lamp) + "\r\n" + line("Motor|1|2|0|Arial|8|False|False"));
    const auto read = ReadPreview(bench.editor, bench.drawing.CurrentFolder, "B.els");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->pageKey, "11x17Landscape");
    EXPECT_EQ(read->description, "Two lines\r\nof text");
    EXPECT_THAT(bench.devices(), ElementsAre(Lamp));
    EXPECT_EQ(bench.drawing.labels.LabelCount, 0);
    EXPECT_FALSE(bench.drawing.DrawingChanged);
}

TEST(Preview, TellsOfWhatCannotBeReadInItsOwnBoxEachTime) {
    CommandBench bench;
    bench.writeDocument("Damaged.els", line(Lamp) + line("InsertLamp|two|2|0||1|1|0|False"));
    for (const char* name : {"Missing.els", "Damaged.els", "Damaged.els"}) {
        bench.machine.dialogs.boxes.clear();
        EXPECT_FALSE(ReadPreview(bench.editor, bench.drawing.CurrentFolder, name));
        ASSERT_EQ(bench.machine.dialogs.boxes.size(), 1u);
        EXPECT_EQ(bench.machine.dialogs.boxes[0].text,
                  "File structure corrupted and cannot be read.");
        EXPECT_EQ(bench.machine.dialogs.boxes[0].title, "Bad File Structure");
        EXPECT_THAT(bench.machine.reports, IsEmpty());
    }
}

TEST(Template, ComesBeforeTheNextFileOnceOnly) {
    CommandBench bench;
    bench.writeDocument("Frame.tpl", line(Ground), line("Title|1|2|0|Arial|8|False|False"));
    bench.writeDocument("B.els", line(Lamp), line("Motor|3|4|0|Arial|8|False|False"));
    bench.open("Frame.tpl");
    EXPECT_TRUE(bench.drawing.TemplateActive);
    bench.open("B.els");
    EXPECT_THAT(bench.devices(), ElementsAre(Ground, Lamp));
    EXPECT_THAT(bench.drawing.labels.LabelText, ElementsAre("Title", "Motor"));
    EXPECT_EQ(bench.editor.form.lbl.size(), 2u);
    EXPECT_FALSE(bench.drawing.TemplateActive);
    bench.open("B.els");
    EXPECT_THAT(bench.devices(), ElementsAre(Lamp));
}

TEST(Template, SavedUnderItsExtensionIsInForceTooAndTwoAddUp) {
    CommandBench bench;
    bench.drawGround();
    bench.drawing.CurrentFileName = "Frame.TPL";
    mnuFileSave_Click(bench.editor);
    EXPECT_TRUE(bench.drawing.TemplateActive);
    bench.writeDocument("Second.tpl", line(Lamp));
    bench.writeDocument("C.els", line("InsertFuse|3|3|0||1|1|0|False"));
    bench.open("Second.tpl");
    EXPECT_TRUE(bench.drawing.TemplateActive);
    bench.open("C.els");
    EXPECT_THAT(bench.devices(), ElementsAre(Ground, Lamp, "InsertFuse|3|3|0||1|1|0|False"));
}

TEST(CrashCopy, ComesBackUntitledAndIsGoneAfterwards) {
    CommandBench bench;
    bench.drawing.PageLayoutKey = "11x17Landscape";
    bench.drawGround();
    bench.play("tool Lamp; click 2 2");
    EXPECT_EQ(std::filesystem::status(bench.machine.folder.native("program/Temp_Drawing.els"))
                      .permissions() &
                  std::filesystem::perms::all,
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);

    CommandBench next;
    next.machine.folder.write("program/Temp_Drawing.els",
                              bench.machine.folder.read("program/Temp_Drawing.els"));
    next.drawing.CurrentFileName = "Other.els";
    mnuFileRestore_Click(next.editor);
    EXPECT_THAT(next.devices(), ElementsAre(Ground)) << "less the placement under way";
    EXPECT_EQ(next.editor.PageWidth, 17);
    EXPECT_EQ(next.drawing.CurrentFileName, "");
    EXPECT_TRUE(next.drawing.DrawingChanged) << "nothing else holds it now";
    EXPECT_FALSE(next.machine.folder.has("program/Temp_Drawing.els"));
    EXPECT_FALSE(next.drawing.NoRecord || next.drawing.Reading);
    next.play("tool Lamp; click 2 2");
    EXPECT_EQ(next.devices().size(), 2u);
}

TEST(CrashCopy, IsDeletedByAnOpenSoThatNothingIsRestored) {
    CommandBench bench;
    bench.drawGround();
    bench.writeDocument("B.els", line(Lamp));
    bench.open("B.els");
    EXPECT_FALSE(bench.machine.folder.has("program/Temp_Drawing.els"));
    mnuFileRestore_Click(bench.editor);
    EXPECT_THAT(bench.devices(), IsEmpty()) << "a new drawing stays";
    EXPECT_EQ(bench.drawing.CurrentFileName, "");
}

TEST(CrashCopy, RestoringAsksFirstAndHoldsItsTemplateAlready) {
    CommandBench bench;
    bench.writeDocument("Frame.tpl", line(Ground));
    bench.open("Frame.tpl");
    bench.play("tool Lamp; click 2 2; click 3 3; key 27 0");
    bench.machine.dialogs.answers = {Answer::Cancel};
    mnuFileRestore_Click(bench.editor);
    EXPECT_EQ(bench.devices().size(), 3u);
    EXPECT_TRUE(bench.machine.folder.has("program/Temp_Drawing.els"));
    bench.machine.dialogs.answers = {Answer::No};
    mnuFileRestore_Click(bench.editor);
    EXPECT_THAT(bench.devices(), ElementsAre(Ground, Lamp));
}

TEST(CrashCopy, ThatCannotBeReadStaysWhereItIs) {
    CommandBench bench;
    bench.machine.folder.write("program/Temp_Drawing.els", "8.5x11Portrait\r\n\r\n" + line(Lamp));
    bench.machine.files.fail(Operation::Read, {failure::DeviceIO, "Input/output error"});
    mnuFileRestore_Click(bench.editor);
    EXPECT_EQ(bench.machine.reports.size(), 1u);
    EXPECT_TRUE(bench.machine.folder.has("program/Temp_Drawing.els"));
}

TEST(Description, IsEditedInItsOwnDialog) {
    CommandBench bench;
    bench.drawing.FileDescription = "Old";
    mnuEditFileDescription_Click(bench.editor);
    EXPECT_THAT(bench.machine.dialogs.forms, ElementsAre(Form::frmDesc));
    EXPECT_EQ(bench.editor.frmDesc.txtDescription, "Old");
    bench.editor.frmDesc.txtDescription = "New";
    frmDesc_cmdExit_Click(bench.editor);
    EXPECT_EQ(bench.drawing.FileDescription, "Old");
    EXPECT_FALSE(bench.editor.frmDesc.Visible || bench.drawing.DrawingChanged);
    frmDesc_cmdSave_Click(bench.editor);
    EXPECT_EQ(bench.drawing.FileDescription, "New");
    EXPECT_TRUE(bench.drawing.DrawingChanged);
}

TEST(OpenDrawing, ShowsTheWholeWidthOfTheProgramsMotorDrawings) {
    for (const bool programs : {true, false})
        for (const std::string name : {"Motor Forward Power And Logic.els",
                                       "Motor Reverse Power And Logic.els", "Mine.els"}) {
            CommandBench bench;
            bench.editor.form.FrameWidth = 18.2f * TwipsPerInch;
            if (programs) bench.drawing.CurrentFolder = bench.editor.AppFilePath;
            bench.machine.folder.write((programs ? "program/" : "documents/") + name,
                                       "8.5x11Portrait\r\n\r\n" + line(Ground) + "\r\n");
            bench.open(name.c_str());
            ASSERT_EQ(bench.drawing.devices.DeviceCount, 1);
            const bool whole = programs && name != "Mine.els";
            EXPECT_EQ(bench.editor.ZoomStepCount, whole ? 3 : 0) << name;
            EXPECT_GE(bench.editor.VisibleWidth, bench.editor.PageWidth);
            EXPECT_EQ(bench.editor.ScaleTop, 0);
            EXPECT_FALSE(bench.editor.SimulationMode) << "it can be edited";
        }
}

}  // namespace
}  // namespace ladrix::test
