#include "usersymbols/LibManagerFiles.h"

#include <algorithm>
#include <set>

#include "platform/Encoding.h"
#include "platform/Numbers.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/RemovedSymbols.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

LibraryPlace sourceOf(const LibManager& manager) {
    return {manager.ManagerParentFolder, manager.ManagerSourceName};
}

LibraryPlace destinationOf(const LibManager& manager, const Editor& editor) {
    return {editor.BasePath, manager.ManagerDestName};
}

bool isDefault(std::string_view file) {
    return equalIgnoringCase(file, DefaultLibraryFile);
}

bool isSource(const LibManager& manager, const UserSymbols& symbols) {
    return symbols.LibraryFolder == manager.ManagerParentFolder &&
           equalIgnoringCase(symbols.LibraryFile, manager.ManagerSourceFile);
}

// After a step that may have failed half way the form shows what is on disk.
template <class Steps>
void changeSource(LibManager& manager, const UserSymbols& symbols, Editor& editor,
                  std::string_view description, const Steps& steps) {
    editor.platform.attempt(description, [&] {
        try {
            steps();
        } catch (const Failure&) {
            loadManagerSource(manager, symbols, editor);
            throw;
        }
    });
}

std::vector<std::string> selectedNames(const LibManager& manager) {
    return manager.lstSelected.List;
}

// The list when the blanked symbols are gone.
void writeSource(const LibManager& manager, Files& files) {
    const ListChange change{manager.ManagerSymbolName, manager.ManagerSourceLines,
                            manager.ManagerUnread};
    writeList(files, sourceOf(manager), changedList(files, sourceOf(manager), change));
}

void keepRemoved(const Editor& editor, const LibraryPlace& library,
                 const std::vector<std::string>& names) {
    Files& files = *editor.platform.files;
    keepSymbols(files, removalsFolder(files, editor.BasePath), library, names);
}

// The list first, then the files; before both, a copy of those that stand nowhere else.
void removeSelected(LibManager& manager, const UserSymbols& symbols, Editor& editor,
                    const std::vector<std::string>& toKeep) {
    Files& files = *editor.platform.files;
    const std::vector<std::string> names = selectedNames(manager);
    keepRemoved(editor, sourceOf(manager), toKeep);
    for (std::size_t i = 0; i < manager.ManagerSymbolState.size(); ++i)
        if (manager.ManagerSymbolState[i].Selected) manager.ManagerSymbolName[i].clear();
    writeSource(manager, files);
    removeSymbols(files, manager.ManagerSourceFolder, names);
    loadManagerSource(manager, symbols, editor);
}

Answer mayReplace(const Editor& editor, const std::string& name) {
    return editor.platform.dialogs->message(
        "A symbol with this name already exists. Replace it with this one, " + name + "?",
        "Preparing to Overwrite Symbol", Buttons::YesNoCancel);
}

void listOnce(std::vector<std::string>& lines, const std::string& name) {
    std::erase_if(lines, [&](const std::string& line) { return equalIgnoringCase(line, name); });
    lines.push_back(name);
}

// Symbols that may not have their names there are told and no longer selected, so that a Move
// leaves them where they are. False if none is left.
bool leaveOutRefused(LibManager& manager, Editor& editor) {
    constexpr std::size_t MostTold = 5;
    const FolderIndex there(*editor.platform.files, manager.ManagerDestFolder);
    std::size_t refused = 0;
    std::string told;
    for (ManagerSymbol& state : manager.ManagerSymbolState) {
        if (!state.Selected) continue;
        const std::string reason = nameRefusal(there, state.Name);
        if (reason.empty()) continue;
        state.Selected = false;
        if (refused++ < MostTold) told += (told.empty() ? "" : "\r\n") + reason;
    }
    if (refused > MostTold)
        told += "\r\n" + longText(static_cast<Long>(refused - MostTold)) + " more are left out.";
    if (refused > 0) {
        rebuildSelection(manager);
        editor.platform.tell(told, "Name Rejected");
    }
    return manager.ManagerSelectedCount > 0;
}

