// Relay logic and power in the American manner. A horizontal symbol runs from (0, 0) to (0.5, 0),
// a vertical one from (0, 0) to (0, 0.5).
#include <array>
#include <iterator>

#include "symbols/Libraries.h"

namespace ladrix {

namespace {

using namespace art;

// A symbol with one drawing, as its primitives stand or turned.
template <const auto& Primitives>
constexpr Block Drawing[] = {{AnyOrientation, Primitives}};
template <const auto& Primitives>
constexpr Block TurnedClockwise[] = {{AnyOrientation, Primitives, Turn::Clockwise}};
template <const auto& Primitives>
constexpr Block TurnedCounterClockwise[] = {{AnyOrientation, Primitives, Turn::CounterClockwise}};

// Where the blade of a switch ends at a = 0.5. A closed blade lies on its terminal circle as a
// tangent: from above when normally closed, from below when an open one is held closed.
constexpr Single BladeOpen = 0.125f;
constexpr Single BladeClosed = -0.0413f;
constexpr Single BladeHeldClosed = 0.0413f;
constexpr Single BladeHeldOpen = -0.125f;

// Height of a blade at the symbol's middle, where its actuator hangs.
constexpr Single middle(Single bladeEnd) {
    return bladeEnd * 0.175f / 0.425f;
}

// clang-format off

// IEEE 315-2.5: battery of two cells.
constexpr Primitive Battery[] = {
    Line(0, 0, 0.0625f, 0),
    Line(0.0625f, -0.2f, 0.0625f, 0.2f), Line(0.1875f, -0.125f, 0.1875f, 0.125f),
    Line(0.3125f, -0.2f, 0.3125f, 0.2f), Line(0.4375f, -0.125f, 0.4375f, 0.125f),
    Line(0.4375f, 0, 0.5f, 0),
    Line(0.5f, 0, 0.5f, 0),
};

// IEEE 315-2.2: capacitor, the curved plate outside.
constexpr Primitive Capacitor[] = {
    Line(0, 0, 0.0875f, 0), Line(0.0875f, -0.125f, 0.0875f, 0.125f),
    Line(0.1625f, 0, 0.25f, 0), Arc(0.3375f, 0, 0.175f, 135, 225),
};
constexpr Block CapacitorBlocks[] = {
    {0, Capacitor},
    {1, Capacitor, Turn::MirrorLeftRight, 0.25f, 0},
    {2, Capacitor, Turn::CounterClockwise, 0, 0.25f},
    {3, Capacitor, Turn::Clockwise},
};

// NEMA ICS 19: circuit breaker.
constexpr Primitive CircuitBreaker90[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Arc(0.25f, 0.3375f, 0.5f, 60, 120),
};

// NEMA ICS 19: normally closed contact.
constexpr Primitive ContactNC[] = {
    Line(0, 0, 0.175f, 0), Line(0.175f, -0.15f, 0.175f, 0.15f),
    Line(0.325f, -0.15f, 0.325f, 0.15f), Line(0.325f, 0, 0.5f, 0),
    Line(0.1f, -0.1f, 0.4f, 0.1f),
};

// NEMA ICS 19: normally open contact, shown operated: flagged bars, and the stroke that closes it.
constexpr Primitive ContactNOClosed[] = {
    Line(0.1125f, -0.15f, 0.175f, -0.15f), Line(0.175f, -0.15f, 0.175f, 0.15f),
    Line(0.1125f, 0.15f, 0.175f, 0.15f), Line(0, 0, 0.175f, 0),
    Line(0.325f, -0.15f, 0.3875f, -0.15f), Line(0.325f, -0.15f, 0.325f, 0.15f),
    Line(0.325f, 0.15f, 0.3875f, 0.15f), Line(0.325f, 0, 0.5f, 0),
    Line(0.4f, -0.1f, 0.1f, 0.1f),
};

// NEMA ICS 19: normally open contact.
constexpr Primitive ContactNO[] = {
    Line(0, 0, 0.175f, 0), Line(0.175f, -0.15f, 0.175f, 0.15f),
    Line(0.325f, -0.15f, 0.325f, 0.15f), Line(0.325f, 0, 0.5f, 0),
};

// NEMA ICS 19: disconnect switch.
constexpr Primitive Disconnect[] = {
    Line(0, 0, 0, 0.1f), Line(0.125f, 0, 0, 0.375f), Line(0, 0.375f, 0, 0.5f),
};

// NEMA ICS 19: push button with mushroom head, normally closed.
constexpr Primitive EStop[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0, 0.0375f, 0.5f, 0.0375f), Line(0.25f, -0.2125f, 0.25f, 0.0375f),
    Arc(0.25f, -0.0375f, 0.175f, 45, 135),
};

// NEMA ICS 19: fuse, power or control.
constexpr Primitive Fuse[] = {
    Line(0, 0, 0.05f, 0), Line(0.45f, 0, 0.5f, 0),
    Line(0.05f, -0.075f, 0.45f, -0.075f), Line(0.45f, -0.075f, 0.45f, 0.075f),
    Line(0.05f, 0.075f, 0.45f, 0.075f), Line(0.05f, -0.075f, 0.05f, 0.075f),
    Line(0.15f, -0.075f, 0.15f, 0.075f), Line(0.35f, -0.075f, 0.35f, 0.075f),
};

// IEEE 315-3.9: earth ground.
constexpr Primitive Ground[] = {
    Line(0, 0, 0, 0.175f), Line(-0.15f, 0.175f, 0.15f, 0.175f),
    Line(-0.1f, 0.275f, 0.1f, 0.275f), Line(-0.05f, 0.375f, 0.05f, 0.375f),
};

// NEMA ICS 19: pilot light.
constexpr Primitive Lamp[] = {
    Circle(0.25f, 0, 0.175f),
    Line(0, 0, 0.075f, 0), Line(0.425f, 0, 0.5f, 0),
    Line(0, -0.25f, 0.075f, -0.175f), Line(0.5f, -0.25f, 0.425f, -0.175f),
    Line(0.425f, 0.175f, 0.5f, 0.25f), Line(0.075f, 0.175f, 0, 0.25f),
};

// NEMA ICS 19: limit switch, normally open; the wedge is the bumper arm.
constexpr Primitive LSNO[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.075f, 0, 0.5f, 0.15f),
    Line(0.075f, 0, 0.25f, 0.1625f), Line(0.25f, 0.1625f, 0.3625f, 0.1f),
};

