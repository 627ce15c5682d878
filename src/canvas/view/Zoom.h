// Magnification of the view in steps of 1.25 around a point of the page, from -5 to 14 steps. Each
// step paints the drawing once.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// One step at ZoomPointX, ZoomPointY. The share of the view at which the point stands is taken
// where the zoom leaves 100 percent, and kept for the steps after it. Beyond the last step a
// message and a reset.
void ZoomIn(Editor& editor);
void ZoomOut(Editor& editor);

// Every press on the canvas zooms from here on, until a reset or a tool. Ends the tool in hand.
void cmdZoomIn_Click(Editor& editor);
void cmdZoomOut_Click(Editor& editor);

// At once, at the last point. The keys do the same.
void mnuEditZoomIn_Click(Editor& editor);
void mnuEditZoomOut_Click(Editor& editor);

// The largest step at which the whole width of the page fits the frame, scrolled to the top.
void zoomToPageWidth(Editor& editor);

// The press of a pending zoom.
void zoomAtPress(Editor& editor, Single x, Single y);

// One step with this point of the page staying where it is on the screen. Leaves what is under way
// alone; at the last step it says so and asks for no answer.
enum class ZoomStep { In, Out };
void zoomByWheel(Editor& editor, ZoomStep step, Single x, Single y);

}  // namespace ladrix
