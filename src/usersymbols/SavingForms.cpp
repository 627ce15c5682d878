#include "usersymbols/SavingForms.h"

#include <algorithm>

#include "usersymbols/Libraries.h"

namespace ladrix {

namespace {

constexpr int RampLength = 8, RampStep = 16;

constexpr int Full = -1;  // stays at 255

struct Ramp {
    int red, green, blue;  // of the first and lightest step
};

// Two of grey, light and dark; between them the primary and secondary hues.
constexpr std::array<Ramp, 8> Ramps = {{{255, 255, 255},
                                        {Full, 240, 240},
                                        {Full, Full, 240},
                                        {240, Full, 240},
                                        {240, Full, Full},
                                        {240, 240, Full},
                                        {Full, 240, Full},
                                        {127, 127, 127}}};

Long colorOf(const Ramp& ramp, int step) {
    const auto level = [step](int first) { return first == Full ? 255 : first - RampStep * step; };
    return level(ramp.red) + 0x100 * level(ramp.green) + 0x10000 * level(ramp.blue);
}

void awaitInsertionPoint(UserSymbols& symbols, Editor& editor) {
    editor.form.lblMessage.Caption =
        "Please Select an Insertion Point for your Symbol (X-Y Coordinates)";
    symbols.frmButtonColor.Visible = false;
}

bool mayTakeItsPlace(UserSymbols& symbols, Editor& editor, const std::string& name) {
    if (!FileExists(*editor.platform.files, symbols.SymbolFolder, name + ".bmp")) return true;
    return editor.platform.dialogs->message("File already exists. Overwrite?",
                                            "Duplicate File Name", Buttons::YesNo) == Answer::Yes;
}

void makeDefaultFolder(Editor& editor) {
    Files& files = *editor.platform.files;
    constexpr std::string_view Default = "User Symbols";
    if (!FolderExists(files, editor.BasePath, Default))
        files.makeFolder(editor.BasePath + std::string(Default));
}

// A device that is no primitive leaves an empty line, and a script with one places nothing.
void tellSaved(const UserSymbols& symbols, Editor& editor) {
    const auto& lines = symbols.compiler.SymbolScriptLines;
    const bool placeable = std::find(lines.begin(), lines.end(), std::string()) == lines.end();
    editor.form.lblMessage.Caption =
        placeable ? "Symbol Saved. Hit ESC to reset the drawing."
                  : "Symbol Saved, but it will draw nothing: only lines, squares, circles, arcs, "
                    "dots and labels can be in a symbol.";
}

}  // namespace

void frmButtonColor_Load(UserSymbols& symbols) {
    FormButtonColor& form = symbols.frmButtonColor;
    for (std::size_t i = 0; i < form.cmdColor.size(); ++i)
        form.cmdColor[i].BackColor =
            colorOf(Ramps[i / RampLength], static_cast<int>(i % RampLength));
    form.lblMessage.Caption = "User Symbol insertion point required next. (X - Y coordinates)";
    form.lblBackColor.Caption = "Background Color will Appear as";
    form.cmdOK.Caption = "OK";
    form.cmdBackColor.BackColor = symbols.ButtonBackColor;
}

void cmdColor_Click(UserSymbols& symbols, std::size_t index) {
    FormButtonColor& form = symbols.frmButtonColor;
    form.cmdBackColor.BackColor = form.cmdColor.at(index).BackColor;
}

void frmButtonColor_cmdOK_Click(UserSymbols& symbols, Editor& editor) {
    symbols.ButtonBackColor = symbols.frmButtonColor.cmdBackColor.BackColor;
    symbols.ButtonForeColor = Black;
    awaitInsertionPoint(symbols, editor);
}

void frmButtonColor_QueryUnload(UserSymbols& symbols, Editor& editor) {
    awaitInsertionPoint(symbols, editor);
}

void frmUS_Load(UserSymbols& symbols) {
    FormUS& form = symbols.frmUS;
    form.cmdSave.Caption = "Save Symbol";
    form.cmdExit.Caption = "Cancel";
    form.lblUserSymbol.Caption = "Button Icon will Appear as...";
    form.lblSymbolName.Caption = "Enter Name for Symbol Below";
}

void frmUS_cmdSave_Click(UserSymbols& symbols, Editor& editor) {
    FormUS& form = symbols.frmUS;
    const std::string name = form.txtSymbolName.Text;
    if (name.empty()) return;
    if (!acceptedAsFileName(editor.platform, name)) return;
    try {
        makeDefaultFolder(editor);
        if (!mayBeNamed(editor, symbols.SymbolFolder, name) ||
            !mayTakeItsPlace(symbols, editor, name)) {
            ++form.txtSymbolName.SelectAllRequests;
            return;
        }
        SaveUserSymbol(symbols, editor, name);
        form.Visible = false;
        tellSaved(symbols, editor);
    } catch (const Failure& failure) {
        editor.form.lblMessage.Caption = "The symbol was not saved. " + failure.text;
        editor.platform.ReportError("Save User Symbol", failure);
    }
}

void frmUS_cmdExit_Click(UserSymbols& symbols, Editor& editor) {
    editor.form.lblMessage.Caption = "User Symbol cancelled. Hit ESC to reset the drawing.";
    symbols.frmUS.Visible = false;
}

}  // namespace ladrix
