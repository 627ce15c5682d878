// The fluid power symbols: the drawings that are fixed stroke by stroke, how many drawings each
// has, and what makes them fit together on the sheet.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "symbols/Libraries.h"
#include "symbols/Shapes.h"

namespace ladrix {
namespace {

// Primitives as text: L a1 b1 a2 b2, B (box) likewise, C a b r, A a b r start end.
struct FixedDrawing {
    const char* name;
    Short orientation;
    const char* primitives;
};
// clang-format off
const FixedDrawing FixedDrawings[] = {
    {"InsertLineRestrictionHorz", AnyOrientation,
     "A 0 -0.28125 0.25 240 300; A 0 0.28125 0.25 60 120"},
    {"InsertFlowRestrictorHorz", AnyOrientation,
     "A 0 0.28125 0.25 60 120; A 0 -0.28125 0.25 240 300; L 0.15625 -0.15625 -0.125 "
     "0.125; L 0.15625 -0.15625 0.0625 -0.125; L 0.15625 -0.15625 0.14062 -0.09375"},
    {"InsertArrow", 0,
     "L 0 -0.0625 0.125 0; L 0.125 0 0 0.0625; L 0 -0.0625 0 0.0625"},
    {"InsertSingleEnvelope", AnyOrientation,
     "B 0 0 0.5 0.5"},
    {"InsertDoubleEnvelope", 0,
     "B 0 0 1 0.5; L 0.5 0 0.5 0.5"},
    {"InsertSolL", 0,
     "L -0.25 -0.25 0 -0.25; L -0.25 -0.25 -0.25 0; L -0.25 0 0 0; L -0.0625 -0.25 "
     "-0.1875 0"},
    {"InsertDetentL", 0,
     "L -0.25 -0.25 -0.21875 -0.25; L -0.21875 -0.25 -0.1875 -0.1875; L -0.1875 "
     "-0.1875 -0.15625 -0.25; L -0.15625 -0.25 -0.09375 -0.25; L -0.09375 -0.25 "
     "-0.0625 -0.1875; L -0.0625 -0.1875 -0.03125 -0.25; L -0.03125 -0.25 0 -0.25; L "
     "-0.25 0 0 0; L -0.25 -0.25 -0.25 0"},
    {"InsertElectricMotor", 0,
     "C 0.25 0 0.25; L 0.1875 -0.09375 0.1875 0.09375; L 0.1875 -0.09375 0.25 0.03125; "
     "L 0.25 0.03125 0.3125 -0.09375; L 0.3125 -0.09375 0.3125 0.09375"},
    {"InsertCompressor", 0,
     "C 0.25 0 0.25; L 0.375 -0.0625 0.5 0; L 0.5 0 0.375 0.0625; L 0.375 -0.0625 "
     "0.375 0.0625"},
    {"InsertCylinderEast", AnyOrientation,
     "B -0.125 -0.375 0.625 0; L 0.25 -0.375 0.25 0; L 0.25 -0.1875 1 -0.1875"},
    {"InsertCylinderEastSpringReturn", AnyOrientation,
     "B -0.125 -0.375 0.625 0; L 0.25 -0.375 0.25 0; L 0.25 -0.1875 1 -0.1875; L 0.25 "
     "-0.09375 0.3125 -0.28125; L 0.3125 -0.28125 0.375 -0.09375; L 0.375 -0.09375 "
     "0.4375 -0.28125; L 0.4375 -0.28125 0.5 -0.09375; L 0.5 -0.09375 0.5625 -0.28125; "
     "L 0.5625 -0.28125 0.625 -0.09375"},
    {"InsertManuallyActuated", 0,
     "L -0.25 -0.09375 0 -0.09375; L -0.25 0.09375 0 0.09375; L -0.25 -0.15625 -0.25 "
     "0.15625"},
    {"Insert2WayValveOpen", 0,
     "L 0 0 0 0.1875; L 0 0.3125 0 0.5; L -0.0625 0.3125 0.0625 0.3125; L -0.0625 "
     "0.1875 0.0625 0.1875; B -0.25 0 0.25 0.5"},
    {"InsertPressureGauge", 0,
     "C 0.125 0 0.125; L 0.1875 0.0625 0.0625 -0.0625; L 0.0625 -0.0625 0.07812 "
     "-0.01562; L 0.0625 -0.0625 0.10938 -0.04688"},
    {"InsertToTank", 0,
     "L -0.125 0.25 -0.125 0.375; L -0.125 0.375 0.125 0.375; L 0.125 0.25 0.125 "
     "0.375; L 0 0 0 0.375"},
    {"InsertToTank", 1,
     "L 0 0.0625 0 0.125; L 0 0.1875 0 0.25; L 0 0.3125 0 0.375; L -0.125 0.25 -0.125 "
     "0.375; L -0.125 0.375 0.125 0.375; L 0.125 0.25 0.125 0.375"},
};

// Drawings that are the symbol's first one under a matrix, then moved.
struct TurnedDrawing {
    const char* name;
    Short orientation;
    Single aa, ab, ba, bb, moveA, moveB;
};
const TurnedDrawing TurnedDrawings[] = {
    {"InsertArrow", 1, -1, 0, 0, 1, 0, 0},
    {"InsertArrow", 2, 0, 1, -1, 0, 0, 0},
    {"InsertArrow", 3, 0, -1, 1, 0, 0, 0},
    {"InsertDoubleEnvelope", 1, 0, -1, 1, 0, 0.5f, 0},
    {"InsertSolL", 1, 0, -1, 1, 0, 0, 0},
    {"InsertDetentL", 1, 0, -1, 1, 0, 0, 0},
    {"InsertManuallyActuated", 1, -1, 0, 0, 1, 0, 0},
    {"InsertManuallyActuated", 2, 0, -1, 1, 0, 0, 0},
    {"InsertManuallyActuated", 3, 0, 1, -1, 0, 0, 0},
    {"Insert2WayValveOpen", 1, 0, -1, 1, 0, 0.5f, 0},
};

const std::set<std::string_view> FourDrawings = {
    "SolidArrow", "Arrow", "SmallDiagonalArrow", "ValveBodyArrow", "HorzValveBodyDiagonalArrow",
    "VertValveBodyDiagonalArrow", "DirectionalArrowsLeft", "DirectionalArrowsRight",
    "RotationalArrow", "Accumulator", "Spring", "CheckValve", "Filter", "Separator",
    "ManuallyActuated", "RollerActuated", "PushButtonActuated", "HandLeverActuated",
    "HandLeverActuated2", "Env4PC", "Env4PC2", "2WayValveClosed", "ReliefValveClosed",
    "ReliefValveOpen", "HydPump", "HydMotor", "Venturi"};
const std::set<std::string_view> TwoDrawings = {
    "RotationalArrowCWCCW", "DoubleEnvelope", "TripleEnvelope", "Env4PL", "Env4PR", "SolL", "SolR",
    "DetentL", "DetentR", "2WayValveOpen", "3WayHorz", "3WayHorzNC", "3WayVert", "3WayVertNC",
    "ElecMotorAndHydPump", "BidirectionalPump", "FlowMeter", "ToTank"};
const std::set<std::string_view> OnlyOrientationZero = {
    "ElectricMotor", "Compressor", "VarDispPump", "HydPumpAndMotor", "Receiver", "Heater",
    "Cooler", "TemperatureGauge", "PressureGauge"};

// Where lines are connected: the drawing must reach every port.
struct Ports {
    const char* name;
    Short orientation;
    std::vector<std::pair<Single, Single>> at;
};
const Ports PortLists[] = {
    {"CylinderEast", 0, {{0, 0}, {0.5f, 0}}}, {"CylinderWest", 0, {{0, 0}, {-0.5f, 0}}},
    {"CylinderNorth", 0, {{0, 0}, {0, -0.5f}}}, {"CylinderSouth", 0, {{0, 0}, {0, 0.5f}}},
    {"CylinderEast2Ports", 0, {{0, 0}, {0.5f, 0}}}, {"CylinderWest2Ports", 0, {{0, 0}, {-0.5f, 0}}},
    {"CylinderNorth2Ports", 0, {{0, 0}, {0, -0.5f}}}, {"CylinderSouth2Ports", 0, {{0, 0}, {0, 0.5f}}},
    {"CylinderEast1PortSpringAssist", 0, {{0, 0}}},
    {"2WayValveOpen", 0, {{0, 0}, {0, 0.5f}}}, {"2WayValveOpen", 1, {{0, 0}, {0.5f, 0}}},
    {"2WayValveClosed", 0, {{0, 0}, {0, 0.5f}}}, {"2WayValveClosed", 1, {{0, 0}, {0.5f, 0}}},
    {"2WayValveClosed", 2, {{0, 0}, {0, 0.5f}}}, {"2WayValveClosed", 3, {{0, 0}, {0.5f, 0}}},
    {"ReliefValveClosed", 0, {{0, 0}, {0, 0.75f}}}, {"ReliefValveClosed", 1, {{0, 0}, {0.75f, 0}}},
    {"ReliefValveClosed", 2, {{0, 0}, {0, 0.75f}}}, {"ReliefValveClosed", 3, {{0, 0}, {0.75f, 0}}},
    {"ReliefValveOpen", 0, {{0, 0}, {0, 0.75f}}}, {"ReliefValveOpen", 3, {{0, 0}, {0.75f, 0}}},
    {"PressRelief", 0, {{0, 0}, {0, 1}}}, {"PressReliefAdj", 0, {{0, 0}, {0, 1}}},
    {"3WayHorz", 0, {{0, 0}, {0, 0.75f}, {0.25f, 0.75f}}},
    {"3WayHorzNC", 1, {{0, 0}, {0, 0.75f}, {-0.25f, 0.75f}}},
    {"3WayVert", 0, {{0, 0}, {-0.75f, 0}, {-0.75f, 0.25f}}},
    {"3WayVertNC", 1, {{0, 0}, {0.75f, 0}, {0.75f, -0.25f}}},
    {"2Pos4Way1", 0, {{0, 0}, {0.25f, 0}, {0, 0.75f}, {0.25f, 0.75f}}},
    {"3Pos4Way1", 0, {{0, 0}, {0.25f, 0}, {0, 0.75f}, {0.25f, 0.75f}}},
    {"2Pos4WayVert1", 0, {{0, 0}, {0, 0.25f}, {-0.75f, 0}, {-0.75f, 0.25f}}},
    {"3Pos4WayVert1", 0, {{0, 0}, {0, 0.25f}, {-0.75f, 0}, {-0.75f, 0.25f}}},
    {"4Way2PosSolVert", 0, {{0, 0}, {0, 0.25f}, {-0.75f, 0}, {-0.75f, 0.25f}}},
    {"4Way3PosSolVert1", 0, {{0, 0}, {0, 0.25f}, {-0.75f, 0}, {-0.75f, 0.25f}}},
    {"4Way3PosSolVert2", 0, {{0, 0}, {0, 0.25f}, {-0.75f, 0}, {-0.75f, 0.25f}}},
    {"CheckValve", 0, {{0, 0}, {0.5f, 0}}}, {"CheckValve", 1, {{0, 0}, {0.5f, 0}}},
    {"CheckValve", 2, {{0, 0}, {0, 0.5f}}}, {"CheckValve", 3, {{0, 0}, {0, 0.5f}}},
    {"Filter", 0, {{0, 0}, {0.5f, 0}}}, {"Filter", 2, {{0, 0}, {0, 0.5f}}},
    {"Separator", 1, {{0, 0}, {0.5f, 0}}}, {"Separator", 3, {{0, 0}, {0, 0.5f}}},
    {"Cooler", 0, {{0, 0}, {0.5f, 0}}}, {"Heater", 0, {{0, 0}, {0.5f, 0}}},
    {"Receiver", 0, {{0, 0}, {0.75f, 0}}}, {"Accumulator", 0, {{0, 0}}}, {"Accumulator", 2, {{0, 0}}},
    {"FlowMeter", 0, {{0, 0}, {0.25f, 0}}}, {"FlowMeter", 1, {{0, 0}, {0, 0.25f}}},
    {"HydPump", 0, {{0, 0}, {0.5f, 0}}}, {"HydPump", 1, {{0, 0}, {0.5f, 0}}},
    {"HydPump", 2, {{0, 0}, {0, 0.5f}}}, {"HydPump", 3, {{0, 0}, {0, 0.5f}}},
    {"HydMotor", 1, {{0, 0}, {0.5f, 0}}}, {"HydMotor", 2, {{0, 0}, {0, 0.5f}}},
    {"BidirectionalPump", 0, {{0, 0}, {0.5f, 0}}}, {"BidirectionalPump", 1, {{0, 0}, {0, 0.5f}}},
    {"VarDispPump", 0, {{0, 0}, {0.5f, 0}}}, {"HydPumpAndMotor", 0, {{0, 0}, {0, 0.5f}}},
    {"ElecMotorAndHydPump", 0, {{1, -0.25f}, {1, 0.25f}}},
    {"ElecMotorAndHydPump", 1, {{0, 0.75f}, {0.5f, 0.75f}}},
};
// clang-format on

const Symbol& symbolNamed(std::string_view shortName) {
    static const Symbol none{};
    for (const Symbol& symbol : modSymbolsOldHyd())
        if (symbol.name.substr(6) == shortName) return symbol;
    ADD_FAILURE() << "no symbol " << shortName;
    return none;
}

std::vector<Primitive> drawing(std::string_view shortName, Short orientation) {
    for (const Block& block : symbolNamed(shortName).blocks)
        if (block.orientation == orientation || block.orientation == AnyOrientation)
            return expanded(block);
    return {};
}

std::vector<Primitive> parsed(std::string text) {
    std::replace(text.begin(), text.end(), ';', ' ');
    std::istringstream in(text);
    std::vector<Primitive> result;
    for (char kind; in >> kind;) {
        Single a = 0, b = 0, c = 0, d = 0, e = 0;
        in >> a >> b >> c;
        if (kind != 'C') in >> d;
        if (kind == 'A') in >> e;
        result.push_back(kind == 'L'   ? art::Line(a, b, c, d)
                         : kind == 'B' ? art::Box(a, b, c, d)
                         : kind == 'C' ? art::Circle(a, b, c)
                                       : art::Arc(a, b, c, d, e));
    }
    return result;
}

void expectSame(const std::vector<Primitive>& actual, const std::vector<Primitive>& expected) {
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        const Primitive &x = actual[i], &y = expected[i];
        SCOPED_TRACE("primitive " + std::to_string(i));
        EXPECT_EQ(x.kind, y.kind);
        for (const auto member : {&Primitive::a1, &Primitive::b1, &Primitive::a2, &Primitive::b2,
                                  &Primitive::r, &Primitive::start, &Primitive::end})
            EXPECT_FLOAT_EQ(x.*member, y.*member);
        EXPECT_EQ(x.absolute, 0);
    }
}

bool isLine(const Primitive& p) {
    return p.kind == PrimitiveKind::Line;
}

double length(const Primitive& line) {
    return std::hypot(line.a2 - line.a1, line.b2 - line.b1);
}

// Every straight stroke, a box's four sides among them.
std::vector<Primitive> strokes(const std::vector<Primitive>& primitives) {
    std::vector<Primitive> result;
    for (const Primitive& p : primitives) {
        if (isLine(p)) result.push_back(p);
        if (p.kind != PrimitiveKind::Box) continue;
        for (const Primitive& side :
             {art::Line(p.a1, p.b1, p.a2, p.b1), art::Line(p.a2, p.b1, p.a2, p.b2),
              art::Line(p.a2, p.b2, p.a1, p.b2), art::Line(p.a1, p.b2, p.a1, p.b1)})
            result.push_back(side);
    }
    return result;
}

// The length on which two strokes cover each other.
double overlap(const Primitive& x, const Primitive& y) {
    const double size = length(x), alongA = (x.a2 - x.a1) / size, alongB = (x.b2 - x.b1) / size;
    const auto aside = [&](Single a, Single b) {
        return std::abs((a - x.a1) * alongB - (b - x.b1) * alongA);
    };
    if (aside(y.a1, y.b1) > 1e-4 || aside(y.a2, y.b2) > 1e-4) return 0;
    const double from = (y.a1 - x.a1) * alongA + (y.b1 - x.b1) * alongB;
    const double to = (y.a2 - x.a1) * alongA + (y.b2 - x.b1) * alongB;
    return std::min(size, std::max(from, to)) - std::max(0.0, std::min(from, to));
}

bool touches(const Primitive& p, Single a, Single b) {
    if (isLine(p) || p.kind == PrimitiveKind::Box) {
        for (const Primitive& s : strokes({p})) {
            const double detour = std::hypot(a - s.a1, b - s.b1) + std::hypot(a - s.a2, b - s.b2);
            if (detour - length(s) < 1e-5) return true;
        }
        return false;
    }
    if (p.kind != PrimitiveKind::Circle && p.kind != PrimitiveKind::Arc) return false;
    if (std::abs(std::hypot(a - p.a1, b - p.b1) - p.r) > 1e-5) return false;
    if (p.kind == PrimitiveKind::Circle) return true;
    const double angle = std::atan2(p.b1 - b, a - p.a1) * 180 / Pi;
    return std::fmod(angle - p.start + 720, 360) <= std::fmod(p.end - p.start + 720, 360);
}

TEST(FluidPowerSymbols, FixedDrawingsAreStrokeByStrokeAsGiven) {
    for (const FixedDrawing& fixed : FixedDrawings) {
        SCOPED_TRACE(fixed.name);
        expectSame(drawing(fixed.name + 6, fixed.orientation), parsed(fixed.primitives));
    }
    for (const TurnedDrawing& t : TurnedDrawings) {
        SCOPED_TRACE(std::string(t.name) + " " + std::to_string(t.orientation));
        std::vector<Primitive> expected = drawing(t.name + 6, 0);
        for (Primitive& p : expected) {
            const Primitive q = p;
            p.a1 = t.aa * q.a1 + t.ab * q.b1 + t.moveA;
            p.b1 = t.ba * q.a1 + t.bb * q.b1 + t.moveB;
            p.a2 = t.aa * q.a2 + t.ab * q.b2 + t.moveA;
            p.b2 = t.ba * q.a2 + t.bb * q.b2 + t.moveB;
        }
        expectSame(drawing(t.name + 6, t.orientation), expected);
    }
}

TEST(FluidPowerSymbols, EverySymbolHasItsDrawings) {
    std::set<std::string_view> names;
    for (const Symbol& symbol : modSymbolsOldHyd()) {
        SCOPED_TRACE(symbol.name);
        const std::string_view name = symbol.name.substr(6);
        EXPECT_TRUE(names.insert(name).second);
        const std::size_t count = FourDrawings.count(name) ? 4 : TwoDrawings.count(name) ? 2 : 1;
        ASSERT_EQ(symbol.blocks.size(), count);
        const bool any = count == 1 && !OnlyOrientationZero.count(name);
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(symbol.blocks[i].orientation, any ? AnyOrientation : static_cast<Short>(i));
            EXPECT_FALSE(symbol.blocks[i].primitives.empty());
        }
    }
    EXPECT_EQ(names.size(), 85u);
    for (const auto* group : {&FourDrawings, &TwoDrawings, &OnlyOrientationZero})
        for (const std::string_view name : *group)
            EXPECT_TRUE(names.count(name)) << name;
}

