// What the tests of user symbols share: an editor on the fake machine with the data folder
// "documents/", and short forms of scripts and of what has been placed.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "canvas/tools/PaletteButtons.h"
#include "support/FakePlatform.h"
#include "usersymbols/Compiler.h"
#include "usersymbols/Libraries.h"
#include "usersymbols/Script.h"

namespace ladrix::test {

struct SymbolBench {
    FakePlatform machine;
    Editor editor{machine.platform};
    Drawing& drawing = editor.drawing;
    UserSymbols symbols;
    int snapshots = 0;
    std::vector<std::string> notes;

    SymbolBench() {
        editor.AppFilePath = machine.folder / "program/";
        editor.BasePath = machine.folder / "documents/";
        drawing.TakeUndoSnapshot = [this] { ++snapshots; };
        symbols.NoteRepair = [this](std::string_view line) { notes.emplace_back(line); };
        LoadDeviceButtons(editor);
        selectLibrary(symbols, editor, editor.BasePath, DefaultLibraryFile);
    }
};

// "Line|1|2" with the byte 255 for each "|" and a line end behind each line.
inline std::string script(std::string text) {
    std::replace(text.begin(), text.end(), '|', '\xFF');
    std::string result;
    for (const char c : text)
        result += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return result.empty() ? result : result + "\r\n";
}

inline std::string readable(std::string text) {
    std::replace(text.begin(), text.end(), '\xFF', '|');
    std::erase(text, '\r');
    if (text.ends_with('\n')) text.pop_back();
    return text;
}

inline std::string placed(const Device& item) {
    std::ostringstream out;
    out << item.name.substr(6) << ' ' << item.x << ',' << item.y;
    if (isFreeLineOrSquare(item.name)) out << " to " << item.x2 << ',' << item.y2;
    if (!isFreeLineOrSquare(item.name)) out << " r " << item.radius;
    if (item.name == "InsertArc") out << " from " << item.startAngle << " to " << item.endAngle;
    if (item.direction != 0) out << " direction " << item.direction;
    if (item.color != Black) out << " color " << item.color;
    return out.str();
}

inline std::string placed(const Label& label) {
    std::ostringstream out;
    out << "Text '" << label.text << "' " << label.x << ',' << label.y << ' ' << label.fontName
        << ' ' << label.fontSize << (label.bold ? " bold" : "") << (label.italic ? " italic" : "")
        << " color " << label.color;
    return out.str();
}

// All devices, then all labels, joined by "; ".
inline std::string placed(const Drawing& drawing) {
    std::string text;
    const auto add = [&](const std::string& item) { text += (text.empty() ? "" : "; ") + item; };
    for (Short i = 0; i < drawing.devices.DeviceCount; ++i)
        add(placed(drawing.devices.row(i)));
    for (Short i = 0; i < drawing.labels.LabelCount; ++i)
        add(placed(drawing.labels.row(i)));
    return text;
}

// The symbol with this script placed on the canvas at (4, 4).
inline std::string placedAt(SymbolBench& bench, const std::string& text, Single scale) {
    ClearTables(bench.drawing);
    bench.symbols.UserSymbolScript = {text};
    bench.symbols.UserSymbolCount = 1;
    SymbolPlacement placement;
    placement.obj = &bench.machine.picLX;
    placement.X = placement.Y = 4;
    placement.MyScaleX = placement.MyScaleY = scale;
    InsertUserSymbol(bench.symbols, bench.editor, placement, 0);
    return placed(bench.drawing);
}

}  // namespace ladrix::test
