#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <limits>

#include "qt/PageFile.h"
#include "qt/QtImages.h"
#include "qt/QtPainterPage.h"
#include "qt/QtText.h"
#include "support/TemporaryFolder.h"

namespace ladrix {
namespace {

constexpr QRgb WhitePixel = 0xFFFFFFFF;
constexpr QRgb BlackPixel = 0xFF000000;
constexpr QRgb RedPixel = 0xFFFF0000;

// Two by two inches at so many pixels per inch.
QImage painted(const std::function<void(Page&)>& paint, int pixelsPerInch = 96) {
    QImage image(2 * pixelsPerInch, 2 * pixelsPerInch, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtPainterPage page("test");
    PageView view;
    view.scale = pixelsPerInch;
    view.penUnit = pixelsPerInch / 96.0;
    page.reset(&painter, view);
    paint(page);
    page.flush();
    return image;
}

bool isInked(const QImage& image, double x, double y) {
    return qGray(image.pixel(static_cast<int>(x), static_cast<int>(y))) < 160;
}

QRect inkedBounds(const QImage& image) {
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (isInked(image, x, y)) bounds |= QRect(x, y, 1, 1);
    return bounds;
}

int inkedInRow(const QImage& image, int y) {
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += isInked(image, x, y);
    return count;
}

TEST(PainterPage, AHairlineFillsWholePixelsWhereItLies) {
    const QImage image = painted([](Page& page) {
        page.Line(0.5f, 0.5f, 1.5f, 0.5f, Black, LineForm::Plain);
        page.Line(1, 0.75f, 1, 1.5f, Red, LineForm::Plain);
    });
    for (const int x : {48, 96, 143})
        EXPECT_EQ(image.pixel(x, 48), BlackPixel) << x;
    EXPECT_EQ(image.pixel(96, 47), WhitePixel);
    EXPECT_EQ(image.pixel(96, 49), WhitePixel);
    EXPECT_EQ(image.pixel(46, 48), WhitePixel);
    EXPECT_EQ(image.pixel(146, 48), WhitePixel);
    EXPECT_EQ(image.pixel(96, 100), RedPixel);
    EXPECT_EQ(image.pixel(95, 100), WhitePixel);
    EXPECT_EQ(image.pixel(97, 100), WhitePixel);
}

TEST(PainterPage, LineWidthIsTheSameOnPaperAtEveryScale) {
    for (const int scale : {96, 192, 384})
        for (const Short width : {Short{1}, Short{2}, Short{3}}) {
            const QImage image = painted(
                [width](Page& page) {
                    page.DrawWidth = width;
                    page.Line(0.25f, 1, 1.75f, 1, Black, LineForm::Plain);
                },
                scale);
            EXPECT_EQ(inkedBounds(image).height(), width * scale / 96) << scale << ' ' << width;
        }
}

TEST(PainterPage, LaterPrimitivesCoverEarlierOnesWhateverIsBatched) {
    const QImage image = painted([](Page& page) {
        page.Line(0.5f, 1, 1.5f, 1, Black, LineForm::Plain);
        page.Line(1, 0.5f, 1, 1.5f, Red, LineForm::Plain);
        page.Line(0.5f, 0.5f, 1.5f, 0.5f, Black, LineForm::Plain);
        page.FillStyle = 0;
        page.FillColor = White;
        page.Circle(1.25f, 1, 0.125f, Red, 1);
        page.FillStyle = 1;
        page.Line(0.7f, 0.9f, 0.8f, 1.1f, Blue, LineForm::FilledBox);
    });
    EXPECT_EQ(image.pixel(96, 96), RedPixel);
    EXPECT_EQ(image.pixel(96, 48), BlackPixel);
    EXPECT_EQ(image.pixel(120, 96), WhitePixel) << "the filled circle hides the line";
    EXPECT_EQ(image.pixel(72, 96), 0xFF0000FF) << "the filled box hides the line";
    EXPECT_EQ(image.pixel(60, 96), BlackPixel);
}

TEST(PainterPage, AnOutlineAndAFilledBoxHaveTheSameCorners) {
    for (const LineForm form : {LineForm::Box, LineForm::FilledBox}) {
        const QImage image =
            painted([form](Page& page) { page.Line(1.5f, 0.5f, 0.5f, 1, Black, form); });
        EXPECT_EQ(inkedBounds(image), QRect(QPoint(48, 48), QPoint(144, 96)));
        EXPECT_EQ(isInked(image, 96, 72), form == LineForm::FilledBox);
    }
}

// Where the rim of a circle about (1, 1) is inked, by degrees counter-clockwise from east.
bool rimInked(const QImage& image, double degrees, double radiusX, double radiusY) {
    const double scale = image.width() / 2.0;
    const double angle = degrees * Pi / 180;
    const double x = scale * (1 + radiusX * std::cos(angle));
    const double y = scale * (1 - radiusY * std::sin(angle));
    for (const double dx : {-0.5, 0.5})
        for (const double dy : {-0.5, 0.5})
            if (isInked(image, x + 0.5 + dx, y + 0.5 + dy)) return true;
    return false;
}

TEST(PainterPage, CurvesLieOnTheirRimAtEverySize) {
    for (const int scale : {48, 96, 192, 480})
        for (const Single radius : {0.125f, 0.5f, 0.9f}) {
            const QImage image =
                painted([radius](Page& page) { page.Circle(1, 1, radius, Black, 1); }, scale);
            if (scale == 48) continue;  // a pen of half a pixel is pale; it only has to work
            for (int degrees = 0; degrees < 360; degrees += 5)
                EXPECT_TRUE(rimInked(image, degrees, radius, radius))
                    << scale << ' ' << radius << ' ' << degrees;
            EXPECT_FALSE(isInked(image, scale, scale));
        }
}

TEST(PainterPage, ArcsRunCounterClockwiseAndEqualAnglesMakeAFullTurn) {
    struct Case {
        double start, end;
        std::function<bool(int)> inked;  // by degrees
    };
    const Case cases[] = {
        {0, 90, [](int d) { return d <= 90; }},
        {270, 90, [](int d) { return d <= 90 || d >= 270; }},
        {360, 180, [](int d) { return d <= 180; }},
        {45, 45, [](int) { return true; }},
    };
    for (const Case& c : cases)
        for (const int scale : {96, 192}) {
            const QImage image = painted(
                [&c](Page& page) {
                    page.Arc(1, 1, 0.75f, Black, c.start * Pi / 180, c.end * Pi / 180, 1);
                },
                scale);
            for (int degrees = 5; degrees < 360; degrees += 10)
                EXPECT_EQ(rimInked(image, degrees, 0.75, 0.75), c.inked(degrees))
                    << c.start << ' ' << c.end << ' ' << degrees << ' ' << scale;
        }
}

TEST(PainterPage, AnAspectMeasuresTheRadiusAlongTheLongerAxis) {
    const QImage flat = painted([](Page& page) { page.Circle(1, 1, 0.75f, Black, 0.5f); });
    EXPECT_EQ(inkedBounds(flat).size(), QSize(145, 73));
    const QImage tall = painted([](Page& page) { page.Circle(1, 1, 0.75f, Black, 2); });
    EXPECT_EQ(inkedBounds(tall).size(), QSize(73, 145));
}

TEST(PainterPage, DashesHaveTheSameLengthsOnPaperAtEveryScale) {
    for (const Short style : {Short{1}, Short{2}, Short{3}, Short{4}}) {
        double share96 = 0;
        for (const int scale : {96, 384}) {
            const QImage image = painted(
                [style](Page& page) {
                    page.DrawStyle = style;
                    page.Line(0.25f, 1, 1.75f, 1, Black, LineForm::Plain);
                    page.DrawStyle = 0;
                    page.Line(0.25f, 1.5f, 1.75f, 1.5f, Black, LineForm::Plain);
                },
                scale);
            const double share = static_cast<double>(inkedInRow(image, scale)) /
                                 inkedInRow(image, scale + scale / 2);
            EXPECT_TRUE(isInked(image, 0.25 * scale + 1, scale)) << "begins with a dash";
            EXPECT_GT(share, 0.2) << style;
            EXPECT_LT(share, 0.8) << style;
            if (scale == 96) share96 = share;
            EXPECT_NEAR(share, share96, 0.25) << style;
        }
    }
}

TEST(PainterPage, FarOutAndSenselessCoordinatesDoNoHarm) {
    constexpr Single NaN = std::numeric_limits<Single>::quiet_NaN();
    constexpr Single Infinite = std::numeric_limits<Single>::infinity();
    for (const Medium medium : {Medium::Raster, Medium::Vector}) {
        QImage image(192, 192, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QtPainterPage page("test", medium);
        page.reset(&painter, {});
        for (const Short style : {Short{0}, Short{1}}) {
            page.DrawStyle = style;
            for (const Single far : {NaN, Infinite, -Infinite, 1e30f, -3e38f, 1e12f}) {
                for (const LineForm form : {LineForm::Plain, LineForm::Box})
                    page.Line(far, 0.1f, 0.2f, far, Blue, form);
                page.Line(far, far, far, far, Blue, LineForm::FilledBox);
                page.Circle(far, 3, 1, Blue, 1);
                page.Circle(3, 300, far, Blue, far);
                page.Arc(3, far, far, Blue, static_cast<double>(far), 1, 1);
                page.Text(far, 1, {"Arial", far, false, false}, "far", Blue);
                page.PaintPicture(QtPicture(QImage(2, 2, QImage::Format_RGB32)), far, 0, 1, far);
            }
        }
        page.DrawStyle = 0;
        page.Line(-1e6f, 1, 1e6f, 1, Black, LineForm::Plain);
        page.flush();
        EXPECT_TRUE(isInked(image, 96, 96)) << "a line from far away crosses the page";
        EXPECT_FALSE(isInked(image, 96, 90));
    }
}

// The largest difference of a channel.
int difference(const QImage& a, const QImage& b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y), other = b.pixel(x, y);
            most = std::max({most, std::abs(qRed(one) - qRed(other)),
                             std::abs(qGreen(one) - qGreen(other)),
                             std::abs(qBlue(one) - qBlue(other))});
        }
    return most;
}

TEST(PainterPage, AFarLineKeepsItsSlopeItsWidthAndItsDashes) {
    constexpr int Rounding = 12;  // of 255; the painter knows 64 places to a pixel
    for (const Short width : {Short{1}, Short{2}, Short{5}})
        for (const Short style : {Short{0}, Short{1}, Short{4}})
            for (const QPoint& towards : {QPoint(1, 2), {0, 1}, {-1, 0}, {3, -1}})
                for (const LineForm form : {LineForm::Plain, LineForm::Box}) {
                    const auto line = [=](Single length) {
                        return painted([=](Page& page) {
                            page.DrawWidth = width;
                            page.DrawStyle = style;
                            page.Line(1, 1, 1 + length * static_cast<Single>(towards.x()),
                                      1 + length * static_cast<Single>(towards.y()), Black, form);
                        });
                    };
                    EXPECT_LE(difference(line(4), line(8192)), Rounding)
                        << width << ' ' << style << ' ' << towards.x() << ' ' << towards.y();
                }
}

// A piece of the page shows what the whole shows there: large curves, filled and not.
TEST(PainterPage, LargeCurvesAreTheSameInEveryViewAndLieOnTheirRim) {
    for (const Single radius : {15.f, 40.f, 3000.f, 32000.f})
        for (const Short width : {Short{1}, Short{3}})
            for (const Short style : {Short{0}, Short{2}})
                for (const Short fill : {Short{0}, Short{1}}) {
                    const auto paint = [=](Page& page) {
                        page.DrawWidth = width;
                        page.DrawStyle = style;
                        page.FillStyle = fill;
                        page.FillColor = Red;
                        // East of its centre, and an ellipse's north.
                        page.Circle(1 - radius, 1, radius, Black, 1);
                        page.FillStyle = 1;
                        page.Arc(1, 1.5f + radius / 2, radius, Blue, 0, 3, 0.5f);
                    };
                    const QImage whole = painted(paint);
                    QImage piece(60, 60, QImage::Format_RGB32);
                    piece.fill(Qt::white);
                    {
                        QPainter painter(&piece);
                        QtPainterPage page("test");
                        PageView view;
                        view.left = view.top = -80;
                        page.reset(&painter, view);
                        paint(page);
                        page.flush();
                    }
                    const int rounding = style == 0 ? 2 : 12;
                    EXPECT_LE(difference(piece, whole.copy(80, 80, 60, 60)), rounding)
                        << radius << ' ' << width << ' ' << style << ' ' << fill;
                    const QRgb inside = whole.pixel(40, 96), outside = whole.pixel(150, 96);
                    EXPECT_EQ(inside, fill == 0 ? RedPixel : WhitePixel) << radius;
                    EXPECT_EQ(outside, WhitePixel) << radius;
                    if (style != 0) continue;
                    EXPECT_TRUE(isInked(whole, 96, 96)) << radius;
                    EXPECT_TRUE(isInked(whole, 96, 144)) << radius;
                }
}

TEST(PainterPage, OnPaperALargeCurveIsAFewCurves) {
    PageContent content;
    content.width = content.height = 2;
    content.paint = [](Page& page) {
        for (int i = 0; i < 100; ++i)
            page.Circle(1 - 9000, 1, 9000 + 0.005f * static_cast<Single>(i), Black, 1);
    };
    const std::string svg = QtPageFiles().make(content, PageFormat::Svg, 96);
    EXPECT_LT(svg.size(), 40000u);
    QImage image(192, 192, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtPainterPage page("test", Medium::Vector);
    page.reset(&painter, {});
    page.Circle(1 - 9000, 1, 9000, Black, 1);
    page.Line(1.5f, 1, 1.6f, 30000, Black, LineForm::Plain);
    EXPECT_TRUE(isInked(image, 95.9, 20) || isInked(image, 96, 20));
    EXPECT_TRUE(isInked(image, 95.9, 180) || isInked(image, 96, 180));
    EXPECT_TRUE(isInked(image, 144, 150) || isInked(image, 143.9, 150));
    EXPECT_LE(inkedBounds(image).width(), 50) << "and nothing else";
}

TEST(PainterPage, APictureThatIsNotShownIsACrossedFrameWithItsName) {
    const auto paint = [](const std::string& name) {
        return painted([&](Page& page) {
            page.PaintPicture(QtPicture(name, QSize(96, 96)), 0.5f, 0.5f, 1, 1);
        });
    };
    const QImage named = paint("Plan of the house.png");
    for (const int at : {48, 96, 144}) {
        EXPECT_TRUE(isInked(named, at, 48)) << "frame";
        EXPECT_TRUE(isInked(named, at, at)) << "cross";
        EXPECT_TRUE(isInked(named, at, 192 - at)) << "cross";
    }
    EXPECT_NE(named, paint(""));
}

TEST(PainterPage, ShowsThePartOfThePageThatTheViewNames) {
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtPainterPage page("test");
    PageView view;
    view.scale = 50;
    view.left = -500;  // ten inches to the left of the view
    view.top = -50;
    page.reset(&painter, view);
    page.Line(11, 2, 11, 2.5f, Black, LineForm::Plain);
    page.flush();
    EXPECT_TRUE(isInked(image, 50, 60));
    EXPECT_NEAR(page.visible().left, 10, 0.5);
    EXPECT_NEAR(page.visible().bottom, 3, 0.5);

    view.left = 0;
    page.reset(&painter, view);
    EXPECT_NEAR(page.visible().left, 0, 0.5) << "the page is used again for another view";
}

TEST(PainterPage, TextHangsFromItsUpperLeftCornerInTheExtentThatFontsTell) {
    QtFonts fonts;
    const FontSpec font{"Arial", 24, false, false};
    const double width = static_cast<double>(fonts.textWidth(font, "MMg"));
    const double height = static_cast<double>(fonts.textHeight(font));
    EXPECT_NEAR(height, 24 / 72.0 * 1.15, 0.05);
    for (const int scale : {96, 288}) {
        const QImage image =
            painted([&](Page& page) { page.Text(0.5f, 0.5f, font, "MMg", Black); }, scale);
        const QRectF ink = inkedBounds(image);
        EXPECT_NEAR(ink.left() / scale, 0.5 + 0.03, 0.03);
        EXPECT_NEAR(ink.right() / scale, 0.5 + width - 0.02, 0.04);
        EXPECT_GT(ink.top() / scale, 0.5);
        EXPECT_LT(ink.bottom() / scale, 0.5 + height + 0.01);
        EXPECT_GT(ink.height() / scale, height * 0.6);
    }
}

TEST(PainterPage, PicturesFillTheirRectangle) {
    QImage red(400, 10, QImage::Format_RGB32);  // shrunk along one axis, enlarged along the other
    red.fill(Qt::red);
    const QImage image = painted([&](Page& page) {
        page.Line(0, 1, 2, 1, Black, LineForm::Plain);
        page.PaintPicture(QtPicture(red), 0.5f, 0.75f, 1, 0.5f);
    });
    EXPECT_EQ(image.pixel(96, 96), RedPixel) << "over what was drawn before";
    EXPECT_EQ(image.pixel(50, 74), RedPixel);
    EXPECT_EQ(image.pixel(141, 117), RedPixel);
    EXPECT_EQ(image.pixel(46, 74), WhitePixel);
    EXPECT_EQ(image.pixel(96, 121), WhitePixel);
}

TEST(QtImages, RefusesWhatIsMissingDamagedOrTooLarge) {
    const test::TemporaryFolder folder;
    QImage good(3, 2, QImage::Format_RGB32);
    good.fill(Qt::red);
    ASSERT_TRUE(good.save(toQString(folder / "good.png")));
    folder.write("named wrongly.bmp", folder.read("good.png"));
    folder.write("damaged.png", folder.read("good.png").substr(0, 40));
    folder.makeFolder("folder.png");

    QtImages images;
    EXPECT_EQ(images.load(folder / "good.png")->pixelWidth(), 3);
    EXPECT_EQ(images.load(folder / "named wrongly.bmp")->pixelHeight(), 2);
    for (const char* name : {"missing.png", "damaged.png", "folder.png"}) {
        try {
            images.load(folder / name);
            ADD_FAILURE() << name << " was loaded";
        } catch (const Failure& failure) {
            EXPECT_NE(failure.text.find(name), std::string::npos) << failure.text;
        }
    }
}

}  // namespace
}  // namespace ladrix
