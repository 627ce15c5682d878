// The vocabulary of drawings: every device name in its fixed order, the palette texts that select
// it and the library in which its routine stands. Names are never retired.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "symbols/Shapes.h"

namespace ladrix {

struct DeviceName {
    std::string_view name;         // "InsertContactNO"
    std::string_view paletteText;  // "Normally Open Contact"; "" where no button offers it
    Library library;
    bool firstGeneration = false;
};

std::span<const DeviceName> deviceNames();  // 284

// The table entry of a name with fixed art; nullptr for the free shapes and for unknown names.
// Exact, case-sensitive. The entry lives for the whole run.
const Shape* findShape(std::string_view name);

// The routine that a button's text selects: the tool table. "InsertUserSymbol" for a text that no
// built-in symbol has.
std::string_view deviceOfPaletteText(std::string_view text);

}  // namespace ladrix
