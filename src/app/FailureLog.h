// The shared report of failures, its log "Error Log.txt" in the data folder, and the log's viewer.
#pragma once

#include <string_view>

#include "app/Program.h"

namespace ladrix {

// Tells the user in a box and appends the entry to the log when they answer OK; the same
// description twice in a row is only logged. Never throws: a failure to log is dropped.
void ReportError(Program& program, std::string_view description, const Failure& failure);

// Lines of the run's own diagnostics in "Error Messages.txt"; the last line end is added.
void appendErrorMessage(Program& program, std::string_view lines);

void mnuAdminViewErrorLog_Click(Program& program);
void frmLog_cmdExport_Click(Program& program);
void frmLog_cmdView_Click(Program& program);
void frmLog_cmdExit_Click(Program& program);

}  // namespace ladrix
