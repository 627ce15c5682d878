#include "app/HelpContexts.h"

#include "canvas/tools/ToolTable.h"
#include "help/HelpCommands.h"

namespace ladrix {

namespace {

constexpr std::string_view MainWindowName = "frmLX", BrowserName = "frmFile";
constexpr std::string_view AnySymbol = "symbol", UserSymbol = "user symbol";
constexpr std::string_view Simulating = "simulation", SavingSymbol = "saving a symbol",
                           Arranging = "arranging buttons", Zooming = "zoom",
                           Aligning = "aligning labels", Copying = "copy or move",
                           Saving = "saving a file", Backups = "backups",
                           Library = "choosing a library", Pictures = "choosing a picture",
                           Favourites = "choosing a folder", Settings = "choosing preferences",
                           Exporting = "exporting", LabelsSelected = "labels selected",
                           Selected = "selection", Idle = "nothing under way";

// clang-format off
constexpr HelpContext Contexts[] = {
    {AnySymbol, "2.1 Placing Symbols"},
    {UserSymbol, "7.3 The User Palette"},
    {Simulating, "8.1 Circuit Simulation"},
    {SavingSymbol, "7.2 Making a User Symbol"},
    {Arranging, "7.3 The User Palette"},
    {Zooming, "3.2 Zoom, Scrolling and Stretching"},
    {Aligning, "4.6 Text Properties and Alignment"},
    {Copying, "4.2 Copy and Move"},
    {LabelsSelected, "4.6 Text Properties and Alignment"},
    {Selected, "4.1 Selecting"},
    {Idle, "1.1 Welcome to Ladrix"},
    {BrowserName, "5.2 The File Browser"},
    {Saving, "5.1 Opening and Saving"},
    {Backups, "5.5 Recent Drawings and Backup Copies"},
    {Library, "7.4 User Libraries"},
    {Pictures, "4.8 Pictures"},
    {Favourites, "5.3 Favourite Folders"},
    {Settings, "9.3 Preferences"},
    {Exporting, "6.3 Exporting Drawings and Bitmaps"},
    {"frmDesc", "5.1 Opening and Saving"},
    {"frmLog", "9.4 Error Messages and the Error Log"},
    {"frmTextProps", "4.6 Text Properties and Alignment"},
    {"frmFavorites", "5.3 Favourite Folders"},
    {"frmButtonColor", "7.2 Making a User Symbol"},
    {"frmUS", "7.2 Making a User Symbol"},
    {"frmUBRows", "7.3 The User Palette"},
    {"frmLibManager", "7.5 The Library Manager"},
    {"frmFind", "7.6 Finding a Symbol"},
    {"frmRemoved", "7.8 Bringing Back What Was Removed"},
    {"frmLayout", "3.4 Page Sizes"},
    {"frmPrinter", "6.1 Printing"},
    {"frmPrinters", "6.1 Printing"},
    {"frmPreview", "6.2 Print Preview"},
    {"frmHelp", "1.5 Using This Help"},
    {"messageBox", "9.4 Error Messages and the Error Log"},
    {"inputBox", "9.2 Dialogs"},
};
// clang-format on

std::string_view topicOf(std::string_view where) {
    for (const HelpContext& context : Contexts)
        if (context.where == where) return context.topic;
    return toolOfName(where).helpTopic;
}

std::string_view toolContext(const Editor& editor) {
    if (editor.gesture.CurrentTool > editor.LastBuiltInButton) return UserSymbol;
    const auto& buttons = editor.form.cmdSym;
    const auto index = static_cast<std::size_t>(editor.gesture.CurrentTool);
    if (index >= buttons.size() || topicOf(buttons[index].Tag).empty()) return AnySymbol;
    return buttons[index].Tag;
}

// What the browser chooses.
std::string_view browserContext(const Program& program) {
    switch (program.frmFile.FileBrowserMode) {
        case BrowserMode::Library:
        case BrowserMode::MergeLibrary:
        case BrowserMode::TransferLibrary:
            return Library;
        case BrowserMode::Picture:
            return Pictures;
        case BrowserMode::SavePreferences:
        case BrowserMode::RestorePreferences:
            return Settings;
        case BrowserMode::SaveExport:
            return Exporting;
        case BrowserMode::Folder:
            return Favourites;
        case BrowserMode::Backup:
            return Backups;
        default:
            break;
    }
    if (!program.editor.backups.offered.empty()) return Backups;
    return program.editor.drawing.SaveInProgress ? Saving : BrowserName;
}

// What is under way in the main window.
std::string_view editorContext(const Editor& editor) {
    if (editor.SimulationMode) return Simulating;
    if (editor.gesture.SavingUserSymbol) return SavingSymbol;
    if (editor.Arranging) return Arranging;
    if (editor.gesture.ZoomInPending || editor.gesture.ZoomOutPending) return Zooming;
    if (editor.gesture.TextAlignPending) return Aligning;
    if (editor.gesture.CopyArmed) return Copying;
    if (editor.gesture.CurrentTool != -1) return toolContext(editor);
    if (editor.SelectedCount == 0) return Idle;
    return editor.SelectedLabelCount == editor.SelectedCount ? LabelsSelected : Selected;
}

}  // namespace

std::span<const HelpContext> helpContexts() {
    return Contexts;
}

std::string_view helpTopicOf(const Program& program, std::string_view window) {
    const std::string_view topic =
        topicOf(window == BrowserName ? browserContext(program) : window);
    return topic.empty() ? topicOf(editorContext(program.editor)) : topic;
}

void openHelp(Program& program, std::string_view window) {
    HelpForm& help = program.frmHelp;
    if (!help.Visible) Form_Load(help);
    goToTopic(help, helpTopicOf(program, window));
    program.platform.dialogs->open(Form::frmHelp);
}

void mnuHelpContents_Click(Program& program) {
    openHelp(program, MainWindowName);
}

}  // namespace ladrix
