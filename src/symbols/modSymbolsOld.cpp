#include "symbols/Libraries.h"

namespace ladrix {

std::span<const Symbol> modSymbolsOld() {
    return {};
}

}  // namespace ladrix
