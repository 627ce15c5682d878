// The form itself: its source, the selection, the order and the preview. What it does to libraries
// is in LibManagerFiles.cpp.
#include "usersymbols/LibManager.h"

#include <algorithm>

#include "platform/Encoding.h"
#include "platform/Numbers.h"
#include "usersymbols/LibManagerFiles.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/Script.h"
#include "usersymbols/UserButtonOrder.h"
#include "usersymbols/UserPalette.h"

namespace ladrix {

namespace {

constexpr Single LeastScale = 0.01f, LargestScale = 100;

ManagerSymbol& stateOf(LibManager& manager, Short symbol) {
    return manager.ManagerSymbolState[static_cast<std::size_t>(symbol)];
}

bool isSymbol(const LibManager& manager, int symbol) {
    return symbol >= 0 && symbol < manager.symbolCount();
}

void selectAll(LibManager& manager, bool selected) {
    for (ManagerSymbol& state : manager.ManagerSymbolState)
        state.Selected = selected;
    rebuildSelection(manager);
}

void layOutButtons(LibManager& manager, const UserSymbols& symbols) {
    const auto rows = static_cast<std::size_t>(std::max<Short>(symbols.PaletteRows, 1));
    const std::size_t count = manager.ManagerSymbolName.size();
    manager.ManagerButtonPlace.clear();
    for (std::size_t i = 0; i < count; ++i)
        manager.ManagerButtonPlace.push_back(
            {static_cast<Single>(i / rows) * symbols.UserButtonSize,
             static_cast<Single>(i % rows) * symbols.UserButtonSize});
    manager.HScroll1 = {};
    manager.HScroll1.Max = static_cast<int>(count == 0 ? 0 : (count - 1) / rows);
}

void clearSource(LibManager& manager) {
    manager.ManagerSourceLines.clear();
    manager.ManagerSymbolName.clear();
    manager.ManagerSymbolFile.clear();
    manager.ManagerSymbolScript.clear();
    manager.ManagerSymbolPicture.clear();
    manager.ManagerSymbolCyanPicture.clear();
    manager.ManagerSymbolState.clear();
    manager.ManagerUnread.clear();
    manager.ManagerButtonPlace.clear();
    manager.ManagerCurrent = manager.ManagerDragSource = -1;
    manager.ManagerArranging = false;
}

void loadManagerSymbols(LibManager& manager, const UserSymbols& symbols, const Platform& platform) {
    const FolderIndex index(*platform.files, manager.ManagerSourceFolder);
    LoadNotes notes(symbols, platform, manager.ManagerSourceFile);
    for (const std::string& name : manager.ManagerSourceLines) {
        if (!index.hasAll(name)) continue;
        std::optional<LoadedSymbol> loaded;
        if (manager.symbolCount() < LargestCount)
            loaded = loadSymbol(platform, manager.ManagerSourceFolder, index, name, notes);
        if (!loaded) {
            manager.ManagerUnread.push_back(name);
            continue;
        }
        manager.ManagerSymbolName.push_back(name);
        manager.ManagerSymbolFile.push_back(name + ".uds");
        manager.ManagerSymbolScript.push_back(std::move(loaded->script));
        manager.ManagerSymbolPicture.push_back(std::move(loaded->picture));
        manager.ManagerSymbolCyanPicture.push_back(std::move(loaded->cyanPicture));
        ManagerSymbol state;
        state.Name = name;
        manager.ManagerSymbolState.push_back(std::move(state));
    }
    notes.finish();
}

void readSource(LibManager& manager, const UserSymbols& symbols, const Platform& platform) {
    Files& files = *platform.files;
    const LibraryPlace source{manager.ManagerParentFolder, manager.ManagerSourceName};
    manager.ManagerSourceMissing = !FileExists(files, source.Folder, source.file()) ||
                                   !FolderExists(files, source.Folder, source.Name);
    if (manager.ManagerSourceMissing) return;
    finishLibraryWrites(symbols, files, source);
    manager.ManagerSourceLines = readList(files, source);
    loadManagerSymbols(manager, symbols, platform);
}

void showSource(LibManager& manager, const UserSymbols& symbols) {
    layOutButtons(manager, symbols);
    mnuEditClear_Click(manager);
    rebuildSelection(manager);
    manager.ManagerLoading = false;
}

void drawPreview(LibManager& manager, Editor& editor, Short symbol, Single x, Single y) {
    if (manager.picPreview == nullptr || !isSymbol(manager, symbol)) return;
    const ManagerSymbol& state = stateOf(manager, symbol);
    manager.picPreview->Cls();
    SymbolPlacement placement{manager.picPreview.get(), x, y, Black, state.ScaleX, state.ScaleY};
    const bool formerly = std::exchange(editor.Redrawing, true);
    PreviewUserSymbol(editor, placement,
                      manager.ManagerSymbolScript[static_cast<std::size_t>(symbol)]);
    editor.Redrawing = formerly;
    ++manager.PreviewVersion;
}

void takeScale(LibManager& manager, Short symbol) {
    const auto typed = typedNumber(manager.cmbScale.Text);
    if (!typed || !(*typed > 0)) return;
    ManagerSymbol& state = stateOf(manager, symbol);
    state.ScaleX = state.ScaleY = std::clamp(*typed, LeastScale, LargestScale);
}

// The list's own text where it has the number.
void showScale(LibManager& manager, const Editor& editor, Single scale) {
    manager.cmbScale.Text = singleText(scale, editor.platform.locale.decimalMark);
    for (const std::string& text : manager.cmbScale.List)
        if (typedNumber(text) == scale) manager.cmbScale.Text = text;
}

void setCaptions(LibManager& manager) {
    manager.cmdOpen.Caption = "Open";
    manager.cmdCopy.Caption = "Copy Selected Symbols to Above Destination";
    manager.cmdMove.Caption = "Move Selected Symbols to Above Destination";
    manager.cmdDelete.Caption = "Delete Selected Symbols";
    manager.cmdExit.Caption = "Exit";
}

void loadForm(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    manager = {};
    setCaptions(manager);
    manager.cmbScale.List = {"0.25", "0.50", "0.75", "1.00", "1.25",
                             "1.50", "1.75", "2.00", "2.50", "3.00"};
    manager.cmbScale.Text = "1.00";
    manager.cmdCopy.Enabled = manager.cmdMove.Enabled = false;
    selectManagerSource(manager, editor, symbols.LibraryFolder, symbols.LibraryFile);
    listManagerLibraries(manager, symbols);
    loadManagerSource(manager, symbols, editor);
}

}  // namespace

void selectManagerSource(LibManager& manager, Editor& editor, const std::string& folder,
                         std::string_view file) {
    const LibraryPlace library = libraryPlace(folder, file);
    manager.ManagerSourceFile = library.file();
    manager.ManagerSourceName = library.Name;
    manager.ManagerParentFolder = folder;
    manager.ManagerSourceFolder = library.symbolFolder(*editor.platform.files);
    manager.cmbSourceLibrary.Text = manager.ManagerSourceFile;
}

void listManagerLibraries(LibManager& manager, const UserSymbols& symbols) {
    manager.cmbSourceLibrary.List = symbols.LibraryList;
    manager.lstDestinationLibrary.List = symbols.LibraryList;
    const auto& list = symbols.LibraryList;
    const auto found = std::find(list.begin(), list.end(), manager.ManagerDestFile);
    manager.lstDestinationLibrary.ListIndex =
        found == list.end() ? -1 : static_cast<int>(found - list.begin());
    if (found == list.end()) {
        manager.ManagerDestFile.clear();
        manager.ManagerDestName.clear();
        manager.ManagerDestFolder.clear();
        manager.cmdCopy.Enabled = manager.cmdMove.Enabled = false;
    }
}

void rebuildSelection(LibManager& manager) {
    manager.lstSelected.List.clear();
    manager.lstSelected.ListIndex = -1;
    for (const ManagerSymbol& state : manager.ManagerSymbolState)
        if (state.Selected) manager.lstSelected.List.push_back(state.Name);
    manager.ManagerSelectedCount = static_cast<Short>(manager.lstSelected.List.size());
    manager.cmdDelete.Enabled = manager.ManagerSelectedCount > 0;
    ++manager.ButtonVersion;
}

void loadManagerSource(LibManager& manager, const UserSymbols& symbols, Editor& editor) {
    manager.ManagerLoading = true;
    clearSource(manager);
    try {
        readSource(manager, symbols, editor.platform);
    } catch (const Failure&) {
        clearSource(manager);
        showSource(manager, symbols);
        throw;
    }
    showSource(manager, symbols);
}

void mnuLibManageUserLibraries_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    editor.platform.attempt("User Symbol Library Manager",
                            [&] { loadForm(manager, symbols, editor); });
    manager.Visible = true;
    editor.platform.dialogs->show(Form::frmLibManager);
}

