// Drawings built at random go to their file's text and back.
#include <gtest/gtest.h>

#include <random>

#include "RecordText.h"
#include "document/DrawingFile.h"
#include "document/PageLayout.h"
#include "document/Records.h"
#include "support/FakePlatform.h"

namespace ladrix {
namespace {

class RandomDrawing {
  public:
    explicit RandomDrawing(unsigned seed) : random_(seed) {}

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

    // Coordinates on a grid, off it, and now and then of any size.
    Single number() {
        switch (below(4)) {
            case 0:
                return static_cast<Single>(below(200)) / 8;
            case 1:
                return static_cast<Single>(below(2'000'000) - 1'000'000) / 65536;
            case 2:
                return std::ldexp(static_cast<Single>(below(1 << 24)), below(60) - 40);
            default:
                return static_cast<Single>(below(20));
        }
    }

    // Any byte that a record may hold; the digits and marks are there to tempt the decimal repair.
    std::string text() {
        constexpr std::string_view Tempting = "1.5,2=FF //\"|\xE9\xFE ";
        std::string made;
        for (int length = below(12); length > 0; --length) {
            made +=
                below(3) == 0
                    ? Tempting[static_cast<std::size_t>(below(static_cast<int>(Tempting.size())))]
                    : static_cast<char>('A' + below(26));
        }
        return made;
    }

    Device device() {
        constexpr std::array<const char*, 9> Names = {
            "InsertSavedLine",   "InsertSavedSquare", "InsertCircle",
            "InsertSolidCircle", "InsertArc",         "InsertSemiCircle",
            "InsertCoil",        "InsertTransformer", "Pumpe 1,5"};
        Device made{.name = Names[static_cast<std::size_t>(below(9))],
                    .x = number(),
                    .y = number(),
                    .x2 = number(),
                    .y2 = number(),
                    .radius = number(),
                    .direction = static_cast<Short>(below(5)),
                    .color = static_cast<Long>(below(0x1000000)),
                    .widthTag = below(2) ? "DrawWidth=2" : "",
                    .aspect = number(),
                    .startAngle = number(),
                    .endAngle = number(),
                    .scaleX = number(),
                    .scaleY = number(),
                    .orientation = static_cast<Short>(below(8)),
                    .flip = below(2) == 1};
        return made;
    }

    Label label() {
        return {.text = text(),
                .x = number(),
                .y = number(),
                .color = static_cast<Long>(below(0x1000000)),
                .fontName = below(2) ? "Arial" : "Times New Roman",
                .fontSize = static_cast<Single>(below(80)) / 4,
                .bold = below(2) == 1,
                .italic = below(2) == 1};
    }

  private:
    std::mt19937 random_;
};

void record(Drawing& drawing, const Platform& platform, RandomDrawing& random) {
    for (int count = random.below(30); count > 0; --count) {
        Device device = random.device();
        RecordDevice(drawing, platform, device);
    }
    for (int count = random.below(12); count > 0; --count) {
        RecordLabel(drawing, platform, random.label());
    }
    const auto sizes = pagePrefixes();
    const auto size = static_cast<std::size_t>(random.below(static_cast<int>(sizes.size())));
    drawing.PageLayoutKey =
        std::string(sizes[size].prefix) + (random.below(2) ? "Portrait" : "Landscape");
    drawing.FileDescription = random.text();
}

void open(Drawing& drawing, const Platform& platform, std::string_view text) {
    drawing.CurrentFileName = "drawing.els";
    takeParts(drawing, splitFile(text, std::chrono::system_clock::now()));
    ParseDeviceString(drawing, platform);
    ParseLabelString(drawing, platform);
    ParsePictureString(drawing, platform);
}

class RoundTrip : public testing::TestWithParam<char> {};

TEST_P(RoundTrip, ASavedDrawingOpensAndSavesToTheSameBytes) {
    test::FakePlatform machine;
    machine.platform.locale.decimalMark = GetParam();
    for (unsigned seed = 0; seed < 200; ++seed) {
        RandomDrawing random(seed);
        Drawing drawing;
        record(drawing, machine.platform, random);
        const std::string saved = fileText(drawing);

        Drawing opened;
        open(opened, machine.platform, saved);
        ASSERT_EQ(opened.devices.DeviceCount, drawing.devices.DeviceCount) << "seed " << seed;
        ASSERT_EQ(opened.labels.LabelCount, drawing.labels.LabelCount) << "seed " << seed;
        EXPECT_EQ(fileText(opened), saved) << "seed " << seed;
    }
    EXPECT_TRUE(machine.reports.empty());
}

// A redraw rebuilds the texts from the columns: what was read must be all there.
TEST_P(RoundTrip, RebuiltTextsDifferOnlyInWhatCirclesLeaveOut) {
    test::FakePlatform machine;
    machine.platform.locale.decimalMark = GetParam();
    for (unsigned seed = 0; seed < 200; ++seed) {
        RandomDrawing random(seed);
        Drawing drawing;
        record(drawing, machine.platform, random);
        for (Short row = 0; row < drawing.devices.DeviceCount; ++row) {
            const auto i = static_cast<std::size_t>(row);
            const RecordLayout layout = recordLayout(drawing.devices.DeviceName[i]);
            if (layout == RecordLayout::Circle) drawing.devices.DeviceAspect[i] = 1;
            if (layout == RecordLayout::Circle || layout == RecordLayout::SemiCircle) {
                drawing.devices.DeviceWidthTag[i].clear();
            }
        }
        RebuildDeviceString(drawing, machine.platform);
        const std::string saved = fileText(drawing);

        Drawing opened;
        open(opened, machine.platform, saved);
        RebuildDeviceString(opened, machine.platform);
        RebuildLabelString(opened, machine.platform);
        EXPECT_EQ(test::readable(fileText(opened)), test::readable(saved)) << "seed " << seed;
    }
    EXPECT_TRUE(machine.reports.empty());
}

TEST_P(RoundTrip, TheOtherLocaleReadsTheSameDrawing) {
    test::FakePlatform machine;
    for (unsigned seed = 0; seed < 100; ++seed) {
        RandomDrawing random(seed);
        Drawing drawing, here, there;
        machine.platform.locale.decimalMark = GetParam();
        record(drawing, machine.platform, random);
        open(here, machine.platform, fileText(drawing));
        machine.platform.locale.decimalMark = GetParam() == '.' ? ',' : '.';
        open(there, machine.platform, fileText(drawing));

        ASSERT_EQ(there.devices.DeviceCount, drawing.devices.DeviceCount) << "seed " << seed;
        EXPECT_EQ(there.devices.DeviceName, here.devices.DeviceName) << "seed " << seed;
        EXPECT_EQ(there.devices.DeviceX, here.devices.DeviceX) << "seed " << seed;
        EXPECT_EQ(there.devices.DeviceEndAngle, here.devices.DeviceEndAngle) << "seed " << seed;
        EXPECT_EQ(there.labels.LabelText, here.labels.LabelText) << "seed " << seed;
        EXPECT_EQ(there.labels.LabelFontSize, here.labels.LabelFontSize) << "seed " << seed;
    }
    EXPECT_TRUE(machine.reports.empty());
}

INSTANTIATE_TEST_SUITE_P(Document, RoundTrip, testing::Values('.', ','), [](const auto& instance) {
    return instance.param == '.' ? std::string("Point") : std::string("Comma");
});

}  // namespace
}  // namespace ladrix
