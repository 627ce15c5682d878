// The four built-in palettes: which button shows which symbol, in index order from 0.
#pragma once

#include <span>
#include <string_view>

#include "symbols/Symbol.h"

namespace ladrix {

struct PaletteEntry {
    std::string_view text;   // the button's Tag and tip
    Short orientations = 1;  // 1 to 4
    bool tallOnly = false;   // left out when the screen is below 11520 twips high
};

// NEMA, IEC, Electronic or FluidPower. Common has no palette of its own.
std::span<const PaletteEntry> palette(Library library);

constexpr Short FirstSymbolButton = 12;   // below it stand the drawing tools
constexpr Short BuiltInButtonCount = 91;  // last index of the built-in buttons

}  // namespace ladrix
