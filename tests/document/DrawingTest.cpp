#include "document/Drawing.h"

#include <gtest/gtest.h>

#include <utility>

#include "RecordText.h"
#include "document/Records.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

using test::readable;

class DrawingTest : public testing::Test {
  protected:
    DrawingTest() {
        drawing.TakeUndoSnapshot = [this] { ++snapshots; };
    }

    Device record(Device device) {
        RecordDevice(drawing, machine.platform, device);
        return device;
    }
    void label(Label text) { RecordLabel(drawing, machine.platform, std::move(text)); }
    void rebuild() {
        RebuildDeviceString(drawing, machine.platform);
        RebuildLabelString(drawing, machine.platform);
        RebuildPictureString(drawing, machine.platform);
    }

    test::FakePlatform machine;
    Drawing drawing;
    int snapshots = 0;
};

// All fields set, so that one kept by mistake shows.
Device everyField(std::string name) {
    return {.name = std::move(name),
            .x = 1.5f,
            .y = 2.25f,
            .x2 = 3,
            .y2 = 4,
            .radius = 0.5f,
            .direction = 3,
            .color = 255,
            .widthTag = "DrawWidth=2",
            .aspect = 0.75f,
            .startAngle = 1,
            .endAngle = 2,
            .scaleX = 1.25f,
            .scaleY = -1,
            .orientation = 2,
            .flip = true};
}

TEST_F(DrawingTest, TheNameChoosesWhatIsRecorded) {
    for (const char* name : {"InsertSavedSquare", "InsertSolidCircle", "InsertArc",
                             "InsertSemiCircle", "InsertCoil", "insertarc"}) {
        record(everyField(name));
    }

    EXPECT_EQ(readable(drawing.DeviceString),
              "InsertSavedSquare|1.5|2.25|3|4|255|DrawWidth=2\n"
              "InsertSolidCircle|1.5|2.25|0.5|255|DrawWidth=2|0.75\n"
              "InsertArc|1.5|2.25|0.5|3|255|DrawWidth=2|1|2|0.75\n"
              "InsertSemiCircle|1.5|2.25|0.5|3|255|DrawWidth=2\n"
              "InsertCoil|1.5|2.25|255|DrawWidth=2|1.25|-1|2|True\n"
              "insertarc|1.5|2.25|255|DrawWidth=2|1.25|-1|2|True\n");
    EXPECT_EQ(readable(drawing.DeviceRecord(3)), "InsertSemiCircle|1.5|2.25|0.5|3|255|DrawWidth=2");
    const Device square = drawing.devices.row(0);
    EXPECT_EQ(square.radius, 0);
    EXPECT_EQ(square.scaleX, 0);
    EXPECT_EQ(square.orientation, 0);
    EXPECT_FALSE(square.flip);
    EXPECT_EQ(drawing.devices.row(4).x2, 0);
    EXPECT_EQ(drawing.devices.row(4).aspect, 0);
}

TEST_F(DrawingTest, CorrectedFieldsReachTheCallerTheTableAndTheRecord) {
    EXPECT_EQ(record({.name = "InsertSavedLine", .x2 = 1}).widthTag, "0");
    EXPECT_EQ(record({.name = "InsertCircle", .x = 2, .y = 2, .radius = 0.25f}).aspect, 1);
    EXPECT_EQ(record({.name = "InsertArc", .x = 2, .y = 2}).aspect, 1);

    EXPECT_EQ(drawing.devices.DeviceWidthTag[0], "0");
    EXPECT_EQ(drawing.devices.DeviceAspect[1], 1);
    EXPECT_EQ(readable(drawing.DeviceString),
              "InsertSavedLine|0|0|1|0|0|0\n"
              "InsertCircle|2|2|0.25|0||1\n"
              "InsertArc|2|2|0|0|0||0|0|1\n");
}

TEST_F(DrawingTest, ZeroXIsToldForAllButFreeLinesAndSquares) {
    record({.name = "InsertSavedLine"});
    record({.name = "InsertSavedSquare"});
    EXPECT_TRUE(machine.dialogs.boxes.empty());

    record({.name = "InsertCoil", .y = 1});

    ASSERT_EQ(machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "Bad Device X position.");
    EXPECT_EQ(machine.dialogs.boxes[0].buttons, Buttons::Ok);
    EXPECT_EQ(drawing.devices.DeviceCount, 3);
}

