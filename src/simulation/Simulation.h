// Circuit simulation: three sample relay circuits whose states are drawings made in advance. A
// press on a device of the drawing loads the drawing of the next state; nothing is computed. A set
// of drawings shows voltage, a second one current, under the same names of states.
//
// A state's drawing that cannot be read is reported once; the one before stays on the canvas, and
// the simulation goes on.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "canvas/state/Controls.h"
#include "canvas/state/Editor.h"

namespace ladrix {

constexpr Short SimCircuitCount = 3;
constexpr Single SimPanelHeight = 415;  // twips

// The state, and the panel picSimulation, which takes the strip's place. SimulationMode itself is
// the editor's, because the canvas asks for it.
struct Simulation {
    std::string SimView;  // "Voltage" or "Current"; "" while no circuit is loaded
    Short SimCircuit = 0;
    std::string SimDevice;  // the button that the pointer was on last: "Start1", "Stop2", ...
    std::string SimState;   // "", "2ON", "TimerExpired" or "TimerOn"
    std::string SimPrefix, SimFirstFile;
    Short SimButtonDown = 0;       // 1 while the pointer holds a device down
    Long SimTimerInterval = 5000;  // milliseconds
    struct {
        bool Enabled = false;
        Long Interval = 5000;  // milliseconds; 0: no ticks
    } Timer1;

    Control picSimulation = hidden();
    Control lblSim = captioned("Simulation Mode");
    Control cmdVoltage = captioned("View Voltage"), cmdCurrent = captioned("View Current");
    Control lblTime = captioned("Time Period (Milliseconds)");
    TextBox txtTimer;
    Control cmdTimer = captioned("Set");
    std::array<Control, 4> lblSimColor;  // the legend; BackColor is what it explains

    Simulation();
};

// Makes the canvas send its pointer here while SimulationMode is on. Both must outlive it.
void connectSimulation(Simulation& simulation, Editor& editor);

// Starts circuit 0, 1 or 2 in the voltage view, after the prompt for unsaved changes. Where the
// user cancels, the mode is on with the old drawing, which nothing touches, until it is left.
// Refused, with nothing changed, while a copy waits for a point.
void mnuSimCircuit_Click(Simulation& simulation, Editor& editor, Short index);

// The canvas takes its options again; then, if the mode is on, it ends. The drawing last loaded
// stays and is an ordinary one from then on.
void LeaveSimulation(Simulation& simulation, Editor& editor);

// The pointer at a point of the page, inches: over a device it is a hand and the device is
// remembered, also when the pointer has gone on.
void SimMove(Simulation& simulation, Editor& editor, Single x, Single y);
// Work the device that the pointer was on last, wherever it is now.
void SimPress(Simulation& simulation, Editor& editor);
void SimRelease(Simulation& simulation, Editor& editor);

void Timer1_Timer(Simulation& simulation, Editor& editor);

// The other set of drawings, at the state of rest that a release would show.
void cmdVoltage_Click(Simulation& simulation, Editor& editor);
void cmdCurrent_Click(Simulation& simulation, Editor& editor);

// Takes the typed period, at once where the timer runs; 0 lets it never tick. What is no number is
// ignored; one above the range is refused in the message guide.
void cmdTimer_Click(Simulation& simulation, Editor& editor);
void txtTimer_KeyDown(Simulation& simulation, Editor& editor, Short keyCode);
bool txtTimer_KeyPress(Short keyAscii);  // false: the key is dropped

// What the tables hold, for tests and for what is shipped.
enum class SimEvent { Press, Release, Tick };
enum class SimTimer { Unchanged, On, Off };
struct SimRow {
    Short circuit;
    SimEvent event;
    std::string_view device, state;  // "*": any
    std::string_view file;
    std::string_view newState;  // "*": the same
    SimTimer timer = SimTimer::Unchanged;
};
std::span<const SimRow> simulationTable();
std::string_view simulationPrefix(Short circuit, std::string_view view);

}  // namespace ladrix
