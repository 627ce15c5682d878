// What is kept of symbols and libraries that were removed, so that a mistake can be taken back. It
// lies under the user's base folder, a folder for each removal:
//
//   Backups/Removed Symbols/2026-11-23 09-41-07/                symbols of a library
//   Backups/Removed Symbols/2026-11-23 09-41-07 Pumps Symbols/  a library
//
// In it stand the symbols' files under their own names and, written last, the list of the library
// that they came from, which names what was removed. A folder without such a list is not one of
// ours and is left alone, as is any file that no symbol owns. The date and time are local; a second
// removal of the same second has " (2)" behind them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "usersymbols/SymbolFiles.h"

namespace ladrix {

constexpr std::size_t RemovalsKept = 200;  // the newest

// The folder of all removals; ends in the separator. It need not exist.
std::string removalsFolder(const Files& files, const std::string& basePath);

// Copies what these symbols of the library have of their files, before they are removed or
// replaced; symbols without any are passed over. Throws a Failure and then leaves nothing: the
// symbols must then stay as they are.
void keepSymbols(Files& files, const std::string& removals, const LibraryPlace& library,
                 const std::vector<std::string>& names);

// Takes a library away, its folder as a whole into `removals`. Where that cannot be, because the
// folder is only a link or stands on another disk, its symbols' files are copied there; a link is
// then unlinked and what it leads to stays, and of a folder only files that a symbol owns are
// removed. A folder that holds another one is refused. Throws a Failure: the library is then listed
// as before, unless the text tells what has stayed.
void removeLibrary(Files& files, const std::string& removals, const LibraryPlace& library);

// What can be brought back: a symbol with its three files, or a library as a whole.
struct RemovedItem {
    std::string Folder;   // of the removal, ends in the separator
    std::string Name;     // the symbol's, or the library's
    std::string Library;  // that it came from; its list stands in Folder under this name
    std::string When;     // "2026-11-23 09:41:07", local time
    bool IsLibrary = false;
    std::size_t SymbolCount = 1;  // of a library
};

// The newest first, a library before its symbols. Nothing where the folder is missing; a removal
// that cannot be read is left out.
std::vector<RemovedItem> removedItems(Files& files, const std::string& removals);

// Puts a removed library back under a name that is free. Throws a Failure; what is there then is a
// library at the next start.
void restoreLibrary(Files& files, const RemovedItem& item, const LibraryPlace& library);

}  // namespace ladrix
