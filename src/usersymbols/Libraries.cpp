#include "usersymbols/Libraries.h"

#include <algorithm>

#include "canvas/file/DrawingCommands.h"
#include "canvas/file/Title.h"
#include "platform/Encoding.h"
#include "platform/Numbers.h"
#include "usersymbols/Script.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

constexpr std::string_view OldListName = "User Symbol Structure.txt";
constexpr std::string_view ShippedListName = "Default User Symbols.lib";
constexpr std::size_t LinesNoted = 20;  // of one library
constexpr int IconSide = 25;            // pixels, of the picture that stands in for a damaged one

void note(const UserSymbols& symbols, std::string_view line) {
    if (symbols.NoteRepair) symbols.NoteRepair(line);
}

bool endsInSuffix(std::string_view name) {
    return name.size() >= LibrarySuffix.size() &&
           equalIgnoringCase(name.substr(name.size() - LibrarySuffix.size()), LibrarySuffix);
}

std::vector<std::string> libraryFolders(Files& files, const std::string& data) {
    std::vector<std::string> folders;
    for (const FileEntry& entry : files.list(data))
        if (entry.isFolder && !entry.isHidden && endsInSuffix(entry.name))
            folders.push_back(entry.name);
    return folders;
}

void sortAlphabetically(std::vector<std::string>& names) {
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string lowerA = lowerCase(a), lowerB = lowerCase(b);
        return lowerA != lowerB ? lowerA < lowerB : a < b;
    });
}

// A list that is missing comes back from its safety copy, else from the scripts of its folder.
void bringBackList(const UserSymbols& symbols, Files& files, const LibraryPlace& library) {
    const std::string folder = library.symbolFolder(files);
    if (const auto copy = FolderIndex(files, folder).find(library.file())) {
        files.copy(folder + *copy, library.path());
        return note(symbols, library.path() + ": missing, brought back from its safety copy.");
    }
    std::vector<std::string> names = FolderIndex(files, folder).scripts();
    sortAlphabetically(names);
    files.replace(library.path(), listText(names));
    note(symbols, library.path() + ": missing, made anew from the symbols in its folder.");
}

// What cannot be repaired of a library keeps nobody from the rest, nor from the others.
template <class Repair>
void attemptRepair(const UserSymbols& symbols, const LibraryPlace& library, const Repair& repair) {
    try {
        repair();
    } catch (const Failure& failure) {
        note(symbols, library.path() + ": not repaired. " + failure.text);
    }
}

void repairLibrary(const UserSymbols& symbols, Files& files, const LibraryPlace& library,
                   bool listed) {
    finishLibraryWrites(symbols, files, library);
    if (!listed) attemptRepair(symbols, library, [&] { bringBackList(symbols, files, library); });
}

void hideUserButtons(Editor& editor) {
    std::vector<PaletteButton>& buttons = editor.form.cmdSym;
    for (auto i = static_cast<std::size_t>(editor.LastBuiltInButton) + 1; i < buttons.size(); ++i)
        buttons[i].Visible = false;
    ++editor.form.PaletteVersion;
}

void emptyTables(UserSymbols& symbols) {
    symbols.UserSymbolCount = 0;
    symbols.UserSymbolName.clear();
    symbols.UserSymbolFile.clear();
    symbols.UserSymbolScript.clear();
    symbols.UserSymbolPicture.clear();
    symbols.UserSymbolCyanPicture.clear();
    symbols.UnreadSymbols.clear();
}

void appendSymbol(UserSymbols& symbols, const std::string& name, LoadedSymbol loaded) {
    symbols.UserSymbolName.push_back(name);
    symbols.UserSymbolFile.push_back(name + ".uds");
    symbols.UserSymbolScript.push_back(std::move(loaded.script));
    symbols.UserSymbolPicture.push_back(std::move(loaded.picture));
    symbols.UserSymbolCyanPicture.push_back(std::move(loaded.cyanPicture));
    ++symbols.UserSymbolCount;
}

