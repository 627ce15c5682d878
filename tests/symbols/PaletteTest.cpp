// The four palettes and the tool table: every button reaches a routine that draws.
#include "symbols/Palettes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "symbols/DeviceNames.h"
#include "symbols/FreeShapes.h"

namespace ladrix {
namespace {

constexpr Library Libraries[] = {Library::NEMA, Library::IEC, Library::Electronic,
                                 Library::FluidPower};

TEST(Palettes, HoldTheirButtonsEachTextOnceAndTheToolsFirst) {
    std::vector<std::size_t> sizes;
    for (const Library library : Libraries) {
        const auto buttons = palette(library);
        sizes.push_back(buttons.size());
        std::set<std::string_view> texts;
        for (const PaletteEntry& entry : buttons)
            EXPECT_TRUE(texts.insert(entry.text).second) << entry.text;
        for (std::size_t i = 0; i < static_cast<std::size_t>(FirstSymbolButton); ++i)
            EXPECT_EQ(buttons[i].text, palette(Library::NEMA)[i].text);
    }
    EXPECT_THAT(sizes, testing::ElementsAre(92, 88, 85, 92));
    EXPECT_TRUE(palette(Library::Common).empty());
    const auto nema = palette(Library::NEMA);
    EXPECT_EQ(std::count_if(nema.begin(), nema.end(),
                            [](const PaletteEntry& entry) { return entry.tallOnly; }),
              4);
}

TEST(Palettes, EveryTextReachesARoutineOfTheList) {
    std::set<std::string_view> listed{"InsertText"};
    for (const DeviceName& entry : deviceNames())
        listed.insert(entry.name);
    for (const Library library : Libraries)
        for (const PaletteEntry& entry : palette(library))
            EXPECT_TRUE(listed.contains(deviceOfPaletteText(entry.text))) << entry.text;
    for (const DeviceName& entry : deviceNames()) {
        if (entry.paletteText.empty()) continue;
        EXPECT_EQ(deviceOfPaletteText(entry.paletteText), entry.name) << entry.paletteText;
    }
}

TEST(Palettes, EveryOrientationPromisedIsADrawingOfItsOwn) {
    const auto strokes = [](std::span<const Primitive> primitives) {
        std::string text;
        for (const Primitive& p : primitives)
            for (const Single figure :
                 {static_cast<Single>(p.kind), p.a1, p.b1, p.a2, p.b2, p.r, p.start, p.end})
                text += std::to_string(figure) + ' ';
        return text;
    };
    for (const Library library : Libraries) {
        for (const PaletteEntry& entry : palette(library)) {
            const std::string_view device = deviceOfPaletteText(entry.text);
            const Shape* shape = findShape(device);
            if (shape == nullptr) {
                EXPECT_EQ(entry.orientations, 1) << entry.text;
                EXPECT_TRUE(device == "InsertText" || freeShapeOf(device) != FreeShape::None)
                    << entry.text;
                continue;
            }
            std::set<std::string> drawings;
            for (Short orientation = 0; orientation < entry.orientations; ++orientation) {
                EXPECT_FALSE(shape->primitives(orientation).empty())
                    << entry.text << ' ' << orientation;
                EXPECT_TRUE(drawings.insert(strokes(shape->primitives(orientation))).second)
                    << entry.text << ' ' << orientation << " looks like one before";
            }
        }
    }
}

TEST(ToolTable, KnowsTheTextsThatAreNotTheFirstOfTheirDevice) {
    struct Case {
        const char* text;
        const char* device;
    };
    for (const Case& c : {Case{"Text", "InsertText"},
                          {"Line", "InsertSavedLine"},
                          {"Dashed Line", "InsertSavedLine"},
                          {"Square", "InsertSavedSquare"},
                          {"Dashed Square", "InsertSavedSquare"},
                          {"Arc Left", "InsertArc"},
                          {"Arc Down", "InsertArc"},
                          {"Small Circle", "InsertCircle"},
                          {"Large Circle", "InsertCircle"},
                          {"Connection Point", "InsertSolidCircle"},
                          {"Test Symbol", "InsertTestSymbol"},
                          {"Vertical Jumper", "InsertJumper"},
                          {"Horizontal Jumper", "InsertJumper90"},
                          {"Disconnect, Vertical", "InsertDisconnect"},
                          {"Disconnect", "InsertDisconnect90"},
                          {"Circuit Breaker, Vertical", "InsertCircuitBreaker"},
                          {"Circuit Breaker", "InsertCircuitBreaker90"},
                          {"Push Button, Mushroom Head - Normally Closed", "InsertEStop"},
                          {"IEC Connector", "InsertIECConnector"},
                          {"Connector Style 2", "InsertIECConnector"},
                          {"IEC Connector Vertical", "InsertIECConnector90"},
                          {"Small Reference", "InsertReference"},
                          {"Reference", "InsertReference"},
                          {"SCR", "InsertSCRH"},
                          {"Field Effect Transistor", "InsertFETN"},
                          {"Operational Amplifier", "InsertOpAmp"},
                          {"operational amplifier", "InsertUserSymbol"},
                          {"", "InsertUserSymbol"},
                          {"My Valve", "InsertUserSymbol"}})
        EXPECT_EQ(deviceOfPaletteText(c.text), c.device) << c.text;
}

}  // namespace
}  // namespace ladrix