// NEMA ICS 19: contact of an off-delay timer, timed opening.
constexpr Primitive OffDelayNO[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, 0.05f, 0.25f, 0.3125f),
    Line(0.175f, 0.2125f, 0.25f, 0.3125f), Line(0.25f, 0.3125f, 0.325f, 0.2125f),
    Line(0.075f, 0, 0.5f, 0.125f),
};

// NEMA ICS 19: contact of an on-delay timer, timed closing.
constexpr Primitive OnDelayNO[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, 0.05f, 0.25f, 0.2875f), Line(0.1625f, 0.375f, 0.25f, 0.2875f),
    Line(0.075f, 0, 0.5f, 0.125f),
    Line(0.25f, 0.2875f, 0.3375f, 0.375f),
};

// NEMA ICS 19: switch, normally open.
constexpr Primitive GPSwitch[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.075f, 0, 0.5f, 0.125f),
};

// NEMA ICS 19: push button, normally closed.
constexpr Primitive PBNC[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, -0.2125f, 0.25f, 0.0375f), Line(0, 0.0375f, 0.5f, 0.0375f),
};

// NEMA ICS 19: push button, normally open.
constexpr Primitive PBNO[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, -0.375f, 0.25f, -0.125f), Line(0, -0.125f, 0.5f, -0.125f),
};

// NEMA ICS 19: operating coil.
constexpr Primitive RelayCoil[] = {
    Circle(0.25f, 0, 0.25f),
};

// NEMA ICS 19: operating coil with a surge suppressor. The two dots stay last.
constexpr Primitive CoilSuppressor[] = {
    Circle(0.25f, 0, 0.25f),
    Line(-0.125f, 0, -0.125f, 0.5f), Line(-0.125f, 0.5f, 0.125f, 0.5f),
    Line(0.625f, 0, 0.625f, 0.5f), Line(0.375f, 0.5f, 0.625f, 0.5f),
    Line(0.125f, 0.45f, 0.375f, 0.45f), Line(0.375f, 0.45f, 0.375f, 0.5375f),
    Line(0.125f, 0.5375f, 0.375f, 0.5375f), Line(0.125f, 0.45f, 0.125f, 0.5375f),
    Line(0.3f, 0.4f, 0.375f, 0.4f), Line(0.3f, 0.4f, 0.1875f, 0.5875f),
    Line(0.125f, 0.5875f, 0.1875f, 0.5875f),
    SolidFillOn, Circle(-0.125f, 0, 0.025f, AbsR), Circle(0.625f, 0, 0.025f, AbsR), SolidFillOff,
};
constexpr Block CoilSuppressorBlocks[] = {{0, CoilSuppressor}};

// NEMA ICS 19: solenoid; the second drawing is the magnetic overload, between its terminals.
constexpr Primitive Solenoid[] = {
    Line(0, 0, 0.0625f, 0),
    Line(0.0625f, 0, 0.1625f, -0.1625f), Line(0.1625f, -0.1625f, 0.3375f, 0.15f),
    Line(0.3375f, 0.15f, 0.4375f, 0),
    Line(0.4375f, 0, 0.5f, 0),
};
constexpr Primitive MagneticOverload[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.075f, 0, 0.125f, 0), Line(0.375f, 0, 0.425f, 0),
    Line(0.125f, 0, 0.1875f, -0.175f), Line(0.1875f, -0.175f, 0.3125f, 0.175f),
    Line(0.3125f, 0.175f, 0.375f, 0),
};
constexpr Block SolenoidBlocks[] = {{0, Solenoid}, {1, MagneticOverload}};
constexpr Block Solenoid90Blocks[] = {
    {0, Solenoid, Turn::Clockwise},
    {1, MagneticOverload, Turn::Clockwise},
};

