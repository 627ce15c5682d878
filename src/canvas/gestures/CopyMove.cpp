#include "canvas/gestures/CopyMove.h"

#include <string>

#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Selection.h"
#include "canvas/history/History.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/view/Painting.h"

namespace ladrix {

namespace {

constexpr std::string_view FirstCopyText =
    "Please select a copy start point. Items will remain in memory\r\n"
    "until the the drawing is reset (by pressing Reset or the Escape key).\r\n"
    "This message is non-recurrent. Please read the message guide at the\r\n"
    "bottom of the screen for future instructions.";

struct Way {
    Single dx, dy;
};

Way wayOf(const Editor& editor) {
    return {editor.gesture.CopyToX - editor.gesture.CopyFromX,
            editor.gesture.CopyToY - editor.gesture.CopyFromY};
}

void enableCopyAndMove(Editor& editor, bool enabled) {
    editor.form.menu[Menu::mnuEditCopy].Enabled = enabled;
    editor.form.menu[Menu::mnuEditMove].Enabled = enabled;
}

void arm(Editor& editor, bool move) {
    keepLabelEdit(editor);
    endGesture(editor);
    enableCopyAndMove(editor, false);
    editor.gesture.CopyArmed = true;
    editor.gesture.CopyStage = 1;
    editor.gesture.MoveMode = move;
    colorReset(editor, true);
    editor.form.FocusRequest = Focus::Canvas;
}

// Nothing in the buffer is selected.
CopyBuffer selectedItems(const Editor& editor) {
    const Drawing& drawing = editor.drawing;
    CopyBuffer taken;
    for (Short i = 0; i < drawing.devices.DeviceCount; ++i)
        if (drawing.devices.DeviceSelected[static_cast<std::size_t>(i)] != 0)
            taken.devices.append(drawing.devices.row(i));
    for (Short i = 0; i < drawing.labels.LabelCount; ++i)
        if (drawing.labels.LabelSelected[static_cast<std::size_t>(i)] != 0)
            taken.labels.append(drawing.labels.row(i));
    for (std::size_t i = 0; i < drawing.PictureTable.size(); ++i) {
        if (!drawing.PictureTable[i].Selected) continue;
        taken.pictures.push_back(drawing.PictureTable[i]);
        taken.pictures.back().Selected = false;
        taken.img.push_back(i < editor.img.size() ? editor.img[i] : nullptr);
    }
    return taken;
}

bool fits(Short present, std::size_t more) {
    return static_cast<std::size_t>(present) + more <= static_cast<std::size_t>(LargestCount);
}

bool bufferFits(const Editor& editor) {
    const Drawing& drawing = editor.drawing;
    const CopyBuffer& copied = editor.copied;
    return fits(drawing.devices.DeviceCount,
                static_cast<std::size_t>(copied.devices.DeviceCount)) &&
           fits(drawing.labels.LabelCount, static_cast<std::size_t>(copied.labels.LabelCount)) &&
           fits(drawing.PictureCount, copied.pictures.size());
}

void pasteDevices(Drawing& drawing, const DeviceTable& copied, Way way) {
    for (Short i = 0; i < copied.DeviceCount; ++i) {
        Device device = copied.row(i);
        device.x += way.dx;
        device.x2 += way.dx;
        device.y += way.dy;
        device.y2 += way.dy;
        drawing.devices.append(device);
    }
}

void pasteLabels(Drawing& drawing, const LabelTable& copied, Way way) {
    for (Short i = 0; i < copied.LabelCount; ++i) {
        Label label = copied.row(i);
        label.x += way.dx;
        label.y += way.dy;
        drawing.labels.append(label);
    }
}

void pastePictures(Editor& editor, Way way) {
    Drawing& drawing = editor.drawing;
    editor.img.resize(drawing.PictureTable.size());
    for (std::size_t i = 0; i < editor.copied.pictures.size(); ++i) {
        PictureRow row = editor.copied.pictures[i];
        row.Left += way.dx;
        row.Top += way.dy;
        drawing.PictureTable.push_back(std::move(row));
        editor.img.push_back(editor.copied.img[i]);
    }
    drawing.PictureCount = static_cast<Short>(drawing.PictureTable.size());
}

}  // namespace

void mnuEditCopy_Click(Editor& editor) {
    if (editor.SelectedCount == 0)
        return editor.platform.tell("Nothing has been selected to copy.");
    if (!editor.CopyExplained) editor.platform.tell(FirstCopyText);
    editor.CopyExplained = true;
    arm(editor, false);
    editor.form.menu[Menu::mnuEditSelectAll].Enabled = false;
    editor.form.lblMessage.Caption = std::to_string(editor.SelectedCount) +
                                     " devices have been copied. Select copy start point.";
}

void mnuEditMove_Click(Editor& editor) {
    if (editor.SelectedCount == 0) return editor.platform.tell("No devices have been selected.");
    arm(editor, true);
    editor.form.lblMessage.Caption =
        std::to_string(editor.SelectedCount) +
        " devices have been selected for moving. Select first move point (FROM).";
}

void mnuEditPaste_Click(Editor& editor) {
    editor.platform.tell("Nothing has been copied.");
}

void takeCopyStart(Editor& editor) {
    editor.gesture.CopyStage = 2;
    editor.gesture.CopyFromX = editor.SnapX;
    editor.gesture.CopyFromY = editor.SnapY;
    editor.copied = editor.gesture.MoveMode ? CopyBuffer{} : selectedItems(editor);
    editor.form.lblMessage.Caption = "First point found. Select new insertion point.";
}

void takeCopyEnd(Editor& editor) {
    editor.gesture.CopyToX = editor.SnapX;
    editor.gesture.CopyToY = editor.SnapY;
    enableCopyAndMove(editor, false);
    if (!editor.gesture.MoveMode) return PasteBuffer(editor);
    MoveSelection(editor);
    ResetEditor(editor);
}

void PasteBuffer(Editor& editor) {
    Drawing& drawing = editor.drawing;
    if (!bufferFits(editor)) {
        return editor.platform.ReportError(
            "Paste", {failure::Overflow, "A drawing holds at most 32767 items of a kind."});
    }
    const Way way = wayOf(editor);
    pasteDevices(drawing, editor.copied.devices, way);
    pasteLabels(drawing, editor.copied.labels, way);
    if (!editor.copied.pictures.empty()) pastePictures(editor, way);
    paintDrawing(editor);
    editor.form.lblMessage.Caption = "Select another insertion point or press ESC to end.";
    recordStep(editor);
}

void MoveSelection(Editor& editor) {
    if (editor.SelectedCount == 0) return;
    const Way way = wayOf(editor);
    moveSelectedItems(editor.drawing, way.dx, way.dy);
    editor.form.lblMessage.Caption = std::to_string(editor.SelectedCount) + " items moved.";
    ClearSelection(editor);
    endGesture(editor);
    paintDrawing(editor);
    RecountSelection(editor);
    recordStep(editor);
}

}  // namespace ladrix
