#include "usersymbols/SymbolFiles.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "platform/Encoding.h"
#include "usersymbols/Script.h"

namespace ladrix {

namespace {

constexpr std::string_view EndOfLine = "\r\n";
constexpr std::array<std::string_view, 3> Endings = {".uds", ".bmp", "_Cyan.bmp"};
constexpr std::string_view CyanMark = "_Cyan";
// A file on its way to take the place of the one without this ending.
constexpr std::string_view Staged = ".new";
constexpr std::uintmax_t LargestIcon = 4 * 1024 * 1024;  // bytes

std::string withEnding(std::string_view name, std::string_view ending) {
    return std::string(name).append(ending);
}

void replaceList(Files& files, const LibraryPlace& library, std::string_view text) {
    const std::string folder = library.symbolFolder(files);
    makeMissingFolder(files, folder);
    files.replace(listPath(files, library), text);
    files.replace(folder + library.file(), text);
}

void removeIfThere(Files& files, const std::string& path) {
    if (files.isLink(path) || files.status(path)) files.remove(path);
}

const std::string& contentOf(const SymbolFiles& content, std::string_view ending) {
    if (ending == Endings[0]) return content.script;
    return ending == Endings[1] ? content.picture : content.cyanPicture;
}

// From the complete set of staged files to the symbol's own; the script, whose staged file is the
// mark of completeness, comes last. May be done again after a kill.
void installStaged(Files& files, const std::string& folder, std::string_view name) {
    for (const std::string_view ending : {Endings[2], Endings[1], Endings[0]}) {
        const std::string target = folder + withEnding(name, ending);
        const std::string staged = target + std::string(Staged);
        if (!files.status(staged)) continue;
        files.copy(staged, target);
        files.remove(staged);
    }
}

// The script last: it makes the set complete.
void writeFiles(Files& files, const std::string& path, const SymbolFiles& content,
                std::string_view behind) {
    for (const std::string_view ending : {Endings[2], Endings[1], Endings[0]})
        files.replace(withEnding(withEnding(path, ending), behind), contentOf(content, ending));
}

// Only a script that was refused is asked for its size.
std::string readScript(Files& files, const std::string& path) {
    try {
        return files.read(path, LargestScript);
    } catch (const Failure&) {
        const auto status = files.status(path);
        if (!status || status->size <= LargestScript) throw;
        throw Failure{failure::Overflow, "The script of the symbol is larger than 1 MiB."};
    }
}

bool endsWithIgnoringCase(std::string_view text, std::string_view ending) {
    return text.size() > ending.size() &&
           equalIgnoringCase(text.substr(text.size() - ending.size()), ending);
}

// Steps of which a failing one keeps none of the others.
class EachStep {
  public:
    template <class Step>
    void run(const Step& step) {
        try {
            step();
        } catch (const Failure& failure) {
            if (!first_) first_ = failure;
        }
    }
    // Throws the first failure.
    void finish() const {
        if (first_) throw Failure{*first_};
    }

