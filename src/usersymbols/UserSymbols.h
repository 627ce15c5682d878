// The user's own symbols as state: the current library in memory, the compiler's working tables and
// the small forms of saving. One value for the whole run, a member of the program.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/state/Controls.h"
#include "document/Tables.h"
#include "platform/Platform.h"

namespace ladrix {

constexpr std::string_view DefaultLibraryFile = "User Symbols.lib";
constexpr std::string_view LibrarySuffix = " Symbols";  // every library's name ends in it
constexpr Short FewestPaletteRows = 21, MostPaletteRows = 36, DefaultPaletteRows = 22;

// What the compiler works on, from one save to the next; nothing of it goes to disk but the script.
struct SymbolCompiler {
    Single InsertionX = 0, InsertionY = 0;  // the point that the user has clicked, inches
    // The selected items. Coordinates, radius and aspect are rounded to four decimals.
    DeviceTable items;
    LabelTable labels;
    // The box of the items' geometry, inches. Upside down while nothing has widened it.
    Single SymbolLeft = 8.5f, SymbolTop = 11, SymbolRight = 0, SymbolBottom = 0;
    Single SymbolWidth = 0, SymbolHeight = 0;
    std::vector<std::string> SymbolScriptLines;
    std::string SymbolScriptText;  // what a save writes; "" when it is written
    std::string SymbolExportText;  // the same as drawing statements, for the clipboard
    std::string SymbolExportFile;  // path of the open symbol export file; "": none
};

// frmButtonColor, the background of the new button.
struct FormButtonColor {
    bool Visible = false;
    std::array<Control, 64> cmdColor;  // eight columns, their colour in BackColor; made by its load
    Control cmdBackColor;              // shows the choice
    Control lblMessage, lblBackColor, cmdOK;
};

// frmUS, the name of the new symbol and its icons.
struct FormUS {
    bool Visible = false;
    // What the compiler has drawn. picIconShow is shown, the other two become the two files. Made
    // anew by each first pass; null before.
    std::unique_ptr<PictureBox> picIcon, picIconShow, picCyanIcon;
    TextBox txtSymbolName;
    Control cmdSave, cmdExit, lblUserSymbol, lblSymbolName;
};

// frmUBRows, the number of rows of user buttons.
struct FormUBRows {
    bool Visible = false;
    ComboBox cmbRows;
    Control cmdSave;
};

// Where a user button stands, twips from the upper left corner of the user's columns.
struct ButtonPlace {
    Single Left = 0, Top = 0;

    friend bool operator==(const ButtonPlace&, const ButtonPlace&) = default;
};

// A user button that is being dragged to another place.
struct ButtonDrag {
    Short Source = -1;  // cmdSym's index; -1: none
    std::shared_ptr<const Picture> imgDrag;
    std::string Tag;
};

struct UserSymbols {
    // The current library's symbols, in the order of the buttons. A name "" is a deleted symbol
    // until the next save of the list.
    Short UserSymbolCount = 0;
    std::vector<std::string> UserSymbolName, UserSymbolFile, UserSymbolScript;
    std::vector<std::shared_ptr<const Picture>> UserSymbolPicture, UserSymbolCyanPicture;

    // Where it lies. Folders end in the separator; LibraryFolder is the user's data folder unless
    // the library was opened elsewhere. LibraryFile is LibraryName with ".lib".
    std::string LibraryFile, LibraryName, LibraryFolder, SymbolFolder;
    std::vector<std::string> LibraryLines;  // the list as read
    // Listed names whose files are there but could not be read: they stay in the list.
    std::vector<std::string> UnreadSymbols;
    bool LibraryMissing = false;  // its list or its folder

    std::vector<std::string> LibraryList;  // all ".lib" names of the data folder, alphabetical
    Short LibraryIndex = 0;                // the current one's place there
    Short MaxSymbolsPerLibrary = DefaultPaletteRows * 23;
    Short PaletteRows = DefaultPaletteRows;

    // The user's columns of the palette.
    Single UserButtonSize = 435;  // twips, the step of the columns and rows
    Single UserButtonLeft = 0, UserButtonTop = 0;
    Short FirstUserButton = 0, LastUserButton = 0;  // the second is one past the end
    std::vector<ButtonPlace> UserButtonPlace;
    std::string LaidOutLibrary;  // the symbol folder last laid out
    Short ContextButton = -1;    // cmdSym's index under the right-click menu; -1: none
    // While the columns are being arranged (Editor::Arranging).
    ButtonDrag drag;
    Control cmdSaveSymbolOrder = hidden();

    SymbolCompiler compiler;
    FormButtonColor frmButtonColor;
    FormUS frmUS;
    FormUBRows frmUBRows;
    Long ButtonBackColor = White, ButtonForeColor = Black;

    // Set once by the layer above: one line in the run's diagnostics for what was skipped or
    // repaired.
    std::function<void(std::string_view line)> NoteRepair;
};

// The row of cmdSym's `button`; -1 if that is no user button with a symbol.
Short symbolOfButton(const UserSymbols& symbols, Short button);

}  // namespace ladrix
