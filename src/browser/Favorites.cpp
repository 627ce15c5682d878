#include "browser/Favorites.h"

#include <algorithm>
#include <utility>

#include "browser/FileBrowser.h"
#include "browser/FormState.h"

namespace ladrix {

namespace {

constexpr std::string_view FavoritesName = "Favorite Folders.hst";
constexpr std::string_view LineEnd = "\r\n";

bool holds(const Favorites& favorites, const std::string& folder) {
    const auto& folders = favorites.FavoriteFolders;
    return std::find(folders.begin(), folders.end(), folder) != folders.end();
}

void take(Favorites& favorites, std::string folder) {
    if (favorites.FavoriteCount == LargestCount)
        throw Failure{failure::Overflow, "There are too many favorite folders."};
    favorites.FavoriteFolders.push_back(std::move(folder));
    ++favorites.FavoriteCount;
}

void takeLines(Favorites& favorites, std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (!line.empty()) take(favorites, std::string(line));
    }
}

// The file may be readable by now: the list then is what it holds and what was added without it.
void readBehind(Favorites& favorites, const Editor& editor) {
    const std::vector<std::string> added = std::move(favorites.FavoriteFolders);
    ReadFavorites(favorites, editor);
    favorites.FavoritesChanged = true;
    for (const std::string& folder : added)
        if (!holds(favorites, folder)) take(favorites, folder);
}

void enableButtons(FavoritesForm& form) {
    const int index = form.lstFavorites.ListIndex;
    const auto count = static_cast<int>(form.lstFavorites.List.size());
    form.cmdRemove.Enabled = index >= 0;
    form.cmdMoveUp.Enabled = index > 0;
    form.cmdMoveDown.Enabled = index >= 0 && index + 1 < count;
}

// Shows the list with this row selected, or the last one where there are fewer.
void showList(FavoritesForm& form, const Favorites& favorites, int index) {
    LoadFavoriteFolders(favorites, form);
    form.cmdSave.Enabled = favorites.FavoritesChanged;
    const auto last = static_cast<int>(form.lstFavorites.List.size()) - 1;
    lstFavorites_Click(form, std::min(index, last));
}

void moveSelected(FavoritesForm& form, Favorites& favorites, int by) {
    const int from = form.lstFavorites.ListIndex, to = from + by;
    if (from < 0 || to < 0 || to >= favorites.FavoriteCount) return;
    std::swap(favorites.FavoriteFolders[static_cast<std::size_t>(from)],
              favorites.FavoriteFolders[static_cast<std::size_t>(to)]);
    favorites.FavoritesChanged = true;
    showList(form, favorites, to);
}

}  // namespace

void ReadFavorites(Favorites& favorites, const Editor& editor) {
    favorites.FavoriteFolders.clear();
    favorites.FavoriteCount = 0;
    favorites.FavoritesChanged = false;
    const auto read = [&] {
        Files& files = *editor.platform.files;
        if (!FileExists(files, editor.AppFilePath, FavoritesName)) return;
        takeLines(favorites, files.read(pathIn(editor.AppFilePath, FavoritesName)));
    };
    const auto tell = [&](const Failure& failure) {
        editor.platform.ReportError("Read Favorite Folders", failure);
    };
    favorites.file.read(read, tell);
}

void SaveFavorites(Favorites& favorites, FileBrowser& browser, const Editor& editor) {
    editor.platform.attempt("SaveFavorite Folders", [&] {
        if (favorites.file.hasFailed()) readBehind(favorites, editor);
        favorites.file.requireRead();
        std::string text;
        for (const std::string& folder : favorites.FavoriteFolders)
            text.append(folder).append(LineEnd);
        editor.platform.files->replace(pathIn(editor.AppFilePath, FavoritesName), text);
        favorites.FavoritesChanged = false;
        browser.FileBrowserMode = BrowserMode::Drawing;
    });
}

