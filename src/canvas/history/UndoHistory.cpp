#include "canvas/history/UndoHistory.h"

#include <algorithm>
#include <functional>
#include <span>
#include <unordered_map>

#include "canvas/history/UndoDifference.h"

namespace ladrix {

namespace {

constexpr std::size_t ShortestPiece = 1024, LongestPiece = 8192;  // bytes
constexpr std::size_t LinesPerPiece = 32;                         // in the long run

// The shortest bounds the number of pieces where all lines are alike, the longest their size.
std::size_t lengthOfFirstPiece(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && end < LongestPiece) {
        const std::string_view line = firstLine(text.substr(end));
        end += line.size();
        if (end >= ShortestPiece && std::hash<std::string_view>{}(line) % LinesPerPiece == 0) break;
    }
    return end;
}

std::string_view firstLines(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (; count > 0; --count)
        end += firstLine(text.substr(end)).size();
    return text.substr(0, end);
}

}  // namespace

// Takes a text to pieces, as many as can be from those of the text before.
class UndoHistory::Cutter {
  public:
    Cutter(const Pieces& before, std::string_view textBefore) {
        if (!before) return;
        pieces_.reserve(before->size() + 2);
        for (const PiecePointer& piece : *before) {
            before_.push_back({textBefore.substr(0, piece->length), piece});
            textBefore.remove_prefix(piece->length);
        }
        for (std::size_t i = 0; i < before_.size(); ++i)
            known_.emplace(before_[i].text, i);
    }

    std::vector<PiecePointer> cut(std::string_view text) {
        std::size_t next = 0;      // of the pieces before, behind the one that was shared last
        std::size_t unshared = 0;  // bytes at the start of `text`
        while (unshared < text.size()) {
            const std::size_t length = lengthOfFirstPiece(text.substr(unshared));
            const auto found = known_.find(text.substr(unshared, length));
            if (found == known_.end()) {
                unshared += length;
                continue;
            }
            const std::size_t end = std::max(found->second, next);
            addChanged(text.substr(0, unshared), std::span(before_).subspan(next, end - next));
            pieces_.push_back(before_[found->second].piece);
            next = found->second + 1;
            text.remove_prefix(unshared + length);
            unshared = 0;
        }
        addChanged(text, std::span(before_).subspan(next));
        pieces_.shrink_to_fit();
        return std::move(pieces_);
    }

  private:
    struct Placed {
        std::string_view text;
        PiecePointer piece;
    };

    // A stretch that has come in the place of these pieces.
    void addChanged(std::string_view text, std::span<const Placed> before) {
        while (!before.empty() && text.starts_with(before.front().text)) {
            pieces_.push_back(before.front().piece);
            text.remove_prefix(before.front().text.size());
            before = before.subspan(1);
        }
        std::size_t atTheEnd = 0;
        while (atTheEnd < before.size() &&
               text.ends_with(before[before.size() - 1 - atTheEnd].text)) {
            text.remove_suffix(before[before.size() - 1 - atTheEnd].text.size());
            ++atTheEnd;
        }
        const std::span<const Placed> replaced = before.first(before.size() - atTheEnd);
        if (haveEqualLines(text, replaced))
            addLineByLine(text, replaced);
        else
            addNew(text);
        for (const Placed& shared : before.last(atTheEnd))
            pieces_.push_back(shared.piece);
    }

    static bool haveEqualLines(std::string_view text, std::span<const Placed> before) {
        std::size_t lines = 0;
        for (const Placed& piece : before)
            lines += countLines(piece.text);
        return lines == countLines(text);
    }

    void addLineByLine(std::string_view text, std::span<const Placed> before) {
        for (const Placed& piece : before) {
            const std::string_view lines = firstLines(text, countLines(piece.text));
            pieces_.push_back(lines == piece.text ? piece.piece : changed(piece, lines));
            text.remove_prefix(lines.size());
        }
    }

    void addNew(std::string_view text) {
        while (!text.empty()) {
            const std::string_view first = text.substr(0, lengthOfFirstPiece(text));
            pieces_.push_back(whole(first));
            text.remove_prefix(first.size());
        }
    }

    static PiecePointer whole(std::string_view text) {
        return std::make_shared<const Piece>(Piece{std::string(text), text.size(), nullptr});
    }

    // Whole as well if the difference would be no small part of it.
    static PiecePointer changed(const Placed& before, std::string_view text) {
        const PiecePointer& base = before.piece->base ? before.piece->base : before.piece;
        std::optional<std::string> difference = differenceTo(base->content, text);
        if (!difference || difference->size() > text.size() / 2) return whole(text);
        difference->shrink_to_fit();
        return std::make_shared<const Piece>(Piece{std::move(*difference), text.size(), base});
    }

    std::vector<Placed> before_;
    std::unordered_map<std::string_view, std::size_t> known_;  // indices of before_ by their text
    std::vector<PiecePointer> pieces_;
};

void UndoHistory::set(Short slot, std::string_view text) {
    const std::string before = textOf(latest_);
    latest_ = std::make_shared<const std::vector<PiecePointer>>(Cutter(latest_, before).cut(text));
    slots_.at(static_cast<std::size_t>(slot)) = latest_;
}

std::string UndoHistory::text(Short slot) const {
    return textOf(slots_.at(static_cast<std::size_t>(slot)));
}

std::string UndoHistory::textOf(const Pieces& pieces) {
    std::string text;
    if (!pieces) return text;
    std::size_t size = 0;
    for (const PiecePointer& piece : *pieces)
        size += piece->length;
    text.reserve(size);
    for (const PiecePointer& piece : *pieces) {
        if (piece->base)
            appendChanged(text, piece->base->content, piece->content);
        else
            text += piece->content;
    }
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
