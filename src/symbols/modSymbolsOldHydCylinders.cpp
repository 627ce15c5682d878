// Cylinders. A bare cylinder has its ports on the body, the blind end's at the insertion point and
// the rod end's half an inch from it; those with drawn ports have them at the same two places.
#include "symbols/modSymbolsOldHyd.h"
#include "symbols/modSymbolsOldHydParts.h"

namespace ladrix::fluidpower {

namespace {

using namespace art;

constexpr std::array Body = {Box(-0.125f, -0.375f, 0.625f, 0), Line(0.25f, -0.375f, 0.25f, 0),
                             Line(0.25f, -0.1875f, 1, -0.1875f)};

// The spring in the rod end's half of the body; the blind end's is the same, 3 modules before it.
constexpr std::array RodEndSpring = {
    Line(0.25f, -0.09375f, 0.3125f, -0.28125f),  Line(0.3125f, -0.28125f, 0.375f, -0.09375f),
    Line(0.375f, -0.09375f, 0.4375f, -0.28125f), Line(0.4375f, -0.28125f, 0.5f, -0.09375f),
    Line(0.5f, -0.09375f, 0.5625f, -0.28125f),   Line(0.5625f, -0.28125f, 0.625f, -0.09375f)};
constexpr auto BlindEndSpring = moved(RodEndSpring, -0.375f, 0);

constexpr auto SpringReturn = joined(Body, RodEndSpring);
constexpr auto SpringAdvance = joined(Body, BlindEndSpring);

constexpr std::array BlindEndPort = {Line(0, -0.125f, 0, 0)};
constexpr std::array RodEndPort = {Line(0.5f, -0.125f, 0.5f, 0)};
constexpr auto TwoPorts = joined(moved(Body, 0, -0.125f), BlindEndPort, RodEndPort);
constexpr auto OnePortSpringAssist = joined(moved(SpringAdvance, 0, -0.125f), BlindEndPort);

}  // namespace

// ISO 1219-1: double-acting cylinder, single rod. West is turned within East's own strip, so that
// its ports too are on the near side.
constexpr Block CylinderEast[] = {{AnyOrientation, Body}};
constexpr Block CylinderWest[] = {{AnyOrientation, Body, Turn::Half, 0, -0.375f}};
constexpr Block CylinderNorth[] = {{AnyOrientation, Body, Turn::CounterClockwise}};
constexpr Block CylinderSouth[] = {{AnyOrientation, Body, Turn::Clockwise}};

// ISO 1219-1: single-acting cylinder, return stroke by spring.
constexpr Block CylinderEastSpringReturn[] = {{AnyOrientation, SpringReturn}};
constexpr Block CylinderWestSpringReturn[] = {
    {AnyOrientation, SpringReturn, Turn::Half, 0, -0.375f}};
constexpr Block CylinderNorthSpringReturn[] = {
    {AnyOrientation, SpringReturn, Turn::CounterClockwise}};
constexpr Block CylinderSouthSpringReturn[] = {{AnyOrientation, SpringReturn, Turn::Clockwise}};

// ISO 1219-1: single-acting cylinder, advance stroke by spring.
constexpr Block CylinderEastSpringAdvance[] = {{AnyOrientation, SpringAdvance}};
constexpr Block CylinderWestSpringAdvance[] = {
    {AnyOrientation, SpringAdvance, Turn::Half, 0, -0.375f}};
constexpr Block CylinderNorthSpringAdvance[] = {
    {AnyOrientation, SpringAdvance, Turn::CounterClockwise}};
constexpr Block CylinderSouthSpringAdvance[] = {{AnyOrientation, SpringAdvance, Turn::Clockwise}};

// ISO 1219-1: double-acting cylinder with its two port lines.
constexpr Block CylinderEast2Ports[] = {{AnyOrientation, TwoPorts}};
constexpr Block CylinderWest2Ports[] = {{AnyOrientation, TwoPorts, Turn::MirrorLeftRight}};
constexpr Block CylinderNorth2Ports[] = {{AnyOrientation, TwoPorts, Turn::CounterClockwise}};
constexpr Block CylinderSouth2Ports[] = {{AnyOrientation, TwoPorts, Turn::Clockwise}};

// ISO 1219-1: single-acting cylinder, a spring helping the pressure at the blind end.
constexpr Block CylinderEast1PortSpringAssist[] = {{AnyOrientation, OnePortSpringAssist}};

}  // namespace ladrix::fluidpower
