#include "app/RecentFiles.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <utility>

#include "app/FailureLog.h"
#include "app/Program.h"
#include "canvas/file/DrawingCommands.h"

namespace ladrix {

namespace {

constexpr std::string_view ListName = "Recent Files.txt";
constexpr std::uintmax_t LargestList = 64 * 1024;  // bytes
constexpr std::size_t LongestName = 60, LongestFolder = 44;
constexpr char Ellipsis = '\x85';
constexpr char Escape = '\x81';  // of a character that has no byte of its own; two more follow
constexpr std::chrono::milliseconds Patience{1000};

// A path that leads to one place wherever the program is started from.
bool isPath(const Files& files, std::string_view line) {
    if (line.size() < 2 || line.back() == files.separator()) return false;
    const bool isWhole = line.front() == files.separator() || line.substr(1).starts_with(":\\");
    return isWhole && std::none_of(line.begin(), line.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 32; });
}

std::size_t nameStart(const Files& files, std::string_view path) {
    return path.rfind(files.separator()) + 1;
}

void add(std::vector<std::string>& paths, std::string path) {
    if (paths.size() == RecentFilesKept) return;
    if (std::find(paths.begin(), paths.end(), path) == paths.end())
        paths.push_back(std::move(path));
}

void addLines(std::vector<std::string>& paths, const Files& files, std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (isPath(files, line)) add(paths, std::string(line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

// What the file holds comes behind what has been opened without it.
void readList(Program& program) {
    RecentFiles& recent = program.recentFiles;
    const auto read = [&] {
        Files& files = *program.platform.files;
        const std::string list = pathIn(program.paths.DataFilesPath, ListName);
        if (files.status(list)) addLines(recent.paths, files, files.read(list, LargestList));
    };
    recent.file.read(
        read, [&](const Failure& failure) { ReportError(program, "Read Recent Files", failure); });
}

void writeList(Program& program) {
    const std::string& folder = program.paths.DataFilesPath;
    if (folder.empty()) return;
    if (program.recentFiles.file.hasFailed()) readList(program);
    std::string text;
    for (const std::string& path : program.recentFiles.paths)
        text.append(path).append("\r\n");
    try {
        program.recentFiles.file.requireRead();
        program.platform.files->replace(pathIn(folder, ListName), text);
    } catch (const Failure& failure) {
        appendErrorMessage(program, "Recent Files: " + failure.text);
    }
}

// Where a cut leaves every character whole.
std::size_t wholeUpTo(std::string_view text, std::size_t length) {
    const std::size_t escape = text.substr(0, length).rfind(Escape);
    return escape != std::string_view::npos && escape + 3 > length ? escape : length;
}

// The name's start and its extension.
std::string shortName(std::string_view name) {
    if (name.size() <= LongestName) return std::string(name);
    const std::string extension = extensionOf(name);
    const std::size_t length =
        wholeUpTo(name, LongestName - std::min(extension.size(), LongestName / 2));
    return std::string(name.substr(0, length)) + Ellipsis + extension;
}

// The folders nearest to the file, as many as there is room for.
std::string shortFolder(const Files& files, std::string_view folder) {
    if (folder.size() > 1) folder.remove_suffix(1);
    if (folder.size() <= LongestFolder) return std::string(folder);
    const std::size_t start = folder.find(files.separator(), folder.size() - LongestFolder);
    if (start != std::string_view::npos) return Ellipsis + std::string(folder.substr(start));
    const std::string_view last = folder.substr(nameStart(files, folder));
    return Ellipsis + std::string(1, files.separator()) +
           std::string(last.substr(0, wholeUpTo(last, LongestFolder))) + Ellipsis;
}

std::string withoutMnemonics(std::string_view text) {
    std::string plain;
    for (const char c : text)
        plain.append(c == '&' ? 2 : 1, c);
    return plain;
}

}  // namespace

void ReadRecentFiles(Program& program) {
    program.recentFiles.paths.clear();
    if (!program.paths.DataFilesPath.empty()) readList(program);
}

void KeepRecentFile(Program& program) {
    const Paths& own = program.paths;
    const Drawing& drawing = program.editor.drawing;
    const std::string path = drawing.CurrentFolder + drawing.CurrentFileName;
    const bool isShipped = drawing.CurrentFolder == own.AppFilePath;
    const std::string backups = own.BasePath + "Backups" + program.platform.files->separator();
    if (isShipped || path.starts_with(backups)) return;
    std::vector<std::string>& paths = program.recentFiles.paths;
    if (!paths.empty() && paths.front() == path) return;
    std::vector<std::string> former = std::exchange(paths, {path});
    for (std::string& each : former)
        add(paths, std::move(each));
    writeList(program);
}

std::string recentCaption(const Program& program, std::size_t index) {
    const Files& files = *program.platform.files;
    const std::string_view path = program.recentFiles.paths.at(index);
    const std::string_view name = path.substr(nameStart(files, path));
    std::string_view folder = path.substr(0, path.size() - name.size());
    if (folder.starts_with(program.paths.DrawingsPath))
        folder.remove_prefix(program.paths.DrawingsPath.size());
    std::string caption = "&" + std::to_string(index + 1) + " " + withoutMnemonics(shortName(name));
    if (!folder.empty()) caption += '\t' + withoutMnemonics(shortFolder(files, folder));
    return caption;
}

void mnuFileRecent_Click(Program& program, std::size_t index) {
    const std::string path = program.recentFiles.paths.at(index);
    const std::size_t name = nameStart(*program.platform.files, path);
    if (!program.recentFiles.probe.ask({path}, Patience).front())
        return program.platform.tell(path + " could not be found.");
    OpenNamedDrawing(program.editor, path.substr(0, name), path.substr(name));
}

}  // namespace ladrix