// A button that is turned shows something new. Only the filter looks alike from both ends.
TEST(FluidPowerSymbols, DrawingsOfASymbolDiffer) {
    for (const Symbol& symbol : modSymbolsOldHyd()) {
        std::set<std::multiset<std::string>> looks;
        for (const Block& block : symbol.blocks) {
            std::multiset<std::string> look;
            for (const Primitive& p : expanded(block)) {
                const auto at = [](Single a, Single b) {
                    return std::to_string(std::lround(a * 1000)) + "," +
                           std::to_string(std::lround(b * 1000)) + " ";
                };
                const auto [low, high] = std::minmax({at(p.a1, p.b1), at(p.a2, p.b2)});
                look.insert(low + high + std::to_string(std::lround(p.start)));
            }
            looks.insert(look);
        }
        EXPECT_EQ(looks.size(), symbol.name == "InsertFilter" ? 2 : symbol.blocks.size())
            << symbol.name;
    }
}

TEST(FluidPowerSymbols, TurningKeepsTheSize) {
    for (const Symbol& symbol : modSymbolsOldHyd()) {
        if (symbol.name == "InsertToTank") continue;  // its second drawing is another one
        const Extent first = extentOf(expanded(symbol.blocks[0]));
        for (const Block& block : symbol.blocks) {
            const Extent e = extentOf(expanded(block));
            const auto same = [](Single x, Single y) { return std::abs(x - y) < 1e-4f; };
            EXPECT_TRUE((same(e.width(), first.width()) && same(e.height(), first.height())) ||
                        (same(e.width(), first.height()) && same(e.height(), first.width())))
                << symbol.name << " " << block.orientation;
        }
    }
}

