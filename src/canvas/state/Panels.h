// The panels of the tool strip and the buttons of the palette as they look. Each only changes the
// form.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// Shows this panel in the strip and hides the other.
enum class Panel { None, Text, Radius };
void showPanel(Editor& editor, Panel panel);

// What stands in the radius panel: circles have no angles.
enum class RadiusPanel { RadiusAlone, WithAngles };
void layOutRadiusPanel(Editor& editor, RadiusPanel fields);

// The button's image is the pressed one, or the one of a button that is up; -1 is no button.
void pressButton(Editor& editor, Short index);
void releaseButton(Editor& editor, Short index);

}  // namespace ladrix
