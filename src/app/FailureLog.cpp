#include "app/FailureLog.h"

#include "platform/Files.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view LogName = "Error Log.txt";
constexpr std::string_view EndOfLine = "\r\n";

std::string logPath(const Program& program) {
    return program.paths.DataFilesPath + std::string(LogName);
}

std::string entryOf(const Program& program, std::string_view description, const Failure& failure) {
    std::string entry = program.platform.locale.generalDate();
    entry += EndOfLine;
    entry += description;
    entry += EndOfLine;
    entry += "Error Number: " + longText(failure.number);
    entry += EndOfLine;
    entry += "Error Description: " + failure.text;
    entry += EndOfLine;
    entry += EndOfLine;
    return entry;
}

void appendToLog(Program& program, std::string_view entry) {
    try {
        program.platform.files->append(logPath(program), entry);
    } catch (const Failure&) {
        // A failure to log is dropped: it must never bring up a second report.
    }
}

bool logExists(Program& program) {
    return FileExists(*program.platform.files, program.paths.DataFilesPath, LogName);
}

// Puts a copy of `name` from `folder` in the base folder, in place of a former one, which stays if
// the copy fails.
void handOver(Program& program, const std::string& folder, const std::string& name) {
    Files& files = *program.platform.files;
    if (folder == program.paths.BasePath || !FileExists(files, folder, name)) return;
    files.copy(folder + name, program.paths.BasePath + name);
}

}  // namespace

void ReportError(Program& program, std::string_view description, const Failure& failure) {
    const std::string entry = entryOf(program, description, failure);
    if (description == program.LastErrorText) {
        appendToLog(program, entry);
        return;
    }
    const std::string message =
        entry +
        "\r\nIf this error keeps occurring, please upgrade the software. Look"
        "\r\nunder Help for more details about upgrading.";
    program.LastErrorText = description;
    if (program.platform.dialogs->message(message, "Program Error", Buttons::OkCancel) ==
        Answer::Ok)
        appendToLog(program, entry);
}

void appendErrorMessage(Program& program, std::string_view lines) {
    try {
        program.platform.files->append(program.paths.BasePath + "Error Messages.txt",
                                       std::string(lines) + "\r\n");
    } catch (const Failure&) {
        // The diagnostics are no reason to trouble the user.
    }
}

void mnuAdminViewErrorLog_Click(Program& program) {
    LogViewer& viewer = program.frmLog;
    viewer.Caption = "Error Log";
    viewer.txtLog.clear();
    program.platform.attempt("View Error Log", [&] {
        if (logExists(program)) viewer.txtLog = program.platform.files->read(logPath(program));
    });
    viewer.Visible = true;
    program.platform.dialogs->show(Form::frmLog);
}

void frmLog_cmdExport_Click(Program& program) {
    const Drawing& drawing = program.editor.drawing;
    try {
        handOver(program, program.paths.DataFilesPath, std::string(LogName));
        if (!drawing.CurrentFileName.empty())
            handOver(program, drawing.CurrentFolder, drawing.CurrentFileName);
    } catch (const Failure& failure) {
        return ReportError(program, "Export Error Log", failure);
    }
    std::string attached{LogName};
    if (!drawing.CurrentFileName.empty()) attached += " and " + drawing.CurrentFileName;
    program.platform.tell(
        "Error Log has been successfully exported to MyDocuments\\Ladrix\r\nPlease attach the "
        "file " +
            attached + " to your email for further evaluation.",
        "Error Log Transferred");
}

void frmLog_cmdView_Click(Program& program) {
    if (!program.platform.shell->open(logPath(program)))
        ReportError(program, "View Error Log",
                    {failure::FileNotFound, "No application could open the error log."});
}

void frmLog_cmdExit_Click(Program& program) {
    program.frmLog.Visible = false;
}

}  // namespace ladrix
