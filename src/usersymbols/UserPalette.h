// The user's columns of the palette: the buttons of cmdSym behind the built-in ones.
#pragma once

#include "canvas/Editor.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

// Gives each symbol of the current library its button: picture, tag, tip and place, in columns of
// PaletteRows filled from the top. Runs after each change of the library.
void LayOutUserButtons(UserSymbols& symbols, Editor& editor);

}  // namespace ladrix
