// make_samples OUTPUT-FOLDER [SHEET.els]: the shipped sample library, made of the descriptions by
// the compiler that makes every user's symbols. With a second name also a drawing that shows all.
#include <cmath>
#include <iostream>
#include <sstream>

#include "SampleSymbols.h"
#include "ToolMachine.h"
#include "canvas/state/Editor.h"
#include "document/DrawingFile.h"
#include "platform/DiskFiles.h"
#include "qt/QtImages.h"
#include "usersymbols/Compiler.h"
#include "usersymbols/Script.h"
#include "usersymbols/SymbolFiles.h"

namespace ladrix::tools {

namespace {

constexpr std::string_view LibraryName = "Sample Symbols";
constexpr Single Origin = 4;  // inches; the insertion point on the sheet
constexpr Single Stub = 0.25f, LampRadius = 0.04f, ScrewRadius = 0.0625f, NameSize = 6;

struct Point {
    Single x = 0, y = 0;

    Point operator+(Point other) const { return {x + other.x, y + other.y}; }
    Point operator*(Single factor) const { return {x * factor, y * factor}; }
};

// A sheet on which a description is drawn; everything on it is selected.
class SampleSheet {
  public:
    explicit SampleSheet(ToolMachine& machine) : machine_(machine) {}

    Drawing drawing;

    void draw(std::string_view description) {
        std::istringstream commands{std::string(description)};
        for (std::string command; std::getline(commands, command, ';');) {
            std::istringstream words(command);
            if (!one(words)) throw Failure{failure::InvalidCall, "Not understood: " + command};
        }
    }

  private:
    ToolMachine& machine_;

    static Single number(std::istringstream& words) {
        std::string word;
        if (!(words >> word)) throw Failure{failure::InvalidCall, "A number is missing."};
        return std::stof(word);
    }
    static Point point(std::istringstream& words) {
        const Single x = number(words);
        return {x, number(words)};
    }

    bool one(std::istringstream& words) {
        std::string verb;
        words >> verb;
        if (verb == "line" || verb == "box") {
            const Point from = point(words);
            straight(verb == "line" ? "InsertSavedLine" : "InsertSavedSquare", from, point(words));
        } else if (verb == "circle" || verb == "dot") {
            const Point centre = point(words);
            round(verb, centre, number(words));
        } else if (verb == "arc") {
            arc(words);
        } else if (verb == "text") {
            text(words);
        } else if (verb == "west") {
            terminals(words, {-Stub, 0}, {0, 1}, false);
        } else if (verb == "east") {
            terminals(words, {Stub, 0}, {0, 1}, false);
        } else if (verb == "north") {
            terminals(words, {0, -Stub}, {1, 0}, true);
        } else if (verb == "south") {
            terminals(words, {0, Stub}, {1, 0}, true);
        } else {
            return repeated(verb, words);
        }
        return true;
    }

    bool repeated(const std::string& verb, std::istringstream& words) {
        const Point first = point(words);
        Point step{number(words), 0};
        if (verb == "lamps") step.y = number(words);
        const int count = static_cast<int>(number(words));
        for (int i = 0; i < count; ++i) {
            const Point at = first + step * static_cast<Single>(i);
            if (verb == "lamps")
                round("circle", at, LampRadius);
            else if (verb == "screws")
                screw(at, i + 1);
            else if (verb == "poles")
                pole(at);
            else
                return false;
        }
        return true;
    }

    void screw(Point at, int number) {
        straight("InsertSavedSquare", at + Point{-0.125f, 0.25f}, at + Point{0.125f, 1.0f});
        straight("InsertSavedLine", at, at + Point{0, 0.25f});
        straight("InsertSavedLine", at + Point{0, 1.0f}, at + Point{0, 1.25f});
        const Point centre = at + Point{0, 0.4375f};
        round("circle", centre, ScrewRadius);
        straight("InsertSavedLine", centre + Point{0.045f, -0.045f},
                 centre + Point{-0.045f, 0.045f});
        caption(std::to_string(number), at + Point{0, 0.75f}, NameSize, false);
    }

    void pole(Point at) {
        straight("InsertSavedLine", at + Point{0, -0.25f}, at);
        straight("InsertSavedLine", at + Point{-0.15f, 0.03f}, at + Point{0, 0.375f});
        straight("InsertSavedLine", at + Point{0, 0.375f}, at + Point{0, 0.625f});
    }

    // The edge is a coordinate of the other axis for the terminals above and below.
    void terminals(std::istringstream& words, Point stub, Point along, bool edgeIsY) {
        const Single edge = number(words), first = number(words), step = number(words);
        const Point start = edgeIsY ? Point{first, edge} : Point{edge, first};
        Single place = 0;
        for (std::string name; words >> name; place += step) {
            if (name == ".") continue;
            const Point at = start + along * place;
            const Point end = at + stub;
            straight("InsertSavedLine", end, at);
            const Single half = width(name, NameSize) / 2;
            const Point inwards = edgeIsY ? Point{0, 0.09f} : Point{half + 0.05f, 0};
            const bool towardsRising = stub.x < 0 || stub.y < 0;
            caption(name, at + inwards * (towardsRising ? 1.0f : -1.0f), NameSize, false);
        }
    }

    void arc(std::istringstream& words) {
        const Point centre = point(words);
        Device device = deviceAt("InsertArc", centre);
        device.radius = number(words);
        device.startAngle = static_cast<Single>(static_cast<double>(number(words)) * Pi / 180);
        device.endAngle = static_cast<Single>(static_cast<double>(number(words)) * Pi / 180);
        if (device.startAngle == 0) device.startAngle = 0.000001f;
        device.aspect = 1;
        add(device);
    }

