// The uses of frmFile. Each mode has its own file types, texts and start folder, and its own
// meaning of OK.
//
// A caller that wants a file (or folder) for itself:
//
//   program.frmFile.FileBrowserMode = BrowserMode::SaveExport;
//   program.frmFile.SuggestedName = "Motor.pdf";      // optional, SaveExport alone
//   program.frmFile.StartFolder = folder;             // optional; "": the mode's own
//   program.platform.dialogs->show(Form::frmFile);    // returns when the form is gone
//   if (program.frmFile.Chosen)
//       write(program.frmFile.BrowserFolder + program.frmFile.BrowserFile);
//
// Chosen is false after Cancel and Esc. BrowserFolder ends in the separator. BrowserFile is a bare
// name with its extension, "" in the mode Folder; where a file was to be chosen it was there, and
// where one is to be written the user has agreed to replace what bears its name. The form puts the
// mode back to Drawing and takes StartFolder and SuggestedName away when it is unloaded.
//
// Drawing, Picture and the two preference modes do their work themselves; Chosen then tells that
// it is done.
#pragma once

#include <span>
#include <string_view>

#include "platform/Types.h"

namespace ladrix {

enum class BrowserMode : Short {
    Drawing = 0,  // opens the drawing; with the drawing's SaveInProgress on, saves it
    WebPage = 1,
    List = 2,
    Program = 3,
    Library = 4,  // a user library to open
    Picture = 5,  // places the picture on the canvas
    SavePreferences,
    RestorePreferences,
    MergeLibrary,     // a library to merge into the current one
    TransferLibrary,  // a library that takes symbols over
    Backup,           // a backup copy of a drawing
    SaveExport,       // a PDF, SVG or PNG to write
    Folder,           // a folder
};

enum class BrowserPreview {
    Drawing,
    Picture,
    Unavailable,  // the frame stands there and says so
    None,
};

enum class BrowserStart { Drawing, Base, Pictures };

// A choice of optFileType; the extension with its dot.
struct FileType {
    std::string_view caption, extension;
};

struct ModeTraits {
    BrowserMode mode;
    std::string_view Caption;
    std::string_view BrowserFilter;  // "" lists folders alone
    std::string_view OkCaption;
    BrowserPreview preview;
    BrowserStart start;
    bool saves = false;  // a name is typed, and cmdSaveAs is what OK means
    std::string_view heading = {}, prompt = {};
    std::span<const FileType> types = {};  // while saving
};

const ModeTraits& traitsOf(BrowserMode mode);

}  // namespace ladrix
