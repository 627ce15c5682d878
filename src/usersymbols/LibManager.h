// frmLibManager, the library manager: symbols of a source library are looked at, selected, deleted,
// put in order, and copied or moved to a destination; libraries are made, renamed and deleted. It
// works on tables of its own: the main window's library stays as it is until the form is closed.
//
// Files change in the order that SymbolFiles.h tells, so that a kill at any moment loses nothing.
// A handler that fails reports once and shows what is then on disk.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "canvas/gestures/Selection.h"
#include "canvas/state/Editor.h"
#include "canvas/tools/ScaleBox.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

// One source symbol's state in the form.
struct ManagerSymbol {
    bool Selected = false, Previewed = false;
    Single X = 0, Y = 0;  // where it was previewed, inches
    std::string Name;
    Single ScaleX = 1, ScaleY = 1;
};

struct LibManager {
    bool Visible = false;

    // Source and destination. Names as of the main window's library; both lie in the data folder
    // unless the main window's own was opened elsewhere. "" for no destination.
    std::string ManagerSourceFile, ManagerSourceName, ManagerSourceFolder;
    std::string ManagerParentFolder;
    std::vector<std::string> ManagerSourceLines;
    std::string ManagerDestFile, ManagerDestName, ManagerDestFolder;
    std::vector<std::string> ManagerDestLines;
    bool ManagerSourceMissing = false;

    // The source's symbols in the order of the buttons.
    std::vector<std::string> ManagerSymbolName, ManagerSymbolFile, ManagerSymbolScript;
    std::vector<std::shared_ptr<const Picture>> ManagerSymbolPicture, ManagerSymbolCyanPicture;
    std::vector<ManagerSymbol> ManagerSymbolState;
    std::vector<std::string> ManagerUnread;  // listed, there, but not to be read: they stay listed
    std::vector<ButtonPlace> ManagerButtonPlace;

    Short ManagerSelectedCount = 0;
    Short ManagerCurrent = -1;  // the last clicked symbol; -1: none
    bool ManagerCopying = false, ManagerLoading = false, ManagerArranging = false;
    Short ManagerDragSource = -1;

    ComboBox cmbSourceLibrary, cmbScale;
    ListBox lstSelected, lstDestinationLibrary;
    Control cmdOpen, cmdCopy, cmdMove, cmdDelete, cmdExit;
    ScrollBar HScroll1;                      // columns
    std::unique_ptr<PictureBox> picPreview;  // inches; null until the view has given it a size
    unsigned PreviewVersion = 0;             // raised by every change of the picture
    unsigned ButtonVersion = 0;              // raised by every change of the symbols' buttons

    int symbolCount() const { return static_cast<int>(ManagerSymbolName.size()); }
};

// The command of the main window; the form is modal.
void mnuLibManageUserLibraries_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);
// Empties the tables; the main window then shows what was done.
void frmLibManager_Unload(LibManager& manager, UserSymbols& symbols, Editor& editor);

// --- The source
void cmdOpen_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);
void frmLibManager_cmdSym_Click(LibManager& manager, Short symbol);
void HScroll1_Change(LibManager& manager, int value);
void mnuEditSelectAll_Click(LibManager& manager);
void mnuEditDeselectAll_Click(LibManager& manager);
void cmdDelete_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);

// --- The order. A drop on a symbol's button moves the one that was dragged.
void mnuEditEnableOrderChange_Click(LibManager& manager, Editor& editor);
bool beginManagerDrag(LibManager& manager, Short symbol);
void frmLibManager_cmdSym_DragDrop(LibManager& manager, Short symbol);
void mnuFileSaveOrder_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);

// --- The destination
void lstDestinationLibrary_Click(LibManager& manager, Editor& editor, int row);
void cmdCopy_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);
void cmdMove_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);

// --- The preview. Sizes in pixels, places in inches.
void picPreview_Resize(LibManager& manager, Editor& editor, int width, int height,
                       double pixelsPerInch);
void lstSelected_Click(LibManager& manager, Editor& editor, int row);
void picPreview_MouseDown(LibManager& manager, Editor& editor, Single x, Single y);
void cmbScale_Click(LibManager& manager, Editor& editor);   // chosen from the list
void cmbScale_Change(LibManager& manager, Editor& editor);  // typed
void mnuEditClear_Click(LibManager& manager);

// --- Whole libraries
void mnuFileNew_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);
void mnuFileName_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);
void mnuFileDelete_Click(LibManager& manager, UserSymbols& symbols, Editor& editor);

}  // namespace ladrix
