#include "output/PrinterForms.h"

#include <algorithm>

#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Short BackspaceKey = 8, EnterKey = 13;
constexpr std::string_view NoDefaultPrinter = "No Default Printer Found";

bool holds(const std::vector<std::string>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

void makeCurrent(const Editor& editor, const std::string& name) {
    if (!editor.platform.printers->choose(name))
        throw Failure{failure::InvalidCall, "There is no printer \"" + name + "\"."};
}

void chooseSessionPrinter(const Editor& editor, const Printing& printing) {
    if (!printing.PrinterUsed) editor.platform.printers->choose(printing.SessionPrinterName);
}

void listPrinters(const Editor& editor, PrinterForm& form) {
    form.cmbPrinters.List = editor.platform.printers->list();
    if (!form.PrinterPicked)
        form.cmbPrinters.Text = editor.platform.printers->current().DeviceName();
}

void listPrinters(const Editor& editor, const Printing& printing, PrintersForm& form) {
    const std::string shown = form.cmbPrinters.Text;
    form.cmbPrinters.List = editor.platform.printers->list();
    if (holds(form.cmbPrinters.List, shown)) return;
    form.cmbPrinters.Text = holds(form.cmbPrinters.List, printing.SessionPrinterName)
                                ? printing.SessionPrinterName
                                : std::string(NoDefaultPrinter);
}

void showLineWeight(Printing& printing) {
    const Short weight = printing.PrintLineWeight;
    const char* word = weight <= 2 ? "Thin" : weight <= 4 ? "Medium" : "Heavy";
    printing.frmPrinters.lblLineWeight.Caption = "Line Weight = " + longText(weight) + ", " + word;
}

}  // namespace

void printersChanged(Editor& editor, Printing& printing) {
    if (!printing.Running) chooseSessionPrinter(editor, printing);
    if (printing.frmPrinter.Visible) listPrinters(editor, printing.frmPrinter);
    if (printing.frmPrinters.Visible) listPrinters(editor, printing, printing.frmPrinters);
}

void frmPrinter_Load(Editor& editor, Printing& printing) {
    printing.frmPrinter = {};
    printing.frmPrinter.Visible = true;
    printing.frmPrinter.txtCopies.Text = longText(printing.PrintCopies);
    // What was cancelled was a former print.
    printing.CancelPrint = false;
    chooseSessionPrinter(editor, printing);
    listPrinters(editor, printing.frmPrinter);
    editor.platform.printers->refresh();
}

void frmPrinter_cmbPrinters_Click(Printing& printing, const std::string& name) {
    printing.frmPrinter.cmbPrinters.Text = name;
    printing.frmPrinter.PrinterPicked = true;
}

void txtCopies_Change(Printing& printing, const std::string& text) {
    printing.frmPrinter.txtCopies.Text = text;
}

bool copiesKeyAllowed(Short keyAscii) {
    return (keyAscii >= '0' && keyAscii <= '9') || keyAscii == BackspaceKey;
}

void txtCopies_KeyDown(Printing& printing, Short keyCode) {
    if (keyCode == EnterKey) ++printing.frmPrinter.PrintFocusRequests;
}

void cmdPrint_Click(Editor& editor, Printing& printing) {
    if (printing.Running) return;
    editor.platform.attempt("Print Button", [&] {
        makeCurrent(editor, printing.frmPrinter.cmbPrinters.Text);
        printing.PrintCopies = toShort(printing.frmPrinter.txtCopies.Text);
        printing.PrinterUsed = true;
        PrintDrawing(editor, printing);
    });
}

void cmdCancelPrint_Click(Printing& printing) {
    printing.CancelPrint = true;
    printing.frmPrinter.Visible = false;
}

void frmPrinters_Load(Editor& editor, Printing& printing) {
    PrintersForm& form = printing.frmPrinters;
    form = {};
    form.Visible = true;
    for (Short weight = LeastLineWeight; weight <= HeaviestLineWeight; ++weight)
        form.cmbLineWeight.List.push_back(longText(weight));
    form.cmbLineWeight.Text = longText(printing.PrintLineWeight);
    showLineWeight(printing);
    listPrinters(editor, printing, form);
    editor.platform.printers->refresh();
}

void frmPrinters_cmbPrinters_Click(Printing& printing, const std::string& name) {
    printing.frmPrinters.cmbPrinters.Text = name;
}

void cmbLineWeight_Click(Editor& editor, Printing& printing, Short weight) {
    printing.PrintLineWeight = std::clamp(weight, LeastLineWeight, HeaviestLineWeight);
    editor.symbols.PrinterLineWidth = printing.PrintLineWeight;
    printing.frmPrinters.cmbLineWeight.Text = longText(printing.PrintLineWeight);
    showLineWeight(printing);
}

void drawLineWeightSample(const Printing& printing, Surface& picLineWeight) {
    picLineWeight.DrawWidth = printing.PrintLineWeight;
    picLineWeight.Line(0, 0.5f, 10, 0.5f, Black, LineForm::Plain);
}

void takeShownPrinter(Editor& editor, Printing& printing) {
    makeCurrent(editor, printing.frmPrinters.cmbPrinters.Text);
    printing.SessionPrinterName = editor.platform.printers->current().DeviceName();
}

void cmdPrinter_Click(Editor& editor, Printing& printing) {
    editor.platform.attempt("Save Printer for Session", [&] {
        takeShownPrinter(editor, printing);
        editor.platform.tell(printing.SessionPrinterName + " saved for current session.");
        printing.frmPrinters.Visible = false;
    });
}

void frmPrinters_cmdExit_Click(Printing& printing) {
    printing.frmPrinters.Visible = false;
}

}  // namespace ladrix
