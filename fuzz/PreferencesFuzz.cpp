// Any bytes as the preferences file, and its first line as a setting's new value. The first byte
// chooses the locale, the file's folder, the setting and whether the disk is full.
#include "app/Preferences.h"

#include <array>
#include <cmath>
#include <cstdint>

#include "FewFiles.h"
#include "canvas/tools/LineTool.h"
#include "canvas/tools/ToolTable.h"

namespace {

using namespace ladrix;

constexpr std::array Settings = {Setting::PrinterName, Setting::PrinterNumber,
                                 Setting::PrintLineWeight, Setting::PaletteRows,
                                 Setting::DashSpacing};
constexpr std::size_t TagLength = 15;

class Session {
  public:
    Session() {
        machine_.platform.locale.generalDate = [] { return std::string("today"); };
        program_.paths.DataFilesPath = "/data/";
        program_.paths.AppFilePath = "/program/";
    }

    void run(const fuzz::Input& input) {
        begin(input);
        const bool own = input.chosen(1);
        files_.content(own ? Own : Shipped) = input.text;
        ReadUserPreferences(program_);
        fuzz::require(files_.content(own ? Own : Shipped) == input.text);
        fuzz::require(program_.PrefsFolder == (own ? "/data/" : "/program/"));
        checkRanges();
        checkSaving(own ? Own : Shipped, input);
        fuzz::require(!files_.content(own ? Shipped : Own));
    }

  private:
    enum File : std::size_t { Own, Shipped, Spare, Log };

    void begin(const fuzz::Input& input) {
        machine_.begin(input);
        for (const File file : {Own, Shipped, Spare, Log})
            files_.content(file).reset();
        files_.full = false;
        forget();
    }

    // As at the start of a run.
    void forget() {
        program_.UserPrefs.clear();
        program_.PrefsFolder.clear();
        program_.LastErrorText.clear();
        program_.printing.SessionPrinterName.clear();
        program_.printing.PrintLineWeight = DefaultLineWeight;
        program_.editor.DashSpacing = 0.125f;
        program_.usersymbols.PaletteRows = DefaultPaletteRows;
    }

    // Whatever the file says, the program can work with it.
    void checkRanges() const {
        const Short weight = program_.printing.PrintLineWeight;
        fuzz::require(weight >= LeastLineWeight && weight <= HeaviestLineWeight);
        const Single spacing = program_.editor.DashSpacing;
        fuzz::require(std::isfinite(spacing) && spacing >= LeastDashSpacing);
        const Short rows = program_.usersymbols.PaletteRows;
        fuzz::require(rows >= FewestPaletteRows && rows <= MostPaletteRows);
        for (const std::string& line : program_.UserPrefs)
            fuzz::require(line.find('\n') == std::string::npos);
    }

    // A setting changes its own line and no other; a save that fails leaves the old file whole.
    void checkSaving(File file, const fuzz::Input& input) {
        const auto before = program_.UserPrefs;
        const Setting setting = Settings[input.choice / 8 % Settings.size()];
        const auto line = static_cast<std::size_t>(setting);
        const std::string value = input.text.substr(0, input.text.find_first_of("\r\n"));
        files_.full = input.chosen(2);
        StoreSetting(program_, setting, value);
        const std::vector<std::string> lines = program_.UserPrefs;
        fuzz::require(lines.size() == std::max(before.size(), line + 1));
        for (std::size_t i = 0; i < before.size(); ++i)
            fuzz::require(i == line || lines[i] == before[i]);
        fuzz::require(lines[line].substr(TagLength) == value);
        if (files_.full) {
            fuzz::require(files_.content(file) == input.text);
            fuzz::require(files_.content(Spare) == input.text && files_.content(Log));
        } else {
            fuzz::require(files_.content(file) == fuzz::linesText(lines) && !files_.content(Spare));
            readBack(lines, setting, value);
        }
    }

    void readBack(const std::vector<std::string>& lines, Setting setting,
                  const std::string& value) {
        forget();
        ReadUserPreferences(program_);
        fuzz::require(program_.UserPrefs == lines);
        checkRanges();
        if (setting == Setting::PrinterName)
            fuzz::require(program_.printing.SessionPrinterName == value);
    }

    fuzz::FewFiles files_{{{"/data/", "UserPreferences.upf"},
                           {"/program/", "UserPreferences.upf"},
                           {"/program/", "Temp_UserPreferences.upf"},
                           {"/data/", "Error Log.txt"}}};
    fuzz::Machine machine_{files_};
    Program program_{machine_.platform};
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Session session;
    session.run(fuzz::Input(data, size));
    return 0;
}
