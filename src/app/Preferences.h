// The few settings that outlive a run: "UserPreferences.upf", one line each, a tag of 15 characters
// followed by the value.
#pragma once

#include "app/Program.h"

namespace ladrix {

// Reads the file into UserPrefs, from the data folder or, where it is not there, from the program's
// own. Without a file every setting has its default.
void ReadUserPreferences(Program& program);

}  // namespace ladrix