TEST_F(DrawingTest, ASlotThatHoldsTheNameAlreadyIsLeftAlone) {
    drawing.AfterSave = After::New;
    drawing.devices.DeviceName.push_back("InsertCoil");

    record({.name = "InsertCoil", .x = 1});
    EXPECT_EQ(drawing.devices.DeviceCount, 0);
    EXPECT_EQ(drawing.DeviceString, "");
    EXPECT_FALSE(drawing.DrawingChanged);
    EXPECT_EQ(drawing.AfterSave, After::Nothing);

    record({.name = "InsertRelay", .x = 1});
    record({.name = "InsertRelay", .x = 2});
    EXPECT_EQ(drawing.devices.DeviceCount, 2) << "the same symbol twice is two devices";
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_TRUE(drawing.DeviceRecorded);
}

TEST_F(DrawingTest, SnapshotsWaitForALabelAndForAScript) {
    record({.name = "InsertCoil", .x = 1});
    EXPECT_EQ(snapshots, 1);

    drawing.LabelPending = true;
    record({.name = "InsertCoil", .x = 1});
    EXPECT_EQ(snapshots, 1);
    record({.name = "InsertSavedLine"});
    EXPECT_EQ(snapshots, 2) << "a line has no label to wait for";

    drawing.LabelPending = false;
    drawing.NoSnapshot = true;
    record({.name = "InsertCoil", .x = 1});
    record({.name = "InsertSavedLine"});
    EXPECT_EQ(snapshots, 2);
}

// As the line tool does it: each dash is counted, then recorded.
TEST_F(DrawingTest, OnlyTheFirstDashOfAllIsASnapshotUntilLinesOfOneDash) {
    const auto line = [&](int dashes) {
        drawing.DashedLine = true;
        drawing.DashesCounted = 0;
        for (int dash = 0; dash < dashes; ++dash) {
            ++drawing.DashesCounted;
            record({.name = "InsertSavedLine", .x = 1});
        }
        drawing.DashedLine = false;
        return std::exchange(snapshots, 0);
    };
    EXPECT_EQ(line(1), 1);
    EXPECT_EQ(line(1), 1) << "each is the last of its line";
    EXPECT_EQ(line(4), 1);
    EXPECT_EQ(drawing.DashesRecorded, 3) << "cleared at the first";
    EXPECT_EQ(line(5) + line(1) + line(0), 0) << "the counters stay apart";
    EXPECT_EQ(drawing.DashesRecorded, 9);
    drawing.NoSnapshot = drawing.DashedLine = true;
    record({.name = "InsertSavedLine", .x = 1});
    drawing.NoSnapshot = false;
    record({.name = "InsertSavedSquare"});
    EXPECT_EQ(drawing.DashesRecorded, 9) << "neither a script's line nor another shape is a dash";
    EXPECT_EQ(snapshots, 1);

    drawing.DashesRecorded = 0;
    drawing.DashesCounted = 2;
    record({.name = "InsertSavedLine", .x = 1});
    record({.name = "InsertSavedLine", .x = 1});
    EXPECT_EQ(snapshots, 2) << "a line counted beforehand is one, at its end";
}

TEST_F(DrawingTest, ANumberThatCannotBeWrittenLeavesTableAndTextAsTheyWere) {
    record({.name = "InsertCoil", .x = 1, .y = 1});
    const std::string before = drawing.DeviceString;

    record({.name = "InsertCoil", .x = 1, .y = std::numeric_limits<Single>::infinity()});

    EXPECT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(drawing.devices.DeviceCount, 1);
    EXPECT_EQ(drawing.DeviceString, before);

    drawing.devices.DeviceY[0] = std::numeric_limits<Single>::quiet_NaN();
    RebuildDeviceString(drawing, machine.platform);
    EXPECT_EQ(machine.reports.size(), 2u);
    EXPECT_EQ(drawing.DeviceString, before);
}

TEST_F(DrawingTest, LabelsAreRecordedWithTheFixedColourWhenThatIsOn) {
    drawing.AfterSave = After::New;
    label({.text = "M1", .x = 1, .y = 2, .color = Red, .fontName = "Arial", .fontSize = 8});
    Long color = Red;
    drawing.FixedLabelColor = &color;
    color = Blue;
    label({.x = 1.25f, .y = 2, .color = Cyan, .fontName = "Arial", .fontSize = 9.5f, .bold = true});

    EXPECT_EQ(readable(drawing.LabelString),
              "M1|1|2|255|Arial|8|False|False\n"
              "Type New Text|1.25|2|16711680|Arial|9.5|True|False\n");
    EXPECT_EQ(drawing.labels.LabelColor[1], Blue);
    EXPECT_EQ(drawing.CurrentLabel, 1);
    EXPECT_EQ(readable(drawing.LabelRecord(0)), "M1|1|2|255|Arial|8|False|False");
    EXPECT_TRUE(drawing.DrawingChanged);
    EXPECT_EQ(drawing.AfterSave, After::Nothing);
}

