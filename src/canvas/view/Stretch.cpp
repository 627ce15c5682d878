#include "canvas/view/Stretch.h"

#include <algorithm>
#include <utility>

#include "canvas/view/View.h"

namespace ladrix {

namespace {

constexpr Single NarrowestFrame = TwipsPerInch;

void stretchFrame(Editor& editor, Single travel) {
    FormLX& form = editor.form;
    const Single width = std::max(NarrowestFrame, form.FrameWidth + travel);
    const bool fillsRoom = form.FrameRoom > 0 && width >= form.FrameRoom;
    form.StretchedWidth = fillsRoom ? 0 : width;
    form.FrameWidth = fillsRoom ? form.FrameRoom : width;
    ArrangeScrollBars(editor);
}

}  // namespace

void mnuEditStretch_Click(Editor& editor) {
    editor.StretchMode = !editor.StretchMode;
    editor.Stretching = false;
    editor.form.picFramePointer = MousePointer::Default;
    editor.form.menu[Menu::mnuEditStretch].Checked = editor.StretchMode;
    ArrangeScrollBars(editor);
    if (!editor.StretchMode || std::exchange(editor.StretchTold, true)) return;
    editor.platform.tell(
        "Place the mouse inside the vertical scroll bar area\nand click and drag "
        "the window to desired width.");
}

void picFrame_MouseDown(Editor& editor, Short button, Single x) {
    if (!editor.StretchMode || button != LeftButton) return;
    editor.Stretching = true;
    editor.StretchX = x;
}

void picFrame_MouseMove(Editor& editor, Short button, Single x) {
    editor.form.picFramePointer =
        editor.StretchMode ? MousePointer::SizeWidth : MousePointer::Default;
    if (!editor.Stretching || button != LeftButton) return;
    stretchFrame(editor, x - std::exchange(editor.StretchX, x));
}

void picFrame_MouseUp(Editor& editor) {
    editor.Stretching = false;
}

}  // namespace ladrix
