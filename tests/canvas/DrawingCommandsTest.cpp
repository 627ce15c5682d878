// New, open, save and the prompt before each; templates, the crash copy and the description.
#include "canvas/file/DrawingCommands.h"
#include "canvas/history/History.h"

#include <filesystem>

#include "Bench.h"

namespace ladrix::test {
namespace {

using namespace std::string_literals;

struct CommandBench : Bench {
    CommandBench() {
        machine.dialogs.duringForm = [this](Form form) {
            if (form != Form::frmFile) return;
            ++(drawing.SaveInProgress ? saveBrowsers : openBrowsers);
            if (!drawing.SaveInProgress || nameInBrowser.empty()) return;
            const SaveOutcome outcome = SaveDrawingAs(editor, drawing.CurrentFolder, nameInBrowser);
            if (outcome.next == After::Open) ++openBrowsers;
        };
    }

    // A drawing of one device that has not been saved yet.
    void drawGround() { play("tool Ground; click 1 1; key 27 0"); }
    bool hasFile(const char* name) const { return machine.folder.has(document(name)); }

    // What the person does in the browser's save mode: "" cancels it.
    std::string nameInBrowser;
    int saveBrowsers = 0, openBrowsers = 0;
};

struct DrawingCommandsTest : testing::Test, CommandBench {};

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
        After afterwards = After::Nothing;  // what the next save goes on with
    };
    const Case cases[] = {
        {Command::New, true, Answer::Yes, "", true, true, false, true, false, false},
        {Command::New, true, Answer::No, "", false, true, false, true, false, false},
        {Command::New, true, Answer::Cancel, "", false, false, false, true, false, true,
         After::New},
        {Command::New, false, Answer::Yes, "Mine.els", true, true, false, true, false, false},
        {Command::New, false, Answer::Yes, "", false, false, false, true, false, true},
        {Command::New, false, Answer::No, "", false, true, false, true, false, false},
        {Command::Open, true, Answer::Yes, "", true, false, true, true, false, false},
        {Command::Open, true, Answer::No, "", false, false, true, true, false, false},
        {Command::Open, true, Answer::Cancel, "", false, false, false, true, false, true,
         After::Open},
        {Command::Open, false, Answer::Yes, "Mine.els", true, false, true, true, false, false},
        {Command::Open, false, Answer::Yes, "", false, false, false, true, false, true},
        // Yes at exit leaves the program open on a named drawing, to be closed again.
        {Command::Exit, true, Answer::Yes, "", true, false, false, false, false, false,
         After::Exit},
        {Command::Exit, true, Answer::No, "", false, false, false, true, false, false, After::Exit},
        {Command::Exit, true, Answer::Cancel, "", false, false, false, false, false, true,
         After::Exit},
        {Command::Exit, false, Answer::Yes, "Mine.els", true, false, false, true, true, false,
         After::Exit},
        {Command::Exit, false, Answer::Yes, "", false, false, false, false, false, true,
         After::Exit},
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
        EXPECT_EQ(bench.drawing.AfterSave, c.afterwards);
    }
}

TEST(SavePrompt, IsLeftOutForAnUnchangedDrawingAndForTheDemos) {
    for (const Command command : {Command::New, Command::Open, Command::Exit}) {
        CommandBench unchanged;
        unchanged.drawing.CurrentFileName = "Mine.els";
        EXPECT_TRUE(run(unchanged, command));
        EXPECT_THAT(unchanged.boxes(), IsEmpty());

        CommandBench demo;
        demo.drawing.CurrentFileName = "Demo2.els";
        demo.drawGround();
        EXPECT_TRUE(run(demo, command));
        EXPECT_THAT(demo.boxes(), IsEmpty());
        EXPECT_FALSE(demo.drawing.DrawingChanged);
        EXPECT_FALSE(demo.hasFile("Demo2.els"));
    }
}

TEST(SavePrompt, AnExitAskedForStandsUntilTheNextNewOrOpen) {
    for (const Command later : {Command::New, Command::Open, Command::Exit}) {
        CommandBench bench;
        bench.drawGround();
        bench.drawing.CurrentFileName = "Mine.els";
        bench.machine.dialogs.answers = {Answer::Yes};
        EXPECT_FALSE(Form_QueryUnload(bench.editor));
        EXPECT_EQ(bench.drawing.AfterSave, After::Exit);
        run(bench, later);
        EXPECT_EQ(bench.drawing.AfterSave == After::Exit, later == Command::Exit);
        EXPECT_FALSE(bench.machine.shell.ended);
    }
}

