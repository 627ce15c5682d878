#include "usersymbols/SymbolSearch.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "canvas/tools/PaletteButtons.h"
#include "canvas/tools/Tools.h"
#include "platform/Encoding.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/UserButtonOrder.h"

namespace ladrix {

namespace {

struct BuiltInPalette {
    Library library;
    std::string_view name;  // as in the menu
    void (*open)(Editor& editor);
};

constexpr std::array<BuiltInPalette, 4> Palettes = {{
    {Library::NEMA, "NEMA Electrical", mnuLibElectrical_Click},
    {Library::IEC, "IEC", mnuLibIEC_Click},
    {Library::Electronic, "Electronic", mnuLibElectronic_Click},
    {Library::FluidPower, "Hydraulic/Pneumatic", mnuLibHyd_Click},
}};

const BuiltInPalette& paletteOf(Library library) {
    return *std::find_if(Palettes.begin(), Palettes.end(),
                         [&](const BuiltInPalette& known) { return known.library == library; });
}

SearchEntry entryOf(std::string name, std::string_view where) {
    SearchEntry entry;
    entry.Folded = lowerCase(name + " " + std::string(where));
    entry.Name = std::move(name);
    entry.Where = where;
    return entry;
}

void gatherPalette(SymbolSearch& search, const BuiltInPalette& from, const Editor& editor,
                   std::unordered_set<std::string_view>& seen) {
    for (const PaletteEntry& button : palette(from.library)) {
        if (button.tallOnly && editor.TallScreen != 1) continue;
        if (!seen.insert(button.text).second) continue;
        SearchEntry entry = entryOf(std::string(button.text), from.name);
        entry.Palette = from.library;
        search.Entries.push_back(std::move(entry));
    }
}

void gatherBuiltIn(SymbolSearch& search, const Editor& editor) {
    std::unordered_set<std::string_view> seen;
    gatherPalette(search, paletteOf(editor.OpenLibrary), editor, seen);
    for (const BuiltInPalette& each : Palettes)
        gatherPalette(search, each, editor, seen);
}

void addUserSymbol(SymbolSearch& search, const LibraryPlace& library, const std::string& name) {
    SearchEntry entry = entryOf(name, library.Name);
    entry.LibraryFolder = library.Folder;
    entry.LibraryFile = library.file();
    search.Entries.push_back(std::move(entry));
}

bool isCurrent(const UserSymbols& symbols, std::string_view folder, std::string_view file) {
    return folder == symbols.LibraryFolder && equalIgnoringCase(file, symbols.LibraryFile);
}

void gatherLibrary(SymbolSearch& search, Files& files, const LibraryPlace& library) {
    const FolderIndex index(files, library.symbolFolder(files));
    for (const std::string& name : readList(files, library))
        if (index.hasAll(name)) addUserSymbol(search, library, name);
}

// A library that cannot be read hides no other.
void gatherUsers(SymbolSearch& search, const UserSymbols& symbols, Editor& editor) {
    for (const std::string& name : symbols.UserSymbolName)
        if (!name.empty()) addUserSymbol(search, currentLibrary(symbols), name);
    for (const std::string& file : symbols.LibraryList) {
        if (isCurrent(symbols, editor.BasePath, file)) continue;
        try {
            gatherLibrary(search, *editor.platform.files, libraryPlace(editor.BasePath, file));
        } catch (const Failure& failure) {
            if (symbols.NoteRepair) symbols.NoteRepair(file + ": not searched. " + failure.text);
        }
    }
}

std::vector<std::string> wordsOf(std::string_view text) {
    std::vector<std::string> words;
    const std::string folded = lowerCase(text);
    for (std::size_t at = 0; at < folded.size();) {
        const std::size_t start = folded.find_first_not_of(' ', at);
        if (start == std::string::npos) break;
        at = std::min(folded.find(' ', start), folded.size());
        words.push_back(folded.substr(start, at - start));
    }
    return words;
}

bool beginsAWord(std::string_view text, std::string_view word) {
    const auto isLetter = [](char c) { return c != ' ' && c != '-' && c != '/' && c != '('; };
    for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1))
        if (at == 0 || !isLetter(text[at - 1])) return true;
    return false;
}

constexpr int Ranks = 3;

