#include "app/Preferences.h"

#include "app/FailureLog.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view PreferencesName = "UserPreferences.upf";
constexpr std::size_t TagLength = 15;
constexpr std::size_t DashSpacingLine = 26;

std::vector<std::string> linesOf(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.emplace_back(line);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 1);
    }
    return lines;
}

// The value behind the tag; "" for a line that the file does not have.
std::string valueOf(const std::vector<std::string>& lines, std::size_t index) {
    if (index >= lines.size()) return {};
    if (lines[index].size() < TagLength)
        throw Failure{failure::InvalidCall, "Line " + longText(static_cast<Long>(index)) +
                                                " of the preferences is too short."};
    return lines[index].substr(TagLength);
}

}  // namespace

void ReadUserPreferences(Program& program) {
    Files& files = *program.platform.files;
    const Paths& paths = program.paths;
    try {
        const bool own = FileExists(files, paths.DataFilesPath, PreferencesName);
        const std::string& folder = own ? paths.DataFilesPath : paths.AppFilePath;
        if (!own && !FileExists(files, folder, PreferencesName)) return;
        program.UserPrefs = linesOf(files.read(folder + std::string(PreferencesName)));
        if (const std::string value = valueOf(program.UserPrefs, DashSpacingLine); !value.empty())
            program.editor.DashSpacing = toSingle(value);
    } catch (const Failure& failure) {
        ReportError(program, "Read User Preferences", failure);
    }
}

}  // namespace ladrix
