#include <unordered_set>
#include <utility>

#include "platform/Encoding.h"
#include "platform/Numbers.h"
#include "usersymbols/Compiler.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/RemovedSymbols.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

constexpr std::string_view IllegalName =
    "Action Cancelled. File and Folder Names cannot include\r\n"
    "any of the following characters: / \\ : * ? < > | ";

// Runs a command's steps on its single error path. A failure that repeats brings up no second
// report: the foot tells it each time.
template <class Steps>
void guarded(Editor& editor, std::string_view description, const Steps& steps) {
    editor.platform.attempt(description, [&] {
        try {
            steps();
        } catch (const Failure& failure) {
            editor.form.lblMessage.Caption = std::string(description) + " failed. " + failure.text;
            throw;
        }
    });
}

void tellDone(Editor& editor, const std::string& symbol, const std::string& what) {
    editor.form.lblMessage.Caption = symbol + " has been " + what + ".";
}

bool libraryFolderExists(Editor& editor, const LibraryPlace& library) {
    if (FolderExists(*editor.platform.files, library.Folder, library.Name)) return true;
    editor.platform.tell("Library folder does not exist.");
    return false;
}

std::string countText(std::size_t count) {
    return longText(static_cast<Long>(count));
}

bool mergeFits(UserSymbols& symbols, Editor& editor, const LibraryPlace& source) {
    Files& files = *editor.platform.files;
    const std::size_t current =
        CountLibraryLines(files, symbols.LibraryFolder, symbols.LibraryFile);
    const std::size_t added = CountLibraryLines(files, source.Folder, source.file());
    const auto limit = static_cast<std::size_t>(symbols.MaxSymbolsPerLibrary);
    if (current + added <= limit) return true;
    editor.platform.tell("Current library count of " + countText(current) + " symbols \r\n" +
                         "plus the merge count of " + countText(added) + " exceeds \r\n" +
                         "the maximum allowed which is " + countText(limit) + ".\r\n" +
                         "Please open another library and try again later.");
    return false;
}

// What of a library could not be merged because of its names.
struct LeftOut {
    std::size_t count = 0;
    std::string firstReason;
};

// The files first; what is copied is listed even if a later one fails.
LeftOut copyMissingSymbols(UserSymbols& symbols, Files& files, const LibraryPlace& source) {
    const std::string from = source.symbolFolder(files);
    const FolderIndex there(files, from), here(files, symbols.SymbolFolder);
    std::vector<std::string> copied;
    std::unordered_set<std::string> seen;
    LeftOut leftOut;
    const auto list = [&] {
        if (!copied.empty()) appendToList(files, currentLibrary(symbols), copied);
    };
    try {
        for (const std::string& name : readList(files, source)) {
            if (!there.hasAll(name) || here.has(name + ".uds")) continue;
            if (!seen.insert(lowerCase(name)).second) continue;
            if (const std::string reason = nameRefusal(here, name); !reason.empty()) {
                if (leftOut.count++ == 0) leftOut.firstReason = reason;
                continue;
            }
            if (here.hasAny(name)) continue;
            writeNewSymbol(files, symbols.SymbolFolder, name, readSymbol(files, from, there, name));
            copied.push_back(name);
        }
    } catch (const Failure&) {
        list();
        throw;
    }
    list();
    return leftOut;
}

void tellLeftOut(Editor& editor, const LeftOut& leftOut) {
    if (leftOut.count == 0) return;
    editor.form.lblMessage.Caption =
        countText(leftOut.count) +
        (leftOut.count == 1 ? " symbol was left out. " : " symbols were left out. ") +
        leftOut.firstReason;
}

Short contextSymbol(const UserSymbols& symbols) {
    return symbolOfButton(symbols, symbols.ContextButton);
}

std::string& nameAt(UserSymbols& symbols, Short row) {
    return symbols.UserSymbolName[static_cast<std::size_t>(row)];
}

// Before files are written that the list is to name.
void requireReadableList(const UserSymbols& symbols, const Editor& editor) {
    readList(*editor.platform.files, currentLibrary(symbols));
}

// Before a symbol of the current library is removed or replaced. Throws a Failure.
void keepRemoved(const UserSymbols& symbols, const Editor& editor, const std::string& name) {
    Files& files = *editor.platform.files;
    keepSymbols(files, removalsFolder(files, editor.BasePath), currentLibrary(symbols), {name});
}

// The list without the symbol is written before its files go.
void removeFromLibrary(UserSymbols& symbols, Editor& editor, Short row) {
    const std::string name = std::exchange(nameAt(symbols, row), {});
    WriteLibraryStructure(symbols, editor);
    removeSymbols(*editor.platform.files, symbols.SymbolFolder, {name});
    resetTool(editor);
    ReloadLibrary(symbols, editor);
}

