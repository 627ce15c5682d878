// The snap pitch and the grid. Any pitch above 0 is taken, however small or large.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Asks for the pitch. 0 gives the default; what is no number, or below 0, is refused and the pitch
// stays.
void cmdSnap_Click(Editor& editor);
void mnuOptionSnap_Click(Editor& editor);

// The right button gives the default.
void cmdSnap_MouseDown(Editor& editor, Short button);

// Twice the pitch and half of it.
void cmdSnapHigher_Click(Editor& editor);
void cmdSnapLower_Click(Editor& editor);

// The same by key, which leaves what is under way alone.
void snapHigherByKey(Editor& editor);
void snapLowerByKey(Editor& editor);

// The button tells the pitch.
void showSnapStep(Editor& editor);

void mnuOptionGrid_Click(Editor& editor);
void mnuOptMatchGridToSnap_Click(Editor& editor);

}  // namespace ladrix
