// First-generation electrical symbols, kept for the drawings that name them. They are in inches
// throughout and ignore the scale.
#include "symbols/Libraries.h"

namespace ladrix {

namespace {

using namespace art;

// clang-format off

// NEMA ICS 19: operating coil with a free-wheeling diode, cathode at the left.
constexpr Primitive CoilWithDiodeLeft[] = {
    Circle(0.25f, 0, 0.2f, AbsAll),
    Line(0, 0, 0.05f, 0, AbsAll),
    Line(0, 0, 0, 0.375f, AbsAll),
    Line(0, 0.375f, 0.225f, 0.375f, AbsAll),
    Line(0.225f, 0.3125f, 0.225f, 0.4375f, AbsAll),
    Line(0.225f, 0.375f, 0.2875f, 0.3125f, AbsAll),
    Line(0.2875f, 0.3125f, 0.2875f, 0.4375f, AbsAll),
    Line(0.2875f, 0.4375f, 0.225f, 0.375f, AbsAll),
    Line(0.2875f, 0.375f, 0.5f, 0.375f, AbsAll),
    Line(0.5f, 0, 0.5f, 0.375f, AbsAll),
    Line(0.45f, 0, 0.5f, 0, AbsAll),
};
constexpr Block CoilWithDiodeLeftBlocks[] = {{AnyOrientation, CoilWithDiodeLeft}};
constexpr Block CoilWithDiodeRightBlocks[] = {
    {AnyOrientation, CoilWithDiodeLeft, Turn::MirrorLeftRight, 0.5f, 0},
};

// NEMA ICS 19: reference to another line or sheet.
constexpr Primitive ReferenceSmall[] = {
    Line(0, 0, 0.125f, -0.125f, AbsAll), Line(0.125f, -0.125f, 0.25f, 0, AbsAll),
    Line(0.25f, 0, 0.125f, 0.125f, AbsAll), Line(0.125f, 0.125f, 0, 0, AbsAll),
};
constexpr Block ReferenceSmallBlocks[] = {{AnyOrientation, ReferenceSmall}};

// IEEE 315: transformer with magnetic core, eight turns to two as 480 volts are to 120.
constexpr Primitive StepDownTransformer[] = {
    Line(0, 0, 0, 0.1f, AbsAll),
    Arc(0.0625f, 0.1f, 0.0625f, 180, 360, AbsAll), Arc(0.1875f, 0.1f, 0.0625f, 180, 360, AbsAll),
    Arc(0.3125f, 0.1f, 0.0625f, 180, 360, AbsAll), Arc(0.4375f, 0.1f, 0.0625f, 180, 360, AbsAll),
    Arc(0.5625f, 0.1f, 0.0625f, 180, 360, AbsAll), Arc(0.6875f, 0.1f, 0.0625f, 180, 360, AbsAll),
    Arc(0.8125f, 0.1f, 0.0625f, 180, 360, AbsAll), Arc(0.9375f, 0.1f, 0.0625f, 180, 360, AbsAll),
    Line(1, 0, 1, 0.1f, AbsAll),
    Line(0, 0.225f, 1, 0.225f, AbsAll), Line(0, 0.275f, 1, 0.275f, AbsAll),
    Line(0.25f, 0.5f, 0.25f, 0.4f, AbsAll), Line(0.25f, 0.4f, 0.375f, 0.4f, AbsAll),
    Arc(0.4375f, 0.4f, 0.0625f, 0, 180, AbsAll), Arc(0.5625f, 0.4f, 0.0625f, 0, 180, AbsAll),
    Line(0.625f, 0.4f, 0.75f, 0.4f, AbsAll), Line(0.75f, 0.4f, 0.75f, 0.5f, AbsAll),
};
constexpr Block StepDownTransformerBlocks[] = {{AnyOrientation, StepDownTransformer}};

// NEMA ICS 19: operating coil with a surge suppressor.
constexpr Primitive CoilWithSuppressor[] = {
    Circle(0.25f, 0, 0.2f, AbsAll),
    Line(0, 0, 0.05f, 0, AbsAll),
    Line(0, 0, 0, 0.375f, AbsAll),
    Line(0, 0.375f, 0.125f, 0.375f, AbsAll),
    Line(0.125f, 0.3375f, 0.375f, 0.3375f, AbsAll),
    Line(0.375f, 0.3375f, 0.375f, 0.4125f, AbsAll),
    Line(0.125f, 0.4125f, 0.375f, 0.4125f, AbsAll),
    Line(0.125f, 0.3375f, 0.125f, 0.4125f, AbsAll),
    Line(0.3125f, 0.2875f, 0.375f, 0.2875f, AbsAll),
    Line(0.3125f, 0.2875f, 0.1875f, 0.4625f, AbsAll),
    Line(0.125f, 0.4625f, 0.1875f, 0.4625f, AbsAll),
    Line(0.375f, 0.375f, 0.5f, 0.375f, AbsAll),
    Line(0.5f, 0, 0.5f, 0.375f, AbsAll),
    Line(0.45f, 0, 0.5f, 0, AbsAll),
};
constexpr Block CoilWithSuppressorBlocks[] = {{AnyOrientation, CoilWithSuppressor}};

// NEMA ICS 19: reference to another line or sheet, for longer texts.
constexpr Primitive ReferenceLarge[] = {
    Line(0, 0, 0.25f, -0.25f, AbsAll), Line(0.25f, -0.25f, 0.5f, 0, AbsAll),
    Line(0.5f, 0, 0.25f, 0.25f, AbsAll), Line(0.25f, 0.25f, 0, 0, AbsAll),
};
constexpr Block ReferenceLargeBlocks[] = {{AnyOrientation, ReferenceLarge}};

constexpr Symbol Symbols[] = {
    {"InsertCoilWithDiodeLeft", CoilWithDiodeLeftBlocks, "CR", 0.25f, 0},
    {"InsertReferenceSmall", ReferenceSmallBlocks, "1", 0.125f, 0, true},
    {"Insert480Transformer", StepDownTransformerBlocks, ""},
    {"InsertCoilWithSuppressor", CoilWithSuppressorBlocks, "CR", 0.25f, 0},
    {"InsertCoilWithDiodeRight", CoilWithDiodeRightBlocks, "CR", 0.25f, 0},
    {"InsertReferenceLarge", ReferenceLargeBlocks, "1", 0.25f, 0, true},
};
// clang-format on

}  // namespace

std::span<const Symbol> modSymbolsOld() {
    return Symbols;
}

}  // namespace ladrix
