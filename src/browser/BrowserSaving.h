// The save box of the browser: the name, its extension, and what is written under it.
#pragma once

#include <string>

#include "browser/FileBrowser.h"

namespace ladrix {

// Fills the save box for the mode.
void setUpSaving(FileBrowser& browser, const Drawing& drawing);

void txtSaveAs_Change(FileBrowser& browser, const std::string& text);
// The extension of the name in the box follows.
void optFileType_Click(FileBrowser& browser, Editor& editor, Short type);

// Saves the drawing or the copy of the preferences, or hands the name to the caller. A name that no
// file may bear is refused; before a file is replaced the user is asked.
void cmdSaveAs_Click(FileBrowser& browser, Editor& editor);

// Makes a folder in the present one and marks it: under the name in the form if there is one, else
// asks for it.
void cmdNewFolder_Click(FileBrowser& browser, Editor& editor);

}  // namespace ladrix
