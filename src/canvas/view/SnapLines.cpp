#include "canvas/view/SnapLines.h"

#include <cmath>

namespace ladrix {

namespace {

constexpr Single FinestCountedStep = 0.001f;

}  // namespace

Single snapTolerance(Single snapStep) {
    return snapStep >= 0.05f ? 0.2f * snapStep : 0.5f * snapStep;
}

std::optional<Single> snapLineAt(Single position, Single snapStep, Single limit) {
    const Single reach = snapTolerance(snapStep);
    std::optional<Single> found;
    if (!(snapStep > 0)) return found;
    if (snapStep < FinestCountedStep) {
        const Single line = std::floor((position + reach) / snapStep) * snapStep;
        if (line >= 0 && line <= limit && line - reach <= position) found = line;
        return found;
    }
    for (Single line = 0; line <= limit; line += snapStep)
        if (line - reach <= position && position <= line + reach) found = line;
    return found;
}

}  // namespace ladrix