void frmLibManager_Unload(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    manager = {};
    editor.platform.attempt("User Symbol Library Manager", [&] {
        if (editor.gesture.CurrentTool > editor.LastBuiltInButton) resetTool(editor);
        ListUserLibraries(symbols, editor);
        ReloadLibrary(symbols, editor);
    });
}

void cmdOpen_Click(LibManager& manager, UserSymbols& symbols, Editor& editor) {
    const std::string chosen = manager.cmbSourceLibrary.Text;
    if (equalIgnoringCase(chosen, manager.ManagerSourceFile)) return;
    const bool mayChange = manager.ManagerSelectedCount == 0 ||
                           editor.platform.dialogs->message(
                               "Warning. You have some symbols selected already. If you change\r\n"
                               "libraries now, the selected symbols will be ignored. Continue?",
                               "Preparing to Change Libraries", Buttons::YesNo) == Answer::Yes;
    if (!mayChange) {
        manager.cmbSourceLibrary.Text = manager.ManagerSourceFile;
        return;
    }
    editor.platform.attempt("Open User Library", [&] {
        selectManagerSource(manager, editor, editor.BasePath, chosen);
        loadManagerSource(manager, symbols, editor);
    });
}

void frmLibManager_cmdSym_Click(LibManager& manager, Short symbol) {
    if (!isSymbol(manager, symbol)) return;
    manager.ManagerCurrent = symbol;
    bool& selected = stateOf(manager, symbol).Selected;
    selected = !selected;
    rebuildSelection(manager);
}

