#include "canvas/gestures/Keys.h"

#include <algorithm>
#include <cmath>

#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Selection.h"
#include "canvas/history/History.h"
#include "canvas/tools/Colors.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Painting.h"
#include "canvas/view/Snap.h"
#include "canvas/view/View.h"
#include "canvas/view/Zoom.h"

namespace ladrix {

namespace {

constexpr Short PaletteColumns = 4;

struct Step {
    Single x = 0, y = 0;
};

std::optional<Step> arrowStep(Short keyCode, Single length) {
    switch (keyCode) {
        case key::Left:
            return Step{-length, 0};
        case key::Right:
            return Step{length, 0};
        case key::Up:
            return Step{0, -length};
        case key::Down:
            return Step{0, length};
        default:
            return std::nullopt;
    }
}

// A line grows along its own axis, at its far end; a square at its second corner.
bool stretchDevice(DeviceTable& table, std::size_t i, Step step) {
    if (table.DeviceName[i] == "InsertSavedSquare") {
        table.DeviceX2[i] += step.x;
        table.DeviceY2[i] += step.y;
        return true;
    }
    if (table.DeviceName[i] != "InsertSavedLine") return false;
    if (table.DeviceY[i] == table.DeviceY2[i]) {
        table.DeviceX2[i] += step.x;
        return step.x != 0;
    }
    if (table.DeviceX[i] == table.DeviceX2[i]) {
        table.DeviceY2[i] += step.y;
        return step.y != 0;
    }
    return false;
}

bool stretchSelected(Drawing& drawing, Step step) {
    bool moved = false;
    for (std::size_t i = 0; i < static_cast<std::size_t>(drawing.devices.DeviceCount); ++i)
        if (drawing.devices.DeviceSelected[i] != 0)
            moved = stretchDevice(drawing.devices, i, step) || moved;
    return moved;
}

void pageByKey(Editor& editor, Short keyCode) {
    ScrollBar& bar = editor.form.VScroll1;
    const auto hundredths = [](Single inches) {
        return static_cast<int>(std::lround(inches * 100));
    };
    const Single visible = editor.VisibleHeight;
    if (keyCode == key::PageDown)
        bar.Value = editor.ScaleTop + 2 * visible < editor.PageHeight
                        ? bar.Value + hundredths(visible)
                        : hundredths(editor.PageHeight - visible);
    else
        bar.Value = editor.ScaleTop > visible ? bar.Value - hundredths(visible) : 0;
    bar.Value = std::clamp(bar.Value, 0, bar.Max);
    VScroll1_Change(editor);
}

void pressControlKey(Editor& editor, Short keyCode) {
    switch (keyCode) {
        case 'B':
            editor.CurrentColor = Black;
            editor.form.picSelectedColor.BackColor = Black;
            break;
        case key::Left:
            snapLowerByKey(editor);
            break;
        case key::Right:
            snapHigherByKey(editor);
            break;
        case key::Home:
            MovePageUp(editor);
            break;
        case key::End:
            MovePageDown(editor);
            break;
        case key::Plus:
            mnuEditZoomIn_Click(editor);
            break;
        case key::Minus:
            mnuEditZoomOut_Click(editor);
            break;
        default:
            break;
    }
}

std::optional<Long> colorOfKey(Short keyCode) {
    switch (keyCode) {
        case 'B':
            return Black;
        case 'R':
            return Red;
        case 'G':
            return 0xFF00;
        case 'Y':
            return 0xFFFF;
        case 'C':
            return Cyan;
        case 'M':
            return Magenta;
        case 'U':
            return Blue;
        case 'V':
            return RGB(128, 0, 128);
        default:
            return std::nullopt;
    }
}

void walkPalette(Editor& editor, Short keyCode) {
    int target = editor.gesture.CurrentTool;
    switch (keyCode) {
        case key::Down:
            target += PaletteColumns;
            break;
        case key::Up:
            target -= PaletteColumns;
            break;
        case key::Right:
            target += 1;
            break;
        case key::Left:
            target -= 1;
            break;
        default:
            return;
    }
    if (target < 0) return;
    if (target > editor.gesture.CurrentTool && target > editor.LastBuiltInButton) return;
    if (editor.form.cmdSym[static_cast<std::size_t>(target)].Tag.empty()) return;
    cmdSym_Click(editor, static_cast<Short>(target));
}

}  // namespace

void Form_KeyDown(Editor& editor, Short keyCode, Short shift) {
    if (keyCode == key::Escape) cmdReset_Click(editor);
    if (keyCode == key::PageDown || keyCode == key::PageUp) pageByKey(editor, keyCode);
    // On many keyboards the plus sign takes Shift.
    const bool plus = keyCode == key::Plus && shift == ControlShift;
    if (shift == ControlKey || plus) pressControlKey(editor, keyCode);
    if (shift == ControlAlt) {
        if (const auto color = colorOfKey(keyCode)) {
            editor.CurrentColor = *color;
            editor.form.picSelectedColor.BackColor = *color;
            picSelectedColor_Click(editor);
        }
    }
    if (editor.TextBoxFocused) return;
    if (shift == NoShift && editor.gesture.CurrentTool != -1) walkPalette(editor, keyCode);
}

bool Form_KeyPress(Short keyAscii) {
    return keyAscii != key::Escape;
}

void picLX_KeyDown(Editor& editor, Short keyCode, Short shift) {
    editor.form.pointer.picGrip.Visible = false;
    if (editor.SelectedCount == 0) return;
    const auto step = arrowStep(keyCode, editor.SnapStep);
    if (!step) return;
    bool moved = false;
    if (shift == NoShift) moved = stretchSelected(editor.drawing, *step);
    if (shift == ShiftKey) moved = moveSelectedItems(editor.drawing, step->x, step->y);
    if (!moved) return;
    editor.SnapshotPending = true;
    paintDrawing(editor);
    recordStep(editor);
}

}  // namespace ladrix
