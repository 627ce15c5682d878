// Libraries on disk. A library is a list "X Symbols.lib", one name a line, and beside it the folder
// "X Symbols" with three files for each symbol and a safety copy of the list.
//
// Every change keeps this order, so that a kill at any moment leaves each symbol as it was before
// or as it is after: files before the list when adding, the list before the files when removing,
// and an overwritten symbol by way of a complete set of new files beside it. All functions throw a
// Failure and leave what was done so far. Folders end in the separator.
#pragma once

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
    bool hasStaged() const;  // a write was interrupted

  private:
    const std::unordered_map<std::string, std::string>& byLowerCase() const;

    std::vector<std::string> names_;
    mutable std::unordered_map<std::string, std::string> byLowerCase_;  // to the name on disk
};

// The list: its lines, "" for a missing file. Writing replaces the list, then its safety copy,
// making the folder if it is missing; empty names are left out.
std::vector<std::string> readList(Files& files, const LibraryPlace& library);
void writeList(Files& files, const LibraryPlace& library, const std::vector<std::string>& names);
// Adds names at the end of the list as it stands.
void appendToList(Files& files, const LibraryPlace& library, const std::vector<std::string>& names);
// The number of line ends in the list; 0 if it is missing.
std::size_t CountLibraryLines(Files& files, const std::string& folder, std::string_view file);

// A symbol's files in a symbol folder, the index of which is at hand; it is asked only where the
// case of a name differs. A script beyond 1 MiB is refused.
SymbolFiles readSymbol(Files& files, const std::string& symbolFolder, const FolderIndex& index,
                       std::string_view name);
// Makes the folder if it is missing. Writing over a symbol replaces the three files together.
void writeSymbol(Files& files, const std::string& symbolFolder, std::string_view name,
                 const SymbolFiles& content);
// Removes those of the three that are there; call it when the list no longer names the symbol.
void removeSymbol(Files& files, const std::string& symbolFolder, std::string_view name);
// A symbol that has none of its files there yet.
void writeNewSymbol(Files& files, const std::string& symbolFolder, std::string_view name,
                    const SymbolFiles& content);
// The same symbol under a name that differs in the case of letters alone.
void changeSymbolCase(Files& files, const std::string& symbolFolder, std::string_view name);
// Finishes what a kill has interrupted in the folder. Called before a library is read.
void finishWrites(Files& files, const std::string& symbolFolder);

// A whole library under another name; the safety copy keeps its old one.
void renameLibrary(Files& files, const std::string& folder, std::string_view oldName,
                   std::string_view newName);
// The list, every file in the folder, and the folder: out of sight in one step, then file by file.
// Refused if the folder holds another one.
void removeLibrary(Files& files, const LibraryPlace& library);
// What a kill has left of removed libraries in their parent folder.
void finishRemovals(Files& files, const std::string& folder);
// An empty library: the folder, then the list.
void createLibrary(Files& files, const LibraryPlace& library);

}  // namespace ladrix
