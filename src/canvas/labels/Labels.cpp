#include "canvas/labels/Labels.h"

#include "canvas/gestures/Pointer.h"
#include "canvas/gestures/Selection.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Redraw.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view TextToolHint = "Enter new text and hit return.";

FontSpec defaultFont(const Editor& editor) {
    const Drawing& drawing = editor.drawing;
    return {drawing.DefaultFontName, static_cast<Single>(drawing.DefaultFontSize),
            drawing.DefaultFontBold, drawing.DefaultFontItalic};
}

struct Corner {
    Single x, y;
};

Corner cornerOfCentred(const Editor& editor, const FontSpec& font, std::string_view text, Single x,
                       Single y) {
    return {x - editor.platform.fonts->textWidth(font, text) / 2,
            y - editor.platform.fonts->textHeight(font) / 2};
}

bool editingLabel(const Editor& editor) {
    return editor.LastSelectedLabel > -1 &&
           editor.LastSelectedLabel < editor.drawing.labels.LabelCount;
}

void openTextBox(Editor& editor, std::string_view text) {
    showPanel(editor, Panel::Text);
    editor.form.txtEdit.Text = text;
    editor.form.FocusRequest = Focus::TextEdit;
}

void showLabelAsEdited(Editor& editor, std::size_t i) {
    LabelControl& control = editor.form.lbl.at(i);
    control.Caption = editor.drawing.labels.LabelText[i];
    control.Left = editor.drawing.labels.LabelX[i];
    control.Top = editor.drawing.labels.LabelY[i];
    control.ForeColor = editor.SelectionColor;
    control.Visible = true;
    ++editor.form.LabelVersion;
}

// The label keeps its centre while its text grows and shrinks; the table follows each key.
void takeEditedText(Editor& editor) {
    const auto i = static_cast<std::size_t>(editor.LastSelectedLabel);
    LabelTable& labels = editor.drawing.labels;
    const FontSpec font = fontOfLabel(labels, i);
    Fonts& fonts = *editor.platform.fonts;
    const Single centre = labels.LabelX[i] + fonts.textWidth(font, labels.LabelText[i]) / 2;
    labels.LabelText[i] = editor.form.txtEdit.Text;
    labels.LabelX[i] = centre - fonts.textWidth(font, labels.LabelText[i]) / 2;
    RebuildLabelString(editor.drawing, editor.platform);
    editor.drawing.DrawingChanged = true;
    editor.LabelEdited = true;
    showLabelAsEdited(editor, i);
}

// Enter leaves nothing selected of the label that was edited.
void unselectEdited(Editor& editor, Short index) {
    const auto i = static_cast<std::size_t>(index);
    if (index < 0 || index >= editor.drawing.labels.LabelCount) return;
    if (editor.drawing.labels.LabelSelected[i] == 0) return;
    editor.drawing.labels.LabelSelected[i] = 0;
    editor.form.lbl.at(i).ForeColor = editor.drawing.labels.LabelColor[i];
    ++editor.form.LabelVersion;
    RecountSelection(editor);
}

}  // namespace

FontSpec fontOfLabel(const LabelTable& labels, std::size_t i) {
    return {labels.LabelFontName[i], labels.LabelFontSize[i], labels.LabelBold[i],
            labels.LabelItalic[i]};
}

Short recordCentredLabel(Editor& editor, std::string_view text, Single x, Single y, Long color) {
    const FontSpec font = defaultFont(editor);
    const Corner corner = cornerOfCentred(editor, font, text, x, y);
    Label label;
    label.text = text;
    label.x = corner.x;
    label.y = corner.y;
    label.color = editor.LabelColorOn ? editor.CurrentColor : color;
    label.fontName = font.name;
    label.fontSize = font.size;
    label.bold = font.bold;
    label.italic = font.italic;
    const Short before = editor.drawing.labels.LabelCount;
    RecordLabel(editor.drawing, editor.platform, label);
    if (editor.drawing.labels.LabelCount == before) return -1;
    placeLastLabel(editor);
    return before;
}

void BeginLabel(Editor& editor, std::string_view prefix, Single x, Single y) {
    if (!editor.drawing.AttachLabels) return;
    std::string text{prefix};
    if (editor.AddSpace) text += ' ';
    finishLabelEdit(editor);
    const Short index = recordCentredLabel(editor, text, x, y, Black);
    if (index < 0) return;
    editor.drawing.LabelPending = true;
    editLabelText(editor, index);
}

void editLabelText(Editor& editor, Short index) {
    const auto i = static_cast<std::size_t>(index);
    editor.TextGhostShown = false;
    editor.LabelEdited = false;
    editor.LastSelectedLabel = index;
    showLabelAsEdited(editor, i);
    openTextBox(editor, editor.drawing.labels.LabelText[i]);
}

