// Envelopes and valves. An envelope's corner is its insertion point. A complete valve's is the end
// of its first port line (A, or the inlet), an eighth of an inch off the envelope, so that all its
// ports fall on one quarter-inch grid.
#include "symbols/modSymbolsOldHyd.h"
#include "symbols/modSymbolsOldHydParts.h"

namespace ladrix::fluidpower {

namespace {

using namespace art;

constexpr std::array Square = {Box(0, 0, 0.5f, 0.5f)};
constexpr std::array TwoSquares = {Box(0, 0, 1, 0.5f), Line(0.5f, 0, 0.5f, 0.5f)};
constexpr std::array ThreeSquares = {Box(0, 0, 1.5f, 0.5f), Line(0.5f, 0, 0.5f, 0.5f),
                                     Line(1, 0, 1, 0.5f)};

constexpr std::array<Primitive, 2> blockedAbove(Single a) {
    return {Line(a, 0, a, 0.1875f), Line(a - 0.0625f, 0.1875f, a + 0.0625f, 0.1875f)};
}
constexpr std::array<Primitive, 2> blockedBelow(Single a) {
    return {Line(a, 0.5f, a, 0.3125f), Line(a - 0.0625f, 0.3125f, a + 0.0625f, 0.3125f)};
}

// The centres of a four-way valve, in the square (0, 0)-(0.5, 0.5).
constexpr auto ClosedCenter =
    joined(blockedAbove(0.125f), blockedAbove(0.375f), blockedBelow(0.125f), blockedBelow(0.375f));
constexpr auto TandemCenter =
    joined(blockedAbove(0.125f), blockedAbove(0.375f),
           std::array{Line(0.125f, 0.5f, 0.125f, 0.3125f), Line(0.125f, 0.3125f, 0.375f, 0.3125f),
                      Line(0.375f, 0.3125f, 0.375f, 0.5f)});
constexpr auto FloatCenter =
    joined(std::array{Line(0.125f, 0, 0.125f, 0.1875f), Line(0.125f, 0.1875f, 0.375f, 0.1875f),
                      Line(0.375f, 0, 0.375f, 0.5f)},
           blockedBelow(0.125f));

constexpr auto EnvelopeStraight = joined(Square, StraightPaths);
constexpr auto EnvelopeCrossed = joined(Square, CrossedPaths);
constexpr auto EnvelopeTandem = joined(Square, TandemCenter);
constexpr auto EnvelopeFloat = joined(Square, FloatCenter);

// clang-format off
constexpr Primitive TwoWayBlocked[] = {
    Line(0, 0, 0, 0.1875f), Line(0, 0.3125f, 0, 0.5f), Line(-0.0625f, 0.3125f, 0.0625f, 0.3125f),
    Line(-0.0625f, 0.1875f, 0.0625f, 0.1875f), Box(-0.25f, 0, 0.25f, 0.5f)};
// clang-format on
constexpr auto TwoWayPassing =
    joined(std::array{Box(-0.25f, 0, 0.25f, 0.5f)}, flowArrow(0, 0.5f, 0, 0));

// The positions of a three-way valve: A above, P below it, T beside P.
constexpr auto PressureToA = joined(flowArrow(0.125f, 0.5f, 0.125f, 0), blockedBelow(0.375f));
constexpr auto AToTank = joined(flowArrow(0.125f, 0, 0.375f, 0.5f), blockedBelow(0.125f));

constexpr std::array ThreePortLines = {Line(0.125f, -0.125f, 0.125f, 0),
                                       Line(0.125f, 0.5f, 0.125f, 0.625f),
                                       Line(0.375f, 0.5f, 0.375f, 0.625f)};
constexpr auto FourPortLines = joined(ThreePortLines, std::array{Line(0.375f, -0.125f, 0.375f, 0)});

// Two or three positions; the square at (0, 0)-(0.5, 0.5) is the one at rest and bears the lines.
template <std::size_t N, std::size_t M, std::size_t L>
constexpr auto twoPositions(const std::array<Primitive, N>& left,
                            const std::array<Primitive, M>& rest,
                            const std::array<Primitive, L>& portLines) {
    return joined(moved(TwoSquares, -0.5f, 0), moved(left, -0.5f, 0), rest, portLines);
}
template <std::size_t N>
constexpr auto threePositions(const std::array<Primitive, N>& center) {
    return joined(moved(ThreeSquares, -0.5f, 0), moved(StraightPaths, -0.5f, 0), center,
                  moved(CrossedPaths, 0.5f, 0), FourPortLines);
}

// From a body drawn about its resting square to the end of port A.
template <std::size_t N>
constexpr auto atPortA(const std::array<Primitive, N>& body) {
    return moved(body, -0.125f, 0.125f);
}

constexpr auto SolenoidAtRight = mirroredLeftRight(SolenoidAtLeft);
constexpr auto SpringAtRight = mirroredLeftRight(SpringAtLeft);

constexpr auto ThreeWayOpen = atPortA(twoPositions(AToTank, PressureToA, ThreePortLines));
constexpr auto ThreeWayClosed = atPortA(twoPositions(PressureToA, AToTank, ThreePortLines));

constexpr auto TwoPosBody = twoPositions(StraightPaths, CrossedPaths, FourPortLines);
constexpr auto TwoPosSpringReturn = atPortA(
    joined(TwoPosBody, moved(SolenoidAtLeft, -0.5f, 0.375f), moved(SpringAtRight, 0.5f, 0.25f)));
constexpr auto TwoPosTwoSolenoids = atPortA(
    joined(TwoPosBody, moved(SolenoidAtLeft, -0.5f, 0.375f), moved(SolenoidAtRight, 0.5f, 0.375f)));

// Spring centred: at either end a spring over a solenoid, each half as high as the envelope.
constexpr auto CenteringEnds =
    joined(moved(SolenoidAtLeft, -0.5f, 0.5f), moved(SpringAtLeft, -0.5f, 0.125f),
           moved(SolenoidAtRight, 1, 0.5f), moved(SpringAtRight, 1, 0.125f));
constexpr auto ThreePosClosed = atPortA(joined(threePositions(ClosedCenter), CenteringEnds));
constexpr auto ThreePosTandem = atPortA(joined(threePositions(TandemCenter), CenteringEnds));
constexpr auto ThreePosFloat = atPortA(joined(threePositions(FloatCenter), CenteringEnds));

// Pressure valves, inlet above at (0, 0), outlet below. The spring is at the right, and the pilot
// line leaves the inlet line 1/16 inch before the envelope, whose top is at `top`.
constexpr auto pressureValve(Single top, Single arrowAt) {
    const Single tap = top - 0.0625f, middle = top + 0.25f, bottom = top + 0.5f;
    return joined(std::array{Line(0, 0, 0, top), Line(0, bottom, 0, bottom + top),
                             Box(-0.25f, top, 0.25f, bottom)},
                  flowArrow(arrowAt, top, arrowAt, bottom), dashed<4>(0, tap, -0.4375f, tap),
                  dashed<3>(-0.4375f, tap, -0.4375f, middle),
                  dashed<2>(-0.4375f, middle, -0.25f, middle), moved(SpringAtRight, 0.25f, middle));
}
constexpr auto ReliefClosed = pressureValve(0.125f, -0.125f);
constexpr auto ReliefOpen = pressureValve(0.125f, 0);
constexpr auto Relief = pressureValve(0.25f, -0.125f);
constexpr auto ReliefAdjustable = joined(Relief, flowArrow(0.28125f, 0.65625f, 0.59375f, 0.34375f));

// The ball touches both sides of a right-angled seat.
constexpr Primitive BallOnSeat[] = {Line(0, 0, 0.13951f, 0), Line(0.13951f, 0, 0.26451f, -0.125f),
                                    Line(0.13951f, 0, 0.26451f, 0.125f),
                                    Circle(0.25f, 0, 0.078125f), Line(0.328125f, 0, 0.5f, 0)};

}  // namespace

// ISO 1219-1: one, two and three valve positions.
constexpr Block SingleEnvelope[] = {{AnyOrientation, Square}};
constexpr Block DoubleEnvelope[] = {{0, TwoSquares}, {1, TwoSquares, Turn::Clockwise, 0.5f, 0}};
constexpr Block TripleEnvelope[] = {{0, ThreeSquares}, {1, ThreeSquares, Turn::Clockwise, 0.5f, 0}};

// ISO 1219-1: a position of a four-way valve: straight paths, tandem centre (pressure to tank),
// float centre (both outlets to tank), crossed paths.
constexpr Block Env4PL[] = {{0, EnvelopeStraight}, {1, EnvelopeStraight, Turn::Clockwise, 0.5f, 0}};
constexpr Block Env4PC[] = {{0, EnvelopeTandem},
                            {1, EnvelopeTandem, Turn::Clockwise, 0.5f, 0},
                            {2, EnvelopeTandem, Turn::Half, 0.5f, 0.5f},
                            {3, EnvelopeTandem, Turn::CounterClockwise, 0, 0.5f}};
constexpr Block Env4PC2[] = {{0, EnvelopeFloat},
                             {1, EnvelopeFloat, Turn::Clockwise, 0.5f, 0},
                             {2, EnvelopeFloat, Turn::Half, 0.5f, 0.5f},
                             {3, EnvelopeFloat, Turn::CounterClockwise, 0, 0.5f}};
constexpr Block Env4PR[] = {{0, EnvelopeCrossed}, {1, EnvelopeCrossed, Turn::Clockwise, 0.5f, 0}};

// ISO 1219-1: a position of a two-way valve, named as a switch is: open blocks, closed passes. The
// arrow of the passing one points up, right, down and left.
constexpr Block TwoWayValveOpen[] = {{0, TwoWayBlocked},
                                     {1, TwoWayBlocked, Turn::Clockwise, 0.5f, 0}};
constexpr Block TwoWayValveClosed[] = {{0, TwoWayPassing},
                                       {1, TwoWayPassing, Turn::Clockwise, 0.5f, 0},
                                       {2, TwoWayPassing, Turn::MirrorTopBottom, 0, 0.5f},
                                       {3, TwoWayPassing, Turn::CounterClockwise}};

// ISO 1219-1: 3/2 valve, normally open and normally closed. The second drawing has its resting
// position at the other end.
constexpr Block ThreeWayHorz[] = {{0, ThreeWayOpen}, {1, ThreeWayOpen, Turn::MirrorLeftRight}};
constexpr Block ThreeWayHorzNC[] = {{0, ThreeWayClosed},
                                    {1, ThreeWayClosed, Turn::MirrorLeftRight}};
constexpr Block ThreeWayVert[] = {{0, ThreeWayOpen, Turn::Clockwise},
                                  {1, ThreeWayOpen, Turn::CounterClockwise}};
constexpr Block ThreeWayVertNC[] = {{0, ThreeWayClosed, Turn::Clockwise},
                                    {1, ThreeWayClosed, Turn::CounterClockwise}};

// ISO 1219-1: 4/2 valve, solenoid operated, spring return.
constexpr Block TwoPosFourWay[] = {{AnyOrientation, TwoPosSpringReturn}};
constexpr Block TwoPosFourWayVert[] = {{AnyOrientation, TwoPosSpringReturn, Turn::Clockwise}};

// ISO 1219-1: 4/2 valve, a solenoid at either end.
constexpr Block FourWayTwoPosSolVert[] = {{AnyOrientation, TwoPosTwoSolenoids, Turn::Clockwise}};

// ISO 1219-1: 4/3 valve, solenoid operated, spring centred: closed, tandem and float centre.
constexpr Block ThreePosFourWay[] = {{AnyOrientation, ThreePosClosed}};
constexpr Block ThreePosFourWayVert[] = {{AnyOrientation, ThreePosClosed, Turn::Clockwise}};
constexpr Block FourWayThreePosSolVert1[] = {{AnyOrientation, ThreePosTandem, Turn::Clockwise}};
constexpr Block FourWayThreePosSolVert2[] = {{AnyOrientation, ThreePosFloat, Turn::Clockwise}};

// ISO 1219-1: directly operated pressure valve, normally closed and normally open. It passes
// downwards, to the right, upwards and to the left.
constexpr Block ReliefValveClosed[] = {{0, ReliefClosed},
                                       {1, ReliefClosed, Turn::CounterClockwise},
                                       {2, ReliefClosed, Turn::MirrorTopBottom, 0, 0.75f},
                                       {3, ReliefClosed, Turn::Clockwise, 0.75f, 0}};
constexpr Block ReliefValveOpen[] = {{0, ReliefOpen},
                                     {1, ReliefOpen, Turn::CounterClockwise},
                                     {2, ReliefOpen, Turn::MirrorTopBottom, 0, 0.75f},
                                     {3, ReliefOpen, Turn::Clockwise, 0.75f, 0}};

// ISO 1219-1: pressure relief valve, fixed and adjustable.
constexpr Block PressRelief[] = {{AnyOrientation, Relief}};
constexpr Block PressReliefAdj[] = {{AnyOrientation, ReliefAdjustable}};

// ISO 1219-1: check valve, no spring. Free flow to the right, left, up and down.
constexpr Block CheckValve[] = {{0, BallOnSeat},
                                {1, BallOnSeat, Turn::MirrorLeftRight, 0.5f, 0},
                                {2, BallOnSeat, Turn::CounterClockwise, 0, 0.5f},
                                {3, BallOnSeat, Turn::Clockwise}};

}  // namespace ladrix::fluidpower
