// The menu commands of the circuit simulation.
#pragma once

#include "app/Program.h"

namespace ladrix {

template <Short Circuit>
void simulateCircuit(Program& program) {
    mnuSimCircuit_Click(program.simulation, program.editor, Circuit);
}

}  // namespace ladrix
