// The lines that a pointer snaps to, one each `snapStep` inches from the page's corner on.
#pragma once

#include <optional>

#include "platform/Types.h"

namespace ladrix {

// Half-width of the band around a snap line in which the pointer counts as on it, inches.
Single snapTolerance(Single snapStep);

// The highest snap line within the tolerance, up to and including `limit`; lines are found by
// adding up steps in single precision. nullopt if the pointer is on none.
std::optional<Single> snapLineAt(Single position, Single snapStep, Single limit);

}  // namespace ladrix