bool nameIsTaken(const UserSymbols& symbols, Editor& editor, Short row, std::string_view name) {
    for (Short i = 0; i < symbols.UserSymbolCount; ++i) {
        const std::string& other = symbols.UserSymbolName[static_cast<std::size_t>(i)];
        if (i == row || other != name) continue;
        editor.platform.tell(
            "Name not allowed. Another button with the same name already exists in this library.",
            "Name Rejected");
        return true;
    }
    return false;
}

void renameFiles(UserSymbols& symbols, Editor& editor, Short row, const std::string& name) {
    Files& files = *editor.platform.files;
    const std::string former = nameAt(symbols, row);
    if (equalIgnoringCase(former, name)) {
        nameAt(symbols, row) = name;
        WriteLibraryStructure(symbols, editor);
        return changeSymbolCase(files, symbols.SymbolFolder, name);
    }
    const FolderIndex index(files, symbols.SymbolFolder);
    if (index.hasAny(name))
        throw Failure{failure::PathFileAccess,
                      symbols.SymbolFolder + name + ": there are files of this name already."};
    requireReadableList(symbols, editor);
    writeNewSymbol(files, symbols.SymbolFolder, name,
                   readSymbol(files, symbols.SymbolFolder, index, former));
    nameAt(symbols, row) = name;
    WriteLibraryStructure(symbols, editor);
    removeSymbols(files, symbols.SymbolFolder, {former});
}

bool transferFits(UserSymbols& symbols, Editor& editor, const LibraryPlace& target,
                  std::string_view name) {
    Files& files = *editor.platform.files;
    if (CountLibraryLines(files, target.Folder, target.file()) >=
        static_cast<std::size_t>(symbols.MaxSymbolsPerLibrary)) {
        editor.platform.tell("Symbol library is full. Please select another library.");
        return false;
    }
    if (!mayBeNamed(editor, target.symbolFolder(files), name)) return false;
    if (FolderIndex(files, target.symbolFolder(files)).hasAny(name)) {
        editor.platform.tell("Symbol transfer failed. Symbol already exists in selected library.");
        return false;
    }
    return true;
}

SymbolFiles compiledSymbol(const UserSymbols& symbols, Images& images) {
    return {symbols.compiler.SymbolScriptText, images.bitmapText(*symbols.frmUS.picIcon->Image()),
            images.bitmapText(*symbols.frmUS.picCyanIcon->Image())};
}

// A symbol of this name, in whatever case, is blanked: the new one stands at the end.
void listNewSymbol(UserSymbols& symbols, Editor& editor, const std::string& name) {
    for (std::string& other : symbols.UserSymbolName)
        if (equalIgnoringCase(other, name)) other.clear();
    symbols.UserSymbolName.push_back(name);
    WriteLibraryStructure(symbols, editor);
}

}  // namespace

bool acceptedAsFileName(const Platform& platform, std::string_view name) {
    if (isLegalFileName(name)) return true;
    platform.tell(IllegalName, "Illegal Filename");
    return false;
}

bool mayBeNamed(const Editor& editor, const std::string& symbolFolder, std::string_view name) {
    const Platform& platform = editor.platform;
    const std::string refusal = nameRefusal(FolderIndex(*platform.files, symbolFolder), name);
    if (!refusal.empty()) platform.tell(refusal, "Name Rejected");
    return refusal.empty();
}

void SaveUserSymbol(UserSymbols& symbols, Editor& editor, const std::string& name) {
    const Platform& platform = editor.platform;
    if (symbols.frmUS.picIcon == nullptr || symbols.frmUS.picCyanIcon == nullptr) return;
    requireReadableList(symbols, editor);
    keepRemoved(symbols, editor, name);
    writeSymbol(*platform.files, symbols.SymbolFolder, name,
                compiledSymbol(symbols, *platform.images));
    listNewSymbol(symbols, editor, name);
    if (!symbols.compiler.SymbolScriptText.empty()) platform.tell("Symbol Saved");
    symbols.compiler.SymbolScriptText.clear();
    appendToExportFile(symbols.compiler, *platform.files, name);
    ReloadLibrary(symbols, editor);
}

void OpenUserLibrary(UserSymbols& symbols, Editor& editor, const std::string& folder,
                     std::string_view libraryFile) {
    guarded(editor, "Open User Library", [&] {
        if (!libraryFolderExists(editor, libraryPlace(folder, libraryFile))) return;
        resetTool(editor);
        selectLibrary(symbols, editor, folder, libraryFile);
        ReloadLibrary(symbols, editor);
    });
}

void MergeUserLibrary(UserSymbols& symbols, Editor& editor, const std::string& folder,
                      std::string_view libraryFile) {
    guarded(editor, "Merge User Library", [&] {
        const LibraryPlace source = libraryPlace(folder, libraryFile);
        if (!libraryFolderExists(editor, source) || !mergeFits(symbols, editor, source)) return;
        Files& files = *editor.platform.files;
        if (!FolderExists(files, symbols.LibraryFolder, symbols.LibraryName))
            files.makeFolder(symbols.LibraryFolder + symbols.LibraryName);
        resetTool(editor);
        LeftOut leftOut;
        try {
            leftOut = copyMissingSymbols(symbols, files, source);
        } catch (const Failure&) {
            ReloadLibrary(symbols, editor);
            throw;
        }
        ReloadLibrary(symbols, editor);
        tellLeftOut(editor, leftOut);
    });
}

