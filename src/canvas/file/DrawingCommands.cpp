#include "canvas/file/DrawingCommands.h"

#include <utility>

#include "canvas/file/DrawingIO.h"
#include "canvas/file/FileText.h"
#include "canvas/file/SaveGuard.h"
#include "canvas/file/Title.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/view/View.h"
#include "canvas/view/Zoom.h"
#include "document/DrawingFile.h"
#include "document/Records.h"

namespace ladrix {

namespace {

enum class After { Nothing, New, Open, Exit };

void askFor(Drawing& drawing, After after) {
    drawing.NewAfterSave = after == After::New;
    drawing.OpenAfterSave = after == After::Open;
    drawing.ExitAfterSave = after == After::Exit;
}

bool isDemo(std::string_view name) {
    return name == "Demo1.els" || name == "Demo2.els";
}

void showBrowser(Editor& editor, bool saving) {
    editor.drawing.SaveInProgress = saving;
    editor.platform.dialogs->show(Form::frmFile);
}

bool refusedTarget(Editor& editor) {
    const Drawing& drawing = editor.drawing;
    const auto refuse = [&](std::string_view text) {
        editor.platform.tell(text);
        return true;
    };
    if (isDemo(drawing.CurrentFileName) && !editor.LoggedIn)
        return refuse("Could not save the demo. You are not logged in.");
    if (drawing.CurrentFolder == editor.UserSymbolsPath)
        return refuse(
            "Files cannot be saved to the User Symbols Folder. Select a different folder.");
    if (drawing.CurrentFolder == editor.UserButtonsPath)
        return refuse(
            "Files cannot be saved to the User Buttons Folder. Select a different folder.");
    return false;
}

void keepTemplate(Drawing& drawing) {
    if (extensionOf(drawing.CurrentFileName) != ".tpl") return;
    drawing.TemplateActive = true;
    drawing.TemplateDevices = drawing.DeviceString;
    drawing.TemplateLabels = drawing.LabelString;
}

// False if the new drawing is refused: the present one keeps its name.
bool startUntitled(Editor& editor) {
    const std::string name = std::exchange(editor.drawing.CurrentFileName, {});
    if (NewDrawing(editor)) {
        editor.drawing.DrawingChanged = false;
        return true;
    }
    editor.drawing.CurrentFileName = name;
    return false;
}

void goOnAfterSave(Editor& editor) {
    Drawing& drawing = editor.drawing;
    if (drawing.NewAfterSave) {
        drawing.NewAfterSave = false;
        startUntitled(editor);
    } else if (drawing.OpenAfterSave) {
        drawing.OpenAfterSave = false;
        UpdateTitle(editor);
        showBrowser(editor, false);
    } else {
        UpdateTitle(editor);
    }
    if (drawing.ExitAfterSave && !drawing.ExitCancelled) editor.platform.shell->endProgram();
}

void fileTouched(Editor& editor, std::string_view text) {
    RememberFile(editor, text);
    if (editor.FileTouched) editor.FileTouched();
}

// Whether nothing stands in the way of giving the present drawing up.
bool mayGoOn(Editor& editor) {
    if (editor.drawing.DrawingChanged) AskToSaveChanges(editor);
    return !editor.drawing.DrawingChanged;
}

std::string tempDrawing(const Editor& editor) {
    return editor.drawing.TempFolder + std::string(CrashCopyName);
}

void removeTempDrawing(Editor& editor) {
    if (FileExists(*editor.platform.files, editor.drawing.TempFolder, CrashCopyName))
        editor.platform.files->remove(tempDrawing(editor));
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

void emptyDrawing(Editor& editor) {
    ClearTables(editor.drawing);
    editor.drawing.FileDescription.clear();
    editor.img.clear();
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

// False: the file is to stay as it is.
bool writeNamedFile(Editor& editor) {
    const std::string text = fileText(editor.drawing);
    if (!MayReplaceFile(editor, text)) return false;
    writeDrawing(editor, text);
    fileTouched(editor, text);
    return true;
}

// A preview has a message of its own for what cannot be read.
void parseForPreview(Editor& editor) {
    Platform quiet = editor.platform;
    quiet.ReportError = [](std::string_view, const Failure&) {};
    editor.drawing.ReadIncomplete = false;
    ParseDeviceString(editor.drawing, quiet);
    if (editor.drawing.ReadIncomplete)
        throw Failure{failure::TypeMismatch, "A record cannot be read."};
}

// A failure that repeats brings up no second report: the foot tells it each time.
void tellOutcome(Editor& editor, std::string text) {
    editor.form.lblMessage.Caption = std::move(text);
}

}  // namespace

void mnuFileNew_Click(Editor& editor) {
    askFor(editor.drawing, After::New);
    // A Yes at the prompt starts the new drawing itself, when the save is done.
    if (!mayGoOn(editor) || !editor.drawing.NewAfterSave) return;
    editor.drawing.NewAfterSave = false;
    startUntitled(editor);
}

void mnuFileOpen_Click(Editor& editor) {
    askFor(editor.drawing, After::Open);
    if (!mayGoOn(editor) || !editor.drawing.OpenAfterSave) return;
    showBrowser(editor, false);
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

bool MayGiveUpDrawing(Editor& editor) {
    askFor(editor.drawing, After::Nothing);
    return mayGoOn(editor);
}

void OpenNamedDrawing(Editor& editor, const std::string& folder, const std::string& name) {
    if (!MayGiveUpDrawing(editor)) return;
    editor.drawing.CurrentFolder = folder;
    editor.drawing.CurrentFileName = name;
    OpenDrawing(editor);
}

bool NewDrawing(Editor& editor) {
    if (editor.gesture.CopyStage > 0) {
        editor.platform.tell("New drawing not possible. Copy point not selected.");
        return false;
    }
    Drawing& drawing = editor.drawing;
    emptyDrawing(editor);
    drawing.TitleState = drawing.CurrentFileName.empty() ? 0 : 1;
    layOutNewPage(editor);
    ResetEditor(editor);
    ClearHistory(editor);
    UpdateTitle(editor);
    return true;
}

void SaveDrawing(Editor& editor) {
    Drawing& drawing = editor.drawing;
    if (drawing.CurrentFileName.empty()) return showBrowser(editor, true);
    if (refusedTarget(editor)) return;
    if (mainText(drawing).size() == 2) return;
    try {
        if (!writeNamedFile(editor)) return tellOutcome(editor, "The drawing was not saved.");
    } catch (const Failure& failure) {
        drawing.DrawingChanged = true;
        drawing.SaveInProgress = false;
        tellOutcome(editor, "The drawing was not saved. " + failure.text);
        return editor.platform.ReportError("Save Drawing", failure);
    }
    keepTemplate(drawing);
    drawing.SaveInProgress = false;
    drawing.TitleState = 1;
    editor.backups.shown.clear();
    editor.form.lblMessage.Caption = "File saved.";
    drawing.DrawingChanged = false;
    goOnAfterSave(editor);
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
    ClearTables(drawing);
    editor.img.clear();
    try {
        const FileText text = readDrawingFile(*editor.platform.files, folder + file);
        DrawingParts parts = splitFile(text.content, text.modified);
        drawing.DeviceString = std::move(parts.devices);
        parseForPreview(editor);
        drawing.DrawingChanged = false;
        drawing.OpenAfterSave = false;
        return PreviewOfFile{parts.pageKey, parts.description};
    } catch (const Failure&) {
        editor.platform.tell("File structure corrupted and cannot be read.", "Bad File Structure");
        return std::nullopt;
    }
}

void AskToSaveChanges(Editor& editor) {
    Drawing& drawing = editor.drawing;
    if (isDemo(drawing.CurrentFileName)) {
        drawing.DrawingChanged = false;
        return;
    }
    switch (editor.platform.dialogs->message(
        "The current file has been changed. Do you want to save those changes?", "File Has Changed",
        Buttons::YesNoCancel)) {
        case Answer::Yes:
            // An untitled drawing is saved in the browser, and that save ends the program.
            drawing.ExitCancelled = drawing.ExitAfterSave && !drawing.CurrentFileName.empty();
            SaveDrawing(editor);
            if (drawing.ExitAfterSave && drawing.DrawingChanged) drawing.ExitCancelled = true;
            break;
        case Answer::No:
            drawing.DrawingChanged = false;
            break;
        default:
            drawing.ExitCancelled = true;
            break;
    }
}

bool Form_QueryUnload(Editor& editor) {
    Drawing& drawing = editor.drawing;
    askFor(drawing, After::Exit);
    drawing.ExitCancelled = false;
    if (drawing.DrawingChanged) AskToSaveChanges(editor);
    if (!drawing.ExitCancelled) return true;
    drawing.ExitCancelled = false;
    return false;
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
        if (!startUntitled(editor) ||
            !FileExists(*editor.platform.files, drawing.TempFolder, CrashCopyName))
            return;
        restoreText(editor, readDrawingFile(*editor.platform.files, tempDrawing(editor)));
        editor.platform.files->remove(tempDrawing(editor));
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
