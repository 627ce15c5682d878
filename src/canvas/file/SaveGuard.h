// What stands between a save and the file that it replaces: a file that is not as this run knows it
// is replaced only when the user says so, and what it held goes to the backup copies first.
#pragma once

#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

// The name under which a drawing is saved: its own, or one that the browser has just asked for.
enum class SaveName { Own, Chosen };

// Asks what must be asked and keeps the backup copy. False if the file is to stay as it is. A
// chosen name has been asked about already: only a missing backup is asked about. Throws a Failure
// where the system cannot tell what stands there.
bool MayReplaceFile(Editor& editor, std::string_view newText, SaveName name);

// The drawing's file holds this text now.
void RememberFile(Editor& editor, std::string_view text);

// The folder of the present drawing's backup copies; "" for an untitled one.
std::string BackupsOfDrawing(const Editor& editor);

}  // namespace ladrix