  private:
    std::optional<Failure> first_;
};

// "A" of "A_Cyan".
std::optional<std::string> symbolBeforeCyan(std::string_view name) {
    if (!endsWithIgnoringCase(name, CyanMark)) return std::nullopt;
    return std::string(name.substr(0, name.size() - CyanMark.size()));
}

// An image of a set that never became complete; `name` is that of the file without its endings. It
// is ours only beside the script of the symbol that it was to replace.
bool isLeftOver(const FolderIndex& index, std::string_view name) {
    const auto awaitsNothing = [&](std::string_view symbol) {
        const std::string script = withEnding(symbol, Endings[0]);
        return index.has(script) && !index.has(stagedName(script));
    };
    const auto before = symbolBeforeCyan(name);
    return awaitsNothing(name) || (before && awaitsNothing(*before));
}

// Of "A" and "A_Cyan", which may stand in one folder from before the second name was refused.
bool isOthersToo(Files& files, const std::string& symbolFolder, const FolderIndex& index,
                 std::string_view name, std::string_view ending) {
    std::optional<std::string> other;
    if (ending == Endings[2]) other = withEnding(name, CyanMark);
    if (ending == Endings[1]) other = symbolBeforeCyan(name);
    const auto script = other ? index.find(withEnding(*other, Endings[0])) : std::nullopt;
    return script && files.status(symbolFolder + *script);
}

}  // namespace

LibraryPlace libraryPlace(std::string folder, std::string_view libraryFile) {
    return {std::move(folder), std::string(nameWithoutExtension(libraryFile))};
}

FolderIndex::FolderIndex(Files& files, const std::string& folder) {
    try {
        names_ = files.fileNames(folder);
    } catch (const Failure& failure) {
        if (failure.number != failure::PathNotFound) throw;
    }
}

const std::unordered_map<std::string, std::string>& FolderIndex::byLowerCase() const {
    if (byLowerCase_.empty())
        for (const std::string& name : names_)
            byLowerCase_.emplace(lowerCase(name), name);
    return byLowerCase_;
}

std::optional<std::string> FolderIndex::find(std::string_view name) const {
    const auto found = byLowerCase().find(lowerCase(name));
    if (found == byLowerCase().end()) return std::nullopt;
    return found->second;
}

bool FolderIndex::has(std::string_view name) const {
    return byLowerCase().contains(lowerCase(name));
}

bool FolderIndex::hasAll(std::string_view symbol) const {
    return std::all_of(Endings.begin(), Endings.end(),
                       [&](std::string_view ending) { return has(withEnding(symbol, ending)); });
}

bool FolderIndex::hasAny(std::string_view symbol) const {
    return std::any_of(Endings.begin(), Endings.end(),
                       [&](std::string_view ending) { return has(withEnding(symbol, ending)); });
}

bool FolderIndex::hasStaged() const {
    return std::any_of(names_.begin(), names_.end(),
                       [](const auto& name) { return endsWithIgnoringCase(name, Staged); });
}

std::vector<std::string> FolderIndex::scripts() const {
    std::vector<std::string> symbols;
    for (const std::string& name : names_)
        if (endsWithIgnoringCase(name, Endings[0]))
            symbols.push_back(name.substr(0, name.size() - Endings[0].size()));
    return symbols;
}

std::array<std::string, 3> filesOfSymbol(std::string_view name) {
    return {withEnding(name, Endings[0]), withEnding(name, Endings[1]),
            withEnding(name, Endings[2])};
}

std::string stagedName(std::string_view file) {
    return withEnding(file, Staged);
}

std::string nameRefusal(const FolderIndex& index, std::string_view name) {
    const std::string symbol(name);
    if (const auto other = symbolBeforeCyan(name))
        return "A symbol cannot be named \"" + symbol +
               "\": its picture would be the second one of a symbol \"" + *other + "\".";
    const std::string other = withEnding(name, CyanMark);
    if (!index.has(withEnding(other, Endings[0]))) return {};
    return "A symbol cannot be named \"" + symbol +
           "\" here: its second picture would be that of the symbol \"" + other + "\".";
}

std::string listPath(Files& files, const LibraryPlace& library) {
    const auto name = FolderIndex(files, library.Folder).find(library.file());
    return name ? library.Folder + *name : library.path();
}

std::string listText(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        if (!name.empty()) text.append(name).append(EndOfLine);
    return text;
}

std::vector<std::string> listLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

void makeMissingFolder(Files& files, const std::string& folder) {
    const std::string path = folder.substr(0, folder.size() - 1);
    if (!files.status(path)) files.makeFolder(path);
}

std::vector<std::string> readList(Files& files, const LibraryPlace& library) {
    const auto name = FolderIndex(files, library.Folder).find(library.file());
    if (!name) return {};
    return listLines(files.read(library.Folder + *name));
}

void writeList(Files& files, const LibraryPlace& library, const std::vector<std::string>& names) {
    replaceList(files, library, listText(names));
}

std::vector<std::string> changedList(Files& files, const LibraryPlace& library,
                                     const ListChange& change) {
    std::vector<std::string> names;
    std::unordered_set<std::string> known;
    const auto add = [&](const std::string& name, bool evenIfKnown) {
        if (name.empty() || (!known.insert(lowerCase(name)).second && !evenIfKnown)) return;
        names.push_back(name);
    };
    for (const std::string& name : change.names)
        add(name, true);
    const std::unordered_set<std::string_view> read(change.read.begin(), change.read.end());
    for (const std::string& line : readList(files, library))
        if (!read.contains(line)) add(line, false);
    for (const std::string& name : change.unread)
        add(name, false);
    return names;
}

void appendToList(Files& files, const LibraryPlace& library,
                  const std::vector<std::string>& names) {
    std::string text;
    if (const auto file = FolderIndex(files, library.Folder).find(library.file()))
        text = files.read(library.Folder + *file);
    if (!text.empty() && !text.ends_with('\n')) text += EndOfLine;
    replaceList(files, library, text + listText(names));
}

std::size_t CountLibraryLines(Files& files, const std::string& folder, std::string_view file) {
    const auto name = FolderIndex(files, folder).find(file);
    if (!name) return 0;
    const std::string text = files.read(folder + *name);
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find(EndOfLine, at)) != std::string::npos; at += 2)
        ++count;
    return count;
}

