// The commands that the file browser serves: pictures, the copies of the preferences, and what the
// browser needs of the program when it is shown.
#pragma once

#include "app/Program.h"

namespace ladrix {

void mnuInsertPicture_Click(Program& program);
void mnuOptSavePreferences_Click(Program& program);
// The settings of the restored file take effect at once.
void mnuOptRestorePreferences_Click(Program& program);

// Loads frmFile with the program's folders; the view calls it before it shows the form.
void loadBrowser(Program& program);

// An entry of the browser's own menu. Shows frmFavorites; the browser behind it shows the list as
// it then is.
void mnuOptManageFavorites_Click(Program& program);

}  // namespace ladrix
