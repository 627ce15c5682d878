// Fonts as they stand on paper. Text is laid out once, unhinted, at a fixed size and scaled by the
// painter, so that it keeps its proportions at every zoom and on every output.
#pragma once

#include <QFont>
#include <vector>

#include "platform/Platform.h"

namespace ladrix {

struct PaperFont {
    FontSpec spec;
    QFont layout;                   // at LayoutPixels, whatever the size on paper
    double inchesPerPixel = 0;      // of the layout
    double ascent = 0, height = 0;  // in pixels of the layout

    static constexpr int LayoutPixels = 64;
};

// The fonts in use, made once each. A reference stays good until the next call.
class PaperFonts {
  public:
    const PaperFont& of(const FontSpec& spec);

  private:
    std::vector<PaperFont> fonts_;
    std::size_t last_ = 0;
};

class QtFonts final : public Fonts {
  public:
    std::vector<std::string> families() override;
    Single textWidth(const FontSpec& font, std::string_view text) override;
    Single textHeight(const FontSpec& font) override;

  private:
    PaperFonts fonts_;
};

}  // namespace ladrix
