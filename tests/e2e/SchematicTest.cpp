// A person draws a motor control from an empty page, works it over, takes every step back to the
// empty page and does them all again: the saved file is the same, byte for byte.
#include <gmock/gmock.h>

#include <QTest>
#include <QWindow>

#include "Journey.h"

namespace ladrix::test {
namespace {

struct Point {
    double x, y;
};

// What is drawn with one tool in hand, and the name typed for the symbol, if it takes one.
struct Item {
    const char* tool;
    std::vector<Point> points;
    const char* name = "";
};

// Of every rung, below its own upper left corner.
const Item Rung[] = {
    {"Line", {{0.5, 0}, {1.5, 0}}},
    {"Normally Open Contact", {{1.5, 0}}, "CR1"},
    {"Line", {{2, 0}, {3, 0}}},
    {"Normally Closed Contact", {{3, 0}}, "OL"},
    {"Line", {{3.5, 0}, {4.5, 0}, {4.5, 0.25}, {5, 0.25}}},
    {"Relay/Timer Coil", {{5, 0.25}}, "M1"},
    {"Connection Point", {{0.5, 0}, {7, 0}}},
};
constexpr int Rungs = 5;

const Item Surroundings[] = {
    {"Line", {{0.5, 0.5}, {0.5, 7.75}}},
    {"Dashed Line", {{1, 6.75}, {3, 6.75}, {4, 7.75}}},
    {"Line", {{7, 0.5}, {7, 7.75}}},
    {"Square", {{1, 7.25}, {3, 7.75}}},
    {"Dashed Square", {{4, 7.25}, {6, 7.75}}},
    {"Large Circle", {{5, 7}}},
    {"Small Circle", {{5.5, 7}}},
    {"Arc Up", {{6, 7}}},
};

struct SchematicTest : testing::Test {
    void draw(const Item& item, double below) {
        journey.press(item.tool);
        for (const Point& point : item.points)
            journey.clickPage(point.x, point.y + below);
        if (*item.name != '\0') {
            Journey::key(Qt::Key_A, Qt::ControlModifier);
            Journey::type(item.name);
            Journey::key(Qt::Key_Return);
        }
        Journey::key(Qt::Key_Escape);
    }
    void write(const char* text, double x, double y) {
        journey.press("Text");
        journey.moveOnPage(x, y);
        Journey::key(Qt::Key_A, Qt::ControlModifier);
        Journey::type(text);
        journey.clickPage(x, y);
        Journey::key(Qt::Key_Escape);
    }
    void band(Point from, Point to) {
        QWindow* const handle = journey.window().windowHandle();
        const auto inWindow = [&](Point p) {
            return journey.page().mapTo(&journey.window(), journey.at(p.x, p.y));
        };
        journey.moveOnPage(from.x, from.y);
        QTest::mousePress(handle, Qt::LeftButton, {}, inWindow(from));
        journey.moveOnPage((from.x + to.x) / 2, (from.y + to.y) / 2);
        journey.moveOnPage(to.x, to.y);
        QTest::mouseRelease(handle, Qt::LeftButton, {}, inWindow(to));
    }
    void drawAll() {
        for (int rung = 0; rung < Rungs; ++rung)
            for (const Item& item : Rung)
                draw(item, 1 + rung);
        for (const Item& item : Surroundings)
            draw(item, 0);
        write("Motor control", 2, 6.5);
        write("24 V", 6, 6.5);
    }
    // Each needs its selection, and leaves none.
    void workOver() {
        band({2.6, 0.6}, {3.4, 1.4});
        journey.expectBox("Please select a copy start point.", QMessageBox::Ok);
        Journey::key(Qt::Key_C, Qt::ControlModifier);
        for (const Point point : {Point{3, 1}, {6, 1}, {6, 2}})
            journey.clickPage(point.x, point.y);
        Journey::key(Qt::Key_Escape);

        band({4.8, 1}, {5.4, 1.6});
        Journey::key(Qt::Key_M, Qt::ControlModifier);
        journey.clickPage(5, 1.25);
        journey.clickPage(5.25, 1.25);

        band({4.8, 6.8}, {6.3, 7.2});
        Journey::key(Qt::Key_Delete);

        band({1.3, 2.6}, {3.4, 3.4});
        Journey::key(Qt::Key_R, Qt::ControlModifier | Qt::AltModifier);

        band({0.8, 7.1}, {1.2, 7.4});
        Journey::key(Qt::Key_Right);
        Journey::key(Qt::Key_Escape);
    }
    std::string saved() {
        if (journey.editor().drawing.CurrentFileName.empty()) journey.saveInBrowser("Motor");
        Journey::key(Qt::Key_S, Qt::ControlModifier);
        EXPECT_EQ(journey.message(), "File saved.");
        return home.disk().read(Home::drawing("Motor.els"));
    }

    Home home;
    Journey journey{home};
};

TEST_F(SchematicTest, IsDrawnWorkedOverUndoneToNothingAndRedoneToTheSameBytes) {
    const Drawing& drawing = journey.editor().drawing;
    const QImage empty = journey.picture();
    drawAll();
    EXPECT_GE(drawing.devices.DeviceCount, 60);
    EXPECT_EQ(drawing.labels.LabelCount, 3 * Rungs + 2);
    EXPECT_THAT(drawing.devices.DeviceName, testing::Contains("InsertSavedSquare").Times(2));
    const Short drawn = drawing.devices.DeviceCount;
    workOver();
    EXPECT_THAT(drawing.devices.DeviceColor, testing::Contains(Red));
    EXPECT_THAT(drawing.devices.DeviceX, testing::Contains(5.25f)) << "the coil has moved";
    EXPECT_EQ(drawing.devices.DeviceCount, drawn + 2 - 3) << "pasted twice, three deleted";
    EXPECT_THAT(drawing.devices.DeviceX2, testing::Contains(3.25f)) << "the square has grown";
    const std::string once = saved();
    const QImage seen = journey.picture();

    const int steps = journey.editor().UndoTop;
    ASSERT_GT(steps, 60);
    for (int i = 0; i < steps; ++i)
        Journey::key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(drawing.DeviceString + drawing.LabelString + drawing.PictureString, "");
    Journey::key(Qt::Key_Escape);
    EXPECT_EQ(journey.picture(), empty);
    for (int i = 0; i < steps; ++i)
        Journey::key(Qt::Key_Y, Qt::ControlModifier);
    Journey::key(Qt::Key_Escape);
    EXPECT_EQ(journey.picture(), seen);
    EXPECT_EQ(saved(), once);
}

}  // namespace
}  // namespace ladrix::test
