// The line and square tools, click by click. Each click takes its point from SnapX and SnapY.
#pragma once

#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

// A finer dash would be a grey line of thousands of devices.
constexpr Single LeastDashSpacing = 0.01f;  // inches

// The first click sets the start; each further click draws and records a line, or in dashed mode a
// run of dashes, and goes on from its end.
void InsertSavedLine(Editor& editor, Long color, std::string_view widthTag);

// The second click draws and records one square; `styleText` is its dash style.
void InsertSavedSquare(Editor& editor, Long color, std::string_view styleText);

}  // namespace ladrix
