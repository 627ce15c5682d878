// The script of a user symbol: one primitive a line, coordinates in inches relative to the
// insertion point, fields joined by a separator.
//
//   Line|-0.25|0|0.25|0
//   Circle|-0.125|0.5|0.125|1                  x is the leftmost point
//   Arc|0|-0.5|0.25|3.1415927|6.283185
//   Text|K1|0.3|-0.1|0|Arial|8|True|False
//
// (`|` stands for the byte 255.) Two older separators, "=FF" and ":", are read too, line by line.
// Reading is tolerant: a field that is no number is 0, surplus fields are dropped, an unknown
// keyword skips its line. A line without any separator makes the whole script draw nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/state/Editor.h"
#include "usersymbols/UserSymbols.h"

namespace ladrix {

constexpr std::size_t LargestScript = 1024 * 1024;     // bytes
constexpr std::size_t MostScriptLines = LargestCount;  // 32,767

enum class ScriptKeyword { Line, Square, Circle, SolidCircle, Dot, Arc, SemiCircle, Text };

// One primitive, as far as its line could be read.
struct ScriptLine {
    ScriptKeyword keyword = ScriptKeyword::Line;
    Single x = 0, y = 0;    // the first point; of a text its upper left corner
    Single x2 = 0, y2 = 0;  // of a line or square
    Single radius = 0;
    Single start = 0, end = 0;  // radians
    Label text;                 // without its place
};

// Which separators a reading knows: the interpreter all three, the preview of the library manager
// the oldest alone.
enum class ScriptGenerations { All, OldestAlone };

// Throws Failure 6 for a script beyond the two limits.
void requireScriptWithinLimits(std::string_view script);

// nullopt if a line has no separator: nothing of such a script is drawn. Throws as above.
std::optional<std::vector<ScriptLine>> parseScript(std::string_view script,
                                                   ScriptGenerations generations);

struct SymbolPlacement {
    Surface* obj = nullptr;
    Single X = 0, Y = 0;                // inches
    Long MyColor = Black;               // 0: the current drawing colour
    Single MyScaleX = 0, MyScaleY = 0;  // 0: the editor's SymbolScaleX, SymbolScaleY
};

// Draws the symbol's primitives on the surface and, unless a preview or a replay is under way,
// records each as a device or label of its own, in one undo step. An index outside the library does
// nothing. A step that fails is skipped; a script beyond the limits is reported. The scales that
// were 0 are left resolved in `placement`.
void InsertUserSymbol(const UserSymbols& symbols, Editor& editor, SymbolPlacement& placement,
                      Short index);

// The same for any script, for the library manager: only lines of the oldest form are seen (what
// else a script holds leaves it empty), nothing is recorded, no undo step is taken. The surface
// must take text to show labels.
void PreviewUserSymbol(Editor& editor, SymbolPlacement& placement, std::string_view script);

// What the dispatcher and the pointer draw for a name that is no built-in symbol: the symbol of the
// tool in hand, at the editor's scale.
void drawToolsUserSymbol(const UserSymbols& symbols, Editor& editor, const DeviceBlock& block);

}  // namespace ladrix
