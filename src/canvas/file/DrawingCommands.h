// The drawing and its file: new, open, save, the save prompt, templates, the crash copy and the
// description. All work on the editor's drawing; what the user chose in the browser has been put in
// CurrentFolder and CurrentFileName.
//
// A failure of the file system is reported once, with the system's reason; a failed save leaves the
// file as it was and the drawing marked as changed.
#pragma once

#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

void mnuFileNew_Click(Editor& editor);
void mnuFileOpen_Click(Editor& editor);
void mnuFileSave_Click(Editor& editor);
void mnuFileSaveAs_Click(Editor& editor);
void mnuFileRestore_Click(Editor& editor);
void mnuHelpDemo_Click(Editor& editor, int number);  // 1 or 2

// Asks whether changes are to be saved. False: the present drawing stays.
bool MayGiveUpDrawing(Editor& editor);
// Asks likewise, then opens the file in the place of the present drawing.
void OpenNamedDrawing(Editor& editor, const std::string& folder, const std::string& name);

// Empties the tables and the history and resets the editor. Refused while a copy waits for a point.
// False if refused.
bool NewDrawing(Editor& editor);

// Writes CurrentFileName in CurrentFolder; untitled: shows the browser, which calls back.
// Afterwards goes on with what was asked for (a new drawing, opening another, the end of the
// program). Nothing is done if the user would rather keep the file as it is (see SaveGuard.h).
void SaveDrawing(Editor& editor);

// Reads CurrentFileName in CurrentFolder. A file of the backups that are offered is read under the
// name of the drawing that they are of, which then counts as changed.
void OpenDrawing(Editor& editor);

// The same for the pictures of the simulation: the zoom and the scrolled place stay, a template in
// force waits for another drawing, and what is under way ends unasked. A file that cannot be read
// leaves the drawing as it was, without a name.
void OpenDrawingQuietly(Editor& editor);

// Reads the file into the document's own tables, which are given up, and returns the page key and
// description for the browser to show. nullopt if it could not be read: the user has been told.
struct PreviewOfFile {
    std::string pageKey, description;
};
std::optional<PreviewOfFile> ReadPreview(Editor& editor, const std::string& folder,
                                         const std::string& file);

// Yes saves, No gives the changes up, Cancel leaves DrawingChanged on: the caller does not go on.
void AskToSaveChanges(Editor& editor);

// The close of the main window. False: the window stays open.
bool Form_QueryUnload(Editor& editor);

// The crash copy in the program's folder, taken at each placement; deleted by the next open.
constexpr std::string_view CrashCopyName = "Temp_Drawing.els";
void WriteTempDrawing(Editor& editor);
void RestoreTempDrawing(Editor& editor);

void mnuEditFileDescription_Click(Editor& editor);
void frmDesc_cmdSave_Click(Editor& editor);
void frmDesc_cmdExit_Click(Editor& editor);

}  // namespace ladrix
