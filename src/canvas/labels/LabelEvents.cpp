#include "canvas/labels/LabelEvents.h"

#include <cmath>
#include <utility>

#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/history/History.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/view/Painting.h"

namespace ladrix {

namespace {

constexpr Single DragReach = 0.025f;  // inches on the screen; a smaller movement is a click

// No text of a font is wider or higher than this many of its sizes a character; spares measuring.
constexpr Single WidestCharacter = 2, HighestLine = 3;

bool pressesAreTheCanvas(const Editor& editor) {
    return editor.SimulationMode || editor.gesture.ZoomInPending || editor.gesture.ZoomOutPending ||
           editor.gesture.CopyArmed || editor.gesture.TextAlignPending;
}

bool exists(const Editor& editor, Short index) {
    return index >= 0 && index < editor.drawing.labels.LabelCount &&
           static_cast<std::size_t>(index) < editor.form.lbl.size();
}

// As it is painted: in its fitted font, which the zoom enlarges by itself.
bool covers(const LabelControl& label, const Editor& editor, Single x, Single y) {
    const Single dx = x - label.Left, dy = y - label.Top;
    if (label.Caption.empty()) {
        const Single side = EmptyLabelTick / editor.ZoomFactor;
        return label.Visible && dx >= 0 && dx <= side && dy >= 0 && dy <= side;
    }
    const Single size = label.Font.size / editor.ZoomFactor;
    const Single inches = size / 72;
    if (!label.Visible || dx < 0 || dy < 0 || dy > HighestLine * inches ||
        dx > WidestCharacter * inches * static_cast<Single>(label.Caption.size()))
        return false;
    FontSpec onPaper = label.Font;
    onPaper.size = size;
    Fonts& fonts = *editor.platform.fonts;
    return dy <= fonts.textHeight(onPaper) && dx <= fonts.textWidth(onPaper, label.Caption);
}

void mark(Editor& editor, Short index, bool selected) {
    const auto i = static_cast<std::size_t>(index);
    editor.drawing.labels.LabelSelected[i] = selected ? Short{1} : Short{0};
    RecountSelection(editor);
    placeLabel(editor, i);
}

template <class Action>
bool forEachSelected(Editor& editor, const Action& action) {
    const LabelTable& labels = editor.drawing.labels;
    bool any = false;
    for (Short i = 0; exists(editor, i); ++i) {
        if (labels.LabelSelected[static_cast<std::size_t>(i)] == 0) continue;
        action(static_cast<std::size_t>(i));
        any = true;
    }
    return any;
}

void startMoving(Editor& editor) {
    editor.gesture.draggedLabels.moved = true;
    keepLabelEdit(editor);
    const Short pressed = editor.gesture.draggedLabels.index;
    if (exists(editor, pressed)) mark(editor, pressed, true);
}

void storePlaces(Editor& editor) {
    LabelTable& labels = editor.drawing.labels;
    const bool any = forEachSelected(editor, [&](std::size_t i) {
        labels.LabelX[i] = editor.form.lbl[i].Left;
        labels.LabelY[i] = editor.form.lbl[i].Top;
        labels.LabelSelected[i] = 0;
        placeLabel(editor, i);
    });
    if (!any) return;
    RecountSelection(editor);
    recordStep(editor);
}

}  // namespace

std::optional<Short> labelAt(const Editor& editor, Single x, Single y) {
    if (pressesAreTheCanvas(editor)) return std::nullopt;
    for (std::size_t i = editor.form.lbl.size(); i-- > 0;)
        if (covers(editor.form.lbl[i], editor, x, y)) return static_cast<Short>(i);
    return std::nullopt;
}

void lbl_MouseDown(Editor& editor, Short index, Short button, Single x, Single y) {
    if (editor.SimulationMode || editor.gesture.ZoomInPending || editor.gesture.ZoomOutPending)
        return;
    if (!exists(editor, index)) return;
    editor.form.pointer.picGrip.Visible = false;
    if (editor.gesture.CurrentTool != -1) ResetEditor(editor);
    if (editor.gesture.SavingUserSymbol) {
        editor.LastSelectedLabel = index;
        if (editor.gesture.SymbolPointPending) takeSymbolPoint(editor, x, y, index);
        return;
    }
    if (button == RightButton) return lbl_DblClick(editor, index);
    if (button == LeftButton) editor.gesture.draggedLabels = {index, x, y, false};
}

void lbl_MouseMove(Editor& editor, Short button, Single x, Single y) {
    const LabelDrag& drag = editor.gesture.draggedLabels;
    if (drag.index < 0 || button != LeftButton) return;
    const Single dx = x - drag.pressX, dy = y - drag.pressY;
    const Single reach = DragReach / editor.ZoomFactor;
    if (!drag.moved && std::fabs(dx) < reach && std::fabs(dy) < reach) return;
    if (!drag.moved) startMoving(editor);
    const LabelTable& labels = editor.drawing.labels;
    forEachSelected(editor, [&](std::size_t i) {
        editor.form.lbl[i].Left = labels.LabelX[i] + dx;
        editor.form.lbl[i].Top = labels.LabelY[i] + dy;
    });
    ++editor.form.LabelVersion;
}

bool lbl_MouseUp(Editor& editor) {
    const LabelDrag drag = std::exchange(editor.gesture.draggedLabels, {});
    if (drag.moved) storePlaces(editor);
    return drag.index >= 0 && !drag.moved;
}

void lbl_Click(Editor& editor, Short index) {
    editor.gesture.draggedLabels = {};
    if (!exists(editor, index)) return;
    keepLabelEdit(editor);
    mark(editor, index, editor.drawing.labels.LabelSelected[static_cast<std::size_t>(index)] == 0);
}

void lbl_DblClick(Editor& editor, Short index) {
    if (!exists(editor, index)) return;
    editor.gesture.draggedLabels = {};
    keepLabelEdit(editor);
    mark(editor, index, true);
    editor.LastSelectedLabel = index;
    editor.form.menu[Menu::mnuEditText].Enabled = true;
    editor.platform.dialogs->popUp("mnuEditText");
}

}  // namespace ladrix
