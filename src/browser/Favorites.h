// The user's favourite folders, their file "Favorite Folders.hst" in the program's folder (one path
// a line, each ended by CR LF), and frmFavorites, the dialog that manages them.
#pragma once

#include <string>
#include <vector>

#include "canvas/state/Controls.h"
#include "canvas/state/Editor.h"
#include "platform/ReadState.h"

namespace ladrix {

struct FileBrowser;

struct Favorites {
    std::vector<std::string> FavoriteFolders;  // as the user entered them, in their order
    Short FavoriteCount = 0;
    bool FavoritesChanged = false;  // the list differs from the file
    ReadState file;
};

// Without a file the list is empty. A file that cannot be read is reported, once for one reason,
// and the list holds what could be read.
void ReadFavorites(Favorites& favorites, const Editor& editor);

// Writes the list and puts the browser's mode back. A failure is reported, as is a file that still
// cannot be read and is therefore left alone; the list stays changed.
void SaveFavorites(Favorites& favorites, FileBrowser& browser, const Editor& editor);

// Fills the browser's box, or the list of frmFavorites.
void LoadFavoriteFolders(const Favorites& favorites, FileBrowser& browser);

struct FavoritesForm {
    bool Visible = false;
    std::string Caption;
    Control lblFavorites;  // the list's heading
    ListBox lstFavorites;
    Control cmdBrowse, cmdRemove, cmdMoveUp, cmdMoveDown, cmdSave, cmdExit;
};
void LoadFavoriteFolders(const Favorites& favorites, FavoritesForm& form);

// Adds the folder. False, and the user told, if it is there already or cannot stand in the file.
bool addFavorite(Favorites& favorites, const Editor& editor, const std::string& folder);

void frmFavorites_Load(FavoritesForm& form, const Favorites& favorites);
// Shows the browser for a folder; the state of a browser that is up already comes back after it.
void frmFavorites_cmdBrowse_Click(FavoritesForm& form, Favorites& favorites, FileBrowser& browser,
                                  Editor& editor);
void frmFavorites_cmdRemove_Click(FavoritesForm& form, Favorites& favorites);
void frmFavorites_cmdMoveUp_Click(FavoritesForm& form, Favorites& favorites);
void frmFavorites_cmdMoveDown_Click(FavoritesForm& form, Favorites& favorites);
void frmFavorites_cmdSave_Click(FavoritesForm& form, Favorites& favorites, FileBrowser& browser,
                                const Editor& editor);
void lstFavorites_Click(FavoritesForm& form, int index);  // -1: none

// Unloads the form; changes not saved are asked about. False if it stays, because saving failed.
bool frmFavorites_QueryUnload(FavoritesForm& form, Favorites& favorites, FileBrowser& browser,
                              const Editor& editor);

}  // namespace ladrix
