// Stretch of the view: the frame is made narrower or wider by dragging its right margin, while the
// mode is on.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Turns the mode on or off; the width stays. The first time it tells how to drag.
void mnuEditStretch_Click(Editor& editor);

// Of the frame's right margin; `x` in twips within picFrame. A move with the button held changes
// the frame's width by the way since the move before; the view then resizes the form.
void picFrame_MouseDown(Editor& editor, Short button, Single x);
void picFrame_MouseMove(Editor& editor, Short button, Single x);
void picFrame_MouseUp(Editor& editor);

}  // namespace ladrix
