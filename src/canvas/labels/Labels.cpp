#include "canvas/labels/Labels.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "canvas/gestures/Gesture.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/state/Panels.h"
#include "canvas/tools/ToolTable.h"
#include "canvas/view/Painting.h"
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

// The Text tool's own text in the box, marked.
void openTextBox(Editor& editor) {
    if (editor.gesture.TextBuffer.empty()) editor.gesture.TextBuffer = TextToolHint;
    showPanel(editor, Panel::Text);
    editor.form.txtEdit.Text = editor.gesture.TextBuffer;
    focusTextBox(editor);
    ++editor.form.txtEdit.SelectAllRequests;
}

// Enter leaves nothing selected of the label that was edited.
void unselectEdited(Editor& editor, Short index) {
    const auto i = static_cast<std::size_t>(index);
    if (index < 0 || index >= editor.drawing.labels.LabelCount) return;
    if (editor.drawing.labels.LabelSelected[i] == 0) return;
    editor.drawing.labels.LabelSelected[i] = 0;
    placeLabel(editor, i);
    RecountSelection(editor);
}

// Blue where the ghost stands on the snap point, at which a click would place it.
Long ghostColor(const Editor& editor) {
    const Gesture& gesture = editor.gesture;
    const bool onPoint = gesture.TextGhostX == editor.SnapX && gesture.TextGhostY == editor.SnapY;
    return onPoint ? Blue : Red;
}

void printGhost(Editor& editor, Long color) {
    const Gesture& gesture = editor.gesture;
    const FontSpec font = defaultFont(editor);
    const Corner corner =
        cornerOfCentred(editor, font, gesture.TextBuffer, gesture.TextGhostX, gesture.TextGhostY);
    editor.platform.picLX->Text(corner.x, corner.y, font, gesture.TextBuffer, color);
}

// A whole number plus one, of any length; nullopt for any other text. Leading zeros go.
std::optional<std::string> nextWholeNumber(std::string_view text) {
    constexpr std::string_view Blanks = " \t", Zeros = "0";
    text.remove_prefix(std::min(text.find_first_not_of(Blanks), text.size()));
    text = text.substr(0, text.find_last_not_of(Blanks) + 1);
    bool negative = text.starts_with('-');
    std::string digits{text.substr(negative ? 1 : 0)};
    if (digits.empty() || digits.find_first_not_of("0123456789") != std::string::npos)
        return std::nullopt;
    digits.erase(0, digits.find_first_not_of(Zeros));
    negative = negative && !digits.empty();
    // The digits that carry on, from the last one up to the first that does not.
    const char carrying = negative ? '0' : '9', carried = negative ? '9' : '0';
    auto at = digits.find_last_not_of(carrying);
    if (at == std::string::npos) digits.insert(at = 0, Zeros);
    std::fill(digits.begin() + static_cast<std::ptrdiff_t>(at) + 1, digits.end(), carried);
    digits[at] = static_cast<char>(digits[at] + (negative ? -1 : 1));
    digits.erase(0, std::min(digits.find_first_not_of(Zeros), digits.size() - 1));
    return negative && digits != Zeros ? '-' + digits : digits;
}

}  // namespace

Short recordCentredLabel(Editor& editor, std::string_view text, Single x, Single y, Long color) {
    const FontSpec font = defaultFont(editor);
    const Corner corner = cornerOfCentred(editor, font, text, x, y);
    Label label;
    label.text = text;
    label.x = corner.x;
    label.y = corner.y;
    label.color = color;
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
    keepLabelEdit(editor);
    const Short index = recordCentredLabel(editor, text, x, y, Black);
    if (index < 0) return;
    editor.drawing.LabelPending = true;
    beginLabelEdit(editor, index);
}

void drawTextGhost(Editor& editor, Single x, Single y, Long color) {
    if (editor.labelEdit.index != -1) return;
    if (!editor.TextBoxFocused) {
        openTextBox(editor);
        editor.form.lblMessage.Caption = "Move to desired location and edit as required.";
    }
    if (editor.gesture.MouseIsDown) return;
    editor.gesture.TextGhostShown = true;
    editor.gesture.TextGhostX = x;
    editor.gesture.TextGhostY = y;
    printGhost(editor, color);
}

void placeTextLabel(Editor& editor, Single x, Single y) {
    std::string& text = editor.gesture.TextBuffer;
    if (text.empty()) text = editor.form.txtEdit.Text;
    const bool onlyTheHint = text == TextToolHint;
    const Short placed = recordCentredLabel(editor, text, x, y, editor.CurrentColor);
    if (onlyTheHint && placed >= 0) {
        wipeTemporaryGraphics(editor);
        beginLabelEdit(editor, placed);
    } else {
        if (editor.AutoIncrement) text = incrementedText(text, editor.platform.locale.decimalMark);
        editor.form.txtEdit.Text = text;
        showPanel(editor, Panel::Text);
        focusTextBox(editor);
    }
    ++editor.form.txtEdit.SelectAllRequests;
}

void openTextToolByKey(Editor& editor) {
    if (editor.form.picText.Visible) return focusTextBox(editor);
    if (toolInHand(editor).kind == ToolKind::Text) openTextBox(editor);
}

std::string incrementedText(std::string_view text, char decimalMark) {
    if (auto next = nextWholeNumber(text)) return *std::move(next);
    if (const auto number = typedNumber(text)) return singleText(*number + 1, decimalMark);
    if (text.size() != 1) return std::string{text};
    const char letter = text[0];
    if ((letter >= 'A' && letter < 'Z') || (letter >= 'a' && letter < 'z'))
        return std::string(1, static_cast<char>(letter + 1));
    return std::string{text};
}

void txtEdit_LostFocus(Editor& editor) {
    editor.TextBoxFocused = false;
}

void txtEdit_Change(Editor& editor) {
    editor.form.lblMessage.Caption = "Type desired text and press ENTER. Press Esc when finished.";
    Gesture& gesture = editor.gesture;
    if (toolInHand(editor).kind == ToolKind::Text) gesture.TextBuffer = editor.form.txtEdit.Text;
    if (editor.labelEdit.index != -1) return changeLabelEdit(editor);
    if (!gesture.TextGhostShown) return;
    beginTemporaryGraphics(editor);
    printGhost(editor, ghostColor(editor));
    editor.platform.picLX->AutoRedraw = true;
}

void txtEdit_EnterPressed(Editor& editor) {
    Gesture& gesture = editor.gesture;
    if (std::exchange(gesture.TextGhostShown, false)) {
        recordCentredLabel(editor, gesture.TextBuffer, gesture.TextGhostX, gesture.TextGhostY,
                           editor.CurrentColor);
        wipeTemporaryGraphics(editor);
    }
    const Short edited = editor.labelEdit.index;
    keepLabelEdit(editor);
    editor.TextBoxFocused = false;
    editor.form.FocusRequest = Focus::Canvas;
    if (editor.drawing.DeviceRecorded) return ResetEditor(editor);
    unselectEdited(editor, edited);
    showPanel(editor, Panel::None);
}

void txtEdit_Refused(Editor& editor) {
    editor.form.lblMessage.Caption = RefusedTextNote;
}

}  // namespace ladrix