TEST(FluidPowerSymbols, NoStrokeIsEmptyOrDrawnTwice) {
    for (const Symbol& symbol : modSymbolsOldHyd())
        for (const Block& block : symbol.blocks) {
            const std::vector<Primitive> lines = strokes(expanded(block));
            for (std::size_t i = 0; i < lines.size(); ++i) {
                ASSERT_GT(length(lines[i]), 0.002) << symbol.name << " stroke " << i;
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_LT(overlap(lines[i], lines[j]), 1e-4)
                        << symbol.name << " strokes " << j << " and " << i;
            }
        }
}

TEST(FluidPowerSymbols, PortsAreOnTheRasterAndDrawn) {
    for (const Ports& ports : PortLists)
        for (const auto& [a, b] : ports.at) {
            SCOPED_TRACE(std::string(ports.name) + " " + std::to_string(ports.orientation));
            EXPECT_EQ(a * 8, std::round(a * 8));
            EXPECT_EQ(b * 8, std::round(b * 8));
            const std::vector<Primitive> all = drawing(ports.name, ports.orientation);
            EXPECT_TRUE(
                std::any_of(all.begin(), all.end(),
                            [&, a = a, b = b](const Primitive& p) { return touches(p, a, b); }))
                << "nothing at " << a << ", " << b;
        }
}

