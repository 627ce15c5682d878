// Writing the drawing under its name, with its pictures beside it.
#pragma once

#include <string>

#include "canvas/file/SaveGuard.h"
#include "canvas/state/Editor.h"

namespace ladrix {

enum class SaveResult {
    Saved,
    Refused,        // by the program or the user: the file is as it was
    Failed,         // likewise, by the system; reported
    LeftToBrowser,  // which asked for a name, and is gone again
};

struct SaveOutcome {
    SaveResult result = SaveResult::Saved;
    std::string why = {};         // of a drawing that was not saved, as the user was told
    After next = After::Nothing;  // what was asked for and is left to the caller
};

// CurrentFileName in CurrentFolder. A drawing that is not saved keeps its mark of change; so does
// one whose pictures could not all be written, though its text stands on disk. What was asked for
// is the caller's to go on with.
SaveOutcome saveUnderName(Editor& editor, SaveName name);

// The demonstration drawings, which only their author saves.
bool isDemo(const Drawing& drawing);

// The drawing's file has been read or written, and holds this text now.
void fileTouched(Editor& editor, std::string_view text);

}  // namespace ladrix
