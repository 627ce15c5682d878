#include "canvas/labels/LabelCommands.h"

#include <algorithm>
#include <string>

#include "canvas/gestures/Gesture.h"
#include "canvas/history/History.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/view/Painting.h"

namespace ladrix {

namespace {

constexpr Short SmallFontSize = 7;  // points

void flipOption(Editor& editor, bool& option, Menu entry) {
    option = !option;
    editor.form.menu[entry].Checked = option;
}

void askForPoint(Editor& editor, TextAlignment alignment, std::string_view side) {
    keepLabelEdit(editor);
    endGesture(editor);
    editor.gesture.TextAlignPending = true;
    editor.gesture.textAlignment = alignment;
    editor.platform.tell("Please click a " + std::string(side) + " alignment point.");
}

void alignLabel(Editor& editor, std::size_t i) {
    LabelTable& labels = editor.drawing.labels;
    switch (editor.gesture.textAlignment) {
        case TextAlignment::Left:
            labels.LabelX[i] = editor.gesture.TextAlignX;
            return;
        case TextAlignment::Right:
            labels.LabelX[i] =
                editor.gesture.TextAlignX -
                editor.platform.fonts->textWidth(fontOfLabel(labels, i), labels.LabelText[i]);
            return;
        case TextAlignment::Top:
            labels.LabelY[i] = editor.gesture.TextAlignY;
            return;
        case TextAlignment::None:
            return;
    }
}

}  // namespace

void mnuEditTextCaption_Click(Editor& editor) {
    const auto& marks = editor.drawing.labels.LabelSelected;
    const auto isMarked = [](Short mark) { return mark != 0; };
    if (std::count_if(marks.begin(), marks.end(), isMarked) != 1) return;
    const auto only = std::find_if(marks.begin(), marks.end(), isMarked);
    beginLabelEdit(editor, static_cast<Short>(only - marks.begin()));
    ++editor.form.txtEdit.SelectAllRequests;
}

void mnuEditTextAlignLeft_Click(Editor& editor) {
    askForPoint(editor, TextAlignment::Left, "left");
}

void mnuEditTextAlignRight_Click(Editor& editor) {
    askForPoint(editor, TextAlignment::Right, "right");
}

void mnuEditTextAlignTop_Click(Editor& editor) {
    askForPoint(editor, TextAlignment::Top, "top");
}

void alignSelectedLabels(Editor& editor, Single x, Single y) {
    editor.gesture.TextAlignX = x;
    editor.gesture.TextAlignY = y;
    const LabelTable& labels = editor.drawing.labels;
    for (std::size_t i = 0; i < static_cast<std::size_t>(labels.LabelCount); ++i)
        if (labels.LabelSelected[i] != 0) alignLabel(editor, i);
    endGesture(editor);
    paintDrawing(editor);
    recordStep(editor);
}

void mnuOptionSmallerFont_Click(Editor& editor) {
    editor.drawing.DefaultFontSize = SmallFontSize;
    auto& sizes = editor.drawing.labels.LabelFontSize;
    if (std::count(sizes.begin(), sizes.end(), Single{SmallFontSize}) ==
        static_cast<std::ptrdiff_t>(sizes.size()))
        return;
    keepLabelEdit(editor);
    std::fill(sizes.begin(), sizes.end(), Single{SmallFontSize});
    placeLabels(editor);
    recordStep(editor);
}

void mnuOptAutoIncrement_Click(Editor& editor) {
    flipOption(editor, editor.AutoIncrement, Menu::mnuOptAutoIncrement);
}

void mnuOptionAddSpace_Click(Editor& editor) {
    flipOption(editor, editor.AddSpace, Menu::mnuOptionAddSpace);
}

void mnuOptionLabelColor_Click(Editor& editor) {
    const Long*& fixed = editor.drawing.FixedLabelColor;
    fixed = fixed == nullptr ? &editor.CurrentColor : nullptr;
    editor.form.menu[Menu::mnuOptionLabelColor].Checked = fixed != nullptr;
}

}  // namespace ladrix
