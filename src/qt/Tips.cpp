#include "qt/Tips.h"

#include <QLatin1String>
#include <QWidget>

namespace ladrix {

namespace {

struct Tip {
    const char *window, *control, *text;
};

constexpr Tip Tips[] = {
    {"frmLX", "cmdColors", "Choose a colour"},
    {"frmLX", "txtEdit", "Text of the label (Enter ends it)"},
    {"frmLX", "lblCoords", "Position of the pointer, in inches from the upper left corner"},
    {"frmLX", "lblSelected", "Number of selected items"},
    {"frmLX", "cmdPrev", "Show the user symbols to the left"},
    {"frmLX", "cmdNext", "Show the user symbols to the right"},
    {"frmLX", "cmdSaveSymbolOrder", "Keep the new order of the user symbols"},
    {"frmLX", "cmdVoltage", "Show which wires are live"},
    {"frmLX", "cmdCurrent", "Show in which wires a current flows"},
    {"frmLX", "txtTimer", "Period of the timer T1 in milliseconds; 0: it never runs out"},
    {"frmLX", "cmdTimer", "Use this period (Enter)"},

    {"frmFile", "cmdUp", "Folder above (Backspace)"},
    {"frmFile", "Dir1", "Folders of the path (Ctrl+L to type one)"},
    {"frmFile", "cmdNewFolder", "Make a folder here"},
    {"frmFile", "txtDescription", "Description kept with the drawing"},
    {"frmFile", "txtSaveAs", "Name of the file; the ending is added"},
    {"frmFile", "optFileType0", "Save as a drawing"},
    {"frmFile", "optFileType1", "Save as a template for other drawings"},
    {"frmFile", "cmdOpenOK", "Open the selected file (Enter)"},
    {"frmFile", "cmdSaveAs", "Save under this name (Enter)"},
    {"frmFile", "cmdOpenCancel", "Leave without a choice (Esc)"},
    {"frmFile", "cmdPreviewAll", "Show small previews of all drawings in this folder"},
    {"frmFile", "cmbFavorites", "Favourite folders"},
    {"frmFile", "cmdGoFavorite", "Go to the favourite folder"},
    {"frmFile", "cmdAddToFavorites", "Add this folder to the favourites"},
    {"frmFile", "mnuOptions", "Add this folder to the favourites, or manage them"},

    {"frmDesc", "txtDescription", "Note that is kept with the drawing"},
    {"frmDesc", "cmdSave", "Keep the description"},
    {"frmDesc", "cmdExit", "Leave the description as it was (Esc)"},

    {"frmLog", "txtLog", "Reports of failed steps, the newest at the end"},
    {"frmLog", "cmdExport", "Copy the log and the drawing to the Ladrix folder"},
    {"frmLog", "cmdView", "Open the log in the system's text program"},
    {"frmLog", "cmdExit", "Close the log (Esc)"},

    {"frmTextProps", "cmbFonts", "Font of the selected labels"},
    {"frmTextProps", "cmbFontSize", "Size in points"},
    {"frmTextProps", "chkFontStyle0", "Bold letters"},
    {"frmTextProps", "chkFontStyle1", "Slanting letters"},
    {"frmTextProps", "txtCaption", "Text of the label"},
    {"frmTextProps", "cmdOKTextProps", "Change the selected labels (Enter)"},
    {"frmTextProps", "cmdSet", "Use these settings for new labels"},
    {"frmTextProps", "cmdCancel", "Leave the labels as they are (Esc)"},

    {"frmFavorites", "lstFavorites", "Favourite folders in their order"},
    {"frmFavorites", "cmdBrowse", "Add a folder to the list"},
    {"frmFavorites", "cmdRemove", "Take the folder out of the list"},
    {"frmFavorites", "cmdMoveUp", "Move the folder up in the list"},
    {"frmFavorites", "cmdMoveDown", "Move the folder down in the list"},
    {"frmFavorites", "cmdSave", "Keep the list"},
    {"frmFavorites", "cmdExit", "Close the list (Esc)"},

    {"frmButtonColor", "cmdBackColor", "Background of the button"},
    {"frmButtonColor", "cmdOK", "Use this colour and go on to the insertion point (Enter)"},

    {"frmUS", "txtSymbolName", "Name of the symbol"},
    {"frmUS", "cmdSave", "Save the symbol in the current library (Enter)"},
    {"frmUS", "cmdExit", "Do not save the symbol (Esc)"},

    {"frmUBRows", "cmbRows", "Buttons in a column, 21 to 36"},
    {"frmUBRows", "cmdSave", "Use this number of rows (Enter)"},

    {"frmLibManager", "cmbSourceLibrary", "Library to take symbols from"},
    {"frmLibManager", "cmdOpen", "Show the symbols of the source library"},
    {"frmLibManager", "lstSelected", "Selected symbols; click one to preview it"},
    {"frmLibManager", "lstDestinationLibrary", "Library to copy or move to"},
    {"frmLibManager", "cmdCopy", "Copy the selected symbols to the destination"},
    {"frmLibManager", "cmdMove", "Move the selected symbols to the destination"},
    {"frmLibManager", "cmdDelete", "Delete the selected symbols and their files"},
    {"frmLibManager", "picPreview", "Click to preview the symbol here"},
    {"frmLibManager", "cmbScale", "Scale of the preview"},
    {"frmLibManager", "cmdExit", "Close the manager"},

    {"frmRemoved", "lstRemoved", "Removed symbols and libraries, the newest first"},
    {"frmRemoved", "cmdBringBack", "Put it back (Enter)"},
    {"frmRemoved", "cmdExit", "Close the list (Esc)"},

    {"frmLayout", "optOrient0", "Upright page"},
    {"frmLayout", "optOrient1", "Wide page"},
    {"frmLayout", "cmdOK", "Use this page for the drawing (Enter)"},
    {"frmLayout", "cmdExit", "Leave the page as it is (Esc)"},

    {"frmPreview", "cmbZoom", "Size of the page on the screen"},
    {"frmPreview", "cmdPrint", "Choose a printer and print"},
    {"frmPreview", "cmdClose", "Close the preview (Esc)"},

    {"frmPrinter", "cmbPrinters", "Printer to print on"},
    {"frmPrinter", "txtCopies", "Number of copies"},
    {"frmPrinter", "cmdPrint", "Print the drawing (Enter)"},
    {"frmPrinter", "cmdCancelPrint", "Stop after the present copy (Esc)"},

    {"frmPrinters", "cmbPrinters", "Printer to print on"},
    {"frmPrinters", "cmbLineWeight", "Thickness of printed lines, 1 to 6"},
    {"frmPrinters", "cmdPrinter", "Use this printer until the program ends"},
    {"frmPrinters", "cmdDefaultPrinter", "Keep this printer and line weight"},
    {"frmPrinters", "cmdExit", "Leave the printer as it is (Esc)"},
};

}  // namespace

void giveTips(QWidget& window) {
    for (const Tip& tip : Tips) {
        if (window.objectName() != QLatin1String(tip.window)) continue;
        auto* const control = window.findChild<QWidget*>(QLatin1String(tip.control));
        if (control && control->toolTip().isEmpty())
            control->setToolTip(QString::fromLatin1(tip.text));
    }
}

}  // namespace ladrix
