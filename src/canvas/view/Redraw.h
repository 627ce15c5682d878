// Painting the canvas from the tables, and the one way back to idle.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// The canvas, the label controls and the pictures from the tables, selected items in the selection
// colour. Rebuilds the records, so that a handler that changed a column only has to call this. A
// symbol that fails is told and the rest is painted.
void RedrawDrawing(Editor& editor);

// The painting alone, for a change of the view in which no column has changed.
void paintDrawing(Editor& editor);

// Whatever is under way ends; the tables, the copy buffer, the zoom and all options stay.
void ResetEditor(Editor& editor);

void cmdReset_Click(Editor& editor);
void mnuOptionReset_Click(Editor& editor);

// Whether Reset is coloured as having something to reset.
void colorReset(Editor& editor, bool something);

// The messages that stand after a reset and after a zoom, and while a zoom is pending.
std::string readyMessage(const Editor& editor);
std::string zoomScaleText(const Editor& editor);

// The point size at which `font` has, on the canvas at its zoom, the width that it has on paper:
// found in steps from the stored size, once per font and zoom.
Single fittedFontSize(Editor& editor, const FontSpec& font);

// The label controls follow the label table: their number, texts, fonts, places and colours.
void placeLabels(Editor& editor);
// The same after a label was added to the table, all others being in their places.
void placeLastLabel(Editor& editor);

}  // namespace ladrix
