// How the page lies in the frame: page size, scroll bars, grid. All drawing coordinates are inches
// of the page, whatever the view. A change of the view paints the drawing once and touches no
// table.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// The frame's inner size has changed; twips, both above 0.
void Form_Resize(Editor& editor, Single frameWidth, Single frameHeight);

// Page size, canvas scale and a redraw by PageLayoutKey. A key that is not in the table leaves all
// sizes as they are.
void ApplyPageLayout(Editor& editor);

// The view of a drawing just read: the page by its key, then as after ResetZoom. Nothing is
// painted; the caller redraws.
void layOutNewPage(Editor& editor);

// The page by its key under the present zoom, scrolled as it was as far as the page allows. Nothing
// is painted; the caller redraws.
void keepViewOnNewPage(Editor& editor);

// 100 percent, scrolled to the upper left.
void ResetZoom(Editor& editor);

// How much of the page the frame shows at this zoom.
void measureFrame(Editor& editor);

// Measures the frame, then the bars' ranges, whether they are needed, and their values from the
// scroll targets, which are held within. Neither scrolls nor paints.
void ArrangeScrollBars(Editor& editor);

// The bar's value has changed, by a drag or by its keys: the view follows.
void HScroll1_Change(Editor& editor);
void VScroll1_Change(Editor& editor);

// To the foot and to the head of the page.
void MovePageDown(Editor& editor);
void MovePageUp(Editor& editor);

// The view takes its place from the bars' values and is painted.
void showScrolledView(Editor& editor);

// Puts the view's upper left corner there, as near as the page allows and finer than the bars'
// hundredths of an inch; their values follow. Does not paint.
void placeView(Editor& editor, Single left, Single top);

// As placeView, and paints if the view has moved: for the wheel and a dragged page.
void ScrollTo(Editor& editor, Single left, Single top);

}  // namespace ladrix
