// The built-in buttons of each library and their images.
#include "canvas/tools/PaletteButtons.h"

#include <algorithm>
#include <cmath>

#include "Bench.h"
#include "canvas/tools/Tools.h"

namespace ladrix::test {
namespace {

using PaletteButtonsTest = BenchTest;

TEST(Palette, StandsAtItsIndicesOnTallAndOnLowScreens) {
    struct Case {
        Library library;
        Short tall;
        Short index;
        const char* tag;
    };
    const Case cases[] = {
        {Library::NEMA, 1, 3, "Line"},
        {Library::NEMA, 1, 28, "General Purpose Switch, Normally Closed"},
        {Library::NEMA, 0, 24, "General Purpose Switch, Normally Closed"},
        {Library::NEMA, 1, 91, "Ground"},
        {Library::NEMA, 0, 87, "Ground"},
        {Library::NEMA, 0, 88, ""},
        {Library::IEC, 1, 2, "Dashed Line"},
        {Library::IEC, 0, 87, "Ground"},
        {Library::Electronic, 1, 85, ""},
        {Library::FluidPower, 0, 91, "To Tank"},
    };
    for (const Case& c : cases) {
        Bench bench;
        bench.editor.TallScreen = c.tall;
        LoadLibraryButtons(bench.editor, c.library);
        const PaletteButton& place = bench.editor.form.cmdSym.at(static_cast<std::size_t>(c.index));
        EXPECT_EQ(place.Tag, c.tag) << c.index;
        EXPECT_EQ(place.Visible, *c.tag != '\0') << c.index;
    }
}

TEST_F(PaletteButtonsTest, AnotherLibraryPutsEveryOrientationBackAndEndsTheTool) {
    button("Capacitor").ButtonOrientation = 2;
    editor.form.cmdSym[92].Tag = "Mine";
    play("tool Capacitor");
    mnuLibIEC_Click(editor);
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
    EXPECT_EQ(editor.OpenLibrary, Library::IEC);
    EXPECT_EQ(button("Capacitor").ButtonOrientation, 0);
    for (const PaletteButton& place : editor.form.cmdSym)
        EXPECT_FALSE(place.Pressed) << place.Tag;
    EXPECT_TRUE(editor.form.cmdSym[92].Visible) << "the user's own";
    EXPECT_FALSE(editor.form.cmdSym[93].Visible);
    mnuLibElectrical_Click(editor);
    EXPECT_EQ(button("Capacitor").ButtonOrientation, 0);
    EXPECT_EQ(editor.OpenLibrary, Library::NEMA);
    HideDeviceButtons(editor);
    for (const PaletteButton& place : editor.form.cmdSym)
        ASSERT_FALSE(place.Visible) << place.Tag;
}

// What an image covers of the 1 by 1 picture.
Extent covered(const std::vector<Primitive>& image) {
    Extent extent;
    for (const Primitive& p : image) {
        extent.add(p.x1 - p.radius, p.y1 - p.radius);
        extent.add(p.kind == Primitive::Kind::Line ? p.x2 : p.x1 + p.radius,
                   p.kind == Primitive::Kind::Line ? p.y2 : p.y1 + p.radius);
    }
    return extent;
}

// The ends of an arc's strokes lie within; the circle that it is part of need not.
bool strokesLieWithin(const Primitive& p) {
    const auto within = [](double v) { return v > -1e-3 && v < 1.001; };
    if (p.kind == Primitive::Kind::Line)
        return within(p.x1) && within(p.y1) && within(p.x2) && within(p.y2);
    if (p.kind != Primitive::Kind::Arc)
        return within(p.x1 - p.radius) && within(p.x1 + p.radius) && within(p.y1 - p.radius) &&
               within(p.y1 + p.radius);
    for (const double angle : {p.start, p.end})
        if (!within(p.x1 + p.radius * std::cos(angle)) ||
            !within(p.y1 - p.radius * std::sin(angle)))
            return false;
    return true;
}

TEST(ButtonImage, ShowsEveryOrientationInBlackWithinThePicture) {
    for (const Library library :
         {Library::NEMA, Library::IEC, Library::Electronic, Library::FluidPower}) {
        for (const PaletteEntry& entry : palette(library)) {
            for (Short orientation = 0; orientation < entry.orientations; ++orientation) {
                RecordingPage picture;
                drawButtonImage(picture, entry.text, orientation);
                EXPECT_FALSE(picture.primitives.empty()) << entry.text << ' ' << orientation;
                for (const Primitive& p : picture.primitives) {
                    EXPECT_EQ(p.color, Black) << entry.text;
                    EXPECT_TRUE(strokesLieWithin(p))
                        << entry.text << ' ' << orientation << ": " << describe(p);
                }
                const Extent extent = covered(picture.primitives);
                EXPECT_GT(std::max(extent.width(), extent.height()), 0.2f)
                    << entry.text << " is too small to be seen";
                EXPECT_EQ(picture.FillStyle, 1) << entry.text;
            }
        }
    }
}

TEST(ButtonImage, IsEmptyForATextWithoutASymbolAndForNoOrientationOfIt) {
    RecordingPage picture;
    drawButtonImage(picture, "My Valve", 0);
    drawButtonImage(picture, "Capacitor", 4);
    EXPECT_TRUE(picture.primitives.empty());
}

}  // namespace
}  // namespace ladrix::test
