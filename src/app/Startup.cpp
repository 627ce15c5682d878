#include "app/Startup.h"

#include <algorithm>
#include <vector>

#include "app/CommandTable.h"
#include "app/FailureLog.h"
#include "app/Preferences.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/file/Title.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/tools/Colors.h"
#include "canvas/tools/LineWidth.h"
#include "canvas/tools/PaletteButtons.h"
#include "canvas/tools/ScaleBox.h"
#include "canvas/view/Snap.h"
#include "canvas/view/View.h"
#include "platform/Encoding.h"
#include "platform/FallbackRoot.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

constexpr Single LeastScreenWidth = 14400;  // twips
constexpr Single TallScreenHeight = 11520;  // twips
constexpr std::string_view UnfinishedTree = ".Ladrix-unfinished";

std::string specialFolder(Program& program, int number) {
    return withSeparator(*program.platform.files, program.platform.shell->specialFolder(number));
}

void setFolderPaths(Paths& paths, char separator) {
    paths.DrawingsPath = paths.BasePath + "Drawings" + separator;
    paths.BitmapsPath = paths.BasePath + "Bitmaps" + separator;
    paths.DataFilesPath = paths.BasePath + "Data Files" + separator;
}

void makeMissing(Files& files, const std::string& base, std::string_view name) {
    if (!FolderExists(files, base, name)) files.makeFolder(base + std::string(name));
}

// Of a folder variable.
std::string withoutSeparator(const std::string& folder) {
    return folder.substr(0, folder.size() - 1);
}

bool folderExists(Files& files, const std::string& folder) {
    const auto status = files.status(withoutSeparator(folder));
    return status && status->isFolder;
}

// The crash copy of a former run is no drawing of the user's.
std::vector<std::string> shippedDrawings(Program& program) {
    std::vector<std::string> names;
    const std::vector<FileEntry> entries = program.platform.files->list(program.paths.AppFilePath);
    for (const std::string_view extension : {".els", ".tpl"})
        for (const FileEntry& entry : entries)
            if (!entry.isFolder && extensionOf(entry.name) == extension &&
                !equalIgnoringCase(entry.name, CrashCopyName))
                names.push_back(entry.name);
    return names;
}

// Of any number of files, the first few by their own text.
void reportUncopied(Program& program, const std::vector<Failure>& failures) {
    constexpr std::size_t mostNamed = 20;
    if (failures.empty()) return;
    Failure all{failures.front().number, {}};
    for (std::size_t i = 0; i < std::min(failures.size(), mostNamed); ++i)
        all.text += (i == 0 ? "" : "\r\n") + failures[i].text;
    if (failures.size() > mostNamed)
        all.text += "\r\nand " + std::to_string(failures.size() - mostNamed) + " more";
    ReportError(program, "Copying Existing Drawings", all);
}

// What a copy that was cut off has brought already is whole and stays. What cannot be copied does
// not keep the others from it.
std::vector<Failure> firstUseCopy(Program& program, const std::string& drawings) {
    Files& files = *program.platform.files;
    std::vector<Failure> failures;
    const auto guarded = [&](const auto& step) {
        try {
            step();
        } catch (const Failure& failure) {
            failures.push_back(failure);
        }
    };
    std::vector<std::string> names;
    guarded([&] { names = shippedDrawings(program); });
    for (const std::string& name : names)
        guarded([&] {
            if (!files.status(drawings + name))
                files.copy(program.paths.AppFilePath + name, drawings + name);
        });
    return failures;
}

void makeSubfolders(Files& files, const std::string& base) {
    for (const std::string_view name : {"Drawings", "Bitmaps", "Data Files"})
        if (!files.status(base + std::string(name))) files.makeFolder(base + std::string(name));
}

// The tree takes its name when it is complete: what a kill cuts off is taken up at the next start,
// and nothing is ever copied again into a tree that the user works with.
std::vector<Failure> makeTreeInDocuments(Program& program) {
    Files& files = *program.platform.files;
    const std::string unfinished = program.paths.MyDocumentsPath + std::string(UnfinishedTree);
    const std::string inside = unfinished + files.separator();
    if (!folderExists(files, inside)) files.makeFolder(unfinished);
    makeSubfolders(files, inside);
    std::vector<Failure> failures = firstUseCopy(program, inside + "Drawings" + files.separator());
    files.rename(unfinished, withoutSeparator(program.paths.BasePath));
    return failures;
}

