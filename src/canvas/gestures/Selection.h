// Selecting: every pick is a toggle, and items add up until a reset. The marks are columns of the
// tables (DeviceSelected, LabelSelected, PictureRow::Selected); a selected item is painted in
// SelectionColor and keeps its own colour. A pick paints the item over itself, or its place anew
// once it has lost its mark, nothing else, and rebuilds no record. The tool strip's panel follows:
// it has the figures of a circle or an arc while all selected devices have one name.
#pragma once

#include "canvas/state/Editor.h"

namespace ladrix {

// A press on the canvas with no tool: each line under the point. A line on an axis is picked near
// it, any line within its bounding rectangle; one that is both is toggled twice.
void pickLines(Editor& editor, Single x, Single y);

// The grip stands on a device's insertion point; a click on it toggles every device there. The
// right button opens the menu.
void picGrip_Click(Editor& editor);
void picGrip_MouseDown(Editor& editor, Short button);

// What lies strictly within the band: the insertion points of devices, the corners of labels, whole
// pictures.
void pickInBand(Editor& editor);

// Marks the picture, or takes its mark away.
void markPicture(Editor& editor, std::size_t i, bool selected);

void mnuEditSelectAll_Click(Editor& editor);
void mnuEditDelete_Click(Editor& editor);

// Takes the selected items out of the drawing; one undo step. With nothing selected it tells so.
void DeleteSelection(Editor& editor);

// Moves every selected item, of a line or square both corners. False if nothing is selected.
bool moveSelectedItems(Drawing& drawing, Single dx, Single dy);

}  // namespace ladrix