// A damaged picture takes no symbol away: a blank one stands in.
std::shared_ptr<const Picture> pictureOf(Images& images, std::string_view bytes,
                                         std::string_view what, Long blank, LoadNotes& notes) {
    try {
        return images.fromBitmap(bytes);
    } catch (const Failure& failure) {
        notes.add(std::string(what) + ": damaged, shown blank. " + failure.text);
        const auto empty = images.makePicture(IconSide, IconSide);
        empty->BackColor = blank;
        empty->Cls();
        return empty->Image();
    }
}

void loadListed(UserSymbols& symbols, Editor& editor) {
    Files& files = *editor.platform.files;
    FolderIndex index(files, symbols.SymbolFolder);
    if (index.hasStaged()) {
        finishLibraryWrites(symbols, files, currentLibrary(symbols));
        index = FolderIndex(files, symbols.SymbolFolder);
    }
    LoadNotes notes(symbols, editor.platform, symbols.LibraryFile);
    for (const std::string& name : symbols.LibraryLines) {
        if (name.empty()) continue;
        std::optional<LoadedSymbol> loaded;
        if (symbols.UserSymbolCount < LargestCount)
            loaded = loadSymbol(editor.platform, symbols.SymbolFolder, index, name, notes);
        if (loaded)
            appendSymbol(symbols, name, std::move(*loaded));
        else if (index.hasAll(name))
            symbols.UnreadSymbols.push_back(name);
    }
    notes.finish();
}

void findLibraryIndex(UserSymbols& symbols) {
    const auto& list = symbols.LibraryList;
    const auto found = std::find_if(list.begin(), list.end(), [&](const std::string& file) {
        return equalIgnoringCase(file, symbols.LibraryFile);
    });
    if (found != list.end()) symbols.LibraryIndex = static_cast<Short>(found - list.begin());
}

// A library that has been made since the libraries were listed.
void listCurrentLibrary(UserSymbols& symbols, const Editor& editor) {
    auto& list = symbols.LibraryList;
    const bool listed = std::any_of(list.begin(), list.end(), [&](const std::string& file) {
        return equalIgnoringCase(file, symbols.LibraryFile);
    });
    if (listed || symbols.LibraryMissing || symbols.LibraryFolder != editor.BasePath ||
        !endsInSuffix(symbols.LibraryName))
        return;
    list.push_back(symbols.LibraryFile);
    sortAlphabetically(list);
    findLibraryIndex(symbols);
}

}  // namespace

void finishLibraryWrites(const UserSymbols& symbols, Files& files, const LibraryPlace& library) {
    attemptRepair(symbols, library, [&] { finishWrites(files, library.symbolFolder(files)); });
}

LibraryPlace currentLibrary(const UserSymbols& symbols) {
    return {symbols.LibraryFolder, symbols.LibraryName};
}

void selectLibrary(UserSymbols& symbols, Editor& editor, const std::string& folder,
                   std::string_view libraryFile) {
    const LibraryPlace library = libraryPlace(folder, libraryFile);
    symbols.LibraryFile = library.file();
    symbols.LibraryName = library.Name;
    symbols.LibraryFolder = folder;
    symbols.SymbolFolder = library.symbolFolder(*editor.platform.files);
    symbols.ContextButton = -1;
    editor.UserLibraryName = library.Name;
    if (folder == editor.BasePath) findLibraryIndex(symbols);
}

void ListUserLibraries(UserSymbols& symbols, Editor& editor) {
    Files& files = *editor.platform.files;
    symbols.LibraryList.clear();
    const std::vector<std::string> folders = libraryFolders(files, editor.BasePath);
    const FolderIndex lists(files, editor.BasePath);
    for (const std::string& folder : folders) {
        const LibraryPlace library{editor.BasePath, folder};
        repairLibrary(symbols, files, library, lists.has(library.file()));
        symbols.LibraryList.push_back(library.file());
    }
    sortAlphabetically(symbols.LibraryList);
    findLibraryIndex(symbols);
}

void UpdateOldUserSymbols(UserSymbols&, Editor& editor) {
    Files& files = *editor.platform.files;
    if (FileExists(files, editor.BasePath, DefaultLibraryFile)) return;
    const auto shipped = FolderIndex(files, editor.AppFilePath).find(ShippedListName);
    if (shipped)
        files.copy(editor.AppFilePath + *shipped,
                   editor.BasePath + std::string(DefaultLibraryFile));
}

