#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "symbols/Libraries.h"
#include "symbols/Shapes.h"

using namespace ladrix;

namespace {

// Lines L a1 b1 a2 b2, filled boxes F a1 b1 a2 b2, arcs A a b r start end.
struct Drawing {
    const char* name;
    Short orientation;
    Single labelA, labelB;
    bool labelAbsolute;
    const char* primitives;
};

// clang-format off
const Drawing Drawings[] = {
    {"Connector", 0, 0, 0, false,
     "A 0.1375 0 0.0375 270 90; F 0.0625 -0.0125 0.1375 0.0125; L 0 0 0.0625 0; L 0.175 0 0.25 0"},
    {"Connector", 1, 0, 0, false,
     "A 0.1125 0 0.0375 90 270; F 0.1875 -0.0125 0.1125 0.0125; L 0.25 0 0.1875 0; L 0.075 0 0 0"},
    {"Connector", 3, 0, 0, false,
     "A 0 0.1375 0.0375 180 360; F -0.0125 0.05 0.0125 0.1375; L 0 0 0 0.05; L 0 0.175 0 0.25"},
    {"Connector", 4, 0, 0, false,
     "A 0 0.1125 0.0375 360 180; F -0.0125 0.1125 0.0125 0.2; L 0 0 0 0.075; L 0 0.2 0 0.25"},
    {"ContactNO", AnyOrientation, -0.25, 0.25, false,
     "L 0 0 0 0.0625; L -0.125 0 0 0.25; L 0 0.25 0 0.5"},
    {"ContactNC", AnyOrientation, -0.1875, 0.25, false,
     "L 0 0 0 0.0625; L 0 0.0625 0.15 0.0625; L 0.125 0 0 0.25; L 0 0.25 0 0.5"},
    {"CircuitBreaker", AnyOrientation, 0, 0, false,
     "L 0 0 0 0.15; L 0 0.35 0 0.5; L -0.25 0.15 0.25 0.15; L 0.25 0.15 0.25 0.35; "
     "L -0.25 0.35 0.25 0.35; L -0.25 0.15 -0.25 0.35; L 0 0.15 0 0.1875; "
     "L 0 0.1875 0.125 0.1875; L 0.125 0.1875 0.125 0.3125; L 0 0.3125 0.125 0.3125; "
     "L 0 0.3125 0 0.35"},
    {"Fuse", AnyOrientation, 0.25, -0.1875, true,
     "L 0 0 0.5 0; L 0.05 -0.075 0.45 -0.075; L 0.45 -0.075 0.45 0.075; "
     "L 0.05 0.075 0.45 0.075; L 0.05 -0.075 0.05 0.075"},
    {"OnDelayNO", AnyOrientation, -0.375, 0.125, true,
     "L 0 0 0 0.0625; L -0.125 0 0 0.25; L 0 0.25 0 0.5; L -0.25 0.125 -0.0625 0.125; "
     "L -0.25 0.175 -0.0375 0.175; A -0.15 0.15 0.1 120 240"},
    {"OffDelayNO", AnyOrientation, -0.375, 0.125, true,
     "L 0 0 0 0.0625; L 0 0.25 0 0.5; L -0.225 0.125 -0.0625 0.125; "
     "L -0.225 0.175 -0.0375 0.175; A -0.321 0.1529 0.1 300 60; L -0.125 0 0 0.25"},
    {"RelayCoil", AnyOrientation, 0, 0.25, false,
     "L 0 0 0 0.15; L 0 0.35 0 0.5; L -0.25 0.15 0.25 0.15; L 0.25 0.15 0.25 0.35; "
     "L -0.25 0.35 0.25 0.35; L -0.25 0.15 -0.25 0.35"},
    {"Solenoid", AnyOrientation, -0.375, 0.25, false,
     "L -0.25 0.15 0.25 0.15; L 0.25 0.15 0.25 0.35; L -0.25 0.35 0.25 0.35; "
     "L -0.25 0.15 -0.25 0.35; L 0 0 0 0.15; L 0 0.35 0 0.5; L 0.25 0.25 0.3 0.25; "
     "L 0.325 0.25 0.375 0.25; L 0.4 0.25 0.45 0.25; L 0.4 0.15 0.5 0.35; L 0.4 0.35 0.5 0.35; "
     "L 0.4 0.35 0.5 0.15; L 0.4 0.15 0.5 0.15; L 0.125 0.15 -0.125 0.35"},
    {"PBNO", AnyOrientation, -0.25, 0.375, false,
     "L 0 0 0 0.0625; L 0 0.25 0 0.5; L -0.25 0.125 -0.2 0.125; L -0.175 0.125 -0.125 0.125; "
     "L -0.1 0.125 -0.0625 0.125; L -0.25 0.0625 -0.2 0.0625; L -0.25 0.0625 -0.25 0.1875; "
     "L -0.25 0.1875 -0.2 0.1875; L -0.125 0 0 0.25"},
    {"GPNO", AnyOrientation, -0.25, 0.375, false,
     "L 0 0 0 0.0625; L -0.125 0 0 0.25; L 0 0.25 0 0.5; L -0.25 0.125 -0.2 0.125; "
     "L -0.175 0.125 -0.125 0.125; L -0.1 0.125 -0.0625 0.125; L -0.25 0.0625 -0.25 0.1875"},
};

const std::pair<const char*, const char*> Prefixes[] = {
    {"K", "ContactNOHorz ContactNCHorz ContactNO ContactNC RelayCoil SpecialRelayCoil"},
    {"FU", "Fuse FuseVert"},
    {"T", "OnDelayNO OffDelayNC OffDelayNO OnDelayNC OnDelayCoil OffDelayCoil"},
    {"PS", "PSNC PSVert PSHorz PSNO"},
    {"Y", "Solenoid"},
    {"PRX", "ProxNC ProxNCHorz ProxNO ProxNOHorz"},
    {"TS", "TSNC TSNO"},
    {"FLW", "FlowNC FlowNO"},
    {"PB", "TwistNC PBNO GPNC GPNO PullNC PullNO"},
    {"SW", "TwistNO"},
    {"F", "FootSwitchNO"},
    {"KS", "PBNC KeyNC KeyNO"},
    {"LS", "MicroNC MicroNO"},
    {"FL", "FloatNO FloatNC"},
    {"EM", "MHPBVert MHPBHorz"},
    {"", "Connector Connector90 CircuitBreaker CircuitBreakerVert"},
};
// clang-format on

const Symbol& symbol(const std::string& name) {
    for (const Symbol& s : modSymbolsIEC())
        if (s.name == "InsertIEC" + name) return s;
    throw std::out_of_range(name);
}

std::vector<Primitive> drawn(const std::string& name, Short orientation = AnyOrientation) {
    for (const Block& block : symbol(name).blocks)
        if (block.orientation == orientation) return expanded(block);
    return {};
}

std::string number(Single value) {
    return std::to_string(std::lround(value * 1e6f)) + ' ';
}

// A primitive as text that compares; `exact` keeps the direction of a line.
std::string keyOf(const Primitive& p, bool exact = false) {
    std::string from = number(p.a1) + number(p.b1), to = number(p.a2) + number(p.b2);
    if (!exact && p.kind == PrimitiveKind::Line && to < from) std::swap(from, to);
    const bool arc = p.kind == PrimitiveKind::Arc || p.kind == PrimitiveKind::Circle;
    const std::string rest = arc ? number(p.r) + number(p.start) + number(p.end) : to;
    return std::to_string(static_cast<int>(p.kind)) + ": " + from + rest +
           (p.absolute != 0 ? "abs" : "");
}

std::set<std::string> keysOf(const std::vector<Primitive>& primitives) {
    std::set<std::string> keys;
    for (const Primitive& p : primitives)
        keys.insert(keyOf(p));
    return keys;
}

Primitive read(std::istream& in) {
    char kind = 0, separator = 0;
    Single a1 = 0, b1 = 0, c = 0, d = 0, e = 0;
    in >> kind >> a1 >> b1 >> c >> d;
    if (kind == 'A') in >> e;
    in >> separator;
    if (kind == 'A') return art::Arc(a1, b1, c, d, e);
    return kind == 'F' ? art::FilledBox(a1, b1, c, d) : art::Line(a1, b1, c, d);
}

bool lineEndsAt(const std::vector<Primitive>& primitives, Single a, Single b) {
    const std::string point = number(a) + number(b);
    return std::ranges::any_of(primitives, [&](const Primitive& p) {
        return p.kind == PrimitiveKind::Line &&
               (number(p.a1) + number(p.b1) == point || number(p.a2) + number(p.b2) == point);
    });
}

// Whether a primitive runs through the box about (a, b).
bool crosses(const Primitive& p, Single a, Single b, Single halfWidth, Single halfHeight) {
    const bool arc = p.kind == PrimitiveKind::Arc, round = arc || p.kind == PrimitiveKind::Circle;
    const Single sweep = arc ? std::fmod(p.end - p.start + 720, 360.0f) : 360;
    for (Single t = 0; t <= 1; t += 1.0f / 64) {
        const Single angle = (p.start + sweep * t) * static_cast<Single>(Pi / 180);
        const Single x = round ? p.a1 + p.r * std::cos(angle) : p.a1 + (p.a2 - p.a1) * t;
        const Single y = round ? p.b1 - p.r * std::sin(angle) : p.b1 + (p.b2 - p.b1) * t;
        if (std::abs(x - a) < halfWidth && std::abs(y - b) < halfHeight) return true;
    }
    return false;
}

// What stands left of the blade but the link: the mark by which a switch is told from the others.
std::set<std::string> markOf(const std::vector<Primitive>& primitives) {
    std::set<std::string> mark;
    for (const Primitive& p : primitives) {
        const bool link = p.kind == PrimitiveKind::Line && p.b1 == 0.125f && p.b2 == 0.125f;
        if (!link && extentOf({&p, 1}).right < -0.18f) mark.insert(keyOf(p));
    }
    return mark;
}

}  // namespace

