#include "symbols/Libraries.h"

namespace ladrix {

std::span<const Symbol> modSymbolsIEC() {
    return {};
}

}  // namespace ladrix
