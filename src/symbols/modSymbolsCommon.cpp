#include "symbols/Libraries.h"

namespace ladrix {

std::span<const Symbol> modSymbolsCommon() {
    return {};
}

}  // namespace ladrix