SymbolFiles readSymbol(Files& files, const std::string& symbolFolder, const FolderIndex& index,
                       std::string_view name) {
    // A list may hold anything; no line of it leads out of the folder.
    if (name.find(files.separator()) != std::string_view::npos)
        throw Failure{failure::FileNotFound, "No name of a symbol."};
    const auto content = [&](std::string_view ending, const auto& read) {
        const std::string file = withEnding(name, ending);
        try {
            return read(symbolFolder + file);
        } catch (const Failure& failure) {
            const auto written = index.find(file);
            if (failure.number != failure::FileNotFound || !written || *written == file) throw;
            return read(symbolFolder + *written);
        }
    };
    const auto script = [&](const std::string& path) { return readScript(files, path); };
    const auto icon = [&](const std::string& path) { return files.read(path, LargestIcon); };
    return {content(Endings[0], script), content(Endings[1], icon), content(Endings[2], icon)};
}

std::string readIcon(Files& files, const std::string& symbolFolder, std::string_view name) {
    return files.read(symbolFolder + withEnding(name, Endings[1]), LargestIcon);
}

void writeNewSymbol(Files& files, const std::string& symbolFolder, std::string_view name,
                    const SymbolFiles& content) {
    writeFiles(files, symbolFolder + std::string(name), content, {});
}

void writeSymbol(Files& files, const std::string& symbolFolder, std::string_view name,
                 const SymbolFiles& content) {
    makeMissingFolder(files, symbolFolder);
    if (!FolderIndex(files, symbolFolder).hasAny(name))
        return writeNewSymbol(files, symbolFolder, name, content);
    changeSymbolCase(files, symbolFolder, name);
    writeFiles(files, symbolFolder + std::string(name), content, Staged);
    installStaged(files, symbolFolder, name);
}

void removeSymbols(Files& files, const std::string& symbolFolder,
                   const std::vector<std::string>& names) {
    const FolderIndex index(files, symbolFolder);
    EachStep steps;
    for (const std::string& name : names)
        for (const std::string_view ending : Endings) {
            const auto file = index.find(withEnding(name, ending));
            if (!file || isOthersToo(files, symbolFolder, index, name, ending)) continue;
            steps.run([&] { removeIfThere(files, symbolFolder + *file); });
        }
    steps.finish();
}

void copySymbol(Files& files, const std::string& symbolFolder, const FolderIndex& index,
                std::string_view name, const std::string& toFolder) {
    for (const std::string& file : filesOfSymbol(name))
        if (const auto found = index.find(file)) files.copy(symbolFolder + *found, toFolder + file);
}

void changeSymbolCase(Files& files, const std::string& symbolFolder, std::string_view name) {
    const FolderIndex index(files, symbolFolder);
    for (const std::string_view ending : Endings) {
        const std::string wanted = withEnding(name, ending);
        const auto file = index.find(wanted);
        if (file && *file != wanted) files.rename(symbolFolder + *file, symbolFolder + wanted);
    }
}

void finishWrites(Files& files, const std::string& symbolFolder) {
    const FolderIndex index(files, symbolFolder);
    if (!index.hasStaged()) return;
    const std::vector<std::string> names = files.fileNames(symbolFolder);
    const std::string script = stagedName(std::string(Endings[0]));
    const std::string image = stagedName(std::string(Endings[1]));
    EachStep steps;
    for (const std::string& name : names) {
        if (!endsWithIgnoringCase(name, script)) continue;
        const std::string symbol = name.substr(0, name.size() - script.size());
        if (index.hasAny(symbol)) steps.run([&] { installStaged(files, symbolFolder, symbol); });
    }
    for (const std::string& name : names) {
        if (!endsWithIgnoringCase(name, image)) continue;
        if (isLeftOver(index, name.substr(0, name.size() - image.size())))
            steps.run([&] { removeIfThere(files, symbolFolder + name); });
    }
    steps.finish();
}

// The safety copy under the new name comes first: a list that is missing is brought back from it.
void renameLibrary(Files& files, const std::string& folder, std::string_view oldName,
                   std::string_view newName) {
    const LibraryPlace before{folder, std::string(oldName)}, after{folder, std::string(newName)};
    const std::string bridge = before.symbolFolder(files) + after.file();
    const bool listed = files.status(before.path()).has_value();
    if (listed) files.copy(before.path(), bridge);
    files.rename(folder + before.Name, folder + after.Name);
    if (!listed) return;
    files.rename(before.path(), after.path());
    files.remove(after.symbolFolder(files) + after.file());
}

void createLibrary(Files& files, const LibraryPlace& library) {
    makeMissingFolder(files, library.symbolFolder(files));
    files.replace(library.path(), "");
}

}  // namespace ladrix
