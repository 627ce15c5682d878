// The tool in hand does not notice that its parameter block has served a page meanwhile.
#pragma once

#include <utility>

#include "symbols/DrawDevice.h"

namespace ladrix {

class KeepToolState {
  public:
    explicit KeepToolState(Symbols& symbols)
        : symbols_(symbols),
          block_(symbols.block),
          printer_(symbols.printer),
          radius_(symbols.LastRadius),
          direction_(symbols.LastDirection) {}
    ~KeepToolState() {
        symbols_.block = std::move(block_);
        symbols_.printer = printer_;
        symbols_.LastRadius = radius_;
        symbols_.LastDirection = direction_;
    }
    KeepToolState(const KeepToolState&) = delete;
    KeepToolState& operator=(const KeepToolState&) = delete;

  private:
    Symbols& symbols_;
    DeviceBlock block_;
    const Surface* printer_;
    Single radius_;
    Short direction_;
};

}  // namespace ladrix
