// The commands of pages, printing, pictures of the drawing and export.
#pragma once

#include "app/Program.h"

namespace ladrix {

void mnuLayoutMore_Click(Program& program);

void mnuFilePrintCircuit1_Click(Program& program);
void mnuFilePrintPreview_Click(Program& program);
void mnuOptPrinter_Click(Program& program);
// Of frmPrinters: the printer that it shows and the line weight outlive the run.
void cmdDefaultPrinter_Click(Program& program);

void mnuFileSaveBitmap_Click(Program& program);

// Asks where to and in which format by the browser's save form.
void mnuFileExport_Click(Program& program);
// Writes the drawing to the file in the format of its ending. A failure is reported, with the
// former file as it was.
void exportDrawing(Program& program, const std::string& path);

}  // namespace ladrix
