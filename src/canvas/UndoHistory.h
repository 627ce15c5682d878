// The texts of the undo history: 1000 slots, each of which reads as one string.
//
// Neighbouring snapshots of a drawing are nearly equal, so a text is kept as a list of pieces and
// the pieces that the text stored before holds too are shared with it. Pieces end where the lines
// themselves say so, not at fixed lengths: a line more or less moves no cut but its own.
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
    using Piece = std::shared_ptr<const std::string>;
    using Pieces = std::shared_ptr<const std::vector<Piece>>;

    std::array<Pieces, Slots> slots_;
    Pieces latest_;  // of the text stored last, whose pieces the next one shares
};

}  // namespace ladrix
