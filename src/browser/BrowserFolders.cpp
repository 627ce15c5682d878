#include "browser/BrowserFolders.h"

#include <algorithm>
#include <set>
#include <utility>

#include "browser/Favorites.h"
#include "browser/FormState.h"
#include "platform/Encoding.h"

namespace ladrix {

namespace {

bool choosesLibrary(BrowserMode mode) {
    return mode == BrowserMode::Library || mode == BrowserMode::MergeLibrary ||
           mode == BrowserMode::TransferLibrary;
}

// Where a library is chosen its list stands for it: the folder of its symbols would only lead
// astray.
void dropSymbolFolders(std::vector<FileEntry>& entries) {
    constexpr std::string_view Ending = ".lib";
    std::set<std::string> libraries;
    for (const FileEntry& entry : entries)
        if (!entry.isFolder && extensionOf(entry.name) == Ending)
            libraries.insert(lowerCase(nameWithoutExtension(entry.name)));
    std::erase_if(entries, [&](const FileEntry& entry) {
        return entry.isFolder && libraries.contains(lowerCase(entry.name));
    });
}

std::vector<FileEntry> entriesOf(const FileBrowser& browser, Files& files,
                                 const std::string& folder) {
    auto entries = listFolder(files, folder, browser.BrowserFilter, browser.sorting);
    if (choosesLibrary(browser.FileBrowserMode)) dropSymbolFolders(entries);
    return entries;
}

// Shows the folder; throws, with everything as it was, if it cannot be read.
void enter(FileBrowser& browser, Editor& editor, const std::string& folder) {
    Files& files = *editor.platform.files;
    const std::string path = withSeparator(files, folder);
    browser.entries = entriesOf(browser, files, path);
    browser.BrowserFolder = path;
    ++browser.ListVersion;
    mark(browser, -1);
    clearPreview(browser);
    showModeCaption(browser, editor.drawing);
}

bool canEnter(FileBrowser& browser, Editor& editor, const std::string& folder) {
    if (folder.empty()) return false;
    try {
        enter(browser, editor, folder);
        return true;
    } catch (const Failure&) {
        return false;
    }
}

// The nearest folder on the path that can be read. False if there is none, up to the root.
bool enterNearest(FileBrowser& browser, Editor& editor, std::string folder) {
    while (!canEnter(browser, editor, folder)) {
        const std::string parent = parentFolder(*editor.platform.files, folder);
        if (parent == folder) return false;
        folder = parent;
    }
    return true;
}

// The program's own folder, and that of the simulation in it, hold what is shipped, not what users
// save.
std::string homeOf(const Editor& editor) {
    const std::string& folder = editor.drawing.CurrentFolder;
    const std::string simulation =
        editor.AppFilePath + "Simulation Files" + editor.platform.files->separator();
    return folder == editor.AppFilePath || folder == simulation ? std::string() : folder;
}

}  // namespace

void enterStartFolder(FileBrowser& browser, Editor& editor) {
    const std::string& drawings = browser.places.DrawingsPath;
    if (canEnter(browser, editor, browser.StartFolder)) return;
    switch (traitsOf(browser.FileBrowserMode).start) {
        case BrowserStart::Drawing:
            if (canEnter(browser, editor, homeOf(editor))) return;
            break;
        case BrowserStart::Base:
            if (canEnter(browser, editor, editor.BasePath)) return;
            break;
        case BrowserStart::Pictures:
            if (canEnter(browser, editor, browser.PictureFolder)) return;
            if (canEnter(browser, editor, browser.places.PicturesPath)) return;
            break;
    }
    if (enterNearest(browser, editor, drawings)) return;
    browser.entries.clear();
    browser.BrowserFolder = drawings;
    ++browser.ListVersion;
    mark(browser, -1);
}

void Dir1_Change(FileBrowser& browser, Editor& editor, const std::string& folder) {
    guarded(browser, editor, "Change Folder " + folder, [&] { enter(browser, editor, folder); });
}

void goToParentFolder(FileBrowser& browser, Editor& editor) {
    const std::string left = browser.BrowserFolder;
    const std::string parent = parentFolder(*editor.platform.files, left);
    if (parent == left) return;
    Dir1_Change(browser, editor, parent);
    if (browser.BrowserFolder != parent) return;
    std::string name = left.substr(parent.size());
    name.pop_back();
    mark(browser, indexOf(browser, name));
}

void goToPath(FileBrowser& browser, Editor& editor, std::string_view typed) {
    const std::string blankless = withoutBlanks(typed);
    if (blankless.empty()) return;
    Files& files = *editor.platform.files;
    guarded(browser, editor, "Go to Folder", [&] {
        const std::string path = resolvedPath(files, browser.BrowserFolder, blankless);
        const auto status = files.status(path);
        if (!status || status->isFolder) return enter(browser, editor, path);
        enter(browser, editor, parentFolder(files, withSeparator(files, path)));
        mark(browser, indexOf(browser, status->name));
        // Where folders are chosen a file only tells its own.
        if (browser.FileBrowserMode != BrowserMode::Folder)
            chooseFile(browser, editor, status->name);
    });
}

std::vector<PathPart> pathParts(const FileBrowser& browser, const Files& files) {
    std::vector<PathPart> parts;
    std::string folder = browser.BrowserFolder;
    while (!folder.empty()) {
        const std::string parent = parentFolder(files, folder);
        const bool isRoot = parent == folder;
        std::string name = isRoot ? folder : folder.substr(parent.size());
        if (!isRoot) name.pop_back();
        parts.push_back({std::move(name), folder});
        folder = isRoot ? std::string() : parent;
    }
    std::reverse(parts.begin(), parts.end());
    return parts;
}

void FileList1_ColumnClick(FileBrowser& browser, BrowserOrder order) {
    const bool again = browser.sorting.order == order;
    browser.sorting = {order, again && !browser.sorting.descending};
    const std::string marked = markedName(browser);
    sortEntries(browser.entries, browser.sorting);
    browser.Selected = indexOf(browser, marked);
    ++browser.ListVersion;
}

void FileList1_Refresh(FileBrowser& browser, Editor& editor) {
    const std::string marked = markedName(browser);
    guarded(browser, editor, "Refresh Folder", [&] {
        Files& files = *editor.platform.files;
        if (!files.status(browser.BrowserFolder)) {
            enterNearest(browser, editor, browser.BrowserFolder);
            return;
        }
        browser.entries = entriesOf(browser, files, browser.BrowserFolder);
        browser.Selected = indexOf(browser, marked);
        ++browser.ListVersion;
        if (browser.Selected >= 0 || marked.empty()) return;
        mark(browser, -1);
        clearPreview(browser);
    });
}

void cmbFavorites_Change(FileBrowser& browser, const std::string& folder) {
    browser.cmbFavorites.Text = folder;
}

void cmdGoFavorite_Click(FileBrowser& browser, Editor& editor) {
    if (browser.cmbFavorites.List.empty()) return;
    const std::string folder = browser.cmbFavorites.Text;
    guarded(browser, editor, "Go to Favorite Folder", [&] {
        const auto status = editor.platform.files->status(folder);
        if (status && status->isFolder) return enter(browser, editor, folder);
        editor.platform.tell("The favorite folder could not be found:\r\n" + folder);
    });
}

void cmdAddToFavorites_Click(FileBrowser& browser, Favorites& favorites, Editor& editor) {
    if (!addFavorite(favorites, editor, browser.BrowserFolder)) return;
    const BrowserMode mode = browser.FileBrowserMode;
    SaveFavorites(favorites, browser, editor);
    browser.FileBrowserMode = mode;  // the form is still up
    LoadFavoriteFolders(favorites, browser);
    browser.cmbFavorites.Text = browser.BrowserFolder;
}

}  // namespace ladrix