TEST(FluidPowerSymbols, EnvelopesAndTheirContentsFillTheSameSquares) {
    for (const char* name : {"SingleEnvelope", "Env4PL", "Env4PC", "Env4PC2", "Env4PR",
                             "DoubleEnvelope", "TripleEnvelope"})
        for (const Block& block : symbolNamed(name).blocks) {
            const Extent e = extentOf(expanded(block));
            EXPECT_TRUE(e.left == 0 && e.top == 0) << name << " " << block.orientation;
            EXPECT_EQ(std::min(e.width(), e.height()), 0.5f) << name << " " << block.orientation;
        }
    for (const char* name : {"DirectionalArrowsLeft", "DirectionalArrowsRight"})
        for (const Block& block : symbolNamed(name).blocks) {
            const Extent e = extentOf(expanded(block));
            EXPECT_EQ(std::max(e.right, e.bottom), 0.5f) << name << " " << block.orientation;
            EXPECT_EQ(std::min(e.left, e.top), 0) << name << " " << block.orientation;
        }
}

TEST(FluidPowerSymbols, ActuatorsEndAtTheEnvelopesEdge) {
    for (const char* name : {"Spring", "ManuallyActuated", "PushButtonActuated", "RollerActuated",
                             "HandLeverActuated", "HandLeverActuated2"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(extentOf(drawing(name, 0)).right, 0);
        EXPECT_EQ(extentOf(drawing(name, 1)).left, 0);
        EXPECT_EQ(extentOf(drawing(name, 2)).bottom, 0);
        EXPECT_EQ(extentOf(drawing(name, 3)).top, 0);
    }
    for (const char* name : {"SolR", "DetentR"}) {
        SCOPED_TRACE(name);
        EXPECT_EQ(extentOf(drawing(name, 0)).left, 0);
        EXPECT_EQ(extentOf(drawing(name, 1)).top, 0);
    }
}

TEST(FluidPowerSymbols, SpringsHaveSixEqualStrokes) {
    const auto expectSpring = [](std::span<const Primitive> spring) {
        ASSERT_EQ(spring.size(), 6u);
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_NEAR(length(spring[i]), std::hypot(0.0625, 0.1875), 1e-6);
            if (i == 0) continue;
            EXPECT_EQ(spring[i].a1, spring[i - 1].a2);
            EXPECT_EQ(spring[i].b1, spring[i - 1].b2);
        }
    };
    for (const Symbol& symbol : modSymbolsOldHyd()) {
        const bool cylinder =
            symbol.name.ends_with("SpringReturn") || symbol.name.ends_with("SpringAdvance");
        if (!cylinder && symbol.name != "InsertSpring") continue;
        SCOPED_TRACE(symbol.name);
        const std::vector<Primitive> all = expanded(symbol.blocks[0]);
        expectSpring(std::span(all).subspan(cylinder ? 3 : 0));
    }
}

