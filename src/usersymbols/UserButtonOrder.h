// The order of the user buttons, changed by drag and drop. From the command on, buttons are dragged
// and place nothing (Editor::Arranging); the list on disk changes when the order is saved, and the
// mode lasts until then, or until a simulation starts.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "canvas/state/Editor.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

constexpr std::string_view OrderMessage =
    "Click and Drag the button to its new position. Click \"Save User Symbol Order\" when through.";
constexpr std::string_view SaveOrderCaption = "Save User Symbol Order";

// What stands between the two shifts by one towards `from`. Both must be in the table.
template <class Value>
void moveRow(std::vector<Value>& table, std::size_t from, std::size_t to) {
    const auto at = [&](std::size_t row) {
        return table.begin() + static_cast<std::ptrdiff_t>(row);
    };
    if (from < to)
        std::rotate(at(from), at(from + 1), at(to + 1));
    else
        std::rotate(at(to), at(from), at(from + 1));
}

void mnuLibManageOrder_Click(UserSymbols& symbols, Editor& editor);

// A user button is dragged by the pointer. False, and no drag begins, outside the mode and for
// other buttons.
bool beginButtonDrag(UserSymbols& symbols, Editor& editor, Short button);
// The pointer has let go over this button; -1: over none. The drag ends; only a drop on a user
// button changes the order.
void cmdSym_DragDrop(UserSymbols& symbols, Editor& editor, Short button);

// Leaves the mode without saving: the buttons stand as the list has them. Nothing happens outside
// the mode.
void leaveButtonOrder(UserSymbols& symbols, Editor& editor);

// Writes the order. A failure is reported and leaves the mode on, with the order as it was dragged.
void cmdSaveSymbolOrder_Click(UserSymbols& symbols, Editor& editor);

}  // namespace ladrix