TEST_F(DrawingCommandsTest, NewEmptiesEverythingAndIsUntitled) {
    writeDocument("A.els", line(Ground), line("Motor|1|2|0|Arial|8|False|False"));
    open("A.els");
    drawing.FileDescription = "Old";
    editor.ZoomFactor = 2;
    editor.UndoTop = editor.UndoPosition = 3;
    mnuFileNew_Click(editor);
    EXPECT_EQ(drawing.DeviceString + drawing.LabelString + drawing.FileDescription, "");
    EXPECT_THAT(editor.form.lbl, IsEmpty());
    EXPECT_THAT(canvas.persistent, IsEmpty());
    EXPECT_EQ(editor.ZoomFactor, 1);
    EXPECT_EQ(editor.UndoTop + editor.UndoPosition, 0);
    EXPECT_EQ(drawing.TitleState, 0);
    EXPECT_EQ(editor.form.Caption, "Ladrix - Current Library: User Symbols - File Name: Untitled");
}

TEST(ACopyThatWaitsForItsPoint, RefusesAnotherDrawingBeforeAnythingIsTouched) {
    const std::pair<const char*, void (*)(CommandBench&)> ways[] = {
        {"new", [](CommandBench& b) { mnuFileNew_Click(b.editor); }},
        {"open", [](CommandBench& b) { mnuFileOpen_Click(b.editor); }},
        {"restore", [](CommandBench& b) { mnuFileRestore_Click(b.editor); }},
        {"demo", [](CommandBench& b) { mnuHelpDemo_Click(b.editor, 1); }},
        {"recent",
         [](CommandBench& b) { OpenNamedDrawing(b.editor, b.drawing.CurrentFolder, "Other.els"); }},
        {"backup", [](CommandBench& b) { MayGiveUpDrawing(b.editor); }},
        {"an open asked for before",
         [](CommandBench& b) {
             b.drawing.AfterSave = After::Open;
             b.drawing.FileDescription = "saved";
             SaveDrawing(b.editor);
         }},
    };
    for (const auto& [name, open] : ways) {
        for (const bool changed : {true, false}) {
            SCOPED_TRACE(name);
            CommandBench bench;
            bench.writeDocument("Other.els", line(Lamp));
            bench.machine.folder.write("program/Demo1.els", "8.5x11Portrait\r\n\r\n");
            bench.drawGround();
            bench.save("Mine.els");
            bench.drawing.DrawingChanged = changed;
            bench.editor.gesture.CopyStage = 2;
            const std::string folder = bench.drawing.CurrentFolder;
            open(bench);
            EXPECT_THAT(bench.boxes(),
                        ElementsAre("New drawing not possible. Copy point not selected."));
            EXPECT_EQ(bench.openBrowsers + bench.saveBrowsers, 0);
            EXPECT_THAT(bench.devices(), ElementsAre(Ground));
            EXPECT_EQ(bench.drawing.CurrentFolder + bench.drawing.CurrentFileName,
                      folder + "Mine.els");
            EXPECT_EQ(bench.drawing.DrawingChanged,
                      changed && !bench.drawing.FileDescription.size());
        }
    }
}

TEST_F(DrawingCommandsTest, WhatWasAnsweredYesAndCancelledInTheBrowserIsForgotten) {
    for (const Command command : {Command::New, Command::Open}) {
        machine.dialogs.answers = {Answer::Yes};
        drawing.CurrentFileName.clear();
        drawing.DrawingChanged = true;
        run(*this, command);
        nameInBrowser = "Mine.els";
        play("tool Ground; click 1 1; key 27 0");
        const std::size_t placed = devices().size();
        openBrowsers = 0;
        mnuFileSaveAs_Click(editor);
        EXPECT_EQ(devices().size(), placed);
        EXPECT_EQ(openBrowsers, 0);
        nameInBrowser.clear();
    }
}

TEST_F(DrawingCommandsTest, ACloseThatWasCancelledEndsTheProgramAtTheNextSave) {
    drawGround();
    drawing.CurrentFileName = "Mine.els";
    machine.dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(Form_QueryUnload(editor));
    EXPECT_FALSE(machine.shell.ended);
    play("tool Lamp; click 2 2; key 27 0");
    mnuFileSave_Click(editor);
    EXPECT_TRUE(machine.shell.ended);
}

