// The palette at the side of the main window: 1000 button places, 0 to 91 for the open library, the
// rest for user symbols. The view makes each image from the symbol itself.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

constexpr Short ButtonPlaces = 1000;

// Makes all places, empty and hidden.
void LoadDeviceButtons(Editor& editor);

void HideDeviceButtons(Editor& editor);

// The built-in buttons of the library; every orientation goes back to 0. The tool in hand is reset.
void LoadLibraryButtons(Editor& editor, Library library);

void mnuLibElectrical_Click(Editor& editor);
void mnuLibIEC_Click(Editor& editor);
void mnuLibElectronic_Click(Editor& editor);
void mnuLibHyd_Click(Editor& editor);

// A button's image, drawn on a picture of 1 by 1 units: the symbol in black, scaled evenly and
// centred to fill the picture. Draws nothing for a text that has no symbol.
void drawButtonImage(Surface& picture, std::string_view tag, Short orientation);

}  // namespace ladrix
