// The two dialogs about printing, as state: frmPrinter prints now, frmPrinters chooses the printer
// and how thick its lines are. What it stores in the preferences is for the layer above.
#pragma once

#include "output/PrintDrawing.h"

namespace ladrix {

// The list of printers has become longer or shorter: the session's printer takes its place, and
// the forms that are up show the list.
void printersChanged(Editor& editor, Printing& printing);

void frmPrinter_Load(Editor& editor, Printing& printing);
void frmPrinter_cmbPrinters_Click(Printing& printing, const std::string& name);
void txtCopies_Change(Printing& printing, const std::string& text);
bool copiesKeyAllowed(Short keyAscii);  // digits and Backspace
void txtCopies_KeyDown(Printing& printing, Short keyCode);
void cmdPrint_Click(Editor& editor, Printing& printing);
// While a document is printed the form stays until the copy under way is done.
void cmdCancelPrint_Click(Printing& printing);

void frmPrinters_Load(Editor& editor, Printing& printing);
void frmPrinters_cmbPrinters_Click(Printing& printing, const std::string& name);
void cmbLineWeight_Click(Editor& editor, Printing& printing, Short weight);
// The line as it will print, on a surface of 10 by 1 units.
void drawLineWeightSample(const Printing& printing, Surface& picLineWeight);
void cmdPrinter_Click(Editor& editor, Printing& printing);
void frmPrinters_cmdExit_Click(Printing& printing);

// Makes the printer that frmPrinters shows the current one and the session's. Throws a Failure if
// there is no such printer.
void takeShownPrinter(Editor& editor, Printing& printing);

}  // namespace ladrix
