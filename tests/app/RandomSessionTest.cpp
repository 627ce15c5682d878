// Sessions of a person who does anything in any order: what must hold after each step, whatever
// came before. A seed that fails prints what was done.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "app/CommandTable.h"
#include "app/FileCommands.h"
#include "app/FileMenu.h"
#include "app/Startup.h"
#include "browser/BrowserSaving.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Keys.h"
#include "canvas/gestures/PictureEvents.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/gestures/Selection.h"
#include "canvas/history/Undo.h"
#include "canvas/labels/LabelEvents.h"
#include "canvas/labels/Labels.h"
#include "canvas/tools/Colors.h"
#include "canvas/tools/LineWidth.h"
#include "canvas/tools/RadiusFields.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Zoom.h"
#include "document/DrawingFile.h"
#include "document/Records.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

enum class Target { Canvas, Grip, Label, Picture };

struct Session {
    explicit Session(unsigned seed);

    // One step; throws std::logic_error if what must hold does not.
    void step();
    void stepsBackAndForth();
    std::string script() const;

  private:
    unsigned below(std::size_t limit) { return static_cast<unsigned>(random() % limit); }
    bool oneIn(unsigned count) { return below(count) == 0; }
    Single coordinate() { return 0.25f * static_cast<Single>(1 + below(24)); }
    void moveSomewhere();
    void press(Short button);
    void release(Short button);
    void doAtThePointer();
    void pressTool();
    void type();
    void pressKey();
    void runEditCommand();
    void runFileCommand();
    void run(Menu entry);
    void answerBox(const test::FakeDialogs::Box& box);
    void useForm(Form form);
    void useBrowser();

    void require(bool holds, std::string_view what) const {
        if (!holds) throw std::logic_error(std::string(what));
    }
    std::string title() const { return drawing.CurrentFolder + drawing.CurrentFileName; }
    std::string texts() const {
        return drawing.DeviceString + "\n" + drawing.LabelString + "\n" + drawing.PictureString;
    }
    void checkActivities() const;
    void checkTexts();
    void checkFiles(const std::string& titleBefore, bool templateBefore);
    std::map<std::string, std::string> readFiles();

    test::FakePlatform fake;
    Program program{fake.platform};
    Editor& editor = program.editor;
    Drawing& drawing = editor.drawing;
    std::mt19937 random;
    std::vector<std::string> done;

    Single x = 1, y = 1;
    Target pressed = Target::Canvas;
    Short pressedLabel = -1, held = 0;

    std::map<std::string, std::string> files;  // contents by path
    bool previewed = false;                    // a preview stands in the place of the drawing named
    bool previewing = false;                   // it came in this step
    bool agreed = false;                       // to replace a file, in this step
};

constexpr const char* Names[] = {"A.els", "B.els", "C.els"};

std::string record(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\xFF');
    return text + "\r\n";
}

Session::Session(unsigned seed) : random(seed) {
    fake.folder.write("documents/Ladrix/Drawings/A/a.png", "picture");
    const std::string key = "8.5x11Portrait\r\n\r\n";
    fake.folder.write("documents/Ladrix/Drawings/A.els",
                      key + record("InsertLamp|1|2|0||1|1|0|False") +
                          record("InsertCircle|2|2|0.25|0||1") + "\r\n" +
                          record("A1|2|1|0|Arial|8|False|False") +
                          record("A2|3|1|0|Arial|8|False|False") + std::string(PictureMarker) +
                          "\r\n" + record("a.png|3|3|1|1"));
    fake.folder.write("documents/Ladrix/Drawings/B.els",
                      key + record("InsertGround|1|2|0||1|1|0|False") + "\r\n" +
                          record("B1|2|1|0|Arial|8|False|False"));
    fake.folder.write("documents/Ladrix/Drawings/T.tpl",
                      key + record("InsertLamp|4|4|0||1|1|0|False") + "\r\n");
    if (!startProgram(program)) throw std::logic_error("The program does not start.");
    drawing.AttachLabels = oneIn(2);
    fake.dialogs.duringBox = [this](const auto& box) { answerBox(box); };
    fake.dialogs.duringForm = [this](Form form) { useForm(form); };
    files = readFiles();
}

std::string Session::script() const {
    std::string text;
    for (const std::string& line : done)
        text += line + "\n";
    return text;
}