TEST_F(DrawingCommandsTest, SaveWritesTheDrawingAndSaysSo) {
    drawGround();
    drawing.FileDescription = "Conveyor start circuit";
    drawing.PageLayoutKey = "11x17Landscape";
    drawing.LabelString = line("Motor|1|2|0|Arial|8|False|False");
    drawing.CurrentFileName = "Mine.els";
    mnuFileSave_Click(editor);
    const std::string text =
        "///File Description///\r\nConveyor start circuit\r\n"
        "///End File Description///\r\n11x17Landscape\r\n\r\n" +
        line(Ground) + "\r\n" + line("Motor|1|2|0|Arial|8|False|False") + "///Picture Files///\r\n";
    EXPECT_EQ(file("Mine.els"), text);
    EXPECT_EQ(message(), "File saved.");
    EXPECT_FALSE(drawing.DrawingChanged);
    EXPECT_EQ(drawing.TitleState, 1);
    EXPECT_THAT(editor.form.Caption, HasSubstr("File Name: Mine.els"));
    EXPECT_THAT(machine.folder.entries("documents"), ElementsAre("Mine.els"));

    mnuFileNew_Click(editor);
    open("Mine.els");
    EXPECT_EQ(drawing.FileDescription, "Conveyor start circuit");
    EXPECT_EQ(editor.PageWidth, 17);
    drawing.CurrentFileName = "Again.els";
    mnuFileSave_Click(editor);
    EXPECT_EQ(file("Again.els"), text) << "the same bytes";
}

TEST_F(DrawingCommandsTest, SaveAsAsksForANameInTheBrowser) {
    drawGround();
    drawing.CurrentFileName = "Mine.els";
    nameInBrowser = "Other.els";
    mnuFileSaveAs_Click(editor);
    EXPECT_EQ(saveBrowsers, 1);
    EXPECT_TRUE(hasFile("Other.els"));
    EXPECT_FALSE(hasFile("Mine.els") || drawing.SaveInProgress);
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
        bench.machine.folder.makeFolder(c.folder);
        bench.drawGround();
        bench.drawing.CurrentFolder = bench.machine.folder / c.folder;
        bench.save(c.name);
        EXPECT_THAT(bench.boxes(), ElementsAre(c.text));
        EXPECT_THAT(bench.machine.folder.entries(c.folder), IsEmpty());
        EXPECT_TRUE(bench.drawing.DrawingChanged);
    }
    CommandBench author;
    author.editor.LoggedIn = true;
    author.drawGround();
    author.save("Demo1.els");
    EXPECT_TRUE(author.hasFile("Demo1.els"));
}

TEST(Save, AFailureLeavesTheOldFileTheNameAndTheMark) {
    for (const Command command : {Command::New, Command::Open, Command::Exit}) {
        CommandBench bench;
        bench.machine.folder.write(bench.document("Mine.els"), "old");
        bench.drawGround();
        bench.drawing.CurrentFileName = "Mine.els";
        const Failure full{failure::DiskFull, "No space left on device"};
        bench.machine.files.fail(Operation::Replace, full, "Mine.els");
        bench.machine.dialogs.answers = {Answer::Yes};
        EXPECT_EQ(run(bench, command), command != Command::Exit);
        EXPECT_THAT(bench.reports(), ElementsAre(full.number));
        EXPECT_EQ(bench.file("Mine.els"), "old");
        EXPECT_EQ(bench.drawing.CurrentFileName, "Mine.els");
        EXPECT_TRUE(bench.drawing.DrawingChanged);
        EXPECT_THAT(bench.devices(), ElementsAre(Ground)) << "nothing is given up";
        EXPECT_EQ(bench.openBrowsers, 0);
        EXPECT_FALSE(bench.machine.shell.ended);
        EXPECT_EQ(bench.message(), "The drawing was not saved. " + full.text);
    }
}

