// Labels: the names beside devices and free text, and the box in which they are typed.
#pragma once

#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

// Begins the label of a device just recorded: the label exists from here on with the prefix,
// centred on (x, y), and is open for editing in txtEdit, where typing goes on behind the prefix.
// Leaving it alone keeps the prefix. Does nothing while labels are not attached.
void BeginLabel(Editor& editor, std::string_view prefix, Single x, Single y);

// Records a label centred on (x, y) inches with the default font; an empty text becomes "Type New
// Text". Returns its index, -1 if it could not be recorded.
Short recordCentredLabel(Editor& editor, std::string_view text, Single x, Single y, Long color);

// The Text tool: its ghost on the temporary layer, centred on the point, and its placement, after
// which the text is advanced when auto increment is on.
void drawTextGhost(Editor& editor, Single x, Single y, Long color);
void placeTextLabel(Editor& editor, Single x, Single y);

// A character is typed that belongs in the Text tool's box: opens it, if no pointer move has yet.
void openTextToolByKey(Editor& editor);

// 9 becomes 10, A becomes B; Z and longer texts stay. A whole number may have any length.
std::string incrementedText(std::string_view text, char decimalMark);

void txtEdit_LostFocus(Editor& editor);
// The text has changed by typing; it holds record text only. A label being edited shows it at once.
void txtEdit_Change(Editor& editor);
// Enter ends the edit or places the text being composed.
void txtEdit_EnterPressed(Editor& editor);

// The field has kept out characters that a record cannot hold.
constexpr std::string_view RefusedTextNote =
    "A drawing can hold Western European characters only; the others are left out.";
void txtEdit_Refused(Editor& editor);

}  // namespace ladrix