TEST(IECSymbols, AreDrawnAndLabelledAsListed) {
    for (const Drawing& drawing : Drawings) {
        SCOPED_TRACE(drawing.name + std::string(" ") + std::to_string(drawing.orientation));
        std::istringstream list(drawing.primitives);
        std::vector<std::string> expected, actual;
        while (list)
            expected.push_back(keyOf(read(list), true));
        for (const Primitive& p : drawn(drawing.name, drawing.orientation))
            actual.push_back(keyOf(p, true));
        EXPECT_EQ(actual, expected);
        const Symbol& s = symbol(drawing.name);
        EXPECT_EQ(s.labelA, drawing.labelA);
        EXPECT_EQ(s.labelB, drawing.labelB);
        EXPECT_EQ(s.labelAbsolute, drawing.labelAbsolute);
    }
}

TEST(IECSymbols, CarryTheirPrefixesClearOfTheDrawing) {
    std::map<std::string, std::string> expected, actual;
    for (const auto& [prefix, names] : Prefixes) {
        std::istringstream list(names);
        for (std::string name; list >> name;)
            expected["InsertIEC" + name] = prefix;
    }
    ASSERT_EQ(modSymbolsIEC().size(), 48u);
    for (const Symbol& s : modSymbolsIEC()) {
        actual.emplace(s.name, s.prefix);
        EXPECT_EQ(s.nameWithoutLabel, s.name == "InsertIECSolenoid" ? "InsertIECRelayCoil" : "");
        const Single halfWidth = 0.04f * static_cast<Single>(s.prefix.size());
        for (const Block& block : s.blocks)
            for (const Primitive& p : expanded(block))
                EXPECT_FALSE(crosses(p, s.labelA, s.labelB, halfWidth, 0.065f)) << s.name;
    }
    EXPECT_EQ(actual, expected);
}

