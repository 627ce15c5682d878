#include "app/FileCommands.h"

#include "app/Preferences.h"
#include "canvas/file/Pictures.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

void showBrowser(Program& program, BrowserMode mode) {
    program.frmFile.FileBrowserMode = mode;
    program.platform.dialogs->show(Form::frmFile);
}

}  // namespace

void mnuInsertPicture_Click(Program& program) {
    if (makeReadyForPicture(program.editor)) showBrowser(program, BrowserMode::Picture);
}

void mnuOptSavePreferences_Click(Program& program) {
    showBrowser(program, BrowserMode::SavePreferences);
}

void mnuOptRestorePreferences_Click(Program& program) {
    showBrowser(program, BrowserMode::RestorePreferences);
    if (!program.frmFile.Chosen) return;
    ReadUserPreferences(program);
    LayOutUserButtons(program.usersymbols, program.editor);
    program.editor.form.lblMessage.Caption = "User preferences restored.";
}

void loadBrowser(Program& program) {
    constexpr int PicturesFolder = 39;
    const std::string pictures = program.platform.shell->specialFolder(PicturesFolder);
    BrowserPlaces places;
    places.DrawingsPath = program.paths.DrawingsPath;
    places.DataFilesPath = program.paths.DataFilesPath;
    places.PrefsFolder = program.PrefsFolder;
    if (!pictures.empty()) places.PicturesPath = withSeparator(*program.platform.files, pictures);
    frmFile_Load(program.frmFile, program.editor, program.favorites, places);
}

void mnuOptManageFavorites_Click(Program& program) {
    frmFavorites_Load(program.frmFavorites, program.favorites);
    const BrowserMode mode = program.frmFile.FileBrowserMode;
    program.platform.dialogs->show(Form::frmFavorites);
    program.frmFile.FileBrowserMode = mode;  // saving favorites puts it back
    LoadFavoriteFolders(program.favorites, program.frmFile);
}

}  // namespace ladrix
