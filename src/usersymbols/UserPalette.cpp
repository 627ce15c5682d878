#include "usersymbols/UserPalette.h"

#include <algorithm>
#include <cmath>

#include "canvas/gestures/Gesture.h"
#include "canvas/state/Editor.h"
#include "canvas/tools/Tools.h"

namespace ladrix {

namespace {

constexpr Single Gap = 30;  // twips between the palette's edge and its first button

void beginColumns(UserSymbols& symbols, const Platform& platform) {
    symbols.UserButtonSize = platform.screen.TwipsPerPixelX == 12 ? 432.0f : 435.0f;
    if (symbols.LaidOutLibrary == symbols.SymbolFolder) return;
    symbols.LaidOutLibrary = symbols.SymbolFolder;
    symbols.UserButtonLeft = symbols.UserButtonTop = Gap;
}

void findPlaces(UserSymbols& symbols, std::size_t count) {
    symbols.UserButtonPlace.assign(count, {symbols.UserButtonLeft, symbols.UserButtonTop});
    const auto rows = static_cast<std::size_t>(std::max<Short>(symbols.PaletteRows, 1));
    for (std::size_t i = 1; i < count; ++i) {
        ButtonPlace& place = symbols.UserButtonPlace[i];
        const ButtonPlace& previous = symbols.UserButtonPlace[i - 1];
        if (i % rows == 0)
            place.Left = previous.Left + symbols.UserButtonSize;
        else
            place = {previous.Left, previous.Top + symbols.UserButtonSize};
    }
}

// Both arrows keep their step whatever is in view; the view disables the one that leads nowhere.
void scrollColumns(UserSymbols& symbols, Editor& editor, int columns) {
    if (symbols.UserSymbolCount == 0) return;
    symbols.UserButtonLeft -= static_cast<Single>(columns) * symbols.UserButtonSize;
    findPlaces(symbols, symbols.UserButtonPlace.size());
    RestoreUserButtonPlaces(symbols, editor);
}

void enableButtonCommands(Editor& editor, bool enabled) {
    for (const Menu entry : {Menu::mnuLibManageRename, Menu::mnuLibManageDelete,
                             Menu::mnuLibManageMove, Menu::mnuLibManageCopy})
        editor.form.menu[entry].Enabled = enabled;
}

}  // namespace

void LayOutUserButtons(UserSymbols& symbols, Editor& editor) {
    std::vector<PaletteButton>& buttons = editor.form.cmdSym;
    beginColumns(symbols, editor.platform);
    symbols.FirstUserButton = static_cast<Short>(editor.LastBuiltInButton + 1);
    const auto first = static_cast<std::size_t>(symbols.FirstUserButton);
    const std::size_t room = buttons.size() - std::min(buttons.size(), first);
    const std::size_t count = std::min(static_cast<std::size_t>(symbols.UserSymbolCount), room);
    symbols.LastUserButton = static_cast<Short>(first + count);
    findPlaces(symbols, count);
    for (std::size_t i = 0; i < room; ++i) {
        PaletteButton& button = buttons[first + i];
        button = {};
        if (i >= count) continue;
        button.Tag = symbols.UserSymbolName[i];
        button.Visible = !editor.SimulationMode;
        button.Pressed = editor.gesture.CurrentTool == static_cast<Short>(first + i);
        button.UpPicture = symbols.UserSymbolPicture[i];
        button.CyanPicture = symbols.UserSymbolCyanPicture[i];
        button.Left = symbols.UserButtonPlace[i].Left;
        button.Top = symbols.UserButtonPlace[i].Top;
    }
    ++editor.form.PaletteVersion;
    findRepeatTool(editor);
    enableButtonCommands(editor, symbolOfButton(symbols, symbols.ContextButton) >= 0);
}

void RestoreUserButtonPlaces(UserSymbols& symbols, Editor& editor) {
    for (std::size_t i = 0; i < symbols.UserButtonPlace.size(); ++i) {
        PaletteButton& button =
            editor.form.cmdSym[static_cast<std::size_t>(symbols.FirstUserButton) + i];
        button.Left = symbols.UserButtonPlace[i].Left;
        button.Top = symbols.UserButtonPlace[i].Top;
    }
    ++editor.form.PaletteVersion;
}

void cmdNext_Click(UserSymbols& symbols, Editor& editor) {
    scrollColumns(symbols, editor, 1);
}

void cmdPrev_Click(UserSymbols& symbols, Editor& editor) {
    scrollColumns(symbols, editor, -1);
}

ButtonCell cellOf(const UserSymbols& symbols, const ButtonPlace& place) {
    const auto steps = [&](Single distance) {
        return static_cast<int>(std::lround((distance - Gap) / symbols.UserButtonSize));
    };
    return {steps(place.Left), steps(place.Top)};
}

int userColumns(const UserSymbols& symbols) {
    const int rows = std::max<int>(symbols.PaletteRows, 1);
    return (static_cast<int>(symbols.UserButtonPlace.size()) + rows - 1) / rows;
}

void showUserButton(UserSymbols& symbols, Editor& editor, Short button, int columnsInView) {
    const Short row = symbolOfButton(symbols, button);
    if (row < 0) return;
    const int column =
        cellOf(symbols, symbols.UserButtonPlace[static_cast<std::size_t>(row)]).column;
    if (column < 0) scrollColumns(symbols, editor, column);
    if (column >= columnsInView) scrollColumns(symbols, editor, column - columnsInView + 1);
}

void openUserButtonMenu(UserSymbols& symbols, Editor& editor, Short button) {
    if (button <= editor.LastBuiltInButton) return;
    symbols.ContextButton = button;
    enableButtonCommands(editor, true);
    editor.platform.dialogs->popUp("mnuLibManage");
}

void resetTool(Editor& editor) {
    if (editor.gesture.CurrentTool != -1) ResetEditor(editor);
    editor.gesture.CurrentTool = editor.PreviousTool = -1;
}

Short symbolOfButton(const UserSymbols& symbols, Short button) {
    const int row = button - symbols.FirstUserButton;
    const bool known = symbols.FirstUserButton > 0 && row >= 0 && button < symbols.LastUserButton;
    return known ? static_cast<Short>(row) : Short{-1};
}

}  // namespace ladrix
