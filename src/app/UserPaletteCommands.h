// The commands of the user's columns of the palette, of the library manager and of the search; and
// the number of the columns' rows, which outlives a run.
#pragma once

#include "app/Program.h"

namespace ladrix {

void mnuLibManageUserLibraries_Click(Program& program);
void mnuLibFind_Click(Program& program);
void mnuLibBringBack_Click(Program& program);
void mnuLibManageOrder_Click(Program& program);
void mnuLibManageRows_Click(Program& program);

// --- frmUBRows. The view loads it before it shows it.
void frmUBRows_Load(Program& program);
// Takes the number in cmbRows, held to the range that is offered; what is no number is ignored and
// leaves the form open.
void frmUBRows_cmdSave_Click(Program& program);

}  // namespace ladrix
