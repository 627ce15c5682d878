// What an SVG picture may not hold: anything that leads out of it, or that grows when it is read.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ladrix {

enum class SvgFault { None, Broken, RefersToOthers, DeclaresEntities, TooDeep };

struct SvgCheck {
    SvgFault fault = SvgFault::None;
    std::vector<std::string> families;  // of its fonts, in UTF-8; at most MostSvgFonts
    bool embedsPictures = false;        // as PNG or JPEG in its own text
};

constexpr std::size_t MostSvgFonts = 16;
constexpr int DeepestSvg = 200;  // elements within each other

// Reads the whole text and follows nothing. References to its own fragments are allowed, and links
// that a reader would have to click.
SvgCheck checkSvg(std::string_view svg);

}  // namespace ladrix