void ReadLibraryStructure(UserSymbols& symbols, Editor& editor) {
    Files& files = *editor.platform.files;
    symbols.LibraryLines.clear();
    const auto old = FolderIndex(files, editor.BasePath).find(OldListName);
    if (old && !FileExists(files, editor.BasePath, DefaultLibraryFile))
        files.rename(editor.BasePath + *old, editor.BasePath + std::string(DefaultLibraryFile));
    symbols.LibraryMissing = !FileExists(files, symbols.LibraryFolder, symbols.LibraryFile) ||
                             !FolderExists(files, symbols.LibraryFolder, symbols.LibraryName);
    if (!symbols.LibraryMissing) symbols.LibraryLines = readList(files, currentLibrary(symbols));
}

LoadNotes::LoadNotes(const UserSymbols& symbols, const Platform& platform, std::string library)
    : symbols_(symbols), platform_(platform), library_(std::move(library)) {}

void LoadNotes::add(std::string_view line) {
    if (lines_++ < LinesNoted) note(symbols_, line);
}

void LoadNotes::report(const Failure& failure) {
    if (!std::exchange(reported_, true)) platform_.ReportError("Load User Symbols", failure);
}

void LoadNotes::finish() const {
    if (lines_ > LinesNoted)
        note(symbols_, library_ + ": " + longText(static_cast<Long>(lines_ - LinesNoted)) +
                           " more symbols like these.");
}

std::optional<LoadedSymbol> loadSymbol(const Platform& platform, const std::string& symbolFolder,
                                       const FolderIndex& index, const std::string& name,
                                       LoadNotes& notes) {
    const std::string path = symbolFolder + name;
    try {
        SymbolFiles content = readSymbol(*platform.files, symbolFolder, index, name);
        requireScriptWithinLimits(content.script);
        Images& images = *platform.images;
        auto picture = pictureOf(images, content.picture, path + ".bmp", White, notes);
        auto cyan = pictureOf(images, content.cyanPicture, path + "_Cyan.bmp", Cyan, notes);
        return LoadedSymbol{std::move(content.script), std::move(picture), std::move(cyan)};
    } catch (const Failure& failure) {
        const bool missing = !index.hasAll(name);
        notes.add(path + ": left out" + (missing ? ", a file is missing." : ". " + failure.text));
        if (!missing && failure.number == failure::Overflow)
            notes.report({failure.number, name + ": " + failure.text});
        return std::nullopt;
    }
}

void LoadUserSymbols(UserSymbols& symbols, Editor& editor) {
    emptyTables(symbols);
    hideUserButtons(editor);
    UpdateTitle(editor);
    try {
        loadListed(symbols, editor);
    } catch (const Failure&) {
        // What is not loaded has not been removed: its lines must not look as if they were known.
        emptyTables(symbols);
        symbols.LibraryLines.clear();
        throw;
    }
}

void WriteLibraryStructure(UserSymbols& symbols, Editor& editor) {
    Files& files = *editor.platform.files;
    const bool someLeft = std::any_of(symbols.UserSymbolName.begin(), symbols.UserSymbolName.end(),
                                      [](const std::string& name) { return !name.empty(); });
    if (!someLeft) return;
    const LibraryPlace library = currentLibrary(symbols);
    const ListChange change{symbols.UserSymbolName, symbols.LibraryLines, symbols.UnreadSymbols};
    writeList(files, library, changedList(files, library, change));
}

// What belonged to another library must not stay when this one cannot be read.
void ReloadLibrary(UserSymbols& symbols, Editor& editor) {
    emptyTables(symbols);
    ReadLibraryStructure(symbols, editor);
    LoadUserSymbols(symbols, editor);
    LayOutUserButtons(symbols, editor);
    listCurrentLibrary(symbols, editor);
}

void RunLibraryChain(UserSymbols& symbols, Editor& editor) {
    WriteLibraryStructure(symbols, editor);
    ReloadLibrary(symbols, editor);
}

}  // namespace ladrix