TEST_F(DrawingTest, ALabelIsAddedToATextThatHoldsTheOthersAndReplacesOneThatDoesNot) {
    label({.text = "M1", .fontName = "Arial", .fontSize = 8});
    label({.text = "M2", .fontName = "Arial", .fontSize = 8});
    EXPECT_EQ(readable(drawing.LabelRecord(1)), "M2|0|0|0|Arial|8|False|False");
    const std::string two = drawing.LabelString;

    label({.text = "M3", .x = std::numeric_limits<Single>::infinity()});
    EXPECT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(drawing.labels.LabelCount, 2);
    EXPECT_EQ(drawing.LabelString, two);
    EXPECT_EQ(drawing.CurrentLabel, 1);

    ClearTables(drawing);
    drawing.LabelString = "not a label\r\n";
    label({.text = "M3", .x = std::numeric_limits<Single>::infinity()});
    EXPECT_EQ(machine.reports.size(), 2u);
    EXPECT_EQ(drawing.labels.LabelCount, 0);
    EXPECT_EQ(drawing.LabelString, "not a label\r\n");
    label({.text = "M1", .fontName = "Arial", .fontSize = 8});
    EXPECT_EQ(readable(drawing.LabelString), "M1|0|0|0|Arial|8|False|False\n");
}

// What was read in any form, or only in part, and what is added to it are read together next time.
TEST_F(DrawingTest, WhatIsAddedToATextOfAnotherFormIsReadWithAllTheOthers) {
    const struct {
        const char *devices, *labels;
        Short rows;
    } cases[] = {
        {"InsertA, 1.5, 2, 255, \nInsertB, 1, 2, 7, \n", "M1, 1.5, 2, 255\nM2, 1, 2, 7\n", 2},
        {"InsertA=FF1=FF2,5=FF255=FF\n", "M1=FF1,5=FF2=FF255\n", 1},
        {"InsertA|1|2,5|7|a,b|1|1\n", "M1|1|2,5|7|A,B|8|False|False\n", 1},
        {"InsertA|1|2.5|7|a.b|1|1\n", "M1|1|2.5|7|A.B|8|False|False\n", 1},
        {"InsertA|1|2|7|\nInsertB|x\nInsertC|1|2|7|\n", "M1|1|2|7\nM2|x\nM3|1|2|7\n", 1},
        {"InsertA|1|2|7|\nInsertB|1", "M1|1|2|7\nM2|1", 1},
        {"InsertB|x\n", "M2|x\n", 0},
        {"not understood\n", "not understood\n", 0},
    };
    const auto parse = [this] {
        ParseDeviceString(drawing, machine.platform);
        ParseLabelString(drawing, machine.platform);
        return std::exchange(machine.reports, {}).size();
    };
    for (const char mark : {'.', ','}) {
        machine.platform.locale.decimalMark = mark;
        for (const auto& [devices, labels, rows] : cases) {
            SCOPED_TRACE(devices);
            drawing.DeviceString = test::asRecords(devices);
            drawing.LabelString = test::asRecords(labels);
            parse();
            record({.name = "InsertFuse", .x = 2.5f, .color = 9});
            label({.text = "new", .x = 2.5f, .color = 9, .fontName = "C.D,E"});
            const DeviceTable held = drawing.devices;
            const LabelTable heldLabels = drawing.labels;
            EXPECT_EQ(held.DeviceCount, rows + 1);
            EXPECT_EQ(heldLabels.LabelCount, rows + 1);
            EXPECT_EQ(parse(), 0u);
            EXPECT_EQ(drawing.devices.DeviceName, held.DeviceName);
            EXPECT_EQ(drawing.devices.DeviceY, held.DeviceY);
            EXPECT_EQ(drawing.devices.DeviceWidthTag, held.DeviceWidthTag);
            EXPECT_EQ(drawing.labels.LabelText, heldLabels.LabelText);
            EXPECT_EQ(drawing.labels.LabelY, heldLabels.LabelY);
            EXPECT_EQ(drawing.labels.LabelFontName, heldLabels.LabelFontName);
        }
    }
}

