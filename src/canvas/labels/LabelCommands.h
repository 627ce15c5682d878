// The commands on text: the menu of the selected labels and the options for new ones. What changes
// labels is one undo step.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Opens the one selected label in txtEdit with its text marked; it follows each key, Enter ends the
// edit and its selection. With none or several selected nothing happens.
void mnuEditTextCaption_Click(Editor& editor);

// Ask for a press on the canvas, by whose point the selected labels are then aligned.
void mnuEditTextAlignLeft_Click(Editor& editor);
void mnuEditTextAlignRight_Click(Editor& editor);
void mnuEditTextAlignTop_Click(Editor& editor);

// The press has come, at this point of the page, inches.
void alignSelectedLabels(Editor& editor, Single x, Single y);

// Every label and the default font take 7 points.
void mnuOptionSmallerFont_Click(Editor& editor);

void mnuOptAutoIncrement_Click(Editor& editor);
void mnuOptionAddSpace_Click(Editor& editor);
void mnuOptionLabelColor_Click(Editor& editor);

}  // namespace ladrix
