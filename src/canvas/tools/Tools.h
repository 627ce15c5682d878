// The tool in hand: what a press on a palette button does, and the fly-out of orientations.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Chooses the tool of this button. Clears a selection and a pending zoom first. Cannot fail.
void cmdSym_Click(Editor& editor, Short index);

// The pointer is over button `index`; `dx` and `dy` are twips from the box of the button's corner.
// Opens the fly-out beside a button that has orientations.
void cmdSym_MouseMove(Editor& editor, Short index, Single dx, Single dy);

// Takes this orientation for the button beside which the fly-out stands, and the button as the
// tool.
void cmdMoreSym_Click(Editor& editor, Short orientation);

// Presses the last tool again; it survives a reset.
void mnuEditRepeat_Click(Editor& editor);

// The tool that was pressed last may have another button by now, or none: then there is nothing to
// repeat. Called when the buttons have changed.
void findRepeatTool(Editor& editor);

// Puts the tool's device, place, colour and figures in the dispatcher's block, with the canvas as
// its surface.
void fillToolBlock(Editor& editor, Single x, Single y, Long color);

// ToolName from the pressed button, with "US " in front for a user symbol; "" without a tool.
void refreshToolName(Editor& editor);

}  // namespace ladrix
