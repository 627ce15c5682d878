// frmFind, the search over every symbol there is: the four built-in palettes and the user's symbols
// in all libraries. What is typed narrows the list by its words, in any order; a choice presses the
// symbol's button, after its library has been opened where that is needed.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/state/Editor.h"
#include "symbols/Palettes.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

// A symbol that can be found.
struct SearchEntry {
    std::string Name;                        // as its button tells it
    std::string Where;                       // the library's name, as it is shown
    std::string Folded;                      // both in lower case, for the comparison
    Library Palette = Library::Common;       // of a built-in symbol
    std::string LibraryFolder, LibraryFile;  // of a user symbol; "" for a built-in one

    bool isUsers() const { return !LibraryFile.empty(); }
};

struct SymbolSearch {
    bool Visible = false;
    TextBox txtFind;
    std::vector<SearchEntry> Entries;
    std::vector<std::size_t> Found;  // rows of Entries, the best first
    int ListIndex = -1;              // in Found; -1 while it is empty
};

// The command: gathers what there is now and shows the form, with the text of the last search.
void mnuLibFind_Click(SymbolSearch& search, const UserSymbols& symbols, Editor& editor);
// Every symbol once: a built-in one that stands in several palettes is that of the open one.
void gatherSymbols(SymbolSearch& search, const UserSymbols& symbols, Editor& editor);

// The text has changed. Names that begin with it come first, then those with its words at the
// beginning of theirs.
void txtFind_Change(SymbolSearch& search, std::string_view text);
void moveFindMark(SymbolSearch& search, int rows);  // held to the list

// The choice: presses the symbol's button. Tells if the symbol is gone.
void pressFound(const SearchEntry& entry, UserSymbols& symbols, Editor& editor);
void frmFind_Close(SymbolSearch& search);

// The button's picture of a user symbol's entry; null if it cannot be read.
std::shared_ptr<const Picture> pictureOfEntry(const SearchEntry& entry, const Platform& platform);

}  // namespace ladrix
