// frmRemoved: the symbols and libraries that were removed, with their pictures, and the command
// that brings one back. A symbol goes into the open library, a library beside the others, each
// under a free name where its own is taken. What is kept of it stays in the list, but for a
// library, which moves back whole.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "canvas/state/Editor.h"
#include "usersymbols/RemovedSymbols.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

struct RemovedForm {
    bool Visible = false;
    std::vector<RemovedItem> Items;  // the newest first
    int ListIndex = -1;              // -1 while there are none
    Control lblTarget;               // where a symbol goes
    Control lblMessage;              // what has been brought back, or why not
    Control cmdBringBack, cmdExit;
};

// The command of the main window; the form is modal.
void mnuLibBringBack_Click(RemovedForm& form, UserSymbols& symbols, Editor& editor);

void lstRemoved_Click(RemovedForm& form, int row);
// A failure is reported and told in the form; nothing that is there is changed then.
void frmRemoved_cmdBringBack_Click(RemovedForm& form, UserSymbols& symbols, Editor& editor);
void frmRemoved_cmdExit_Click(RemovedForm& form);

// The button's picture, of a library its first symbol's; null if it cannot be read.
std::shared_ptr<const Picture> pictureOfRemoved(const RemovedItem& item, const Platform& platform);

}  // namespace ladrix
