#include "usersymbols/UserButtonOrder.h"

#include "usersymbols/Libraries.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

PaletteButton& buttonAt(Editor& editor, Short button) {
    return editor.form.cmdSym[static_cast<std::size_t>(button)];
}

// Everything of a symbol moves with its name, so that a button stays what it shows.
void moveSymbol(UserSymbols& symbols, std::size_t from, std::size_t to) {
    moveRow(symbols.UserSymbolName, from, to);
    moveRow(symbols.UserSymbolFile, from, to);
    moveRow(symbols.UserSymbolScript, from, to);
    moveRow(symbols.UserSymbolPicture, from, to);
    moveRow(symbols.UserSymbolCyanPicture, from, to);
}

void relabelButtons(UserSymbols& symbols, Editor& editor) {
    for (Short button = symbols.FirstUserButton; button < symbols.LastUserButton; ++button) {
        PaletteButton& shown = buttonAt(editor, button);
        const auto row = static_cast<std::size_t>(symbolOfButton(symbols, button));
        shown.Tag = symbols.UserSymbolName[row];
        shown.UpPicture = symbols.UserSymbolPicture[row];
        shown.CyanPicture = symbols.UserSymbolCyanPicture[row];
    }
    ++editor.form.PaletteVersion;
}

void endMode(UserSymbols& symbols, Editor& editor) {
    editor.Arranging = false;
    symbols.drag = {};
    symbols.cmdSaveSymbolOrder.Visible = false;
    ++editor.form.PaletteVersion;
}

}  // namespace

void mnuLibManageOrder_Click(UserSymbols& symbols, Editor& editor) {
    editor.platform.tell(OrderMessage);
    editor.Arranging = true;
    symbols.drag = {};
    symbols.cmdSaveSymbolOrder.Caption = SaveOrderCaption;
    symbols.cmdSaveSymbolOrder.Visible = true;
    ++editor.form.PaletteVersion;
}

bool beginButtonDrag(UserSymbols& symbols, Editor& editor, Short button) {
    if (!editor.Arranging || symbolOfButton(symbols, button) < 0) return false;
    const PaletteButton& source = buttonAt(editor, button);
    symbols.drag = {button, source.UpPicture, source.Tag};
    return true;
}

void cmdSym_DragDrop(UserSymbols& symbols, Editor& editor, Short button) {
    const Short from = symbolOfButton(symbols, symbols.drag.Source);
    const Short to = symbolOfButton(symbols, button);
    symbols.drag = {};
    if (from < 0 || to < 0 || from == to) return;
    moveSymbol(symbols, static_cast<std::size_t>(from), static_cast<std::size_t>(to));
    relabelButtons(symbols, editor);
}

void leaveButtonOrder(UserSymbols& symbols, Editor& editor) {
    if (!editor.Arranging) return;
    endMode(symbols, editor);
    editor.platform.attempt("Change Order of User Buttons",
                            [&] { ReloadLibrary(symbols, editor); });
}

void cmdSaveSymbolOrder_Click(UserSymbols& symbols, Editor& editor) {
    symbols.drag = {};
    editor.platform.attempt("Save User Symbol Order", [&] {
        WriteLibraryStructure(symbols, editor);
        endMode(symbols, editor);
        resetTool(editor);
        ReloadLibrary(symbols, editor);
    });
    ++editor.form.PaletteVersion;
}

}  // namespace ladrix
