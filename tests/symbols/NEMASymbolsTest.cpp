// The relay logic symbols: the drawings that are fixed stroke by stroke, and what a family shares.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "symbols/Libraries.h"
#include "symbols/Shapes.h"

namespace ladrix {
namespace {

constexpr Short Any = AnyOrientation;
constexpr Single Tolerance = 1e-5f;

// clang-format off
struct FixedDrawing {
    std::string name;
    Short orientation;
    std::string strokes;  // figures in the order of the primitive's; "i" behind one: inches
};
const FixedDrawing FixedDrawings[] = {
    {"Battery", Any,
     "Line 0 0 0.0625 0; Line 0.0625 -0.2 0.0625 0.2; Line 0.1875 -0.125 0.1875 0.125; "
     "Line 0.3125 -0.2 0.3125 0.2; Line 0.4375 -0.125 0.4375 0.125; Line 0.4375 0 0.5 0; "
     "Line 0.5 0 0.5 0"},
    {"Capacitor", 0,
     "Line 0 0 0.0875 0; Line 0.0875 -0.125 0.0875 0.125; Line 0.1625 0 0.25 0; "
     "Arc 0.3375 0 0.175 135 225"},
    {"Capacitor", 1,
     "Line 0.25 0 0.1625 0; Line 0.1625 -0.125 0.1625 0.125; Line 0.0875 0 0 0; "
     "Arc -0.0875 0 0.175 315 45"},
    {"Capacitor", 2,
     "Line 0 0.25 0 0.1625; Line -0.125 0.1625 0.125 0.1625; Line 0 0.0875 0 0; "
     "Arc 0 -0.0875 0.175 225 315"},
    {"Capacitor", 3,
     "Line 0 0 0 0.0875; Line 0.125 0.0875 -0.125 0.0875; Line 0 0.1625 0 0.25; "
     "Arc 0 0.3375 0.175 45 135"},
    {"CircuitBreaker90", Any,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Arc 0.25 0.3375 0.5 60 120"},
    {"ContactNC", Any,
     "Line 0 0 0.175 0; Line 0.175 -0.15 0.175 0.15; Line 0.325 -0.15 0.325 0.15; "
     "Line 0.325 0 0.5 0; Line 0.1 -0.1 0.4 0.1"},
    {"ContactNOClosed", Any,
     "Line 0.1125 -0.15 0.175 -0.15; Line 0.175 -0.15 0.175 0.15; Line 0.1125 0.15 0.175 0.15; "
     "Line 0 0 0.175 0; Line 0.325 -0.15 0.3875 -0.15; Line 0.325 -0.15 0.325 0.15; "
     "Line 0.325 0.15 0.3875 0.15; Line 0.325 0 0.5 0; Line 0.4 -0.1 0.1 0.1"},
    {"ContactNO", Any,
     "Line 0 0 0.175 0; Line 0.175 -0.15 0.175 0.15; Line 0.325 -0.15 0.325 0.15; "
     "Line 0.325 0 0.5 0"},
    {"Disconnect", Any, "Line 0 0 0 0.1; Line 0.125 0 0 0.375; Line 0 0.375 0 0.5"},
    {"EStop", Any,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0 0.0375 0.5 0.0375; "
     "Line 0.25 -0.2125 0.25 0.0375; Arc 0.25 -0.0375 0.175 45 135"},
    {"Fuse", Any,
     "Line 0 0 0.05 0; Line 0.45 0 0.5 0; Line 0.05 -0.075 0.45 -0.075; "
     "Line 0.45 -0.075 0.45 0.075; Line 0.05 0.075 0.45 0.075; Line 0.05 -0.075 0.05 0.075; "
     "Line 0.15 -0.075 0.15 0.075; Line 0.35 -0.075 0.35 0.075"},
    {"Ground", Any,
     "Line 0 0 0 0.175; Line -0.15 0.175 0.15 0.175; Line -0.1 0.275 0.1 0.275; "
     "Line -0.05 0.375 0.05 0.375"},
    {"Lamp", Any,
     "Circle 0.25 0 0.175; Line 0 0 0.075 0; Line 0.425 0 0.5 0; Line 0 -0.25 0.075 -0.175; "
     "Line 0.5 -0.25 0.425 -0.175; Line 0.425 0.175 0.5 0.25; Line 0.075 0.175 0 0.25"},
    {"LSNO", Any,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0.075 0 0.5 0.15; "
     "Line 0.075 0 0.25 0.1625; Line 0.25 0.1625 0.3625 0.1"},
    {"OffDelayNO", Any,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0.25 0.05 0.25 0.3125; "
     "Line 0.175 0.2125 0.25 0.3125; Line 0.25 0.3125 0.325 0.2125; Line 0.075 0 0.5 0.125"},
    {"OnDelayNO", Any,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0.25 0.05 0.25 0.2875; "
     "Line 0.1625 0.375 0.25 0.2875; Line 0.075 0 0.5 0.125; Line 0.25 0.2875 0.3375 0.375"},
    {"GPSwitch", Any, "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0.075 0 0.5 0.125"},
    {"PBNC", Any,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0.25 -0.2125 0.25 0.0375; "
     "Line 0 0.0375 0.5 0.0375"},
    {"PBNO", Any,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0.25 -0.375 0.25 -0.125; "
     "Line 0 -0.125 0.5 -0.125"},
    {"RelayCoil", Any, "Circle 0.25 0 0.25"},
    {"CoilSuppressor", 0,
     "Circle 0.25 0 0.25; Line -0.125 0 -0.125 0.5; Line -0.125 0.5 0.125 0.5; "
     "Line 0.625 0 0.625 0.5; Line 0.375 0.5 0.625 0.5; Line 0.125 0.45 0.375 0.45; "
     "Line 0.375 0.45 0.375 0.5375; Line 0.125 0.5375 0.375 0.5375; Line 0.125 0.45 0.125 0.5375; "
     "Line 0.3 0.4 0.375 0.4; Line 0.3 0.4 0.1875 0.5875; Line 0.125 0.5875 0.1875 0.5875; On; "
     "Circle -0.125 0 0.025i; Circle 0.625 0 0.025i; Off"},
    {"Solenoid", 0,
     "Line 0 0 0.0625 0; Line 0.0625 0 0.1625 -0.1625; Line 0.1625 -0.1625 0.3375 0.15; "
     "Line 0.3375 0.15 0.4375 0; Line 0.4375 0 0.5 0"},
    {"Solenoid", 1,
     "Circle 0.0375 0 0.0375; Circle 0.4625 0 0.0375; Line 0.075 0 0.125 0; Line 0.375 0 0.425 0; "
     "Line 0.125 0 0.1875 -0.175; Line 0.1875 -0.175 0.3125 0.175; Line 0.3125 0.175 0.375 0"},
    {"ThermalOverload", Any,
     "Line 0 0 0.1 0; Line 0.4 0 0.5 0; Arc 0.175 0 0.075 270 180; Arc 0.325 0 0.075 90 360"},
    {"TransformerCoil", 0,
     "Arc 0.0625 0.0625 0.0625 180 360; Line 0 0 0 0.0625; Arc 0.1875 0.0625 0.0625 180 360; "
     "Line 0.125 0 0.125 0.0625; Arc 0.3125 0.0625 0.0625 180 360; Line 0.25 0 0.25 0.0625; "
     "Arc 0.4375 0.0625 0.0625 180 360; Line 0.375 0 0.375 0.0625; Line 0.5 0 0.5 0.0625"},
    {"TransformerCoil", 1,
     "Arc 0.0625 -0.0625 0.0625 360 180; Line 0 0 0 -0.0625; Arc 0.1875 -0.0625 0.0625 360 180; "
     "Line 0.125 0 0.125 -0.0625; Arc 0.3125 -0.0625 0.0625 360 180; Line 0.25 0 0.25 -0.0625; "
     "Arc 0.4375 -0.0625 0.0625 360 180; Line 0.375 0 0.375 -0.0625; Line 0.5 0 0.5 -0.0625"},
    {"TransformerCoil", 2,
     "Arc 0.0625 0.4375 0.0625 270 90; Line 0 0.5 0.0625 0.5; Arc 0.0625 0.3125 0.0625 270 90; "
     "Line 0 0.375 0.0625 0.375; Arc 0.0625 0.1875 0.0625 270 90; Line 0 0.25 0.0625 0.25; "
     "Arc 0.0625 0.0625 0.0625 270 90; Line 0 0.125 0.0625 0.125; Line 0 0 0.0625 0"},
    {"TransformerCoil", 3,
     "Arc -0.0625 0.0625 0.0625 90 270; Line 0 0 -0.0625 0; Arc -0.0625 0.1875 0.0625 90 270; "
     "Line 0 0.125 -0.0625 0.125; Arc -0.0625 0.3125 0.0625 90 270; Line 0 0.25 -0.0625 0.25; "
     "Arc -0.0625 0.4375 0.0625 90 270; Line 0 0.375 -0.0625 0.375; Line 0 0.5 -0.0625 0.5"},
    {"CoilWithDiodeLeft", Any,
     "Circle 0.25i 0 0.2i; Line 0 0 0.05i 0; Line 0 0 0 0.375i; Line 0 0.375i 0.225i 0.375i; "
     "Line 0.225i 0.3125i 0.225i 0.4375i; Line 0.225i 0.375i 0.2875i 0.3125i; "
     "Line 0.2875i 0.3125i 0.2875i 0.4375i; Line 0.2875i 0.4375i 0.225i 0.375i; "
     "Line 0.2875i 0.375i 0.5i 0.375i; Line 0.5i 0 0.5i 0.375i; Line 0.45i 0 0.5i 0"},
    {"ReferenceSmall", Any,
     "Line 0 0 0.125i -0.125i; Line 0.125i -0.125i 0.25i 0; Line 0.25i 0 0.125i 0.125i; "
     "Line 0.125i 0.125i 0 0"},
    {"ScrewTerminal", Any, "Circle 0 0 0.0625; Line 0.05 -0.0375 -0.05 0.0375"},
    {"Jumper", Any, "Line 0 0 0 0.125; Line 0 0.375 0 0.5; Arc 0 0.25 0.125 270 90"},
    {"Jumper90", Any, "Line 0 0 0.125 0; Line 0.375 0 0.5 0; Arc 0.25 0 0.125 360 180"},
};

struct LabelPlace {
    std::string name;
    Single a, b;
};
const LabelPlace LabelPlaces[] = {
    {"ContactNC", 0.25f, -0.275f}, {"ContactNOClosed", 0.25f, -0.275f},
    {"ContactNO", 0.25f, -0.275f}, {"EStop", 0.25f, -0.4375f}, {"Fuse", 0.25f, -0.25f},
    {"Lamp", 0.25f, 0}, {"LSNO", 0.25f, -0.175f}, {"OffDelayNO", 0.25f, -0.175f},
    {"OnDelayNO", 0.25f, -0.175f}, {"GPSwitch", 0.25f, -0.1875f}, {"PBNC", 0.25f, -0.375f},
    {"PBNO", 0.25f, -0.5f}, {"RelayCoil", 0.25f, 0}, {"CoilSuppressor", 0.25f, 0},
    {"Solenoid", 0.25f, -0.3125f}, {"ThermalOverload", 0.25f, -0.25f},
    {"CoilWithDiodeLeft", 0.25f, 0}, {"ReferenceSmall", 0.125f, 0},
    {"ReferenceLarge", 0.25f, 0}, {"ContactNC90", 0.25f, 0.25f}, {"ContactNO90", 0.25f, 0.25f},
    {"ContactNO90Closed", 0.25f, 0.25f}, {"ContactNC90Opened", 0.25f, 0.25f},
    {"Fuse90", 0.25f, 0.25f}, {"Solenoid90", 0.25f, 0.25f}, {"ThermalOverload90", 0.25f, 0.25f},
};

// Prefix and names; every other symbol has no label.
const std::pair<std::string, std::string> Prefixes[] = {
    {"CR", "ContactNC ContactNOClosed ContactNC90 ContactNC90Opened ContactNO90Closed ContactNO "
           "ContactNCOpened ContactNO90 RelayCoil SpecialCoil CoilSuppressor CoilDiodeRight "
           "CoilDiodeLeft"},
    {"E-Stop", "EStop"},
    {"FLT", "FloatSwitchNC FloatSwitchNO FloatSwitchNCHO FloatSwitchNOHC"},
    {"FLW", "FlowSwitchNO FlowSwitchNC"},
    {"FT", "FootSwitchNC FootSwitchNO"},
    {"FU", "Fuse Fuse90"},
    {"PL", "Lamp"},
    {"LS", "LSNC LSNCHO LSNO LSNOHC"},
    {"TR", "OffDelayNC OffDelayNO OnDelayNC OnDelayNO"},
    {"SW", "GPSwitch GPSwitchNC GPSwitch2Pos"},
    {"PB", "PBNC PBNCDown PBNO PBNODown"},
    {"PS", "PSNC PSNO PSNCHO PSNOHC"},
    {"1", "Reference CircularReference ReferencePoint"},
    {"SOL", "Solenoid Solenoid90"},
    {"SS", "SS2Pos SS3Pos"},
    {"OL", "ThermalOverload ThermalOverload90"},
    {"TS", "ThermalSwitchNC ThermalSwitchNO"},
    {"CR", "CoilWithSuppressor CoilWithDiodeRight CoilWithDiodeLeft"},
    {"1", "ReferenceSmall ReferenceLarge"},
};

// Buttons with more than one orientation.
const std::map<std::string, int> OrientationCounts = {
    {"TransformerCoil", 4}, {"Transformer", 4}, {"SmallTransformerCoil", 4}, {"Capacitor", 4},
    {"ACCapacitor", 2}, {"Solenoid", 2}, {"Solenoid90", 2}, {"SpecialCoil", 5},
};
const std::set<std::string> OrientationZeroOnly = {"CoilSuppressor", "CoilDiodeLeft",
                                                   "CoilDiodeRight"};

const std::string HorizontalSymbols =
    "Battery CircuitBreaker90 ContactNC ContactNOClosed ContactNO ContactNCOpened EStop Fuse Lamp "
    "LSNO LSNC LSNCHO LSNOHC OffDelayNO OffDelayNC OnDelayNO OnDelayNC GPSwitch GPSwitchNC PBNC "
    "PBNO PBNCDown PBNODown RelayCoil CoilSuppressor CoilDiodeLeft CoilDiodeRight SpecialCoil "
    "Solenoid ThermalOverload TransformerCoil Transformer ConnectorRight Disconnect90 "
    "FloatSwitchNC FloatSwitchNO FloatSwitchNCHO FloatSwitchNOHC FlowSwitchNO FlowSwitchNC "
    "FootSwitchNC FootSwitchNO KeySwitch NormallyOpenAux NormallyClosedAux PSNC PSNO PSNCHO "
    "PSNOHC SS2Pos SS3Pos ThermalSwitchNC ThermalSwitchNO ControlTransformer IncadescentLamp "
    "SimpleLamp Jumper90 CoilWithSuppressor CoilWithDiodeLeft CoilWithDiodeRight ReferenceLarge";
const std::string VerticalSymbols =
    "Disconnect CircuitBreaker Fuse90 ContactNC90 ContactNC90Opened ContactNO90 ContactNO90Closed "
    "ConnectorDown Solenoid90 ThermalOverload90 Jumper";
const std::string ShortSymbols =
    "Capacitor ACCapacitor SmallTransformerCoil Reference CircularReference ReferencePoint "
    "ReferenceSmall";

// A vertical symbol and the horizontal one that it turns.
const std::pair<std::string, std::string> Twins[] = {
    {"CircuitBreaker", "CircuitBreaker90"}, {"Fuse90", "Fuse"},
    {"ContactNC90", "ContactNC"}, {"ContactNC90Opened", "ContactNCOpened"},
    {"ContactNO90", "ContactNO"}, {"ContactNO90Closed", "ContactNOClosed"},
    {"ConnectorDown", "ConnectorRight"}, {"Solenoid90", "Solenoid"},
    {"ThermalOverload90", "ThermalOverload"},
};
// clang-format on

std::vector<std::string> words(const std::string& text) {
    std::istringstream in(text);
    return {std::istream_iterator<std::string>(in), {}};
}

const std::map<std::string, Symbol>& symbols() {
    static const auto all = [] {
        std::map<std::string, Symbol> result;
        for (const auto library : {modSymbolsCommon(), modSymbolsNEMA(), modSymbolsOld()})
            for (const Symbol& symbol : library)
                result.emplace(symbol.name.substr(std::string_view("Insert").size()), symbol);
        return result;
    }();
    return all;
}

std::vector<Primitive> drawing(const std::string& name, Short orientation = 0) {
    for (const Block& block : symbols().at(name).blocks)
        if (block.orientation == Any || block.orientation == orientation) return expanded(block);
    return {};
}

// What a primitive comes to at two scales: kind, coordinates, radius and angles.
std::vector<Single> figures(const Primitive& p, Single scaleX, Single scaleY) {
    const auto scaled = [&](Single value, std::uint8_t bit, Single scale) {
        return (p.absolute & bit) ? value : value * scale;
    };
    return {static_cast<Single>(p.kind),
            scaled(p.a1, AbsA1, scaleX),
            scaled(p.b1, AbsB1, scaleY),
            scaled(p.a2, AbsA2, scaleX),
            scaled(p.b2, AbsB2, scaleY),
            scaled(p.r, AbsR, scaleX),
            p.start,
            p.end};
}

Primitive parsed(const std::string& stroke) {
    const std::vector<std::string> word = words(stroke);
    const std::string& kind = word.at(0);
    if (kind == "On") return art::SolidFillOn;
    if (kind == "Off") return art::SolidFillOff;
    Primitive p{kind == "Line" ? PrimitiveKind::Line
                               : (kind == "Arc" ? PrimitiveKind::Arc : PrimitiveKind::Circle)};
    using Place = std::pair<Single Primitive::*, std::uint8_t>;
    const std::vector<Place> line = {{&Primitive::a1, AbsA1},
                                     {&Primitive::b1, AbsB1},
                                     {&Primitive::a2, AbsA2},
                                     {&Primitive::b2, AbsB2}};
    const std::vector<Place> round = {{&Primitive::a1, AbsA1},
                                      {&Primitive::b1, AbsB1},
                                      {&Primitive::r, AbsR},
                                      {&Primitive::start, std::uint8_t{0}},
                                      {&Primitive::end, std::uint8_t{0}}};
    const auto& places = kind == "Line" ? line : round;
    for (std::size_t i = 1; i < word.size(); ++i) {
        p.*places.at(i - 1).first = std::stof(word[i]);
        if (word[i].back() == 'i')
            p.absolute = static_cast<std::uint8_t>(p.absolute | places[i - 1].second);
    }
    return p;
}

// Whether some stroke of the drawing passes through the point, where a wire would meet it.
bool touches(const std::vector<Primitive>& strokes, Single a, Single b) {
    for (const Primitive& p : strokes) {
        if (p.kind == PrimitiveKind::Circle &&
            std::abs(std::hypot(p.a1 - a, p.b1 - b) - p.r) < 1e-4f)
            return true;
        if (p.kind == PrimitiveKind::Box && a >= p.a1 && a <= p.a2 && b >= p.b1 && b <= p.b2)
            return true;
        if (p.kind == PrimitiveKind::Line &&
            (std::hypot(p.a1 - a, p.b1 - b) < 1e-4f || std::hypot(p.a2 - a, p.b2 - b) < 1e-4f))
            return true;
    }
    return false;
}

TEST(NEMASymbols, FixedDrawingsMatchStrokeByStroke) {
    for (const FixedDrawing& fixed : FixedDrawings) {
        SCOPED_TRACE(fixed.name + " " + std::to_string(fixed.orientation));
        std::vector<Primitive> expected;
        std::istringstream in(fixed.strokes);
        for (std::string stroke; std::getline(in, stroke, ';');)
            expected.push_back(parsed(stroke));
        const auto actual = drawing(fixed.name, fixed.orientation);
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const auto want = figures(expected[i], 3, 2);
            const auto got = figures(actual[i], 3, 2);
            for (std::size_t k = 0; k < want.size(); ++k)
                EXPECT_NEAR(got[k], want[k], Tolerance) << "stroke " << i << " figure " << k;
        }
    }
}

TEST(NEMASymbols, LabelsHaveTheirPrefixAndPlace) {
    EXPECT_EQ(modSymbolsNEMA().size(), 74u);
    EXPECT_EQ(modSymbolsOld().size(), 6u);
    std::map<std::string, std::string> prefixOf;
    for (const auto& [prefix, names] : Prefixes)
        for (const std::string& name : words(names))
            prefixOf[name] = prefix;
    for (const auto& [name, symbol] : symbols())
        EXPECT_EQ(symbol.prefix, prefixOf[name]) << name;
    for (const LabelPlace& place : LabelPlaces) {
        const Symbol& symbol = symbols().at(place.name);
        EXPECT_FLOAT_EQ(symbol.labelA, place.a) << place.name;
        EXPECT_FLOAT_EQ(symbol.labelB, place.b) << place.name;
        EXPECT_EQ(symbol.labelAbsolute, place.name.starts_with("Reference")) << place.name;
    }
    for (const std::string& name : words(HorizontalSymbols)) {
        const Symbol& symbol = symbols().at(name);
        if (symbol.prefix.empty() || symbol.labelB == 0) continue;
        EXPECT_FLOAT_EQ(symbol.labelA, 0.25f) << name;
        EXPECT_LE(symbol.labelB, -0.175f) << name;
        EXPECT_GE(symbol.labelB, -0.5f) << name;
    }
}

TEST(NEMASymbols, EachButtonHasItsOrientations) {
    for (const auto& [name, symbol] : symbols()) {
        SCOPED_TRACE(name);
        const auto found = OrientationCounts.find(name);
        if (found == OrientationCounts.end() && !OrientationZeroOnly.contains(name)) {
            ASSERT_EQ(symbol.blocks.size(), 1u);
            EXPECT_EQ(symbol.blocks[0].orientation, Any);
            continue;
        }
        const int count = found == OrientationCounts.end() ? 1 : found->second;
        for (int orientation = 0; orientation < 7; ++orientation)
            EXPECT_EQ(drawing(name, static_cast<Short>(orientation)).empty(), orientation >= count);
    }
}

TEST(NEMASymbols, TerminalsLieOnTheRasterInLineWithTheInsertionPoint) {
    const auto expectTerminals = [](const std::string& names, Single a, Single b) {
        for (const std::string& name : words(names)) {
            EXPECT_TRUE(touches(drawing(name), 0, 0)) << name;
            EXPECT_TRUE(touches(drawing(name), a, b)) << name;
        }
    };
    expectTerminals(HorizontalSymbols, 0.5f, 0);
    expectTerminals(VerticalSymbols, 0, 0.5f);
    expectTerminals(ShortSymbols, 0.25f, 0);
    for (const Short upright : {Short{2}, Short{3}})
        for (const std::string name : {"Transformer", "TransformerCoil"}) {
            EXPECT_TRUE(touches(drawing(name, upright), 0, 0)) << name;
            EXPECT_TRUE(touches(drawing(name, upright), 0, 0.5f)) << name;
        }
}

TEST(NEMASymbols, VerticalTwinsAreQuarterTurns) {
    for (const auto& [vertical, horizontal] : Twins) {
        const Extent flat = extentOf(drawing(horizontal));
        const Extent turnedOnce = extentOf(drawing(vertical));
        EXPECT_NEAR(turnedOnce.top, flat.left, Tolerance) << vertical;
        EXPECT_NEAR(turnedOnce.bottom, flat.right, Tolerance) << vertical;
        EXPECT_NEAR(turnedOnce.left, -flat.bottom, Tolerance) << vertical;
        EXPECT_NEAR(turnedOnce.right, -flat.top, Tolerance) << vertical;
    }
}

// How far the blade of a switch passes above (positive) the centre of its right terminal.
Single bladeAboveTerminal(const std::string& name) {
    for (const Primitive& p : drawing(name))
        if (p.kind == PrimitiveKind::Line && p.a1 == 0.075f && p.a2 == 0.5f)
            return 0.3875f * -p.b2 / std::hypot(p.a2 - p.a1, p.b2);
    return 99;
}

TEST(NEMASymbols, BladesRestOnTheirTerminalOrClearIt) {
    constexpr Single radius = 0.0375f;
    for (const std::string family : {"FloatSwitch", "PS", "LS"}) {
        EXPECT_NEAR(bladeAboveTerminal(family + "NOHC"), -radius, 5e-4f) << family;
        EXPECT_GT(bladeAboveTerminal(family + "NCHO"), 2 * radius) << family;
    }
    for (const std::string family : {"FloatSwitch", "PS", "LS", "FlowSwitch", "FootSwitch",
                                     "ThermalSwitch", "OnDelay", "OffDelay"}) {
        EXPECT_NEAR(bladeAboveTerminal(family + "NC"), radius, 5e-4f) << family;
        EXPECT_LT(bladeAboveTerminal(family + "NO"), -2 * radius) << family;
    }
    EXPECT_NEAR(bladeAboveTerminal("GPSwitchNC"), radius, 5e-4f);
}

TEST(NEMASymbols, SwitchesOfAFamilyDifferOnlyInTheBladeAndWhatHangsFromIt) {
    const std::vector<std::vector<std::string>> families = {
        {"FloatSwitchNO", "FloatSwitchNC", "FloatSwitchNCHO", "FloatSwitchNOHC"},
        {"PSNO", "PSNC", "PSNCHO", "PSNOHC"},
        {"FlowSwitchNO", "FlowSwitchNC"},
        {"FootSwitchNO", "FootSwitchNC"},
        {"ThermalSwitchNO", "ThermalSwitchNC"},
        {"OnDelayNO", "OnDelayNC"},
        {"OffDelayNO", "OffDelayNC"}};
    for (const auto& family : families)
        for (const std::string& name : family) {
            const auto first = drawing(family[0]), other = drawing(name);
            ASSERT_EQ(first.size(), other.size()) << name;
            int changed = 0;
            for (std::size_t i = 0; i < first.size(); ++i)
                changed += figures(first[i], 1, 1) != figures(other[i], 1, 1) ? 1 : 0;
            EXPECT_EQ(changed, name == family[0] ? 0 : 2) << name;
        }
}

TEST(NEMASymbols, SpecialCoilShowsTheAccessoriesWithoutDotsFirst) {
    const std::array<std::string, 2> plain = {"CoilSuppressor", "CoilDiodeLeft"};
    for (std::size_t i = 0; i < plain.size(); ++i) {
        auto dotted = drawing(plain[i]);
        const auto special = drawing("SpecialCoil", static_cast<Short>(i));
        ASSERT_EQ(special.size() + 4, dotted.size());
        EXPECT_EQ(dotted[special.size()].kind, PrimitiveKind::SolidFillOn);
        for (std::size_t k = 0; k < special.size(); ++k)
            EXPECT_EQ(figures(special[k], 1, 1), figures(dotted[k], 1, 1));
    }
    std::set<std::string> dotted;
    for (const auto& [name, symbol] : symbols())
        for (const Block& block : symbol.blocks)
            for (const Primitive& p : expanded(block))
                if (p.kind == PrimitiveKind::SolidFillOn) dotted.insert(name);
    EXPECT_EQ(dotted, (std::set<std::string>{"CoilDiodeLeft", "CoilDiodeRight", "CoilSuppressor",
                                             "SpecialCoil"}));
}

TEST(NEMASymbols, NoStrokeIsDoubledAndNoTwoSymbolsLookAlike) {
    std::map<std::multiset<std::vector<Single>>, std::string> seen;
    for (const auto& [name, symbol] : symbols())
        for (const Block& block : symbol.blocks) {
            std::set<std::vector<Single>> strokes;
            std::multiset<std::vector<Single>> look;
            for (const Primitive& p : expanded(block)) {
                auto stroke = figures(p, 3, 3);  // tells the unscaled ones apart
                for (Single& figure : stroke)
                    figure = std::round(figure * 1e4f);
                auto backwards = stroke;
                if (p.kind == PrimitiveKind::Line) {
                    std::swap(backwards[1], backwards[3]);
                    std::swap(backwards[2], backwards[4]);
                    EXPECT_TRUE(stroke != backwards || name == "Battery") << name;
                }
                EXPECT_TRUE(strokes.insert(std::min(stroke, backwards)).second) << name;
                look.insert(std::min(stroke, backwards));
            }
            if (name == "SpecialCoil") continue;  // shows the other coils again
            const auto [place, added] = seen.emplace(look, name);
            EXPECT_TRUE(added) << name << " looks like " << place->second;
        }
}

}  // namespace
}  // namespace ladrix
