// What stands between a save and the file that it replaces: a file that is not as this run knows it
// is replaced only when the user says so, and what it held goes to the backup copies first.
#pragma once

#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

// Asks what must be asked and keeps the backup copy. False if the file is to stay as it is. Save As
// has asked for the name in the browser already: only a missing backup is asked about. Throws a
// Failure where the system cannot tell what stands there.
bool MayReplaceFile(Editor& editor, std::string_view newText);

// The drawing's file holds this text now.
void RememberFile(Editor& editor, std::string_view text);

// The folder of the present drawing's backup copies; "" for an untitled one.
std::string BackupsOfDrawing(const Editor& editor);

}  // namespace ladrix
