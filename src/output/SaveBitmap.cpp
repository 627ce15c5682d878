#include "output/SaveBitmap.h"

#include <optional>

#include "canvas/state/Editor.h"
#include "canvas/view/Painting.h"
#include "platform/Encoding.h"
#include "platform/Files.h"

namespace ladrix {

namespace {

// The labels are objects above the canvas; in its image they must be drawn.
void paintWithLabels(Editor& editor) {
    RedrawDrawing(editor);
    for (const LabelControl& label : editor.form.lbl) {
        if (!label.Visible) continue;
        FontSpec onPaper = label.Font;
        onPaper.size /= editor.ZoomFactor;
        editor.platform.picLX->Text(label.Left, label.Top, onPaper, label.Caption, label.ForeColor);
    }
}

Answer askAboutGrid(const Editor& editor) {
    if (!editor.GridOn) return Answer::Yes;
    return editor.platform.dialogs->message(
        "The grid is turned on. Do you want to save the grid to the image also?",
        "Image Shown With Grid", Buttons::YesNoCancel);
}

// The file of that name, whatever its case.
std::optional<std::string> existingFile(const Editor& editor, const std::string& folder,
                                        const std::string& name) {
    for (const FileEntry& entry : editor.platform.files->list(folder))
        if (!entry.isFolder && equalIgnoringCase(entry.name, name)) return entry.name;
    return std::nullopt;
}

// nullopt: no file is to be written.
std::optional<std::string> askForFile(const Editor& editor, const std::string& folder) {
    const auto answer = editor.platform.dialogs->input("Please enter a name for the image.",
                                                       "Saving Bitmap", "Temporary");
    if (!answer) return std::nullopt;
    const std::string name = *answer + ".bmp";
    if (!isLegalFileName(name)) {
        editor.platform.tell(
            "Action Cancelled. File and Folder Names cannot include\r\n"
            "any of the following characters: / \\ : * ? < > | ",
            "Illegal Filename");
        return std::nullopt;
    }
    const auto existing = existingFile(editor, folder, name);
    if (!existing) return name;
    const Answer replace = editor.platform.dialogs->message(
        "A file with that name already exists. Do you want to overwrite it?",
        "Duplicate File Name Exists", Buttons::YesNo);
    return replace == Answer::Yes ? existing : std::nullopt;
}

}  // namespace

void SaveBitmap(Editor& editor, const std::string& folder) {
    const bool gridOn = editor.GridOn;
    const Answer withGrid = askAboutGrid(editor);
    if (withGrid == Answer::Cancel) return;
    const auto restoreGrid = [&] {
        editor.GridOn = gridOn;
        RedrawDrawing(editor);
    };
    try {
        editor.GridOn = gridOn && withGrid == Answer::Yes;
        paintWithLabels(editor);
        const std::optional<std::string> name = askForFile(editor, folder);
        if (!name) {
            editor.GridOn = gridOn;  // the page stays as it would have been saved until a redraw
            return;
        }
        const std::string image = editor.platform.picLX->Image(editor.PageWidth, editor.PageHeight,
                                                               [&] { paintWithLabels(editor); });
        editor.platform.files->replace(folder + *name, image);
        restoreGrid();
        editor.platform.shell->open(folder + *name);
    } catch (const Failure& failure) {
        restoreGrid();
        editor.platform.ReportError("Save Bitmap", failure);
    }
}

}  // namespace ladrix
