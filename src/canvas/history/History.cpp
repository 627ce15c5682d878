#include "canvas/history/History.h"

#include <utility>

#include "document/Records.h"

namespace ladrix {

namespace {

constexpr Short FirstShift = 500;

std::string snapshotText(const Drawing& drawing) {
    std::string text;
    text.reserve(DevicesMark.size() + LabelsMark.size() + PicturesMark.size() +
                 drawing.DeviceString.size() + drawing.LabelString.size() +
                 drawing.PictureString.size());
    text += DevicesMark;
    text += drawing.DeviceString;
    text += LabelsMark;
    text += drawing.LabelString;
    text += PicturesMark;
    text += drawing.PictureString;
    return text;
}

// A picture that was deleted comes back from where it lay, with the image that it had.
void rememberPictures(Editor& editor) {
    const auto& rows = editor.drawing.PictureTable;
    for (std::size_t i = 0; i < rows.size() && i < editor.img.size(); ++i)
        editor.HistoryPictures.insert_or_assign(rows[i].FileName,
                                                KnownPicture{rows[i].FullPath, editor.img[i]});
}

void keepTexts(Editor& editor, Short slot, std::string_view texts) {
    rememberPictures(editor);
    editor.history.set(slot, texts);
    editor.UndoShown = slot;
}

// From here on each new step makes the oldest one fall off.
void tellFullHistory(Editor& editor) {
    if (std::exchange(editor.HistoryFull, true)) return;
    editor.platform.ReportError(
        "Take Undo Snapshot",
        {failure::Subscript,
         "The undo history is full: each further change drops the oldest step."});
}

}  // namespace

void TakeUndoSnapshot(Editor& editor) {
    const bool beyond = editor.UndoTop == UndoHistory::Slots - 1;
    if (!beyond) ++editor.UndoTop;
    if (editor.UndoTop >= FirstShift) editor.history.shiftDown();
    editor.UndoPosition = editor.UndoTop;
    keepTexts(editor, editor.UndoTop, snapshotText(editor.drawing));
    editor.form.menu[Menu::mnuEditUndo].Enabled = true;
    editor.form.menu[Menu::mnuEditRedo].Enabled = false;
    if (beyond) tellFullHistory(editor);
}

void keepShownTexts(Editor& editor) {
    if (editor.UndoShown < 0) return;
    const std::string present = snapshotText(editor.drawing);
    if (editor.history.text(editor.UndoShown) != present)
        keepTexts(editor, editor.UndoShown, present);
}

void recordStep(Editor& editor) {
    Drawing& drawing = editor.drawing;
    RebuildDeviceString(drawing, editor.platform);
    RebuildLabelString(drawing, editor.platform);
    RebuildPictureString(drawing, editor.platform);
    drawing.DrawingChanged = true;
    drawing.TakeUndoSnapshot();
}

void ClearHistory(Editor& editor) {
    editor.history.clear();
    editor.HistoryPictures.clear();
    editor.UndoTop = editor.UndoPosition = 0;
    editor.HistoryFull = false;
    keepTexts(editor, 0, snapshotText(editor.drawing));
    editor.form.menu[Menu::mnuEditUndo].Enabled = false;
    editor.form.menu[Menu::mnuEditRedo].Enabled = false;
}

}  // namespace ladrix
