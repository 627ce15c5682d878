// Writes the page on which a user looks symbols up, as Markdown on standard output: every name of
// every library with its palette text, its drawings and its label. The sheets that it shows are
// made by `ladrix-export --gallery`.
#include <algorithm>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "symbols/DeviceNames.h"
#include "symbols/Palettes.h"

namespace {

using namespace ladrix;

struct Section {
    Library library;
    std::string_view title, sheet, about;
};

constexpr Section Sections[] = {
    {Library::NEMA, "NEMA", "NEMA",
     "Relay logic and power in the American style (NEMA ICS 19, ANSI Y32.2)."},
    {Library::IEC, "IEC", "IEC", "Control symbols in the European style (IEC 60617)."},
    {Library::Electronic, "Electronic", "Electronic",
     "Semiconductors, resistors and their like (IEEE 315)."},
    {Library::FluidPower, "Fluid power", "Hyd", "Hydraulics and pneumatics (ISO 1219-1)."},
    {Library::Common, "Common", "Common", "Free shapes and parts that all libraries share."},
};

// The palettes in whose list the text stands.
std::string palettesWith(std::string_view text) {
    std::string found;
    for (const Section& section : Sections) {
        const auto entries = palette(section.library);
        const bool here = std::any_of(entries.begin(), entries.end(), [&](const PaletteEntry& e) {
            return deviceOfPaletteText(e.text) == deviceOfPaletteText(text);
        });
        if (here) found += (found.empty() ? "" : ", ") + std::string(section.title);
    }
    return found;
}

std::string drawings(const Shape& shape) {
    if (shape.anyOrientation) return "1";
    const auto count = std::count_if(shape.orientations.begin(), shape.orientations.end(),
                                     [](const auto& list) { return !list.empty(); });
    return std::to_string(count);
}

void listName(const DeviceName& entry) {
    const Shape* shape = findShape(entry.name);
    std::cout << "| " << (entry.paletteText.empty() ? "" : entry.paletteText) << " | `"
              << entry.name << "` | " << (shape ? drawings(*shape) : "free") << " | "
              << (shape && !shape->symbol->prefix.empty() ? shape->symbol->prefix : "") << " | "
              << (entry.paletteText.empty() ? "" : palettesWith(entry.paletteText)) << " |\n";
}

void listSection(const Section& section) {
    std::cout << "\n## " << section.title << "\n\n"
              << section.about << "\n\n![All symbols: " << section.title << "](" << section.sheet
              << ".png)\n\n"
              << "| Palette text | Name in drawings | Drawings | Label | Palettes |\n"
              << "|---|---|---|---|---|\n";
    std::vector<DeviceName> names;
    for (const DeviceName& entry : deviceNames())
        if (entry.library == section.library) names.push_back(entry);
    std::stable_partition(names.begin(), names.end(),
                          [](const DeviceName& entry) { return !entry.firstGeneration; });
    for (const DeviceName& entry : names)
        listName(entry);
}

}  // namespace

int main() {
    std::cout << "# Symbols\n\n"
                 "Every symbol of the program, by library. The red dot on a sheet is the insertion "
                 "point: the place of the click. A name without a palette text is kept for old "
                 "drawings or drawn by a tool of its own. The label is what an attached label "
                 "begins with.\n";
    for (const Section& section : Sections)
        listSection(section);
    std::cout.flush();
    return std::cout ? 0 : 1;
}
