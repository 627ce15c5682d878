// Libraries on disk. A library is a list "X Symbols.lib", one name a line, and beside it the folder
// "X Symbols" with three files for each symbol and a safety copy of the list.
//
// Every change keeps this order, so that a kill at any moment leaves each symbol as it was before
// or as it is after: files before the list when adding, the list before the files when removing,
// and an overwritten symbol by way of a complete set of new files beside it. All functions throw a
// Failure and leave what was done so far. Folders end in the separator.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/Platform.h"

namespace ladrix {

// Where a library lies: its parent folder and its name without ".lib".
struct LibraryPlace {
    std::string Folder, Name;

    std::string file() const { return Name + ".lib"; }
    std::string path() const { return Folder + file(); }
    std::string symbolFolder(const Files& files) const { return Folder + Name + files.separator(); }
};
LibraryPlace libraryPlace(std::string folder, std::string_view libraryFile);

// The three files of a symbol, as bytes.
struct SymbolFiles {
    std::string script, picture, cyanPicture;  // .uds, .bmp, _Cyan.bmp
};

// The files of one folder by name, ignoring case; read once, and sorted when first asked for one.
class FolderIndex {
  public:
    FolderIndex() = default;
    // Empty if there is no such folder.
    FolderIndex(Files& files, const std::string& folder);

    // The name as it stands on disk; nullopt if there is no such file.
    std::optional<std::string> find(std::string_view name) const;
    bool has(std::string_view name) const;
    bool hasAll(std::string_view symbol) const;  // the symbol's three files
    bool hasAny(std::string_view symbol) const;
    bool hasStaged() const;                    // a write was interrupted
    std::vector<std::string> scripts() const;  // the symbols that have one, unsorted

  private:
    const std::unordered_map<std::string, std::string>& byLowerCase() const;

    std::vector<std::string> names_;
    mutable std::unordered_map<std::string, std::string> byLowerCase_;  // to the name on disk
};

// The names of a symbol's three files, and of one on its way to take the place of another.
std::array<std::string, 3> filesOfSymbol(std::string_view name);
std::string stagedName(std::string_view file);

// Why no symbol may have this name in a folder, as a sentence; "" if it may. The picture of a
// symbol "A_Cyan" would be the second one of a symbol "A".
std::string nameRefusal(const FolderIndex& index, std::string_view name);

// The list's path, as its name stands on disk if it is there. Its text, and back to its lines.
std::string listPath(Files& files, const LibraryPlace& library);
std::string listText(const std::vector<std::string>& names);
std::vector<std::string> listLines(std::string_view text);

// One level, if it is missing. `folder` ends in the separator.
void makeMissingFolder(Files& files, const std::string& folder);

// The list: its lines, "" for a missing file. Writing replaces the list, then its safety copy,
// making the folder if it is missing; empty names are left out.
std::vector<std::string> readList(Files& files, const LibraryPlace& library);
void writeList(Files& files, const LibraryPlace& library, const std::vector<std::string>& names);
// What the list is to say once these names have changed: they in their order, then what only the
// list on disk knows, and then `unread`. `read` are the lines that the names come from; where they
// could not be read there are none, and every line on disk stays. Throws a Failure if the list
// cannot be read now.
struct ListChange {
    const std::vector<std::string>&names, &read, &unread;
};
std::vector<std::string> changedList(Files& files, const LibraryPlace& library,
                                     const ListChange& change);
// Adds names at the end of the list as it stands.
void appendToList(Files& files, const LibraryPlace& library, const std::vector<std::string>& names);
// The number of line ends in the list; 0 if it is missing.
std::size_t CountLibraryLines(Files& files, const std::string& folder, std::string_view file);

// A symbol's files in a symbol folder, the index of which is at hand; it is asked only where the
// case of a name differs. A script beyond 1 MiB is refused.
SymbolFiles readSymbol(Files& files, const std::string& symbolFolder, const FolderIndex& index,
                       std::string_view name);
// The picture alone; its name must stand on disk as it is told.
std::string readIcon(Files& files, const std::string& symbolFolder, std::string_view name);
// Makes the folder if it is missing. Writing over a symbol replaces the three files together.
void writeSymbol(Files& files, const std::string& symbolFolder, std::string_view name,
                 const SymbolFiles& content);
// Removes those of the three that are there; call it when the list no longer names the symbols. A
// picture that is another symbol's too stays with that one. A file that cannot be removed keeps
// none of the others, and is told at the end.
void removeSymbols(Files& files, const std::string& symbolFolder,
                   const std::vector<std::string>& names);
// A symbol that has none of its files there yet.
void writeNewSymbol(Files& files, const std::string& symbolFolder, std::string_view name,
                    const SymbolFiles& content);
// The same symbol under a name that differs in the case of letters alone.
void changeSymbolCase(Files& files, const std::string& symbolFolder, std::string_view name);
// Copies those of the three that are there.
void copySymbol(Files& files, const std::string& symbolFolder, const FolderIndex& index,
                std::string_view name, const std::string& toFolder);
// Finishes what a kill has interrupted in the folder, as far as it can: one file that cannot be
// put in place does not keep the others, and is told at the end. What stands beside no symbol is
// left alone. Called before a library is read.
void finishWrites(Files& files, const std::string& symbolFolder);

// A whole library under another name; the safety copy keeps its old one.
void renameLibrary(Files& files, const std::string& folder, std::string_view oldName,
                   std::string_view newName);
// An empty library: the folder, then the list.
void createLibrary(Files& files, const LibraryPlace& library);

}  // namespace ladrix
