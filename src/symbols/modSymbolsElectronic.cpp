// The second generation of the electronic symbols. Solid triangles and arrow heads are hatched by
// parallel lines that read as solid at scale 1. Except for the Vert, V and 90 names, which hang
// down from their insertion point, a drawing turned upright rises from it.
#include <array>
#include <cstddef>

#include "symbols/Libraries.h"

namespace ladrix {

namespace {

using namespace art;

template <std::size_t... N>
constexpr auto joined(const std::array<Primitive, N>&... parts) {
    std::array<Primitive, (N + ...)> result{};
    std::size_t next = 0;
    const auto append = [&](const auto& part) {
        for (const Primitive& p : part)
            result[next++] = p;
    };
    (append(parts), ...);
    return result;
}

// (a, b) to (b, a): the vertical twin whose left end becomes its top. No arcs.
template <std::size_t N>
constexpr std::array<Primitive, N> transposed(std::array<Primitive, N> parts) {
    for (Primitive& p : parts)
        p = {p.kind, p.b1, p.a1, p.b2, p.a2, p.r};
    return parts;
}

struct Point {
    Single a, b;
};

// A triangle by the middle of its base, half of its base as a vector, and its tip: two sides, then
// lines parallel to the base, evenly spaced between it and the tip. The base itself is left to the
// caller, since it often lies on a bar.
template <std::size_t Count>
constexpr std::array<Primitive, Count> hatchedTriangle(Point base, Point half, Point tip) {
    std::array<Primitive, Count> result{
        Line(base.a - half.a, base.b - half.b, tip.a, tip.b),
        Line(base.a + half.a, base.b + half.b, tip.a, tip.b),
    };
    for (std::size_t i = 2; i < Count; ++i) {
        const Single t = static_cast<Single>(i - 1) / static_cast<Single>(Count - 1);
        const Point middle{base.a + (tip.a - base.a) * t, base.b + (tip.b - base.b) * t};
        const Point reach{half.a * (1 - t), half.b * (1 - t)};
        result[i] =
            Line(middle.a - reach.a, middle.b - reach.b, middle.a + reach.a, middle.b + reach.b);
    }
    return result;
}

template <std::size_t Count>
constexpr std::array<Primitive, Count> arrowHead(Point base, Point half, Point tip) {
    return joined(
        std::array{Line(base.a - half.a, base.b - half.b, base.a + half.a, base.b + half.b)},
        hatchedTriangle<Count - 1>(base, half, tip));
}

// clang-format off

// Resistors. IEEE 315 2.1: resistor, in the zigzag and in the box form.

constexpr std::array ResistorHorz{
    Line(0.1406f, -0.0469f, 0.1719f, 0.0469f), Line(0.1719f, 0.0469f, 0.2031f, -0.0469f),
    Line(0.2031f, -0.0469f, 0.2344f, 0.0469f), Line(0.2344f, 0.0469f, 0.2656f, -0.0469f),
    Line(0.2656f, -0.0469f, 0.2969f, 0.0469f), Line(0.2969f, 0.0469f, 0.3281f, -0.0469f),
    Line(0.3281f, -0.0469f, 0.3594f, 0.0469f), Line(0.3594f, 0.0469f, 0.375f, 0),
    Line(0.375f, 0, 0.5f, 0), Line(0.1406f, -0.0469f, 0.125f, 0), Line(0, 0, 0.125f, 0),
};
constexpr Block ResistorHorzBlocks[] = {{AnyOrientation, ResistorHorz}};
constexpr Block ResistorVertBlocks[] = {{AnyOrientation, ResistorHorz, Turn::Clockwise}};
constexpr Block Resistor2Blocks[] = {
    {0, ResistorHorz},
    {1, ResistorHorz, Turn::Clockwise, 0, -0.5f},
};

constexpr std::array EuroResistor{
    Line(0, 0, 0.0625f, 0), Line(0.4375f, 0, 0.5f, 0),
    Box(0.0625f, -0.0625f, 0.4375f, 0.0625f),
};
constexpr Block EuroResistorBlocks[] = {
    {0, EuroResistor},
    {1, EuroResistor, Turn::Clockwise, 0, -0.5f},
};

// IEEE 315 2.1: resistor with moving contact.
constexpr std::array Wiper{
    Line(0.25f, -0.25f, 0.25f, -0.0625f), Line(0.25f, -0.0625f, 0.2812f, -0.125f),
    Line(0.25f, -0.0625f, 0.2188f, -0.125f),
};
constexpr auto Potentiometer = joined(ResistorHorz, Wiper);
constexpr Block PotentiometerBlocks[] = {
    {0, Potentiometer},
    {1, Potentiometer, Turn::Clockwise, 0, -0.5f},
    {2, Potentiometer, Turn::Half, 0.5f, 0},
    {3, Potentiometer, Turn::CounterClockwise},
};
constexpr auto EuroPot = joined(EuroResistor, Wiper);
constexpr Block EuroPotBlocks[] = {
    {0, EuroPot},
    {1, EuroPot, Turn::Clockwise, 0, -0.5f},
    {2, EuroPot, Turn::Half, 0.5f, 0},
    {3, EuroPot, Turn::CounterClockwise},
};

// IEEE 315 2.1: resistor with preset adjustment.
constexpr std::array Preset{
    Line(0.1562f, 0.125f, 0.3438f, -0.125f), Line(0.3126f, -0.1484f, 0.375f, -0.1016f),
};
constexpr auto Trimmer = joined(ResistorHorz, Preset);
constexpr Block TrimmerBlocks[] = {{0, Trimmer}, {1, Trimmer, Turn::Clockwise, 0, -0.5f}};
constexpr auto EuroTrimmer = joined(EuroResistor, Preset);
constexpr Block EuroTrimmerBlocks[] = {
    {0, EuroTrimmer},
    {1, EuroTrimmer, Turn::Clockwise, 0, -0.5f},
};

// IEEE 315 2.1: tapped resistor, the tap at the middle of the element.
constexpr auto TappedResistor = joined(ResistorHorz, std::array{Line(0.25f, -0.25f, 0.25f, 0)});
constexpr Block TappedResistorBlocks[] = {
    {0, TappedResistor},
    {1, TappedResistor, Turn::Clockwise, 0, -0.5f},
};
constexpr auto EuroTappedResistor =
    joined(EuroResistor, std::array{Line(0.25f, -0.25f, 0.25f, -0.0625f)});
constexpr Block EuroTappedResistorBlocks[] = {
    {0, EuroTappedResistor},
    {1, EuroTappedResistor, Turn::Clockwise, 0, -0.5f},
};

// IEEE 315 2.10: piezoelectric crystal unit.
constexpr Primitive Crystal2[] = {
    Line(0, 0, 0.1562f, 0), Line(0.1562f, -0.125f, 0.1562f, 0.125f),
    Line(0.3438f, -0.125f, 0.3438f, 0.125f), Line(0.3438f, 0, 0.5f, 0),
    Box(0.2031f, -0.1875f, 0.2969f, 0.1875f),
};
constexpr Block Crystal2Blocks[] = {{0, Crystal2}, {1, Crystal2, Turn::Clockwise, 0, -0.5f}};

// IEEE 315 3.9.1: earth ground.
constexpr Primitive Ground1[] = {
    Line(-0.0312f, 0.25f, 0.0312f, 0.25f), Line(-0.0625f, 0.1875f, 0.0625f, 0.1875f),
    Line(-0.0938f, 0.125f, 0.0938f, 0.125f), Line(0, 0, 0, 0.125f),
};
constexpr Block Ground1Blocks[] = {{AnyOrientation, Ground1}};

// IEEE 315 3.9.2: chassis connection.
constexpr Primitive Ground2[] = {
    Line(0, 0, 0, 0.125f), Line(-0.125f, 0.125f, 0.125f, 0.125f),
    Line(-0.125f, 0.125f, -0.1875f, 0.25f), Line(0, 0.125f, -0.0625f, 0.25f),
    Line(0.125f, 0.125f, 0.0625f, 0.25f),
};
constexpr Block Ground2Blocks[] = {{AnyOrientation, Ground2}};

// IEEE 315: loudspeaker.
constexpr Primitive Speaker[] = {
    Line(0.125f, -0.0625f, 0.3125f, -0.0625f), Line(0.3125f, -0.0625f, 0.3125f, 0.3125f),
    Line(0.125f, 0.3125f, 0.3125f, 0.3125f), Line(0.125f, -0.0625f, 0.125f, 0.3125f),
    Line(0, 0, 0.125f, 0), Line(0, 0.25f, 0.125f, 0.25f), Line(0.5f, -0.25f, 0.5f, 0.5f),
    Line(0.3125f, -0.0625f, 0.5f, -0.25f), Line(0.3125f, 0.3125f, 0.5f, 0.5f),
};
constexpr Block SpeakerBlocks[] = {
    {0, Speaker},
    {1, Speaker, Turn::MirrorLeftRight},
    {2, Speaker, Turn::CounterClockwise},
    {3, Speaker, Turn::Clockwise, 0.25f, 0},
};

// IEEE 315 5: engaged contacts of a connector, male into female.
constexpr Primitive Connector1[] = {
    Line(0.1719f, 0, 0.25f, 0), Line(0, 0, 0.125f, 0), Line(0.125f, 0, 0.0938f, 0.0312f),
    Line(0.1719f, 0, 0.1094f, 0.0625f), Line(0.1719f, 0, 0.1094f, -0.0625f),
    Line(0.125f, 0, 0.0938f, -0.0312f),
};
constexpr Block Connector1Blocks[] = {
    {0, Connector1},
    {1, Connector1, Turn::MirrorLeftRight, 0.25f, 0},
    {2, Connector1, Turn::CounterClockwise},
    {3, Connector1, Turn::Clockwise, 0, -0.25f},
};
constexpr Block Connector1_90Blocks[] = {
    {0, Connector1, Turn::Clockwise},
    {1, Connector1, Turn::CounterClockwise, 0, 0.25f},
};

// IEEE 315: solenoid, operating coil in the one-wave form.
constexpr Primitive ESolenoid[] = {
    Line(0, 0, 0.125f, 0), Line(0.125f, 0, 0.1875f, -0.125f),
    Line(0.1875f, -0.125f, 0.3125f, 0.125f), Line(0.3125f, 0.125f, 0.375f, 0),
    Line(0.375f, 0, 0.5f, 0),
};
constexpr Block ESolenoidBlocks[] = {{0, ESolenoid}};
constexpr Block ESolenoid90Blocks[] = {{0, ESolenoid, Turn::Clockwise}};

// IEEE 315 2.5: battery, one cell and two; the plus sign stands at the long line.
constexpr std::array SingleCell{
    Line(0, 0, 0.2188f, 0), Line(0.2188f, -0.125f, 0.2188f, 0.125f),
    Line(0.2812f, -0.0625f, 0.2812f, 0.0625f), Line(0.2812f, 0, 0.5f, 0),
    Line(0.125f, -0.0938f, 0.1875f, -0.0938f), Line(0.1562f, -0.125f, 0.1562f, -0.0625f),
};
constexpr Block SingleCellHorzBlocks[] = {
    {0, SingleCell},
    {1, SingleCell, Turn::MirrorLeftRight, 0.5f, 0},
    {2, SingleCell, Turn::MirrorTopBottom},
    {3, SingleCell, Turn::Half, 0.5f, 0},
};
constexpr auto SingleCellVert = transposed(SingleCell);
constexpr Block SingleCellVertBlocks[] = {
    {0, SingleCellVert},
    {1, SingleCellVert, Turn::MirrorTopBottom, 0, 0.5f},
    {2, SingleCellVert, Turn::MirrorLeftRight},
    {3, SingleCellVert, Turn::Half, 0, 0.5f},
};

constexpr std::array DoubleCell{
    Line(0, 0, 0.1562f, 0), Line(0.1562f, -0.125f, 0.1562f, 0.125f),
    Line(0.2188f, -0.0625f, 0.2188f, 0.0625f), Line(0.2812f, -0.125f, 0.2812f, 0.125f),
    Line(0.3438f, -0.0625f, 0.3438f, 0.0625f), Line(0.3438f, 0, 0.5f, 0),
    Line(0.0625f, -0.0938f, 0.125f, -0.0938f), Line(0.0938f, -0.125f, 0.0938f, -0.0625f),
};
constexpr Block DoubleCellHorzBlocks[] = {
    {0, DoubleCell},
    {1, DoubleCell, Turn::MirrorLeftRight, 0.5f, 0},
    {2, DoubleCell, Turn::MirrorTopBottom},
    {3, DoubleCell, Turn::Half, 0.5f, 0},
};
constexpr auto DoubleCellVert = transposed(DoubleCell);
constexpr Block DoubleCellVertBlocks[] = {{AnyOrientation, DoubleCellVert}};

// Diodes and thyristors stand between 0.1562 and 0.3438; a triangle points to its cathode bar.

constexpr auto SolidDiode = joined(
    std::array{
        Line(0, 0, 0.1562f, 0), Line(0.3438f, 0, 0.5f, 0),
        Line(0.1562f, -0.1094f, 0.1562f, 0.1094f), Line(0.3438f, -0.1094f, 0.3438f, 0.1094f),
    },
    hatchedTriangle<25>({0.1562f, 0}, {0, 0.1094f}, {0.3438f, 0}));

// IEEE 315 8.5.4: light-emitting diode.
constexpr auto LED = joined(
    SolidDiode,
    std::array{Line(0.1875f, -0.1406f, 0.2578f, -0.2109f)},
    arrowHead<9>({0.2578f, -0.2109f}, {0.0195f, 0.0195f}, {0.2969f, -0.25f}),
    std::array{Line(0.2969f, -0.1406f, 0.3672f, -0.2109f)},
    arrowHead<9>({0.3672f, -0.2109f}, {0.0195f, 0.0195f}, {0.4062f, -0.25f}));
constexpr Block LEDBlocks[] = {
    {0, LED},
    {1, LED, Turn::MirrorLeftRight, 0.5f, 0},
    {2, LED, Turn::CounterClockwise},
    {3, LED, Turn::Clockwise, 0, -0.5f},
};

// IEEE 315 8.5.4: photodiode.
constexpr auto PhotoDiode = joined(
    SolidDiode,
    std::array{Line(0.2969f, -0.25f, 0.2266f, -0.1797f)},
    arrowHead<9>({0.2266f, -0.1797f}, {0.0195f, 0.0195f}, {0.1875f, -0.1406f}),
    std::array{Line(0.4062f, -0.25f, 0.3359f, -0.1797f)},
    arrowHead<9>({0.3359f, -0.1797f}, {0.0195f, 0.0195f}, {0.2969f, -0.1406f}));
constexpr Block PhotoDiodeBlocks[] = {
    {0, PhotoDiode},
    {1, PhotoDiode, Turn::MirrorLeftRight, 0.5f, 0},
    {2, PhotoDiode, Turn::CounterClockwise},
    {3, PhotoDiode, Turn::Clockwise, 0, -0.5f},
};

// IEEE 315 8.5.6: breakdown diode.
constexpr auto ZenerDiode = joined(
    SolidDiode,
    std::array{Line(0.3438f, -0.1094f, 0.3828f, -0.1484f),
               Line(0.3438f, 0.1094f, 0.3047f, 0.1484f)});
constexpr Block ZenerDiodeBlocks[] = {
    {0, ZenerDiode},
    {1, ZenerDiode, Turn::MirrorLeftRight, 0.5f, 0},
    {2, ZenerDiode, Turn::CounterClockwise},
    {3, ZenerDiode, Turn::Clockwise, 0, -0.5f},
};

// IEEE 315: reverse-blocking triode thyristor, the gate at the cathode.
constexpr auto SCRH = joined(SolidDiode, std::array{Line(0.3438f, 0.1094f, 0.5f, 0.25f)});
constexpr Block SCRHBlocks[] = {
    {0, SCRH},
    {1, SCRH, Turn::MirrorLeftRight, 0.5f, 0},
    {2, SCRH, Turn::MirrorTopBottom},
    {3, SCRH, Turn::Half, 0.5f, 0},
};
constexpr auto SCRV = transposed(SCRH);
constexpr Block SCRVBlocks[] = {
    {0, SCRV},
    {1, SCRV, Turn::MirrorTopBottom, 0, 0.5f},
    {2, SCRV, Turn::MirrorLeftRight},
    {3, SCRV, Turn::Half, 0, 0.5f},
};

// IEEE 315: bidirectional diode thyristor.
constexpr auto Diac2 = joined(
    std::array{
        Line(0, 0, 0.1562f, 0), Line(0.3438f, 0, 0.5f, 0),
        Line(0.1562f, -0.1875f, 0.1562f, 0.1875f), Line(0.3438f, -0.1875f, 0.3438f, 0.1875f),
    },
    hatchedTriangle<25>({0.1562f, -0.0938f}, {0, 0.0938f}, {0.3438f, -0.0938f}),
    hatchedTriangle<25>({0.3438f, 0.0938f}, {0, 0.0938f}, {0.1562f, 0.0938f}));
constexpr Block Diac2Blocks[] = {{0, Diac2}, {1, Diac2, Turn::Clockwise, 0, -0.5f}};

// IEEE 315: bidirectional triode thyristor, the gate at main terminal 1.
constexpr auto TriacH = joined(
    Diac2,
    std::array{Line(0.3438f, 0.1875f, 0.4062f, 0.25f), Line(0.4062f, 0.25f, 0.5f, 0.25f)});
constexpr Block TriacHBlocks[] = {
    {0, TriacH},
    {1, TriacH, Turn::MirrorLeftRight, 0.5f, 0},
    {2, TriacH, Turn::MirrorTopBottom},
    {3, TriacH, Turn::Half, 0.5f, 0},
};
constexpr auto TriacV = transposed(TriacH);
constexpr Block TriacVBlocks[] = {
    {0, TriacV},
    {1, TriacV, Turn::MirrorTopBottom, 0, 0.5f},
    {2, TriacV, Turn::MirrorLeftRight},
    {3, TriacV, Turn::Half, 0, 0.5f},
};

// Transistors: an envelope, the control electrode at the insertion point, the two others 0.25
// beside it. At orientation 0 the collector or drain is above, the emitter or source below.

constexpr std::array BipolarTransistor{
    Circle(0.2188f, 0, 0.1562f), Line(0, 0, 0.1562f, 0), Line(0.1562f, -0.0938f, 0.1562f, 0.0938f),
    Line(0.1562f, -0.0312f, 0.25f, -0.125f), Line(0.25f, -0.125f, 0.25f, -0.25f),
    Line(0.1562f, 0.0312f, 0.25f, 0.125f), Line(0.25f, 0.125f, 0.25f, 0.25f),
};

// IEEE 315 8.6.2: NPN transistor.
constexpr auto NPNTransistorH = joined(
    BipolarTransistor, arrowHead<19>({0.1875f, 0.0625f}, {0.0234f, -0.0234f}, {0.2344f, 0.1094f}));
constexpr Block NPNTransistorHBlocks[] = {
    {0, NPNTransistorH},
    {1, NPNTransistorH, Turn::MirrorLeftRight},
    {2, NPNTransistorH, Turn::MirrorTopBottom},
    {3, NPNTransistorH, Turn::Half},
};
constexpr auto NPNTransistorV = transposed(NPNTransistorH);
constexpr Block NPNTransistorVBlocks[] = {
    {0, NPNTransistorV},
    {1, NPNTransistorV, Turn::MirrorTopBottom},
    {2, NPNTransistorV, Turn::MirrorLeftRight},
    {3, NPNTransistorV, Turn::Half},
};

// IEEE 315 8.6.1: PNP transistor.
constexpr auto PNPTransistorH = joined(
    BipolarTransistor, arrowHead<19>({0.2188f, 0.0938f}, {0.0234f, -0.0234f}, {0.1719f, 0.0469f}));
constexpr Block PNPTransistorHBlocks[] = {
    {0, PNPTransistorH},
    {1, PNPTransistorH, Turn::MirrorLeftRight},
    {2, PNPTransistorH, Turn::MirrorTopBottom},
    {3, PNPTransistorH, Turn::Half},
};
constexpr auto PNPTransistorV = transposed(PNPTransistorH);
constexpr Block PNPTransistorVBlocks[] = {
    {0, PNPTransistorV},
    {1, PNPTransistorV, Turn::MirrorTopBottom},
    {2, PNPTransistorV, Turn::MirrorLeftRight},
    {3, PNPTransistorV, Turn::Half},
};

constexpr std::array JunctionFET{
    Circle(0.2188f, 0, 0.1562f), Line(0, 0, 0.1562f, 0), Line(0.1562f, -0.0938f, 0.1562f, 0.0938f),
    Line(0.1562f, -0.0625f, 0.25f, -0.0625f), Line(0.25f, -0.0625f, 0.25f, -0.25f),
    Line(0.1562f, 0.0625f, 0.25f, 0.0625f), Line(0.25f, 0.0625f, 0.25f, 0.25f),
};

// IEEE 315 8.6.10: junction field-effect transistor, N-channel.
constexpr auto FETN =
    joined(JunctionFET, arrowHead<19>({0.0938f, 0}, {0, 0.0312f}, {0.1562f, 0}));
constexpr Block FETNBlocks[] = {
    {0, FETN},
    {1, FETN, Turn::MirrorLeftRight},
    {2, FETN, Turn::CounterClockwise},
    {3, FETN, Turn::Clockwise},
};

// IEEE 315 8.6.11: junction field-effect transistor, P-channel.
constexpr auto FETP =
    joined(JunctionFET, arrowHead<19>({0.1406f, 0}, {0, 0.0312f}, {0.0781f, 0}));
constexpr Block FETPBlocks[] = {
    {0, FETP},
    {1, FETP, Turn::MirrorLeftRight},
    {2, FETP, Turn::CounterClockwise},
    {3, FETP, Turn::Clockwise},
};

// The emitter at the insertion point, base 2 beside it, base 1 at the far end.
constexpr std::array UnijunctionTransistor{
    Circle(0.2188f, 0.25f, 0.1562f), Line(0, 0, 0, 0.0938f), Line(0, 0.0938f, 0.1562f, 0.25f),
    Line(0.1562f, 0.1562f, 0.1562f, 0.3438f),
    Line(0.1562f, 0.1875f, 0.25f, 0.1875f), Line(0.25f, 0.1875f, 0.25f, 0),
    Line(0.1562f, 0.3125f, 0.25f, 0.3125f), Line(0.25f, 0.3125f, 0.25f, 0.5f),
};

// IEEE 315 8.6.8: unijunction transistor with N-type base.
constexpr auto UJTN = joined(
    UnijunctionTransistor,
    arrowHead<19>({0.1094f, 0.2031f}, {0.0234f, -0.0234f}, {0.1562f, 0.25f}));
constexpr Block UJTNBlocks[] = {
    {0, UJTN},
    {1, UJTN, Turn::MirrorLeftRight},
    {2, UJTN, Turn::CounterClockwise},
    {3, UJTN, Turn::Clockwise},
};

// IEEE 315 8.6.9: unijunction transistor with P-type base.
constexpr auto UJTP = joined(
    UnijunctionTransistor,
    arrowHead<19>({0.1406f, 0.2344f}, {0.0234f, -0.0234f}, {0.0938f, 0.1875f}));
constexpr Block UJTPBlocks[] = {
    {0, UJTP},
    {1, UJTP, Turn::MirrorLeftRight},
    {2, UJTP, Turn::CounterClockwise},
    {3, UJTP, Turn::Clockwise},
};

constexpr Symbol Symbols[] = {
    {"InsertResistorHorz", ResistorHorzBlocks, ""},
    {"InsertPotentiometer", PotentiometerBlocks, ""},
    {"InsertEuroResistor", EuroResistorBlocks, ""},
    {"InsertCrystal2", Crystal2Blocks, ""},
    {"InsertGround1", Ground1Blocks, ""},
    {"InsertGround2", Ground2Blocks, ""},
    {"InsertSpeaker", SpeakerBlocks, ""},
    {"InsertConnector1", Connector1Blocks, ""},
    {"InsertESolenoid", ESolenoidBlocks, ""},
    {"InsertNPNTransistorH", NPNTransistorHBlocks, ""},
    {"InsertNPNTransistorV", NPNTransistorVBlocks, ""},
    {"InsertPNPTransistorH", PNPTransistorHBlocks, ""},
    {"InsertPNPTransistorV", PNPTransistorVBlocks, ""},
    {"InsertSCRH", SCRHBlocks, ""},
    {"InsertSCRV", SCRVBlocks, ""},
    {"InsertUJTN", UJTNBlocks, ""},
    {"InsertUJTP", UJTPBlocks, ""},
    {"InsertFETP", FETPBlocks, ""},
    {"InsertFETN", FETNBlocks, ""},
    {"InsertResistorVert", ResistorVertBlocks, ""},
    {"InsertPhotoDiode", PhotoDiodeBlocks, ""},
    {"InsertZenerDiode", ZenerDiodeBlocks, ""},
    {"InsertLED", LEDBlocks, ""},
    {"InsertDiac2", Diac2Blocks, ""},
    {"InsertTriacH", TriacHBlocks, ""},
    {"InsertTriacV", TriacVBlocks, ""},
    {"InsertResistor2", Resistor2Blocks, ""},
    {"InsertTrimmer", TrimmerBlocks, ""},
    {"InsertTappedResistor", TappedResistorBlocks, ""},
    {"InsertEuroPot", EuroPotBlocks, ""},
    {"InsertEuroTrimmer", EuroTrimmerBlocks, ""},
    {"InsertEuroTappedResistor", EuroTappedResistorBlocks, ""},
    {"InsertSingleCellHorz", SingleCellHorzBlocks, ""},
    {"InsertSingleCellVert", SingleCellVertBlocks, ""},
    {"InsertDoubleCellHorz", DoubleCellHorzBlocks, ""},
    {"InsertDoubleCellVert", DoubleCellVertBlocks, ""},
    {"InsertConnector1_90", Connector1_90Blocks, ""},
    {"InsertESolenoid90", ESolenoid90Blocks, ""},
};

// clang-format on

}  // namespace

std::span<const Symbol> modSymbolsElectronic() {
    return Symbols;
}

}  // namespace ladrix
