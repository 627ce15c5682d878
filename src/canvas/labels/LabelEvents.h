// The labels on the canvas under the pointer: each is a control of its own that takes a press
// before the canvas does. X and Y are inches of the page.
//
// A press arms a drag. Without a movement the release is a click, which toggles the label; moved by
// more than a hand trembles it drags every selected label, the pressed one with them, and the
// release stores their places, ends their selection and is no click.
#pragma once

#include <optional>

#include "canvas/state/Editor.h"

namespace ladrix {

// A label without a text shows as a tick, on the screen only, so that it can be found and picked:
// from corner to corner of a square at its place with this side. Inches on the screen, whatever the
// zoom.
inline constexpr Single EmptyLabelTick = 0.25f;

// The label that takes a press at this point, the uppermost one. nullopt: none, or the press is the
// canvas's because a point is wanted from it (copy, alignment, zoom) or the circuit is simulated.
std::optional<Short> labelAt(const Editor& editor, Single x, Single y);

// Drops a tool in hand first. The right button selects the label and opens its menu; while a user
// symbol is being saved the press gives its insertion point.
void lbl_MouseDown(Editor& editor, Short index, Short button, Single x, Single y);

void lbl_MouseMove(Editor& editor, Short button, Single x, Single y);

// One undo step if labels were moved. True: the press was a click, and lbl_Click follows.
bool lbl_MouseUp(Editor& editor);

// Toggles the label.
void lbl_Click(Editor& editor, Short index);

// Selects the label and opens the menu of its text. Comes after the click of the first press.
void lbl_DblClick(Editor& editor, Short index);

}  // namespace ladrix
