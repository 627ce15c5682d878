#include "qt/QtFonts.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "qt/QtText.h"

namespace ladrix {

namespace {

constexpr double PointsPerInch = 72;
constexpr std::size_t MostFonts = 64;

// A size from a damaged record must not reach the font engine.
double saneSize(Single points) {
    if (!std::isfinite(points) || points <= 0) return FontSpec{}.size;
    return std::clamp(static_cast<double>(points), 0.5, 2000.0);
}

PaperFont makeFont(const FontSpec& spec) {
    PaperFont font;
    font.spec = spec;
    font.layout.setFamily(spec.name.empty() ? QStringLiteral("Arial") : toQString(spec.name));
    font.layout.setPixelSize(PaperFont::LayoutPixels);
    font.layout.setBold(spec.bold);
    font.layout.setItalic(spec.italic);
    font.layout.setHintingPreference(QFont::PreferNoHinting);
    const QFontMetricsF metrics(font.layout);
    font.inchesPerPixel = saneSize(spec.size) / PointsPerInch / PaperFont::LayoutPixels;
    font.ascent = metrics.ascent();
    font.height = metrics.height();
    return font;
}

}  // namespace

const PaperFont& PaperFonts::of(const FontSpec& spec) {
    if (last_ < fonts_.size() && fonts_[last_].spec == spec) return fonts_[last_];
    const auto found = std::find_if(fonts_.begin(), fonts_.end(),
                                    [&](const PaperFont& font) { return font.spec == spec; });
    if (found != fonts_.end()) {
        last_ = static_cast<std::size_t>(found - fonts_.begin());
        return *found;
    }
    if (fonts_.size() >= MostFonts) fonts_.clear();
    fonts_.push_back(makeFont(spec));
    last_ = fonts_.size() - 1;
    return fonts_.back();
}

std::vector<std::string> QtFonts::families() {
    std::vector<std::string> result;
    for (const QString& family : QFontDatabase::families())
        if (!QFontDatabase::isPrivateFamily(family)) result.push_back(fromQString(family));
    return result;
}

Single QtFonts::textWidth(const FontSpec& font, std::string_view text) {
    const PaperFont& paper = fonts_.of(font);
    return static_cast<Single>(QFontMetricsF(paper.layout).horizontalAdvance(toQString(text)) *
                               paper.inchesPerPixel);
}

Single QtFonts::textHeight(const FontSpec& font) {
    const PaperFont& paper = fonts_.of(font);
    return static_cast<Single>(paper.height * paper.inchesPerPixel);
}

}  // namespace ladrix
