// The whole program as one value: the editor, the forms and the folders. A test builds a fresh one
// in a line; the main program builds one and shows its window.
#pragma once

#include <string>
#include <vector>

#include "app/RecentFiles.h"
#include "browser/Favorites.h"
#include "browser/FileBrowser.h"
#include "canvas/labels/TextProperties.h"
#include "canvas/state/Editor.h"
#include "help/HelpForm.h"
#include "output/LayoutForm.h"
#include "output/PreviewForm.h"
#include "output/PrintDrawing.h"
#include "platform/Platform.h"
#include "platform/ReadState.h"
#include "simulation/Simulation.h"
#include "usersymbols/LibManager.h"
#include "usersymbols/RemovedForm.h"
#include "usersymbols/SymbolSearch.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

constexpr std::string_view ProgramName = "Ladrix";
constexpr std::string_view ProgramVersion = "0.1.0";

// Folders end in the separator.
struct Paths {
    std::string AppFilePath, MyDocumentsPath, VirtualMyDocuments, BasePath;
    std::string DrawingsPath, BitmapsPath, DataFilesPath;
    std::string UserSymbolsFolder, UserButtonsFolder;  // relative names
    std::string UserLibraryName, UserLibraryFile, UserLibraryFolder, UserLibraryParentFolder;
    std::string SimulationFolder;
    bool FirstRun = false;
};

// frmLog, the viewer of the error log.
struct LogViewer {
    bool Visible = false;
    std::string Caption, txtLog;
    Single Width = 800, Height = 640;  // pixels
};

struct Program {
    explicit Program(Platform& machine);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Platform& platform;
    Paths paths;
    Editor editor;
    FileBrowser frmFile;
    Favorites favorites;
    FavoritesForm frmFavorites;
    UserSymbols usersymbols;
    Simulation simulation;
    LibManager frmLibManager;
    SymbolSearch frmFind;
    RemovedForm frmRemoved;
    LogViewer frmLog;
    TextProperties frmTextProps;
    RecentFiles recentFiles;
    HelpForm frmHelp{platform};
    LayoutForm frmLayout;
    Printing printing;
    PreviewForm frmPreview;
    std::vector<std::string> UserPrefs;  // the lines of the preferences file
    std::string PrefsFolder;             // where they were read
    ReadState prefsFile;
    std::string LastErrorText;  // description of the last report
    std::string TraceText;      // the stage of the start, for reports
    bool Ending = false;        // the run is over; the view closes its windows
};

}  // namespace ladrix