TEST(IECSymbols, HaveTheOrientationsOfTheirButtonsEachItsOwnDrawing) {
    const std::map<std::string, std::vector<Short>> several = {
        {"InsertIECConnector", {0, 1, 3, 4}}, {"InsertIECConnector90", {0, 1}},
        {"InsertIECPSVert", {0, 1}},          {"InsertIECPSHorz", {0, 1}},
        {"InsertIECMHPBVert", {0, 1, 2, 3}},  {"InsertIECMHPBHorz", {0, 1, 2, 3}}};
    for (const Symbol& s : modSymbolsIEC()) {
        std::vector<Short> orientations;
        std::set<std::set<std::string>> drawings;
        for (const Block& block : s.blocks) {
            orientations.push_back(block.orientation);
            const std::set<std::string> keys = keysOf(expanded(block));
            EXPECT_EQ(keys.size(), block.primitives.size()) << s.name << " doubles a line";
            EXPECT_TRUE(drawings.insert(keys).second) << s.name << " draws two alike";
        }
        const auto found = several.find(std::string(s.name));
        EXPECT_EQ(orientations,
                  found == several.end() ? std::vector<Short>{AnyOrientation} : found->second)
            << s.name;
    }
}

TEST(IECSymbols, MeetTheWiresAtBothTerminals) {
    const std::set<std::string> lying = {
        "CircuitBreakerVert", "ContactNCHorz", "ContactNOHorz", "Fuse",
        "MHPBHorz",           "PSHorz",        "ProxNCHorz",    "ProxNOHorz"};
    for (const Symbol& s : modSymbolsIEC()) {
        const std::string name(s.name.substr(std::string("InsertIEC").size()));
        const Single length = name.starts_with("Connector") ? 0.25f : 0.5f;
        for (const Block& block : s.blocks) {
            const bool across =
                lying.contains(name) || (name == "Connector" && block.orientation < 3);
            SCOPED_TRACE(name + " " + std::to_string(block.orientation));
            EXPECT_TRUE(lineEndsAt(expanded(block), 0, 0));
            EXPECT_TRUE(lineEndsAt(expanded(block), across ? length : 0, across ? 0 : length));
        }
    }
}