bool nameIsFree(const Editor& editor, const LibraryPlace& library) {
    Files& files = *editor.platform.files;
    if (FolderExists(files, library.Folder, library.Name)) {
        editor.platform.tell("Symbol Folder Already Exists - Cannot Overwrite");
        return false;
    }
    if (FileExists(files, library.Folder, library.file())) {
        editor.platform.tell("Symbol File Already Exists - Cannot Overwrite");
        return false;
    }
    return true;
}

std::optional<LibraryPlace> makeLibraryByName(Editor& editor) {
    const Platform& platform = editor.platform;
    const auto answer =
        platform.dialogs->input("Please enter a name for the User Library in the box provided.",
                                "Adding New User Library", "");
    if (!answer || answer->empty() || !acceptedAsFileName(platform, *answer)) return std::nullopt;
    LibraryPlace library{editor.BasePath, *answer + std::string(LibrarySuffix)};
    if (!nameIsFree(editor, library)) return std::nullopt;
    createLibrary(*platform.files, library);
    return library;
}

void NewUserLibrary(UserSymbols& symbols, Editor& editor) {
    guarded(editor, "New User Library", [&] {
        const auto library = makeLibraryByName(editor);
        if (!library) return;
        resetTool(editor);
        selectLibrary(symbols, editor, library->Folder, library->file());
        symbols.UserSymbolCount = 0;
        ReloadLibrary(symbols, editor);
        ListUserLibraries(symbols, editor);
        editor.platform.tell(library->Name + " has been successfully created.");
    });
}

void StepUserLibrary(UserSymbols& symbols, Editor& editor, int step) {
    const auto count = static_cast<int>(symbols.LibraryList.size());
    if (count == 0)
        return editor.platform.tell("User library does not exist in " + editor.BasePath);
    guarded(editor, "Index User Library", [&] {
        const int next = ((symbols.LibraryIndex + step) % count + count) % count;
        symbols.LibraryIndex = static_cast<Short>(next);
        resetTool(editor);
        selectLibrary(symbols, editor, editor.BasePath,
                      symbols.LibraryList[static_cast<std::size_t>(next)]);
        ReloadLibrary(symbols, editor);
    });
}

void DeleteUserSymbol(UserSymbols& symbols, Editor& editor) {
    const Short row = contextSymbol(symbols);
    if (row < 0) return;
    if (editor.platform.dialogs->message("Are you sure you want to delete this button?",
                                         "Preparing to Delete User Button",
                                         Buttons::YesNo) != Answer::Yes)
        return;
    guarded(editor, "Delete User Button", [&] {
        const std::string name = nameAt(symbols, row);
        keepRemoved(symbols, editor, name);
        removeFromLibrary(symbols, editor, row);
        tellDone(editor, name, "deleted");
    });
}

void RenameUserSymbol(UserSymbols& symbols, Editor& editor) {
    const Short row = contextSymbol(symbols);
    if (row < 0) return;
    const Platform& platform = editor.platform;
    const std::string former = nameAt(symbols, row);
    const auto name = platform.dialogs->input("Insert New Name", "Renaming User Button", former);
    if (!name || name->empty() || *name == former) return;
    if (nameIsTaken(symbols, editor, row, *name) || !acceptedAsFileName(platform, *name)) return;
    guarded(editor, "Rename User Button", [&] {
        if (!mayBeNamed(editor, symbols.SymbolFolder, *name)) return;
        renameFiles(symbols, editor, row, *name);
        resetTool(editor);
        ReloadLibrary(symbols, editor);
        tellDone(editor, former, "renamed to " + *name);
    });
}

void TransferUserSymbol(UserSymbols& symbols, Editor& editor, Transfer kind,
                        const std::string& folder, std::string_view libraryFile) {
    const Short row = contextSymbol(symbols);
    if (row < 0) return;
    guarded(editor, "Transfer User Button", [&] {
        Files& files = *editor.platform.files;
        const LibraryPlace target = libraryPlace(folder, libraryFile);
        const std::string name = nameAt(symbols, row);
        if (!libraryFolderExists(editor, target) || !transferFits(symbols, editor, target, name))
            return;
        const FolderIndex index(files, symbols.SymbolFolder);
        writeNewSymbol(files, target.symbolFolder(files), name,
                       readSymbol(files, symbols.SymbolFolder, index, name));
        appendToList(files, target, {name});
        if (kind == Transfer::Move) removeFromLibrary(symbols, editor, row);
        tellDone(editor, name, (kind == Transfer::Move ? "moved to " : "copied to ") + target.Name);
    });
}

}  // namespace ladrix
