// The menu commands of the circuit simulation.
#pragma once

#include "app/Program.h"
#include "usersymbols/UserButtonOrder.h"

namespace ladrix {

template <Short Circuit>
void simulateCircuit(Program& program) {
    leaveButtonOrder(program.usersymbols, program.editor);
    mnuSimCircuit_Click(program.simulation, program.editor, Circuit);
}

}  // namespace ladrix
