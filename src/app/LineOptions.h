// The options of the line tools that outlive a run.
#pragma once

#include "app/Program.h"

namespace ladrix {

// Asks for the length of dashes and gaps, in inches, and stores it with the preferences. What is no
// number, or too short for a dash, is told and leaves it.
void mnuOptDashedLineConstant_Click(Program& program);

}  // namespace ladrix
