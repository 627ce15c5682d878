// The colour of the page on the screen.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

void mnuOptBlackBackground_Click(Editor& editor);

// The canvas takes the option as it stands. Does not paint.
void applyBlackBackground(Editor& editor);

}  // namespace ladrix
