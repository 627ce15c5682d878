// An editor in a process of its own that saves one drawing over and over, to be killed at it.
#pragma once

#include <string>

namespace ladrix::test {

constexpr auto SaveLoopOption = "--save-loop";

// Opens the drawing at this path, and saves it with its description flipped between the two below
// until the process is killed. A line on standard output tells of each save.
int runSaveLoop(const std::string& path);

constexpr auto OneDescription = "before";
constexpr auto OtherDescription = "the other one, of another length";

}  // namespace ladrix::test
