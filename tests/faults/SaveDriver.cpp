// A process that saves, to be disturbed or killed at it: save_driver OPERATION FOLDER. What it
// works on lies in the folder: "program", "documents", "data" and "base". How it went is told on
// standard output, a line each:
//
//   pending 1      what was to be saved still counts as unsaved, or the failure was told otherwise
//   said TEXT      a box, or the message at the foot of the window
#include <dlfcn.h>
#include <unistd.h>

#include <algorithm>
#include <functional>
#include <map>
#include <stdexcept>

#include "app/Preferences.h"
#include "app/Program.h"
#include "browser/BrowserSaving.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/tools/PaletteButtons.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/View.h"
#include "document/BackupCopies.h"
#include "platform/DiskFiles.h"
#include "support/FakePlatform.h"

namespace ladrix::test {
namespace {

void tell(std::string line) {
    line += '\n';
    if (write(STDOUT_FILENO, line.data(), line.size()) < 0) _exit(3);
}

// The whole program on the real files; a person who answers every question with No.
struct Desk {
    explicit Desk(const std::string& folder) {
        Paths& paths = program.paths;
        paths.AppFilePath = program.editor.AppFilePath = folder + "program/";
        paths.BasePath = program.editor.BasePath = folder + "base/";
        paths.DataFilesPath = program.PrefsFolder = folder + "data/";
        program.editor.drawing.TempFolder = paths.AppFilePath;
        program.editor.drawing.CurrentFolder = folder + "documents/";
        program.editor.drawing.AttachLabels = false;
        ApplyPageLayout(program.editor);
    }
    void open(const std::string& name) {
        program.editor.drawing.CurrentFileName = name;
        OpenDrawing(program.editor);
        if (program.editor.drawing.CurrentFileName != name) throw std::runtime_error(name);
    }
    void openAndChange() {
        open("Pump.els");
        drawing().FileDescription = "changed";
        drawing().DrawingChanged = true;
    }
    Drawing& drawing() { return program.editor.drawing; }

    Platform& onDisk() {
        machine.platform.files = &disk;
        return machine.platform;
    }

