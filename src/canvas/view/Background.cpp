#include "canvas/view/Background.h"

#include "canvas/view/Painting.h"

namespace ladrix {

void mnuOptBlackBackground_Click(Editor& editor) {
    editor.BlackBackground = !editor.BlackBackground;
    editor.form.menu[Menu::mnuOptBlackBackground].Checked = editor.BlackBackground;
    applyBlackBackground(editor);
    RedrawDrawing(editor);
}

void applyBlackBackground(Editor& editor) {
    editor.platform.picLX->BackColor = editor.BlackBackground ? Black : White;
}

}  // namespace ladrix
