#include "canvas/history/History.h"

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

void reportFullHistory(const Editor& editor) {
    editor.platform.ReportError(
        "Take Undo Snapshot",
        {failure::Subscript,
         "The undo history is full: further changes cannot be undone one by one."});
}

}  // namespace

void TakeUndoSnapshot(Editor& editor) {
    editor.form.menu[Menu::mnuEditUndo].Enabled = true;
    const bool wasFull = editor.UndoTop == UndoHistory::Slots;
    if (!wasFull) ++editor.UndoTop;
    editor.UndoPosition = editor.UndoTop;
    if (editor.UndoTop == UndoHistory::Slots) {
        if (!wasFull) reportFullHistory(editor);
        return;
    }
    if (editor.UndoTop >= FirstShift) editor.history.shiftDown();
    rememberPictures(editor);
    editor.history.set(editor.UndoTop, snapshotText(editor.drawing));
}

void recordStep(Editor& editor) {
    Drawing& drawing = editor.drawing;
    RebuildDeviceString(drawing, editor.platform);
    RebuildLabelString(drawing, editor.platform);
    RebuildPictureString(drawing, editor.platform);
    drawing.DrawingChanged = true;
    editor.form.menu[Menu::mnuEditUndo].Enabled = true;
    drawing.TakeUndoSnapshot();
}

void ClearHistory(Editor& editor) {
    editor.history.clear();
    editor.HistoryPictures.clear();
    editor.UndoTop = editor.UndoPosition = 0;
    rememberPictures(editor);
    editor.history.set(0, snapshotText(editor.drawing));
}

}  // namespace ladrix