// NEMA ICS 19: thermal overload heater.
constexpr Primitive ThermalOverload[] = {
    Line(0, 0, 0.1f, 0), Line(0.4f, 0, 0.5f, 0),
    Arc(0.175f, 0, 0.075f, 270, 180), Arc(0.325f, 0, 0.075f, 90, 360),
};

// IEEE 315-6.2: winding.
constexpr Primitive TransformerCoil[] = {
    Arc(0.0625f, 0.0625f, 0.0625f, 180, 360), Line(0, 0, 0, 0.0625f),
    Arc(0.1875f, 0.0625f, 0.0625f, 180, 360), Line(0.125f, 0, 0.125f, 0.0625f),
    Arc(0.3125f, 0.0625f, 0.0625f, 180, 360), Line(0.25f, 0, 0.25f, 0.0625f),
    Arc(0.4375f, 0.0625f, 0.0625f, 180, 360), Line(0.375f, 0, 0.375f, 0.0625f),
    Line(0.5f, 0, 0.5f, 0.0625f),
};
constexpr Block TransformerCoilBlocks[] = {
    {0, TransformerCoil},
    {1, TransformerCoil, Turn::MirrorTopBottom},
    {2, TransformerCoil, Turn::CounterClockwise, 0, 0.5f},
    {3, TransformerCoil, Turn::Clockwise},
};

// IEEE 315-2.2: capacitor, not polarised.
constexpr Primitive ACCapacitor[] = {
    Line(0, 0, 0.0875f, 0), Line(0.0875f, -0.125f, 0.0875f, 0.125f),
    Line(0.1625f, -0.125f, 0.1625f, 0.125f), Line(0.1625f, 0, 0.25f, 0),
};
constexpr Block ACCapacitorBlocks[] = {{0, ACCapacitor}, {1, ACCapacitor, Turn::Clockwise}};

// IEEE 315-5.3: engaged separable connectors, the male contact pointing into the female one.
constexpr Primitive ConnectorRight[] = {
    Line(0, 0, 0.25f, 0), Line(0.15f, -0.1f, 0.25f, 0), Line(0.25f, 0, 0.15f, 0.1f),
    Line(0.25f, -0.1f, 0.35f, 0), Line(0.35f, 0, 0.25f, 0.1f), Line(0.35f, 0, 0.5f, 0),
};

// NEMA ICS 19: normally closed contact, shown operated: flagged bars, no stroke between them.
constexpr Primitive ContactNCOpened[] = {
    Line(0.1125f, -0.15f, 0.175f, -0.15f), Line(0.175f, -0.15f, 0.175f, 0.15f),
    Line(0.1125f, 0.15f, 0.175f, 0.15f), Line(0, 0, 0.175f, 0),
    Line(0.325f, -0.15f, 0.3875f, -0.15f), Line(0.325f, -0.15f, 0.325f, 0.15f),
    Line(0.325f, 0.15f, 0.3875f, 0.15f), Line(0.325f, 0, 0.5f, 0),
};

// NEMA ICS 19: float switch; the ball hangs from the blade.
constexpr auto floatSwitch(Single bladeEnd) {
    return std::to_array<Primitive>({
        Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
        Line(0.075f, 0, 0.5f, bladeEnd), Line(0.25f, middle(bladeEnd), 0.25f, 0.225f),
        Circle(0.25f, 0.3f, 0.075f),
    });
}
constexpr auto FloatSwitchNC = floatSwitch(BladeClosed);
constexpr auto FloatSwitchNO = floatSwitch(BladeOpen);
constexpr auto FloatSwitchNCHO = floatSwitch(BladeHeldOpen);
constexpr auto FloatSwitchNOHC = floatSwitch(BladeHeldClosed);

// NEMA ICS 19: flow switch; the flag is the paddle in the stream.
constexpr auto flowSwitch(Single bladeEnd) {
    return std::to_array<Primitive>({
        Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
        Line(0.075f, 0, 0.5f, bladeEnd), Line(0.25f, middle(bladeEnd), 0.25f, 0.375f),
        Line(0.25f, 0.225f, 0.4f, 0.375f), Line(0.4f, 0.375f, 0.25f, 0.375f),
    });
}
constexpr auto FlowSwitchNO = flowSwitch(BladeOpen);
constexpr auto FlowSwitchNC = flowSwitch(BladeClosed);

// NEMA ICS 19: foot switch; the blade stands on the pedal, whose heel is at the left.
constexpr auto footSwitch(Single bladeEnd) {
    return std::to_array<Primitive>({
        Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
        Line(0.075f, 0, 0.5f, bladeEnd), Line(0.25f, middle(bladeEnd), 0.25f, 0.3f),
        Line(0.1f, 0.375f, 0.4f, 0.225f), Line(0.1f, 0.375f, 0.4f, 0.375f),
    });
}
constexpr auto FootSwitchNC = footSwitch(BladeClosed);
constexpr auto FootSwitchNO = footSwitch(BladeOpen);

