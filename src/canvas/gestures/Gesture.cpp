#include "canvas/gestures/Gesture.h"

#include <algorithm>
#include <utility>

#include "canvas/history/History.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/state/Panels.h"
#include "canvas/view/Painting.h"

namespace ladrix {

namespace {

// A drag that does not come to its release leaves everything where it was.
void putBackDragged(Editor& editor) {
    const PictureDrag& picture = editor.gesture.draggedPicture;
    if (picture.moved && picture.index >= 0 && picture.index < editor.drawing.PictureCount) {
        PictureRow& row = editor.drawing.PictureTable[static_cast<std::size_t>(picture.index)];
        row.Left = picture.left;
        row.Top = picture.top;
        ++editor.form.PictureVersion;
    }
    if (editor.gesture.draggedLabels.moved) placeLabels(editor);
}

void hidePointerOverlays(Editor& editor) {
    PointerState& pointer = editor.form.pointer;
    pointer.shpSelect.Visible = pointer.shpSelectLight.Visible = false;
    pointer.LineV.Visible = pointer.LineH.Visible = false;
    pointer.Pointer = MousePointer::Default;
    wipeTemporaryGraphics(editor);
}

// What of a gesture is the tool, without what has been begun with it.
Gesture toolOf(Gesture& gesture) {
    Gesture tool;
    tool.CurrentTool = gesture.CurrentTool;
    tool.ToolName = std::move(gesture.ToolName);
    tool.ToolActive = gesture.ToolActive;
    tool.ToolCursor = gesture.ToolCursor;
    tool.ToolBlocksBand = gesture.ToolBlocksBand;
    tool.TextBuffer = std::move(gesture.TextBuffer);
    return tool;
}

void putDownTool(Editor& editor) {
    releaseButton(editor, editor.gesture.CurrentTool);
    editor.symbols.block.CurDevice.clear();
    if (editor.gesture.CurrentTool != -1 && editor.labelEdit.index == -1)
        showPanel(editor, Panel::None);
}

void showIdleCommands(Editor& editor) {
    MenuStates& menu = editor.form.menu;
    menu[Menu::mnuEditCopy].Enabled = menu[Menu::mnuEditMove].Enabled = editor.SelectedCount > 0;
    menu[Menu::mnuEditSelectAll].Enabled = true;
    editor.form.cmdZoomIn.BackColor = editor.form.cmdZoomOut.BackColor = ButtonFace;
    colorReset(editor, editor.SelectedCount > 0);
}

void showCount(Editor& editor, int count) {
    editor.form.lblSelected.Caption =
        count == 0 ? "" : std::to_string(count) + (count == 1 ? " item" : " items") + " selected";
}

// All items of a drawing may be more than a Short counts; the counters stop there.
Short counted(std::size_t count) {
    return static_cast<Short>(std::min(count, static_cast<std::size_t>(LargestCount)));
}

void followLabelSelection(Editor& editor, std::size_t selected) {
    const auto& marks = editor.drawing.labels.LabelSelected;
    const auto first = std::find_if(marks.begin(), marks.end(), [](Short m) { return m != 0; });
    const Short only = selected == 1 ? static_cast<Short>(first - marks.begin()) : Short{-1};
    editor.LastSelectedLabel = only;
    if (editor.labelEdit.index != only) keepLabelEdit(editor);
    MenuStates& menu = editor.form.menu;
    menu[Menu::mnuEditText].Enabled = selected > 0;
    menu[Menu::mnuEditTextCaption].Enabled = selected == 1;
    for (const Menu entry :
         {Menu::mnuEditTextAlignLeft, Menu::mnuEditTextAlignRight, Menu::mnuEditTextAlignTop})
        menu[entry].Enabled = selected > 1;
}

void followSelectedCount(Editor& editor) {
    const Short count = editor.SelectedCount;
    for (const Menu entry : {Menu::mnuEditCopy, Menu::mnuEditMove, Menu::mnuEditDelete})
        editor.form.menu[entry].Enabled = count > 0;
    editor.form.cmbScale.Enabled = editor.form.cmdScaleOK.Enabled = count == 0;
    colorReset(editor, count > 0);
    std::string& message = editor.form.lblMessage.Caption;
    if (count == 0)
        message = "Task completed. Drawing reset and ready.";
    else if (count == 1)
        message = "1 device has been selected for Move, Copy or Delete.";
    else
        message = std::to_string(count) + " devices have been selected for Move, Copy or Delete.";
}

void takePendingSnapshot(Editor& editor) {
    if (std::exchange(editor.SnapshotPending, false)) editor.drawing.TakeUndoSnapshot();
}

void resetMenus(Editor& editor, bool copyStood) {
    MenuStates& menu = editor.form.menu;
    for (const Menu entry :
         {Menu::mnuEditText, Menu::mnuEditTextAlignLeft, Menu::mnuEditTextAlignRight,
          Menu::mnuEditTextAlignTop, Menu::mnuEditCopy, Menu::mnuEditMove, Menu::mnuEditDelete})
        menu[entry].Enabled = false;
    menu[Menu::mnuEditPaste].Enabled = copyStood;
    if (editor.drawing.devices.DeviceCount == 0) menu[Menu::mnuEditSaveUserSymbol].Enabled = false;
    editor.form.cmbScale.Enabled = editor.form.cmdScaleOK.Enabled = true;
}

}  // namespace

void endGesture(Editor& editor, Keep keep) {
    putBackDragged(editor);
    hidePointerOverlays(editor);
    if (keep == Keep::Tool && editor.gesture.CurrentTool != -1) {
        editor.gesture = toolOf(editor.gesture);
    } else {
        putDownTool(editor);
        editor.gesture = {};
    }
    showIdleCommands(editor);
}

void ResetEditor(Editor& editor) {
    keepLabelEdit(editor);
    takePendingSnapshot(editor);
    const bool copyStood = editor.gesture.CopyStage > 0;
    endGesture(editor);
    editor.form.picMoreSym.Visible = false;
    editor.form.picColors.Visible = false;
    showPanel(editor, Panel::None);
    editor.TextBoxFocused = false;
    editor.drawing.DrawingPreview = false;
    editor.drawing.LabelPending = editor.drawing.DeviceRecorded = false;
    resetMenus(editor, copyStood);
    ClearSelection(editor);
    RedrawDrawing(editor);
    editor.form.FocusRequest = Focus::Canvas;
    editor.form.lblMessage.Caption = readyMessage(editor);
    colorReset(editor, false);
}

void cmdReset_Click(Editor& editor) {
    dropLabelEdit(editor);
    ResetEditor(editor);
}

void mnuOptionReset_Click(Editor& editor) {
    cmdReset_Click(editor);
}

void ClearCopyState(Editor& editor) {
    endGesture(editor);
    ClearSelection(editor);
    editor.copied = {};
    RecountSelection(editor);
}

void RecountSelection(Editor& editor) {
    const Drawing& drawing = editor.drawing;
    if (drawing.devices.DeviceCount > 0)
        editor.form.menu[Menu::mnuEditSaveUserSymbol].Enabled = true;
    const auto marked = [](const std::vector<Short>& marks) {
        return marks.size() -
               static_cast<std::size_t>(std::count(marks.begin(), marks.end(), Short{0}));
    };
    const std::size_t devices = marked(drawing.devices.DeviceSelected);
    const std::size_t labels = marked(drawing.labels.LabelSelected);
    const auto pictures = static_cast<std::size_t>(
        std::count_if(drawing.PictureTable.begin(), drawing.PictureTable.end(),
                      [](const PictureRow& row) { return row.Selected; }));
    editor.SelectedDeviceCount = counted(devices);
    editor.SelectedLabelCount = counted(labels);
    editor.SelectedCount = counted(devices + labels + pictures);
    followLabelSelection(editor, labels);
    followSelectedCount(editor);
    showCount(editor, editor.SelectedCount);
}

void ClearSelection(Editor& editor) {
    Drawing& drawing = editor.drawing;
    auto& devices = drawing.devices.DeviceSelected;
    auto& labels = drawing.labels.LabelSelected;
    std::fill(devices.begin(), devices.end(), Short{0});
    std::fill(labels.begin(), labels.end(), Short{0});
    for (PictureRow& row : drawing.PictureTable)
        row.Selected = false;
    if (!drawing.PictureTable.empty()) ++editor.form.PictureVersion;
    editor.SelectedCount = editor.SelectedDeviceCount = editor.SelectedLabelCount = 0;
    editor.SelectedPicture = editor.LastSelectedLabel = -1;
    showCount(editor, 0);
}

}  // namespace ladrix
