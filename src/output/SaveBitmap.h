// The drawing as a Windows bitmap.
#pragma once

#include <string>

#include "canvas/state/Editor.h"

namespace ladrix {

// Asks about the grid and for a name, saves the canvas with its labels in `folder` and opens the
// picture with whatever the platform opens pictures with. Any Cancel leaves no file.
void SaveBitmap(Editor& editor, const std::string& folder);

}  // namespace ladrix
