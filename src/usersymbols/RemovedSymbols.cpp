#include "usersymbols/RemovedSymbols.h"

#include <algorithm>
#include <ctime>
#include <iterator>
#include <optional>
#include <set>
#include <tuple>

#include "platform/Encoding.h"

namespace ladrix {

namespace {

constexpr std::string_view StampPattern = "0000-00-00 00-00-00";
constexpr std::string_view ListEnding = ".lib";

std::string presentStamp() {
    const std::time_t now = std::time(nullptr);
    char stamp[StampPattern.size() + 1] = {};
    std::strftime(stamp, sizeof stamp, "%Y-%m-%d %H-%M-%S", std::localtime(&now));
    return stamp;
}

bool isStamped(std::string_view name) {
    if (name.size() < StampPattern.size()) return false;
    return std::equal(
        StampPattern.begin(), StampPattern.end(), name.begin(),
        [](char pattern, char c) { return pattern == '0' ? c >= '0' && c <= '9' : c == pattern; });
}

// What follows the date and the number of a folder's name: a library's name, or "".
std::string_view nameBehindStamp(std::string_view name) {
    name.remove_prefix(StampPattern.size());
    if (name.starts_with(" (")) {
        const std::size_t end = name.find_first_not_of("0123456789", 2);
        if (end != name.npos && name[end] == ')') name.remove_prefix(end + 1);
    }
    if (name.starts_with(' ')) name.remove_prefix(1);
    return name;
}

// A removal on disk; the folder ends in the separator.
struct Removal {
    std::string folder, stamp, list;  // the list's name
    bool isLibrary = false;
    FileTime modified;
};

// The list that tells what was removed; "" if there is none.
std::string listIn(const std::vector<std::string>& names, std::string_view library) {
    for (const std::string& name : names)
        if (library.empty() ? extensionOf(name) == ListEnding
                            : name == std::string(library).append(ListEnding))
            return name;
    return {};
}

std::optional<Removal> removalOf(Files& files, const std::string& removals,
                                 const FileEntry& entry) {
    const std::string path = removals + entry.name;
    if (!entry.isFolder || !isStamped(entry.name) || files.isLink(path)) return std::nullopt;
    const std::string folder = path + files.separator();
    const std::string_view library = nameBehindStamp(entry.name);
    std::string list = listIn(files.fileNames(folder), library);
    if (list.empty()) return std::nullopt;
    return Removal{folder, entry.name.substr(0, StampPattern.size()), std::move(list),
                   !library.empty(), entry.modified};
}

// The oldest first. One that cannot be read hides no other.
std::vector<Removal> removalsIn(Files& files, const std::string& removals) {
    std::vector<Removal> all;
    for (const FileEntry& entry : files.list(removals)) {
        try {
            if (auto removal = removalOf(files, removals, entry))
                all.push_back(std::move(*removal));
        } catch (const Failure&) {
            continue;
        }
    }
    std::sort(all.begin(), all.end(), [](const Removal& a, const Removal& b) {
        return std::tie(a.stamp, a.modified, a.folder) < std::tie(b.stamp, b.modified, b.folder);
    });
    return all;
}

std::string withoutSeparator(std::string_view folder) {
    return std::string(folder.substr(0, folder.size() - 1));
}

bool removed(Files& files, const std::string& path) {
    try {
        files.remove(path);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// The files of these symbols and of all that have a script here, also those on their way to their
// places. No list.
std::vector<std::string> ownFiles(Files& files, const std::string& folder,
                                  std::vector<std::string> symbols) {
    const FolderIndex index(files, folder);
    const std::vector<std::string> scripts = index.scripts();
    symbols.insert(symbols.end(), scripts.begin(), scripts.end());
    std::set<std::string> own;
    for (const std::string& symbol : symbols)
        for (const std::string& file : filesOfSymbol(symbol))
            for (const std::string& name : {file, stagedName(file)})
                if (const auto found = index.find(name)) own.insert(*found);
    return {own.begin(), own.end()};
}

// One file that cannot be removed does not keep the others; the lists go last, and not before all
// else has gone, because they tell whose the folder is. False if something has stayed.
bool removeFolderOf(Files& files, const std::string& folder,
                    const std::vector<std::string>& symbols) {
    bool empty = true;
    for (const std::string& name : ownFiles(files, folder, symbols))
        empty &= removed(files, folder + name);
    if (!empty) return false;
    for (const std::string& name : files.fileNames(folder))
        if (extensionOf(name) == ListEnding) empty &= removed(files, folder + name);
    if (!empty || !files.list(folder).empty()) return false;
    files.removeFolder(withoutSeparator(folder));
    return true;
}

// One removal too many harms nobody: what cannot be removed stays.
void discard(Files& files, const std::string& folder, const std::vector<std::string>& symbols) {
    try {
        removeFolderOf(files, folder, symbols);
    } catch (const Failure&) {
    }
}

void removeOldest(Files& files, const std::string& removals) {
    try {
        const std::vector<Removal> all = removalsIn(files, removals);
        for (std::size_t i = 0; i + RemovalsKept < all.size(); ++i)
            discard(files, all[i].folder, listLines(files.read(all[i].folder + all[i].list)));
    } catch (const Failure&) {
    }
}

// "2026-11-23 09:41:07"
std::string readableTime(std::string stamp) {
    std::replace(stamp.begin() + static_cast<std::ptrdiff_t>(stamp.find(' ')), stamp.end(), '-',
                 ':');
    return stamp;
}

// What one removal holds, a library before its symbols.
std::vector<RemovedItem> itemsOf(Files& files, const Removal& removal) {
    const FolderIndex index(files, removal.folder);
    const RemovedItem common{removal.folder,
                             {},
                             std::string(nameWithoutExtension(removal.list)),
                             readableTime(removal.stamp)};
    std::vector<RemovedItem> items;
    if (removal.isLibrary) items.push_back(common);
    for (const std::string& name : listLines(files.read(removal.folder + removal.list))) {
        if (name.empty() || !index.hasAll(name)) continue;
        items.push_back(common);
        items.back().Name = name;
    }
    if (!removal.isLibrary) return items;
    RemovedItem& whole = items.front();
    whole.Name = whole.Library;
    whole.IsLibrary = true;
    whole.SymbolCount = items.size() - 1;
    return items;
}

// The folder of a new removal, which does not exist yet; those above it do then.
std::string newRemoval(Files& files, const std::string& removals, std::string_view library) {
    const std::size_t parent = removals.rfind(files.separator(), removals.size() - 2);
    makeMissingFolder(files, removals.substr(0, parent + 1));
    makeMissingFolder(files, removals);
    const std::string stamp = presentStamp();
    const std::string behind = library.empty() ? "" : ' ' + std::string(library);
    std::string path = removals + stamp + behind;
    for (int number = 2; files.status(path); ++number)
        path = removals + stamp + " (" + std::to_string(number) + ')' + behind;
    return path + files.separator();
}

void fillRemoval(Files& files, const std::string& removal, const LibraryPlace& library,
                 const std::vector<std::string>& names, std::string_view listText) {
    const std::string from = library.symbolFolder(files);
    const FolderIndex index(files, from);
    files.makeFolder(withoutSeparator(removal));
    try {
        for (const std::string& name : names)
            copySymbol(files, from, index, name, removal);
        files.replace(removal + library.file(), listText);
    } catch (const Failure&) {
        discard(files, removal, names);
        throw;
    }
}

bool renamed(Files& files, const std::string& from, const std::string& to) {
    try {
        files.rename(from, to);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

void requireNoFolderIn(Files& files, const std::string& folder) {
    for (const FileEntry& entry : files.list(folder))
        if (entry.isFolder)
            throw Failure{failure::PathFileAccess,
                          folder + ": holds the folder " + entry.name + " and is left alone."};
}

// A library on its way out.
class LibraryRemoval {
  public:
    LibraryRemoval(Files& files, const LibraryPlace& library, const std::string& removals);
    void run();

  private:
    void takeFolderAway();
    void keepCopies();

    Files& files_;
    const LibraryPlace& library_;
    const std::string& removals_;
    std::string path_, folder_;  // the symbol folder, without and with the separator
    std::string list_;           // the list's path
    bool linked_, listed_;
    std::string listText_;
};

LibraryRemoval::LibraryRemoval(Files& files, const LibraryPlace& library,
                               const std::string& removals)
    : files_(files),
      library_(library),
      removals_(removals),
      path_(library.Folder + library.Name),
      folder_(library.symbolFolder(files)),
      list_(listPath(files, library)),
      linked_(files.isLink(path_)),
      listed_(files.status(list_).has_value()) {
    listText_ = listed_ ? files.read(list_) : listText(FolderIndex(files, folder_).scripts());
}

void LibraryRemoval::keepCopies() {
    fillRemoval(files_, newRemoval(files_, removals_, library_.Name), library_,
                FolderIndex(files_, folder_).scripts(), listText_);
}

void LibraryRemoval::takeFolderAway() {
    if (renamed(files_, path_, withoutSeparator(newRemoval(files_, removals_, library_.Name))))
        return;
    keepCopies();
    discard(files_, folder_, listLines(listText_));
}

// The list goes before the folder: until that is gone, the next start makes a library of it again,
// by the list's safety copy, which is brought up to date before.
void LibraryRemoval::run() {
    const bool folderThere = files_.status(path_).has_value();
    if (linked_ && folderThere) keepCopies();
    if (!linked_ && folderThere) {
        requireNoFolderIn(files_, folder_);
        files_.replace(folder_ + library_.file(), listText_);
    }
    if (listed_) files_.remove(list_);
    try {
        if (linked_)
            files_.remove(path_);
        else if (folderThere)
            takeFolderAway();
    } catch (const Failure&) {
        if (listed_) files_.replace(list_, listText_);
        throw;
    }
    if (!linked_ && files_.status(path_))
        throw Failure{failure::PathFileAccess,
                      library_.Name + ": the folder has stayed with what could not be removed."};
}

}  // namespace

std::string removalsFolder(const Files& files, const std::string& basePath) {
    const char separator = files.separator();
    return basePath + "Backups" + separator + "Removed Symbols" + separator;
}

void keepSymbols(Files& files, const std::string& removals, const LibraryPlace& library,
                 const std::vector<std::string>& names) {
    const FolderIndex index(files, library.symbolFolder(files));
    std::vector<std::string> there;
    for (const std::string& name : names)
        if (index.hasAny(name)) there.push_back(name);
    if (there.empty()) return;
    fillRemoval(files, newRemoval(files, removals, {}), library, there, listText(there));
    removeOldest(files, removals);
}

void removeLibrary(Files& files, const std::string& removals, const LibraryPlace& library) {
    LibraryRemoval(files, library, removals).run();
    removeOldest(files, removals);
}

std::vector<RemovedItem> removedItems(Files& files, const std::string& removals) {
    std::vector<RemovedItem> items;
    if (!files.status(withoutSeparator(removals))) return items;
    std::vector<Removal> all = removalsIn(files, removals);
    std::reverse(all.begin(), all.end());
    for (const Removal& removal : all) {
        try {
            std::ranges::move(itemsOf(files, removal), std::back_inserter(items));
        } catch (const Failure&) {
            continue;
        }
    }
    return items;
}

// The list inside comes first: whatever breaks off then, a start makes the library's list from it.
void restoreLibrary(Files& files, const RemovedItem& item, const LibraryPlace& library) {
    const std::string text = files.read(item.Folder + item.Library + std::string(ListEnding));
    files.replace(item.Folder + library.file(), text);
    if (!renamed(files, withoutSeparator(item.Folder), library.Folder + library.Name)) {
        const std::string to = library.symbolFolder(files);
        makeMissingFolder(files, to);
        const FolderIndex index(files, item.Folder);
        for (const std::string& name : index.scripts())
            copySymbol(files, item.Folder, index, name, to);
    }
    files.replace(library.path(), text);
}

}  // namespace ladrix