void Session::answerBox(const test::FakeDialogs::Box& box) {
    if (box.buttons == Buttons::Ok) return;
    const bool cancels = box.buttons == Buttons::OkCancel || box.buttons == Buttons::YesNoCancel;
    const Answer refusal = cancels ? Answer::Cancel : Answer::No;
    const Answer consent = box.buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
    const Answer other = box.buttons == Buttons::YesNoCancel ? Answer::No : refusal;
    const Answer answer = oneIn(2) ? consent : oneIn(2) ? refusal : other;
    if (answer == consent && box.text.find("replace") != std::string::npos) agreed = true;
    fake.dialogs.answers = {answer};
    done.push_back("    \"" + box.text + "\": " + (answer == consent ? "yes" : "no or cancel"));
}

void Session::useForm(Form form) {
    if (form == Form::frmFile) useBrowser();
}

void Session::useBrowser() {
    FileBrowser& browser = program.frmFile;
    loadBrowser(program);
    const auto choose = [&] {
        if (browser.entries.empty()) return -1;
        const int index = static_cast<int>(below(browser.entries.size()));
        done.push_back("    entry " + browser.entries[static_cast<std::size_t>(index)].name);
        return index;
    };
    for (int i = 0; i < 3 && browser.Visible; ++i) {
        if (isSaving(browser, drawing)) {
            const std::string name = Names[below(3)];
            done.push_back("    save as " + name);
            txtSaveAs_Change(browser, name);
            cmdSaveAs_Click(browser, editor);
            continue;
        }
        const int index = choose();
        if (index < 0) break;
        FileList1_Click(browser, editor, index);
        const bool shown = browser.PreviewShown;
        previewing = previewing || shown;
        if (oneIn(3)) break;
        done.push_back("    OK");
        cmdOpenOK_Click(browser, editor);
        if (shown && browser.Chosen) previewing = false;
    }
    if (browser.Visible) {
        done.push_back("    cancel");
        cmdOpenCancel_Click(browser, editor);
    }
    frmFile_Unload(browser, editor);
}

void Session::moveSomewhere() {
    x = coordinate();
    y = coordinate();
    done.push_back("move " + std::to_string(x) + " " + std::to_string(y));
    if (held == 0 || pressed == Target::Canvas)
        picLX_MouseMove(editor, held, 0, x, y);
    else if (pressed == Target::Label)
        lbl_MouseMove(editor, held, x, y);
    else if (pressed == Target::Picture)
        img_MouseMove(editor, held, x, y);
}

void Session::press(Short button) {
    done.push_back(button == LeftButton ? "press" : "right press");
    const Overlay& grip = editor.form.pointer.picGrip;
    const auto label = labelAt(editor, x, y);
    const auto picture = pictureAt(editor, x, y);
    held = button;
    if (grip.Visible && x >= grip.Left && x <= grip.Left + grip.Width && y >= grip.Top &&
        y <= grip.Top + grip.Height) {
        pressed = Target::Grip;
        picGrip_MouseDown(editor, button);
    } else if (label) {
        pressed = Target::Label;
        pressedLabel = *label;
        lbl_MouseDown(editor, *label, button, x, y);
    } else if (picture) {
        pressed = Target::Picture;
        img_MouseDown(editor, *picture, button, x, y);
    } else {
        pressed = Target::Canvas;
        picLX_MouseDown(editor, button, 0, x, y);
    }
    if (button == RightButton) held = 0;  // the menu takes the release
}

void Session::release(Short button) {
    done.push_back("release");
    held = 0;
    if (pressed == Target::Grip) {
        if (editor.form.pointer.picGrip.Visible) picGrip_Click(editor);
    } else if (pressed == Target::Label) {
        if (lbl_MouseUp(editor)) lbl_Click(editor, pressedLabel);
    } else if (pressed == Target::Picture) {
        img_MouseUp(editor);
    } else {
        picLX_MouseUp(editor, button, 0, x, y);
    }
}

void Session::doAtThePointer() {
    if (held != 0) return oneIn(2) ? moveSomewhere() : release(held);
    switch (below(12)) {
        case 0:
            return press(RightButton);
        case 1:
            press(LeftButton);
            if (held != 0) release(LeftButton);
            if (pressed == Target::Canvas) {
                done.push_back("double-click");
                picLX_DblClick(editor);
            }
            return;
        case 2:
            return press(LeftButton);
        case 3:
            x = y = 0.1f;
            done.push_back("band");
            picLX_MouseMove(editor, 0, 0, x, y);
            press(LeftButton);
            return moveSomewhere();
        default:
            moveSomewhere();
            press(LeftButton);
            if (held != 0) release(LeftButton);
    }
}

