// Narrowing 5,000 symbols by what is typed: beside the 10 ms that a keystroke may take, and beside
// bare searches for the same words through the same texts.
#include <string>

#include "Measure.h"
#include "usersymbols/SymbolSearch.h"

namespace {

using namespace ladrix;
using namespace ladrix::bench;

constexpr int Symbols = 5000, Rounds = 25;
constexpr double Keystroke = 10;  // milliseconds
constexpr double BareLimit = 8;

SymbolSearch makeSearch() {
    constexpr const char* Kinds[] = {"motor starter", "terminal block", "limit switch", "drive",
                                     "input card",    "output card",    "contactor",    "relay"};
    SymbolSearch search;
    for (int i = 0; i < Symbols; ++i) {
        SearchEntry entry;
        entry.Name = std::string(Kinds[i % 8]) + " " + std::to_string(i);
        entry.Where = "Library " + std::to_string(i / 800);
        entry.Folded = entry.Name + " library " + std::to_string(i / 800);
        search.Entries.push_back(entry);
    }
    return search;
}

std::size_t bareFind(const SymbolSearch& search, const std::string& first,
                     const std::string& second) {
    std::size_t found = 0;
    for (const SearchEntry& entry : search.Entries)
        found += entry.Folded.find(first) != std::string::npos &&
                 entry.Folded.find(second) != std::string::npos;
    return found;
}

}  // namespace

int main() {
    SymbolSearch search = makeSearch();
    std::size_t bare = 0;
    printHeading("Finding a symbol among 5,000, milliseconds a keystroke");
    const auto narrow = [&] { txtFind_Change(search, "45 start"); };
    const auto compare = [&] { bare = bareFind(search, "45", "start"); };
    const Medians medians = byTurns(Rounds, narrow, compare);
    if (search.Found.size() != bare) return 1;
    printLine("beside a keystroke's time", {medians.own, Keystroke}, 1);
    printLine("beside bare searches", medians, BareLimit);
    const Medians all = byTurns(
        Rounds, [&] { txtFind_Change(search, ""); }, compare);
    printLine("an empty field, beside a keystroke's time", {all.own, Keystroke}, 1);
    return 0;
}
