// Going back and forth in the undo history. Restoring a snapshot parses it by the parsers that read
// a file; a step onto a slot that the history left empty changes nothing, and the next step goes
// on.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Shows the state of UndoPosition, with nothing selected. A position beyond the ends is told and
// held.
void RestoreSnapshot(Editor& editor);

// Reads the devices anew from their master text: none of them is selected any more.
void ParseShownDevices(Editor& editor);

// A label being edited is finished first, as a step of its own.
void mnuEditUndo_Click(Editor& editor);
void mnuEditRedo_Click(Editor& editor);

}  // namespace ladrix
