// The current library and what is done to it. The routines up to SaveUserSymbol throw a Failure;
// the commands below them catch it at their one error path and report it once.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "canvas/state/Editor.h"
#include "usersymbols/SymbolFiles.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

// --- Reading and writing the current library

// Makes the list in this folder the current library, by name; nothing is read yet.
void selectLibrary(UserSymbols& symbols, Editor& editor, const std::string& folder,
                   std::string_view libraryFile);
LibraryPlace currentLibrary(const UserSymbols& symbols);

// Finishes what a kill has interrupted in the library's folder; what cannot be finished is noted.
void finishLibraryWrites(const UserSymbols& symbols, Files& files, const LibraryPlace& library);

// Finds the libraries of the data folder (the editor's BasePath), brings back or rebuilds a list
// that is missing, and fills LibraryList.
void ListUserLibraries(UserSymbols& symbols, Editor& editor);

// The first start: takes over the list of the program's folder. Without one nothing happens.
void UpdateOldUserSymbols(UserSymbols& symbols, Editor& editor);

// The current list into LibraryLines. Without its file or folder: LibraryMissing, no lines.
void ReadLibraryStructure(UserSymbols& symbols, Editor& editor);

// What is noted while one library is loaded: the first lines go to NoteRepair as they are, of the
// others their number. The first script that is too large is reported.
class LoadNotes {
  public:
    LoadNotes(const UserSymbols& symbols, const Platform& platform, std::string library);
    void add(std::string_view line);
    void report(const Failure& failure);
    void finish() const;  // once, at the end

  private:
    const UserSymbols& symbols_;
    const Platform& platform_;
    std::string library_;
    std::size_t lines_ = 0;
    bool reported_ = false;
};

// One symbol of a symbol folder, the index of which is at hand. A damaged picture is replaced by a
// blank one, a symbol that cannot be read is nullopt: with a note for both.
struct LoadedSymbol {
    std::string script;
    std::shared_ptr<const Picture> picture, cyanPicture;
};
std::optional<LoadedSymbol> loadSymbol(const Platform& platform, const std::string& symbolFolder,
                                       const FolderIndex& index, const std::string& name,
                                       LoadNotes& notes);

// Pictures and scripts of the listed symbols; those with a file missing or damaged are skipped,
// with a note. Those beyond the largest count stay in the list and are not loaded. Hides the user
// buttons and renews the window's title.
void LoadUserSymbols(UserSymbols& symbols, Editor& editor);

// UserSymbolName into the list and its safety copy. With no symbol left it leaves both alone.
void WriteLibraryStructure(UserSymbols& symbols, Editor& editor);

// What every change ends with: the list is written, read, loaded and laid out.
void RunLibraryChain(UserSymbols& symbols, Editor& editor);
// The same without writing: what follows when another library has become the current one. One that
// is new in the data folder is in LibraryList then.
void ReloadLibrary(UserSymbols& symbols, Editor& editor);

// The compiled symbol under this name, which has been checked: three files, the list, "Symbol
// Saved", the export file, then the library anew. Takes the place of a symbol of that name, which
// is kept among the removed ones.
void SaveUserSymbol(UserSymbols& symbols, Editor& editor, const std::string& name);

// True if the name can be a file's; else tells why under "Illegal Filename".
bool acceptedAsFileName(const Platform& platform, std::string_view name);

// True if a symbol in this folder may have the name, beside those that are there; else tells why
// not under "Name Rejected". Throws a Failure.
bool mayBeNamed(const Editor& editor, const std::string& symbolFolder, std::string_view name);

// False if a library of this name, or half of one, is there; tells which.
bool nameIsFree(const Editor& editor, const LibraryPlace& library);
// Asks for a name and makes an empty library of it in the data folder. nullopt if the user gives up
// or the name cannot be had, which is told. Throws a Failure.
std::optional<LibraryPlace> makeLibraryByName(Editor& editor);

// --- Commands

void OpenUserLibrary(UserSymbols& symbols, Editor& editor, const std::string& folder,
                     std::string_view libraryFile);
void MergeUserLibrary(UserSymbols& symbols, Editor& editor, const std::string& folder,
                      std::string_view libraryFile);
void NewUserLibrary(UserSymbols& symbols, Editor& editor);
// 1 the next, -1 the one before, round in a circle.
void StepUserLibrary(UserSymbols& symbols, Editor& editor, int step);

// Of the button in ContextButton; nothing happens if that is no user button.
void DeleteUserSymbol(UserSymbols& symbols, Editor& editor);
void RenameUserSymbol(UserSymbols& symbols, Editor& editor);
enum class Transfer { Move, Copy };
void TransferUserSymbol(UserSymbols& symbols, Editor& editor, Transfer kind,
                        const std::string& folder, std::string_view libraryFile);

}  // namespace ladrix
