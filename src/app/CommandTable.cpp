#include "app/CommandTable.h"

#include <array>

#include "app/CommandHandlers.h"
#include "app/FailureLog.h"
#include "app/FileCommands.h"
#include "app/FileMenu.h"
#include "app/HelpContexts.h"
#include "app/LibraryCommands.h"
#include "app/LineOptions.h"
#include "app/PageCommands.h"
#include "app/RecentFiles.h"
#include "app/SimulationCommands.h"
#include "app/UserPaletteCommands.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/CopyMove.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/gestures/Selection.h"
#include "canvas/history/Undo.h"
#include "canvas/labels/LabelCommands.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/tools/Colors.h"
#include "canvas/tools/LineWidth.h"
#include "canvas/tools/PaletteButtons.h"
#include "canvas/tools/Tools.h"
#include "canvas/view/Background.h"
#include "canvas/view/Snap.h"
#include "canvas/view/Stretch.h"
#include "canvas/view/Zoom.h"

namespace ladrix {

namespace {

template <void (*Handler)(Editor&)>
void onEditor(Program& program) {
    Handler(program.editor);
}

void showTextProperties(Program& program) {
    mnuEditTextProps_Click(program.frmTextProps, program.editor);
}

// clang-format off
constexpr Command Commands[] = {
    {Menu::mnuFile, Menu::mnuFile, "mnuFile", "&File", "", nullptr, false, false},
    {Menu::mnuFileNew, Menu::mnuFile, "mnuFileNew", "New Drawing", "Ctrl+N", onEditor<mnuFileNew_Click>, false, false},
    {Menu::mnuFileOpen, Menu::mnuFile, "mnuFileOpen", "Open Existing Drawing", "Ctrl+O", onEditor<mnuFileOpen_Click>, false, false},
    {Menu::mnuFileOpenViewer, Menu::mnuFile, "mnuFileOpenViewer", "Open File Viewer", "", nullptr, false, false},
    {Menu::mnuFileSave, Menu::mnuFile, "mnuFileSave", "Save Current Drawing", "Ctrl+S", onEditor<mnuFileSave_Click>, true, false},
    {Menu::mnuFileSaveAs, Menu::mnuFile, "mnuFileSaveAs", "Save &As", "Ctrl+Shift+S", onEditor<mnuFileSaveAs_Click>, false, false},
    {Menu::mnuFileSaveBitmap, Menu::mnuFile, "mnuFileSaveBitmap", "Save Image as Bitmap", "", mnuFileSaveBitmap_Click, true, false},
    {Menu::mnuFileExport, Menu::mnuFile, "mnuFileExport", "Export...", "", mnuFileExport_Click, false, false},
    {Menu::mnuFileDrawCircuit1, Menu::mnuFile, "mnuFileDrawCircuit1", "Draw Circuit 1", "", nullptr, false, false},
    {Menu::mnuFilePrintCircuit1, Menu::mnuFile, "mnuFilePrintCircuit1", "Print Circuit", "Ctrl+P", mnuFilePrintCircuit1_Click, false, false},
    {Menu::mnuFilePrintPreview, Menu::mnuFile, "mnuFilePrintPreview", "Print Preview", "", mnuFilePrintPreview_Click, false, false},
    {Menu::mnuFileRestore, Menu::mnuFile, "mnuFileRestore", "&Restore File from Crash", "", onEditor<mnuFileRestore_Click>, true, false},
    {Menu::mnuFileBackups, Menu::mnuFile, "mnuFileBackups", "Open Backup of This Drawing...", "", mnuFileBackups_Click, false, false},
    {Menu::mnuFileTemplates, Menu::mnuFile, "mnuFileTemplates", "View Available Templates (Requires Internet Connection)", "", nullptr, false, false},
    {Menu::mnuFileRecent0, Menu::mnuFile, "mnuFileRecent0", "Recent Drawing 1", "", mnuFileRecent_Click<0>, true, false, Start::Invisible},
    {Menu::mnuFileRecent1, Menu::mnuFile, "mnuFileRecent1", "Recent Drawing 2", "", mnuFileRecent_Click<1>, false, false, Start::Invisible},
    {Menu::mnuFileRecent2, Menu::mnuFile, "mnuFileRecent2", "Recent Drawing 3", "", mnuFileRecent_Click<2>, false, false, Start::Invisible},
    {Menu::mnuFileRecent3, Menu::mnuFile, "mnuFileRecent3", "Recent Drawing 4", "", mnuFileRecent_Click<3>, false, false, Start::Invisible},
    {Menu::mnuFileRecent4, Menu::mnuFile, "mnuFileRecent4", "Recent Drawing 5", "", mnuFileRecent_Click<4>, false, false, Start::Invisible},
    {Menu::mnuFileRecent5, Menu::mnuFile, "mnuFileRecent5", "Recent Drawing 6", "", mnuFileRecent_Click<5>, false, false, Start::Invisible},
    {Menu::mnuFileRecent6, Menu::mnuFile, "mnuFileRecent6", "Recent Drawing 7", "", mnuFileRecent_Click<6>, false, false, Start::Invisible},
    {Menu::mnuFileRecent7, Menu::mnuFile, "mnuFileRecent7", "Recent Drawing 8", "", mnuFileRecent_Click<7>, false, false, Start::Invisible},
    {Menu::mnuFileRecent8, Menu::mnuFile, "mnuFileRecent8", "Recent Drawing 9", "", mnuFileRecent_Click<8>, false, false, Start::Invisible},
    {Menu::mnuExit, Menu::mnuFile, "mnuExit", "E&xit", "", exitProgram, true, false},
    {Menu::mnuLayout, Menu::mnuLayout, "mnuLayout", "&Layout", "", nullptr, false, false},
    {Menu::mnuLayoutNormal, Menu::mnuLayout, "mnuLayoutNormal", "8.5 x 11 Portrait", "", choosePage<0>, false, false},
    {Menu::mnuLayoutLandscape, Menu::mnuLayout, "mnuLayoutLandscape", "8.5 x 11 Landscape", "", choosePage<1>, false, false},
    {Menu::mnuLargePortrait, Menu::mnuLayout, "mnuLargePortrait", "11 x 17 Portrait", "", choosePage<2>, false, false},
    {Menu::mnuLayoutLargeLandscape, Menu::mnuLayout, "mnuLayoutLargeLandscape", "11 x 17 Landscape", "", choosePage<3>, false, false},
    {Menu::mnuLayoutMore, Menu::mnuLayout, "mnuLayoutMore", "More &Choices", "", mnuLayoutMore_Click, true, false},
    {Menu::mnuLibraries, Menu::mnuLibraries, "mnuLibraries", "Li&braries", "", nullptr, false, false},
    {Menu::mnuLibManage, Menu::mnuLibraries, "mnuLibManage", "User Symbol Management", "", nullptr, false, false},
    {Menu::mnuLibManageUserLibraries, Menu::mnuLibManage, "mnuLibManageUserLibraries", "Open User Library Manager", "", mnuLibManageUserLibraries_Click, false, false},
    {Menu::mnuLibManageRename, Menu::mnuLibManage, "mnuLibManageRename", "&Rename Selected User Button", "", mnuLibManageRename_Click, false, false, Start::Disabled},
    {Menu::mnuLibManageDelete, Menu::mnuLibManage, "mnuLibManageDelete", "&Delete Selected User Button", "", mnuLibManageDelete_Click, false, false, Start::Disabled},
    {Menu::mnuLibManageMove, Menu::mnuLibManage, "mnuLibManageMove", "&Move Selected User Button to Another Library", "", mnuLibManageMove_Click, false, false, Start::Disabled},
    {Menu::mnuLibManageCopy, Menu::mnuLibManage, "mnuLibManageCopy", "&Copy Selected User Button to Another Library", "", mnuLibManageCopy_Click, false, false, Start::Disabled},
    {Menu::mnuLibManageOrder, Menu::mnuLibManage, "mnuLibManageOrder", "Change &Order of User Buttons", "", mnuLibManageOrder_Click, true, false},
    {Menu::mnuLibManageRows, Menu::mnuLibManage, "mnuLibManageRows", "Change Number of Displayed Rows", "", mnuLibManageRows_Click, false, false},
    {Menu::mnuLibElectrical, Menu::mnuLibraries, "mnuLibElectrical", "NEMA Electrical", "", onEditor<mnuLibElectrical_Click>, true, true},
    {Menu::mnuLibElectronic, Menu::mnuLibraries, "mnuLibElectronic", "Electronic", "", onEditor<mnuLibElectronic_Click>, false, true},
    {Menu::mnuLibIEC, Menu::mnuLibraries, "mnuLibIEC", "IEC", "", onEditor<mnuLibIEC_Click>, false, true},
    {Menu::mnuLibHyd, Menu::mnuLibraries, "mnuLibHyd", "Hydraulic/Pneumatic", "", onEditor<mnuLibHyd_Click>, false, true},
    {Menu::mnuLibOpen, Menu::mnuLibraries, "mnuLibOpen", "Open User &Library", "", mnuLibOpen_Click, true, false},
    {Menu::mnuLibNewLibrary, Menu::mnuLibraries, "mnuLibNewLibrary", "Create New User Librar&y", "", mnuLibNewLibrary_Click, false, false},
    {Menu::mnuLibMerge, Menu::mnuLibraries, "mnuLibMerge", "&Merge Another Library into This One", "", mnuLibMerge_Click, false, false},
    {Menu::mnuLibBringBack, Menu::mnuLibraries, "mnuLibBringBack", "&Bring Back a Removed Symbol...", "", mnuLibBringBack_Click, false, false},
    {Menu::mnuLibraryNext, Menu::mnuLibraries, "mnuLibraryNext", "Index to Ne&xt User Library", "", mnuLibraryNext_Click, false, false},
    {Menu::mnuLibraryPrevious, Menu::mnuLibraries, "mnuLibraryPrevious", "Index to &Previous User Library", "", mnuLibraryPrevious_Click, false, false},
    {Menu::mnuLibFind, Menu::mnuLibraries, "mnuLibFind", "&Find Symbol...", "Ctrl+F", mnuLibFind_Click, true, false},
    {Menu::mnuInsert, Menu::mnuInsert, "mnuInsert", "Insert", "", nullptr, false, false},
    {Menu::mnuInsertPicture, Menu::mnuInsert, "mnuInsertPicture", "&Picture File", "", mnuInsertPicture_Click, false, false},
    {Menu::mnuEdit, Menu::mnuEdit, "mnuEdit", "&Edit", "", nullptr, false, false},
    {Menu::mnuEditFileDescription, Menu::mnuEdit, "mnuEditFileDescription", "&Edit/Add File Description", "", onEditor<mnuEditFileDescription_Click>, false, false},
    {Menu::mnuEditText, Menu::mnuEdit, "mnuEditText", "Text Attributes", "", nullptr, true, false, Start::Disabled},
    {Menu::mnuEditTextCaption, Menu::mnuEditText, "mnuEditTextCaption", "&Caption Only", "", onEditor<mnuEditTextCaption_Click>, false, false, Start::Disabled},
    {Menu::mnuEditTextProps, Menu::mnuEditText, "mnuEditTextProps", "Text &Properties", "", showTextProperties, false, false},
    {Menu::mnuEditTextAlignLeft, Menu::mnuEditText, "mnuEditTextAlignLeft", "Align Selected Labels Left", "", onEditor<mnuEditTextAlignLeft_Click>, false, false, Start::Disabled},
    {Menu::mnuEditTextAlignRight, Menu::mnuEditText, "mnuEditTextAlignRight", "Align Selected Labels Right", "", onEditor<mnuEditTextAlignRight_Click>, false, false, Start::Disabled},
    {Menu::mnuEditTextAlignTop, Menu::mnuEditText, "mnuEditTextAlignTop", "Align Selected Lables Top", "", onEditor<mnuEditTextAlignTop_Click>, false, false, Start::Disabled},
    {Menu::mnuEditDrawing, Menu::mnuEdit, "mnuEditDrawing", "Drawing Attributes", "", nullptr, true, false},
    {Menu::mnuOptionReset, Menu::mnuEditDrawing, "mnuOptionReset", "Reset Drawing (ESC Key)", "", onEditor<mnuOptionReset_Click>, false, false},
    {Menu::mnuEditSelectAll, Menu::mnuEditDrawing, "mnuEditSelectAll", "Select All", "Ctrl+A", onEditor<mnuEditSelectAll_Click>, true, false},
    {Menu::mnuEditCopy, Menu::mnuEditDrawing, "mnuEditCopy", "Copy Selected Devices", "Ctrl+C", onEditor<mnuEditCopy_Click>, false, false, Start::Disabled},
    {Menu::mnuEditMove, Menu::mnuEditDrawing, "mnuEditMove", "Move Selected Devices", "Ctrl+M", onEditor<mnuEditMove_Click>, false, false, Start::Disabled},
    {Menu::mnuEditDelete, Menu::mnuEditDrawing, "mnuEditDelete", "Delete Selected Devices", "Del", onEditor<mnuEditDelete_Click>, false, false, Start::Disabled},
    {Menu::mnuEditPaste, Menu::mnuEditDrawing, "mnuEditPaste", "Paste Devices from Memory", "", onEditor<mnuEditPaste_Click>, true, false, Start::Disabled},
    {Menu::mnuEditRepeat, Menu::mnuEditDrawing, "mnuEditRepeat", "Repea&t Previous Device", "Ctrl+D", onEditor<mnuEditRepeat_Click>, false, false, Start::Disabled},
    {Menu::mnuEditUndo, Menu::mnuEditDrawing, "mnuEditUndo", "Undo Last Action", "Ctrl+Z", onEditor<mnuEditUndo_Click>, true, false, Start::Disabled},
    {Menu::mnuEditRedo, Menu::mnuEditDrawing, "mnuEditRedo", "&Redo Last Action", "Ctrl+Y; Ctrl+Shift+Z", onEditor<mnuEditRedo_Click>, false, false, Start::Disabled},
    {Menu::mnuEditSaveUserSymbol, Menu::mnuEditDrawing, "mnuEditSaveUserSymbol", "&Save Selected as New User Symbol", "", mnuEditSaveUserSymbol_Click, true, false, Start::Disabled},
    {Menu::mnuEditZoomIn, Menu::mnuEditDrawing, "mnuEditZoomIn", "Zoom In (CTRL +)", "", onEditor<mnuEditZoomIn_Click>, true, false},
    {Menu::mnuEditZoomOut, Menu::mnuEditDrawing, "mnuEditZoomOut", "Zoom Out (CTRL -)", "", onEditor<mnuEditZoomOut_Click>, false, false},
    {Menu::mnuEditStretch, Menu::mnuEditDrawing, "mnuEditStretch", "Enable Drawing &Window Stretch", "", onEditor<mnuEditStretch_Click>, false, true},
    {Menu::mnuUOptions, Menu::mnuUOptions, "mnuUOptions", "&Options", "", nullptr, false, false},
    {Menu::mnuToolsParseDeviceString, Menu::mnuUOptions, "mnuToolsParseDeviceString", "Parse Device String", "", parseDevices, false, false},
    {Menu::mnuOptionSnap, Menu::mnuUOptions, "mnuOptionSnap", "Edit Snap", "", onEditor<mnuOptionSnap_Click>, true, false},
    {Menu::mnuOptionGrid, Menu::mnuUOptions, "mnuOptionGrid", "Show Grid", "", onEditor<mnuOptionGrid_Click>, false, true},
    {Menu::mnuOptionHalfScale, Menu::mnuUOptions, "mnuOptionHalfScale", "Half Scale", "", nullptr, false, true},
    {Menu::mnuOptionSmallerFont, Menu::mnuUOptions, "mnuOptionSmallerFont", "Apply Small Font", "", onEditor<mnuOptionSmallerFont_Click>, true, false},
    {Menu::mnuOptionLabelColor, Menu::mnuUOptions, "mnuOptionLabelColor", "Enable Color Change for Labels", "", onEditor<mnuOptionLabelColor_Click>, false, true},
    {Menu::mnuOptionAttachLabels, Menu::mnuUOptions, "mnuOptionAttachLabels", "Attach Labels for Popular Devices", "", flipAttachLabels, false, true, Start::Checked},
    {Menu::mnuOptAutoIncrement, Menu::mnuUOptions, "mnuOptAutoIncrement", "Auto-Increment Label Caption", "", onEditor<mnuOptAutoIncrement_Click>, false, true},
    {Menu::mnuOptionAddSpace, Menu::mnuUOptions, "mnuOptionAddSpace", "Separate Symbol Name from Number", "", onEditor<mnuOptionAddSpace_Click>, false, true},
    {Menu::mnuOptChangeSelectionColor, Menu::mnuUOptions, "mnuOptChangeSelectionColor", "Change Selection Color", "", onEditor<mnuOptChangeSelectionColor_Click>, true, false},
    {Menu::mnuOptionPrintThin, Menu::mnuUOptions, "mnuOptionPrintThin", "Enable Thin Printing", "", nullptr, false, true},
    {Menu::mnuOptionThickDevices, Menu::mnuUOptions, "mnuOptionThickDevices", "Enable Thick Symbols", "", onEditor<mnuOptionThickDevices_Click>, false, true},
    {Menu::mnuOptBlackBackground, Menu::mnuUOptions, "mnuOptBlackBackground", "Enable Black Background", "", onEditor<mnuOptBlackBackground_Click>, false, true},
    {Menu::mnuOptDashedLineConstant, Menu::mnuUOptions, "mnuOptDashedLineConstant", "Change Dashed Line Spacing", "", mnuOptDashedLineConstant_Click, true, false},
    {Menu::mnuOptMatchGridToSnap, Menu::mnuUOptions, "mnuOptMatchGridToSnap", "&Match Grid to Snap", "", onEditor<mnuOptMatchGridToSnap_Click>, false, true},
    {Menu::mnuOptPrinter, Menu::mnuUOptions, "mnuOptPrinter", "&Printer Options", "", mnuOptPrinter_Click, true, false},
    {Menu::mnuOptSavePreferences, Menu::mnuUOptions, "mnuOptSavePreferences", "Save a Copy of the User Preferences", "", mnuOptSavePreferences_Click, true, false},
    {Menu::mnuOptRestorePreferences, Menu::mnuUOptions, "mnuOptRestorePreferences", "Restore User Preferences", "", mnuOptRestorePreferences_Click, false, false},
    {Menu::mnuMode, Menu::mnuMode, "mnuMode", "&User Mode", "", nullptr, false, false},
    {Menu::mnuModeNormal, Menu::mnuMode, "mnuModeNormal", "&Normal (Drawing)", "", chooseNormalMode, false, true, Start::Checked},
    {Menu::mnuModeDesign, Menu::mnuMode, "mnuModeDesign", "&Design Symbol", "", mnuModeDesign_Click, false, true},
    {Menu::mnuModeSimulation, Menu::mnuMode, "mnuModeSimulation", "Circuit &Simulation", "", nullptr, false, false},
    {Menu::mnuSimCircuit0, Menu::mnuModeSimulation, "mnuSimCircuit0", "Circuit Seal vs. No Seal", "", simulateCircuit<0>, false, true},
    {Menu::mnuSimCircuit1, Menu::mnuModeSimulation, "mnuSimCircuit1", "On Delay Timer", "", simulateCircuit<1>, false, true},
    {Menu::mnuSimCircuit2, Menu::mnuModeSimulation, "mnuSimCircuit2", "Off Delay Timer", "", simulateCircuit<2>, false, true},
    {Menu::mnuModeIllustration, Menu::mnuMode, "mnuModeIllustration", "Illustration Mode", "", nullptr, true, true},
    {Menu::mnuAdmin, Menu::mnuAdmin, "mnuAdmin", "&Admin", "", nullptr, false, false, Start::Invisible},
    {Menu::mnuAdminCreateShortcut, Menu::mnuAdmin, "mnuAdminCreateShortcut", "Create &Shortcut on the Desktop", "", createShortcut, false, false},
    {Menu::mnuAdminCreateSymbolExportFile, Menu::mnuAdmin, "mnuAdminCreateSymbolExportFile", "Create Symbol Export File", "", mnuAdminCreateSymbolExportFile_Click, false, false},
    {Menu::mnuAdminViewErrorLog, Menu::mnuAdmin, "mnuAdminViewErrorLog", "View Error Log File", "", mnuAdminViewErrorLog_Click, false, false},
    {Menu::mnuHelp, Menu::mnuHelp, "mnuHelp", "&Help", "", nullptr, false, false},
    {Menu::mnuHelpContents, Menu::mnuHelp, "mnuHelpContents", "Contents", "F1", mnuHelpContents_Click, false, false},
    {Menu::mnuHelpOnlineTutorial, Menu::mnuHelp, "mnuHelpOnlineTutorial", "View Online Tutorials (Internet Connection Required)", "", viewTutorials, false, false},
    {Menu::mnuHelpVersion, Menu::mnuHelp, "mnuHelpVersion", "Display Software Version", "", showVersion, true, false},
    {Menu::mnuHelpDemo1, Menu::mnuHelp, "mnuHelpDemo1", "Open Demonstrational Drawing 1", "", openDemo<1>, true, false},
    {Menu::mnuHelpDemo2, Menu::mnuHelp, "mnuHelpDemo2", "Open Demonstrational Drawing 2", "", openDemo<2>, false, false},
    {Menu::mnuHelpMoreLibraries, Menu::mnuHelp, "mnuHelpMoreLibraries", "Search for Additional Symbol Libraries Online", "", viewLibraries, true, false},
    {Menu::mnuHelpSupport, Menu::mnuHelp, "mnuHelpSupport", "Software Updates", "", visitSupport, false, false},
    {Menu::mnuHelpSendMe, Menu::mnuHelp, "mnuHelpSendMe", "Email a Comment", "", sendComment, false, false},
    {Menu::mnuHelpAdmin, Menu::mnuHelp, "mnuHelpAdmin", "Administrator Login", "", logIn, true, false},
};
// clang-format on

bool hasEntriesBelow(Menu entry) {
    for (const Command& row : Commands)
        if (row.menu == entry && row.entry != entry) return true;
    return false;
}

std::array<const Command*, static_cast<std::size_t>(Menu::Count)> indexByEntry() {
    std::array<const Command*, static_cast<std::size_t>(Menu::Count)> index{};
    for (const Command& row : Commands)
        index[static_cast<std::size_t>(row.entry)] = &row;
    return index;
}

}  // namespace

std::span<const Command> commandTable() {
    return Commands;
}

const Command& command(Menu entry) {
    static const auto index = indexByEntry();
    return *index.at(static_cast<std::size_t>(entry));
}

void applyStartStates(MenuStates& menu) {
    for (const Command& row : Commands)
        menu[row.entry] = {.Enabled = row.start != Start::Disabled,
                           .Visible = row.start != Start::Invisible,
                           .Checked = row.start == Start::Checked};
}

bool isEnabled(const Program& program, const Command& row) {
    if (row.handler == nullptr && !hasEntriesBelow(row.entry)) return false;
    // Shortcuts stay alive below a menu that is closed: it speaks for its entries.
    const bool open = row.menu == row.entry || isEnabled(program, command(row.menu));
    return open && program.editor.form.menu[row.entry].Enabled;
}

void runCommand(Program& program, Menu entry) {
    const Command& row = command(entry);
    if (row.handler == nullptr || !isEnabled(program, row)) return;
    // Reset gives up what is being typed in a label; to all others it is part of the drawing.
    if (entry != Menu::mnuOptionReset) keepLabelEdit(program.editor);
    row.handler(program);
}

}  // namespace ladrix
