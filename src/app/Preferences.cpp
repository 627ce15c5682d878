#include "app/Preferences.h"

#include <algorithm>

#include "app/FailureLog.h"
#include "canvas/tools/LineTool.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view PreferencesName = "UserPreferences.upf";
constexpr std::size_t TagLength = 15;

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

std::string tagOf(std::size_t line) {
    const std::string digits = longText(static_cast<Long>(line));
    return "Reserve Bit " + std::string(digits.size() < 2 ? "0" : "") + digits + ":";
}

// The value behind the tag; "" for a line that the file does not have.
std::string valueOf(const std::vector<std::string>& lines, Setting setting) {
    const auto index = static_cast<std::size_t>(setting);
    if (index >= lines.size()) return {};
    if (lines[index].size() < TagLength)
        throw Failure{failure::InvalidCall, "Line " + longText(static_cast<Long>(index)) +
                                                " of the preferences is too short."};
    return lines[index].substr(TagLength);
}

void readDashSpacing(Program& program) {
    const std::string value = valueOf(program.UserPrefs, Setting::DashSpacing);
    if (value.empty()) return;
    const Single spacing = toSingle(value);
    if (!(spacing >= LeastDashSpacing))
        throw Failure{failure::InvalidCall, "A dash spacing of " + value + " is not possible."};
    program.editor.DashSpacing = spacing;
}

// A number that the program could not have written leaves the default.
void readPaletteRows(Program& program) {
    const auto rows = typedNumber(valueOf(program.UserPrefs, Setting::PaletteRows));
    if (rows && *rows >= FewestPaletteRows && *rows <= MostPaletteRows)
        program.usersymbols.PaletteRows = static_cast<Short>(*rows);
}

// The printer's number in the list is told to whoever reads the file; the name is what counts.
void readPrinterSettings(Program& program) {
    program.printing.SessionPrinterName = valueOf(program.UserPrefs, Setting::PrinterName);
    const std::string weight = valueOf(program.UserPrefs, Setting::PrintLineWeight);
    const Short value = weight.empty() ? DefaultLineWeight : toShort(weight);
    program.printing.PrintLineWeight = std::clamp(value, LeastLineWeight, HeaviestLineWeight);
    program.editor.symbols.PrinterLineWidth = program.printing.PrintLineWeight;
}

}  // namespace

void ReadUserPreferences(Program& program) {
    Files& files = *program.platform.files;
    const Paths& paths = program.paths;
    try {
        const bool own = FileExists(files, paths.DataFilesPath, PreferencesName);
        const std::string& folder = own ? paths.DataFilesPath : paths.AppFilePath;
        program.PrefsFolder = folder;
        if (!own && !FileExists(files, folder, PreferencesName)) return;
        program.UserPrefs = linesOf(files.read(folder + std::string(PreferencesName)));
        readPrinterSettings(program);
        readDashSpacing(program);
        readPaletteRows(program);
    } catch (const Failure& failure) {
        ReportError(program, "Read User Preferences", failure);
    }
}

bool SaveUserPreferences(Program& program) {
    Files& files = *program.platform.files;
    const std::string target = program.PrefsFolder + std::string(PreferencesName);
    const std::string spare = program.paths.AppFilePath + "Temp_" + std::string(PreferencesName);
    try {
        if (FileExists(files, program.PrefsFolder, PreferencesName)) files.copy(target, spare);
        std::string text;
        for (const std::string& line : program.UserPrefs)
            text += line + "\r\n";
        files.replace(target, text);
        if (files.status(spare)) files.remove(spare);
        return true;
    } catch (const Failure& failure) {
        ReportError(program, "Save User Preferences", failure);
        return false;
    }
}

void StoreSetting(Program& program, Setting setting, std::string_view value) {
    const auto index = static_cast<std::size_t>(setting);
    for (std::size_t line = program.UserPrefs.size(); line <= index; ++line)
        program.UserPrefs.push_back(tagOf(line));
    program.UserPrefs[index] = tagOf(index).append(value);
    SaveUserPreferences(program);
}

}  // namespace ladrix