// NEMA ICS 19: limit switch; its wedge rides on the blade as on that of the open one.
constexpr auto limitSwitch(Single bladeEnd) {
    const Single foot = bladeEnd * 0.2875f / 0.425f;
    const Single tip = middle(bladeEnd) + 0.1f;
    return std::to_array<Primitive>({
        Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
        Line(0.075f, 0, 0.5f, bladeEnd),
        Line(0.075f, 0, 0.25f, tip), Line(0.25f, tip, 0.3625f, foot),
    });
}
constexpr auto LSNC = limitSwitch(BladeClosed);
constexpr auto LSNCHO = limitSwitch(-0.15f);
constexpr auto LSNOHC = limitSwitch(BladeHeldClosed);

// NEMA ICS 19: contact of an off-delay timer, timed closing.
constexpr Primitive OffDelayNC[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, middle(BladeClosed), 0.25f, 0.3125f),
    Line(0.175f, 0.2125f, 0.25f, 0.3125f), Line(0.25f, 0.3125f, 0.325f, 0.2125f),
    Line(0.075f, 0, 0.5f, BladeClosed),
};

// NEMA ICS 19: contact of an on-delay timer, timed opening.
constexpr Primitive OnDelayNC[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, middle(BladeClosed), 0.25f, 0.2875f), Line(0.1625f, 0.375f, 0.25f, 0.2875f),
    Line(0.075f, 0, 0.5f, BladeClosed),
    Line(0.25f, 0.2875f, 0.3375f, 0.375f),
};

// NEMA ICS 19: switch, normally closed.
constexpr Primitive GPSwitchNC[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.075f, 0, 0.5f, BladeClosed),
};

// NEMA ICS 19: key operated switch, normally open, the key in its lock.
constexpr Primitive KeySwitch[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, -0.375f, 0.25f, -0.125f), Line(0, -0.125f, 0.5f, -0.125f),
    Circle(0.25f, -0.4375f, 0.0625f),
    Line(0.25f, -0.1875f, 0.3125f, -0.1875f), Line(0.25f, -0.25f, 0.3125f, -0.25f),
};

// NEMA ICS 19: two-way switch; the blade lies against its upper terminal.
constexpr Primitive GPSwitch2Pos[] = {
    Circle(0.0375f, 0, 0.0375f),
    Circle(0.4625f, -0.125f, 0.0375f), Circle(0.4625f, 0.125f, 0.0375f),
    Line(0.075f, 0, 0.5f, -0.095f),
};

// NEMA ICS 19: further contacts of a push button or selector, a dashed link to its operator half
// an inch above.
constexpr Primitive NormallyOpenAux[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0, -0.125f, 0.5f, -0.125f), Line(0.25f, -0.125f, 0.25f, -0.1825f),
    Line(0.25f, -0.2425f, 0.25f, -0.3225f), Line(0.25f, -0.3825f, 0.25f, -0.4625f),
};
constexpr Primitive NormallyClosedAux[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0, 0.0375f, 0.5f, 0.0375f), Line(0.25f, 0.0375f, 0.25f, -0.0425f),
    Line(0.25f, -0.1025f, 0.25f, -0.1825f),
    Line(0.25f, -0.2425f, 0.25f, -0.3225f), Line(0.25f, -0.3825f, 0.25f, -0.4625f),
};

// NEMA ICS 19: push buttons held down, each as at rest with the plunger 0.0875 lower.
constexpr Primitive PBNCDown[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, -0.125f, 0.25f, 0.125f), Line(0, 0.125f, 0.5f, 0.125f),
};
constexpr Primitive PBNODown[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Line(0.25f, -0.2875f, 0.25f, -0.0375f), Line(0, -0.0375f, 0.5f, -0.0375f),
};

// NEMA ICS 19: pressure switch; the flat of the dome is the diaphragm.
constexpr auto pressureSwitch(Single bladeEnd) {
    return std::to_array<Primitive>({
        Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
        Line(0.075f, 0, 0.5f, bladeEnd), Line(0.25f, middle(bladeEnd), 0.25f, 0.25f),
        Arc(0.25f, 0.375f, 0.125f, 0, 180), Line(0.125f, 0.375f, 0.375f, 0.375f),
    });
}
constexpr auto PSNC = pressureSwitch(BladeClosed);
constexpr auto PSNO = pressureSwitch(BladeOpen);
constexpr auto PSNCHO = pressureSwitch(BladeHeldOpen);
constexpr auto PSNOHC = pressureSwitch(BladeHeldClosed);

// NEMA ICS 19: reference to another line or sheet.
constexpr Primitive Reference[] = {
    Line(0, 0, 0.125f, -0.125f), Line(0.125f, -0.125f, 0.25f, 0),
    Line(0.25f, 0, 0.125f, 0.125f), Line(0.125f, 0.125f, 0, 0),
};
constexpr Primitive CircularReference[] = {
    Circle(0.125f, 0, 0.125f),
};
constexpr Primitive ReferencePoint[] = {
    Box(0, -0.125f, 0.25f, 0.125f),
};

