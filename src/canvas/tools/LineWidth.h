// Thick and thin lines, and thick symbols.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// 0 thick, 1 thin; of new lines, and of what is selected, as one undo step. Devices other than
// lines are thick only while all symbols are.
void cmdDrawWidth_Click(Editor& editor, Short index);

void mnuOptionThickDevices_Click(Editor& editor);

// The canvas takes the option as it stands. Does not paint.
void applyThickDevices(Editor& editor);

}  // namespace ladrix
