#include "symbols/Libraries.h"

namespace ladrix {

std::span<const Symbol> modSymbolsOldElectronic() {
    return {};
}

}  // namespace ladrix
