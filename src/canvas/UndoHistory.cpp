#include "canvas/UndoHistory.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace ladrix {

namespace {

constexpr std::size_t ShortestPiece = 512, LongestPiece = 8192;  // bytes
constexpr std::size_t LinesPerPiece = 16;                        // in the long run

// The shortest bounds the number of pieces where all lines are alike, the longest their size.
std::size_t lengthOfFirstPiece(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && end < LongestPiece) {
        const std::size_t lineEnd = text.find('\n', end);
        const std::size_t next = lineEnd == std::string_view::npos ? text.size() : lineEnd + 1;
        const std::string_view line = text.substr(end, next - end);
        end = next;
        if (end >= ShortestPiece && std::hash<std::string_view>{}(line) % LinesPerPiece == 0) break;
    }
    return end;
}

}  // namespace

void UndoHistory::set(Short slot, std::string_view text) {
    std::unordered_map<std::string_view, Piece> known;
    if (latest_)
        for (const Piece& piece : *latest_)
            known.emplace(*piece, piece);

    std::vector<Piece> pieces;
    pieces.reserve(latest_ ? latest_->size() + 2 : 0);
    while (!text.empty()) {
        const std::string_view first = text.substr(0, lengthOfFirstPiece(text));
        text.remove_prefix(first.size());
        const auto shared = known.find(first);
        pieces.push_back(shared != known.end() ? shared->second
                                               : std::make_shared<const std::string>(first));
    }
    pieces.shrink_to_fit();
    latest_ = std::make_shared<const std::vector<Piece>>(std::move(pieces));
    slots_.at(static_cast<std::size_t>(slot)) = latest_;
}

std::string UndoHistory::text(Short slot) const {
    const Pieces& pieces = slots_.at(static_cast<std::size_t>(slot));
    std::string text;
    if (!pieces) return text;
    std::size_t size = 0;
    for (const Piece& piece : *pieces)
        size += piece->size();
    text.reserve(size);
    for (const Piece& piece : *pieces)
        text += *piece;
    return text;
}

void UndoHistory::shiftDown() {
    std::copy(slots_.begin() + 1, slots_.end(), slots_.begin());
}

void UndoHistory::clear() {
    slots_.fill(nullptr);
    latest_ = nullptr;
}

}  // namespace ladrix
