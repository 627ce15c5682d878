// The colour of new items, which also goes to what is selected, as one undo step.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Fills the colour panel: the six told colours first, then rows of tints and shades.
void LoadMyColors(Editor& editor);

void cmdColors_Click(Editor& editor);  // opens the panel

// A cell of the panel, or the present colour. It becomes the colour of new items and, where a
// change of it is pending, the selection colour. With a selection it is given to the selected
// devices, and to the selected labels while new ones take it, and the editor is reset.
void lblColor_Click(Editor& editor, std::size_t index);
void picSelectedColor_Click(Editor& editor);

// The next colour chosen becomes the selection colour too; opens the panel. A reset gives it up.
void mnuOptChangeSelectionColor_Click(Editor& editor);

}  // namespace ladrix
