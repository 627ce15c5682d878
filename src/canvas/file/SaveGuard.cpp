#include "canvas/file/SaveGuard.h"

#include <functional>

#include "canvas/file/FileText.h"
#include "document/BackupCopies.h"

namespace ladrix {

namespace {

std::string drawingPath(const Drawing& drawing) {
    return drawing.CurrentFolder + drawing.CurrentFileName;
}

std::size_t sumOf(std::string_view text) {
    return std::hash<std::string_view>{}(text);
}

bool yes(const Editor& editor, const std::string& question, std::string_view title,
         Buttons buttons = Buttons::YesNo) {
    return editor.platform.dialogs->message(question, title, buttons) == Answer::Yes;
}

bool mayMakeAgain(const Editor& editor) {
    return yes(editor,
               editor.drawing.CurrentFileName +
                   " is no longer in its folder. Do you want to save it there again?",
               "File Is Missing");
}

bool mayReplaceChanged(const Editor& editor) {
    return yes(editor,
               editor.drawing.CurrentFileName +
                   " has been changed by another program. Do you want to replace it?\r\n"
                   "A backup copy of it will be kept.",
               "File Has Changed on Disk");
}

bool mayReplaceWithPreview(const Editor& editor) {
    return yes(editor,
               "The preview of " + editor.PreviewedFile + " stands in the place of " +
                   editor.drawing.CurrentFileName +
                   ".\r\nThe page may still show the former drawing. Do you want to replace " +
                   editor.drawing.CurrentFileName +
                   " with the preview?\r\nA backup copy of it will be kept.",
               "Drawing Replaced by a Preview", Buttons::YesNoDefaultNo);
}

bool maySaveWithoutBackup(const Editor& editor, const Failure& failure) {
    return yes(editor,
               "No backup copy of " + editor.drawing.CurrentFileName + " could be made:\r\n" +
                   failure.text + "\r\n\r\nDo you want to replace the file without one?",
               "No Backup Copy");
}

}  // namespace

bool MayReplaceFile(Editor& editor, std::string_view newText, SaveName name) {
    Files& files = *editor.platform.files;
    const Drawing& drawing = editor.drawing;
    const std::string path = drawingPath(drawing);
    const bool isKnown = name == SaveName::Own && editor.fileSeen.path == path;
    const auto status = files.status(path);
    if (!status) return !isKnown || mayMakeAgain(editor);
    if (status->isFolder) return true;  // no save replaces a folder: the failure tells
    try {
        const FileText former = readDrawingFile(files, path);
        if (former.content == newText || former.content.empty()) return true;
        if (name == SaveName::Own && !editor.PreviewedFile.empty() &&
            !mayReplaceWithPreview(editor))
            return false;
        if (isKnown && sumOf(former.content) != editor.fileSeen.sum && !mayReplaceChanged(editor))
            return false;
        const std::string backups = BackupsOfDrawing(editor);
        if (!backups.empty())
            keepBackup(files, backups, former, extensionOf(drawing.CurrentFileName) == ".tpl");
        return true;
    } catch (const Failure& failure) {
        return maySaveWithoutBackup(editor, failure);
    }
}

void RememberFile(Editor& editor, std::string_view text) {
    editor.fileSeen = {drawingPath(editor.drawing), sumOf(text)};
}

std::string BackupsOfDrawing(const Editor& editor) {
    const Drawing& drawing = editor.drawing;
    if (drawing.CurrentFileName.empty() || editor.BasePath.empty()) return {};
    return backupFolder(*editor.platform.files, editor.BasePath, drawing.CurrentFolder,
                        drawing.CurrentFileName);
}

}  // namespace ladrix
