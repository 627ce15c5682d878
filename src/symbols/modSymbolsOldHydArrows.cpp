// Arrows. Unless said otherwise the tail is at the insertion point and the four drawings point
// right, left, up and down.
#include "symbols/modSymbolsOldHyd.h"
#include "symbols/modSymbolsOldHydParts.h"

namespace ladrix::fluidpower {

namespace {

using namespace art;

constexpr Primitive HollowHead[] = {Line(0, -0.0625f, 0.125f, 0), Line(0.125f, 0, 0, 0.0625f),
                                    Line(0, -0.0625f, 0, 0.0625f)};
constexpr auto SolidHead = solidHead(0, 0, 0.125f, 0);
constexpr auto SmallDiagonal = flowArrow(0, 0, 0.25f, -0.25f);
constexpr auto AcrossBody = flowArrow(0, 0, 0.5f, 0);
constexpr auto HorzDiagonal = flowArrow(0, 0, 0.25f, -0.5f);
constexpr auto VertDiagonal = flowArrow(0, 0, 0.5f, 0.25f);
constexpr auto StraightPathsReversed = mirroredLeftRight(StraightPaths);

// A third of a circle through the insertion point, about a shaft on the line b = 0. The head lies
// along the chord of the arc's last 24 degrees, so that it sits evenly on the curve.
constexpr Single RotationHead = 0.078125f;
constexpr std::array RotationArc = {Arc(-0.1875f, 0, 0.1875f, 300, 60)};
constexpr auto UpperHead = openHead(-0.03581f, -0.11021f, -0.09375f, -0.16238f, RotationHead);
constexpr auto LowerHead = openHead(-0.03581f, 0.11021f, -0.09375f, 0.16238f, RotationHead);
constexpr auto OneWay = joined(RotationArc, UpperHead);
constexpr auto BothWays = joined(RotationArc, UpperHead, LowerHead);

}  // namespace

// ISO 1219-1: direction of pneumatic energy.
constexpr Block Arrow[] = {{0, HollowHead},
                           {1, HollowHead, Turn::MirrorLeftRight},
                           {2, HollowHead, Turn::CounterClockwise},
                           {3, HollowHead, Turn::Clockwise}};

// ISO 1219-1: direction of hydraulic energy.
constexpr Block SolidArrow[] = {{0, SolidHead},
                                {1, SolidHead, Turn::MirrorLeftRight},
                                {2, SolidHead, Turn::CounterClockwise},
                                {3, SolidHead, Turn::Clockwise}};

// ISO 1219-1: adjustability. Up right, up left, down right, down left.
constexpr Block SmallDiagonalArrow[] = {{0, SmallDiagonal},
                                        {1, SmallDiagonal, Turn::MirrorLeftRight},
                                        {2, SmallDiagonal, Turn::MirrorTopBottom},
                                        {3, SmallDiagonal, Turn::Half}};

// ISO 1219-1: flow path through a valve, between facing ports.
constexpr Block ValveBodyArrow[] = {{0, AcrossBody},
                                    {1, AcrossBody, Turn::MirrorLeftRight},
                                    {2, AcrossBody, Turn::CounterClockwise},
                                    {3, AcrossBody, Turn::Clockwise}};

// ISO 1219-1: flow path through a valve, between ports that do not face each other. For a
// horizontal body up right, up left, down right, down left; for a vertical one right down, left
// down, right up, left up.
constexpr Block HorzValveBodyDiagonalArrow[] = {{0, HorzDiagonal},
                                                {1, HorzDiagonal, Turn::MirrorLeftRight},
                                                {2, HorzDiagonal, Turn::MirrorTopBottom},
                                                {3, HorzDiagonal, Turn::Half}};
constexpr Block VertValveBodyDiagonalArrow[] = {{0, VertDiagonal},
                                                {1, VertDiagonal, Turn::MirrorLeftRight},
                                                {2, VertDiagonal, Turn::MirrorTopBottom},
                                                {3, VertDiagonal, Turn::Half}};

// ISO 1219-1: the flow paths of a four-way valve, for an envelope whose corner is the insertion
// point. A half turn leaves the straight pair as it is, so its other drawings are mirrored.
constexpr Block DirectionalArrowsLeft[] = {{0, StraightPaths},
                                           {1, StraightPathsReversed, Turn::None, 0.5f, 0},
                                           {2, StraightPaths, Turn::Clockwise, 0.5f, 0},
                                           {3, StraightPathsReversed, Turn::Clockwise, 0.5f, 0.5f}};
constexpr Block DirectionalArrowsRight[] = {{0, CrossedPaths},
                                            {1, CrossedPaths, Turn::MirrorLeftRight, 0.5f, 0},
                                            {2, CrossedPaths, Turn::CounterClockwise, 0, 0.5f},
                                            {3, CrossedPaths, Turn::Clockwise, 0.5f, 0}};

// ISO 1219-1: direction of rotation of a shaft.
constexpr Block RotationalArrow[] = {{0, OneWay},
                                     {1, OneWay, Turn::MirrorLeftRight},
                                     {2, OneWay, Turn::CounterClockwise},
                                     {3, OneWay, Turn::Clockwise}};
constexpr Block RotationalArrowCWCCW[] = {{0, BothWays}, {1, BothWays, Turn::Clockwise}};

}  // namespace ladrix::fluidpower
