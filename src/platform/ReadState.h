// What the last reading of a file came to, for files that are read into memory and written back as
// a whole. One that could not be read is not an empty one: nothing is written over it until a later
// reading has succeeded.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/Types.h"

namespace ladrix {

class ReadState {
  public:
    // Runs the reading; a file that is missing is no failure, the steps return. False if it failed:
    // `tell` is then called with the failure, unless that is what the last reading came to as well.
    template <class Steps, class Tell>
    bool read(const Steps& steps, const Tell& tell) {
        try {
            steps();
            reason_.reset();
            return true;
        } catch (const Failure& failure) {
            if (std::exchange(reason_, failure.text) != failure.text) tell(failure);
            return false;
        }
    }

    bool hasFailed() const { return reason_.has_value(); }

    // Before the file is written. Throws, with the reason, while the last reading has failed.
    void requireRead() const {
        if (hasFailed())
            throw Failure{failure::PathFileAccess,
                          "What could not be read is not written over. " + *reason_};
    }

  private:
    std::optional<std::string> reason_;
};

}  // namespace ladrix
