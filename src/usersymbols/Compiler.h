// From a selection on the canvas to a user symbol: script, export text and icons. Two passes around
// one click: the first asks for the button's colour, the second compiles what is selected then,
// relative to the point that was clicked. Nothing is written to disk before frmUS saves it.
//
// The collected items follow one policy: a step that fails is skipped and the next one runs.
#pragma once

#include <string_view>

#include "canvas/state/Editor.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

// The command: tells if nothing is selected, else runs the first pass.
void mnuEditSaveUserSymbol_Click(UserSymbols& symbols, Editor& editor);

// The click that was waited for, by the editor's hook SymbolPointTaken. X and Y are inches; `label`
// is the label that was clicked, -1 for the canvas: a click on a label makes a symbol of the
// selected labels alone.
void takeInsertionPoint(UserSymbols& symbols, Editor& editor, Single x, Single y, Short label);

// Copy what is selected into the compiler's tables and find the box.
void CollectSelectedItems(SymbolCompiler& compiler, const Drawing& drawing);
void CollectSelectedLabels(SymbolCompiler& compiler, const Drawing& drawing, Fonts& fonts);

// The pass that is due (Editor::SymbolPointFound tells the second). The first shows frmButtonColor,
// the second ends in frmUS; both forms are modal. A second pass without items does nothing.
void CompileUserSymbol(UserSymbols& symbols, Editor& editor);
void CompileLabelSymbol(UserSymbols& symbols, Editor& editor);

// The lines of the collected items and labels, relative to the insertion point, into
// SymbolScriptText and SymbolExportText. Pure text.
void compileScript(SymbolCompiler& compiler, char decimalMark);

// Makes frmUS's three pictures anew, empty, at the size of a button's icon.
void makeIconPictures(UserSymbols& symbols, const Platform& platform);
// Draws the collected items on them, fitted and centred.
void drawSymbolIcons(UserSymbols& symbols);

// The command: asks for a name and begins a symbol export file in the program's folder.
void mnuAdminCreateSymbolExportFile_Click(UserSymbols& symbols, Editor& editor);
// A symbol has been saved under this name: its export text is added to the open export file, if
// any, and given up. Throws a Failure.
void appendToExportFile(SymbolCompiler& compiler, Files& files, std::string_view name);

}  // namespace ladrix