// 0 to 2, the best first; -1: a word does not occur.
int rankOf(const SearchEntry& entry, const std::vector<std::string>& words) {
    int rank = 1;
    for (const std::string& word : words) {
        if (entry.Folded.find(word) == std::string::npos) return -1;
        if (rank == 1 && !beginsAWord(entry.Folded, word)) rank = 2;
    }
    const bool leads = !words.empty() && entry.Folded.starts_with(words.front());
    return rank == 1 && leads ? 0 : rank;
}

bool pressInOpenPalette(const SearchEntry& entry, Editor& editor) {
    for (Short i = 0; i <= BuiltInButtonCount; ++i) {
        const PaletteButton& button = editor.form.cmdSym[static_cast<std::size_t>(i)];
        if (!button.Visible || button.Tag != entry.Name) continue;
        cmdSym_Click(editor, i);
        return true;
    }
    return false;
}

void pressBuiltIn(const SearchEntry& entry, Editor& editor) {
    if (pressInOpenPalette(entry, editor)) return;
    paletteOf(entry.Palette).open(editor);
    pressInOpenPalette(entry, editor);
}

void pressUsers(const SearchEntry& entry, UserSymbols& symbols, Editor& editor) {
    if (!isCurrent(symbols, entry.LibraryFolder, entry.LibraryFile))
        OpenUserLibrary(symbols, editor, entry.LibraryFolder, entry.LibraryFile);
    const auto& names = symbols.UserSymbolName;
    const auto found = std::find(names.begin(), names.end(), entry.Name);
    const auto button = static_cast<Short>(symbols.FirstUserButton + (found - names.begin()));
    const bool here = isCurrent(symbols, entry.LibraryFolder, entry.LibraryFile);
    if (here && found != names.end() && symbolOfButton(symbols, button) >= 0)
        return cmdSym_Click(editor, button);
    editor.platform.tell(entry.Name + " is no longer in " + entry.Where + ".");
}

}  // namespace

void mnuLibFind_Click(SymbolSearch& search, const UserSymbols& symbols, Editor& editor) {
    if (editor.Arranging) return editor.platform.tell(OrderMessage);
    gatherSymbols(search, symbols, editor);
    txtFind_Change(search, search.txtFind.Text);
    ++search.txtFind.SelectAllRequests;
    search.Visible = true;
    editor.platform.dialogs->open(Form::frmFind);
}

void gatherSymbols(SymbolSearch& search, const UserSymbols& symbols, Editor& editor) {
    search.Entries.clear();
    gatherBuiltIn(search, editor);
    gatherUsers(search, symbols, editor);
}

void txtFind_Change(SymbolSearch& search, std::string_view text) {
    search.txtFind.Text = text;
    const std::vector<std::string> words = wordsOf(text);
    std::array<std::vector<std::size_t>, Ranks> ranked;
    for (std::size_t i = 0; i < search.Entries.size(); ++i) {
        const int rank = rankOf(search.Entries[i], words);
        if (rank >= 0) ranked[static_cast<std::size_t>(rank)].push_back(i);
    }
    search.Found.clear();
    for (const auto& rows : ranked)
        search.Found.insert(search.Found.end(), rows.begin(), rows.end());
    search.ListIndex = search.Found.empty() ? -1 : 0;
}

void moveFindMark(SymbolSearch& search, int rows) {
    const int last = static_cast<int>(search.Found.size()) - 1;
    if (last >= 0) search.ListIndex = std::clamp(search.ListIndex + rows, 0, last);
}

void pressFound(const SearchEntry& entry, UserSymbols& symbols, Editor& editor) {
    if (entry.isUsers())
        pressUsers(entry, symbols, editor);
    else
        pressBuiltIn(entry, editor);
}

void frmFind_Close(SymbolSearch& search) {
    search.Visible = false;
    search.Entries.clear();
    search.Found.clear();
    search.ListIndex = -1;
}

std::shared_ptr<const Picture> pictureOfEntry(const SearchEntry& entry, const Platform& platform) {
    const LibraryPlace library = libraryPlace(entry.LibraryFolder, entry.LibraryFile);
    Files& files = *platform.files;
    try {
        return platform.images->fromBitmap(
            readIcon(files, library.symbolFolder(files), entry.Name));
    } catch (const Failure&) {
        return nullptr;  // the row stands without a picture
    }
}

}  // namespace ladrix
