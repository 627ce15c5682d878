// The two small forms of saving a user symbol: the colour of its button, and its name.
#pragma once

#include "canvas/state/Editor.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

// --- frmButtonColor. The view loads it before it shows it.
void frmButtonColor_Load(UserSymbols& symbols);
void cmdColor_Click(UserSymbols& symbols, std::size_t index);
void frmButtonColor_cmdOK_Click(UserSymbols& symbols, Editor& editor);
// Closed without a choice: the colour stays, and the insertion point is waited for all the same.
void frmButtonColor_QueryUnload(UserSymbols& symbols, Editor& editor);

// --- frmUS
void frmUS_Load(UserSymbols& symbols);
// Saves under the name typed and closes. Stays open if the name is empty or refused, a symbol of
// that name is to be kept, or the files cannot be written, which is reported.
void frmUS_cmdSave_Click(UserSymbols& symbols, Editor& editor);
void frmUS_cmdExit_Click(UserSymbols& symbols, Editor& editor);

}  // namespace ladrix