// NEMA ICS 19: operating coil with a free-wheeling diode, cathode at the left. The two dots stay
// last.
constexpr Primitive CoilDiodeLeft[] = {
    Circle(0.25f, 0, 0.25f),
    Line(-0.125f, 0, -0.125f, 0.5f), Line(-0.125f, 0.5f, 0.2f, 0.5f),
    Line(0.625f, 0, 0.625f, 0.5f), Line(0.3f, 0.5f, 0.625f, 0.5f),
    Line(0.2f, 0.425f, 0.2f, 0.575f), Line(0.3f, 0.425f, 0.3f, 0.575f),
    Line(0.3f, 0.425f, 0.2f, 0.5f), Line(0.2f, 0.5f, 0.3f, 0.575f),
    SolidFillOn, Circle(-0.125f, 0, 0.025f, AbsR), Circle(0.625f, 0, 0.025f, AbsR), SolidFillOff,
};
constexpr Block CoilDiodeRightBlocks[] = {{0, CoilDiodeLeft, Turn::MirrorLeftRight, 0.5f, 0}};
constexpr Block CoilDiodeLeftBlocks[] = {{0, CoilDiodeLeft}};

// NEMA ICS 19: operating coil with a resistor, and with a resistor and capacitor in series.
constexpr Primitive CoilResistor[] = {
    Circle(0.25f, 0, 0.25f),
    Line(-0.125f, 0, -0.125f, 0.5f), Line(-0.125f, 0.5f, 0.1f, 0.5f),
    Line(0.625f, 0, 0.625f, 0.5f), Line(0.4f, 0.5f, 0.625f, 0.5f),
    Line(0.1f, 0.5f, 0.125f, 0.425f), Line(0.125f, 0.425f, 0.175f, 0.575f),
    Line(0.175f, 0.575f, 0.225f, 0.425f), Line(0.225f, 0.425f, 0.275f, 0.575f),
    Line(0.275f, 0.575f, 0.325f, 0.425f), Line(0.325f, 0.425f, 0.375f, 0.575f),
    Line(0.375f, 0.575f, 0.4f, 0.5f),
    SolidFillOn, Circle(-0.125f, 0, 0.025f, AbsR), Circle(0.625f, 0, 0.025f, AbsR), SolidFillOff,
};
constexpr Primitive CoilResistorCapacitor[] = {
    Circle(0.25f, 0, 0.25f),
    Line(-0.125f, 0, -0.125f, 0.5f), Line(-0.125f, 0.5f, 0, 0.5f),
    Line(0.625f, 0, 0.625f, 0.5f), Line(0.5f, 0.5f, 0.625f, 0.5f),
    Line(0, 0.5f, 0.025f, 0.425f), Line(0.025f, 0.425f, 0.075f, 0.575f),
    Line(0.075f, 0.575f, 0.125f, 0.425f), Line(0.125f, 0.425f, 0.175f, 0.575f),
    Line(0.175f, 0.575f, 0.225f, 0.425f), Line(0.225f, 0.425f, 0.275f, 0.575f),
    Line(0.275f, 0.575f, 0.3f, 0.5f), Line(0.3f, 0.5f, 0.425f, 0.5f),
    Line(0.425f, 0.4f, 0.425f, 0.6f), Line(0.5f, 0.4f, 0.5f, 0.6f),
    SolidFillOn, Circle(-0.125f, 0, 0.025f, AbsR), Circle(0.625f, 0, 0.025f, AbsR), SolidFillOff,
};

// The coil with each of its accessories. The first two are the drawings above without their dots.
constexpr std::size_t DotPrimitives = 4;
constexpr Block SpecialCoilBlocks[] = {
    {0, std::span(CoilSuppressor).first(std::size(CoilSuppressor) - DotPrimitives)},
    {1, std::span(CoilDiodeLeft).first(std::size(CoilDiodeLeft) - DotPrimitives)},
    {2, CoilDiodeLeft, Turn::MirrorLeftRight, 0.5f, 0},
    {3, CoilResistor},
    {4, CoilResistorCapacitor},
};

// NEMA ICS 19: selector switches of two circuits. The knob points at the position in use, dashed
// at the others; one bar moves between the upper and the lower pair.
constexpr Primitive SS2Pos[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Circle(0.0375f, 0.25f, 0.0375f), Circle(0.4625f, 0.25f, 0.0375f),
    Line(0, 0.0375f, 0.5f, 0.0375f), Line(0.25f, 0.0375f, 0.25f, -0.15f),
    Line(0.25f, -0.15f, 0.11f, -0.32f),
    Line(0.285f, -0.1925f, 0.327f, -0.2435f), Line(0.348f, -0.269f, 0.39f, -0.32f),
};
constexpr Primitive SS3Pos[] = {
    Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
    Circle(0.0375f, 0.25f, 0.0375f), Circle(0.4625f, 0.25f, 0.0375f),
    Line(0, 0.125f, 0.5f, 0.125f), Line(0.25f, 0.125f, 0.25f, -0.37f),
    Line(0.215f, -0.1925f, 0.173f, -0.2435f), Line(0.152f, -0.269f, 0.11f, -0.32f),
    Line(0.285f, -0.1925f, 0.327f, -0.2435f), Line(0.348f, -0.269f, 0.39f, -0.32f),
};

