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

TEST(Palettes, EveryOrientationPromisedIsDrawn) {
    for (const Library library : Libraries)
        for (const PaletteEntry& entry : palette(library)) {
            const std::string_view device = deviceOfPaletteText(entry.text);
            const Shape* shape = findShape(device);
            for (Short orientation = 0; orientation < entry.orientations; ++orientation)
                EXPECT_TRUE(!shape || !shape->primitives(orientation).empty())
                    << entry.text << ' ' << orientation;
            if (shape) continue;
            EXPECT_EQ(entry.orientations, 1) << entry.text;
            EXPECT_TRUE(device == "InsertText" || freeShapeOf(device) != FreeShape::None)
                << entry.text;
        }
}

TEST(ToolTable, TakesATextThatIsNoneOfThePalettesForAUserSymbol) {
    for (const char* text : {"operational amplifier", "", "My Valve"})
        EXPECT_EQ(deviceOfPaletteText(text), "InsertUserSymbol") << text;
}

}  // namespace
}  // namespace ladrix
