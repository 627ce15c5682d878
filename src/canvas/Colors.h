// Colour, line width, symbol scale, and the radius and angle fields.
#pragma once

#include "canvas/Editor.h"

namespace ladrix {

// Fills the colour panel: the six told colours first, then rows of tints and shades.
void LoadMyColors(Editor& editor);

void cmdColors_Click(Editor& editor);
void lblColor_Click(Editor& editor, std::size_t index);
void picSelectedColor_Click(Editor& editor);

void cmdDrawWidth_Click(Editor& editor, Short index);  // 0 thick, 1 thin

// Fills the list with the locale's decimal mark and chooses 1.00.
void FillScaleList(Editor& editor);
// The entry or the typed text becomes the scale of new symbols; a text that is no number above 0 is
// replaced by the present scale.
void cmbScale_Click(Editor& editor);
void cmdScaleOK_Click(Editor& editor);

void txtRadius_Change(Editor& editor);
void txtCircleStart_Change(Editor& editor);
void txtCircleEnd_Change(Editor& editor);
// Digits, both decimal marks and Backspace; any other key is dropped.
bool numberKeyAllowed(Short keyAscii);

void mnuOptionThickDevices_Click(Editor& editor);
void mnuOptBlackBackground_Click(Editor& editor);

}  // namespace ladrix