// NEMA ICS 19: temperature actuated switch; the step is the bimetal.
constexpr auto thermalSwitch(Single bladeEnd) {
    return std::to_array<Primitive>({
        Circle(0.0375f, 0, 0.0375f), Circle(0.4625f, 0, 0.0375f),
        Line(0.075f, 0, 0.5f, bladeEnd), Line(0.25f, middle(bladeEnd), 0.25f, 0.175f),
        Line(0.25f, 0.175f, 0.35f, 0.175f), Line(0.35f, 0.175f, 0.35f, 0.275f),
        Line(0.35f, 0.275f, 0.25f, 0.275f), Line(0.25f, 0.275f, 0.25f, 0.375f),
    });
}
constexpr auto ThermalSwitchNC = thermalSwitch(BladeClosed);
constexpr auto ThermalSwitchNO = thermalSwitch(BladeOpen);

// IEEE 315-6.4: transformer with magnetic core; the winding of fewer turns opposite the insertion
// point.
constexpr Primitive Transformer[] = {
    Arc(0.0625f, 0.1f, 0.0625f, 180, 360), Line(0, 0, 0, 0.1f),
    Arc(0.1875f, 0.1f, 0.0625f, 180, 360), Line(0.125f, 0.06f, 0.125f, 0.1f),
    Arc(0.3125f, 0.1f, 0.0625f, 180, 360), Line(0.25f, 0.06f, 0.25f, 0.1f),
    Arc(0.4375f, 0.1f, 0.0625f, 180, 360), Line(0.375f, 0.06f, 0.375f, 0.1f),
    Line(0.5f, 0, 0.5f, 0.1f),
    Line(0, 0.225f, 0.5f, 0.225f), Line(0, 0.275f, 0.5f, 0.275f),
    Arc(0.1875f, 0.4f, 0.0625f, 0, 180), Line(0.125f, 0.4f, 0.125f, 0.44f),
    Arc(0.3125f, 0.4f, 0.0625f, 0, 180), Line(0.25f, 0.4f, 0.25f, 0.44f),
    Line(0.375f, 0.4f, 0.375f, 0.44f),
    Line(0.125f, 0.44f, 0, 0.44f), Line(0, 0.44f, 0, 0.5f),
    Line(0.375f, 0.44f, 0.5f, 0.44f), Line(0.5f, 0.44f, 0.5f, 0.5f),
};
constexpr Block TransformerBlocks[] = {
    {0, Transformer},
    {1, Transformer, Turn::MirrorTopBottom},
    {2, Transformer, Turn::CounterClockwise, 0, 0.5f},
    {3, Transformer, Turn::Clockwise},
};

// NEMA ICS 19: control transformer, two primary windings H and one secondary X.
constexpr Primitive ControlTransformer[] = {
    Arc(0.0625f, 0.1f, 0.0625f, 180, 360), Line(0, 0, 0, 0.1f),
    Arc(0.1875f, 0.1f, 0.0625f, 180, 360), Line(0.125f, 0.06f, 0.125f, 0.1f),
    Arc(0.3125f, 0.1f, 0.0625f, 180, 360), Line(0.25f, 0.06f, 0.25f, 0.1f),
    Arc(0.4375f, 0.1f, 0.0625f, 180, 360), Line(0.375f, 0.06f, 0.375f, 0.1f),
    Line(0.5f, 0, 0.5f, 0.1f),
    Arc(0.8125f, 0.1f, 0.0625f, 180, 360), Line(0.75f, 0, 0.75f, 0.1f),
    Arc(0.9375f, 0.1f, 0.0625f, 180, 360), Line(0.875f, 0.06f, 0.875f, 0.1f),
    Arc(1.0625f, 0.1f, 0.0625f, 180, 360), Line(1, 0.06f, 1, 0.1f),
    Arc(1.1875f, 0.1f, 0.0625f, 180, 360), Line(1.125f, 0.06f, 1.125f, 0.1f),
    Line(1.25f, 0, 1.25f, 0.1f),
    Line(0, 0.225f, 1.25f, 0.225f), Line(0, 0.275f, 1.25f, 0.275f),
    Arc(0.3125f, 0.4f, 0.0625f, 0, 180), Line(0.25f, 0.4f, 0.25f, 0.5f),
    Arc(0.4375f, 0.4f, 0.0625f, 0, 180), Line(0.375f, 0.4f, 0.375f, 0.44f),
    Arc(0.5625f, 0.4f, 0.0625f, 0, 180), Line(0.5f, 0.4f, 0.5f, 0.44f),
    Arc(0.6875f, 0.4f, 0.0625f, 0, 180), Line(0.625f, 0.4f, 0.625f, 0.44f),
    Arc(0.8125f, 0.4f, 0.0625f, 0, 180), Line(0.75f, 0.4f, 0.75f, 0.44f),
    Arc(0.9375f, 0.4f, 0.0625f, 0, 180), Line(0.875f, 0.4f, 0.875f, 0.44f),
    Line(1, 0.4f, 1, 0.5f),
};

