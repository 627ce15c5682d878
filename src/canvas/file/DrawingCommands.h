// The drawing and its file: new, open, save, the save prompt, templates, the crash copy and the
// description. All work on the editor's drawing; what the user chose in the browser has been put in
// CurrentFolder and CurrentFileName.
//
// A failure of the file system is reported once, with the system's reason; a failed save leaves the
// file as it was and the drawing marked as changed.
#pragma once

#include <string_view>

#include "canvas/file/Saving.h"
#include "canvas/state/Editor.h"

namespace ladrix {

void mnuFileNew_Click(Editor& editor);
void mnuFileOpen_Click(Editor& editor);
void mnuFileSave_Click(Editor& editor);
void mnuFileSaveAs_Click(Editor& editor);
void mnuFileRestore_Click(Editor& editor);
void mnuHelpDemo_Click(Editor& editor, int number);  // 1 or 2

// True, and told, while a copy or move waits for a point: no other drawing may take this one's
// place. Whatever opens one asks first, before it touches anything.
bool RefusedWhileCopying(Editor& editor);

// Asks whether changes are to be saved. False: the present drawing stays.
bool MayGiveUpDrawing(Editor& editor);
// Asks likewise, then opens the file in the place of the present drawing.
void OpenNamedDrawing(Editor& editor, const std::string& folder, const std::string& name);

// Empties the tables and the history and resets the editor. Refused while a copy waits for a point.
// False if refused.
bool NewDrawing(Editor& editor);

// Writes CurrentFileName in CurrentFolder; untitled: shows the browser, which saves. Then goes on
// with what was asked for (Drawing::AfterSave): a new drawing, opening another, the end of the
// program. Nothing is done if the user would rather keep the file as it is (see SaveGuard.h).
SaveOutcome SaveDrawing(Editor& editor);

// The same under the name chosen in the browser, which becomes the drawing's if it could be saved.
// Opening another is left to the browser, which is up.
SaveOutcome SaveDrawingAs(Editor& editor, std::string folder, std::string name);

// Reads CurrentFileName in CurrentFolder. A file of the backups that are offered is read under the
// name of the drawing that they are of, which then counts as changed.
void OpenDrawing(Editor& editor);

// The same for the pictures of the simulation: the zoom and the scrolled place stay, a template in
// force waits for another drawing, and what is under way ends unasked. A file that cannot be read
// leaves the drawing as it was, without a name.
void OpenDrawingQuietly(Editor& editor);

// Reads the file's devices into the document's own tables, whose devices and labels are given up,
// and returns the page key and description for the browser to show. nullopt if it could not be
// read: the user has been told. Either way Editor::PreviewedFile names it.
struct PreviewOfFile {
    std::string pageKey, description;
};
std::optional<PreviewOfFile> ReadPreview(Editor& editor, const std::string& folder,
                                         const std::string& file);

// Yes saves and goes on with what was asked for; but the end of the program waits for another
// close where the drawing has a name. Kept: the caller does not go on, and DrawingChanged is on.
enum class Changes { Saved, GivenUp, Kept };
Changes AskToSaveChanges(Editor& editor);

// The close of the main window. False: the window stays open.
bool Form_QueryUnload(Editor& editor);

// The crash copy in the program's folder, taken at each placement; deleted by the next open and,
// if all of it could be read, by restoring it.
constexpr std::string_view CrashCopyName = "Temp_Drawing.els";
void WriteTempDrawing(Editor& editor);
void RestoreTempDrawing(Editor& editor);

void mnuEditFileDescription_Click(Editor& editor);
void frmDesc_cmdSave_Click(Editor& editor);
void frmDesc_cmdExit_Click(Editor& editor);

}  // namespace ladrix
