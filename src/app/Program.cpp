#include "app/Program.h"

#include "app/FailureLog.h"
#include "canvas/history/History.h"
#include "canvas/labels/Labels.h"
#include "output/PrinterForms.h"
#include "usersymbols/Compiler.h"
#include "usersymbols/Script.h"

namespace ladrix {

Program::Program(Platform& machine) : platform(machine), editor(machine) {
    platform.ReportError = [this](std::string_view description, const Failure& failure) {
        ReportError(*this, description, failure);
    };
    platform.files->ReportError = platform.ReportError;
    editor.symbols.BeginLabel = [this](std::string_view prefix, Single x, Single y) {
        BeginLabel(editor, prefix, x, y);
    };
    editor.drawing.TakeUndoSnapshot = [this] { TakeUndoSnapshot(editor); };
    editor.FileTouched = [this] { KeepRecentFile(*this); };
    editor.symbols.DrawUserSymbol = [this](const DeviceBlock& block) {
        drawToolsUserSymbol(usersymbols, editor, block);
    };
    editor.SymbolPointTaken = [this](Single x, Single y, Short label) {
        takeInsertionPoint(usersymbols, editor, x, y, label);
    };
    usersymbols.NoteRepair = [this](std::string_view line) { appendErrorMessage(*this, line); };
    connectSimulation(simulation, editor);
    ClearHistory(editor);
    if (platform.printers)
        platform.printers->changed = [this] { printersChanged(editor, printing); };
}

}  // namespace ladrix
