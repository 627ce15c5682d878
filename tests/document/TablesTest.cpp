#include "document/Tables.h"

#include <gtest/gtest.h>

namespace ladrix {
namespace {

Device numbered(int number) {
    return {.name = "InsertDevice" + std::to_string(number),
            .x = static_cast<Single>(number),
            .widthTag = std::to_string(number),
            .orientation = static_cast<Short>(number),
            .flip = number % 2 == 1};
}

TEST(Tables, ErasingSelectedDevicesKeepsEveryColumnOfTheOthersInOrder) {
    DeviceTable table;
    for (int i = 0; i < 6; ++i)
        table.append(numbered(i));
    for (const std::size_t row : {0u, 2u, 3u})
        table.DeviceSelected[row] = 1;

    table.eraseSelected();

    ASSERT_EQ(table.DeviceCount, 3);
    const int kept[] = {1, 4, 5};
    for (Short row = 0; row < 3; ++row) {
        const Device expected = numbered(kept[row]);
        const Device found = table.row(row);
        EXPECT_EQ(found.name, expected.name);
        EXPECT_EQ(found.x, expected.x);
        EXPECT_EQ(found.widthTag, expected.widthTag);
        EXPECT_EQ(found.orientation, expected.orientation);
        EXPECT_EQ(found.flip, expected.flip);
        EXPECT_EQ(table.DeviceSelected[static_cast<std::size_t>(row)], 0);
    }
    EXPECT_EQ(table.DeviceName.size(), 3u) << "no stale name stays behind the last row";
}

TEST(Tables, AppendedRowIsNeverSelectedEvenInAUsedSlot) {
    DeviceTable table;
    table.append(numbered(1));
    table.DeviceSelected[0] = 1;
    table.DeviceCount = 0;

    table.append(numbered(2));

    EXPECT_EQ(table.DeviceSelected[0], 0);
    EXPECT_EQ(table.row(0).name, "InsertDevice2");
}

TEST(Tables, TheRowBeyondTheLargestCountIsRefused) {
    DeviceTable devices;
    devices.resize(LargestCount);
    LabelTable labels;
    labels.resize(LargestCount);

    EXPECT_THROW(devices.append(numbered(1)), Failure);
    EXPECT_THROW(labels.append({.text = "one more"}), Failure);
    EXPECT_EQ(devices.DeviceCount, LargestCount);
    EXPECT_EQ(labels.LabelCount, LargestCount);
}

}  // namespace
}  // namespace ladrix
