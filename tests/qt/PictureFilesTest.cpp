#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/Types.h"
#include "qt/PictureWorker.h"
#include "qt/QtImages.h"
#include "qt/QtText.h"
#include "support/HostilePictures.h"
#include "support/TemporaryFolder.h"

namespace ladrix {
namespace {

const QtPicture& seen(const std::shared_ptr<const Picture>& picture) {
    return dynamic_cast<const QtPicture&>(*picture);
}

int dotsOf(const QImage& image, QRgb color) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixel(x, y) == color;
    return count;
}

class PictureFilesTest : public testing::Test {
  protected:
    std::string write(const std::string& name, const std::string& content) {
        folder.write(name, content);
        return folder / name;
    }
    std::string save(const std::string& name, QSize size, const char* format = "PNG") {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, format);
        return write(name, bytes.toStdString());
    }
    // A program in the place of another.
    QString script(const std::string& name, const std::string& text) {
        const std::string path = write(name, "#!/bin/sh\n" + text);
        std::filesystem::permissions(folder.native(name), std::filesystem::perms::owner_all);
        return toQString(path);
    }
    std::string faultOf(const std::string& path) {
        try {
            images.load(path);
            return {};
        } catch (const Failure& failure) {
            EXPECT_EQ(failure.text.rfind(path + ": ", 0), 0u) << failure.text;
            EXPECT_EQ(failure.text.find('\n'), std::string::npos) << failure.text;
            return failure.text.substr(failure.text.find(": ") + 2);
        }
    }

    test::TemporaryFolder folder;
    QtImages images;
};

TEST_F(PictureFilesTest, AMetafileHasTheSizeThatItStatesAndItsColours) {
    if (QStandardPaths::findExecutable("wmf2svg").isEmpty()) GTEST_SKIP() << "no libwmf here";
    const auto picture = images.load(write("box.PNG", test::boxMetafile()));
    EXPECT_EQ(picture->pixelWidth(), 192);
    EXPECT_EQ(picture->pixelHeight(), 96);
    const QImage& image = seen(picture).image();
    EXPECT_EQ(image.size(), QSize(192, 96) * DrawnDensity);
    const int red = dotsOf(image.copy(0, image.height() / 2, image.width(), 1), 0xFFFF0000);
    EXPECT_GT(red, 4) << "the box's two sides";
    EXPECT_LT(red, 100);
}

// What a drawn picture shows without opening anything: shapes, text, dots of its own.
TEST_F(PictureFilesTest, AnSvgIsDrawnWithItsTextAndItsEmbeddedDots) {
    const auto svg = [](const std::string& inside) {
        return "<?xml version='1.0'?><!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' 'x.dtd'>"
               "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20' "
               "xmlns:xlink='http://www.w3.org/1999/xlink'>" +
               inside + "</svg>";
    };
    const auto dots = [&](const char* format) {
        save("dots", QSize(8, 8), format);
        return QByteArray::fromStdString(folder.read("dots")).toBase64().toStdString();
    };
    const std::string embedded = "<image width='20' height='20' xlink:href='data:image/";
    const std::vector<std::string> shown = {
        "<rect width='20' height='20' fill='red'/>",
        "<text y='18' font-family='Courier' font-size='20' font-weight='bold' fill='red'>M</text>",
        "<text y='18' style='font-family:Arial;font-size:20px;fill:red'>M</text>",
        "<defs><rect id='a' width='9' height='9' fill='red'/></defs><use href='#a'/>",
        embedded + "png;base64," + dots("PNG") + "'/>",
        embedded + "jpeg;base64," + dots("JPG") + "'/>",
    };
    for (const std::string& inside : shown) {
        const auto picture = images.load(write("picture.svg", svg(inside)));
        EXPECT_EQ(picture->pixelWidth(), 40);
        int inked = 0;
        const QImage& image = seen(picture).image();
        for (int x = 0; x < image.width(); ++x)
            for (int y = 0; y < image.height(); ++y)
                inked += qRed(image.pixel(x, y)) > 200;
        EXPECT_GT(inked, 40) << inside;
    }
}

TEST_F(PictureFilesTest, HostileFilesEndInOneReasonWithinTheLimit) {
    const std::string fifo = folder / "fifo";
    ASSERT_EQ(mkfifo(folder.native("fifo").c_str(), 0600), 0);
    const bool metafiles = !QStandardPaths::findExecutable("wmf2svg").isEmpty();
    for (const test::HostilePicture& hostile : test::hostilePictures(fifo)) {
        if (hostile.name.ends_with(".wmf") && !metafiles) continue;
        const std::string path = write(hostile.name, hostile.content);
        QElapsedTimer time;
        time.start();
        const std::string fault = faultOf(path);
        EXPECT_LT(time.restart(), 7000) << hostile.name;
        EXPECT_NE(fault.find(hostile.reason), std::string::npos) << hostile.name << ": " << fault;
        EXPECT_TRUE(hostile.mayShow || !fault.empty()) << hostile.name;
        EXPECT_EQ(faultOf(path), fault);
        if (!fault.empty()) {
            EXPECT_LT(time.elapsed(), 100) << "tried again: " << hostile.name;
        }
    }
    EXPECT_EQ(faultOf(fifo), "not a regular file");
    save("huge.bmp", QSize(1, 1), "BMP");
    std::string huge = folder.read("huge.bmp");
    huge.replace(18, 8, std::string("\x20\x4E\0\0\x70\x17\0\0", 8));  // 20,000 by 6,000
    EXPECT_EQ(faultOf(write("huge.bmp", huge)), "larger than 100 million pixels");
    for (const char* format : {"PNG", "BMP", "JPG"}) {
        save("whole", QSize(40, 30), format);
        const std::string whole = folder.read("whole");
        for (const std::size_t length : {3u, 12u, 30u})
            EXPECT_NE(faultOf(write("cut", whole.substr(0, length))), "") << format << length;
    }
}

