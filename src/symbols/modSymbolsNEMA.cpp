#include "symbols/Libraries.h"

namespace ladrix {

std::span<const Symbol> modSymbolsNEMA() {
    return {};
}

}  // namespace ladrix
