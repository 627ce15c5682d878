// The button's pictures: the collected items fitted on a square, drawn three times.
#include <cmath>
#include <span>

#include "usersymbols/Compiler.h"

namespace ladrix {

namespace {

constexpr Single IconScale = 1.2f;      // the picture to what is drawn on it
constexpr Single PointSize = 0.1f;      // inches around a symbol without any extent
constexpr Single IconTwips = 375;       // at 15 twips a pixel
constexpr Single OtherIconTwips = 372;  // at any other

int iconPixels(Single twipsPerPixel) {
    const Single twips = twipsPerPixel == 15 ? IconTwips : OtherIconTwips;
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

// From inches of the page to the picture's units: the box made square, with a margin, and a narrow
// one centred.
struct Fit {
    Single size = 0, shiftX = 0, shiftY = 0;

    Single x(Single value) const { return value + shiftX; }
    Single y(Single value) const { return value + shiftY; }
};

Fit fitOf(const SymbolCompiler& compiler) {
    const Single width = compiler.SymbolWidth, height = compiler.SymbolHeight;
    const bool isPoint = width == 0 && height == 0;
    Fit fit;
    fit.size = isPoint ? PointSize : std::fmax(width, height);
    fit.shiftX = 0.025f * fit.size - compiler.SymbolLeft;
    fit.shiftY = 0.025f * fit.size - compiler.SymbolTop;
    if (width < fit.size) fit.shiftX += (fit.size - width) / 2;
    if (height < fit.size && (isPoint || width == fit.size)) fit.shiftY += (fit.size - height) / 2;
    return fit;
}

void setScale(PictureBox& picture, Single size) {
    const Single scale = size * IconScale;
    const Single corner = 0.034f * scale - (scale - size) / 2;
    picture.SetScale(corner, corner, scale, scale);
}

// Half circles are left out of the picture that is only shown.
struct Target {
    PictureBox& picture;
    bool takesSemiCircles;
};

void drawSemiCircle(PictureBox& picture, const Device& item, Single x, Single y, Long color) {
    const Single r = item.radius;
    switch (item.direction) {
        case 1:
            return picture.Arc(x + r, y, r, color, Pi / 2, 3 * Pi / 2, 1);
        case 2:
            return picture.Arc(x - r, y, r, color, 3 * Pi / 2, Pi / 2, 1);
        case 3:
            return picture.Arc(x, y + r, r, color, 2 * Pi, Pi, 1);
        case 4:
            return picture.Arc(x, y - r, r, color, Pi, 2 * Pi, 1);
        default:
            return;
    }
}

void drawItem(const Target& target, const Device& item, const Fit& fit) {
    PictureBox& picture = target.picture;
    const Long color = picture.ForeColor;
    const Single x = fit.x(item.x), y = fit.y(item.y), r = item.radius;
    if (item.name == "InsertCircle" || item.name == "InsertConnectionPoint")
        picture.Circle(x + r, y, r, color, 1);
    else if (item.name == "InsertSolidCircle")
        picture.Circle(x, y, r, color, 1);
    else if (item.name == "InsertSavedLine")
        picture.Line(x, y, fit.x(item.x2), fit.y(item.y2), color, LineForm::Plain);
    else if (item.name == "InsertSavedSquare")
        picture.Line(x, y, fit.x(item.x2), fit.y(item.y2), color, LineForm::Box);
    else if (item.name == "InsertArc")
        picture.Arc(x, y, r, color, static_cast<double>(item.startAngle),
                    static_cast<double>(item.endAngle), 1);
    else if (item.name == "InsertSemiCircle" && target.takesSemiCircles)
        drawSemiCircle(picture, item, x, y, color);
}

// A step that fails is skipped.
template <class Step>
void attempt(const Step& step) {
    try {
        step();
    } catch (const Failure&) {
        return;
    }
}

// Labels show only where they are all that the symbol is made of.
void drawIcon(const Target& target, const SymbolCompiler& compiler, const Fit& fit) {
    attempt([&] { setScale(target.picture, fit.size); });
    target.picture.Cls();
    for (Short i = 0; i < compiler.items.DeviceCount; ++i)
        attempt([&] { drawItem(target, compiler.items.row(i), fit); });
    if (compiler.items.DeviceCount > 0) return;
    for (Short i = 0; i < compiler.labels.LabelCount; ++i)
        attempt([&] {
            const Label label = compiler.labels.row(i);
            target.picture.Text(fit.x(label.x), fit.y(label.y),
                                {label.fontName, label.fontSize, label.bold, label.italic},
                                label.text, target.picture.ForeColor);
        });
}

}  // namespace

void makeIconPictures(UserSymbols& symbols, const Platform& platform) {
    const int width = iconPixels(platform.screen.TwipsPerPixelX);
    const int height = iconPixels(platform.screen.TwipsPerPixelY);
    FormUS& form = symbols.frmUS;
    for (auto* const picture : {&form.picIconShow, &form.picIcon, &form.picCyanIcon})
        attempt([&] { *picture = platform.images->makePicture(width, height); });
    if (form.picCyanIcon) form.picCyanIcon->BackColor = Cyan;
}

void drawSymbolIcons(UserSymbols& symbols) {
    FormUS& form = symbols.frmUS;
    if (!form.picIcon || !form.picIconShow || !form.picCyanIcon) return;
    for (PictureBox* const picture : {form.picIcon.get(), form.picIconShow.get()}) {
        picture->BackColor = symbols.ButtonBackColor;
        picture->ForeColor = symbols.ButtonForeColor;
    }
    const Fit fit = fitOf(symbols.compiler);
    drawIcon({*form.picIcon, true}, symbols.compiler, fit);
    drawIcon({*form.picIconShow, false}, symbols.compiler, fit);
    drawIcon({*form.picCyanIcon, true}, symbols.compiler, fit);
}

}  // namespace ladrix