void LoadFavoriteFolders(const Favorites& favorites, FileBrowser& browser) {
    const auto& folders = favorites.FavoriteFolders;
    ComboBox& box = browser.cmbFavorites;
    if (!holds(favorites, box.Text))
        box.Text = folders.empty() ? "No Favorite Folders Exist" : folders.front();
    box.List = folders;
    box.Enabled = !folders.empty();
    browser.cmdGoFavorite = captioned("&Go");
    browser.cmdGoFavorite.Enabled = !folders.empty();
    browser.cmdAddToFavorites = captioned("&Add to Favorites");
    // Where a favorite is being chosen the list is not managed.
    browser.cmdAddToFavorites.Visible = browser.FileBrowserMode != BrowserMode::Folder;
}

void LoadFavoriteFolders(const Favorites& favorites, FavoritesForm& form) {
    form.lstFavorites.List = favorites.FavoriteFolders;
}

bool addFavorite(Favorites& favorites, const Editor& editor, const std::string& folder) {
    if (holds(favorites, folder)) {
        editor.platform.tell("This folder is one of the favorites already.");
        return false;
    }
    if (folder.find_first_of(LineEnd) != std::string::npos) {
        editor.platform.tell("A folder with a line break in its name cannot be a favorite.");
        return false;
    }
    return editor.platform.attempt("Add to Favorites", [&] {
        take(favorites, folder);
        favorites.FavoritesChanged = true;
    });
}

void frmFavorites_Load(FavoritesForm& form, const Favorites& favorites) {
    form = {};
    form.Visible = true;
    form.Caption = "Managing Favorite Folders";
    form.lblFavorites = captioned("Favorite Folders");
    form.cmdBrowse = captioned("&Browse for New");
    form.cmdRemove = captioned("&Remove");
    form.cmdMoveUp = captioned("Move &Up");
    form.cmdMoveDown = captioned("Move &Down");
    form.cmdSave = captioned("&Save");
    form.cmdExit = captioned("E&xit");
    showList(form, favorites, -1);
}

void frmFavorites_cmdBrowse_Click(FavoritesForm& form, Favorites& favorites, FileBrowser& browser,
                                  Editor& editor) {
    FileBrowser behind = browser;
    const bool saving = std::exchange(editor.drawing.SaveInProgress, false);
    browser.FileBrowserMode = BrowserMode::Folder;
    editor.platform.dialogs->show(Form::frmFile);
    const bool chosen = browser.Chosen;
    const std::string folder = browser.BrowserFolder;
    behind.Width = browser.Width;
    behind.Height = browser.Height;
    browser = std::move(behind);
    editor.drawing.SaveInProgress = saving;
    if (chosen && addFavorite(favorites, editor, folder))
        showList(form, favorites, favorites.FavoriteCount - 1);
}

void frmFavorites_cmdRemove_Click(FavoritesForm& form, Favorites& favorites) {
    const int index = form.lstFavorites.ListIndex;
    if (index < 0 || index >= favorites.FavoriteCount) return;
    favorites.FavoriteFolders.erase(favorites.FavoriteFolders.begin() + index);
    --favorites.FavoriteCount;
    favorites.FavoritesChanged = true;
    showList(form, favorites, index);
}

void frmFavorites_cmdMoveUp_Click(FavoritesForm& form, Favorites& favorites) {
    moveSelected(form, favorites, -1);
}

void frmFavorites_cmdMoveDown_Click(FavoritesForm& form, Favorites& favorites) {
    moveSelected(form, favorites, 1);
}

void frmFavorites_cmdSave_Click(FavoritesForm& form, Favorites& favorites, FileBrowser& browser,
                                const Editor& editor) {
    SaveFavorites(favorites, browser, editor);
    showList(form, favorites, form.lstFavorites.ListIndex);
}

void lstFavorites_Click(FavoritesForm& form, int index) {
    form.lstFavorites.ListIndex = index;
    enableButtons(form);
}

bool frmFavorites_QueryUnload(FavoritesForm& form, Favorites& favorites, FileBrowser& browser,
                              const Editor& editor) {
    if (favorites.FavoritesChanged) {
        if (editor.platform.dialogs->message(
                "Favorites have been changed. Do you want to save the changes?",
                "Favorites Modified", Buttons::YesNo) == Answer::Yes) {
            SaveFavorites(favorites, browser, editor);
            if (favorites.FavoritesChanged) return false;
        } else {
            ReadFavorites(favorites, editor);
        }
    }
    form.Visible = false;
    return true;
}

}  // namespace ladrix