void HScroll1_Change(LibManager& manager, int value) {
    manager.HScroll1.Value = std::clamp(value, 0, manager.HScroll1.Max);
}

void mnuEditSelectAll_Click(LibManager& manager) {
    selectAll(manager, true);
}

void mnuEditDeselectAll_Click(LibManager& manager) {
    selectAll(manager, false);
}

void mnuEditEnableOrderChange_Click(LibManager& manager, Editor& editor) {
    editor.platform.tell(OrderMessage);
    manager.ManagerArranging = true;
}

bool beginManagerDrag(LibManager& manager, Short symbol) {
    if (!manager.ManagerArranging || !isSymbol(manager, symbol)) return false;
    manager.ManagerDragSource = symbol;
    return true;
}

void frmLibManager_cmdSym_DragDrop(LibManager& manager, Short symbol) {
    const Short source = std::exchange(manager.ManagerDragSource, Short{-1});
    if (!isSymbol(manager, source) || !isSymbol(manager, symbol) || source == symbol) return;
    const auto from = static_cast<std::size_t>(source), to = static_cast<std::size_t>(symbol);
    moveRow(manager.ManagerSymbolName, from, to);
    moveRow(manager.ManagerSymbolFile, from, to);
    moveRow(manager.ManagerSymbolScript, from, to);
    moveRow(manager.ManagerSymbolPicture, from, to);
    moveRow(manager.ManagerSymbolCyanPicture, from, to);
    moveRow(manager.ManagerSymbolState, from, to);
    manager.ManagerCurrent = symbol;
    rebuildSelection(manager);
}

void picPreview_Resize(LibManager& manager, Editor& editor, int width, int height,
                       double pixelsPerInch) {
    manager.picPreview = editor.platform.images->makePicture(width, height);
    manager.picPreview->SetScale(0, 0, static_cast<Single>(width / pixelsPerInch),
                                 static_cast<Single>(height / pixelsPerInch));
    mnuEditClear_Click(manager);
    const Short symbol = manager.ManagerCurrent;
    if (!isSymbol(manager, symbol) || !stateOf(manager, symbol).Previewed) return;
    drawPreview(manager, editor, symbol, stateOf(manager, symbol).X, stateOf(manager, symbol).Y);
}

void lstSelected_Click(LibManager& manager, Editor& editor, int row) {
    if (row < 0 || row >= static_cast<int>(manager.lstSelected.List.size())) return;
    manager.lstSelected.ListIndex = row;
    const std::string& name = manager.lstSelected.List[static_cast<std::size_t>(row)];
    const auto& names = manager.ManagerSymbolName;
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) return;
    const auto symbol = static_cast<Short>(found - names.begin());
    const ManagerSymbol& state = stateOf(manager, symbol);
    manager.ManagerCurrent = symbol;
    showScale(manager, editor, state.ScaleX);
    drawPreview(manager, editor, symbol, state.X, state.Y);
}

void picPreview_MouseDown(LibManager& manager, Editor& editor, Single x, Single y) {
    const Short symbol = manager.ManagerCurrent;
    if (!isSymbol(manager, symbol)) return;
    takeScale(manager, symbol);
    ManagerSymbol& state = stateOf(manager, symbol);
    state.X = x;
    state.Y = y;
    state.Previewed = true;
    drawPreview(manager, editor, symbol, x, y);
}

void cmbScale_Click(LibManager& manager, Editor& editor) {
    const Short symbol = manager.ManagerCurrent;
    if (!isSymbol(manager, symbol)) return;
    takeScale(manager, symbol);
    drawPreview(manager, editor, symbol, stateOf(manager, symbol).X, stateOf(manager, symbol).Y);
}

void cmbScale_Change(LibManager& manager, Editor& editor) {
    const Short symbol = manager.ManagerCurrent;
    if (!isSymbol(manager, symbol)) return;
    takeScale(manager, symbol);
    drawPreview(manager, editor, symbol, 0, 0);
}

void mnuEditClear_Click(LibManager& manager) {
    if (manager.picPreview == nullptr) return;
    manager.picPreview->BackColor = White;
    manager.picPreview->Cls();
    ++manager.PreviewVersion;
}

}  // namespace ladrix
