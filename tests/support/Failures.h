// What a step threw, for tests of failing steps.
#pragma once

#include <optional>

#include "platform/Types.h"

namespace ladrix::test {

// nullopt if it threw nothing. Anything but a Failure passes through.
template <class Step>
std::optional<Failure> failureOf(Step step) {
    try {
        step();
    } catch (const Failure& failure) {
        return failure;
    }
    return std::nullopt;
}

// 0 if it threw nothing.
template <class Step>
int failureNumber(Step step) {
    const std::optional<Failure> failure = failureOf(step);
    return failure ? failure->number : 0;
}

}  // namespace ladrix::test
