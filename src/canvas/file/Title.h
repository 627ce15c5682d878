// The caption of the main window.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Tells the library, the drawing's name and the backup copy that it came from.
void UpdateTitle(Editor& editor);

}  // namespace ladrix
