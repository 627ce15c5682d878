// What the pointer is in the middle of, and the ways out of it.
//
// Every gesture stands in `Editor::gesture`. Whoever begins one calls endGesture first, so that at
// most one is under way; whoever must end one, whichever it is, calls it too.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Ends the gesture under way: nothing is placed, what was being dragged goes back to its place, a
// copy or move waits for no point, no press zooms or aligns. Selection, tables, copy buffer and the
// label being edited stay. Menus, Reset and the pointer's overlays follow. With Keep::Tool the tool
// in hand stays pressed, without a first corner.
enum class Keep { Nothing, Tool };
void endGesture(Editor& editor, Keep keep = Keep::Nothing);

// The one way back to idle: the gesture, the selection and the panels end; what was typed in a
// label is kept. The tables, the copy buffer, the zoom and all options stay.
void ResetEditor(Editor& editor);

// As a person asks for it: the label being edited gets its former text back.
void cmdReset_Click(Editor& editor);
void mnuOptionReset_Click(Editor& editor);

// No copy, no move, no buffer and no selection.
void ClearCopyState(Editor& editor);

// Counts the marks and lets the menus, the scale, the message guide and Reset follow. Keeps what
// was typed in a label that is no longer the only one selected.
void RecountSelection(Editor& editor);

// No mark is left; the controls that follow the count are the caller's.
void ClearSelection(Editor& editor);

}  // namespace ladrix
