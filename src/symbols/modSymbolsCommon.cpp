#include "symbols/Libraries.h"

namespace ladrix {

namespace {

using namespace art;

// IEEE 315: terminal, drawn as a screw head with its slot.
constexpr Primitive ScrewTerminal[] = {
    Circle(0, 0, 0.0625f),
    Line(0.05f, -0.0375f, -0.05f, 0.0375f),
};
constexpr Block ScrewTerminalBlocks[] = {{AnyOrientation, ScrewTerminal}};

// A wire that hops over a crossing one. The two bows face right and up, so neither is a turn of
// the other.
constexpr Primitive Jumper[] = {
    Line(0, 0, 0, 0.125f),
    Line(0, 0.375f, 0, 0.5f),
    Arc(0, 0.25f, 0.125f, 270, 90),
};
constexpr Block JumperBlocks[] = {{AnyOrientation, Jumper}};

constexpr Primitive Jumper90[] = {
    Line(0, 0, 0.125f, 0),
    Line(0.375f, 0, 0.5f, 0),
    Arc(0.25f, 0, 0.125f, 360, 180),
};
constexpr Block Jumper90Blocks[] = {{AnyOrientation, Jumper90}};

constexpr Symbol Symbols[] = {
    {"InsertScrewTerminal", ScrewTerminalBlocks, ""},
    {"InsertJumper", JumperBlocks, ""},
    {"InsertJumper90", Jumper90Blocks, ""},
};

}  // namespace

std::span<const Symbol> modSymbolsCommon() {
    return Symbols;
}

}  // namespace ladrix
