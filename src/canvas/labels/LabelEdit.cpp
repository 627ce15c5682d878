#include "canvas/labels/LabelEdit.h"

#include <utility>

#include "canvas/history/History.h"
#include "canvas/state/Panels.h"
#include "canvas/tools/ToolTable.h"
#include "canvas/view/Painting.h"

namespace ladrix {

namespace {

bool exists(const Editor& editor, Short index) {
    return index >= 0 && index < editor.drawing.labels.LabelCount;
}

void closeTextBox(Editor& editor) {
    if (!editor.form.picText.Visible || editor.gesture.CurrentTool == TextTool) return;
    showPanel(editor, Panel::None);
    editor.TextBoxFocused = false;
    editor.form.FocusRequest = Focus::Canvas;
}

LabelEdit takeEdit(Editor& editor) {
    return std::exchange(editor.labelEdit, {});
}

}  // namespace

FontSpec fontOfLabel(const LabelTable& labels, std::size_t i) {
    return {labels.LabelFontName[i], labels.LabelFontSize[i], labels.LabelBold[i],
            labels.LabelItalic[i]};
}

void beginLabelEdit(Editor& editor, Short index) {
    keepLabelEdit(editor);
    const auto i = static_cast<std::size_t>(index);
    const LabelTable& labels = editor.drawing.labels;
    editor.gesture.TextGhostShown = false;
    editor.labelEdit = {index, labels.LabelText[i], labels.LabelX[i]};
    placeLabel(editor, i);
    showPanel(editor, Panel::Text);
    editor.form.txtEdit.Text = labels.LabelText[i];
    focusTextBox(editor);
}

void changeLabelEdit(Editor& editor) {
    LabelEdit& edit = editor.labelEdit;
    if (!exists(editor, edit.index)) return;
    const auto i = static_cast<std::size_t>(edit.index);
    const FontSpec font = fontOfLabel(editor.drawing.labels, i);
    Fonts& fonts = *editor.platform.fonts;
    const Single centre = edit.left + fonts.textWidth(font, edit.text) / 2;
    edit.text = editor.form.txtEdit.Text;
    edit.left = centre - fonts.textWidth(font, edit.text) / 2;
    placeLabel(editor, i);
}

void keepLabelEdit(Editor& editor) {
    if (!exists(editor, editor.labelEdit.index)) return;
    LabelEdit edit = takeEdit(editor);
    const auto i = static_cast<std::size_t>(edit.index);
    LabelTable& labels = editor.drawing.labels;
    const bool changed = edit.text != labels.LabelText[i];
    if (changed) {
        labels.LabelText[i] = std::move(edit.text);
        labels.LabelX[i] = edit.left;
    }
    placeLabel(editor, i);
    closeTextBox(editor);
    if (changed) recordStep(editor);
}

void dropLabelEdit(Editor& editor) {
    const LabelEdit edit = takeEdit(editor);
    if (!exists(editor, edit.index)) return;
    placeLabel(editor, static_cast<std::size_t>(edit.index));
    closeTextBox(editor);
}

void focusTextBox(Editor& editor) {
    txtEdit_GotFocus(editor);
    editor.form.FocusRequest = Focus::TextEdit;
}

// The event that follows a handler's own wish tells nothing new.
void txtEdit_GotFocus(Editor& editor) {
    if (std::exchange(editor.TextBoxFocused, true)) return;
    editor.form.lblMessage.Caption =
        "Text edit area has the focus. Type text as required and press ENTER. Press ESC to exit.";
}

}  // namespace ladrix