// IEEE 315-6.2: winding, half the size of the other.
constexpr Primitive SmallTransformerCoil[] = {
    Arc(0.03125f, 0.03125f, 0.03125f, 180, 360), Line(0, 0, 0, 0.03125f),
    Arc(0.09375f, 0.03125f, 0.03125f, 180, 360), Line(0.0625f, 0, 0.0625f, 0.03125f),
    Arc(0.15625f, 0.03125f, 0.03125f, 180, 360), Line(0.125f, 0, 0.125f, 0.03125f),
    Arc(0.21875f, 0.03125f, 0.03125f, 180, 360), Line(0.1875f, 0, 0.1875f, 0.03125f),
    Line(0.25f, 0, 0.25f, 0.03125f),
};
constexpr Block SmallTransformerCoilBlocks[] = {
    {0, SmallTransformerCoil},
    {1, SmallTransformerCoil, Turn::MirrorTopBottom},
    {2, SmallTransformerCoil, Turn::CounterClockwise, 0, 0.25f},
    {3, SmallTransformerCoil, Turn::Clockwise},
};

// IEEE 315-11.1: incandescent-filament lamp.
constexpr Primitive IncadescentLamp[] = {
    Circle(0.25f, 0, 0.175f),
    Line(0, 0, 0.175f, 0), Arc(0.25f, 0, 0.075f, 0, 180), Line(0.325f, 0, 0.5f, 0),
};

// IEEE 315-11.1: lamp, general.
constexpr Primitive SimpleLamp[] = {
    Circle(0.25f, 0, 0.175f),
    Line(0, 0, 0.075f, 0), Line(0.425f, 0, 0.5f, 0),
    Line(0.1263f, -0.1237f, 0.3737f, 0.1237f), Line(0.1263f, 0.1237f, 0.3737f, -0.1237f),
};

