// The shared report of failures, its log "Error Log.txt" in the data folder, and the log's viewer.
#pragma once

#include <string_view>

#include "app/Program.h"

namespace ladrix {

// Tells the user in a box and appends the entry to the log when they answer OK; the same
// description twice in a row is only logged. Never throws: a failure to log is dropped.
void ReportError(Program& program, std::string_view description, const Failure& failure);

// "Error Messages.txt", the run's own diagnostics, starts afresh; nobody needs what the last run
// left, so nothing is flushed. Throws a Failure.
void renewErrorMessages(Program& program);
// Adds lines to it; the last line end is added. Never throws.
void appendErrorMessage(Program& program, std::string_view lines);

void mnuAdminViewErrorLog_Click(Program& program);
// Copies of the log and of the drawing in the base folder, in place of former ones. What cannot be
// read or removed stops it before anything is changed.
void frmLog_cmdExport_Click(Program& program);
void frmLog_cmdView_Click(Program& program);
void frmLog_cmdExit_Click(Program& program);

}  // namespace ladrix
