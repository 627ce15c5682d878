// The tools in a person's hand: what each shows while it is used, what it leaves and how it ends.
#include <gmock/gmock.h>

#include <QLabel>
#include <QLineEdit>

#include "Journey.h"
#include "symbols/DeviceNames.h"

namespace ladrix::test {
namespace {

using testing::StartsWith;

constexpr auto Ready =
    "Drawing Reset and Ready. Click on a symbol for placement. Current Zoom Scale = 100%";
constexpr Short FirstOwnSymbol = 14;  // behind the tools that all libraries share

struct ToolsTest : testing::Test {
    const DeviceTable& devices() { return journey.editor().drawing.devices; }
    // Whether the square of an inch around a point shows anything but the page.
    bool hasInkAround(double x, double y) {
        const QRect area(journey.at(x - 0.5, y - 0.5), journey.at(x + 0.5, y + 0.5));
        QImage plain = journey.picture().copy(area);
        const QImage seen = plain;
        plain.fill(Qt::white);
        return seen != plain;
    }

    Home home;
    Journey journey{home};
};

TEST_F(ToolsTest, EveryToolShowsItselfAndEndsWithEscape) {
    const QImage empty = journey.picture();
    int tools = 0;
    for (const PaletteButton& button : std::vector(journey.editor().form.cmdSym)) {
        if (!button.Visible) continue;
        SCOPED_TRACE(button.Tag);
        ++tools;
        journey.press(button.Tag);
        EXPECT_THAT(journey.message(), StartsWith(button.Tag + " Selected - "));
        const Short index = journey.indexOf(button.Tag);
        EXPECT_TRUE(journey.editor().form.cmdSym[static_cast<std::size_t>(index)].Pressed);
        journey.moveOnPage(4, 4);
        journey.moveOnPage(3, 3);
        EXPECT_NE(journey.picture(), empty);
        Journey::key(Qt::Key_Escape);
        EXPECT_EQ(journey.message(), Ready);
        EXPECT_FALSE(journey.editor().form.cmdSym[static_cast<std::size_t>(index)].Pressed);
        EXPECT_EQ(journey.picture(), empty);
        EXPECT_FALSE(journey.find("picText").isVisible());
        EXPECT_FALSE(journey.find("picRadius").isVisible());
        EXPECT_TRUE(journey.page().hasFocus());
    }
    EXPECT_EQ(tools, 92);
    EXPECT_EQ(devices().DeviceCount, 0);
    EXPECT_FALSE(journey.editor().drawing.DrawingChanged);
}

TEST_F(ToolsTest, EscapeDropsWhatIsHalfDrawn) {
    const QImage empty = journey.picture();
    for (const char* tool : {"Line", "Dashed Line", "Square", "Dashed Square"}) {
        journey.press(tool);
        journey.clickPage(2, 2);
        journey.moveOnPage(4, 3);
        EXPECT_TRUE(hasInkAround(4, 3)) << tool;
        Journey::key(Qt::Key_Escape);
        EXPECT_EQ(journey.picture(), empty) << tool;
    }
    journey.press("Text");
    journey.moveOnPage(2, 2);
    ASSERT_TRUE(journey.find("txtEdit").hasFocus());
    Journey::type("gone");
    EXPECT_TRUE(hasInkAround(2, 2));
    Journey::key(Qt::Key_Escape);
    EXPECT_EQ(journey.picture(), empty);
    EXPECT_EQ(devices().DeviceCount + journey.editor().drawing.labels.LabelCount, 0);
}

TEST_F(ToolsTest, ADoubleClickEndsAPolylineAndArmsTheNextInItsStyle) {
    for (const char* tool : {"Line", "Dashed Line"}) {
        SCOPED_TRACE(tool);
        journey.press(tool);
        journey.clickPage(1, 1);
        journey.clickPage(3, 1);
        Journey::doubleClick(journey.page(), journey.at(3, 2));
        const Short drawn = devices().DeviceCount;
        EXPECT_EQ(devices().DeviceY2[static_cast<std::size_t>(drawn - 1)] > 1, true)
            << "the first press of the two is the end point";
        EXPECT_THAT(journey.message(), StartsWith(std::string(tool) + " Selected"));
        journey.clickPage(5, 1);
        EXPECT_EQ(devices().DeviceCount, drawn) << "the next one begins afresh";
        journey.clickPage(5, 4);
        EXPECT_GT(devices().DeviceCount, drawn);
        Journey::key(Qt::Key_Escape);
    }
}

TEST_F(ToolsTest, TheReadOutTellsWhereTheNextPointWillBe) {
    const auto readOut = [&](double x, double y) {
        journey.moveOnPage(x, y);
        return journey.textOf("lblCoords");
    };
    EXPECT_EQ(readOut(2.125, 3.5), "X = 2.125, Y = 3.5") << "without a tool";
    journey.press("Line");
    EXPECT_EQ(readOut(2.03125, 3.46875), "X = 2, Y = 3.5") << "near a snap point";
    EXPECT_TRUE(journey.editor().form.pointer.LineV.Visible);
    EXPECT_EQ(readOut(2.125, 3.125), "X = 2.125, Y = 3.125") << "between the snap points";
    EXPECT_FALSE(journey.editor().form.pointer.LineV.Visible);
    journey.clickPage(2.03125, 3);
    EXPECT_EQ(journey.textOf("lblCoords"), "2, 3");
}

// Nothing moves the pointer between a command and the next click.
TEST_F(ToolsTest, WhereThePointerRestsIsWhereThingsHappen) {
    const auto lines = [&] { return journey.editor().drawing.DeviceString; };
    journey.press("Ground");
    journey.clickPage(1, 1);
    Journey::key(Qt::Key_Escape);
    journey.moveOnPage(4, 3);
    Journey::key(Qt::Key_A, Qt::ControlModifier);
    Journey::key(Qt::Key_M, Qt::ControlModifier);
    Journey::click(journey.page(), journey.at(4, 3));
    journey.clickPage(5, 3);
    EXPECT_TRUE(
        lines().starts_with("InsertGround\xFF"
                            "2\xFF"
                            "1\xFF"))
        << "from (4, 3) to (5, 3): " << lines();

    journey.press("Ground");
    journey.moveOnPage(6, 6);
    Journey::key(Qt::Key_Right);
    EXPECT_NE(journey.message(), "");
    auto& drawn = journey.window().canvas();
    const QImage next = drawn.grab().toImage();
    journey.moveOnPage(6.01, 6);
    journey.moveOnPage(6, 6);
    EXPECT_EQ(drawn.grab().toImage(), next) << "the ghost of the next tool stands there at once";
}

TEST_F(ToolsTest, WhatIsTypedWithTheTextToolGoesIntoItsField) {
    const auto texts = [&] { return journey.editor().drawing.labels.LabelText; };
    journey.press("Text");
    Journey::type("AB");
    EXPECT_EQ(journey.find<QLineEdit>("txtEdit").text(), "AB") << "before any move";
    journey.moveOnPage(2, 2);
    EXPECT_EQ(journey.find<QLineEdit>("txtEdit").text(), "AB");
    journey.clickPage(2, 2);
    Journey::type("C");
    EXPECT_EQ(journey.find<QLineEdit>("txtEdit").text(), "C") << "the text was marked";
    journey.clickPage(3, 2);
    EXPECT_EQ(texts(), (std::vector<std::string>{"AB", "C"}));
    Journey::key(Qt::Key_Escape);

    journey.press("Text");
    journey.moveOnPage(2, 4);
    EXPECT_EQ(journey.message(), "Move to desired location and edit as required.");
    journey.clickPage(2, 4);
    EXPECT_EQ(texts().back(), "Enter new text and hit return.");
    journey.moveOnPage(2.5, 4.5);
    Journey::type("M1");
    journey.clickPage(3, 4);
    EXPECT_EQ(texts(), (std::vector<std::string>{"AB", "C", "M1", "M1"}))
        << "typing replaced the prompt, and goes on being placed";
}

TEST_F(ToolsTest, TheTextBoxStandsBesideItsCaptionInAnyWidth) {
    journey.press("Text");
    journey.moveOnPage(3, 3);
    auto& box = journey.find("txtEdit");
    const auto* caption = journey.find("picText").findChild<QLabel*>();
    ASSERT_TRUE(caption);
    int widest = 0;
    for (const int width : {1000, 1240, 1700}) {
        journey.window().resize(width, 800);
        ASSERT_TRUE(waitFor([&] { return journey.find("picTop").width() == width; }));
        EXPECT_LE(box.geometry().left() - caption->geometry().right(), 8) << width;
        EXPECT_GE(box.width(), 200) << width;
        widest = std::max(widest, box.width());
    }
    EXPECT_LE(widest, 400);
}

TEST_F(ToolsTest, EveryLibraryShowsItsPaletteAndPlacesItsFirstSymbol) {
    struct Library {
        const char *entry, *first;
    };
    const Library libraries[] = {{"mnuLibElectronic", "Connector Style 1"},
                                 {"mnuLibIEC", "IEC Connector"},
                                 {"mnuLibHyd", "Solid Arrow"},
                                 {"mnuLibElectrical", "Connector, Horizontal"}};
    QImage before = journey.window().palette().grab().toImage();
    Short placed = 0;
    for (const Library& library : libraries) {
        SCOPED_TRACE(library.entry);
        journey.choose("mnuLibraries", library.entry);
        EXPECT_TRUE(journey.find<QAction>(library.entry).isChecked());
        const QImage shown = journey.window().palette().grab().toImage();
        EXPECT_NE(shown, before);
        before = shown;
        EXPECT_EQ(journey.indexOf(library.first), FirstOwnSymbol);
        journey.press(library.first);
        const double y = 2 + placed;
        EXPECT_FALSE(hasInkAround(3, y));
        journey.clickPage(3, y);
        Journey::key(Qt::Key_Escape);
        ASSERT_EQ(devices().DeviceCount, ++placed);
        EXPECT_EQ(devices().DeviceName.back(), deviceOfPaletteText(library.first));
        EXPECT_TRUE(hasInkAround(3, y));
    }
}

}  // namespace
}  // namespace ladrix::test