TEST(IECSymbols, LieDownByAQuarterTurnOfTheirTwins) {
    struct Twin {
        const char *lying, *upright;
        Short orientation, base;
        Turn turn;
    };
    const Twin twins[] = {{"ContactNOHorz", "ContactNO", -1, -1, Turn::CounterClockwise},
                          {"ContactNCHorz", "ContactNC", -1, -1, Turn::CounterClockwise},
                          {"ProxNOHorz", "ProxNO", -1, -1, Turn::CounterClockwise},
                          {"ProxNCHorz", "ProxNC", -1, -1, Turn::CounterClockwise},
                          {"CircuitBreakerVert", "CircuitBreaker", -1, -1, Turn::CounterClockwise},
                          {"Fuse", "FuseVert", -1, -1, Turn::CounterClockwise},
                          {"Connector", "Connector90", 0, 0, Turn::CounterClockwise},
                          {"PSHorz", "PSVert", 0, 0, Turn::CounterClockwise},
                          {"PSHorz", "PSVert", 1, 1, Turn::CounterClockwise},
                          {"MHPBHorz", "MHPBVert", 0, 0, Turn::CounterClockwise},
                          {"MHPBHorz", "MHPBVert", 1, 1, Turn::CounterClockwise},
                          {"MHPBHorz", "MHPBHorz", 2, 0, Turn::MirrorTopBottom},
                          {"MHPBVert", "MHPBVert", 3, 1, Turn::MirrorLeftRight}};
    for (const Twin& twin : twins) {
        SCOPED_TRACE(twin.lying);
        const auto actual = drawn(twin.lying, twin.orientation);
        const auto upright = drawn(twin.upright, twin.base);
        ASSERT_EQ(actual.size(), upright.size());
        // The letter of a pressure switch, the last two, stays upright.
        const std::size_t letter = std::string(twin.lying) == "PSHorz" ? 2 : 0;
        for (std::size_t i = 0; i < actual.size() - letter; ++i)
            EXPECT_EQ(keyOf(actual[i]), keyOf(turned(upright[i], twin.turn, 0, 0)));
    }
}

TEST(IECSymbols, MakeAndBreakDifferInTheContactAlone) {
    std::set<std::set<std::string>> marks;
    for (const std::string family :
         {"PB", "GP", "Pull", "Twist", "Key", "Micro", "TS", "Prox", "Float", "Flow", "PS"}) {
        SCOPED_TRACE(family);
        const auto make = drawn(family + "NO"), breaks = drawn(family + "NC");
        EXPECT_TRUE(std::ranges::includes(keysOf(make), keysOf(drawn("ContactNO"))));
        EXPECT_TRUE(std::ranges::includes(keysOf(breaks), keysOf(drawn("ContactNC"))));
        EXPECT_EQ(markOf(make), markOf(breaks));
        EXPECT_TRUE(marks.insert(markOf(make)).second) << "two families share one mark";
        EXPECT_TRUE(lineEndsAt(make, -0.25f, 0.125f) && lineEndsAt(breaks, -0.25f, 0.125f));
        if (family == "Micro") continue;  // its link ends at the triangle on the blade
        EXPECT_TRUE(lineEndsAt(make, -0.0625f, 0.125f));
        EXPECT_TRUE(lineEndsAt(breaks, 0.0625f, 0.125f));
    }
}
