#include "canvas/tools/PaletteButtons.h"

#include <algorithm>
#include <span>

#include "canvas/gestures/Gesture.h"
#include "canvas/tools/Tools.h"
#include "symbols/DeviceNames.h"
#include "symbols/Shapes.h"

namespace ladrix {

namespace {

constexpr Single Filled = 0.76f;    // the share of a button's side that its symbol takes
constexpr Single LargestScale = 3;  // a tiny symbol is not blown up beyond this

using namespace art;

// The drawing tools have no routine with fixed art: each shows what it draws. The letter of the
// text tool is drawn in strokes.
constexpr Primitive TextImage[] = {Line(0.2f, 0.85f, 0.5f, 0.12f), Line(0.5f, 0.12f, 0.8f, 0.85f),
                                   Line(0.31f, 0.6f, 0.69f, 0.6f)};
constexpr Primitive ConnectionImage[] = {SolidFillOn, Circle(0.5f, 0.5f, 0.13f), SolidFillOff};
constexpr Primitive DashedLineImage[] = {
    Line(0.1f, 0.5f, 0.28f, 0.5f), Line(0.41f, 0.5f, 0.59f, 0.5f), Line(0.72f, 0.5f, 0.9f, 0.5f)};
constexpr Primitive LineImage[] = {Line(0.1f, 0.5f, 0.9f, 0.5f)};
constexpr Primitive ArcDownImage[] = {Arc(0.5f, 0.32f, 0.36f, 180, 360)};
constexpr Primitive ArcUpImage[] = {Arc(0.5f, 0.68f, 0.36f, 360, 180)};
constexpr Primitive ArcLeftImage[] = {Arc(0.68f, 0.5f, 0.36f, 90, 270)};
constexpr Primitive ArcRightImage[] = {Arc(0.32f, 0.5f, 0.36f, 270, 90)};
constexpr Primitive SmallCircleImage[] = {Circle(0.5f, 0.5f, 0.17f)};
constexpr Primitive LargeCircleImage[] = {Circle(0.5f, 0.5f, 0.36f)};
constexpr Primitive DashedSquareImage[] = {
    Line(0.14f, 0.14f, 0.32f, 0.14f), Line(0.41f, 0.14f, 0.59f, 0.14f),
    Line(0.68f, 0.14f, 0.86f, 0.14f), Line(0.14f, 0.86f, 0.32f, 0.86f),
    Line(0.41f, 0.86f, 0.59f, 0.86f), Line(0.68f, 0.86f, 0.86f, 0.86f),
    Line(0.14f, 0.14f, 0.14f, 0.32f), Line(0.14f, 0.41f, 0.14f, 0.59f),
    Line(0.14f, 0.68f, 0.14f, 0.86f), Line(0.86f, 0.14f, 0.86f, 0.32f),
    Line(0.86f, 0.41f, 0.86f, 0.59f), Line(0.86f, 0.68f, 0.86f, 0.86f)};
constexpr Primitive SquareImage[] = {Box(0.14f, 0.14f, 0.86f, 0.86f)};

struct ToolImage {
    std::string_view tag;
    std::span<const Primitive> primitives;
};

constexpr ToolImage ToolImages[] = {
    {"Text", TextImage},
    {"Connection Point", ConnectionImage},
    {"Dashed Line", DashedLineImage},
    {"Line", LineImage},
    {"Arc Down", ArcDownImage},
    {"Arc Up", ArcUpImage},
    {"Arc Left", ArcLeftImage},
    {"Arc Right", ArcRightImage},
    {"Small Circle", SmallCircleImage},
    {"Large Circle", LargeCircleImage},
    {"Dashed Square", DashedSquareImage},
    {"Square", SquareImage},
};

void drawFitted(Surface& picture, const Shape& shape, Short orientation) {
    const Extent extent = shape.extent(orientation);
    if (extent.empty()) return;
    const Single largest = std::max({extent.width(), extent.height(), Filled / LargestScale});
    const Single scale = shape.hasAbsolute ? std::min(Filled / largest, 1.0f) : Filled / largest;
    const Single x = 0.5f - scale * (extent.left + extent.right) / 2;
    const Single y = 0.5f - scale * (extent.top + extent.bottom) / 2;
    drawPrimitives(picture, shape.primitives(orientation), x, y, Black, scale, scale);
}

void checkLibrary(MenuStates& menu, Library library) {
    menu[Menu::mnuLibElectrical].Checked = library == Library::NEMA;
    menu[Menu::mnuLibElectronic].Checked = library == Library::Electronic;
    menu[Menu::mnuLibIEC].Checked = library == Library::IEC;
    menu[Menu::mnuLibHyd].Checked = library == Library::FluidPower;
}

void setButton(PaletteButton& place, const PaletteEntry& entry) {
    place = {};
    place.Tag = entry.text;
    place.Visible = true;
    place.HasOrientations = entry.orientations > 1;
    place.OrientationCount = entry.orientations;
}

}  // namespace

void LoadDeviceButtons(Editor& editor) {
    editor.form.cmdSym.assign(static_cast<std::size_t>(ButtonPlaces), PaletteButton{});
    ++editor.form.PaletteVersion;
}

void HideDeviceButtons(Editor& editor) {
    for (PaletteButton& place : editor.form.cmdSym)
        place.Visible = false;
    ++editor.form.PaletteVersion;
}

void LoadLibraryButtons(Editor& editor, Library library) {
    HideDeviceButtons(editor);
    std::size_t i = 0;
    for (const PaletteEntry& entry : palette(library))
        if (!entry.tallOnly || editor.TallScreen == 1) setButton(editor.form.cmdSym[i++], entry);
    for (; i <= static_cast<std::size_t>(BuiltInButtonCount); ++i)
        editor.form.cmdSym[i] = {};
    for (; i < editor.form.cmdSym.size(); ++i)
        editor.form.cmdSym[i].Visible = !editor.form.cmdSym[i].Tag.empty();
    editor.OpenLibrary = library;
    checkLibrary(editor.form.menu, library);
    editor.PreviousTool = -1;
    findRepeatTool(editor);
    ++editor.form.PaletteVersion;
}

namespace {

void changeLibrary(Editor& editor, Library library) {
    ResetEditor(editor);
    LoadLibraryButtons(editor, library);
}

}  // namespace

void mnuLibElectrical_Click(Editor& editor) {
    changeLibrary(editor, Library::NEMA);
}

void mnuLibIEC_Click(Editor& editor) {
    changeLibrary(editor, Library::IEC);
}

void mnuLibElectronic_Click(Editor& editor) {
    changeLibrary(editor, Library::Electronic);
}

void mnuLibHyd_Click(Editor& editor) {
    changeLibrary(editor, Library::FluidPower);
}

void drawButtonImage(Surface& picture, std::string_view tag, Short orientation) {
    for (const ToolImage& image : ToolImages)
        if (image.tag == tag) return drawPrimitives(picture, image.primitives, 0, 0, Black, 1, 1);
    if (const Shape* shape = findShape(deviceOfPaletteText(tag)))
        drawFitted(picture, *shape, orientation);
}

}  // namespace ladrix
