// The user's columns of the palette: the buttons of cmdSym behind the built-in ones.
#pragma once

#include "canvas/state/Editor.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

// Gives each symbol of the current library its button: picture, tag, tip and place, in columns of
// PaletteRows filled from the top. Runs after each change of the library. While a circuit is
// simulated the buttons stay hidden; they are shown when that ends.
void LayOutUserButtons(UserSymbols& symbols, Editor& editor);

// The columns go one step to the left or to the right; nothing happens without user symbols.
void cmdNext_Click(UserSymbols& symbols, Editor& editor);
void cmdPrev_Click(UserSymbols& symbols, Editor& editor);
// Every button to its place in UserButtonPlace.
void RestoreUserButtonPlaces(UserSymbols& symbols, Editor& editor);

// A place in steps of the columns and rows. Column 0 is the first that can be seen, those scrolled
// out at the left are negative.
struct ButtonCell {
    int column = 0, row = 0;

    friend bool operator==(const ButtonCell&, const ButtonCell&) = default;
};
ButtonCell cellOf(const UserSymbols& symbols, const ButtonPlace& place);
int userColumns(const UserSymbols& symbols);  // in all

// Scrolls until the button stands in one of the columns in view.
void showUserButton(UserSymbols& symbols, Editor& editor, Short button, int columnsInView);

// A right press on a button of cmdSym: the menu of a user button pops up and belongs to it. A
// built-in button has none.
void openUserButtonMenu(UserSymbols& symbols, Editor& editor, Short button);

// No tool is in hand any more. For what changes the buttons under the pointer.
void resetTool(Editor& editor);

}  // namespace ladrix
