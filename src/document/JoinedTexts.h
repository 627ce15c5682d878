// Two master texts, each in a form of its own, as one: a template's and that of the drawing that is
// opened over it. A text has one form, so where they differ both go over to the present one.
#pragma once

#include <string>
#include <string_view>

namespace ladrix {

// The lines of `front`, then those of `back`; each reads as it did alone. A line that was cut off
// at the end of `front` and a `front` that has no form at all never became rows and are left out.
// With equal forms the lines are taken as they stand.
std::string joinedDevices(std::string_view front, std::string_view back);
std::string joinedLabels(std::string_view front, std::string_view back);

}  // namespace ladrix
