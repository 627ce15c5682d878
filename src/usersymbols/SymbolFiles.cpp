#include "usersymbols/SymbolFiles.h"

#include <algorithm>
#include <array>

#include "platform/Encoding.h"
#include "usersymbols/Script.h"

namespace ladrix {

namespace {

constexpr std::string_view EndOfLine = "\r\n";
constexpr std::array<std::string_view, 3> Endings = {".uds", ".bmp", "_Cyan.bmp"};
// A file on its way to take the place of the one without this ending.
constexpr std::string_view Staged = ".new";
// In front of the name of a library's folder that is being removed.
constexpr std::string_view Removed = ".ladrix-removed ";
constexpr std::uintmax_t LargestIcon = 4 * 1024 * 1024;  // bytes

std::string withEnding(std::string_view name, std::string_view ending) {
    return std::string(name).append(ending);
}

std::string listText(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        if (!name.empty()) text.append(name).append(EndOfLine);
    return text;
}

void makeMissingFolder(Files& files, const std::string& folder) {
    const std::string path = folder.substr(0, folder.size() - 1);
    if (!files.status(path)) files.makeFolder(path);
}

void replaceList(Files& files, const LibraryPlace& library, std::string_view text) {
    const std::string folder = library.symbolFolder(files);
    makeMissingFolder(files, folder);
    files.replace(library.path(), text);
    files.replace(folder + library.file(), text);
}

void removeIfThere(Files& files, const std::string& path) {
    if (files.status(path)) files.remove(path);
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

void requireNoFolderIn(Files& files, const std::string& folder) {
    for (const FileEntry& entry : files.list(folder))
        if (entry.isFolder)
            throw Failure{failure::PathFileAccess,
                          folder + ": holds the folder " + entry.name + " and is left alone."};
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

std::vector<std::string> readList(Files& files, const LibraryPlace& library) {
    const auto name = FolderIndex(files, library.Folder).find(library.file());
    if (!name) return {};
    const std::string content = files.read(library.Folder + *name);
    std::vector<std::string> lines;
    std::string_view text = content;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

void writeList(Files& files, const LibraryPlace& library, const std::vector<std::string>& names) {
    replaceList(files, library, listText(names));
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

void removeSymbol(Files& files, const std::string& symbolFolder, std::string_view name) {
    const FolderIndex index(files, symbolFolder);
    for (const std::string_view ending : Endings)
        if (const auto file = index.find(withEnding(name, ending)))
            files.remove(symbolFolder + *file);
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
    const std::vector<FileEntry> entries = files.list(symbolFolder);
    const std::string complete = withEnding(Endings[0], Staged);
    for (const FileEntry& entry : entries)
        if (!entry.isFolder && endsWithIgnoringCase(entry.name, complete))
            installStaged(
                files, symbolFolder,
                std::string_view(entry.name).substr(0, entry.name.size() - complete.size()));
    // What is left of a set that never became complete.
    for (const FileEntry& entry : entries)
        if (!entry.isFolder && endsWithIgnoringCase(entry.name, withEnding(Endings[1], Staged)))
            removeIfThere(files, symbolFolder + entry.name);
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

void removeLibrary(Files& files, const LibraryPlace& library) {
    const std::string path = library.Folder + library.Name;
    const std::string doomed = library.Folder + std::string(Removed) + library.Name;
    finishRemovals(files, library.Folder);
    if (files.status(path)) {
        requireNoFolderIn(files, path + files.separator());
        files.rename(path, doomed);
    }
    removeIfThere(files, library.path());
    finishRemovals(files, library.Folder);
}

void finishRemovals(Files& files, const std::string& folder) {
    for (const FileEntry& doomed : files.list(folder)) {
        if (!doomed.isFolder || !doomed.name.starts_with(Removed)) continue;
        const std::string inside = folder + doomed.name + files.separator();
        for (const FileEntry& entry : files.list(inside))
            if (!entry.isFolder) files.remove(inside + entry.name);
        files.removeFolder(folder + doomed.name);
    }
}

void createLibrary(Files& files, const LibraryPlace& library) {
    makeMissingFolder(files, library.symbolFolder(files));
    files.replace(library.path(), "");
}

}  // namespace ladrix