// Though it looks as if nothing had to change: a missing font is the default font of the reading.
TEST_F(DrawingTest, AnAddedLabelRemakesTheRecordsOfAllOthers) {
    drawing.LabelString = test::asRecords("M1|1.50|02|255\n");
    ParseLabelString(drawing, machine.platform);
    label({.text = "M2", .fontName = "Arial", .fontSize = 8});
    EXPECT_EQ(readable(drawing.LabelString),
              "M1|1.5|2|255|Arial|8|False|False\nM2|0|0|0|Arial|8|False|False\n");
    EXPECT_EQ(readable(drawing.LabelRecord(0)), "M1|1.5|2|255|Arial|8|False|False");
}

TEST_F(DrawingTest, ALabelOfAPreviewIsPrintedAndNotRecorded) {
    drawing.DrawingPreview = true;
    const Long color = Red;
    drawing.FixedLabelColor = &color;
    label({.text = "M1", .x = 1, .y = 2, .fontName = "Arial", .fontSize = 8, .italic = true});

    EXPECT_EQ(drawing.labels.LabelCount, 0);
    EXPECT_EQ(drawing.LabelString, "");
    EXPECT_FALSE(drawing.DrawingChanged);
    ASSERT_EQ(machine.picLX.persistent.size(), 1u);
    const test::Primitive& printed = machine.picLX.persistent[0];
    EXPECT_EQ(printed.text, "M1");
    EXPECT_EQ(printed.color, Red);
    EXPECT_EQ(printed.font, (FontSpec{"Arial", 8, false, true}));
    EXPECT_EQ(printed.x1, 1);
    EXPECT_EQ(printed.y1, 2);
}

TEST_F(DrawingTest, RebuiltTextsFollowTheColumns) {
    record({.name = "InsertSavedLine", .x = 1});
    record({.name = "InsertCircle", .x = 1, .radius = 1, .aspect = 0.5f});
    label({.text = "M1", .fontName = "Arial", .fontSize = 8});
    drawing.devices.DeviceWidthTag[0].clear();
    drawing.devices.DeviceAspect[1] = 0;
    drawing.devices.DeviceX[1] = 7.125f;
    drawing.labels.LabelText[0] = "M2";
    drawing.PictureTable = {{0.5f, 1, 2, 1.25f, "logo.bmp", "/elsewhere/logo.bmp", true}};
    drawing.PictureCount = 1;
    machine.platform.locale.decimalMark = ',';

    rebuild();
    EXPECT_EQ(readable(drawing.DeviceString),
              "InsertSavedLine|1|0|0|0|0|0\n"
              "InsertCircle|7,125|0|1|0||1\n");
    EXPECT_EQ(readable(drawing.DeviceRecord(1)), "InsertCircle|7,125|0|1|0||1");
    EXPECT_EQ(readable(drawing.LabelString), "M2|0|0|0|Arial|8|False|False\n");
    EXPECT_EQ(readable(drawing.PictureString), "logo.bmp|0,5|1|2|1,25\n");
    EXPECT_EQ(drawing.devices.DeviceAspect[1], 0) << "a rebuild changes no column";
}

TEST_F(DrawingTest, ATextThatNeverBecameRowsOutlivesARebuildAndThatOfDeletedRowsDoesNot) {
    const std::string strange = "not understood\r\n";
    drawing.DeviceString = drawing.LabelString = drawing.PictureString = strange;
    rebuild();
    EXPECT_EQ(drawing.DeviceString + drawing.LabelString + drawing.PictureString,
              strange + strange + strange);

    record({.name = "InsertCoil", .x = 1});
    label({.text = "M1"});
    drawing.PictureTable.resize(1);
    drawing.PictureCount = 1;
    RebuildPictureString(drawing, machine.platform);
    drawing.devices.DeviceSelected[0] = drawing.labels.LabelSelected[0] = 1;
    drawing.devices.eraseSelected();
    drawing.labels.eraseSelected();
    drawing.PictureTable.clear();
    drawing.PictureCount = 0;
    rebuild();
    EXPECT_EQ(drawing.DeviceString + drawing.LabelString + drawing.PictureString, "");
}

}  // namespace
}  // namespace ladrix
