#include "output/PageReplay.h"

#include <gtest/gtest.h>

#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::Primitive;
using Kind = test::Primitive::Kind;

class PageReplay : public ::testing::Test {
  protected:
    test::FakePlatform machine;
    test::RecordingPage page;
    Symbols symbols;
    Drawing drawing;

    void addLine(Single y, Long color) {
        Device line;
        line.name = "InsertSavedLine";
        line.x2 = 2;
        line.y = line.y2 = y;
        line.color = color;
        drawing.devices.append(line);
    }
    std::string replay() { return replayPage(page, symbols, drawing, machine.platform); }
};

TEST_F(PageReplay, DrawsDevicesThenPicturesThenLabelsInTheirOwnColours) {
    machine.folder.write("logo.png", "");
    addLine(1, Red);
    addLine(2, Blue);
    drawing.devices.DeviceSelected[0] = 1;
    drawing.labels.append({"1CR", 1, 2, Magenta, "Courier New", 12, true, false});
    drawing.PictureTable.push_back({1, 2, 3, 4, "logo.png", machine.folder / "logo.png", false});
    drawing.PictureCount = 1;
    EXPECT_EQ(replay(), "");

    ASSERT_EQ(page.primitives.size(), 4u);
    EXPECT_EQ(page.primitives[0].color, Red) << "a selection does not show on paper";
    EXPECT_EQ(page.primitives[1].color, Blue);
    EXPECT_EQ(page.primitives[2].kind, Kind::Picture);
    EXPECT_EQ(page.primitives[2].x2, 3);
    EXPECT_EQ(page.primitives[3].text, "1CR");
    EXPECT_EQ(page.primitives[3].font, (FontSpec{"Courier New", 12, true, false}));
}

TEST_F(PageReplay, ChangesNeitherTheDrawingNorTheToolInHand) {
    addLine(1, Red);
    drawing.labels.append({"old", 1, 2, Black, "", 0, false, false});
    symbols.block.CurDevice = "InsertLamp";
    symbols.block.CurX = 7;
    symbols.LastRadius = 0.5f;
    Surface* const canvas = symbols.block.obj;
    replay();

    EXPECT_EQ(page.primitives.back().font, (FontSpec{"Arial", 8, false, false}));
    EXPECT_EQ(drawing.labels.LabelFontName[0], "");
    EXPECT_EQ(drawing.devices.DeviceCount, 1);
    EXPECT_FALSE(drawing.NoRecord);
    EXPECT_FALSE(drawing.DrawingChanged);
    EXPECT_EQ(symbols.block.CurDevice, "InsertLamp");
    EXPECT_EQ(symbols.block.CurX, 7);
    EXPECT_EQ(symbols.block.obj, canvas);
    EXPECT_EQ(symbols.LastRadius, 0.5f);
}

TEST_F(PageReplay, ThickSymbolsComeWithBoldLabels) {
    symbols.ThickDevices = true;
    drawing.labels.append({"1CR", 1, 2, Black, "Arial", 8, false, false});
    replay();
    EXPECT_TRUE(page.primitives.at(0).font.bold);
}

TEST_F(PageReplay, APictureThatCannotBeLoadedIsToldAndTheRestIsDrawn) {
    machine.folder.write("second.png", "");
    drawing.PictureTable.push_back({0, 0, 1, 1, "first.png", machine.folder / "first.png", false});
    drawing.PictureTable.push_back(
        {0, 0, 1, 1, "second.png", machine.folder / "second.png", false});
    drawing.PictureCount = 2;
    drawing.labels.append({"1CR", 1, 2, Black, "Arial", 8, false, false});
    const std::string told = replay();
    EXPECT_NE(told.find("first.png"), std::string::npos);
    EXPECT_EQ(told.find("second.png"), std::string::npos);
    EXPECT_EQ(page.primitives.size(), 2u);
}

TEST_F(PageReplay, APageThatFailsThrows) {
    drawing.labels.append({"1CR", 1, 2, Black, "Arial", 8, false, false});
    page.primitivesUntilFailure = 0;
    EXPECT_THROW(replay(), Failure);
}

}  // namespace
}  // namespace ladrix