constexpr Symbol Symbols[] = {
    {"InsertBattery", Drawing<Battery>, ""},
    {"InsertCapacitor", CapacitorBlocks, ""},
    {"InsertCircuitBreaker90", Drawing<CircuitBreaker90>, ""},
    {"InsertContactNC", Drawing<ContactNC>, "CR", 0.25f, -0.275f},
    {"InsertContactNOClosed", Drawing<ContactNOClosed>, "CR", 0.25f, -0.275f},
    {"InsertContactNO", Drawing<ContactNO>, "CR", 0.25f, -0.275f},
    {"InsertDisconnect", Drawing<Disconnect>, ""},
    {"InsertEStop", Drawing<EStop>, "E-Stop", 0.25f, -0.4375f},
    {"InsertFuse", Drawing<Fuse>, "FU", 0.25f, -0.25f},
    {"InsertGround", Drawing<Ground>, ""},
    {"InsertLamp", Drawing<Lamp>, "PL", 0.25f, 0},
    {"InsertLSNO", Drawing<LSNO>, "LS", 0.25f, -0.175f},
    {"InsertOffDelayNO", Drawing<OffDelayNO>, "TR", 0.25f, -0.175f},
    {"InsertOnDelayNO", Drawing<OnDelayNO>, "TR", 0.25f, -0.175f},
    {"InsertGPSwitch", Drawing<GPSwitch>, "SW", 0.25f, -0.1875f},
    {"InsertPBNC", Drawing<PBNC>, "PB", 0.25f, -0.375f},
    {"InsertPBNO", Drawing<PBNO>, "PB", 0.25f, -0.5f},
    {"InsertRelayCoil", Drawing<RelayCoil>, "CR", 0.25f, 0},
    {"InsertCoilSuppressor", CoilSuppressorBlocks, "CR", 0.25f, 0},
    {"InsertSolenoid", SolenoidBlocks, "SOL", 0.25f, -0.3125f},
    {"InsertThermalOverload", Drawing<ThermalOverload>, "OL", 0.25f, -0.25f},
    {"InsertTransformerCoil", TransformerCoilBlocks, ""},
    {"InsertACCapacitor", ACCapacitorBlocks, ""},
    {"InsertConnectorRight", Drawing<ConnectorRight>, ""},
    {"InsertConnectorDown", TurnedClockwise<ConnectorRight>, ""},
    {"InsertContactNC90", TurnedClockwise<ContactNC>, "CR", 0.25f, 0.25f},
    {"InsertContactNC90Opened", TurnedClockwise<ContactNCOpened>, "CR", 0.25f, 0.25f},
    {"InsertContactNO90Closed", TurnedClockwise<ContactNOClosed>, "CR", 0.25f, 0.25f},
    {"InsertContactNCOpened", Drawing<ContactNCOpened>, "CR", 0.25f, -0.275f},
    {"InsertContactNO90", TurnedClockwise<ContactNO>, "CR", 0.25f, 0.25f},
    {"InsertDisconnect90", TurnedCounterClockwise<Disconnect>, ""},
    {"InsertFloatSwitchNC", Drawing<FloatSwitchNC>, "FLT", 0.25f, -0.175f},
    {"InsertFloatSwitchNO", Drawing<FloatSwitchNO>, "FLT", 0.25f, -0.175f},
    {"InsertFloatSwitchNCHO", Drawing<FloatSwitchNCHO>, "FLT", 0.25f, -0.25f},
    {"InsertFloatSwitchNOHC", Drawing<FloatSwitchNOHC>, "FLT", 0.25f, -0.175f},
    {"InsertFlowSwitchNO", Drawing<FlowSwitchNO>, "FLW", 0.25f, -0.175f},
    {"InsertFlowSwitchNC", Drawing<FlowSwitchNC>, "FLW", 0.25f, -0.175f},
    {"InsertFootSwitchNC", Drawing<FootSwitchNC>, "FT", 0.25f, -0.175f},
    {"InsertFootSwitchNO", Drawing<FootSwitchNO>, "FT", 0.25f, -0.175f},
    {"InsertFuse90", TurnedClockwise<Fuse>, "FU", 0.25f, 0.25f},
    {"InsertLSNC", Drawing<LSNC>, "LS", 0.25f, -0.175f},
    {"InsertLSNCHO", Drawing<LSNCHO>, "LS", 0.25f, -0.25f},
    {"InsertLSNOHC", Drawing<LSNOHC>, "LS", 0.25f, -0.175f},
    {"InsertOffDelayNC", Drawing<OffDelayNC>, "TR", 0.25f, -0.175f},
    {"InsertOnDelayNC", Drawing<OnDelayNC>, "TR", 0.25f, -0.175f},
    {"InsertGPSwitchNC", Drawing<GPSwitchNC>, "SW", 0.25f, -0.1875f},
    {"InsertKeySwitch", Drawing<KeySwitch>, ""},
    {"InsertGPSwitch2Pos", Drawing<GPSwitch2Pos>, "SW", 0.25f, -0.25f},
    {"InsertNormallyOpenAux", Drawing<NormallyOpenAux>, ""},
    {"InsertNormallyClosedAux", Drawing<NormallyClosedAux>, ""},
    {"InsertCircuitBreaker", TurnedClockwise<CircuitBreaker90>, ""},
    {"InsertPBNCDown", Drawing<PBNCDown>, "PB", 0.25f, -0.2875f},
    {"InsertPBNODown", Drawing<PBNODown>, "PB", 0.25f, -0.4375f},
    {"InsertPSNC", Drawing<PSNC>, "PS", 0.25f, -0.175f},
    {"InsertPSNO", Drawing<PSNO>, "PS", 0.25f, -0.175f},
    {"InsertPSNCHO", Drawing<PSNCHO>, "PS", 0.25f, -0.25f},
    {"InsertPSNOHC", Drawing<PSNOHC>, "PS", 0.25f, -0.175f},
    {"InsertReference", Drawing<Reference>, "1", 0.125f, 0},
    {"InsertCircularReference", Drawing<CircularReference>, "1", 0.125f, 0},
    {"InsertReferencePoint", Drawing<ReferencePoint>, "1", 0.125f, 0},
    {"InsertSpecialCoil", SpecialCoilBlocks, "CR", 0.25f, 0},
    {"InsertCoilDiodeRight", CoilDiodeRightBlocks, "CR", 0.25f, 0},
    {"InsertCoilDiodeLeft", CoilDiodeLeftBlocks, "CR", 0.25f, 0},
    {"InsertSolenoid90", Solenoid90Blocks, "SOL", 0.25f, 0.25f},
    {"InsertSS2Pos", Drawing<SS2Pos>, "SS", 0.25f, -0.5f},
    {"InsertSS3Pos", Drawing<SS3Pos>, "SS", 0.25f, -0.5f},
    {"InsertThermalOverload90", TurnedClockwise<ThermalOverload>, "OL", 0.25f, 0.25f},
    {"InsertThermalSwitchNC", Drawing<ThermalSwitchNC>, "TS", 0.25f, -0.175f},
    {"InsertThermalSwitchNO", Drawing<ThermalSwitchNO>, "TS", 0.25f, -0.175f},
    {"InsertTransformer", TransformerBlocks, ""},
    {"InsertControlTransformer", Drawing<ControlTransformer>, ""},
    {"InsertSmallTransformerCoil", SmallTransformerCoilBlocks, ""},
    {"InsertIncadescentLamp", Drawing<IncadescentLamp>, ""},
    {"InsertSimpleLamp", Drawing<SimpleLamp>, ""},
};
// clang-format on

}  // namespace

std::span<const Symbol> modSymbolsNEMA() {
    return Symbols;
}

}  // namespace ladrix
