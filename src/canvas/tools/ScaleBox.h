// The scale of new symbols.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Fills the list with the locale's decimal mark and chooses 1.00.
void FillScaleList(Editor& editor);

// The entry or the typed text becomes the scale of new symbols; a text that is no number above 0 is
// replaced by the present scale.
void cmbScale_Click(Editor& editor);
void cmdScaleOK_Click(Editor& editor);

}  // namespace ladrix
