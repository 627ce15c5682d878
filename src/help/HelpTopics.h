// The help window's topics between file and memory. After every change that goes to disk the three
// run in the order Save, Read, Load, so that the list's order and the file's agree again.
#pragma once

#include "help/HelpForm.h"

namespace ladrix {

// The file's records. A missing file is told, one that cannot be read is reported; either leaves no
// records.
void ReadHelpFile(HelpForm& help);

// The records as the sorted list, with the text of the first topic.
void LoadHelpTopics(HelpForm& help);

// Writes all topics in the list's order, the new or edited one with what the window shows, the
// current one left out while HelpDeleting is set. The former file stands as "Temp_Help_Topics.htx"
// until the new one does. False, with everything that is unsaved still there, if it failed or if a
// topic would hold the mark of its place; the user has been told.
bool SaveHelpFile(HelpForm& help);

// Save, Read, Load; and back to the topic of this title. What SaveHelpFile returns.
bool saveAndReload(HelpForm& help, const std::string& title);

}  // namespace ladrix
