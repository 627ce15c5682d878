// What of the File menu depends on the disk, and opening a backup copy of the drawing.
#pragma once

#include "app/Program.h"

namespace ladrix {

// Before the menu is shown: the recent drawings, greyed where there is no file any more, and
// whether the drawing has backup copies. A path that does not answer counts as no file: the menu
// comes within a fifth of a second.
void mnuFile_Popup(Program& program);

// The file dialog in the folder of the copies, the newest first. The one that is opened takes the
// drawing's place under its name.
void mnuFileBackups_Click(Program& program);

}  // namespace ladrix
