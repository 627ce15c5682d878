#include "canvas/gestures/PictureEvents.h"

#include <algorithm>
#include <utility>

#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/gestures/Selection.h"
#include "canvas/view/Painting.h"
#include "document/Records.h"

namespace ladrix {

namespace {

bool between(Single value, Single low, Single high) {
    return value >= low && value <= high;
}

// nullptr without a drag.
PictureRow* draggedRow(Editor& editor) {
    const Short index = editor.gesture.draggedPicture.index;
    if (index < 0 || index >= editor.drawing.PictureCount) return nullptr;
    return &editor.drawing.PictureTable[static_cast<std::size_t>(index)];
}

}  // namespace

std::optional<Short> pictureAt(const Editor& editor, Single x, Single y) {
    const bool idle = editor.gesture.CurrentTool == -1 && !editor.gesture.CopyArmed &&
                      !editor.gesture.ZoomInPending && !editor.gesture.ZoomOutPending &&
                      !editor.gesture.TextAlignPending && !editor.gesture.SymbolPointPending &&
                      !editor.SimulationMode;
    if (editor.ZoomFactor != 1 || !idle) return std::nullopt;
    for (std::size_t i = editor.drawing.PictureTable.size(); i-- > 0;) {
        const PictureRow& row = editor.drawing.PictureTable[i];
        if (between(x, row.Left, row.Left + row.Width) && between(y, row.Top, row.Top + row.Height))
            return static_cast<Short>(i);
    }
    return std::nullopt;
}

void img_MouseDown(Editor& editor, Short index, Short button, Single x, Single y) {
    if (button == RightButton) return picLX_MouseDown(editor, button, 0, x, y);
    if (button != LeftButton) return;
    const auto i = static_cast<std::size_t>(index);
    const PictureRow& row = editor.drawing.PictureTable[i];
    editor.form.pointer.picGrip.Visible = false;
    markPicture(editor, i, !row.Selected);
    RecountSelection(editor);
    editor.gesture.draggedPicture = {index, x, y, row.Left, row.Top, false};
}

// The picture's image stays where it was until the release; a copy of it follows above.
void img_MouseMove(Editor& editor, Short button, Single x, Single y) {
    PictureDrag& drag = editor.gesture.draggedPicture;
    PictureRow* dragged = draggedRow(editor);
    if (button != LeftButton || !dragged) return;
    if (x == drag.pressX && y == drag.pressY && !drag.moved) return;
    drag.moved = true;
    const auto i = static_cast<std::size_t>(drag.index);
    PictureRow& row = *dragged;
    row.Left = drag.left + (x - drag.pressX);
    row.Top = drag.top + (y - drag.pressY);
    beginTemporaryGraphics(editor);
    Canvas& canvas = *editor.platform.picLX;
    if (i < editor.img.size() && editor.img[i])
        canvas.PaintPicture(*editor.img[i], row.Left, row.Top, row.Width, row.Height);
    canvas.Line(row.Left, row.Top, row.Left + row.Width, row.Top + row.Height, Cyan, LineForm::Box);
    canvas.AutoRedraw = true;
    ++editor.form.PictureVersion;
}

void img_MouseUp(Editor& editor) {
    const PictureDrag drag = std::exchange(editor.gesture.draggedPicture, {});
    if (!drag.moved) return;
    RebuildPictureString(editor.drawing, editor.platform);
    ResetEditor(editor);
}

}  // namespace ladrix
