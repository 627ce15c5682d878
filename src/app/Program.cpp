#include "app/Program.h"

#include "app/FailureLog.h"
#include "canvas/Labels.h"
#include "canvas/Undo.h"

namespace ladrix {

Program::Program(Platform& machine) : platform(machine), editor(machine) {
    platform.ReportError = [this](std::string_view description, const Failure& failure) {
        ReportError(*this, description, failure);
    };
    editor.symbols.BeginLabel = [this](std::string_view prefix, Single x, Single y) {
        BeginLabel(editor, prefix, x, y);
    };
    editor.drawing.TakeUndoSnapshot = [this] { TakeUndoSnapshot(editor); };
    editor.ClearHistory = [this] { ClearHistory(editor); };
    editor.FileTouched = [this] { KeepRecentFile(*this); };
    ClearHistory(editor);
}

}  // namespace ladrix