    void text(std::istringstream& words) {
        const Point centre = point(words);
        const Single size = number(words);
        std::string word;
        words >> word;
        const bool bold = word.starts_with('*');
        if (bold) word.erase(0, 1);
        for (char& c : word)
            if (c == '_') c = ' ';
        caption(word, centre, size, bold);
    }

    Single width(std::string_view words, Single size, bool bold = false) const {
        return machine_.fonts.textWidth({"Arial", size, bold, false}, words);
    }

    void caption(const std::string& words, Point centre, Single size, bool bold) {
        const Single height = machine_.fonts.textHeight({"Arial", size, bold, false});
        const auto thousandths = [](Single value) { return std::round(value * 1000) / 1000; };
        Label label;
        label.text = words;
        label.x = thousandths(Origin + centre.x - width(words, size, bold) / 2);
        label.y = thousandths(Origin + centre.y - height / 2);
        label.fontName = "Arial";
        label.fontSize = size;
        label.bold = bold;
        RecordLabel(drawing, machine_.platform, label);
        drawing.labels.LabelSelected.back() = 1;
    }

    void straight(std::string_view name, Point from, Point to) {
        Device device = deviceAt(name, from);
        device.x2 = Origin + to.x;
        device.y2 = Origin + to.y;
        add(device);
    }

    // A circle is kept by its leftmost point, a dot by its centre.
    void round(std::string_view verb, Point centre, Single radius) {
        const bool solid = verb == "dot";
        Device device = solid ? deviceAt("InsertSolidCircle", centre)
                              : deviceAt("InsertCircle", centre + Point{-radius, 0});
        device.radius = radius;
        device.aspect = 1;
        add(device);
    }

    static Device deviceAt(std::string_view name, Point at) {
        Device device;
        device.name = name;
        device.x = Origin + at.x;
        device.y = Origin + at.y;
        return device;
    }

    void add(Device& device) {
        RecordDevice(drawing, machine_.platform, device);
        drawing.devices.DeviceSelected.back() = 1;
    }
};

struct SampleMachine : ToolMachine {
    DiskFiles disk;
    QtImages images;

    SampleMachine() {
        platform.files = &disk;
        platform.images = &images;
    }
};

SymbolFiles compiled(SampleMachine& machine, std::string_view description) {
    SampleSheet sheet(machine);
    sheet.draw(description);
    UserSymbols symbols;
    SymbolCompiler& compiler = symbols.compiler;
    compiler.InsertionX = compiler.InsertionY = Origin;
    CollectSelectedItems(compiler, sheet.drawing);
    makeIconPictures(symbols, machine.platform);
    compileScript(compiler, '.');
    drawSymbolIcons(symbols);
    return {compiler.SymbolScriptText, machine.images.bitmapText(*symbols.frmUS.picIcon->Image()),
            machine.images.bitmapText(*symbols.frmUS.picCyanIcon->Image())};
}

// All symbols on one page, seven to a row, each with its name.
std::string sheetText(SampleMachine& machine, const UserSymbols& symbols) {
    Editor editor(machine.platform);
    editor.drawing.PageLayoutKey = "17x22Landscape";
    for (Short i = 0; i < symbols.UserSymbolCount; ++i) {
        SymbolPlacement at;
        at.obj = &machine.canvas;
        at.X = 0.9f + 3.0f * static_cast<Single>(i % 7);
        at.Y = 1.2f + 2.75f * static_cast<Single>(i / 7);
        at.MyScaleX = at.MyScaleY = 0.75f;
        InsertUserSymbol(symbols, editor, at, i);
        Label name;
        name.text = symbols.UserSymbolName[static_cast<std::size_t>(i)];
        name.x = at.X;
        name.y = at.Y - 0.85f;
        name.fontName = "Arial";
        name.fontSize = 9;
        RecordLabel(editor.drawing, machine.platform, name);
    }
    return fileText(editor.drawing);
}

bool makeSamples(const std::string& output, const std::string& sheet) {
    SampleMachine machine;
    Files& files = machine.disk;
    const LibraryPlace library{withSeparator(files, output), std::string(LibraryName)};
    const std::string folder = library.symbolFolder(files);
    if (!files.status(folder)) files.makeFolder(folder);
    std::vector<std::string> names;
    UserSymbols symbols;
    for (const SampleSymbol& sample : SampleSymbols) {
        const SymbolFiles content = compiled(machine, sample.description);
        writeNewSymbol(files, folder, sample.name, content);
        names.emplace_back(sample.name);
        symbols.UserSymbolName.emplace_back(sample.name);
        symbols.UserSymbolScript.push_back(content.script);
        ++symbols.UserSymbolCount;
    }
    writeList(files, library, names);
    if (!sheet.empty()) files.replace(sheet, sheetText(machine, symbols));
    return !machine.boxes.shown;
}

}  // namespace

}  // namespace ladrix::tools

int main(int argc, char** argv) {
    if (argc != 2 && argc != 3) {
        std::cerr << "Usage: make_samples OUTPUT-FOLDER [SHEET.els]\n";
        return 1;
    }
    try {
        return ladrix::tools::makeSamples(argv[1], argc == 3 ? argv[2] : "") ? 0 : 1;
    } catch (const ladrix::Failure& failure) {
        std::cerr << failure.text << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
