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

// A wire that hops over a crossing one: the vertical bow faces right, the horizontal one up.
constexpr Primitive Jumper[] = {
    Line(0, 0, 0, 0.125f),
    Line(0, 0.375f, 0, 0.5f),
    Arc(0, 0.25f, 0.125f, 270, 90),
};
constexpr Block JumperBlocks[] = {{AnyOrientation, Jumper}};
constexpr Block Jumper90Blocks[] = {{AnyOrientation, Jumper, Turn::CounterClockwise}};

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
