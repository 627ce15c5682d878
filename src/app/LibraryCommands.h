// The commands of user symbols and their libraries; those that take a library show the file dialog
// first.
#pragma once

#include "app/Program.h"

namespace ladrix {

void mnuEditSaveUserSymbol_Click(Program& program);
void mnuAdminCreateSymbolExportFile_Click(Program& program);

void mnuLibOpen_Click(Program& program);
void mnuLibMerge_Click(Program& program);
void mnuLibNewLibrary_Click(Program& program);
void mnuLibraryNext_Click(Program& program);
void mnuLibraryPrevious_Click(Program& program);

// Of the user button under the menu.
void mnuLibManageRename_Click(Program& program);
void mnuLibManageDelete_Click(Program& program);
void mnuLibManageMove_Click(Program& program);
void mnuLibManageCopy_Click(Program& program);

// Marks the mode and tells how a symbol is made.
void mnuModeDesign_Click(Program& program);

// The library that comes with the program is put among the user's own, once: a later removal is
// the user's choice.
void offerSampleLibrary(Program& program);

}  // namespace ladrix
