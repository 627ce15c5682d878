// Copy and move by two points: choose the command, click where from, click where to. Both points
// are snap points. A copy goes on pasting at each further click until a reset; a move ends with its
// second point. The copy buffer outlives the reset.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

void mnuEditCopy_Click(Editor& editor);
void mnuEditMove_Click(Editor& editor);

// Pasting is a click on the canvas while a copy is under way; the menu entry has nothing to paste.
void mnuEditPaste_Click(Editor& editor);

// The click of the FROM point: a copy takes the selected items as they are now.
void takeCopyStart(Editor& editor);
// The click of the TO point: moves and resets, or pastes once more.
void takeCopyEnd(Editor& editor);

// Adds the buffer's items to the drawing, off by the way from FROM to TO; one undo step. If they do
// not all fit, none is added and the failure is reported.
void PasteBuffer(Editor& editor);

// Moves the selected items by the way from FROM to TO and ends their selection; one undo step.
void MoveSelection(Editor& editor);

}  // namespace ladrix
