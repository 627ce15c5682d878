#include "app/Startup.h"

#include <filesystem>

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
#include "usersymbols/Libraries.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

constexpr Single LeastScreenWidth = 14400;  // twips
constexpr Single TallScreenHeight = 11520;  // twips

std::string specialFolder(Program& program, int number) {
    return withSeparator(*program.platform.files, program.platform.shell->specialFolder(number));
}

// The root for a machine that has no documents folder: the system's temporary folder.
std::string fallbackRoot(Program& program) {
    return withSeparator(*program.platform.files,
                         fromUtf8(std::filesystem::temp_directory_path().string()));
}

void setFolderPaths(Paths& paths, char separator) {
    paths.DrawingsPath = paths.BasePath + "Drawings" + separator;
    paths.BitmapsPath = paths.BasePath + "Bitmaps" + separator;
    paths.DataFilesPath = paths.BasePath + "Data Files" + separator;
}

void makeMissing(Files& files, const std::string& base, std::string_view name) {
    if (!FolderExists(files, base, name)) files.makeFolder(base + std::string(name));
}

// The crash copy of a former run is no drawing of the user's.
void copyDrawings(Program& program, std::string_view extension) {
    Files& files = *program.platform.files;
    for (const FileEntry& entry : files.list(program.paths.AppFilePath)) {
        if (entry.isFolder || extensionOf(entry.name) != extension) continue;
        if (equalIgnoringCase(entry.name, CrashCopyName)) continue;
        files.copy(program.paths.AppFilePath + entry.name, program.paths.DrawingsPath + entry.name);
    }
}

void firstUseCopy(Program& program) {
    program.platform.attempt("Copying Existing Drawings", [&] {
        copyDrawings(program, ".els");
        copyDrawings(program, ".tpl");
    });
}

void makeNewTree(Program& program, bool inDocuments) {
    Files& files = *program.platform.files;
    Paths& paths = program.paths;
    files.makeFolder(paths.BasePath.substr(0, paths.BasePath.size() - 1));
    for (const std::string_view name : {"Drawings", "Bitmaps", "Data Files"})
        files.makeFolder(paths.BasePath + std::string(name));
    setFolderPaths(paths, files.separator());
    if (inDocuments) firstUseCopy(program);
    paths.FirstRun = true;
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

bool folderExists(Files& files, const std::string& path) {
    const auto status = files.status(path.substr(0, path.size() - 1));
    return status && status->isFolder;
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

// The run's diagnostics start afresh; nobody needs what the last run left, so nothing is flushed.
void renewErrorMessages(Program& program) {
    Files& files = *program.platform.files;
    const std::string path = program.paths.BasePath + "Error Messages.txt";
    if (files.status(path)) files.remove(path);
    files.append(path, "");
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
    editor.form.menu[Menu::mnuOptionAttachLabels].Checked = true;
    editor.GridColor = 0xE0E0E0;
    editor.drawing.PageLayoutKey = "8.5x11Portrait";
    editor.form.menu[Menu::mnuAdmin].Visible = false;
    editor.form.menu[Menu::mnuModeNormal].Checked = true;
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
    paths.BasePath = inDocuments ? paths.MyDocumentsPath : fallbackRoot(program);
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
    try {
        settleFolders(program);
    } catch (const Failure& failure) {
        ReportError(program, "Main Sub, " + program.paths.BasePath, failure);
    }
    setUserLibraryPaths(program.paths, program.platform.files->separator());
    shareWithEditor(program);
    ReadUserPreferences(program);
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
    return true;
}

}  // namespace ladrix
