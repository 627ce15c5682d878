// The menu entries by name, and the state that handlers change. Captions, shortcuts and handlers
// stand in the command table.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace ladrix {

// clang-format off
enum class Menu : unsigned char {
    mnuFile, mnuFileNew, mnuFileOpen, mnuFileOpenViewer, mnuFileSave, mnuFileSaveAs,
    mnuFileSaveBitmap, mnuFileExport, mnuFileDrawCircuit1, mnuFilePrintCircuit1,
    mnuFilePrintPreview, mnuFileRestore, mnuFileBackups, mnuFileTemplates, mnuFileRecent0,
    mnuFileRecent1, mnuFileRecent2, mnuFileRecent3, mnuFileRecent4, mnuFileRecent5, mnuFileRecent6,
    mnuFileRecent7, mnuFileRecent8, mnuExit,
    mnuLayout, mnuLayoutNormal, mnuLayoutLandscape, mnuLargePortrait, mnuLayoutLargeLandscape,
    mnuLayoutMore,
    mnuLibraries, mnuLibManage, mnuLibManageUserLibraries, mnuLibManageRename, mnuLibManageDelete,
    mnuLibManageMove, mnuLibManageCopy, mnuLibManageOrder, mnuLibManageRows, mnuLibElectrical, mnuLibElectronic, mnuLibIEC, mnuLibHyd, mnuLibOpen,
    mnuLibNewLibrary, mnuLibMerge, mnuLibBringBack, mnuLibraryNext, mnuLibraryPrevious, mnuLibFind,
    mnuInsert, mnuInsertPicture,
    mnuEdit, mnuEditFileDescription, mnuEditText, mnuEditTextCaption, mnuEditTextProps,
    mnuEditTextAlignLeft, mnuEditTextAlignRight, mnuEditTextAlignTop, mnuEditDrawing,
    mnuOptionReset, mnuEditSelectAll, mnuEditCopy, mnuEditMove, mnuEditDelete, mnuEditPaste,
    mnuEditRepeat, mnuEditUndo, mnuEditRedo, mnuEditSaveUserSymbol, mnuEditZoomIn, mnuEditZoomOut,
    mnuEditStretch,
    mnuUOptions, mnuToolsParseDeviceString, mnuOptionSnap, mnuOptionGrid, mnuOptionHalfScale,
    mnuOptionSmallerFont, mnuOptionLabelColor, mnuOptionAttachLabels, mnuOptAutoIncrement,
    mnuOptionAddSpace, mnuOptChangeSelectionColor, mnuOptionPrintThin, mnuOptionThickDevices,
    mnuOptBlackBackground, mnuOptDashedLineConstant, mnuOptMatchGridToSnap, mnuOptPrinter,
    mnuOptSavePreferences, mnuOptRestorePreferences,
    mnuMode, mnuModeNormal, mnuModeDesign, mnuModeSimulation, mnuSimCircuit0, mnuSimCircuit1,
    mnuSimCircuit2, mnuModeIllustration,
    mnuAdmin, mnuAdminCreateShortcut, mnuAdminCreateSymbolExportFile, mnuAdminViewErrorLog,
    mnuHelp, mnuHelpContents, mnuHelpOnlineTutorial, mnuHelpVersion, mnuHelpDemo1, mnuHelpDemo2,
    mnuHelpMoreLibraries, mnuHelpSupport, mnuHelpSendMe, mnuHelpAdmin,
    Count,
};
// clang-format on

struct MenuState {
    bool Enabled = true;
    bool Visible = true;
    bool Checked = false;
    std::string Caption = {};  // in place of the table's; "": the table's own

    friend bool operator==(const MenuState&, const MenuState&) = default;
};

struct MenuStates {
    std::array<MenuState, static_cast<std::size_t>(Menu::Count)> states;

    MenuState& operator[](Menu entry) { return states[static_cast<std::size_t>(entry)]; }
    const MenuState& operator[](Menu entry) const {
        return states[static_cast<std::size_t>(entry)];
    }
    friend bool operator==(const MenuStates&, const MenuStates&) = default;
};

}  // namespace ladrix
