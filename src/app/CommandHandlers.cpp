#include "app/CommandHandlers.h"

#include "app/FailureLog.h"
#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/Gesture.h"
#include "canvas/history/Undo.h"
#include "canvas/labels/LabelEdit.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"
#include "help/HelpCommands.h"

namespace ladrix {

namespace {

constexpr std::string_view Site = "https://ladrix.example/";
constexpr std::string_view CommentAddress = "mailto:comments@ladrix.example";
constexpr std::string_view Password = "gravlock";

void askAndOpen(Program& program, std::string_view question, std::string_view title,
                std::string_view page) {
    if (program.platform.dialogs->message(question, title, Buttons::YesNo) != Answer::Yes) return;
    const std::string address = std::string(Site) + std::string(page);
    if (!program.platform.shell->open(address))
        ReportError(program, "Open Web Page",
                    {failure::FileNotFound, "No application could open " + address});
}

}  // namespace

bool mayEnd(Program& program) {
    keepLabelEdit(program.editor);
    if (!Form_QueryUnload(program.editor)) return false;
    return !program.frmHelp.Visible || Form_QueryUnload(program.frmHelp);
}

void exitProgram(Program& program) {
    if (mayEnd(program)) program.platform.shell->endProgram();
}

void choosePage(Program& program, int choice) {
    static constexpr std::string_view Keys[] = {"8.5x11Portrait", "8.5x11Landscape",
                                                "11x17Portrait", "11x17Landscape"};
    program.editor.drawing.PageLayoutKey = Keys[choice];
    ApplyPageLayout(program.editor);
    ResetZoom(program.editor);
}

void openDemo(Program& program, int number) {
    mnuHelpDemo_Click(program.editor, number);
}

void parseDevices(Program& program) {
    ParseShownDevices(program.editor);
}

void chooseNormalMode(Program& program) {
    LeaveSimulation(program.simulation, program.editor);
    program.editor.form.menu[Menu::mnuModeNormal].Checked = true;
    program.editor.form.menu[Menu::mnuModeDesign].Checked = false;
    ResetEditor(program.editor);
}

void flipAttachLabels(Program& program) {
    bool& attach = program.editor.drawing.AttachLabels;
    attach = !attach;
    program.editor.form.menu[Menu::mnuOptionAttachLabels].Checked = attach;
}

void showVersion(Program& program) {
    program.platform.tell(std::string(ProgramName) + " - Version: " + std::string(ProgramVersion),
                          ProgramName);
}

void viewTutorials(Program& program) {
    askAndOpen(program, "Viewing the tutorial requires an Internet connection. Are you connected?",
               "Preparing to View On-Line Tutorial", "tutorials");
}

void viewLibraries(Program& program) {
    askAndOpen(program, "Viewing Libraries requires an Internet connection. Are you connected?",
               "Preparing to View On-Line Libraries", "libraries");
}

void visitSupport(Program& program) {
    askAndOpen(program, "Visiting Support requires an Internet connection. Are you connected?",
               "Preparing to Visit Support", "support");
}

void sendComment(Program& program) {
    const std::string address =
        std::string(CommentAddress) + "?subject=" + std::string(ProgramName) + "&body=Comments";
    if (!program.platform.shell->open(address))
        program.platform.tell(
            "A problem was encountered while attempting to open your default email client.");
}

void logIn(Program& program) {
    const auto answer =
        program.platform.dialogs->input("Please enter password", "Author Login", "");
    if (answer != Password) return;
    program.editor.LoggedIn = true;
    program.editor.form.menu[Menu::mnuAdmin].Visible = true;
}

void createShortcut(Program& program) {
    program.platform.attempt("Create Shortcut", [&] {
        program.platform.shell->createShortcut();
        program.editor.form.lblMessage.Caption = "Shortcut created on the desktop.";
    });
}

}  // namespace ladrix