TEST(FluidPowerSymbols, HeadsArePackedDenselyEnoughToReadAsSolid) {
    const std::map<const char*, int> heads = {
        {"SolidArrow", 1}, {"HydPump", 1}, {"HydMotor", 1}, {"BidirectionalPump", 2}};
    for (const auto& [name, count] : heads) {
        SCOPED_TRACE(name);
        std::vector<Single> columns;
        for (const Primitive& p : drawing(name, 0))
            if (isLine(p) && p.a1 == p.a2) columns.push_back(p.a1);
        std::sort(columns.begin(), columns.end());
        int gaps = 0;
        for (std::size_t i = 1; i < columns.size(); ++i) {
            const Single step = columns[i] - columns[i - 1];
            if (step > 1.0f / 96)
                ++gaps;
            else
                EXPECT_NEAR(step, columns[1] - columns[0], 1e-5);
        }
        EXPECT_EQ(gaps, count - 1);
        EXPECT_GT(columns.size(), 12u * static_cast<unsigned>(count));
    }
    for (const char* name : {"HydPump", "HydMotor", "BidirectionalPump"})
        for (const Block& block : symbolNamed(name).blocks) {
            const Primitive housing = expanded(block).front();
            EXPECT_EQ(housing.kind, PrimitiveKind::Circle) << name;
            EXPECT_EQ(housing.r, 0.25f) << name;
        }
}