// The names that are to be transferred, by what the user answers; Cancel ends them.
struct TransferChoice {
    std::vector<std::string> names, replaced;
};
TransferChoice chooseTransfers(const LibManager& manager, const Editor& editor) {
    const FolderIndex there(*editor.platform.files, manager.ManagerDestFolder);
    TransferChoice choice;
    for (const std::string& name : selectedNames(manager)) {
        if (there.has(name + ".uds")) {
            const Answer answer = mayReplace(editor, name);
            if (answer == Answer::Cancel) break;
            if (answer == Answer::No) continue;
        }
        choice.names.push_back(name);
        if (there.hasAny(name)) choice.replaced.push_back(name);
    }
    return choice;
}

// Every symbol whose files are there is in `lines`, even when a later one fails.
void copySymbols(const LibManager& manager, Editor& editor, const std::vector<std::string>& names,
                 std::vector<std::string>& lines) {
    Files& files = *editor.platform.files;
    const FolderIndex here(files, manager.ManagerSourceFolder);
    for (const std::string& name : names) {
        writeSymbol(files, manager.ManagerDestFolder, name,
                    readSymbol(files, manager.ManagerSourceFolder, here, name));
        listOnce(lines, name);
    }
}

// False if there is nothing to transfer, or nowhere to.
bool mayTransfer(const LibManager& manager, const Editor& editor) {
    if (manager.ManagerDestFile.empty()) {
        editor.platform.tell("No destination library was selected.");
        return false;
    }
    if (manager.ManagerSelectedCount == 0) return false;
    if (!equalIgnoringCase(manager.ManagerDestFolder, manager.ManagerSourceFolder)) return true;
    editor.platform.tell("The destination is the source library. Please select another one.");
    return false;
}

// The names of those that were transferred. Throws a Failure; what has been copied until then is
// listed.
std::vector<std::string> transferSelectedSymbols(LibManager& manager, Editor& editor) {
    Files& files = *editor.platform.files;
    const LibraryPlace destination = destinationOf(manager, editor);
    manager.ManagerDestLines = readList(files, destination);
    TransferChoice choice = chooseTransfers(manager, editor);
    keepRemoved(editor, destination, choice.replaced);
    try {
        copySymbols(manager, editor, choice.names, manager.ManagerDestLines);
    } catch (const Failure&) {
        writeList(files, destination, manager.ManagerDestLines);
        throw;
    }
    writeList(files, destination, manager.ManagerDestLines);
    if (std::exchange(manager.ManagerCopying, false)) editor.platform.tell("Action Complete.");
    return std::move(choice.names);
}

// The selected symbols that a Move removes although they were not transferred.
std::vector<std::string> dropped(const LibManager& manager,
                                 const std::vector<std::string>& transferred) {
    const std::set<std::string_view> there(transferred.begin(), transferred.end());
    std::vector<std::string> names = selectedNames(manager);
    std::erase_if(names, [&](const std::string& name) { return there.contains(name); });
    return names;
}

void relist(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    ListUserLibraries(symbols, editor);
    listManagerLibraries(manager, symbols);
}

// Source, destination and the main window's library follow the new name.
void followName(LibManager& manager, UserSymbols& symbols, Editor& editor,
                const LibraryPlace& renamed) {
    const bool wasDestination = manager.ManagerDestFile == manager.ManagerSourceFile;
    if (isSource(manager, symbols)) selectLibrary(symbols, editor, renamed.Folder, renamed.file());
    selectManagerSource(manager, editor, renamed.Folder, renamed.file());
    if (!wasDestination) return;
    manager.ManagerDestFile = renamed.file();
    manager.ManagerDestName = renamed.Name;
    manager.ManagerDestFolder = renamed.symbolFolder(*editor.platform.files);
}

}  // namespace

void cmdDelete_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    if (manager.ManagerSelectedCount == 0) return;
    const Answer answer = editor.platform.dialogs->message(
        longText(manager.ManagerSelectedCount) +
            " symbols have been selected for deletion. Are you sure you want to delete all "
            "selected symbols?",
        "Preparing to Delete Symbols", Buttons::YesNo);
    if (answer != Answer::Yes) return;
    changeSource(manager, symbols, editor, "Delete User Symbols", [&] {
        removeSelected(manager, symbols, editor, selectedNames(manager));
        editor.platform.tell("Items deleted.");
    });
}

