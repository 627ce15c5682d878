// Painting the canvas from the tables, and what the foot and Reset tell of its state. Nothing here
// ends what is under way.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// The canvas, the label controls and the pictures from the tables, selected items in the selection
// colour. Rebuilds the records, so that a handler that changed a column only has to call this. A
// symbol that fails is told and the rest is painted.
void RedrawDrawing(Editor& editor);

// The painting alone, for a change of the view in which no column has changed.
void paintDrawing(Editor& editor);

// The same for one place of the page, as a painting of all would leave it, labels apart: for items
// that have lost their marks. Drawn over itself an item keeps a rim of the selection colour.
void paintPlace(Editor& editor, const Extent& place);

// Wipes the canvas and paints the grid lines on it, those in view.
void DrawGrid(Editor& editor);

// Draws on the temporary layer from here on, which is wiped first.
void beginTemporaryGraphics(Editor& editor);
// Nothing temporary is left on the canvas, and it draws to stay again.
void wipeTemporaryGraphics(Editor& editor);

// The point size at which `font` has, on the canvas at its zoom, the width that it has on paper:
// found in steps from the stored size, once per font and zoom.
Single fittedFontSize(Editor& editor, const FontSpec& font);

// In what colour label i stands on the canvas: the selection's while it is selected or edited.
Long shownColor(const Editor& editor, std::size_t i);

// The label controls follow the label table: their number, texts, fonts, places and colours. The
// label being edited shows what has been typed.
void placeLabels(Editor& editor);
// The same for one label, and after one was added to the table, all others being in their places.
void placeLabel(Editor& editor, std::size_t i);
void placeLastLabel(Editor& editor);

// Whether Reset is coloured as having something to reset.
void colorReset(Editor& editor, bool something);

// The messages that stand after a reset and after a zoom, and while a zoom is pending.
std::string readyMessage(const Editor& editor);
std::string zoomScaleText(const Editor& editor);

}  // namespace ladrix
