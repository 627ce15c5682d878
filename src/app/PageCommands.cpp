#include "app/PageCommands.h"

#include <algorithm>

#include "app/Preferences.h"
#include "output/PageReplay.h"
#include "output/PrinterForms.h"
#include "output/SaveBitmap.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

Short numberInList(const std::vector<std::string>& names, const std::string& name) {
    return static_cast<Short>(std::find(names.begin(), names.end(), name) - names.begin());
}

// The form has been loaded. Where nobody can be shown a form it is closed at once.
template <class FormState>
void showUntilClosed(Program& program, Form form, FormState& state) {
    program.platform.dialogs->show(form);
    state.Visible = false;
}

PageSize pageOf(const Editor& editor) {
    return {editor.PageWidth, editor.PageHeight};
}

}  // namespace

void mnuLayoutMore_Click(Program& program) {
    frmLayout_Load(program.frmLayout, program.editor);
    showUntilClosed(program, Form::frmLayout, program.frmLayout);
}

void mnuFilePrintCircuit1_Click(Program& program) {
    frmPrinter_Load(program.editor, program.printing);
    showUntilClosed(program, Form::frmPrinter, program.printing.frmPrinter);
}

void mnuFilePrintPreview_Click(Program& program) {
    frmPreview_Load(program.frmPreview);
    program.platform.printers->refresh();
    showUntilClosed(program, Form::frmPreview, program.frmPreview);
}

void mnuOptPrinter_Click(Program& program) {
    frmPrinters_Load(program.editor, program.printing);
    showUntilClosed(program, Form::frmPrinters, program.printing.frmPrinters);
}

void cmdDefaultPrinter_Click(Program& program) {
    Printing& printing = program.printing;
    program.platform.attempt("Save Default Printer", [&] {
        takeShownPrinter(program.editor, printing);
        const std::string& name = printing.SessionPrinterName;
        const Short number = numberInList(program.platform.printers->list(), name);
        StoreSetting(program, Setting::PrinterName, name);
        StoreSetting(program, Setting::PrinterNumber, longText(number));
        StoreSetting(program, Setting::PrintLineWeight, longText(printing.PrintLineWeight));
        ReadUserPreferences(program);
        printing.frmPrinters.Visible = false;
    });
}

void mnuFileSaveBitmap_Click(Program& program) {
    SaveBitmap(program.editor, program.paths.BitmapsPath);
}

void mnuFileExport_Click(Program& program) {
    program.frmFile.FileBrowserMode = BrowserMode::SaveExport;
    program.platform.dialogs->show(Form::frmFile);
    if (program.frmFile.Chosen)
        exportDrawing(program, program.frmFile.BrowserFolder + program.frmFile.BrowserFile);
}

void exportDrawing(Program& program, const std::string& path) {
    Editor& editor = program.editor;
    program.platform.attempt("Export Drawing", [&] {
        const std::optional<PageFormat> format = pageFormatOf(path);
        if (!format)
            throw Failure{failure::InvalidCall, path + " does not end in .pdf, .svg or .png"};
        std::string leftOut;
        const PageContent page =
            drawingPage(editor.symbols, editor.drawing, program.platform, pageOf(editor), leftOut);
        program.platform.files->replace(path, program.platform.pageFiles->make(page, *format));
        if (!leftOut.empty()) program.platform.tell(leftOut, "Export");
        editor.form.lblMessage.Caption = "Exported as " + path;
    });
}

}  // namespace ladrix
