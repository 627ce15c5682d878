// What stands in a line or at its end: restrictions, conditioners, storage and gauges.
#include "symbols/modSymbolsOldHyd.h"
#include "symbols/modSymbolsOldHydParts.h"

namespace ladrix::fluidpower {

namespace {

using namespace art;

// clang-format off
constexpr Primitive Restriction[] = {
    Arc(0, -0.28125f, 0.25f, 240, 300), Arc(0, 0.28125f, 0.25f, 60, 120)};

constexpr Primitive AdjustableRestriction[] = {
    Arc(0, 0.28125f, 0.25f, 60, 120), Arc(0, -0.28125f, 0.25f, 240, 300),
    Line(0.15625f, -0.15625f, -0.125f, 0.125f), Line(0.15625f, -0.15625f, 0.0625f, -0.125f),
    Line(0.15625f, -0.15625f, 0.14062f, -0.09375f)};
// The arrow points up to the right here too.
constexpr Primitive AdjustableRestrictionVert[] = {
    Arc(-0.28125f, 0, 0.25f, 330, 30), Arc(0.28125f, 0, 0.25f, 150, 210),
    AdjustableRestriction[2], AdjustableRestriction[3], AdjustableRestriction[4]};

constexpr Primitive Nozzle[] = {
    Line(0, -0.125f, 0.0625f, -0.125f), Line(0.0625f, -0.125f, 0.15625f, -0.03125f),
    Line(0.15625f, -0.03125f, 0.21875f, -0.03125f), Line(0.21875f, -0.03125f, 0.4375f, -0.125f),
    Line(0.4375f, -0.125f, 0.5f, -0.125f),
    Line(0, 0.125f, 0.0625f, 0.125f), Line(0.0625f, 0.125f, 0.15625f, 0.03125f),
    Line(0.15625f, 0.03125f, 0.21875f, 0.03125f), Line(0.21875f, 0.03125f, 0.4375f, 0.125f),
    Line(0.4375f, 0.125f, 0.5f, 0.125f)};

constexpr std::array Diamond = {
    Line(0, 0, 0.25f, -0.25f), Line(0.25f, -0.25f, 0.5f, 0),
    Line(0.5f, 0, 0.25f, 0.25f), Line(0.25f, 0.25f, 0, 0)};
constexpr auto FilterArt = joined(Diamond, dashed<4>(0.25f, -0.25f, 0.25f, 0.25f));
constexpr auto SeparatorArt = joined(Diamond, std::array{
    Line(0.125f, 0.125f, 0.375f, 0.125f), Line(0.25f, 0.25f, 0.25f, 0.375f)});
constexpr auto CoolerArt = joined(Diamond, std::array{Line(0.25f, -0.125f, 0.25f, 0.125f)},
    solidHead(0.25f, -0.125f, 0.25f, -0.25f), solidHead(0.25f, 0.125f, 0.25f, 0.25f));
constexpr auto HeaterArt = joined(Diamond, std::array{Line(0.25f, -0.25f, 0.25f, -0.15625f),
    Line(0.25f, 0.25f, 0.25f, 0.15625f)},
    solidHead(0.25f, -0.15625f, 0.25f, -0.03125f), solidHead(0.25f, 0.15625f, 0.25f, 0.03125f));

constexpr Primitive Vessel[] = {
    Arc(0.1875f, 0, 0.1875f, 90, 270), Line(0.1875f, -0.1875f, 0.5625f, -0.1875f),
    Line(0.1875f, 0.1875f, 0.5625f, 0.1875f), Arc(0.5625f, 0, 0.1875f, 270, 90)};

constexpr Primitive GasLoaded[] = {
    Arc(0, -0.5625f, 0.1875f, 360, 180), Line(-0.1875f, -0.5625f, -0.1875f, -0.1875f),
    Line(0.1875f, -0.5625f, 0.1875f, -0.1875f), Arc(0, -0.1875f, 0.1875f, 180, 360),
    Line(-0.1875f, -0.375f, 0.1875f, -0.375f),
    Line(-0.0625f, -0.5f, 0.0625f, -0.5f), Line(-0.0625f, -0.5f, 0, -0.375f),
    Line(0.0625f, -0.5f, 0, -0.375f)};

constexpr Primitive ReturnBelowLevel[] = {
    Line(-0.125f, 0.25f, -0.125f, 0.375f), Line(-0.125f, 0.375f, 0.125f, 0.375f),
    Line(0.125f, 0.25f, 0.125f, 0.375f), Line(0, 0, 0, 0.375f)};
constexpr Primitive DrainToTank[] = {
    Line(0, 0.0625f, 0, 0.125f), Line(0, 0.1875f, 0, 0.25f), Line(0, 0.3125f, 0, 0.375f),
    Line(-0.125f, 0.25f, -0.125f, 0.375f), Line(-0.125f, 0.375f, 0.125f, 0.375f),
    Line(0.125f, 0.25f, 0.125f, 0.375f)};

constexpr Primitive PressureGaugeArt[] = {
    Circle(0.125f, 0, 0.125f), Line(0.1875f, 0.0625f, 0.0625f, -0.0625f),
    Line(0.0625f, -0.0625f, 0.07812f, -0.01562f), Line(0.0625f, -0.0625f, 0.10938f, -0.04688f)};
constexpr Primitive Thermometer[] = {
    Circle(0.125f, 0, 0.125f), Line(0.125f, -0.0625f, 0.125f, 0.03125f),
    FillStyleOn, Circle(0.125f, 0.0546875f, 0.0234375f), FillStyleOff};
// The arcs end on the circle.
constexpr Primitive FlowMeterArt[] = {
    Circle(0.125f, 0, 0.125f), Arc(0.125f, -0.15625f, 0.125f, 218.68f, 321.32f),
    Arc(0.125f, 0.15625f, 0.125f, 38.68f, 141.32f)};
// clang-format on

}  // namespace

// ISO 1219-1: restriction, viscosity dependent.
constexpr Block LineRestrictionHorz[] = {{AnyOrientation, Restriction}};
constexpr Block LineRestrictionVert[] = {{AnyOrientation, Restriction, Turn::Clockwise}};

// ISO 1219-1: throttle valve, adjustable.
constexpr Block FlowRestrictorHorz[] = {{AnyOrientation, AdjustableRestriction}};
constexpr Block FlowRestrictorVert[] = {{AnyOrientation, AdjustableRestrictionVert}};

// ISO 14617: Venturi tube. The long cone is downstream: right, left, up and down.
constexpr Block Venturi[] = {{0, Nozzle},
                             {1, Nozzle, Turn::MirrorLeftRight, 0.5f, 0},
                             {2, Nozzle, Turn::CounterClockwise, 0, 0.5f},
                             {3, Nozzle, Turn::Clockwise}};

// ISO 1219-1: filter or strainer.
constexpr Block Filter[] = {{0, FilterArt},
                            {1, FilterArt, Turn::MirrorLeftRight, 0.5f, 0},
                            {2, FilterArt, Turn::CounterClockwise, 0, 0.5f},
                            {3, FilterArt, Turn::Clockwise}};

// ISO 1219-1: separator with manual drain. The drain is below, above, at the right and left.
constexpr Block Separator[] = {{0, SeparatorArt},
                               {1, SeparatorArt, Turn::MirrorTopBottom},
                               {2, SeparatorArt, Turn::CounterClockwise, 0, 0.5f},
                               {3, SeparatorArt, Turn::Clockwise}};

// ISO 1219-1: cooler and heater, the heads showing where the heat goes.
constexpr Block Cooler[] = {{0, CoolerArt}};
constexpr Block Heater[] = {{0, HeaterArt}};

// ISO 1219-1: air receiver.
constexpr Block Receiver[] = {{0, Vessel}};

// ISO 1219-1: accumulator, gas loaded. The port is below, above, at the right and left.
constexpr Block Accumulator[] = {{0, GasLoaded},
                                 {1, GasLoaded, Turn::MirrorTopBottom},
                                 {2, GasLoaded, Turn::CounterClockwise},
                                 {3, GasLoaded, Turn::Clockwise}};

// ISO 1219-1: reservoir with a return line, and with a drain line.
constexpr Block ToTank[] = {{0, ReturnBelowLevel}, {1, DrainToTank}};

// ISO 1219-1: pressure gauge, thermometer and flow meter.
constexpr Block PressureGauge[] = {{0, PressureGaugeArt}};
constexpr Block TemperatureGauge[] = {{0, Thermometer}};
constexpr Block FlowMeter[] = {{0, FlowMeterArt}, {1, FlowMeterArt, Turn::Clockwise}};

}  // namespace ladrix::fluidpower
