// The drawing on the printer: the tables replayed on the printer's page, whose scale is the
// drawing's own inches.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "canvas/state/Controls.h"
#include "canvas/state/Editor.h"

namespace ladrix {

constexpr Short LeastLineWeight = 1, HeaviestLineWeight = 6, DefaultLineWeight = 2;

// frmPrinter: print now.
struct PrinterForm {
    bool Visible = false;
    ComboBox cmbPrinters;
    bool PrinterPicked = false;  // a person has chosen in the list
    TextBox txtCopies;
    Control lblPrinting;         // "Printing 1 of 3" while it prints
    Single Progress = 0;         // of all copies, 0 to 1
    int PrintFocusRequests = 0;  // cmdPrint takes the focus whenever this has grown
};

// frmPrinters: which printer, and how thick the lines.
struct PrintersForm {
    bool Visible = false;
    ComboBox cmbPrinters, cmbLineWeight;
    Control lblLineWeight;
};

struct Printing {
    Short PrintCopies = 1;
    bool CancelPrint = false;  // no further copy is begun
    bool Running = false;      // a document is being printed
    Short PrintLineWeight = DefaultLineWeight;
    std::string SessionPrinterName;
    std::optional<Short> SessionPrinterNumber;  // as stored; the name is what counts
    bool PrinterUsed = false;  // something has been printed: the session's printer waits no longer
    // A trace of the run: reading the printer's values, setting the paper, the second attempt at
    // it, a refused value, a reported failure.
    std::array<Long, 5> PrintStatus{};
    PrinterForm frmPrinter;
    PrintersForm frmPrinters;
};

struct Paper {
    Short PaperSize = 1;
    Short Orientation = PortraitPaper;
};

// The printer's paper for a page key; Letter for an unknown one.
Paper paperFor(std::string_view pageKey);

// PrintCopies copies of the drawing on the current printer. Lets events run meanwhile; a cancel
// takes effect between copies. A failure is reported once, nothing of it is printed, and the tables
// are left alone.
void PrintDrawing(Editor& editor, Printing& printing);

// One page on a printer whose scale has been set: what PrintDrawing draws for each copy. `progress`
// is called every few items with the share done, 0 to 1.
void printPage(Editor& editor, Printer& printer, Short lineWeight,
               const std::function<void(Single)>& progress);

}  // namespace ladrix
