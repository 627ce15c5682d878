// Pictures under the pointer: at 100 percent and while the editor is idle they take a press before
// the canvas does. X and Y are inches of the page.
#pragma once

#include <optional>

#include "canvas/state/Editor.h"

namespace ladrix {

// The picture that takes a press at this point of the page, the uppermost one. nullopt: the press
// is the canvas's.
std::optional<Short> pictureAt(const Editor& editor, Single x, Single y);

// A press toggles the picture, moving with the left button held drags it; the release of a picture
// that was moved stores its place and resets the editor.
void img_MouseDown(Editor& editor, Short index, Short button, Single x, Single y);
void img_MouseMove(Editor& editor, Short button, Single x, Single y);
void img_MouseUp(Editor& editor);

}  // namespace ladrix
