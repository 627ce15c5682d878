// How the page lies in the frame: page size, scroll bars, grid. All drawing coordinates are inches
// of the page, whatever the view.
#pragma once

#include "canvas/Editor.h"

namespace ladrix {

// The frame's inner size has changed; twips, both above 0.
void Form_Resize(Editor& editor, Single frameWidth, Single frameHeight);

// Page size, canvas scale and a redraw by PageLayoutKey. A key that is not in the table leaves all
// sizes as they are.
void ApplyPageLayout(Editor& editor);

// The view of a drawing just read: the page by its key, then as after ResetZoom. Nothing is
// painted; the caller redraws.
void layOutNewPage(Editor& editor);

// 100 percent, scrolled to the upper left.
void ResetZoom(Editor& editor);

// The bars' ranges and whether they are needed; their values are held within.
void ArrangeScrollBars(Editor& editor);

// The bar's value has changed, by a drag or by its keys.
void HScroll1_Change(Editor& editor);
void VScroll1_Change(Editor& editor);

// Wipes the canvas and paints the grid lines on it.
void DrawGrid(Editor& editor);

void showSnapStep(Editor& editor);

}  // namespace ladrix
