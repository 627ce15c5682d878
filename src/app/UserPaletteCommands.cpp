#include "app/UserPaletteCommands.h"

#include <algorithm>
#include <cmath>

#include "app/Preferences.h"
#include "platform/Numbers.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/UserButtonOrder.h"

namespace ladrix {

void mnuLibManageUserLibraries_Click(Program& program) {
    mnuLibManageUserLibraries_Click(program.frmLibManager, program.usersymbols, program.editor);
}

void mnuLibFind_Click(Program& program) {
    mnuLibFind_Click(program.frmFind, program.usersymbols, program.editor);
}

void mnuLibBringBack_Click(Program& program) {
    mnuLibBringBack_Click(program.frmRemoved, program.usersymbols, program.editor);
}

void mnuLibManageOrder_Click(Program& program) {
    mnuLibManageOrder_Click(program.usersymbols, program.editor);
}

void mnuLibManageRows_Click(Program& program) {
    program.usersymbols.frmUBRows.Visible = true;
    program.platform.dialogs->show(Form::frmUBRows);
}

void frmUBRows_Load(Program& program) {
    FormUBRows& form = program.usersymbols.frmUBRows;
    form.cmdSave.Caption = "Save";
    form.cmbRows.List.clear();
    for (Short rows = FewestPaletteRows; rows <= MostPaletteRows; ++rows)
        form.cmbRows.List.push_back(longText(rows));
    form.cmbRows.Text = longText(program.usersymbols.PaletteRows);
}

void frmUBRows_cmdSave_Click(Program& program) {
    UserSymbols& symbols = program.usersymbols;
    const auto typed = typedNumber(symbols.frmUBRows.cmbRows.Text);
    if (!typed) return;
    const Single rows = std::clamp(*typed, Single{FewestPaletteRows}, Single{MostPaletteRows});
    symbols.PaletteRows = static_cast<Short>(std::lround(rows));
    StoreSetting(program, Setting::PaletteRows, longText(symbols.PaletteRows));
    program.platform.attempt("Number of Displayed Rows", [&] {
        ListUserLibraries(symbols, program.editor);
        ReloadLibrary(symbols, program.editor);
    });
    symbols.frmUBRows.Visible = false;
}

}  // namespace ladrix