void Session::pressTool() {
    static constexpr const char* Tools[] = {"Text",          "Connection Point", "Dashed Line",
                                            "Line",          "Arc Up",           "Small Circle",
                                            "Dashed Square", "Square",           "Ground",
                                            "Lamp",          "Relay/Timer Coil"};
    const std::string tag = Tools[below(std::size(Tools))];
    for (std::size_t i = 0; i < editor.form.cmdSym.size(); ++i) {
        if (editor.form.cmdSym[i].Tag != tag) continue;
        done.push_back("tool " + tag);
        return cmdSym_Click(editor, static_cast<Short>(i));
    }
}

void Session::type() {
    if (!editor.form.picText.Visible) return;
    if (oneIn(2)) {
        done.push_back("enter");
        return txtEdit_EnterPressed(editor);
    }
    editor.form.txtEdit.Text = "K" + std::to_string(below(20));
    done.push_back("type " + editor.form.txtEdit.Text);
    txtEdit_Change(editor);
}

void Session::pressKey() {
    constexpr Short Keys[] = {key::Escape, key::Escape, key::Left,     key::Right,
                              key::Up,     key::Down,   key::PageDown, key::Home};
    const Short code = Keys[below(std::size(Keys))];
    const Short shift = oneIn(2) ? NoShift : oneIn(3) ? ControlKey : ShiftKey;
    done.push_back("key " + std::to_string(code) + " " + std::to_string(shift));
    Form_KeyDown(editor, code, shift);
    picLX_KeyDown(editor, code, shift);
}

void Session::run(Menu entry) {
    mnuFile_Popup(program);
    if (!isEnabled(program, command(entry)) || !editor.form.menu[entry].Visible) return;
    done.push_back(std::string(command(entry).name));
    runCommand(program, entry);
    picLX_PointerRests(editor, held, x, y);
}

void Session::runEditCommand() {
    using enum Menu;
    constexpr Menu Entries[] = {mnuEditUndo,          mnuEditUndo,
                                mnuEditRedo,          mnuEditSelectAll,
                                mnuEditSelectAll,     mnuEditCopy,
                                mnuEditMove,          mnuEditDelete,
                                mnuEditRepeat,        mnuToolsParseDeviceString,
                                mnuEditTextAlignLeft, mnuEditTextAlignTop,
                                mnuEditTextCaption};
    switch (below(8)) {
        case 0:
            done.push_back("zoom button");
            return oneIn(2) ? cmdZoomIn_Click(editor) : cmdZoomOut_Click(editor);
        case 1: {
            const unsigned color = below(editor.form.lblColor.size());
            done.push_back("color " + std::to_string(color));
            return lblColor_Click(editor, color);
        }
        case 2:
            done.push_back("width");
            return cmdDrawWidth_Click(editor, static_cast<Short>(below(2)));
        default:
            return run(Entries[below(std::size(Entries))]);
    }
}

void Session::runFileCommand() {
    using enum Menu;
    constexpr Menu Entries[] = {mnuFileNew,     mnuFileNew,     mnuFileOpen,   mnuFileOpen,
                                mnuFileSave,    mnuFileSave,    mnuFileSaveAs, mnuFileRecent0,
                                mnuFileRecent1, mnuFileRestore, mnuFileBackups};
    run(Entries[below(std::size(Entries))]);
}

void Session::step() {
    const std::string titleBefore = title();
    const bool templateBefore = drawing.TemplateActive;
    agreed = previewing = false;
    fake.dialogs.boxes.clear();
    fake.dialogs.inputAnswers = {std::to_string(1 + below(3))};
    const std::size_t doneBefore = done.size();
    const unsigned kind = below(40);
    if (kind < 22)
        doAtThePointer();
    else if (kind < 26)
        pressTool();
    else if (kind < 28)
        type();
    else if (kind < 30)
        pressKey();
    else if (kind < 37)
        runEditCommand();
    else if (kind < 39)
        runFileCommand();
    else
        run(static_cast<Menu>(below(static_cast<std::size_t>(Menu::Count))));
    fake.dialogs.answers.clear();
    checkActivities();
    checkTexts();
    if (kind >= 37 || done.size() > doneBefore + 3) checkFiles(titleBefore, templateBefore);
}

