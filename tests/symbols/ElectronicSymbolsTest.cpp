// Both generations of the electronic symbols: the settled drawings figure by figure, and what every
// drawing owes to the wire that meets it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "symbols/Libraries.h"
#include "symbols/Shapes.h"

namespace ladrix {
namespace {

std::vector<Symbol> bothGenerations() {
    const auto now = modSymbolsElectronic();
    const auto before = modSymbolsOldElectronic();
    std::vector<Symbol> all(now.begin(), now.end());
    all.insert(all.end(), before.begin(), before.end());
    return all;
}

const Symbol* symbolNamed(std::string_view name) {
    for (const auto& library : {modSymbolsElectronic(), modSymbolsOldElectronic()})
        for (const Symbol& symbol : library)
            if (symbol.name == name) return &symbol;
    return nullptr;
}

// A block of a settled drawing: its primitives as text ("!" after a figure in inches), or, with no
// text, the symbol's first block turned and moved.
struct Settled {
    Short orientation;
    std::string primitives;
    Turn turn = Turn::None;
    Single moveA = 0, moveB = 0;
};

const std::vector<std::pair<std::string, std::vector<Settled>>> settledDrawings = {
    // clang-format off
    {"InsertResistorHorz",
     {{AnyOrientation,
       "Line 0.1406 -0.0469 0.1719 0.0469; Line 0.1719 0.0469 0.2031 -0.0469; Line 0.2031 "
       "-0.0469 0.2344 0.0469; Line 0.2344 0.0469 0.2656 -0.0469; Line 0.2656 -0.0469 "
       "0.2969 0.0469; Line 0.2969 0.0469 0.3281 -0.0469; Line 0.3281 -0.0469 0.3594 "
       "0.0469; Line 0.3594 0.0469 0.375 0; Line 0.375 0 0.5 0; Line 0.1406 -0.0469 0.125 "
       "0; Line 0 0 0.125 0"}}},
    {"InsertPotentiometer",
     {{0,
       "Line 0.1406 -0.0469 0.1719 0.0469; Line 0.1719 0.0469 0.2031 -0.0469; Line 0.2031 "
       "-0.0469 0.2344 0.0469; Line 0.2344 0.0469 0.2656 -0.0469; Line 0.2656 -0.0469 "
       "0.2969 0.0469; Line 0.2969 0.0469 0.3281 -0.0469; Line 0.3281 -0.0469 0.3594 "
       "0.0469; Line 0.3594 0.0469 0.375 0; Line 0.375 0 0.5 0; Line 0.1406 -0.0469 0.125 "
       "0; Line 0 0 0.125 0; Line 0.25 -0.25 0.25 -0.0625; Line 0.25 -0.0625 0.2812 "
       "-0.125; Line 0.25 -0.0625 0.2188 -0.125"},
      {1, "", Turn::Clockwise, 0, -0.5f},
      {2, "", Turn::Half, 0.5f, 0},
      {3, "", Turn::CounterClockwise}}},
    {"InsertEuroResistor",
     {{0,
       "Line 0 0 0.0625 0; Line 0.4375 0 0.5 0; Box 0.0625 -0.0625 0.4375 0.0625"},
      {1, "", Turn::Clockwise, 0, -0.5f}}},
    {"InsertCrystal2",
     {{0,
       "Line 0 0 0.1562 0; Line 0.1562 -0.125 0.1562 0.125; Line 0.3438 -0.125 0.3438 "
       "0.125; Line 0.3438 0 0.5 0; Box 0.2031 -0.1875 0.2969 0.1875"},
      {1, "", Turn::Clockwise, 0, -0.5f}}},
    {"InsertGround1",
     {{AnyOrientation,
       "Line -0.0312 0.25 0.0312 0.25; Line -0.0625 0.1875 0.0625 0.1875; Line -0.0938 "
       "0.125 0.0938 0.125; Line 0 0 0 0.125"}}},
    {"InsertGround2",
     {{AnyOrientation,
       "Line 0 0 0 0.125; Line -0.125 0.125 0.125 0.125; Line -0.125 0.125 -0.1875 0.25; "
       "Line 0 0.125 -0.0625 0.25; Line 0.125 0.125 0.0625 0.25"}}},
    {"InsertSpeaker",
     {{0,
       "Line 0.125 -0.0625 0.3125 -0.0625; Line 0.3125 -0.0625 0.3125 0.3125; Line 0.125 "
       "0.3125 0.3125 0.3125; Line 0.125 -0.0625 0.125 0.3125; Line 0 0 0.125 0; Line 0 "
       "0.25 0.125 0.25; Line 0.5 -0.25 0.5 0.5; Line 0.3125 -0.0625 0.5 -0.25; Line "
       "0.3125 0.3125 0.5 0.5"},
      {1, "", Turn::MirrorLeftRight},
      {2, "", Turn::CounterClockwise},
      {3, "", Turn::Clockwise, 0.25f, 0}}},
    {"InsertConnector1",
     {{0,
       "Line 0.1719 0 0.25 0; Line 0 0 0.125 0; Line 0.125 0 0.0938 0.0312; Line 0.1719 0 "
       "0.1094 0.0625; Line 0.1719 0 0.1094 -0.0625; Line 0.125 0 0.0938 -0.0312"},
      {1, "", Turn::MirrorLeftRight, 0.25f, 0},
      {2, "", Turn::CounterClockwise},
      {3, "", Turn::Clockwise, 0, -0.25f}}},
    {"InsertESolenoid",
     {{0,
       "Line 0 0 0.125 0; Line 0.125 0 0.1875 -0.125; Line 0.1875 -0.125 0.3125 0.125; "
       "Line 0.3125 0.125 0.375 0; Line 0.375 0 0.5 0"}}},
    {"InsertDiodeLeft",
     {{AnyOrientation,
       "Line 0 0 0.2! 0; Line 0.3! 0 0.5! 0; Line 0.3! -0.075! 0.3! 0.075!; Line 0.2! "
       "-0.075! 0.2! 0.075!; Line 0.3! -0.075! 0.2! 0; Line 0.2! 0 0.3! 0.075!"}}},
    {"InsertEGround",
     {{AnyOrientation,
       "Line 0 0 0 0.125; Line 0 0.125 -0.0625 0.25; Line -0.25 0.25 -0.1875 0.125; Line "
       "-0.1875 0.125 0.1875 0.125; Line 0.1875 0.125 0.125 0.25"}}},
    {"InsertCrystal",
     {{AnyOrientation,
       "Line 0 0 0.15 0; Line 0.15 -0.125 0.15 0.125; Line 0.35 -0.125 0.35 0.125; Line "
       "0.35 0 0.5 0; Box 0.2 -0.175 0.3 0.15"}}},
    {"InsertAmplifier",
     {{AnyOrientation,
       "Line 0 0 0.25 0; Line 0 0.25 0.25 0.25; Line 0.25 -0.125 0.25 0.375; Line 0.25 "
       "0.375 0.75 0.125; Line 0.75 0.125 0.25 -0.125"}}},
    {"InsertOpAmp",
     {{AnyOrientation,
       "Line 0.25! -0.125! 0.75! 0.125!; Line 0.75! 0.125! 0.25! 0.375!; Arc 0.6875! "
       "0.125! 0.5! 150 210; Line 0 0 0.2! 0; Line 0 0.25! 0.2125! 0.25!; Line 0.3! "
       "-0.0375! 0.3! 0.0375!; Line 0.2625! 0 0.3375! 0; Line 0.2625! 0.25! 0.3375! 0.25!"}}},
    {"InsertResistor",
     {{AnyOrientation,
       "Line 0 0 0.1 0; Line 0.1 0 0.125 -0.075; Line 0.125 -0.075 0.175 0.075; Line 0.175 "
       "0.075 0.225 -0.075; Line 0.225 -0.075 0.275 0.075; Line 0.275 0.075 0.325 -0.075; "
       "Line 0.325 -0.075 0.375 0.075; Line 0.375 0.075 0.4 0; Line 0.4 0 0.5 0"}}},
    // clang-format on
};

Primitive parsed(const std::string& text) {
    std::istringstream words(text);
    Primitive p{};
    std::string kind, figure;
    words >> kind;
    p.kind = kind == "Arc"   ? PrimitiveKind::Arc
             : kind == "Box" ? PrimitiveKind::Box
                             : PrimitiveKind::Line;
    const bool arc = p.kind == PrimitiveKind::Arc;
    const std::vector<std::pair<Single*, int>> fields =
        arc ? std::vector<std::pair<Single*, int>>{{&p.a1, AbsA1},
                                                   {&p.b1, AbsB1},
                                                   {&p.r, AbsR},
                                                   {&p.start, 0},
                                                   {&p.end, 0}}
            : std::vector<std::pair<Single*, int>>{
                  {&p.a1, AbsA1}, {&p.b1, AbsB1}, {&p.a2, AbsA2}, {&p.b2, AbsB2}};
    for (const auto& [field, bit] : fields) {
        words >> figure;
        *field = std::stof(figure);
        if (figure.ends_with('!')) p.absolute = static_cast<std::uint8_t>(p.absolute | bit);
    }
    return p;
}

std::vector<Primitive> parsedList(const std::string& text) {
    std::vector<Primitive> result;
    std::istringstream stream(text);
    for (std::string one; std::getline(stream, one, ';');)
        result.push_back(parsed(one));
    return result;
}

std::vector<Primitive> turnedList(std::vector<Primitive> lines, const Settled& settled) {
    const auto turnPoint = [&](Single& a, Single& b) {
        const Single x = a, y = b;
        switch (settled.turn) {
            case Turn::Clockwise:
                a = -y, b = x;
                break;
            case Turn::CounterClockwise:
                a = y, b = -x;
                break;
            case Turn::Half:
                a = -x, b = -y;
                break;
            case Turn::MirrorLeftRight:
                a = -x;
                break;
            default:
                ADD_FAILURE() << "no such turn among the settled drawings";
        }
        a += settled.moveA;
        b += settled.moveB;
    };
    for (Primitive& p : lines) {
        turnPoint(p.a1, p.b1);
        turnPoint(p.a2, p.b2);
    }
    return lines;
}

void expectSame(const std::vector<Primitive>& drawn, const std::vector<Primitive>& settled) {
    ASSERT_EQ(drawn.size(), settled.size());
    for (std::size_t i = 0; i < drawn.size(); ++i) {
        const Primitive &d = drawn[i], &s = settled[i];
        EXPECT_EQ(d.kind, s.kind) << i;
        const int meant = s.kind == PrimitiveKind::Arc ? AbsAll : AbsAll & ~AbsR;
        EXPECT_EQ(d.absolute & meant, s.absolute) << i;
        EXPECT_FLOAT_EQ(d.a1, s.a1) << i;
        EXPECT_FLOAT_EQ(d.b1, s.b1) << i;
        EXPECT_FLOAT_EQ(d.a2, s.a2) << i;
        EXPECT_FLOAT_EQ(d.b2, s.b2) << i;
        EXPECT_FLOAT_EQ(d.r, s.r) << i;
        EXPECT_EQ(d.start, s.start) << i;
        EXPECT_EQ(d.end, s.end) << i;
    }
}

TEST(ElectronicSymbols, SettledDrawingsKeepEveryFigureInOrder) {
    for (const auto& [name, blocks] : settledDrawings) {
        const Symbol* symbol = symbolNamed(name);
        ASSERT_NE(symbol, nullptr) << name;
        ASSERT_EQ(symbol->blocks.size(), blocks.size()) << name;
        const auto first = parsedList(blocks[0].primitives);
        for (std::size_t i = 0; i < blocks.size(); ++i) {
            SCOPED_TRACE(name + "/" + std::to_string(blocks[i].orientation));
            EXPECT_EQ(symbol->blocks[i].orientation, blocks[i].orientation);
            expectSame(expanded(symbol->blocks[i]),
                       blocks[i].turn == Turn::None ? first : turnedList(first, blocks[i]));
        }
    }
}

// What each name owes: where its other end lies from the insertion point, one letter for each
// orientation (Right, Down, Up; empty for symbols without two ends on a line); how many
// orientations it has (0: one drawing for all); its terminals on the 0.25 raster (0: not counted).
struct Duty {
    const char* name;
    std::string ends;
    std::size_t orientations;
    std::size_t terminals = 0;
    Single length = 0.5f;
};

const std::vector<Duty> duties = {
    // clang-format off
    {"InsertResistorHorz", "R", 0, 2}, {"InsertResistorVert", "D", 0, 2},
    {"InsertResistor2", "RU", 2, 2}, {"InsertTrimmer", "RU", 2, 2},
    {"InsertTappedResistor", "RU", 2}, {"InsertPotentiometer", "RURU", 4, 3},
    {"InsertEuroResistor", "RU", 2, 2}, {"InsertEuroTrimmer", "RU", 2, 2},
    {"InsertEuroTappedResistor", "RU", 2, 3}, {"InsertEuroPot", "RURU", 4, 3},
    {"InsertCrystal2", "RU", 2, 2}, {"InsertGround1", "", 0}, {"InsertGround2", "", 0},
    {"InsertSpeaker", "", 4}, {"InsertConnector1", "RRUU", 4, 2, 0.25f},
    {"InsertConnector1_90", "DD", 2, 2, 0.25f}, {"InsertESolenoid", "R", 1, 2},
    {"InsertESolenoid90", "D", 1, 2}, {"InsertSingleCellHorz", "RRRR", 4, 2},
    {"InsertSingleCellVert", "DDDD", 4, 2}, {"InsertDoubleCellHorz", "RRRR", 4, 2},
    {"InsertDoubleCellVert", "D", 0, 2}, {"InsertLED", "RRUU", 4}, {"InsertPhotoDiode", "RRUU", 4},
    {"InsertZenerDiode", "RRUU", 4, 2}, {"InsertSCRH", "RRRR", 4, 3}, {"InsertSCRV", "DDDD", 4, 3},
    {"InsertDiac2", "RU", 2, 2}, {"InsertTriacH", "RRRR", 4, 3}, {"InsertTriacV", "DDDD", 4, 3},
    {"InsertNPNTransistorH", "", 4, 3}, {"InsertNPNTransistorV", "", 4, 3},
    {"InsertPNPTransistorH", "", 4, 3}, {"InsertPNPTransistorV", "", 4, 3},
    {"InsertFETN", "", 4, 3}, {"InsertFETP", "", 4, 3}, {"InsertUJTN", "", 4, 3},
    {"InsertUJTP", "", 4, 3},
    {"InsertDiode", "RRDD", 4, 2}, {"InsertDiodeLeft", "R", 0, 2}, {"InsertDiodeRight", "R", 0, 2},
    {"InsertDiodeUp", "D", 0, 2}, {"InsertDiodeDown", "D", 0, 2}, {"InsertEGround", "", 0},
    {"InsertCrystal", "R", 0, 2}, {"InsertAmplifier", "", 0}, {"InsertOpAmp", "", 0},
    {"InsertResistor", "R", 0, 2}, {"InsertResistor90", "D", 0, 2}, {"InsertVaristor", "R", 0, 2},
    {"InsertVaristor90", "D", 0, 2}, {"InsertBridgeRectifier", "", 4, 4},
    {"InsertNPNTransistor", "", 4, 3}, {"InsertPNPTransistor", "", 4, 3}, {"InsertUJT", "", 2, 3},
    {"InsertDiac", "RD", 2, 2}, {"InsertTriac", "RRDD", 4, 3}, {"InsertProximitySwitch", "RD", 2},
    {"InsertElectronicSwitchNO", "R", 0, 2}, {"InsertElectronicSwitchNC", "R", 0, 2},
    // clang-format on
};

using Place = std::pair<int, int>;  // in ten-thousandths of an inch
Place place(Single a, Single b) {
    return {static_cast<int>(std::lround(a * 10000)), static_cast<int>(std::lround(b * 10000))};
}

std::set<Place> lineEnds(const std::vector<Primitive>& primitives) {
    std::set<Place> result;
    for (const Primitive& p : primitives) {
        if (p.kind != PrimitiveKind::Line) continue;
        result.insert(place(p.a1, p.b1));
        result.insert(place(p.a2, p.b2));
    }
    return result;
}

TEST(ElectronicSymbols, EveryNameHasItsOrientationsAndNoLabel) {
    EXPECT_EQ(modSymbolsElectronic().size(), 38u);
    EXPECT_EQ(modSymbolsOldElectronic().size(), 22u);
    for (const Duty& duty : duties) {
        SCOPED_TRACE(duty.name);
        const Symbol* symbol = symbolNamed(duty.name);
        ASSERT_NE(symbol, nullptr);
        EXPECT_TRUE(symbol->prefix.empty());
        EXPECT_EQ(symbol->blocks.size(), std::max<std::size_t>(duty.orientations, 1));
        for (std::size_t i = 0; i < symbol->blocks.size(); ++i) {
            const int expected = duty.orientations == 0 ? AnyOrientation : static_cast<int>(i);
            EXPECT_EQ(symbol->blocks[i].orientation, expected);
        }
    }
}

TEST(ElectronicSymbols, EndsLieOnTheAxisAndTerminalsOnTheRaster) {
    for (const Duty& duty : duties) {
        const Symbol& symbol = *symbolNamed(duty.name);
        for (std::size_t i = 0; i < symbol.blocks.size(); ++i) {
            SCOPED_TRACE(duty.name + std::string("/") + std::to_string(i));
            const auto primitives = expanded(symbol.blocks[i]);
            const auto ends = lineEnds(primitives);
            EXPECT_TRUE(ends.contains({0, 0}));
            if (duty.terminals > 0) {
                const auto onRaster = std::count_if(ends.begin(), ends.end(), [](Place p) {
                    return p.first % 2500 == 0 && p.second % 2500 == 0;
                });
                EXPECT_EQ(static_cast<std::size_t>(onRaster), duty.terminals);
            }
            if (duty.ends.empty()) continue;
            const bool upright = duty.ends.at(i) != 'R';
            const Single far = duty.ends.at(i) == 'U' ? -duty.length : duty.length;
            EXPECT_TRUE(ends.contains(upright ? place(0, far) : place(far, 0)));
            const Extent e = extentOf(primitives);
            EXPECT_FLOAT_EQ(upright ? e.top : e.left, std::min(far, 0.0f));
            EXPECT_FLOAT_EQ(upright ? e.bottom : e.right, std::max(far, 0.0f));
        }
    }
}

bool overlap(const Primitive& p, const Primitive& q) {
    const double da = p.a2 - p.a1, db = p.b2 - p.b1, length = std::hypot(da, db);
    const auto along = [&](double a, double b) {
        return ((a - p.a1) * da + (b - p.b1) * db) / length;
    };
    const auto aside = [&](double a, double b) {
        return std::abs((a - p.a1) * db - (b - p.b1) * da) / length;
    };
    if (aside(q.a1, q.b1) > 0.001 || aside(q.a2, q.b2) > 0.001) return false;
    const auto [low, high] = std::minmax({along(q.a1, q.b1), along(q.a2, q.b2)});
    return std::min(high, length) - std::max(low, 0.0) > 0.001;
}

TEST(ElectronicSymbols, NoLineIsEmptyOrDrawnTwice) {
    for (const Symbol& symbol : bothGenerations()) {
        std::vector<Primitive> lines = expanded(symbol.blocks[0]);
        std::erase_if(lines, [](const Primitive& p) { return p.kind != PrimitiveKind::Line; });
        for (std::size_t i = 0; i < lines.size(); ++i) {
            EXPECT_GT(std::hypot(lines[i].a2 - lines[i].a1, lines[i].b2 - lines[i].b1), 0.001f)
                << symbol.name << " " << i;
            for (std::size_t k = i + 1; k < lines.size(); ++k)
                EXPECT_FALSE(overlap(lines[i], lines[k])) << symbol.name << " " << i << " " << k;
        }
    }
}

TEST(ElectronicSymbols, NoTwoOrientationsLookAlike) {
    for (const Symbol& symbol : bothGenerations()) {
        std::set<std::set<std::pair<Place, Place>>> looks;
        for (const Block& block : symbol.blocks) {
            std::set<std::pair<Place, Place>> look;
            for (const Primitive& p : expanded(block))
                look.insert(std::minmax({place(p.a1, p.b1), place(p.a2, p.b2)}));
            EXPECT_TRUE(looks.insert(look).second) << symbol.name << "/" << block.orientation;
        }
    }
}

TEST(ElectronicSymbols, SolidPartsAreHatchedInTheSettledCounts) {
    for (const Symbol& symbol : modSymbolsElectronic())
        for (const Block& block : symbol.blocks)
            for (const Primitive& p : block.primitives)
                EXPECT_TRUE(p.kind == PrimitiveKind::Line || p.kind == PrimitiveKind::Box ||
                            p.kind == PrimitiveKind::Circle)
                    << symbol.name;
    for (const Block& block : symbolNamed("InsertNPNTransistorH")->blocks)
        EXPECT_EQ(block.primitives.size(), 26u);
    for (const Block& block : symbolNamed("InsertTriacH")->blocks)
        EXPECT_EQ(block.primitives.size(), 56u);
    EXPECT_EQ(symbolNamed("InsertLED")->blocks[0].primitives.size(),
              symbolNamed("InsertPhotoDiode")->blocks[0].primitives.size());
}

TEST(ElectronicSymbols, DiodesNamedForADirectionStayInInches) {
    for (const char* name : {"InsertDiodeRight", "InsertDiodeUp", "InsertDiodeDown"})
        for (const Primitive& p : expanded(symbolNamed(name)->blocks[0]))
            EXPECT_EQ(p.absolute, AbsAll) << name;
}

}  // namespace
}  // namespace ladrix
