// The radius and angle fields: what is typed in them goes to the tool in hand, and by Apply to the
// selected circles and arcs.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

void txtRadius_Change(Editor& editor);
void txtCircleStart_Change(Editor& editor);
void txtCircleEnd_Change(Editor& editor);

// Digits, both decimal marks and Backspace; any other key is dropped. Of all number fields.
bool numberKeyAllowed(Short keyAscii);

// Enter leads to the end angle.
void txtCircleStart_KeyDown(Editor& editor, Short keyCode);

// Gives the selected circles the radius, and the selected arcs the radius and both angles; one undo
// step if there are any. A radius that is no number gives both kinds their first one.
void cmdCircle_Click(Editor& editor);

}  // namespace ladrix
