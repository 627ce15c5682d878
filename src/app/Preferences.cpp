#include "app/Preferences.h"

#include "app/FailureLog.h"
#include "browser/PreferencesCopy.h"
#include "canvas/tools/LineTool.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view SpareName = "Temp_UserPreferences.upf";
constexpr std::string_view EndOfLine = "\r\n";
constexpr std::size_t TagLength = 15;
constexpr Single DefaultDashSpacing = 0.125f;  // inches

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

void takePrinterName(Program& program, const std::string& value) {
    program.printing.SessionPrinterName = value;
}

void takePrinterNumber(Program& program, const std::string& value) {
    program.printing.SessionPrinterNumber.reset();
    if (!value.empty()) program.printing.SessionPrinterNumber = toShort(value);
}

// The number, or the default for an empty value.
Short numberWithin(const std::string& value, Short least, Short most, Short byDefault) {
    if (value.empty()) return byDefault;
    const Short number = toShort(value);
    if (number < least || number > most)
        throw Failure{failure::InvalidCall,
                      "It must be from " + longText(least) + " to " + longText(most) + "."};
    return number;
}

void takePrintLineWeight(Program& program, const std::string& value) {
    const auto put = [&](Short weight) {
        program.printing.PrintLineWeight = weight;
        program.editor.symbols.PrinterLineWidth = weight;
    };
    put(DefaultLineWeight);
    put(numberWithin(value, LeastLineWeight, HeaviestLineWeight, DefaultLineWeight));
}

void takePaletteRows(Program& program, const std::string& value) {
    Short& rows = program.usersymbols.PaletteRows;
    rows = DefaultPaletteRows;
    rows = numberWithin(value, FewestPaletteRows, MostPaletteRows, DefaultPaletteRows);
}

void takeDashSpacing(Program& program, const std::string& value) {
    program.editor.DashSpacing = DefaultDashSpacing;
    if (value.empty()) return;
    const Single spacing = toSingle(value);
    if (!(spacing >= LeastDashSpacing))
        throw Failure{failure::InvalidCall,
                      "It must be at least " +
                          singleText(LeastDashSpacing, program.platform.locale.decimalMark) + "."};
    program.editor.DashSpacing = spacing;
}

// Each puts its default in force before it throws a Failure for a value that it cannot take.
struct SettingTaker {
    Setting setting;
    void (*take)(Program& program, const std::string& value);
};
constexpr SettingTaker Takers[] = {
    {Setting::PrinterName, takePrinterName},         {Setting::PrinterNumber, takePrinterNumber},
    {Setting::PrintLineWeight, takePrintLineWeight}, {Setting::PaletteRows, takePaletteRows},
    {Setting::DashSpacing, takeDashSpacing},
};

// From the line's text, "" for a line that the file does not have.
void takeSetting(Program& program, const SettingTaker& taker) {
    const auto index = static_cast<std::size_t>(taker.setting);
    const bool isThere = index < program.UserPrefs.size();
    if (isThere && program.UserPrefs[index].size() < TagLength) {
        taker.take(program, "");
        throw Failure{failure::InvalidCall, "It is too short."};
    }
    taker.take(program, isThere ? program.UserPrefs[index].substr(TagLength) : std::string());
}

// Line 24, "Reserve Bit 24:wide": Type mismatch
std::string badLineText(const Program& program, Setting setting, const Failure& failure) {
    constexpr std::size_t longest = 60;
    const auto index = static_cast<std::size_t>(setting);
    std::string content = program.UserPrefs[index];
    if (content.size() > longest) content.replace(longest, std::string::npos, "...");
    return "Line " + longText(static_cast<Long>(index)) + ", \"" + content + "\": " + failure.text;
}

void takeSettings(Program& program) {
    Failure bad;
    for (const SettingTaker& taker : Takers) {
        try {
            takeSetting(program, taker);
        } catch (const Failure& failure) {
            if (bad.number == 0) bad.number = failure.number;
            if (!bad.text.empty()) bad.text += EndOfLine;
            bad.text += badLineText(program, taker.setting, failure);
        }
    }
    if (bad.number != 0) ReportError(program, "Read User Preferences", bad);
}

// False if the file is there and could not be read.
bool readLines(Program& program) {
    const auto read = [&] {
        Files& files = *program.platform.files;
        const Paths& paths = program.paths;
        const bool own = FileExists(files, paths.DataFilesPath, PreferencesName);
        program.PrefsFolder = own ? paths.DataFilesPath : paths.AppFilePath;
        if (!own && !FileExists(files, program.PrefsFolder, PreferencesName)) return;
        program.UserPrefs = linesOf(files.read(pathIn(program.PrefsFolder, PreferencesName)));
    };
    return program.prefsFile.read(read, [&](const Failure& failure) {
        ReportError(program, "Read User Preferences", failure);
    });
}

}  // namespace

void ReadUserPreferences(Program& program) {
    if (readLines(program)) takeSettings(program);
}

bool SaveUserPreferences(Program& program) {
    Files& files = *program.platform.files;
    try {
        program.prefsFile.requireRead();
        const std::string target = pathIn(program.PrefsFolder, PreferencesName);
        const std::string spare = pathIn(program.paths.AppFilePath, SpareName);
        if (FileExists(files, program.PrefsFolder, PreferencesName)) files.copy(target, spare);
        std::string text;
        for (const std::string& line : program.UserPrefs)
            text.append(line).append(EndOfLine);
        files.replace(target, text);
        if (files.status(spare)) files.remove(spare);
        return true;
    } catch (const Failure& failure) {
        ReportError(program, "Save User Preferences", failure);
        return false;
    }
}

void StoreSetting(Program& program, Setting setting, std::string_view value) {
    if (program.prefsFile.hasFailed()) readLines(program);
    const auto index = static_cast<std::size_t>(setting);
    for (std::size_t line = program.UserPrefs.size(); line <= index; ++line)
        program.UserPrefs.push_back(tagOf(line));
    program.UserPrefs[index] = tagOf(index).append(value);
    SaveUserPreferences(program);
}

}  // namespace ladrix
