// A built-in symbol as data: its name, its label and, for each orientation, its primitives in the
// fixed order in which they are drawn.
//
// A point (a, b) is X + MyScaleX * a, Y + MyScaleY * b; a radius r is MyScaleX * r, so a circle
// stays round when the two scales differ. A coordinate marked absolute is inches and takes no
// scale. Angles are degrees, 0 is east, counter-clockwise; an arc runs from `start` to `end`.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/Types.h"

namespace ladrix {

enum class PrimitiveKind : std::uint8_t {
    Line,          // (a1, b1)-(a2, b2)
    Box,           // outline of the rectangle (a1, b1)-(a2, b2)
    FilledBox,     // the same, filled
    Circle,        // centre (a1, b1), radius r
    Arc,           // centre (a1, b1), radius r, from start to end
    SolidFillOn,   // circles that follow are filled in the symbol's colour
    SolidFillOff,  // back to outlines, the former fill colour restored
    FillStyleOn,   // fill style alone; the fill colour stays as it was found
    FillStyleOff,
};

// Bits of Primitive::absolute: which of its figures are inches.
enum : std::uint8_t { AbsA1 = 1, AbsB1 = 2, AbsA2 = 4, AbsB2 = 8, AbsR = 16, AbsAll = 31 };

struct Primitive {
    PrimitiveKind kind;
    Single a1 = 0, b1 = 0, a2 = 0, b2 = 0;
    Single r = 0, start = 0, end = 0;
    std::uint8_t absolute = 0;
};

// The words in which the tables are written.
namespace art {

constexpr Primitive Line(Single a1, Single b1, Single a2, Single b2, std::uint8_t abs = 0) {
    return {PrimitiveKind::Line, a1, b1, a2, b2, 0, 0, 0, abs};
}
constexpr Primitive Box(Single a1, Single b1, Single a2, Single b2) {
    return {PrimitiveKind::Box, a1, b1, a2, b2, 0, 0, 0, 0};
}
constexpr Primitive FilledBox(Single a1, Single b1, Single a2, Single b2) {
    return {PrimitiveKind::FilledBox, a1, b1, a2, b2, 0, 0, 0, 0};
}
constexpr Primitive Circle(Single a, Single b, Single r, std::uint8_t abs = 0) {
    return {PrimitiveKind::Circle, a, b, 0, 0, r, 0, 0, abs};
}
constexpr Primitive Arc(Single a, Single b, Single r, Single start, Single end,
                        std::uint8_t abs = 0) {
    return {PrimitiveKind::Arc, a, b, 0, 0, r, start, end, abs};
}
constexpr Primitive SolidFillOn{PrimitiveKind::SolidFillOn};
constexpr Primitive SolidFillOff{PrimitiveKind::SolidFillOff};
constexpr Primitive FillStyleOn{PrimitiveKind::FillStyleOn};
constexpr Primitive FillStyleOff{PrimitiveKind::FillStyleOff};

}  // namespace art

// Applied to the coefficients about (0, 0). Clockwise is as seen on the page: (a, b) goes to (-b,
// a); counter-clockwise: (a, b) to (b, -a).
enum class Turn : std::uint8_t {
    None,
    Clockwise,
    CounterClockwise,
    Half,
    MirrorLeftRight,  // (-a, b)
    MirrorTopBottom,  // (a, -b)
};

constexpr Short AnyOrientation = -1;

// One drawing of a symbol. A turned block names the primitives that it turns and then moves by
// (moveA, moveB), so that the two cannot drift apart.
struct Block {
    Short orientation = AnyOrientation;  // AnyOrientation: the symbol has one drawing for all
    std::span<const Primitive> primitives;
    Turn turn = Turn::None;
    Single moveA = 0, moveB = 0;
};

enum class Library : std::uint8_t { Common, NEMA, IEC, Electronic, FluidPower };

struct Symbol {
    std::string_view name;          // as stored in drawings, such as "InsertContactNO"
    std::span<const Block> blocks;  // an orientation that no block has draws nothing
    std::string_view prefix;        // of the attached label; empty: the symbol has none
    Single labelA = 0, labelB = 0;  // where the attached label goes
    bool labelAbsolute = false;     // labelA and labelB are inches
    // The name recorded while labels are not attached, where it differs from `name`.
    std::string_view nameWithoutLabel = {};
};

}  // namespace ladrix
