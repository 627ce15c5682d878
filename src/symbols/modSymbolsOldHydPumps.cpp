// Pumps and motors: circles of half an inch, the head at the port that the fluid leaves by (pump)
// or enters by (motor). A pump or motor with four drawings delivers right, left, up and down.
#include "symbols/modSymbolsOldHyd.h"
#include "symbols/modSymbolsOldHydParts.h"

namespace ladrix::fluidpower {

namespace {

using namespace art;

// clang-format off
constexpr std::array MotorWithM = {
    Circle(0.25f, 0, 0.25f),
    Line(0.1875f, -0.09375f, 0.1875f, 0.09375f), Line(0.1875f, -0.09375f, 0.25f, 0.03125f),
    Line(0.25f, 0.03125f, 0.3125f, -0.09375f), Line(0.3125f, -0.09375f, 0.3125f, 0.09375f)};

constexpr Primitive CompressorArt[] = {
    Circle(0.25f, 0, 0.25f),
    Line(0.375f, -0.0625f, 0.5f, 0), Line(0.5f, 0, 0.375f, 0.0625f),
    Line(0.375f, -0.0625f, 0.375f, 0.0625f)};
// clang-format on

constexpr std::array Housing = {Circle(0.25f, 0, 0.25f)};
constexpr auto OutAtRight = solidHead(0.375f, 0, 0.5f, 0);
constexpr auto OutAtLeft = solidHead(0.125f, 0, 0, 0);
// The corners of its base are on the circle.
constexpr auto InAtLeft = solidHead(0.00794f, 0, 0.13294f, 0);

constexpr auto PumpRight = joined(Housing, OutAtRight);
constexpr auto PumpBothWays = joined(Housing, OutAtLeft, OutAtRight);
constexpr auto VariablePump = joined(PumpRight, flowArrow(0, 0.25f, 0.5f, -0.25f));
constexpr auto MotorRight = joined(Housing, InAtLeft);

// A pump that delivers upwards, its outlet at (0, 0) and its suction half an inch below.
constexpr auto PumpUp = joined(std::array{Circle(0, 0.25f, 0.25f)}, solidHead(0, 0.125f, 0, 0));

// The shaft between two circles whose facing points are (0, 0) and (0.25, 0), and the upright one.
constexpr std::array ShaftAcross = {Line(-0.00196f, -0.03125f, 0.25196f, -0.03125f),
                                    Line(-0.00196f, 0.03125f, 0.25196f, 0.03125f)};
constexpr std::array ShaftDown = {Line(-0.03125f, -0.00196f, -0.03125f, 0.25196f),
                                  Line(0.03125f, -0.00196f, 0.03125f, 0.25196f)};

constexpr auto PumpThenMotor =
    joined(PumpUp, moved(ShaftAcross, 0.25f, 0.25f), moved(MotorWithM, 0.5f, 0.25f));
constexpr auto MotorThenPump =
    joined(MotorWithM, moved(ShaftAcross, 0.5f, 0), moved(PumpUp, 1, -0.25f));
constexpr auto MotorOverPump =
    joined(MotorWithM, moved(ShaftDown, 0.25f, 0.25f), moved(PumpRight, 0, 0.75f));

}  // namespace

// ISO 1219-1: electric motor.
constexpr Block ElectricMotor[] = {{0, MotorWithM}};

// ISO 1219-1: compressor.
constexpr Block Compressor[] = {{0, CompressorArt}};

// ISO 1219-1: fixed displacement pump, one direction of flow.
constexpr Block HydPump[] = {{0, PumpRight},
                             {1, PumpRight, Turn::MirrorLeftRight, 0.5f, 0},
                             {2, PumpRight, Turn::CounterClockwise, 0, 0.5f},
                             {3, PumpRight, Turn::Clockwise}};

// ISO 1219-1: fixed displacement pump, two directions of flow.
constexpr Block BidirectionalPump[] = {{0, PumpBothWays}, {1, PumpBothWays, Turn::Clockwise}};

// ISO 1219-1: variable displacement pump.
constexpr Block VarDispPump[] = {{0, VariablePump}};

// ISO 1219-1: fixed displacement motor, one direction of flow.
constexpr Block HydMotor[] = {{0, MotorRight},
                              {1, MotorRight, Turn::MirrorLeftRight, 0.5f, 0},
                              {2, MotorRight, Turn::CounterClockwise, 0, 0.5f},
                              {3, MotorRight, Turn::Clockwise}};

// ISO 1219-1: pump driven by an electric motor. The letter stays upright, so the second drawing of
// the set is not a turn of the first; the motor, where the label is, has one place in both.
constexpr Block HydPumpAndMotor[] = {{0, PumpThenMotor}};
constexpr Block ElecMotorAndHydPump[] = {{0, MotorThenPump}, {1, MotorOverPump}};

}  // namespace ladrix::fluidpower