TEST_F(PictureFilesTest, AProcessThatHangsFloodsOrIsMissingIsOneFailure) {
    const std::string box = write("box.wmf", test::boxMetafile());
    const std::string drawn = write("drawn.svg", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    struct Case {
        std::string converter, worker, reason;
    };
    const std::string sends = "cat >/dev/null; ";
    const std::vector<Case> cases = {
        {"exec sleep 60", "", "reading it takes too long"},
        {"exec head -c 100000000 /dev/zero > \"$3\"", "", "not a metafile that can be read"},
        {"echo '<svg/>' > \"$3\"; exit 1", "", "not a metafile that can be read"},
        {"", "exec sleep 60", "reading it takes too long"},
        {"", sends + "exec head -c 100000000 /dev/zero", "the picture is too large"},
        {"", sends + "echo LXPX", "the picture is incomplete"},
        {"", sends + "kill -SEGV $$", "drawing it takes too much time or memory"},
    };
    for (const Case& c : cases) {
        images = {};
        images.drawnLimits.milliseconds = 1500;
        images.drawnLimits.svgBytes = 1 << 20;
        const bool converts = !c.converter.empty();
        if (converts) images.drawnLimits.converter = script("converter", c.converter);
        if (!converts) images.drawnLimits.worker = script("worker", c.worker);
        QElapsedTimer time;
        time.start();
        EXPECT_EQ(faultOf(converts ? box : drawn), c.reason) << c.converter << c.worker;
        EXPECT_LT(time.elapsed(), 6000);
    }
    images = {};
    images.drawnLimits.converter = "no-such-converter";
    EXPECT_EQ(faultOf(box), "reading it needs the program wmf2svg of libwmf");
    images.drawnLimits.worker = "no-such-worker";
    EXPECT_EQ(faultOf(drawn), "reading it needs the program ladrix-picture");
}

TEST_F(PictureFilesTest, AFileIsReadOnceWhateverItIsCalledAndAnewWhenItChanges) {
    const std::string path = save("a.png", QSize(3, 2));
    std::filesystem::create_hard_link(folder.native("a.png"), folder.native("b.png"));
    std::filesystem::create_symlink(folder.native("a.png"), folder.native("c.png"));
    const auto first = images.load(path);
    EXPECT_EQ(images.load(folder / "b.png"), images.load(folder / "c.png"));
    const auto again = images.load(path);
    save("a.png", QSize(5, 2));
    EXPECT_EQ(images.load(path)->pixelWidth(), 5);
    EXPECT_EQ(again->pixelWidth(), 3);
}

TEST_F(PictureFilesTest, ALargePictureIsShrunkAndKeepsItsOwnSize) {
    for (const char* format : {"PNG", "JPG", "BMP"}) {
        const auto picture = images.load(save("large", QSize(9000, 30), format));
        EXPECT_EQ(picture->pixelWidth(), 9000) << format;
        EXPECT_EQ(picture->pixelHeight(), 30) << format;
        EXPECT_EQ(seen(picture).image().width(), LongestPictureSide) << format;
        EXPECT_GT(qRed(seen(picture).image().pixel(2000, 5)), 250) << format;
    }
}

TEST_F(PictureFilesTest, PicturesPastTheBudgetAreFramesAndToldOnce) {
    std::vector<std::string> told;
    images.tell = [&](std::string_view text) { told.emplace_back(text); };
    images.budget = 2 * 100 * 100 * 4;
    std::vector<std::shared_ptr<const Picture>> kept;
    for (const char* name : {"a.png", "b.png", "c.png", "d.png"})
        kept.push_back(images.load(save(name, QSize(100, 100))));
    for (int i = 0; i < 100; ++i)
        kept.push_back(images.load(folder / "a.png"));
    kept.push_back(images.load(
        write("e.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='70' height='70'/>")));
    const auto frames = std::count_if(kept.begin(), kept.end(),
                                      [](const auto& one) { return seen(one).isFrame(); });
    EXPECT_EQ(frames, 3) << "c, d and e; a is there once";
    EXPECT_EQ(seen(kept[2]).frameName(), "c.png");
    EXPECT_EQ(kept[2]->pixelWidth(), 100);
    EXPECT_EQ(kept.back()->pixelWidth(), 70);
    EXPECT_EQ(told.size(), 1u);
    kept.clear();
    EXPECT_FALSE(seen(images.load(folder / "d.png")).isFrame());
    EXPECT_EQ(told.size(), 1u);
}

}  // namespace
}  // namespace ladrix
