// Loading a library of as many symbols as the palette takes, beside a bare reading of its files;
// and placing a symbol of 200 lines, beside drawing the same primitives.
#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "EditorWindow.h"
#include "Measure.h"
#include "usersymbols/Compiler.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/Script.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Rounds = 15;
constexpr int SymbolCount = 828, ScriptLines = 200, Placements = 50;
constexpr double LoadLimit = 1.5;

void require(bool good, const char* what) {
    if (!good) throw std::runtime_error(what);
}

std::string scriptOf(int lines) {
    std::string text;
    for (int i = 0; i < lines; ++i)
        text +=
            "Line\xFF"
            "0.25\xFF-0." +
            std::to_string(i) +
            "\xFF"
            "1.5\xFF"
            "0.125\r\n";
    return text;
}

std::string iconText(const Platform& platform) {
    const auto picture = platform.images->makePicture(25, 25);
    picture->Circle(12, 12, 10, Black, 1);
    return platform.images->bitmapText(*picture->Image());
}

void writeLibrary(const Platform& platform, const std::string& folder) {
    const std::string icon = iconText(platform);
    std::filesystem::create_directory(folder + "User Symbols");
    std::ofstream list(folder + "User Symbols.lib", std::ios::binary);
    for (int i = 0; i < SymbolCount; ++i) {
        const std::string name = "Symbol " + std::to_string(i);
        list << name << "\r\n";
        const std::string path = folder + "User Symbols/" + name;
        std::ofstream(path + ".uds", std::ios::binary) << scriptOf(12);
        std::ofstream(path + ".bmp", std::ios::binary) << icon;
        std::ofstream(path + "_Cyan.bmp", std::ios::binary) << icon;
    }
}

std::size_t readBare(const std::string& folder) {
    std::size_t total = 0;
    std::string content(1 << 16, '\0');
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        const int file = open(entry.path().c_str(), O_RDONLY);
        require(file >= 0, "a file could not be opened");
        total += static_cast<std::size_t>(read(file, content.data(), content.size()));
        close(file);
    }
    return total;
}

void compareLoading(EditorWindow& window) {
    Editor& editor = window.editor();
    UserSymbols& symbols = window.program.usersymbols;
    writeLibrary(window.machine.platform, editor.BasePath);
    std::size_t bytes = 0;
    const auto load = [&] { ReloadLibrary(symbols, editor); };
    const auto bare = [&] { bytes = readBare(editor.BasePath + "User Symbols"); };
    printLine("828 symbols", byTurns(Rounds, load, bare), LoadLimit);
    require(symbols.UserSymbolCount == SymbolCount && bytes > 0, "not all symbols were loaded");
}

void comparePlacing(EditorWindow& window) {
    Editor& editor = window.editor();
    UserSymbols symbols;
    symbols.UserSymbolScript = {scriptOf(ScriptLines)};
    symbols.UserSymbolCount = 1;
    SymbolPlacement placement;
    placement.obj = editor.platform.picLX;
    placement.X = placement.Y = 2;
    const auto place = [&] {
        ClearTables(editor.drawing);
        for (int i = 0; i < Placements; ++i)
            InsertUserSymbol(symbols, editor, placement, 0);
        window.window->refresh();
    };
    const auto draw = [&] {
        ClearTables(editor.drawing);
        for (int i = 0; i < Placements * ScriptLines; ++i)
            editor.platform.picLX->Line(2.25f, 2, 3.5f, 2.125f, Black, LineForm::Plain);
        window.window->refresh();
    };
    Medians medians = byTurns(Rounds, place, draw);
    medians.own /= Placements;
    medians.measure /= Placements;
    printLine("a symbol of 200 lines", medians, 0);
    std::printf("%-44s %10.3f ms beside the drawing, at most 2\n", "",
                medians.own - medians.measure);
}

}  // namespace

int main(int argc, char** argv) {
    chooseDisplay();
    try {
        EditorWindow window(argc, argv);
        printHeading("Loading a user library beside a bare reading of its files, ms");
        compareLoading(window);
        printHeading("Placing a user symbol beside drawing its primitives, ms");
        comparePlacing(window);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "UserSymbolBench: %s\n", error.what());
        return 1;
    }
    return 0;
}
