// What the symbols of a family share, and what tells them apart.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <set>

#include "SymbolText.h"

namespace ladrix {
namespace {

constexpr Single Tolerance = 1e-5f;

std::multiset<std::string> lookOf(const std::vector<Primitive>& drawing) {
    std::multiset<std::string> look;
    for (const Primitive& p : drawing)
        look.insert(undirected(p));
    return look;
}

TEST(Families, LieDownByAQuarterTurnOfTheUprightOne) {
    struct Twin {
        const char *lying, *upright;
        std::size_t letter = 0;  // strokes of a letter, the last ones, that stay upright
        Turn turn = Turn::CounterClockwise;
    };
    for (const Twin& twin : {Twin{"CircuitBreaker90", "CircuitBreaker"},
                             {"Fuse", "Fuse90"},
                             {"ContactNC", "ContactNC90"},
                             {"ContactNCOpened", "ContactNC90Opened"},
                             {"ContactNO", "ContactNO90"},
                             {"ContactNOClosed", "ContactNO90Closed"},
                             {"ConnectorRight", "ConnectorDown"},
                             {"Solenoid", "Solenoid90"},
                             {"ThermalOverload", "ThermalOverload90"},
                             {"IECContactNOHorz", "IECContactNO"},
                             {"IECContactNCHorz", "IECContactNC"},
                             {"IECProxNOHorz", "IECProxNO"},
                             {"IECProxNCHorz", "IECProxNC"},
                             {"IECCircuitBreakerVert", "IECCircuitBreaker"},
                             {"IECFuse", "IECFuseVert"},
                             {"IECConnector/0", "IECConnector90/0"},
                             {"IECPSHorz/0", "IECPSVert/0", 2},
                             {"IECPSHorz/1", "IECPSVert/1", 2},
                             {"IECMHPBHorz/0", "IECMHPBVert/0"},
                             {"IECMHPBHorz/1", "IECMHPBVert/1"},
                             {"IECMHPBHorz/2", "IECMHPBHorz/0", 0, Turn::MirrorTopBottom},
                             {"IECMHPBVert/3", "IECMHPBVert/1", 0, Turn::MirrorLeftRight}}) {
        std::vector<Primitive> lying = drawing(twin.lying), upright = drawing(twin.upright);
        ASSERT_EQ(lying.size(), upright.size()) << twin.lying;
        lying.resize(lying.size() - twin.letter);
        upright.resize(lying.size());
        for (Primitive& p : upright)
            p = turned(p, twin.turn, 0, 0);
        EXPECT_EQ(lookOf(lying), lookOf(upright)) << twin.lying;
    }
}

// How far the blade of a switch passes above (positive) the centre of its right terminal.
Single bladeAboveTerminal(const std::string& name) {
    for (const Primitive& p : drawing(name))
        if (p.kind == PrimitiveKind::Line && p.a1 == 0.075f && p.a2 == 0.5f)
            return 0.3875f * -p.b2 / std::hypot(p.a2 - p.a1, p.b2);
    return 99;
}

TEST(NEMASwitches, RestOnTheirTerminalOrClearItAndDifferInNothingElse) {
    constexpr Single Radius = 0.0375f;
    for (const std::string family : {"FloatSwitch", "PS", "LS", "FlowSwitch", "FootSwitch",
                                     "ThermalSwitch", "OnDelay", "OffDelay", "GPSwitch"}) {
        SCOPED_TRACE(family);
        EXPECT_NEAR(bladeAboveTerminal(family + "NC"), Radius, 5e-4f);
        if (family == "GPSwitch") continue;  // its open one is drawn apart
        EXPECT_LT(bladeAboveTerminal(family + "NO"), -2 * Radius);
        std::vector<std::string> others = {"NC"};
        if (family == "FloatSwitch" || family == "PS" || family == "LS") {
            EXPECT_NEAR(bladeAboveTerminal(family + "NOHC"), -Radius, 5e-4f);
            EXPECT_GT(bladeAboveTerminal(family + "NCHO"), 2 * Radius);
            others = {"NC", "NCHO", "NOHC"};
        }
        if (family == "LS") continue;  // what hangs from its blade has two strokes
        for (const std::string& other : others) {
            const auto open = textOf(drawing(family + "NO")),
                       made = textOf(drawing(family + other));
            ASSERT_EQ(open.size(), made.size());
            EXPECT_EQ(std::inner_product(open.begin(), open.end(), made.begin(), 0, std::plus<>(),
                                         std::not_equal_to<>()),
                      2)
                << other << ": the blade and the stroke that hangs from it";
        }
    }
}

TEST(SpecialCoil, ShowsTheAccessoriesWithoutTheDots) {
    for (const auto& [special, dotted] :
         {std::pair{"SpecialCoil/0", "CoilSuppressor"}, {"SpecialCoil/1", "CoilDiodeLeft"}}) {
        auto expected = textOf(drawing(dotted));
        EXPECT_EQ(*std::prev(expected.end(), 4), "On") << dotted;
        expected.resize(expected.size() - 4);
        EXPECT_EQ(textOf(drawing(special)), expected);
    }
}

TEST(Fills, AreOfCoilDotsAndTheThermometersBulbAlone) {
    std::set<std::string> filled;
    for (const Symbol& symbol : allSymbols())
        for (const std::string& name : drawingsOf(symbol)) {
            std::string fills;
            for (const Primitive& p : drawing(name))
                if (p.kind >= PrimitiveKind::SolidFillOn) fills += textOf(p) + ' ';
            if (!fills.empty()) filled.insert(name + ": " + fills);
        }
    EXPECT_EQ(filled,
              (std::set<std::string>{"CoilDiodeLeft/0: On Off ", "CoilDiodeRight/0: On Off ",
                                     "CoilSuppressor/0: On Off ", "SpecialCoil/2: On Off ",
                                     "SpecialCoil/3: On Off ", "SpecialCoil/4: On Off ",
                                     "TemperatureGauge/0: style on style off "}));
}

// What stands left of the blade but the link: the mark by which a switch is told from the others.
std::set<std::string> markOf(const std::vector<Primitive>& primitives) {
    std::set<std::string> mark;
    for (const Primitive& p : primitives) {
        const bool link = p.kind == PrimitiveKind::Line && p.b1 == 0.125f && p.b2 == 0.125f;
        if (!link && extentOf({&p, 1}).right < -0.18f) mark.insert(undirected(p));
    }
    return mark;
}

TEST(IECSwitches, MakeAndBreakDifferInTheContactAloneAndFamiliesInTheirMark) {
    std::set<std::set<std::string>> marks;
    for (const std::string family :
         {"PB", "GP", "Pull", "Twist", "Key", "Micro", "TS", "Prox", "Float", "Flow", "PS"}) {
        SCOPED_TRACE(family);
        const auto makes = drawing("IEC" + family + "NO"), breaks = drawing("IEC" + family + "NC");
        EXPECT_TRUE(std::ranges::includes(lookOf(makes), lookOf(drawing("IECContactNO"))));
        EXPECT_TRUE(std::ranges::includes(lookOf(breaks), lookOf(drawing("IECContactNC"))));
        EXPECT_EQ(markOf(makes), markOf(breaks));
        EXPECT_TRUE(marks.insert(markOf(makes)).second) << "two families share one mark";
        EXPECT_TRUE(meets(makes, -0.25f, 0.125f) && meets(breaks, -0.25f, 0.125f));
        if (family == "Micro") continue;  // its link ends at the triangle on the blade
        EXPECT_TRUE(meets(makes, -0.0625f, 0.125f) && meets(breaks, 0.0625f, 0.125f));
    }
}

using Place = std::pair<long, long>;  // in ten-thousandths of an inch
Place place(Single a, Single b) {
    return {std::lround(a * 10000), std::lround(b * 10000)};
}

TEST(ElectronicSymbols, SpanTheirAxisAndHaveNoTerminalsButTheirOwn) {
    struct Duty {
        std::string ends;  // towards which the far end lies: Right, Down, Up; in each drawing
        std::ptrdiff_t terminals;  // line ends on quarters of an inch; 0: not counted
        Single length;
        std::string names;
    };
    for (const Duty& duty : {
             // clang-format off
             Duty{"R", 2, 0.5f, 
              "ResistorHorz ESolenoid SingleCellHorz DoubleCellHorz DiodeLeft DiodeRight "
              "Crystal Resistor Varistor ElectronicSwitchNO ElectronicSwitchNC"},
             {"D", 2, 0.5f, 
              "ResistorVert ESolenoid90 SingleCellVert DoubleCellVert DiodeUp DiodeDown "
              "Resistor90 Varistor90"},
             {"RU", 2, 0.5f, "Resistor2 Trimmer EuroResistor EuroTrimmer Crystal2 Diac2"},
             {"RU", 0, 0.5f, "TappedResistor"},
             {"RU", 3, 0.5f, "EuroTappedResistor Potentiometer EuroPot"},
             {"RRUU", 2, 0.25f, "Connector1"},
             {"D", 2, 0.25f, "Connector1_90"},
             {"RRUU", 0, 0.5f, "LED PhotoDiode"},
             {"RRUU", 2, 0.5f, "ZenerDiode"},
             {"R", 3, 0.5f, "SCRH TriacH"},
             {"D", 3, 0.5f, "SCRV TriacV"},
             {"RRDD", 2, 0.5f, "Diode"},
             {"RRDD", 3, 0.5f, "Triac"},
             {"RD", 2, 0.5f, "Diac"},
             {"RD", 0, 0.5f, "ProximitySwitch"},
             {"", 3, 0, 
              "NPNTransistorH NPNTransistorV PNPTransistorH PNPTransistorV FETN FETP UJTN UJTP "
              "NPNTransistor PNPTransistor UJT"},
             {"", 4, 0, "BridgeRectifier"},
             {"", 0, 0, "Ground1 Ground2 Speaker EGround Amplifier OpAmp"}
             // clang-format on
         }) {
        for (const std::string& symbol : words(duty.names)) {
            const std::vector<std::string> drawings = drawingsOf(symbolNamed(symbol));
            for (std::size_t i = 0; i < drawings.size(); ++i) {
                SCOPED_TRACE(drawings[i]);
                const std::vector<Primitive> all = drawing(drawings[i]);
                std::set<Place> ends;
                for (const Primitive& p : all)
                    if (p.kind == PrimitiveKind::Line)
                        ends.insert({place(p.a1, p.b1), place(p.a2, p.b2)});
                EXPECT_TRUE(ends.contains({0, 0}));
                const auto onRaster = std::ranges::count_if(ends, [](const Place& end) {
                    return end.first % 2500 == 0 && end.second % 2500 == 0;
                });
                EXPECT_TRUE(duty.terminals == 0 || onRaster == duty.terminals) << onRaster;
                if (duty.ends.empty()) continue;
                const char direction = duty.ends[i % duty.ends.size()];
                const bool upright = direction != 'R';
                const Single far = direction == 'U' ? -duty.length : duty.length;
                EXPECT_TRUE(ends.contains(upright ? place(0, far) : place(far, 0)));
                const Extent extent = extentOf(all);
                EXPECT_FLOAT_EQ(upright ? extent.top : extent.left, std::min(far, 0.0f));
                EXPECT_FLOAT_EQ(upright ? extent.bottom : extent.right, std::max(far, 0.0f));
            }
        }
    }
}

TEST(ElectronicSymbols, AreHatchedWhereSolidAndInInchesWhereNamedForADirection) {
    for (const auto& [name, strokes] : {std::pair{"NPNTransistorH", 26u}, {"TriacH", 56u}}) {
        for (const std::string& each : drawingsOf(symbolNamed(name)))
            EXPECT_EQ(drawing(each).size(), strokes) << each;
    }
    EXPECT_EQ(drawing("LED").size(), drawing("PhotoDiode").size());
    for (const char* name : {"DiodeRight", "DiodeUp", "DiodeDown"})
        for (const Primitive& p : drawing(name))
            EXPECT_EQ(p.absolute, AbsAll) << name;
}

TEST(FluidPower, KeepsItsSizeWhenTurned) {
    for (const Symbol& symbol : modSymbolsOldHyd()) {
        if (symbol.name == "InsertToTank") continue;  // its second drawing is another one
        std::set<std::pair<long, long>> sizes;
        for (const Block& block : symbol.blocks) {
            const Extent extent = extentOf(expanded(block));
            sizes.insert(std::minmax(
                {std::lround(extent.width() * 5000), std::lround(extent.height() * 5000)}));
        }
        EXPECT_EQ(sizes.size(), 1u) << symbol.name;
    }
}

TEST(FluidPower, EnvelopesActuatorsAndPathsMeetAtTheSameEdges) {
    for (const char* name : {"SingleEnvelope", "Env4PL", "Env4PC", "Env4PC2", "Env4PR",
                             "DoubleEnvelope", "TripleEnvelope"})
        for (const std::string& each : drawingsOf(symbolNamed(name))) {
            const Extent extent = extentOf(drawing(each));
            EXPECT_TRUE(extent.left == 0 && extent.top == 0) << each;
            EXPECT_EQ(std::min(extent.width(), extent.height()), 0.5f) << each;
        }
    for (const char* name : {"DirectionalArrowsLeft", "DirectionalArrowsRight"})
        for (const std::string& each : drawingsOf(symbolNamed(name))) {
            const Extent extent = extentOf(drawing(each));
            EXPECT_EQ(std::max(extent.right, extent.bottom), 0.5f) << each;
            EXPECT_EQ(std::min(extent.left, extent.top), 0) << each;
        }
    const auto edge = [](const std::string& name, Single Extent::*side) {
        return extentOf(drawing(name)).*side;
    };
    for (const std::string name : {"Spring", "ManuallyActuated", "PushButtonActuated",
                                   "RollerActuated", "HandLeverActuated", "HandLeverActuated2"}) {
        EXPECT_EQ(edge(name + "/0", &Extent::right), 0) << name;
        EXPECT_EQ(edge(name + "/1", &Extent::left), 0) << name;
        EXPECT_EQ(edge(name + "/2", &Extent::bottom), 0) << name;
        EXPECT_EQ(edge(name + "/3", &Extent::top), 0) << name;
    }
    for (const std::string name : {"SolR", "DetentR"}) {
        EXPECT_EQ(edge(name + "/0", &Extent::left), 0) << name;
        EXPECT_EQ(edge(name + "/1", &Extent::top), 0) << name;
    }
}

TEST(FluidPower, SpringsHaveSixEqualStrokesEndToEnd) {
    for (const Symbol& symbol : modSymbolsOldHyd()) {
        const bool cylinder =
            symbol.name.ends_with("SpringReturn") || symbol.name.ends_with("SpringAdvance");
        if (!cylinder && symbol.name != "InsertSpring") continue;
        std::vector<Primitive> spring = expanded(symbol.blocks[0]);
        if (cylinder) spring.erase(spring.begin(), spring.begin() + 3);
        ASSERT_EQ(spring.size(), 6u) << symbol.name;
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_NEAR(lengthOf(spring[i]), std::hypot(0.0625, 0.1875), Tolerance) << symbol.name;
            EXPECT_TRUE(i == 0 || meets({spring[i - 1]}, spring[i].a1, spring[i].b1));
        }
    }
}

TEST(FluidPower, HeadsAreHatchedDenselyEnoughToReadAsSolid) {
    for (const auto& [name, heads] : {std::pair{"SolidArrow", 1u},
                                      {"HydPump", 1u},
                                      {"HydMotor", 1u},
                                      {"BidirectionalPump", 2u}}) {
        std::set<Single> columns;
        for (const Primitive& p : drawing(name))
            if (p.kind == PrimitiveKind::Line && p.a1 == p.a2) columns.insert(p.a1);
        EXPECT_GT(columns.size(), 12 * heads) << name;
        std::size_t gaps = 0;
        for (auto next = std::next(columns.begin()); next != columns.end(); ++next)
            gaps += *next - *std::prev(next) > 1.0f / 96 ? 1 : 0;
        EXPECT_EQ(gaps, heads - 1) << name;
    }
}

}  // namespace
}  // namespace ladrix
