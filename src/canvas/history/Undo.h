// Undo and redo by snapshots of the whole drawing: slot UndoTop holds the newest, slot UndoPosition
// the one shown. A snapshot is the three master texts, each behind its marker:
//
//   ///DEVICES///...///LABELS///...///PICTURES///...
//
// Restoring parses it by the parsers that read a file. From the 500th on each new snapshot shifts
// all slots down by one while UndoTop goes on growing, so that every other slot on the way back is
// empty: a step onto one changes nothing, and the next step goes on. Past the last slot nothing
// more is kept.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Called by everything that changes the drawing, when its texts hold the change.
void TakeUndoSnapshot(Editor& editor);

// The end of a command that has changed the tables: their texts follow, the drawing counts as
// changed and the history gets its step. Painting is the caller's.
void recordStep(Editor& editor);

// Shows the state of UndoPosition, with nothing selected. A position beyond the ends is told and
// held.
void RestoreSnapshot(Editor& editor);

// A label being edited is finished first, as a step of its own.
void mnuEditUndo_Click(Editor& editor);
void mnuEditRedo_Click(Editor& editor);

// The present state is all the history there is.
void ClearHistory(Editor& editor);

}  // namespace ladrix
