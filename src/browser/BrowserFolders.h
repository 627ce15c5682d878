// Going about the folders in the browser: the list, the path and the favourites.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "browser/FileBrowser.h"

namespace ladrix {

// Goes to a folder; one that cannot be read is reported and the present one stays.
void Dir1_Change(FileBrowser& browser, Editor& editor, const std::string& folder);
// Marks the folder that it leaves.
void goToParentFolder(FileBrowser& browser, Editor& editor);
// A path typed by hand: a folder is entered, a file chosen as by a click.
void goToPath(FileBrowser& browser, Editor& editor, std::string_view typed);

// The folders from the root to the present one, for the path bar: name and whole path.
struct PathPart {
    std::string name, path;
};
std::vector<PathPart> pathParts(const FileBrowser& browser, const Files& files);

// A click on a column's head: sorts by it, and the other way round at the second.
void FileList1_ColumnClick(FileBrowser& browser, BrowserOrder order);
// Reads the folder again; the mark stays on its name. A folder that has gone gives way to the
// nearest one above it.
void FileList1_Refresh(FileBrowser& browser, Editor& editor);

// The folder in which the mode starts.
void enterStartFolder(FileBrowser& browser, Editor& editor);

void cmbFavorites_Change(FileBrowser& browser, const std::string& folder);
// Goes to the folder in cmbFavorites; one that has gone is told.
void cmdGoFavorite_Click(FileBrowser& browser, Editor& editor);
// Adds the present folder to the favourites and writes them.
void cmdAddToFavorites_Click(FileBrowser& browser, Favorites& favorites, Editor& editor);

}  // namespace ladrix