void makeNewTree(Program& program, bool inDocuments) {
    Files& files = *program.platform.files;
    Paths& paths = program.paths;
    std::vector<Failure> failures;
    if (inDocuments) {
        failures = makeTreeInDocuments(program);
    } else {
        files.makeFolder(withoutSeparator(paths.BasePath), /*ownerOnly=*/true);
        makeSubfolders(files, paths.BasePath);
    }
    setFolderPaths(paths, files.separator());
    paths.FirstRun = true;
    reportUncopied(program, failures);
}

void completeTree(Program& program, bool inDocuments) {
    Files& files = *program.platform.files;
    Paths& paths = program.paths;
    makeMissing(files, paths.BasePath, "Drawings");
    makeMissing(files, paths.BasePath, "Bitmaps");
    if (inDocuments) makeMissing(files, paths.BasePath, "Data Files");
    // Outside the documents the data folder is left as it was.
    const std::string formerData = paths.DataFilesPath;
    setFolderPaths(paths, files.separator());
    if (!inDocuments) paths.DataFilesPath = formerData;
}

void setUserLibraryPaths(Paths& paths, char separator) {
    paths.UserLibraryName = "User Symbols";
    paths.UserLibraryFile = "User Symbols.lib";
    paths.UserLibraryParentFolder = paths.BasePath;
    paths.UserLibraryFolder = paths.BasePath + "User Symbols" + separator;
}

void settleProgramFolder(Program& program) {
    const char separator = program.platform.files->separator();
    Paths& paths = program.paths;
    paths.AppFilePath =
        withSeparator(*program.platform.files, program.platform.shell->programFolder());
    paths.UserSymbolsFolder = std::string("User Symbols") + separator;
    paths.UserButtonsFolder = std::string("User Buttons") + separator;
    paths.MyDocumentsPath = specialFolder(program, 5);
    paths.VirtualMyDocuments = specialFolder(program, 12);
    paths.SimulationFolder = paths.AppFilePath + "Simulation Files" + separator;
}

void shareWithEditor(Program& program) {
    Editor& editor = program.editor;
    const Paths& paths = program.paths;
    editor.AppFilePath = program.frmHelp.AppFilePath = paths.AppFilePath;
    program.frmHelp.PrintFolder = paths.DrawingsPath;
    editor.BasePath = paths.BasePath;
    editor.UserSymbolsPath = paths.BasePath + paths.UserSymbolsFolder;
    editor.UserButtonsPath = paths.BasePath + paths.UserButtonsFolder;
    editor.UserLibraryName = paths.UserLibraryName;
    editor.drawing.TempFolder = paths.AppFilePath;
    editor.drawing.CurrentFolder = paths.DrawingsPath;
}

bool screenIsLargeEnough(Program& program) {
    if (program.platform.screen.Width >= LeastScreenWidth) return true;
    program.platform.tell(
        "This program cannot run with the screen resolution set to less than 1024 x 768.");
    program.platform.tell(
        "The program will now close. Please change your screen seetings and try again.");
    return false;
}

void appendDiagnostics(Program& program) {
    const Paths& paths = program.paths;
    appendErrorMessage(program, "Application Path: " + paths.AppFilePath + "\r\n" +
                                    "Computer Name: " + program.platform.shell->computerName() +
                                    "\r\n" + "My Documents: " + paths.MyDocumentsPath + "\r\n" +
                                    "Virtual My Documents: " + paths.VirtualMyDocuments);
}

constexpr Short RowsOnTallScreen = 23, RowsOnLowScreen = 22;

void listUserLibraries(Program& program) {
    UserSymbols& symbols = program.usersymbols;
    const bool tall = program.platform.screen.Height >= TallScreenHeight;
    symbols.MaxSymbolsPerLibrary =
        static_cast<Short>(symbols.PaletteRows * (tall ? RowsOnTallScreen : RowsOnLowScreen));
    selectLibrary(symbols, program.editor, program.paths.BasePath, program.paths.UserLibraryFile);
    ListUserLibraries(symbols, program.editor);
}

