#include "app/LibraryCommands.h"

#include "canvas/gestures/Gesture.h"
#include "canvas/state/Editor.h"
#include "simulation/Simulation.h"
#include "usersymbols/Compiler.h"
#include "usersymbols/Libraries.h"

namespace ladrix {

namespace {

constexpr std::string_view SampleLibrary = "Sample Symbols";

// The list chosen in the file dialog, in BrowserFolder and BrowserFile; false if none was.
bool chooseLibrary(Program& program, BrowserMode mode) {
    program.frmFile.FileBrowserMode = mode;
    program.frmFile.StartFolder = program.paths.BasePath;
    program.platform.dialogs->show(Form::frmFile);
    return program.frmFile.Chosen && !program.frmFile.BrowserFile.empty();
}

void transfer(Program& program, Transfer kind) {
    UserSymbols& symbols = program.usersymbols;
    if (symbolOfButton(symbols, symbols.ContextButton) < 0) return;
    if (chooseLibrary(program, BrowserMode::TransferLibrary))
        TransferUserSymbol(symbols, program.editor, kind, program.frmFile.BrowserFolder,
                           program.frmFile.BrowserFile);
}

// The list last: without it there is no library yet.
void copySampleLibrary(Files& files, const LibraryPlace& from, const LibraryPlace& to) {
    const std::string source = from.symbolFolder(files), target = to.symbolFolder(files);
    if (!files.status(to.Folder + to.Name)) files.makeFolder(to.Folder + to.Name);
    for (const FileEntry& entry : files.list(source))
        if (!entry.isFolder) files.copy(source + entry.name, target + entry.name);
    files.copy(from.path(), to.path());
}

}  // namespace

void mnuEditSaveUserSymbol_Click(Program& program) {
    mnuEditSaveUserSymbol_Click(program.usersymbols, program.editor);
}

void mnuAdminCreateSymbolExportFile_Click(Program& program) {
    mnuAdminCreateSymbolExportFile_Click(program.usersymbols, program.editor);
}

void mnuModeDesign_Click(Program& program) {
    LeaveSimulation(program.simulation, program.editor);
    MenuStates& menu = program.editor.form.menu;
    menu[Menu::mnuModeNormal].Checked = false;
    menu[Menu::mnuModeDesign].Checked = true;
    ResetEditor(program.editor);
    program.editor.form.lblMessage.Caption =
        "Draw the symbol and select it. Then choose \"Save Selected as New User Symbol\" in the "
        "Edit menu.";
}

void mnuLibOpen_Click(Program& program) {
    offerSampleLibrary(program);
    if (chooseLibrary(program, BrowserMode::Library))
        OpenUserLibrary(program.usersymbols, program.editor, program.frmFile.BrowserFolder,
                        program.frmFile.BrowserFile);
}

void mnuLibMerge_Click(Program& program) {
    offerSampleLibrary(program);
    if (chooseLibrary(program, BrowserMode::MergeLibrary))
        MergeUserLibrary(program.usersymbols, program.editor, program.frmFile.BrowserFolder,
                         program.frmFile.BrowserFile);
}

void mnuLibNewLibrary_Click(Program& program) {
    NewUserLibrary(program.usersymbols, program.editor);
}

void mnuLibraryNext_Click(Program& program) {
    StepUserLibrary(program.usersymbols, program.editor, 1);
}

void mnuLibraryPrevious_Click(Program& program) {
    StepUserLibrary(program.usersymbols, program.editor, -1);
}

void mnuLibManageRename_Click(Program& program) {
    RenameUserSymbol(program.usersymbols, program.editor);
}

void mnuLibManageDelete_Click(Program& program) {
    DeleteUserSymbol(program.usersymbols, program.editor);
}

void mnuLibManageMove_Click(Program& program) {
    transfer(program, Transfer::Move);
}

void mnuLibManageCopy_Click(Program& program) {
    transfer(program, Transfer::Copy);
}

void offerSampleLibrary(Program& program) {
    Files& files = *program.platform.files;
    const Paths& paths = program.paths;
    const LibraryPlace shipped{paths.AppFilePath, std::string(SampleLibrary)};
    const LibraryPlace own{paths.BasePath, std::string(SampleLibrary)};
    // Without a data folder it could not be known whether the library has been offered before.
    if (paths.DataFilesPath.empty()) return;
    const std::string mark = paths.DataFilesPath + own.file();
    program.platform.attempt("Copying Sample Symbols", [&] {
        if (files.status(mark) || !files.status(shipped.path())) return;
        if (!files.status(own.path()) || !files.status(own.Folder + own.Name))
            copySampleLibrary(files, shipped, own);
        files.copy(shipped.path(), mark);
        ListUserLibraries(program.usersymbols, program.editor);
    });
}

}  // namespace ladrix