TEST(Open, OfAFileThatCannotBeReadReportsOnceAndLeavesItAlone) {
    struct Case {
        const char* name;
        int number;
        int devices;  // shown all the same
    };
    for (const Case& c : {Case{"Missing.els", failure::FileNotFound, 0},
                          Case{"Locked.els", failure::PermissionDenied, 0},
                          Case{"Damaged.els", failure::TypeMismatch, 1}}) {
        SCOPED_TRACE(c.name);
        CommandBench bench;
        bench.writeDocument("Locked.els", line(Lamp));
        bench.writeDocument("Damaged.els",
                            line(Ground) + line("InsertLamp|two|2|0||1|1|0|False") + line(Lamp));
        bench.machine.folder.write("program/Temp_Drawing.els", "crash copy");
        bench.machine.files.fail(Operation::Read, {70, "Permission denied"}, "Locked");
        const auto content = [&] { return bench.hasFile(c.name) ? bench.file(c.name) : ""; };
        const std::string before = content();
        bench.open(c.name);
        EXPECT_THAT(bench.reports(), ElementsAre(c.number));
        EXPECT_EQ(bench.drawing.devices.DeviceCount, c.devices);
        EXPECT_FALSE(bench.drawing.Reading);
        EXPECT_EQ(bench.machine.folder.has("program/Temp_Drawing.els"), c.devices == 0);
        EXPECT_THAT(bench.editor.form.Caption, HasSubstr("Untitled"));
        mnuFileSave_Click(bench.editor);
        EXPECT_EQ(bench.saveBrowsers, 1) << "no name that a save could go to";
        EXPECT_EQ(content(), before);
    }
}

TEST_F(DrawingCommandsTest, OpenReplacesTheDrawingAndStartsItsHistory) {
    drawGround();
    writeDocument("B.els", line(Lamp), line("Motor|1|2|0|Arial|8|False|False"), "11x17Landscape");
    drawing.AfterSave = After::Open;
    open("B.els");
    EXPECT_THAT(devices(), ElementsAre(Lamp));
    EXPECT_EQ(editor.UndoTop, 0);
    EXPECT_THAT(editor.history.text(0), HasSubstr(line(Lamp))) << "the first state";
    EXPECT_EQ(editor.form.lbl.size(), 1u);
    EXPECT_EQ(editor.PageWidth, 17);
    EXPECT_FALSE(drawing.DrawingChanged || drawing.Reading);
    EXPECT_EQ(drawing.AfterSave, After::Nothing);
    EXPECT_THAT(editor.form.Caption, HasSubstr("File Name: B.els"));
    EXPECT_FALSE(canvas.persistent.empty());
}

TEST_F(DrawingCommandsTest, OpenADemoComesFromTheProgramsFolder) {
    machine.folder.write("program/Demo2.els", "8.5x11Portrait\r\n\r\n" + line(Lamp) + "\r\n");
    drawGround();
    for (const auto& [answer, shown] : {std::pair{Answer::Cancel, Ground}, {Answer::No, Lamp}}) {
        machine.dialogs.answers = {answer};
        mnuHelpDemo_Click(editor, 2);
        EXPECT_THAT(devices(), ElementsAre(shown));
    }
    EXPECT_EQ(drawing.CurrentFileName, "Demo2.els");
}

