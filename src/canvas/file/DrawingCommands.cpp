#include "canvas/file/DrawingCommands.h"

#include <utility>

#include "canvas/file/DrawingIO.h"
#include "canvas/file/FileText.h"
#include "canvas/file/Title.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/view/View.h"
#include "canvas/view/Zoom.h"
#include "document/DrawingFile.h"
#include "document/PageLayout.h"
#include "document/Records.h"

namespace ladrix {

namespace {

// What was asked for and has not come about is forgotten with the browser.
void showBrowser(Editor& editor, bool saving) {
    Drawing& drawing = editor.drawing;
    drawing.SaveInProgress = saving;
    editor.platform.dialogs->show(Form::frmFile);
    drawing.SaveInProgress = false;
    forgetAfterSave(drawing, After::New);
    forgetAfterSave(drawing, After::Open);
}

void startUntitled(Editor& editor) {
    if (RefusedWhileCopying(editor)) return;
    editor.drawing.CurrentFileName.clear();
    NewDrawing(editor);
    editor.drawing.DrawingChanged = false;
}

// The changes are saved, or nobody wants them.
void goOn(Editor& editor) {
    Drawing& drawing = editor.drawing;
    switch (drawing.AfterSave) {
        case After::New:
            drawing.AfterSave = After::Nothing;
            return startUntitled(editor);
        case After::Open:
            drawing.AfterSave = After::Nothing;
            if (!RefusedWhileCopying(editor)) showBrowser(editor, false);
            return;
        case After::Exit:
            return editor.platform.shell->endProgram();
        case After::Nothing:
            return;
    }
}

bool mayGoOn(const Editor& editor, const SaveOutcome& outcome) {
    return outcome.result == SaveResult::Saved && !editor.drawing.DrawingChanged;
}

// A Yes goes on by itself when the save is done.
void askAndGoOn(Editor& editor, After after) {
    if (RefusedWhileCopying(editor)) return;
    editor.drawing.AfterSave = after;
    if (!editor.drawing.DrawingChanged || AskToSaveChanges(editor) == Changes::GivenUp)
        goOn(editor);
}

std::string tempDrawing(const Editor& editor) {
    return editor.drawing.TempFolder + std::string(CrashCopyName);
}

// One that cannot be deleted is reported by itself: what was done before has been done.
void removeTempDrawing(Editor& editor) {
    editor.platform.attempt("Delete Temporary Drawing", [&] {
        if (FileExists(*editor.platform.files, editor.drawing.TempFolder, CrashCopyName))
            editor.platform.files->remove(tempDrawing(editor));
    });
}

// Drawings of the program's own folder that are opened with their whole width in view.
bool opensAtPageWidth(const Editor& editor) {
    const Drawing& drawing = editor.drawing;
    return drawing.CurrentFolder == editor.AppFilePath &&
           (drawing.CurrentFileName == "Motor Forward Power And Logic.els" ||
            drawing.CurrentFileName == "Motor Reverse Power And Logic.els");
}

void takeNameAway(Editor& editor) {
    editor.drawing.CurrentFileName.clear();
    editor.drawing.TitleState = 0;
    editor.backups.shown.clear();
    UpdateTitle(editor);
}

void tellIncomplete(Editor& editor) {
    const std::string name = editor.drawing.CurrentFileName;
    takeNameAway(editor);
    editor.form.lblMessage.Caption = "Only a part of " + name +
                                     " could be read. The drawing is untitled, so that saving "
                                     "does not replace the file.";
}

// The key of a page that nobody knows belonged to the former drawing's file alone.
void emptyDrawing(Editor& editor) {
    Drawing& drawing = editor.drawing;
    ClearTables(drawing);
    drawing.FileDescription.clear();
    if (!pageSize(drawing.PageLayoutKey)) drawing.PageLayoutKey = DefaultPageKey;
    editor.img.clear();
    editor.KeptPictureFiles.clear();
    editor.PreviewedFile.clear();
    editor.LastSelectedLabel = -1;
    editor.labelEdit = {};
    editor.backups.shown.clear();
}

// A file that could not be read, or only in part, gives the drawing no name: a save must not
// replace it.
void readNamedFile(Editor& editor, PageView view) {
    const Drawing& drawing = editor.drawing;
    try {
        const FileText file = readDrawingFile(*editor.platform.files,
                                              drawing.CurrentFolder + drawing.CurrentFileName);
        // The picture before stays where there is no file.
        if (view == PageView::Kept) {
            emptyDrawing(editor);
            ResetEditor(editor);
        }
        openText(editor, file, view);
        if (!drawing.ReadIncomplete) return RememberFile(editor, file.content);
    } catch (const Failure&) {
        takeNameAway(editor);
        throw;
    }
    tellIncomplete(editor);
}

// The copy takes the place of what the drawing's file holds: the name stays, and a save is due. A
// template in force has been saved with the drawing, so nothing is added.
void readBackup(Editor& editor, const std::string& copy) {
    Drawing& drawing = editor.drawing;
    const FileText file = readDrawingFile(*editor.platform.files, editor.backups.offered + copy);
    const bool withTemplate = std::exchange(drawing.TemplateActive, false);
    if (NewDrawing(editor)) {
        openText(editor, file, PageView::Fresh);
        drawing.DrawingChanged = true;
        editor.backups.shown = nameWithoutExtension(copy);
        UpdateTitle(editor);
        if (drawing.ReadIncomplete) tellIncomplete(editor);
    }
    drawing.TemplateActive = drawing.TemplateActive || withTemplate;
}

void openNamed(Editor& editor) {
    Drawing& drawing = editor.drawing;
    const BackupState& backups = editor.backups;
    if (!backups.offered.empty() && drawing.CurrentFolder == backups.offered) {
        const std::string copy = std::exchange(drawing.CurrentFileName, backups.CurrentFileName);
        drawing.CurrentFolder = backups.CurrentFolder;
        readBackup(editor, copy);
    } else if (drawing.TemplateActive || NewDrawing(editor)) {
        readNamedFile(editor, PageView::Fresh);
        if (!drawing.CurrentFileName.empty() && editor.FileTouched) editor.FileTouched();
    } else {
        return;
    }
    removeTempDrawing(editor);
    if (opensAtPageWidth(editor)) zoomToPageWidth(editor);
}

// A failure that repeats brings up no second report: the foot tells it each time.
void tellOutcome(Editor& editor, std::string text) {
    editor.form.lblMessage.Caption = std::move(text);
}

}  // namespace

void mnuFileNew_Click(Editor& editor) {
    askAndGoOn(editor, After::New);
}

void mnuFileOpen_Click(Editor& editor) {
    askAndGoOn(editor, After::Open);
}

void mnuFileSave_Click(Editor& editor) {
    SaveDrawing(editor);
}

void mnuFileSaveAs_Click(Editor& editor) {
    showBrowser(editor, true);
}

void mnuFileRestore_Click(Editor& editor) {
    RestoreTempDrawing(editor);
}

void mnuHelpDemo_Click(Editor& editor, int number) {
    OpenNamedDrawing(editor, editor.AppFilePath, number == 1 ? "Demo1.els" : "Demo2.els");
}

bool RefusedWhileCopying(Editor& editor) {
    if (editor.gesture.CopyStage == 0) return false;
    editor.platform.tell("New drawing not possible. Copy point not selected.");
    return true;
}

bool MayGiveUpDrawing(Editor& editor) {
    if (RefusedWhileCopying(editor)) return false;
    editor.drawing.AfterSave = After::Nothing;
    return !editor.drawing.DrawingChanged || AskToSaveChanges(editor) != Changes::Kept;
}

void OpenNamedDrawing(Editor& editor, const std::string& folder, const std::string& name) {
    if (!MayGiveUpDrawing(editor)) return;
    editor.drawing.CurrentFolder = folder;
    editor.drawing.CurrentFileName = name;
    OpenDrawing(editor);
}

bool NewDrawing(Editor& editor) {
    if (RefusedWhileCopying(editor)) return false;
    Drawing& drawing = editor.drawing;
    emptyDrawing(editor);
    drawing.TitleState = drawing.CurrentFileName.empty() ? 0 : 1;
    layOutNewPage(editor);
    ResetEditor(editor);
    ClearHistory(editor);
    UpdateTitle(editor);
    return true;
}

SaveOutcome SaveDrawing(Editor& editor) {
    if (editor.drawing.CurrentFileName.empty()) {
        showBrowser(editor, true);
        return {SaveResult::LeftToBrowser};
    }
    SaveOutcome outcome = saveUnderName(editor, SaveName::Own);
    if (mayGoOn(editor, outcome)) goOn(editor);
    return outcome;
}

SaveOutcome SaveDrawingAs(Editor& editor, std::string folder, std::string name) {
    Drawing& drawing = editor.drawing;
    std::string formerFolder = std::exchange(drawing.CurrentFolder, std::move(folder));
    std::string formerName = std::exchange(drawing.CurrentFileName, std::move(name));
    SaveOutcome outcome = saveUnderName(editor, SaveName::Chosen);
    if (outcome.result != SaveResult::Saved) {
        drawing.CurrentFolder = std::move(formerFolder);
        drawing.CurrentFileName = std::move(formerName);
    } else if (mayGoOn(editor, outcome)) {
        if (drawing.AfterSave == After::Open)
            outcome.next = std::exchange(drawing.AfterSave, After::Nothing);
        goOn(editor);
    }
    return outcome;
}

void OpenDrawing(Editor& editor) {
    Drawing& drawing = editor.drawing;
    drawing.Reading = true;
    try {
        openNamed(editor);
    } catch (const Failure& failure) {
        tellOutcome(editor, "The drawing could not be opened. " + failure.text);
        editor.platform.ReportError("Open Drawing", failure);
    }
    drawing.Reading = false;
}

void OpenDrawingQuietly(Editor& editor) {
    Drawing& drawing = editor.drawing;
    drawing.Reading = true;
    const bool withTemplate = std::exchange(drawing.TemplateActive, false);
    editor.platform.attempt("Open Drawing", [&] {
        readNamedFile(editor, PageView::Kept);
        removeTempDrawing(editor);
    });
    drawing.TemplateActive = withTemplate;
    drawing.Reading = false;
}

std::optional<PreviewOfFile> ReadPreview(Editor& editor, const std::string& folder,
                                         const std::string& file) {
    Drawing& drawing = editor.drawing;
    drawing.DeviceString.clear();
    drawing.LabelString.clear();
    ParseDeviceString(drawing, editor.platform);
    ParseLabelString(drawing, editor.platform);
    endGesture(editor);
    RecountSelection(editor);
    editor.PreviewedFile = file;
    editor.UndoShown = -1;
    try {
        DrawingParts parts = readDevices(drawing, editor.platform, folder + file);
        drawing.DrawingChanged = false;
        forgetAfterSave(drawing, After::Open);
        return PreviewOfFile{std::move(parts.pageKey), std::move(parts.description)};
    } catch (const Failure&) {
        editor.platform.tell("File structure corrupted and cannot be read.", "Bad File Structure");
        return std::nullopt;
    }
}

Changes AskToSaveChanges(Editor& editor) {
    Drawing& drawing = editor.drawing;
    if (isDemo(drawing)) {
        drawing.DrawingChanged = false;
        return Changes::GivenUp;
    }
    switch (editor.platform.dialogs->message(
        "The current file has been changed. Do you want to save those changes?", "File Has Changed",
        Buttons::YesNoCancel)) {
        case Answer::Yes:
            // The end of the program waits for another close, unless the browser asks for a name.
            if (drawing.AfterSave == After::Exit && !drawing.CurrentFileName.empty())
                saveUnderName(editor, SaveName::Own);
            else
                SaveDrawing(editor);
            return drawing.DrawingChanged ? Changes::Kept : Changes::Saved;
        case Answer::No:
            drawing.DrawingChanged = false;
            return Changes::GivenUp;
        default:
            return Changes::Kept;
    }
}

bool Form_QueryUnload(Editor& editor) {
    Drawing& drawing = editor.drawing;
    drawing.AfterSave = After::Exit;
    if (!drawing.DrawingChanged) return true;
    const bool isNamed = !drawing.CurrentFileName.empty();
    const Changes changes = AskToSaveChanges(editor);
    return changes == Changes::GivenUp || (changes == Changes::Saved && !isNamed);
}

void WriteTempDrawing(Editor& editor) {
    const std::string text = crashCopyText(editor.drawing);
    if (text.size() == 2) return;
    editor.platform.attempt("Write Temporary Drawing", [&] {
        editor.platform.files->replace(tempDrawing(editor), text, true);
    });
}

void RestoreTempDrawing(Editor& editor) {
    Drawing& drawing = editor.drawing;
    if (!MayGiveUpDrawing(editor)) return;
    drawing.Reading = true;
    editor.platform.attempt("Restore Temporary Drawing", [&] {
        startUntitled(editor);
        if (!FileExists(*editor.platform.files, drawing.TempFolder, CrashCopyName)) return;
        restoreText(editor, readDrawingFile(*editor.platform.files, tempDrawing(editor)));
        if (!drawing.ReadIncomplete) return removeTempDrawing(editor);
        tellOutcome(editor,
                    "Only a part of the crash copy could be read. It stays on disk until the next "
                    "placement or opening: " +
                        tempDrawing(editor));
    });
    drawing.Reading = false;
}

void mnuEditFileDescription_Click(Editor& editor) {
    editor.frmDesc.txtDescription = editor.drawing.FileDescription;
    editor.frmDesc.Visible = true;
    editor.platform.dialogs->show(Form::frmDesc);
}

void frmDesc_cmdSave_Click(Editor& editor) {
    editor.drawing.FileDescription = editor.frmDesc.txtDescription;
    editor.drawing.DrawingChanged = true;
    editor.frmDesc.Visible = false;
}

void frmDesc_cmdExit_Click(Editor& editor) {
    editor.frmDesc.Visible = false;
}

}  // namespace ladrix
