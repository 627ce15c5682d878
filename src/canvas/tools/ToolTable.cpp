#include "canvas/tools/ToolTable.h"

#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr Single turn(double quarters) {
    return static_cast<Single>(quarters * Pi / 2);
}

constexpr std::string_view LinesTopic = "2.3 Lines and Dashed Lines",
                           SquaresTopic = "2.4 Squares and Dashed Squares",
                           CirclesTopic = "2.5 Circles and Connection Points",
                           ArcsTopic = "2.6 Arcs";

// clang-format off
constexpr Tool Tools[] = {
    {"Text",             ToolKind::Text,   false, 0, 0, 0, 0, nullptr, "2.7 Text"},
    {"Connection Point", ToolKind::Circle, false, 0, 0, 0, 0.025f, nullptr, CirclesTopic},
    {"Dashed Line",      ToolKind::Line,   true,  0, 0, 0, 0, nullptr, LinesTopic},
    {"Line",             ToolKind::Line,   false, 0, 0, 0, 0, nullptr, LinesTopic},
    {"Arc Down",         ToolKind::Arc,    false, 4, turn(2), turn(4), 0.125f, &Editor::LastArc, ArcsTopic},
    {"Arc Up",           ToolKind::Arc,    false, 3, turn(4), turn(2), 0.125f, &Editor::LastArc, ArcsTopic},
    {"Arc Left",         ToolKind::Arc,    false, 1, turn(1), turn(3), 0.125f, &Editor::LastArc, ArcsTopic},
    {"Arc Right",        ToolKind::Arc,    false, 2, turn(3), turn(1), 0.125f, &Editor::LastArc, ArcsTopic},
    {"Small Circle",     ToolKind::Circle, false, 0, 0, 0, 0.0375f, &Editor::LastSmallCircle, CirclesTopic},
    {"Large Circle",     ToolKind::Circle, false, 0, 0, 0, 0.125f, &Editor::LastLargeCircle, CirclesTopic},
    {"Dashed Square",    ToolKind::Square, true,  0, 0, 0, 0, nullptr, SquaresTopic},
    {"Square",           ToolKind::Square, false, 0, 0, 0, 0, nullptr, SquaresTopic},
};
// clang-format on

constexpr Tool AnySymbol = {"", ToolKind::Symbol};

}  // namespace

std::span<const Tool> drawingTools() {
    return Tools;
}

const Tool& toolOfName(std::string_view name) {
    for (const Tool& tool : Tools)
        if (tool.name == name) return tool;
    return AnySymbol;
}

const Tool& toolInHand(const Editor& editor) {
    return toolOfName(editor.gesture.ToolName);
}

std::string_view promptTail(ToolKind kind) {
    switch (kind) {
        case ToolKind::Line:
        case ToolKind::Square:
            return " - Click a start point or press ESC to end.";
        case ToolKind::Text:
            return " - Click an insertion point. Edit text either prior or after insertion and "
                   "then press Enter.";
        case ToolKind::Arc:
            return " - After editing the radius, start and end point in degrees, click a location.";
        case ToolKind::Circle:
            return " - After editing the radius, click a location.";
        case ToolKind::Symbol:
            break;
    }
    return " - After selecting location, type a name for the device if applicable.";
}

}  // namespace ladrix
