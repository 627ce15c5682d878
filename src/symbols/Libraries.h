// The tables of the symbol modules, one array for each source file of the same name.
#pragma once

#include <span>

#include "symbols/Symbol.h"

namespace ladrix {

std::span<const Symbol> modSymbolsCommon();         // screw terminal and jumpers
std::span<const Symbol> modSymbolsNEMA();           // NEMA ICS 19 / ANSI Y32.2 relay logic, power
std::span<const Symbol> modSymbolsOld();            // first generation of six NEMA names
std::span<const Symbol> modSymbolsIEC();            // IEC 60617
std::span<const Symbol> modSymbolsElectronic();     // IEEE 315
std::span<const Symbol> modSymbolsOldElectronic();  // first generation of electronic names
std::span<const Symbol> modSymbolsOldHyd();         // ISO 1219-1 fluid power

}  // namespace ladrix