void Session::checkActivities() const {
    const Gesture& g = editor.gesture;
    // The FROM press of a move is the press of a band as well.
    const int activities = (g.CopyArmed || g.CopyStage > 0) + (g.LineStartX != NoPoint) +
                           (g.ZoomInPending || g.ZoomOutPending) + g.TextAlignPending +
                           (g.BandShown && !g.MoveMode) + (g.draggedPicture.index >= 0) +
                           (g.draggedLabels.index >= 0) +
                           (g.SavingUserSymbol && g.SymbolPointPending);
    require(activities <= 1, "More than one activity is under way.");
    require(g.CopyArmed == (g.CopyStage > 0), "A copy waits for nothing, or nothing for a point.");
    require(!(g.CopyArmed && g.CurrentTool != -1), "A tool is in hand during a copy.");
    const bool something = editor.SelectedCount > 0 || g.CopyArmed;
    require((editor.form.cmdReset.BackColor == Cyan) == something, "Reset has the wrong colour.");
    require(editor.form.menu[Menu::mnuEditRedo].Enabled == (editor.UndoPosition < editor.UndoTop),
            "Redo is enabled where there is no step forward, or disabled where there is one.");
}

void Session::checkTexts() {
    const auto marked = [](const std::vector<Short>& marks) {
        return static_cast<std::size_t>(
            std::count_if(marks.begin(), marks.end(), [](Short mark) { return mark != 0; }));
    };
    std::size_t count =
        marked(drawing.devices.DeviceSelected) + marked(drawing.labels.LabelSelected);
    for (const PictureRow& row : drawing.PictureTable)
        count += row.Selected ? 1 : 0;
    require(static_cast<std::size_t>(editor.SelectedCount) == count, "The selection's count.");
    if (editor.gesture.draggedPicture.index >= 0) return;
    const std::string before = texts();
    RebuildDeviceString(drawing, fake.platform);
    RebuildLabelString(drawing, fake.platform);
    RebuildPictureString(drawing, fake.platform);
    require(texts() == before,
            "The texts do not say what the tables hold:\n" + before + "---\n" + texts());
}

std::map<std::string, std::string> Session::readFiles() {
    std::map<std::string, std::string> found;
    for (const char* name : Names)
        if (FileExists(fake.files, program.paths.DrawingsPath, name))
            found[program.paths.DrawingsPath + name] =
                fake.folder.read("documents/Ladrix/Drawings/" + std::string(name));
    return found;
}

// A name belongs to the drawing that was read from its file or written to it.
void Session::checkFiles(const std::string& titleBefore, bool templateBefore) {
    const auto now = readFiles();
    const std::string name = title();
    for (const auto& [path, content] : now) {
        const auto former = files.find(path);
        if (former == files.end() || former->second == content) continue;
        require(agreed || (path == titleBefore && !previewed),
                path + " was replaced without a question.");
    }
    files = now;
    if (previewing) {
        previewed = true;
        return;
    }
    const auto file = files.find(name);
    const bool same =
        file != files.end() &&
        file->second.find(drawing.DeviceString + "\r\n" + drawing.LabelString) != std::string::npos;
    if (same || name != titleBefore) previewed = false;
    if (name == titleBefore || file == files.end() || templateBefore) return;
    require(same || !editor.backups.shown.empty(),
            "The title names " + name + ", but the drawing is another.");
}

// Presses on until the box says that there is no more.
void Session::stepsBackAndForth() {
    if (editor.UndoShown < 0) return;
    const auto goOn = [&](void (*handler)(Editor&)) {
        fake.dialogs.boxes.clear();
        while (fake.dialogs.boxes.empty())
            handler(editor);
    };
    done.push_back("redo to the end, undo to the start, redo to the end");
    ResetEditor(editor);
    goOn(mnuEditRedo_Click);
    const std::string drawn = texts();
    goOn(mnuEditUndo_Click);
    goOn(mnuEditRedo_Click);
    require(texts() == drawn,
            "Undo and redo do not give the same texts back:\n" + drawn + "---\n" + texts());
}

TEST(RandomSessions, KeepTextsHistoryAndFilesTogether) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        Session session(seed);
        try {
            for (int sequence = 0; sequence < 50; ++sequence) {
                for (int i = 0; i < 15; ++i)
                    session.step();
                session.stepsBackAndForth();
            }
        } catch (const std::exception& failure) {
            ADD_FAILURE() << "seed " << seed << "\n" << session.script() << failure.what();
        }
    }
}

}  // namespace
}  // namespace ladrix
