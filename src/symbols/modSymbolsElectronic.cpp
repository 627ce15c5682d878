#include "symbols/Libraries.h"

namespace ladrix {

std::span<const Symbol> modSymbolsElectronic() {
    return {};
}

}  // namespace ladrix