void setDefaults(Program& program) {
    Editor& editor = program.editor;
    editor.SnapStep = 0.25f;
    showSnapStep(editor);
    editor.form.cmdSnap.ToolTipText = editor.platform.DecimalComma()
                                          ? "Left Click to Change, Right Click for Default (0,25)"
                                          : "Left Click to Change, Right Click for Default (0.25)";
    editor.drawing.AttachLabels = true;
    editor.GridColor = 0xE0E0E0;
    editor.drawing.PageLayoutKey = "8.5x11Portrait";
    cmdDrawWidth_Click(editor, 1);
    UpdateTitle(editor);
}

void showPalette(Program& program) {
    Editor& editor = program.editor;
    editor.TallScreen = program.platform.screen.Height >= TallScreenHeight ? 1 : 0;
    LoadDeviceButtons(editor);
    LoadLibraryButtons(editor, Library::NEMA);
    LayOutUserButtons(program.usersymbols, editor);
}

// The next placement takes the place of a crash copy, so that it is told before anything else.
void tellCrashCopy(Program& program) {
    const std::string& folder = program.editor.drawing.TempFolder;
    if (!FileExists(*program.platform.files, folder, CrashCopyName)) return;
    std::string caption{command(Menu::mnuFileRestore).caption};
    std::erase(caption, '&');
    program.editor.form.lblMessage.Caption = "There is a crash copy of a former drawing. \"" +
                                             caption + "\" in the File menu brings it back.";
}

// Runs one stage of the load; a failure is reported with the stage's name and the rest goes on.
template <typename Stage>
void runStage(Program& program, std::string_view trace, Stage&& stage) {
    program.TraceText = trace;
    try {
        stage();
    } catch (const Failure& failure) {
        ReportError(program, program.TraceText, failure);
    }
}

}  // namespace

void settleFolders(Program& program) {
    Files& files = *program.platform.files;
    Paths& paths = program.paths;
    settleProgramFolder(program);
    const bool inDocuments = paths.MyDocumentsPath != std::string(1, files.separator());
    paths.BasePath = inDocuments ? paths.MyDocumentsPath : fallbackRoot(files, "Ladrix");
    paths.BasePath += std::string("Ladrix") + files.separator();
    if (folderExists(files, paths.BasePath))
        completeTree(program, inDocuments);
    else
        makeNewTree(program, inDocuments);
}

bool startProgram(Program& program) {
    if (!program.platform.shell->onlyInstance()) {
        program.platform.tell("Another instance of this application is currently running.");
        return false;
    }
    applyStartStates(program.editor.form.menu);
    try {
        settleFolders(program);
    } catch (const Failure& failure) {
        ReportError(program, "Main Sub, " + program.paths.BasePath, failure);
    }
    setUserLibraryPaths(program.paths, program.platform.files->separator());
    shareWithEditor(program);
    ReadUserPreferences(program);
    ReadFavorites(program.favorites, program.editor);
    ReadRecentFiles(program);
    return Form_Load(program);
}

bool Form_Load(Program& program) {
    Editor& editor = program.editor;
    runStage(program, "Entering Error Messages", [&] { renewErrorMessages(program); });
    runStage(program, "Entering FillScaleList", [&] { FillScaleList(editor); });
    if (!screenIsLargeEnough(program)) return false;
    appendDiagnostics(program);
    UserSymbols& symbols = program.usersymbols;
    runStage(program, "Entering ListUserLibraries", [&] { listUserLibraries(program); });
    runStage(program, "Entering UpdateOldUserSymbols",
             [&] { UpdateOldUserSymbols(symbols, editor); });
    runStage(program, "Entering ReadLibraryStructure",
             [&] { ReadLibraryStructure(symbols, editor); });
    runStage(program, "Entering LoadUserSymbols", [&] { LoadUserSymbols(symbols, editor); });
    runStage(program, "Entering Defaults", [&] { setDefaults(program); });
    runStage(program, "Entering LoadMyColors", [&] { LoadMyColors(editor); });
    runStage(program, "Entering LoadDeviceButtons", [&] { showPalette(program); });
    runStage(program, "Entering PositionControls", [&] { ApplyPageLayout(editor); });
    ResetEditor(editor);
    editor.drawing.DrawingChanged = false;
    runStage(program, "Entering CrashCopy", [&] { tellCrashCopy(program); });
    return true;
}

}  // namespace ladrix
