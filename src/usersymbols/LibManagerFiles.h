// What the two halves of the library manager share: its source as it is read from disk.
#pragma once

#include <string>
#include <string_view>

#include "usersymbols/LibManager.h"

namespace ladrix {

// By name; nothing is read yet.
void selectManagerSource(LibManager& manager, Editor& editor, const std::string& folder,
                         std::string_view file);
// The lists of libraries anew. A destination that is no longer there is given up.
void listManagerLibraries(LibManager& manager, const UserSymbols& symbols);
// lstSelected and the count from the symbols' marks.
void rebuildSelection(LibManager& manager);
// The list, pictures and scripts, as the main window loads its own; nothing is selected then.
// Throws a Failure.
void loadManagerSource(LibManager& manager, const UserSymbols& symbols, Editor& editor);

}  // namespace ladrix
