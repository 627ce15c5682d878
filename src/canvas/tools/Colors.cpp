#include "canvas/tools/Colors.h"

#include <utility>

#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/labels/LabelEdit.h"

namespace ladrix {

namespace {

constexpr Long PanelColors[] = {
    // clang-format off
    RGB(255, 0, 0), RGB(255, 128, 0), RGB(255, 255, 0), RGB(0, 255, 0), RGB(0, 255, 255), RGB(0, 0, 255),
    RGB(0, 0, 0), RGB(128, 0, 255), RGB(255, 0, 255), RGB(255, 0, 128), RGB(128, 64, 0), RGB(255, 255, 255),
    RGB(255, 204, 204), RGB(255, 224, 192), RGB(255, 255, 192), RGB(204, 255, 204), RGB(204, 255, 255), RGB(204, 204, 255),
    RGB(255, 128, 128), RGB(255, 184, 112), RGB(240, 224, 96), RGB(128, 224, 128), RGB(128, 224, 224), RGB(128, 128, 255),
    RGB(208, 48, 48), RGB(216, 112, 16), RGB(192, 168, 0), RGB(32, 160, 64), RGB(0, 152, 168), RGB(48, 80, 200),
    RGB(160, 0, 0), RGB(160, 80, 0), RGB(128, 112, 0), RGB(0, 112, 32), RGB(0, 104, 120), RGB(0, 32, 144),
    RGB(96, 0, 0), RGB(96, 48, 0), RGB(80, 72, 0), RGB(0, 72, 16), RGB(0, 64, 80), RGB(0, 0, 96),
    RGB(232, 208, 255), RGB(192, 128, 255), RGB(144, 64, 208), RGB(128, 0, 128), RGB(80, 0, 112), RGB(255, 192, 224),
    RGB(240, 240, 240), RGB(208, 208, 208), RGB(168, 168, 168), RGB(128, 128, 128), RGB(88, 88, 88), RGB(48, 48, 48),
    // clang-format on
};

void recolorSelection(Editor& editor, Long color) {
    keepLabelEdit(editor);
    DeviceTable& devices = editor.drawing.devices;
    for (std::size_t i = 0; i < devices.DeviceSelected.size(); ++i)
        if (devices.DeviceSelected[i] != 0) devices.DeviceColor[i] = color;
    LabelTable& labels = editor.drawing.labels;
    const bool labelsToo = editor.drawing.FixedLabelColor != nullptr;
    for (std::size_t i = 0; labelsToo && i < labels.LabelSelected.size(); ++i)
        if (labels.LabelSelected[i] != 0) labels.LabelColor[i] = color;
    recordStep(editor);
}

void chooseColor(Editor& editor, Long color) {
    if (std::exchange(editor.gesture.SelectionColorPending, false)) editor.SelectionColor = color;
    editor.form.picSelectedColor.BackColor = color;
    editor.CurrentColor = color;
    editor.form.picColors.Visible = false;
    editor.form.FocusRequest = Focus::Canvas;
    if (editor.SelectedCount == 0) return;
    recolorSelection(editor, color);
    ResetEditor(editor);
}

}  // namespace

void LoadMyColors(Editor& editor) {
    editor.form.lblColor.assign(std::begin(PanelColors), std::end(PanelColors));
}

void cmdColors_Click(Editor& editor) {
    editor.form.picColors.Visible = true;
}

void lblColor_Click(Editor& editor, std::size_t index) {
    if (index < editor.form.lblColor.size()) chooseColor(editor, editor.form.lblColor[index]);
}

void picSelectedColor_Click(Editor& editor) {
    chooseColor(editor, editor.form.picSelectedColor.BackColor);
}

void mnuOptChangeSelectionColor_Click(Editor& editor) {
    editor.gesture.SelectionColorPending = true;
    editor.form.lblMessage.Caption = "Choose the color in which selected items are shown.";
    cmdColors_Click(editor);
}

}  // namespace ladrix
