// Colour, line width and the scale of new symbols. Colour and width also go to what is selected, as
// one undo step.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Fills the colour panel: the six told colours first, then rows of tints and shades.
void LoadMyColors(Editor& editor);

void cmdColors_Click(Editor& editor);  // opens the panel

// A cell of the panel, or the present colour. It becomes the colour of new items and, where a
// change of it is pending, the selection colour. With a selection it is given to the selected
// devices, and to the selected labels while LabelColorOn, and the editor is reset.
void lblColor_Click(Editor& editor, std::size_t index);
void picSelectedColor_Click(Editor& editor);

// The next colour chosen becomes the selection colour too; opens the panel. A reset gives it up.
void mnuOptChangeSelectionColor_Click(Editor& editor);

// 0 thick, 1 thin; of new lines, and of what is selected. Devices other than lines are thick only
// while all symbols are.
void cmdDrawWidth_Click(Editor& editor, Short index);

// Fills the list with the locale's decimal mark and chooses 1.00.
void FillScaleList(Editor& editor);
// The entry or the typed text becomes the scale of new symbols; a text that is no number above 0 is
// replaced by the present scale.
void cmbScale_Click(Editor& editor);
void cmdScaleOK_Click(Editor& editor);

void mnuOptionThickDevices_Click(Editor& editor);
void mnuOptBlackBackground_Click(Editor& editor);

// The canvas takes the option as it stands. Neither paints.
void applyThickDevices(Editor& editor);
void applyBlackBackground(Editor& editor);

}  // namespace ladrix