TEST_F(DrawingCommandsTest, TemplatesSavedAndOpenedAddUpAndComeBeforeTheNextFileOnce) {
    drawGround();
    drawing.CurrentFileName = "Frame.TPL";
    mnuFileSave_Click(editor);
    EXPECT_TRUE(drawing.TemplateActive);
    writeDocument("Second.tpl", line(Lamp), line("Title|1|2|0|Arial|8|False|False"));
    writeDocument("C.els", line("InsertFuse|3|3|0||1|1|0|False"),
                  line("Motor|3|4|0|Arial|8|False|False"));
    open("Second.tpl");
    EXPECT_TRUE(drawing.TemplateActive);
    open("C.els");
    EXPECT_THAT(devices(), ElementsAre(Ground, Lamp, "InsertFuse|3|3|0||1|1|0|False"));
    EXPECT_THAT(drawing.labels.LabelText, ElementsAre("Title", "Motor"));
    EXPECT_EQ(editor.form.lbl.size(), 2u);
    EXPECT_FALSE(drawing.TemplateActive);
    open("C.els");
    EXPECT_EQ(drawing.devices.DeviceCount, 1);
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

TEST_F(DrawingCommandsTest, CrashCopyIsDeletedByAnOpenAndStaysWhereItCannotBeRead) {
    drawGround();
    machine.files.fail(Operation::Read, {failure::DeviceIO, "Input/output error"});
    machine.dialogs.answers = {Answer::No};
    mnuFileRestore_Click(editor);
    EXPECT_THAT(reports(), ElementsAre(failure::DeviceIO));
    EXPECT_TRUE(machine.folder.has("program/Temp_Drawing.els"));
    machine.files.heal();
    writeDocument("B.els", line(Lamp));
    open("B.els");
    EXPECT_FALSE(machine.folder.has("program/Temp_Drawing.els"));
    mnuFileRestore_Click(editor);
    EXPECT_THAT(devices(), IsEmpty()) << "a new drawing stays";
    EXPECT_EQ(drawing.CurrentFileName, "");
}

TEST_F(DrawingCommandsTest, CrashCopyThatIsReadInPartOrCannotBeDeletedStaysAndIsTold) {
    const std::string copy = "program/Temp_Drawing.els";
    const std::string damaged =
        "8.5x11Portrait\r\n\r\n" + line(Ground) + line("InsertLamp|two|2|0||1|1|0|False") + "\r\n";
    machine.folder.write(copy, damaged);
    mnuFileRestore_Click(editor);
    EXPECT_THAT(devices(), ElementsAre(Ground));
    EXPECT_EQ(machine.folder.read(copy), damaged);
    EXPECT_THAT(message(), HasSubstr("Only a part of the crash copy could be read."));

    machine.reports.clear();
    machine.files.fail(Operation::Remove, {failure::PermissionDenied, "Permission denied"});
    writeDocument("B.els", line(Lamp));
    drawing.DrawingChanged = false;
    open("B.els");
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(machine.reports[0].description, "Delete Temporary Drawing");
    EXPECT_EQ(drawing.CurrentFileName, "B.els");
    EXPECT_THAT(message(), testing::Not(HasSubstr("could not be opened")));
}

TEST_F(DrawingCommandsTest, CrashCopyRestoringAsksFirstAndHoldsItsTemplateAlready) {
    writeDocument("Frame.tpl", line(Ground));
    open("Frame.tpl");
    play("tool Lamp; click 2 2; click 3 3; key 27 0");
    machine.dialogs.answers = {Answer::Cancel};
    mnuFileRestore_Click(editor);
    EXPECT_EQ(devices().size(), 3u);
    EXPECT_TRUE(machine.folder.has("program/Temp_Drawing.els"));
    machine.dialogs.answers = {Answer::No};
    mnuFileRestore_Click(editor);
    EXPECT_THAT(devices(), ElementsAre(Ground, Lamp));
}

TEST_F(DrawingCommandsTest, DescriptionIsEditedInItsOwnDialog) {
    drawing.FileDescription = "Old";
    mnuEditFileDescription_Click(editor);
    EXPECT_THAT(machine.dialogs.forms, ElementsAre(Form::frmDesc));
    EXPECT_EQ(editor.frmDesc.txtDescription, "Old");
    editor.frmDesc.txtDescription = "New";
    frmDesc_cmdExit_Click(editor);
    EXPECT_EQ(drawing.FileDescription, "Old");
    EXPECT_FALSE(editor.frmDesc.Visible || drawing.DrawingChanged);
    frmDesc_cmdSave_Click(editor);
    EXPECT_EQ(drawing.FileDescription, "New");
    EXPECT_TRUE(drawing.DrawingChanged);
}

TEST(OpenDrawing, ShowsTheWholeWidthOfTheProgramsMotorDrawings) {
    const std::string motor = "Motor Reverse Power And Logic.els";
    for (const std::string& path :
         {"program/" + motor, "program/Mine.els"s, "documents/" + motor}) {
        CommandBench bench;
        const std::size_t name = path.find('/') + 1;
        bench.editor.form.FrameWidth = 18.2f * TwipsPerInch;
        bench.drawing.CurrentFolder = bench.machine.folder / path.substr(0, name);
        bench.machine.folder.write(path, "8.5x11Portrait\r\n\r\n" + line(Ground) + "\r\n");
        bench.open(path.substr(name));
        ASSERT_EQ(bench.drawing.devices.DeviceCount, 1);
        EXPECT_EQ(bench.editor.ZoomStepCount, path == "program/" + motor ? 3 : 0) << path;
        EXPECT_GE(bench.editor.VisibleWidth, bench.editor.PageWidth);
        EXPECT_EQ(bench.editor.ScaleTop, 0);
        EXPECT_FALSE(bench.editor.SimulationMode) << "it can be edited";
    }
}

}  // namespace
}  // namespace ladrix::test
