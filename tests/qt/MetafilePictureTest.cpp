#include "qt/MetafilePicture.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QStandardPaths>
#include <filesystem>
#include <string>

#include "platform/Types.h"
#include "qt/QtImages.h"
#include "qt/QtText.h"
#include "support/TemporaryFolder.h"

namespace ladrix {
namespace {

std::string words(std::initializer_list<int> values) {
    std::string text;
    for (const int value : values) {
        text += static_cast<char>(value & 0xFF);
        text += static_cast<char>((value >> 8) & 0xFF);
    }
    return text;
}

// A red box 2 inches wide and 1 high, in 1440 units to the inch.
std::string boxMetafile() {
    return words({0xCDD7, 0x9AC6, 0, 0, 0, 2880, 1440, 1440, 0, 0, 0x5C51}) +  // placeable header
           words({1, 9, 0x300, 41, 0, 1, 8, 0, 0}) +                           // header
           words({5, 0, 0x20B, 0, 0}) +                                        // window origin
           words({5, 0, 0x20C, 1440, 2880}) +                                  // window extent
           words({8, 0, 0x2FA, 0, 60, 0, 255, 0}) +                            // red pen
           words({4, 0, 0x12D, 0}) + words({7, 0, 0x41B, 1400, 2840, 40, 40}) + words({3, 0, 0});
}

class MetafilePictureTest : public testing::Test {
  protected:
    std::string write(const std::string& name, const std::string& content) {
        folder.write(name, content);
        return folder / name;
    }
    // A program in the converter's place.
    MetafileLimits instead(const std::string& script) {
        const std::string path = write("converter", "#!/bin/sh\n" + script);
        std::filesystem::permissions(folder.native("converter"), std::filesystem::perms::owner_all);
        MetafileLimits limits;
        limits.converter = toQString(path);
        limits.milliseconds = 1500;
        return limits;
    }
    std::string faultOf(const std::string& path, const MetafileLimits& limits = {}) {
        try {
            readMetafile(toQString(path), limits);
            return {};
        } catch (const Failure& failure) {
            return failure.text.substr(failure.text.find(": ") + 2);
        }
    }

    test::TemporaryFolder folder;
};

TEST_F(MetafilePictureTest, HasTheSizeThatItStatesAndItsColours) {
    if (QStandardPaths::findExecutable("wmf2svg").isEmpty()) GTEST_SKIP() << "no libwmf here";
    const auto picture = QtImages().load(write("box.WMF", boxMetafile()));
    EXPECT_EQ(picture->pixelWidth(), 192);
    EXPECT_EQ(picture->pixelHeight(), 96);
    const QImage image = readMetafile(toQString(folder / "box.WMF"));
    int red = 0;
    for (int x = 0; x < image.width(); ++x)
        red += image.pixelColor(x, image.height() / 2) == Qt::red;
    EXPECT_GT(red, 4) << "the box's two sides";
    EXPECT_LT(red, 100);
    for (const std::size_t length : {0u, 10u, 30u, 60u})
        EXPECT_NE(faultOf(write("cut.wmf", boxMetafile().substr(0, length))), "") << length;
    EXPECT_NE(faultOf(write("noise.wmf", std::string(4000, '\x5A'))), "");
}

TEST_F(MetafilePictureTest, AConverterThatHangsFloodsOrIsMissingIsOneFailure) {
    const std::string path = write("box.wmf", boxMetafile());
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(faultOf(path, instead("exec sleep 60")), "reading it took too long");
    EXPECT_LT(time.elapsed(), 6000);
    MetafileLimits small = instead("exec head -c 100000000 /dev/zero > \"$3\"");
    small.outputBytes = 1 << 20;
    EXPECT_EQ(faultOf(path, small), "not a metafile that can be read");
    EXPECT_EQ(faultOf(path, instead("echo '<svg/>' > \"$3\"; exit 1")),
              "not a metafile that can be read");
    MetafileLimits missing;
    missing.converter = "no-such-converter";
    EXPECT_EQ(faultOf(path, missing), "reading it needs the program wmf2svg of libwmf");
}

}  // namespace
}  // namespace ladrix