TEST(FluidPowerSymbols, OnlyTheThermometersBulbIsFilledAndByFillStyleAlone) {
    for (const Symbol& symbol : modSymbolsOldHyd())
        for (const Block& block : symbol.blocks) {
            std::vector<PrimitiveKind> fills;
            for (const Primitive& p : expanded(block))
                if (!isLine(p) && p.kind != PrimitiveKind::Circle && p.kind != PrimitiveKind::Arc &&
                    p.kind != PrimitiveKind::Box)
                    fills.push_back(p.kind);
            const std::vector<PrimitiveKind> pair = {PrimitiveKind::FillStyleOn,
                                                     PrimitiveKind::FillStyleOff};
            EXPECT_EQ(fills,
                      symbol.name == "InsertTemperatureGauge" ? pair : std::vector<PrimitiveKind>{})
                << symbol.name;
        }
}

TEST(FluidPowerSymbols, OnlyMotorAndPumpSetsAreLabelledAtTheirMotor) {
    const std::vector<Primitive> motor = drawing("ElectricMotor", 0);
    for (const Symbol& symbol : modSymbolsOldHyd()) {
        const bool set =
            symbol.name == "InsertHydPumpAndMotor" || symbol.name == "InsertElecMotorAndHydPump";
        EXPECT_EQ(symbol.prefix, set ? "M" : "") << symbol.name;
        if (!set) continue;
        EXPECT_FALSE(symbol.labelAbsolute);
        // In every drawing the label stands over a motor: its circle, then the upright letter.
        for (const Block& block : symbol.blocks) {
            const std::vector<Primitive> all = expanded(block);
            const auto letter = std::search(all.begin(), all.end(), motor.begin(), motor.end(),
                                            [&](const Primitive& x, const Primitive& y) {
                                                return x.kind == y.kind && x.r == y.r &&
                                                       x.a2 - x.a1 == y.a2 - y.a1 &&
                                                       x.b2 - x.b1 == y.b2 - y.b1 &&
                                                       std::abs(x.a1 - symbol.labelA) <= 0.0625f;
                                            });
            ASSERT_NE(letter, all.end()) << symbol.name << " " << block.orientation;
            EXPECT_EQ(letter->a1, symbol.labelA);
            EXPECT_LT(symbol.labelB, letter->b1 - letter->r);
            EXPECT_GT(symbol.labelB, letter->b1 - 2 * letter->r);
        }
    }
}

}  // namespace
}  // namespace ladrix
