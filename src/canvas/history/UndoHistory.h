// The texts of the undo history: 1000 slots, each of which reads as one string.
//
// Neighbouring snapshots of a drawing are nearly equal, so a text is kept as a list of pieces.
// Pieces end where the lines themselves say so, not at fixed lengths: a line more or less moves no
// cut but its own. A piece that the text stored before holds too is shared with it. One whose lines
// differ from those in its place before keeps only the differences, to a piece that is kept whole:
// a text is put together from two layers at most, however long its history.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

namespace ladrix {

class UndoHistory {
  public:
    static constexpr Short Slots = 1000;

    // The slot must be within 0 to 999.
    void set(Short slot, std::string_view text);
    std::string text(Short slot) const;  // "" where nothing was stored

    // Each slot takes over what the next one holds; the last keeps its own. Copies no text.
    void shiftDown();

    void clear();

  private:
    struct Piece {
        std::string content;                // the text, or its difference to the base
        std::size_t length = 0;             // of the text, bytes
        std::shared_ptr<const Piece> base;  // null: `content` is the text
    };
    using PiecePointer = std::shared_ptr<const Piece>;
    using Pieces = std::shared_ptr<const std::vector<PiecePointer>>;
    class Cutter;

    static std::string textOf(const Pieces& pieces);

    std::array<Pieces, Slots> slots_;
    Pieces latest_;  // of the text stored last, whose pieces the next one shares
};

}  // namespace ladrix
