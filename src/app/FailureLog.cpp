#include "app/FailureLog.h"

#include <vector>

#include "platform/Files.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view LogName = "Error Log.txt", MessagesName = "Error Messages.txt";
constexpr std::uintmax_t LargestLog = 1u << 30;  // it is held in memory meanwhile
constexpr std::string_view EndOfLine = "\r\n";

std::string logPath(const Program& program) {
    return pathIn(program.paths.DataFilesPath, LogName);
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

// A file to be copied to the base folder, under its own name.
struct HandedOver {
    std::string name, content;
};

// The one of the base folder that has this content is left alone: it may be the original itself, by
// whatever path that was opened.
bool isThere(Files& files, const std::string& path, const HandedOver& file) {
    try {
        return files.read(path, LargestLog) == file.content;
    } catch (const Failure&) {
        return false;
    }
}

// Everything is read before a former copy goes, so that what cannot be handed over stays as it was.
void handOver(Program& program, std::vector<HandedOver> handedOver) {
    Files& files = *program.platform.files;
    const std::string& base = program.paths.BasePath;
    std::erase_if(handedOver, [&](const HandedOver& file) {
        return isThere(files, pathIn(base, file.name), file);
    });
    for (const HandedOver& file : handedOver)
        if (files.status(base + file.name)) files.remove(base + file.name);
    for (const HandedOver& file : handedOver)
        files.replace(base + file.name, file.content);
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

void renewErrorMessages(Program& program) {
    Files& files = *program.platform.files;
    const std::string path = pathIn(program.paths.BasePath, MessagesName);
    if (files.status(path)) files.remove(path);
    files.append(path, "");
}

void appendErrorMessage(Program& program, std::string_view lines) {
    try {
        program.platform.files->append(pathIn(program.paths.BasePath, MessagesName),
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
        const std::string path = logPath(program);
        if (logExists(program)) viewer.txtLog = program.platform.files->read(path);
    });
    viewer.Visible = true;
    program.platform.dialogs->show(Form::frmLog);
}

void frmLog_cmdExport_Click(Program& program) {
    Files& files = *program.platform.files;
    const Drawing& drawing = program.editor.drawing;
    std::string attached{LogName};
    const bool done = program.platform.attempt("Export Error Log", [&] {
        if (!logExists(program)) return attached.clear();
        std::vector<HandedOver> handedOver{{attached, files.read(logPath(program), LargestLog)}};
        const std::string& name = drawing.CurrentFileName;
        const std::string path = drawing.CurrentFolder + name;
        if (!name.empty() && files.status(path)) {
            handedOver.push_back({name, files.read(path)});
            attached += " and " + name;
        }
        handOver(program, std::move(handedOver));
    });
    if (!done) return;
    if (attached.empty()) return program.platform.tell("There is no error log to export.");
    program.platform.tell(
        "Error Log has been successfully exported to MyDocuments\\Ladrix\r\nPlease attach the "
        "file " +
            attached + " to your email for further evaluation.",
        "Error Log Transferred");
}

void frmLog_cmdView_Click(Program& program) {
    program.platform.attempt("View Error Log", [&] {
        if (!program.platform.shell->open(logPath(program)))
            throw Failure{failure::FileNotFound, "No application could open the error log."};
    });
}

void frmLog_cmdExit_Click(Program& program) {
    program.frmLog.Visible = false;
}

}  // namespace ladrix