void drawTextGhost(Editor& editor, Single x, Single y, Long color) {
    if (!editor.TextBoxFocused) {
        if (editor.TextBuffer.empty()) editor.TextBuffer = TextToolHint;
        openTextBox(editor, editor.TextBuffer);
        ++editor.form.txtEdit.SelectAllRequests;
        editor.form.lblMessage.Caption = "Move to desired location and edit as required.";
    }
    finishLabelEdit(editor);
    if (editor.MouseIsDown) return;
    const FontSpec font = defaultFont(editor);
    const Corner corner = cornerOfCentred(editor, font, editor.TextBuffer, x, y);
    editor.platform.picLX->Text(corner.x, corner.y, font, editor.TextBuffer, color);
    editor.TextGhostShown = true;
    editor.TextGhostX = x;
    editor.TextGhostY = y;
}

void placeTextLabel(Editor& editor, Single x, Single y) {
    if (editor.TextBuffer.empty()) editor.TextBuffer = editor.form.txtEdit.Text;
    recordCentredLabel(editor, editor.TextBuffer, x, y, editor.CurrentColor);
    if (editor.AutoIncrement) {
        editor.TextBuffer = incrementedText(editor.TextBuffer, editor.platform.locale.decimalMark);
        editor.form.txtEdit.Text = editor.TextBuffer;
    }
    ++editor.form.txtEdit.SelectAllRequests;
}

std::string incrementedText(std::string_view text, char decimalMark) {
    if (const auto number = typedNumber(text)) return singleText(*number + 1, decimalMark);
    if (text.size() != 1) return std::string{text};
    const char letter = text[0];
    if ((letter >= 'A' && letter < 'Z') || (letter >= 'a' && letter < 'z'))
        return std::string(1, static_cast<char>(letter + 1));
    return std::string{text};
}

void txtEdit_GotFocus(Editor& editor) {
    editor.TextBoxFocused = true;
    editor.form.lblMessage.Caption =
        "Text edit area has the focus. Type text as required and press ENTER. Press ESC to exit.";
}

void txtEdit_LostFocus(Editor& editor) {
    editor.TextBoxFocused = false;
}

void txtEdit_Change(Editor& editor) {
    editor.form.lblMessage.Caption = "Type desired text and press ENTER. Press Esc when finished.";
    if (editingLabel(editor) && (!editor.TextGhostShown || editor.MouseIsDown))
        return takeEditedText(editor);
    editor.TextBuffer = editor.form.txtEdit.Text;
    if (editor.ToolName != "Text" || !editor.TextGhostShown) return;
    beginTemporaryGraphics(editor);
    drawTextGhost(editor, editor.TextGhostX, editor.TextGhostY, Red);
    editor.platform.picLX->AutoRedraw = true;
}

void txtEdit_EnterPressed(Editor& editor) {
    editor.TextBoxFocused = false;
    editor.form.FocusRequest = Focus::Canvas;
    if (editor.TextGhostShown) {
        recordCentredLabel(editor, editor.TextBuffer, editor.TextGhostX, editor.TextGhostY,
                           editor.CurrentColor);
        editor.TextGhostShown = false;
    }
    const Short edited = editor.LastSelectedLabel;
    finishLabelEdit(editor);
    if (editor.drawing.DeviceRecorded) return ResetEditor(editor);
    unselectEdited(editor, edited);
    editor.form.picText.Visible = false;
}

void txtEdit_Refused(Editor& editor) {
    editor.form.lblMessage.Caption = RefusedTextNote;
}

void endTextEdit(Editor& editor) {
    finishLabelEdit(editor);
    if (!editor.form.picText.Visible || editor.CurrentTool == TextTool) return;
    showPanel(editor, Panel::None);
    editor.TextBoxFocused = false;
    editor.form.FocusRequest = Focus::Canvas;
}

void finishLabelEdit(Editor& editor) {
    if (!editingLabel(editor)) return;
    const LabelTable& labels = editor.drawing.labels;
    const auto i = static_cast<std::size_t>(editor.LastSelectedLabel);
    editor.LastSelectedLabel = -1;
    if (i < editor.form.lbl.size()) {
        editor.form.lbl[i].ForeColor =
            labels.LabelSelected[i] != 0 ? editor.SelectionColor : labels.LabelColor[i];
        ++editor.form.LabelVersion;
    }
    if (!editor.LabelEdited) return;
    editor.LabelEdited = false;
    if (editor.drawing.TakeUndoSnapshot) editor.drawing.TakeUndoSnapshot();
}

}  // namespace ladrix
