// The twelve drawing tools at the head of every palette, one row each. Whatever else stands on a
// button is a symbol, and shares one row.
#pragma once

#include <span>
#include <string_view>

#include "canvas/state/Editor.h"

namespace ladrix {

constexpr Short TextTool = 0, DashedLineTool = 2, LineTool = 3;  // their buttons

enum class ToolKind { Symbol, Text, Line, Square, Circle, Arc };

struct Tool {
    std::string_view name;  // on the button; "" for symbols
    ToolKind kind;
    bool dashed = false;
    Short direction = 0;                    // of an arc: 1 left, 2 right, 3 up, 4 down
    Single startAngle = 0, endAngle = 0;    // of an arc, radians
    Single radius = 0;                      // of circles and arcs before one was typed, inches
    Single Editor::*typedRadius = nullptr;  // the one typed last, 0 for none; null: never kept
    std::string_view helpTopic = {};
};

std::span<const Tool> drawingTools();

// By the name as refreshToolName gives it: a user symbol of a tool's name is a symbol.
const Tool& toolOfName(std::string_view name);

// The tool in hand; the symbols' row without one.
const Tool& toolInHand(const Editor& editor);

// What the message guide says behind the tool's name when it is chosen.
std::string_view promptTail(ToolKind kind);

}  // namespace ladrix