void mnuFileSaveOrder_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    changeSource(manager, symbols, editor, "Save User Symbol Order", [&] {
        if (symbols.UserSymbolCount >= 1) writeSource(manager, *editor.platform.files);
        loadManagerSource(manager, symbols, editor);
    });
}

void lstDestinationLibrary_Click(LibManager& manager, Editor& editor, int row) {
    const auto& list = manager.lstDestinationLibrary.List;
    if (row < 0 || row >= static_cast<int>(list.size())) return;
    manager.lstDestinationLibrary.ListIndex = row;
    const LibraryPlace library = libraryPlace(editor.BasePath, list[static_cast<std::size_t>(row)]);
    Files& files = *editor.platform.files;
    manager.ManagerDestFile = library.file();
    manager.ManagerDestName = library.Name;
    manager.ManagerDestFolder = library.symbolFolder(files);
    manager.ManagerDestLines.clear();
    manager.cmdCopy.Enabled = manager.cmdMove.Enabled = true;
    editor.platform.attempt("Destination Library",
                            [&] { manager.ManagerDestLines = readList(files, library); });
}

void cmdCopy_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    if (!mayTransfer(manager, editor)) return;
    manager.ManagerCopying = true;
    changeSource(manager, symbols, editor, "Copy User Symbols", [&] {
        if (leaveOutRefused(manager, editor)) transferSelectedSymbols(manager, editor);
    });
    manager.ManagerCopying = false;
}

void cmdMove_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    if (!mayTransfer(manager, editor)) return;
    changeSource(manager, symbols, editor, "Move User Symbols", [&] {
        if (!leaveOutRefused(manager, editor)) return;
        const std::vector<std::string> transferred = transferSelectedSymbols(manager, editor);
        removeSelected(manager, symbols, editor, dropped(manager, transferred));
        editor.platform.tell("Action Completed.");
    });
}

void mnuFileNew_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    editor.platform.attempt("New User Library", [&] {
        const auto library = makeLibraryByName(editor);
        if (!library) return;
        relist(manager, symbols, editor);
        editor.platform.tell(library->Name + " has been successfully created.");
    });
}

void mnuFileName_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    const Platform& platform = editor.platform;
    if (isDefault(manager.ManagerSourceFile)) return platform.tell("Cannot rename Default Library");
    const std::string& former = manager.ManagerSourceName;
    const auto answer = platform.dialogs->input(
        "Please enter a new name for the User Library in the box provided.",
        "Changing User Library Name",
        former.substr(0, former.size() - std::min(former.size(), LibrarySuffix.size())));
    if (!answer || answer->empty() || !acceptedAsFileName(platform, *answer)) return;
    editor.platform.attempt("Rename User Library", [&] {
        const LibraryPlace library{manager.ManagerParentFolder,
                                   *answer + std::string(LibrarySuffix)};
        if (!nameIsFree(editor, library)) return;
        renameLibrary(*platform.files, library.Folder, former, library.Name);
        followName(manager, symbols, editor, library);
        relist(manager, symbols, editor);
    });
}

void mnuFileDelete_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    const Platform& platform = editor.platform;
    if (isDefault(manager.ManagerSourceFile))
        return platform.tell("Deleting default library is not permitted.");
    const Answer answer =
        platform.dialogs->message("Are you sure you want to delete this library?",
                                  "Preparing to Delete Current Library", Buttons::YesNo);
    if (answer != Answer::Yes) return;
    changeSource(manager, symbols, editor, "Delete User Library", [&] {
        removeLibrary(*platform.files, removalsFolder(*platform.files, editor.BasePath),
                      sourceOf(manager));
        resetTool(editor);
        selectLibrary(symbols, editor, editor.BasePath, DefaultLibraryFile);
        selectManagerSource(manager, editor, editor.BasePath, DefaultLibraryFile);
        relist(manager, symbols, editor);
        loadManagerSource(manager, symbols, editor);
    });
}

}  // namespace ladrix
