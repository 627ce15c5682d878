// The first generation of the electronic symbols, in outline and without hatching. Those whose name
// has a successor stay for the drawings that hold it; the others are still in the palettes. A
// vertical drawing hangs down from its insertion point.
#include <array>
#include <cstddef>

#include "symbols/Libraries.h"

namespace ladrix {

namespace {

using namespace art;

template <std::size_t N, std::size_t M>
constexpr std::array<Primitive, N + M> joined(const std::array<Primitive, N>& first,
                                              const std::array<Primitive, M>& second) {
    std::array<Primitive, N + M> result{};
    for (std::size_t i = 0; i < N; ++i)
        result[i] = first[i];
    for (std::size_t i = 0; i < M; ++i)
        result[N + i] = second[i];
    return result;
}

// Lines and boxes only.
template <std::size_t N>
constexpr std::array<Primitive, N> clockwise(std::array<Primitive, N> lines) {
    for (Primitive& p : lines)
        p = {p.kind, -p.b1, p.a1, -p.b2, p.a2};
    return lines;
}

// clang-format off

// IEEE 315 8.5.1: semiconductor diode. Its size is in inches, whatever the scale.
constexpr Primitive DiodeLeft[] = {
    Line(0, 0, 0.2f, 0, AbsA2), Line(0.3f, 0, 0.5f, 0, AbsA1 | AbsA2),
    Line(0.3f, -0.075f, 0.3f, 0.075f, AbsAll), Line(0.2f, -0.075f, 0.2f, 0.075f, AbsAll),
    Line(0.3f, -0.075f, 0.2f, 0, AbsA1 | AbsB1 | AbsA2),
    Line(0.2f, 0, 0.3f, 0.075f, AbsA1 | AbsA2 | AbsB2),
};
constexpr Block DiodeLeftBlocks[] = {{AnyOrientation, DiodeLeft}};

// IEEE 315 3.9.2: chassis connection.
constexpr Primitive EGround[] = {
    Line(0, 0, 0, 0.125f), Line(0, 0.125f, -0.0625f, 0.25f), Line(-0.25f, 0.25f, -0.1875f, 0.125f),
    Line(-0.1875f, 0.125f, 0.1875f, 0.125f), Line(0.1875f, 0.125f, 0.125f, 0.25f),
};
constexpr Block EGroundBlocks[] = {{AnyOrientation, EGround}};

// IEEE 315 2.10: piezoelectric crystal unit.
constexpr Primitive Crystal[] = {
    Line(0, 0, 0.15f, 0), Line(0.15f, -0.125f, 0.15f, 0.125f),
    Line(0.35f, -0.125f, 0.35f, 0.125f), Line(0.35f, 0, 0.5f, 0),
    Box(0.2f, -0.175f, 0.3f, 0.15f),
};
constexpr Block CrystalBlocks[] = {{AnyOrientation, Crystal}};

// IEEE 315: amplifier with two inputs.
constexpr Primitive Amplifier[] = {
    Line(0, 0, 0.25f, 0), Line(0, 0.25f, 0.25f, 0.25f), Line(0.25f, -0.125f, 0.25f, 0.375f),
    Line(0.25f, 0.375f, 0.75f, 0.125f), Line(0.75f, 0.125f, 0.25f, -0.125f),
};
constexpr Block AmplifierBlocks[] = {{AnyOrientation, Amplifier}};

// IEEE 315: operational amplifier, its input side curved, the upper input not inverting. Size in inches.
constexpr Primitive OpAmp[] = {
    Line(0.25f, -0.125f, 0.75f, 0.125f, AbsAll), Line(0.75f, 0.125f, 0.25f, 0.375f, AbsAll),
    Arc(0.6875f, 0.125f, 0.5f, 150, 210, AbsA1 | AbsB1 | AbsR),
    Line(0, 0, 0.2f, 0, AbsA2), Line(0, 0.25f, 0.2125f, 0.25f, AbsB1 | AbsA2 | AbsB2),
    Line(0.3f, -0.0375f, 0.3f, 0.0375f, AbsAll),
    Line(0.2625f, 0, 0.3375f, 0, AbsA1 | AbsA2), Line(0.2625f, 0.25f, 0.3375f, 0.25f, AbsAll),
};
constexpr Block OpAmpBlocks[] = {{AnyOrientation, OpAmp}};

// IEEE 315 2.1: resistor.
constexpr std::array Resistor{
    Line(0, 0, 0.1f, 0), Line(0.1f, 0, 0.125f, -0.075f), Line(0.125f, -0.075f, 0.175f, 0.075f),
    Line(0.175f, 0.075f, 0.225f, -0.075f), Line(0.225f, -0.075f, 0.275f, 0.075f),
    Line(0.275f, 0.075f, 0.325f, -0.075f), Line(0.325f, -0.075f, 0.375f, 0.075f),
    Line(0.375f, 0.075f, 0.4f, 0), Line(0.4f, 0, 0.5f, 0),
};
constexpr Block ResistorBlocks[] = {{AnyOrientation, Resistor}};
constexpr Block Resistor90Blocks[] = {{AnyOrientation, Resistor, Turn::Clockwise}};

// IEEE 315 8.5.1: semiconductor diode.
constexpr Primitive Diode[] = {
    Line(0, 0, 0.2f, 0), Line(0.3f, 0, 0.5f, 0), Line(0.2f, -0.075f, 0.2f, 0.075f),
    Line(0.3f, -0.075f, 0.3f, 0.075f), Line(0.2f, -0.075f, 0.3f, 0), Line(0.3f, 0, 0.2f, 0.075f),
};
constexpr Block DiodeBlocks[] = {
    {0, Diode},
    {1, Diode, Turn::MirrorLeftRight, 0.5f, 0},
    {2, Diode, Turn::CounterClockwise, 0, 0.5f},
    {3, Diode, Turn::Clockwise},
};

// The twins of the diode to the left, in inches throughout so that a move keeps them so.
constexpr Primitive DiodeRight[] = {
    Line(0, 0, 0.2f, 0, AbsAll), Line(0.3f, 0, 0.5f, 0, AbsAll),
    Line(0.2f, -0.075f, 0.2f, 0.075f, AbsAll), Line(0.3f, -0.075f, 0.3f, 0.075f, AbsAll),
    Line(0.2f, -0.075f, 0.3f, 0, AbsAll), Line(0.3f, 0, 0.2f, 0.075f, AbsAll),
};
constexpr Block DiodeRightBlocks[] = {{AnyOrientation, DiodeRight}};
constexpr Block DiodeUpBlocks[] = {{AnyOrientation, DiodeRight, Turn::CounterClockwise, 0, 0.5f}};
constexpr Block DiodeDownBlocks[] = {{AnyOrientation, DiodeRight, Turn::Clockwise}};

// IEEE 315: bridge-type rectifier. Direct current out at the corner to which all diodes point,
// alternating current in at the two corners beside the axis.
constexpr Primitive BridgeRectifier[] = {
    Line(0, 0, 0.125f, 0), Line(0.5f, -0.5f, 0.5f, -0.375f),
    Line(0.875f, 0, 1, 0), Line(0.5f, 0.375f, 0.5f, 0.5f),
    // Left to top.
    Line(0.125f, 0, 0.2625f, -0.1375f), Line(0.3625f, -0.2375f, 0.5f, -0.375f),
    Line(0.2f, -0.2f, 0.325f, -0.075f), Line(0.3f, -0.3f, 0.425f, -0.175f),
    Line(0.2f, -0.2f, 0.3625f, -0.2375f), Line(0.3625f, -0.2375f, 0.325f, -0.075f),
    // Top to right.
    Line(0.5f, -0.375f, 0.6375f, -0.2375f), Line(0.7375f, -0.1375f, 0.875f, 0),
    Line(0.7f, -0.3f, 0.575f, -0.175f), Line(0.8f, -0.2f, 0.675f, -0.075f),
    Line(0.7f, -0.3f, 0.7375f, -0.1375f), Line(0.7375f, -0.1375f, 0.575f, -0.175f),
    // Left to bottom.
    Line(0.125f, 0, 0.2625f, 0.1375f), Line(0.3625f, 0.2375f, 0.5f, 0.375f),
    Line(0.2f, 0.2f, 0.325f, 0.075f), Line(0.3f, 0.3f, 0.425f, 0.175f),
    Line(0.2f, 0.2f, 0.3625f, 0.2375f), Line(0.3625f, 0.2375f, 0.325f, 0.075f),
    // Bottom to right.
    Line(0.5f, 0.375f, 0.6375f, 0.2375f), Line(0.7375f, 0.1375f, 0.875f, 0),
    Line(0.7f, 0.3f, 0.575f, 0.175f), Line(0.8f, 0.2f, 0.675f, 0.075f),
    Line(0.7f, 0.3f, 0.7375f, 0.1375f), Line(0.7375f, 0.1375f, 0.575f, 0.175f),
};
// Turned about its middle: the insertion point stays the left corner.
constexpr Block BridgeRectifierBlocks[] = {
    {0, BridgeRectifier},
    {1, BridgeRectifier, Turn::MirrorLeftRight, 1, 0},
    {2, BridgeRectifier, Turn::CounterClockwise, 0.5f, 0.5f},
    {3, BridgeRectifier, Turn::Clockwise, 0.5f, -0.5f},
};

// IEEE 315 8.6.2: NPN transistor with envelope; base, then collector above and emitter below.
constexpr Primitive NPNTransistor[] = {
    Circle(0.2125f, 0, 0.1625f), Line(0, 0, 0.15f, 0), Line(0.15f, -0.1f, 0.15f, 0.1f),
    Line(0.15f, -0.0375f, 0.25f, -0.1375f), Line(0.25f, -0.1375f, 0.25f, -0.25f),
    Line(0.15f, 0.0375f, 0.25f, 0.1375f), Line(0.25f, 0.1375f, 0.25f, 0.25f),
    Line(0.2375f, 0.125f, 0.175f, 0.1f), Line(0.2375f, 0.125f, 0.2125f, 0.0625f),
};
constexpr Block NPNTransistorBlocks[] = {
    {0, NPNTransistor},
    {1, NPNTransistor, Turn::MirrorLeftRight},
    {2, NPNTransistor, Turn::CounterClockwise},
    {3, NPNTransistor, Turn::Clockwise},
};

// IEEE 315 8.6.1: PNP transistor with envelope.
constexpr Primitive PNPTransistor[] = {
    Circle(0.2125f, 0, 0.1625f), Line(0, 0, 0.15f, 0), Line(0.15f, -0.1f, 0.15f, 0.1f),
    Line(0.15f, -0.0375f, 0.25f, -0.1375f), Line(0.25f, -0.1375f, 0.25f, -0.25f),
    Line(0.15f, 0.0375f, 0.25f, 0.1375f), Line(0.25f, 0.1375f, 0.25f, 0.25f),
    Line(0.1625f, 0.05f, 0.225f, 0.075f), Line(0.1625f, 0.05f, 0.1875f, 0.1125f),
};
constexpr Block PNPTransistorBlocks[] = {
    {0, PNPTransistor},
    {1, PNPTransistor, Turn::MirrorLeftRight},
    {2, PNPTransistor, Turn::CounterClockwise},
    {3, PNPTransistor, Turn::Clockwise},
};

// IEEE 315 8.6.8: unijunction transistor with N-type base; emitter, base 2 above, base 1 below.
constexpr Primitive UJT[] = {
    Circle(0.2125f, 0.25f, 0.1625f), Line(0, 0, 0, 0.1f), Line(0, 0.1f, 0.15f, 0.25f),
    Line(0.15f, 0.25f, 0.0875f, 0.225f), Line(0.15f, 0.25f, 0.125f, 0.1875f),
    Line(0.15f, 0.15f, 0.15f, 0.35f),
    Line(0.15f, 0.1875f, 0.25f, 0.1875f), Line(0.25f, 0.1875f, 0.25f, 0),
    Line(0.15f, 0.3125f, 0.25f, 0.3125f), Line(0.25f, 0.3125f, 0.25f, 0.5f),
};
constexpr Block UJTBlocks[] = {{0, UJT}, {1, UJT, Turn::MirrorLeftRight}};

// IEEE 315: bidirectional diode thyristor.
constexpr std::array Diac{
    Line(0, 0, 0.2f, 0), Line(0.3f, 0, 0.5f, 0),
    Line(0.2f, -0.15f, 0.2f, 0.15f), Line(0.3f, -0.15f, 0.3f, 0.15f),
    Line(0.2f, -0.15f, 0.3f, -0.075f), Line(0.3f, -0.075f, 0.2f, 0),
    Line(0.3f, 0.15f, 0.2f, 0.075f), Line(0.2f, 0.075f, 0.3f, 0),
};
constexpr Block DiacBlocks[] = {{0, Diac}, {1, Diac, Turn::Clockwise}};

// IEEE 315: bidirectional triode thyristor, the gate at main terminal 1.
constexpr std::array Gate{Line(0.3f, 0.15f, 0.4f, 0.25f), Line(0.4f, 0.25f, 0.5f, 0.25f)};
constexpr auto Triac = joined(Diac, Gate);
constexpr Block TriacBlocks[] = {
    {0, Triac},
    {1, Triac, Turn::MirrorLeftRight, 0.5f, 0},
    {2, Triac, Turn::CounterClockwise, 0, 0.5f},
    {3, Triac, Turn::Clockwise},
};

// NEMA ICS 19: proximity switch, the diamond about its contact.
constexpr Primitive ProximitySwitch[] = {
    Line(0, 0, 0.25f, -0.25f), Line(0.25f, -0.25f, 0.5f, 0),
    Line(0.5f, 0, 0.25f, 0.25f), Line(0.25f, 0.25f, 0, 0),
    Line(0, 0, 0.1f, 0), Circle(0.1375f, 0, 0.0375f), Circle(0.3625f, 0, 0.0375f),
    Line(0.4f, 0, 0.5f, 0), Line(0.175f, 0, 0.3625f, 0.0875f),
};
constexpr Block ProximitySwitchBlocks[] = {
    {0, ProximitySwitch},
    {1, ProximitySwitch, Turn::Clockwise},
};

// IEEE 315: voltage-sensitive resistor, the letter upright in both drawings.
constexpr std::array VaristorStroke{Line(0.0625f, 0.15f, 0.1375f, 0.15f),
                                    Line(0.1375f, 0.15f, 0.3625f, -0.15f)};
constexpr std::array VaristorLetter{Line(0.225f, 0.1125f, 0.2625f, 0.2f),
                                    Line(0.2625f, 0.2f, 0.3f, 0.1125f)};
constexpr auto Varistor = joined(joined(Resistor, VaristorStroke), VaristorLetter);
constexpr Block VaristorBlocks[] = {{AnyOrientation, Varistor}};

constexpr std::array Varistor90Letter{Line(-0.2f, 0.2125f, -0.1625f, 0.3f),
                                      Line(-0.1625f, 0.3f, -0.125f, 0.2125f)};
constexpr auto Varistor90 =
    joined(joined(clockwise(Resistor), clockwise(VaristorStroke)), Varistor90Letter);
constexpr Block Varistor90Blocks[] = {{AnyOrientation, Varistor90}};

// NEMA ICS 19: static switch, the contact in a square; open, then closed.
constexpr std::array StaticSwitch{
    Box(0, -0.25f, 0.5f, 0.25f), Line(0, 0, 0.1f, 0), Circle(0.1375f, 0, 0.0375f),
    Circle(0.3625f, 0, 0.0375f), Line(0.4f, 0, 0.5f, 0),
};
constexpr auto ElectronicSwitchNO =
    joined(StaticSwitch, std::array{Line(0.175f, 0, 0.3625f, 0.0875f)});
constexpr Block ElectronicSwitchNOBlocks[] = {{AnyOrientation, ElectronicSwitchNO}};
constexpr auto ElectronicSwitchNC =
    joined(StaticSwitch, std::array{Line(0.175f, 0, 0.3875f, -0.0438f)});
constexpr Block ElectronicSwitchNCBlocks[] = {{AnyOrientation, ElectronicSwitchNC}};

constexpr Symbol Symbols[] = {
    {"InsertDiodeLeft", DiodeLeftBlocks, ""},
    {"InsertEGround", EGroundBlocks, ""},
    {"InsertCrystal", CrystalBlocks, ""},
    {"InsertAmplifier", AmplifierBlocks, ""},
    {"InsertOpAmp", OpAmpBlocks, ""},
    {"InsertResistor", ResistorBlocks, ""},
    {"InsertDiode", DiodeBlocks, ""},
    {"InsertDiodeRight", DiodeRightBlocks, ""},
    {"InsertDiodeUp", DiodeUpBlocks, ""},
    {"InsertDiodeDown", DiodeDownBlocks, ""},
    {"InsertBridgeRectifier", BridgeRectifierBlocks, ""},
    {"InsertNPNTransistor", NPNTransistorBlocks, ""},
    {"InsertPNPTransistor", PNPTransistorBlocks, ""},
    {"InsertUJT", UJTBlocks, ""},
    {"InsertDiac", DiacBlocks, ""},
    {"InsertTriac", TriacBlocks, ""},
    {"InsertProximitySwitch", ProximitySwitchBlocks, ""},
    {"InsertResistor90", Resistor90Blocks, ""},
    {"InsertVaristor", VaristorBlocks, ""},
    {"InsertVaristor90", Varistor90Blocks, ""},
    {"InsertElectronicSwitchNO", ElectronicSwitchNOBlocks, ""},
    {"InsertElectronicSwitchNC", ElectronicSwitchNCBlocks, ""},
};

// clang-format on

}  // namespace

std::span<const Symbol> modSymbolsOldElectronic() {
    return Symbols;
}

}  // namespace ladrix
