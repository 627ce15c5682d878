// Actuators that are set against the edge of a valve envelope. Those with four drawings stand at
// the left, right, top and bottom of it; those with two at the left or right and at the turned
// place.
#include "symbols/modSymbolsOldHyd.h"
#include "symbols/modSymbolsOldHydParts.h"

namespace ladrix::fluidpower {

namespace {

using namespace art;

constexpr auto SolenoidAtRight = mirroredLeftRight(SolenoidAtLeft);

// clang-format off
constexpr std::array DetentAtLeft = {
    Line(-0.25f, -0.25f, -0.21875f, -0.25f), Line(-0.21875f, -0.25f, -0.1875f, -0.1875f),
    Line(-0.1875f, -0.1875f, -0.15625f, -0.25f), Line(-0.15625f, -0.25f, -0.09375f, -0.25f),
    Line(-0.09375f, -0.25f, -0.0625f, -0.1875f), Line(-0.0625f, -0.1875f, -0.03125f, -0.25f),
    Line(-0.03125f, -0.25f, 0, -0.25f), Line(-0.25f, 0, 0, 0), Line(-0.25f, -0.25f, -0.25f, 0)};
constexpr auto DetentAtRight = mirroredLeftRight(DetentAtLeft);

constexpr Primitive Manual[] = {
    Line(-0.25f, -0.09375f, 0, -0.09375f), Line(-0.25f, 0.09375f, 0, 0.09375f),
    Line(-0.25f, -0.15625f, -0.25f, 0.15625f)};

constexpr Primitive PushButton[] = {
    Line(-0.15625f, -0.09375f, 0, -0.09375f), Line(-0.15625f, 0.09375f, 0, 0.09375f),
    Line(-0.15625f, -0.15625f, -0.15625f, 0.15625f),
    Arc(-0.07292f, 0, 0.17708f, 118.07f, 241.93f)};

constexpr Primitive Roller[] = {
    Line(-0.15625f, -0.09375f, 0, -0.09375f), Line(-0.15625f, 0.09375f, 0, 0.09375f),
    Circle(-0.15625f, 0, 0.09375f), Circle(-0.15625f, 0, 0.03125f)};

// The end of the rod leans over and runs on as the lever, to its knob.
constexpr Primitive HandLeverIn[] = {
    Line(-0.15625f, -0.09375f, 0, -0.09375f), Line(-0.25f, 0.09375f, 0, 0.09375f),
    Line(-0.25f, 0.09375f, -0.078125f, -0.25f), Circle(-0.06415f, -0.27795f, 0.03125f)};
constexpr Primitive HandLeverOut[] = {
    Line(-0.25f, -0.09375f, 0, -0.09375f), Line(-0.15625f, 0.09375f, 0, 0.09375f),
    Line(-0.15625f, 0.09375f, -0.328125f, -0.25f), Circle(-0.3421f, -0.27795f, 0.03125f)};
// clang-format on

}  // namespace

// ISO 1219-1: solenoid with one winding, acting towards the valve.
constexpr Block SolL[] = {{0, SolenoidAtLeft}, {1, SolenoidAtLeft, Turn::Clockwise}};
constexpr Block SolR[] = {{0, SolenoidAtRight}, {1, SolenoidAtRight, Turn::Clockwise}};

// ISO 1219-1: detent.
constexpr Block DetentL[] = {{0, DetentAtLeft}, {1, DetentAtLeft, Turn::Clockwise}};
constexpr Block DetentR[] = {{0, DetentAtRight}, {1, DetentAtRight, Turn::Clockwise}};

// ISO 1219-1: spring.
constexpr Block Spring[] = {{0, SpringAtLeft},
                            {1, SpringAtLeft, Turn::MirrorLeftRight},
                            {2, SpringAtLeft, Turn::Clockwise},
                            {3, SpringAtLeft, Turn::CounterClockwise}};

// ISO 1219-1: muscular control, general.
constexpr Block ManuallyActuated[] = {{0, Manual},
                                      {1, Manual, Turn::MirrorLeftRight},
                                      {2, Manual, Turn::Clockwise},
                                      {3, Manual, Turn::CounterClockwise}};

// ISO 1219-1: push-button.
constexpr Block PushButtonActuated[] = {{0, PushButton},
                                        {1, PushButton, Turn::MirrorLeftRight},
                                        {2, PushButton, Turn::Clockwise},
                                        {3, PushButton, Turn::CounterClockwise}};

// ISO 1219-1: roller.
constexpr Block RollerActuated[] = {{0, Roller},
                                    {1, Roller, Turn::MirrorLeftRight},
                                    {2, Roller, Turn::Clockwise},
                                    {3, Roller, Turn::CounterClockwise}};

// ISO 1219-1: lever, pushed in towards the valve.
constexpr Block HandLeverActuated[] = {{0, HandLeverIn},
                                       {1, HandLeverIn, Turn::MirrorLeftRight},
                                       {2, HandLeverIn, Turn::Clockwise},
                                       {3, HandLeverIn, Turn::CounterClockwise}};

// ISO 1219-1: lever, pulled out.
constexpr Block HandLeverActuated2[] = {{0, HandLeverOut},
                                        {1, HandLeverOut, Turn::MirrorLeftRight},
                                        {2, HandLeverOut, Turn::Clockwise},
                                        {3, HandLeverOut, Turn::CounterClockwise}};

}  // namespace ladrix::fluidpower
