// What each press, move and release of the pointer on the canvas means at this moment: tests of the
// editor's flags in a fixed order of priority. X and Y are inches of the page.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

void picLX_MouseDown(Editor& editor, Short button, Short shift, Single x, Single y);

// Also the only writer of SnapX and SnapY: a tool places there, never under the pointer. Ends at
// once if the pointer has not moved. Costs one symbol at most, never a redraw of the drawing.
void picLX_MouseMove(Editor& editor, Short button, Short shift, Single x, Single y);

// The pointer rests there although nothing has moved it: what it stands on has changed, by a
// command, a key, a scroll or a zoom. As a move.
void picLX_PointerRests(Editor& editor, Short button, Single x, Single y);

void picLX_MouseUp(Editor& editor, Short button, Short shift, Single x, Single y);

// Ends a polyline and arms the next one in the same style. Comes in place of the second press; in
// the simulation it is that press.
void picLX_DblClick(Editor& editor);

// The click that a user symbol's insertion point waits for, on the canvas (label -1) or on a label;
// it goes on to the editor's hook.
void takeSymbolPoint(Editor& editor, Single x, Single y, Short label);

}  // namespace ladrix
