// The start and the end of a run.
#pragma once

#include "app/Program.h"

namespace ladrix {

// Folders, preferences, favourites, and the main window's first state. False if the run ends here:
// another instance is running, or the screen is too small (the user has been told).
bool startProgram(Program& program);

// The main window's load: each stage that fails is reported and the rest goes on. False ends the
// run.
bool Form_Load(Program& program);

// Folder tree and paths. A new tree is seeded with the shipped drawings; those that cannot be
// copied are reported together. Throws a Failure where a folder cannot be made; the paths keep what
// they held.
void settleFolders(Program& program);

}  // namespace ladrix
