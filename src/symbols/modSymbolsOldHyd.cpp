#include "symbols/Libraries.h"

namespace ladrix {

std::span<const Symbol> modSymbolsOldHyd() {
    return {};
}

}  // namespace ladrix
