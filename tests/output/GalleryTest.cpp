#include "output/Gallery.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "support/FakePlatform.h"
#include "symbols/DeviceNames.h"

namespace ladrix {
namespace {

using test::Primitive;

constexpr Library Libraries[] = {Library::Common, Library::NEMA, Library::IEC, Library::Electronic,
                                 Library::FluidPower};

TEST(Gallery, EverySymbolOfTheLibraryHasItsFrameAndFirstGenerationsStandLast) {
    for (const Library library : Libraries) {
        std::vector<std::string_view> expected;
        for (const bool first : {false, true})
            for (const DeviceName& entry : deviceNames())
                if (entry.library == library && entry.firstGeneration == first)
                    expected.push_back(entry.name);
        std::vector<std::string_view> shown;
        for (const GalleryFrame& frame : gallerySheet(library).frames)
            shown.push_back(frame.name);
        EXPECT_EQ(shown, expected) << libraryTitle(library);
    }
}

TEST(Gallery, FramesLieOnTheSheetAndDoNotOverlap) {
    for (const Library library : Libraries) {
        const GallerySheet sheet = gallerySheet(library);
        for (const GalleryFrame& frame : sheet.frames) {
            EXPECT_GE(frame.place.left, 0);
            EXPECT_LE(frame.place.right, sheet.width);
            EXPECT_LE(frame.place.bottom, sheet.height);
            for (const GalleryFrame& other : sheet.frames) {
                if (&frame == &other) continue;
                const Extent inner{other.place.left + 0.01f, other.place.top + 0.01f,
                                   other.place.right - 0.01f, other.place.bottom - 0.01f};
                EXPECT_FALSE(frame.place.meets(inner)) << frame.name << ' ' << other.name;
            }
        }
    }
}

TEST(Gallery, EachOrientationIsInACellOfItsOwnFrameUnscaledWhereItFits) {
    for (const Library library : Libraries) {
        const GallerySheet sheet = gallerySheet(library);
        for (const GalleryFrame& frame : sheet.frames)
            for (Short cell = 0; cell < frame.count; ++cell) {
                const auto row = static_cast<std::size_t>(frame.first + cell);
                EXPECT_EQ(sheet.devices.DeviceName[row], frame.name);
                const Shape* shape = findShape(frame.name);
                if (!shape) continue;
                const Single scale = sheet.devices.DeviceScaleX[row];
                const Extent extent = shape->extent(sheet.devices.DeviceOrientation[row]);
                const Single left = sheet.devices.DeviceX[row] + scale * extent.left;
                const Single top = sheet.devices.DeviceY[row] + scale * extent.top;
                const Single cellLeft =
                    frame.place.left + static_cast<Single>(cell) * sheet.cellWidth;
                EXPECT_GE(left, cellLeft) << frame.name;
                EXPECT_LE(left + scale * extent.width(), cellLeft + sheet.cellWidth) << frame.name;
                EXPECT_GE(top, frame.place.top) << frame.name;
                EXPECT_LE(top + scale * extent.height(), frame.place.bottom) << frame.name;
                const bool fits = extent.width() < 1 && extent.height() < 0.9f;
                EXPECT_TRUE(scale == 1 || !fits) << frame.name;
            }
    }
}

TEST(Gallery, ATurnedSymbolShowsAllItsDrawings) {
    std::map<std::string_view, Short> counts;
    for (const GalleryFrame& frame : gallerySheet(Library::NEMA).frames)
        counts[frame.name] = frame.count;
    EXPECT_EQ(counts["InsertTransformer"], 4);
    EXPECT_EQ(counts["InsertSpecialCoil"], 5);
    EXPECT_EQ(counts["InsertContactNO"], 1);
}

TEST(Gallery, DrawsNameDotAndSymbolAndRecordsNothing) {
    test::FakePlatform machine;
    test::RecordingPage page;
    Symbols symbols;
    const GallerySheet sheet = gallerySheet(Library::NEMA);
    drawGallery(page, symbols, machine.platform, sheet);

    std::multiset<std::string> texts;
    std::size_t dots = 0;
    for (const Primitive& p : page.primitives) {
        if (p.kind == Primitive::Kind::Text) {
            texts.insert(p.text);
            const Single width = machine.fonts.textWidth(p.font, p.text);
            EXPECT_GE(p.x1, 0) << p.text;
            EXPECT_LE(p.x1 + width, sheet.width) << p.text;
        }
        const bool dot = p.kind == Primitive::Kind::Circle && p.FillStyle == 0 && p.color != Black;
        if (!dot) continue;
        EXPECT_EQ(p.x1, sheet.devices.DeviceX[dots]);
        EXPECT_EQ(p.y1, sheet.devices.DeviceY[dots]);
        ++dots;
    }
    EXPECT_EQ(dots, static_cast<std::size_t>(sheet.devices.DeviceCount));
    EXPECT_EQ(texts.count("InsertContactNO"), 1u);
    EXPECT_EQ(texts.count("InsertTransformer"), 4u);
    EXPECT_EQ(page.FillStyle, 1);
}

}  // namespace
}  // namespace ladrix