    FakePlatform machine;
    DiskFiles disk;
    Program program{onDisk()};
};

// ---- The operations; each returns whether something is still to be saved

// From here on calls are counted and go wrong.
void begin() {
    const auto beginFaults = reinterpret_cast<void (*)()>(dlsym(RTLD_DEFAULT, "beginFaults"));
    if (!beginFaults) throw std::runtime_error("nothing is preloaded");
    beginFaults();
}

bool save(Desk& desk) {
    desk.openAndChange();
    begin();
    mnuFileSave_Click(desk.program.editor);
    return desk.drawing().DrawingChanged;
}

bool saveAs(Desk& desk) {
    desk.openAndChange();
    FileBrowser& browser = desk.program.frmFile;
    desk.drawing().SaveInProgress = true;
    frmFile_Load(browser, desk.program.editor, desk.program.favorites,
                 {.DrawingsPath = desk.drawing().CurrentFolder});
    txtSaveAs_Change(browser, "Other");
    desk.machine.dialogs.duringBox = [&](const FakeDialogs::Box& box) {
        if (box.text.find("already exists") != std::string::npos)
            desk.machine.dialogs.answers = {Answer::Yes};
    };
    begin();
    cmdSaveAs_Click(browser, desk.program.editor);
    return desk.drawing().DrawingChanged;
}

bool crashCopy(Desk& desk) {
    desk.openAndChange();
    WriteTempDrawing(desk.program.editor);
    desk.drawing().PageLayoutKey = "11x17Landscape";
    begin();
    WriteTempDrawing(desk.program.editor);
    if (!desk.drawing().DrawingChanged) throw std::runtime_error("no longer marked as changed");
    return !desk.machine.dialogs.boxes.empty();
}

bool preferences(Desk& desk) {
    ReadUserPreferences(desk.program);
    desk.program.UserPrefs.back() = "Reserve Bit 01:changed";
    begin();
    return !SaveUserPreferences(desk.program);
}

bool favourites(Desk& desk) {
    Program& program = desk.program;
    ReadFavorites(program.favorites, program.editor);
    addFavorite(program.favorites, program.editor, "/added");
    begin();
    SaveFavorites(program.favorites, program.frmFile, program.editor);
    return program.favorites.FavoritesChanged;
}

bool backupCopy(Desk& desk) {
    desk.open("Pump.els");
    const Program& program = desk.program;
    const std::string folder = backupFolder(desk.disk, program.paths.BasePath, "/x/", "Pump.els");
    begin();
    try {
        keepBackup(desk.disk, folder, {"8.5x11Portrait\r\n\r\n\r\n", FileTime::clock::now()},
                   false);
        return false;
    } catch (const Failure& failure) {
        tell("said " + failure.text);
        return true;
    }
}

// ---- Placing and saving without end

constexpr int PlacementsOfASave = 3;

// Where device number `index` stands. All places are on snap lines.
Single columnOf(int index) {
    return static_cast<Single>(1 + index % 7);
}
Single rowOf(int index) {
    return static_cast<Single>(1 + index / 7 % 9);
}

void place(Editor& editor, Single x, Single y) {
    const Short before = editor.drawing.devices.DeviceCount;
    picLX_MouseMove(editor, 0, 0, x - 0.5f, y);
    picLX_MouseMove(editor, 0, 0, x, y);
    picLX_MouseDown(editor, LeftButton, 0, x, y);
    picLX_MouseUp(editor, LeftButton, 0, x, y);
    if (editor.drawing.devices.DeviceCount != before + 1) throw std::runtime_error("not placed");
}

void takeTool(Editor& editor, std::string_view tag) {
    LoadDeviceButtons(editor);
    LoadLibraryButtons(editor, Library::NEMA);
    const auto& places = editor.form.cmdSym;
    const auto button = std::find_if(places.begin(), places.end(),
                                     [&](const PaletteButton& each) { return each.Tag == tag; });
    cmdSym_Click(editor, static_cast<Short>(button - places.begin()));
}

// "placed 7": as many devices are drawn; "saved 6": as many are in the file, as the program says.
bool placeAndSave(Desk& desk) {
    Editor& editor = desk.program.editor;
    const Short& count = editor.drawing.devices.DeviceCount;
    desk.open("Loop.els");
    takeTool(editor, "Ground");
    tell("saved " + std::to_string(count));
    while (true) {
        for (int i = 0; i < PlacementsOfASave; ++i) {
            place(editor, columnOf(count), rowOf(count));
            tell("placed " + std::to_string(count));
        }
        mnuFileSave_Click(editor);
        if (editor.drawing.DrawingChanged) return true;
        tell("saved " + std::to_string(count));
    }
}

const std::map<std::string, std::function<bool(Desk&)>> Operations = {
    {"save", save},
    {"save as", saveAs},
    {"crash copy", crashCopy},
    {"preferences", preferences},
    {"favourites", favourites},
    {"backup copy", backupCopy},
    {"place and save", placeAndSave},
};

int run(const std::string& operation, const std::string& folder) {
    Desk desk(folder);
    const bool pending = Operations.at(operation)(desk);
    tell(std::string("pending ") + (pending ? "1" : "0"));
    for (const FakeDialogs::Box& box : desk.machine.dialogs.boxes) {
        std::string text = box.text;
        std::replace(text.begin(), text.end(), '\n', ' ');
        tell("said " + text);
    }
    tell("said " + desk.program.editor.form.lblMessage.Caption);
    return 0;
}

}  // namespace
}  // namespace ladrix::test

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    try {
        return ladrix::test::run(argv[1], argv[2]);
    } catch (const std::exception& failure) {
        ladrix::test::tell(std::string("said ") + failure.what());
    } catch (const ladrix::Failure& failure) {
        ladrix::test::tell("said " + failure.text);
    }
    return 3;
}
