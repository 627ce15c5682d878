// make_simulation OUTPUT-FOLDER: makes the drawings of the circuit simulation, one for each state
// of three circuits in the voltage view and in the current view. A circuit is described once; what
// a state shows follows from the actions that lead to it.
//
// The push buttons stand where the simulation looks for them. All that moves stands in the upper
// six inches, which the smallest window shows without scrolling.
#include <array>
#include <exception>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "RelayDrawing.h"
#include "Sheet.h"
#include "document/DrawingFile.h"
#include "platform/DiskFiles.h"

namespace ladrix::tools {

namespace {

constexpr Single Left = 1, Right = 7;  // the rails
constexpr Single RailTop = 0.5625f, LoadX = 6, SymbolLength = 0.5f;
constexpr Single TextX = 7.1875f;  // of the remarks beside the rungs
constexpr Single ConditionX = 3.625f, ChartX = 5.4375f;
constexpr TextStyle State{11, true}, Reason{9};
constexpr Long AtRestColor = RGB(176, 176, 176);  // of the present step in the chart

struct Rung {
    Single y;
    std::string_view heading, remark1 = {}, remark2 = {};
};

// A state is what the first `after` actions of the circuit's life lead to.
struct StateOf {
    std::string_view file;
    std::size_t after;
    std::string_view headline, why1, why2;
};

struct Demonstration {
    std::string_view number, title;
    RelayCircuit circuit;
    std::vector<Rung> rungs;
    std::vector<std::array<std::string_view, 2>> purposes;  // device, what it is
    std::vector<std::string_view> story;
    std::vector<Action> life;
    std::vector<StateOf> states;
};

// --- The circuits --------------------------------------------------------------------------

class Ladder {
  public:
    RelayCircuit circuit;

    Ladder(Single lastRung, TimerKind timer) {
        circuit.timer = timer;
        circuit.hot = {Left, RailTop};
        circuit.neutral = {Right, RailTop};
        wire(circuit.hot, {Left, lastRung});
        wire(circuit.neutral, {Right, lastRung});
    }

    struct Place {
        Kind kind;
        std::string name;
        Single x;
    };
    // Devices in series from rail to rail.
    void rung(Single y, const std::vector<Place>& places) {
        Single end = Left;
        for (const Place& place : places) {
            wire({end, y}, {place.x, y});
            circuit.devices.push_back({place.kind, place.name, {place.x, y}});
            end = place.x + SymbolLength;
        }
        wire({end, y}, {Right, y});
    }
    // A contact in parallel with the button on the rung above.
    void seal(Single rungY, Single y, const std::string& name, Single x) {
        const Single from = x - 0.375f, to = x + SymbolLength + 0.375f;
        wire({from, rungY}, {from, y});
        wire({from, y}, {x, y});
        circuit.devices.push_back({Kind::ContactNO, name, {x, y}});
        wire({x + SymbolLength, y}, {to, y});
        wire({to, rungY}, {to, y});
    }

  private:
    void wire(Point from, Point to) { circuit.wires.push_back({from, to}); }
};

std::vector<Action> pressAndRelease(std::initializer_list<std::string_view> buttons) {
    std::vector<Action> actions;
    for (const std::string_view button : buttons) {
        actions.push_back({Action::Press, std::string(button)});
        actions.push_back({Action::Release, std::string(button)});
    }
    return actions;
}
std::vector<Action> withExpiryAfter(std::size_t before, std::vector<Action> actions) {
    actions.insert(actions.begin() + static_cast<std::ptrdiff_t>(before), {Action::Expire});
    return actions;
}

Demonstration sealAndNoSeal() {
    Ladder ladder(4.75f, TimerKind::None);
    ladder.rung(
        0.875f,
        {{Kind::Stop, "STOP 1", 2}, {Kind::Start, "START 1", 4.5f}, {Kind::Coil, "CR1", LoadX}});
    ladder.rung(1.75f, {{Kind::ContactNO, "CR1", 4.5f}, {Kind::Lamp, "PL1", LoadX}});
    ladder.rung(
        3.375f,
        {{Kind::Stop, "STOP 2", 2}, {Kind::Start, "START 2", 4.5f}, {Kind::Coil, "CR2", LoadX}});
    ladder.seal(3.375f, 4, "CR2", 4.5f);
    ladder.rung(4.75f, {{Kind::ContactNO, "CR2", 4.5f}, {Kind::Lamp, "PL2", LoadX}});
    return {
        "1",
        "SEAL VS. NO SEAL",
        ladder.circuit,
        {{0.875f, "NO SEAL", "CR1 is held by", "START 1 alone"},
         {1.75f, "LAMP 1", "CR1 is energized"},
         {3.375f, "SEAL", "CR2 is started by", "START 2 ..."},
         {4, "", "... and held by its", "own contact"},
         {4.75f, "LAMP 2", "CR2 is energized"}},
        {{"STOP 1", "Push button, normally closed"},
         {"START 1", "Push button, normally open"},
         {"CR1", "Control relay without seal"},
         {"PL1", "Pilot light of CR1"},
         {"STOP 2", "Push button, normally closed"},
         {"START 2", "Push button, normally open"},
         {"CR2", "Control relay with seal"},
         {"PL2", "Pilot light of CR2"}},
        {"Without a seal a relay is energized only as long as the START button is held.",
         "With a seal, a contact of the relay itself lies in parallel with the START button. Once",
         "the relay has picked up, that contact keeps it energized when the button is released.",
         "STOP lies in series with both ways: it interrupts them, the relay drops out and opens",
         "its own seal. After STOP, and after a loss of power, nothing starts again by itself."},
        pressAndRelease({"START 1", "STOP 1", "START 2", "START 1", "STOP 1", "STOP 2"}),
        {{"Off", 0, "Everything is at rest.",
          "START 1, START 2 and the contacts of CR1 and CR2 are open.",
          "No coil has a closed path from L1 to N."},
         {"Start1", 1, "START 1 is pressed: CR1 is energized.",
          "L1 - STOP 1 - START 1 - coil CR1 - N is a closed path. Contact CR1 closes and lights "
          "PL1.",
          "Nothing lies in parallel with START 1: let it go, and CR1 drops out."},
         {"Stop1", 3, "STOP 1 is pressed: the upper circuit is interrupted.",
          "STOP 1 is open and cuts START 1 off from L1. CR1 was not energized and stays so.",
          "While STOP 1 is held, pressing START 1 would not energize CR1 either."},
         {"Start1.CR2.On", 7, "START 1 is pressed: CR1 is energized, CR2 stays sealed in.",
          "CR1 is fed through STOP 1 and START 1, only as long as START 1 is held.",
          "CR2 holds itself through STOP 2 and its own contact."},
         {"Stop1.CR2.On", 9, "STOP 1 is pressed: the lower circuit is not affected.",
          "STOP 1 interrupts the upper circuit only.",
          "CR2 holds itself through STOP 2 and its own contact."},
         {"Start2", 5, "START 2 is pressed: CR2 is energized and seals in.",
          "L1 - STOP 2 - START 2 - coil CR2 - N is a closed path. CR2 closes its contacts at once:",
          "one lights PL2, the other bridges START 2, which may now be released."},
         {"Stop2", 11, "STOP 2 is pressed: the lower circuit is interrupted.",
          "CR2 is de-energized and its sealing contact is open.",
          "Releasing STOP 2 does not energize it again: START 2 must be pressed."},
         {"CR2.On", 6, "CR2 is sealed in.",
          "START 2 is released, but contact CR2 beside it is closed:",
          "L1 - STOP 2 - contact CR2 - coil CR2 - N is a closed path."}}};
}

// What both timer circuits begin with.
Ladder timedLadder(TimerKind timer) {
    Ladder ladder(4.25f, timer);
    ladder.rung(
        0.875f,
        {{Kind::Stop, "STOP 1", 2}, {Kind::Start, "START 1", 4}, {Kind::Coil, "CR1", LoadX}});
    ladder.seal(0.875f, 1.5f, "CR1", 4);
    ladder.rung(2.375f, {{Kind::ContactNO, "CR1", 4}, {Kind::Coil, "T1", LoadX}});
    return ladder;
}

Demonstration onDelayTimer() {
    Ladder ladder = timedLadder(TimerKind::OnDelay);
    ladder.rung(
        3.25f,
        {{Kind::ContactNO, "CR1", 2}, {Kind::OnDelayNC, "T1", 4}, {Kind::Lamp, "PL1", LoadX}});
    ladder.rung(4.25f, {{Kind::OnDelayNO, "T1", 4}, {Kind::Lamp, "PL2", LoadX}});
    return {
        "2",
        "ON-DELAY TIMER",
        ladder.circuit,
        {{0.875f, "CONTROL", "CR1 is started by", "START 1 ..."},
         {1.5f, "", "... and held by its", "own contact"},
         {2.375f, "TIMER", "T1 is energized", "with CR1"},
         {3.25f, "WAITING", "lit while T1 times"},
         {4.25f, "RUNNING", "lit once T1 has", "timed out"}},
        {{"STOP 1", "Push button, normally closed"},
         {"START 1", "Push button, normally open"},
         {"CR1", "Control relay, sealed in"},
         {"T1", "On-delay timer"},
         {"PL1", "Pilot light, waiting"},
         {"PL2", "Pilot light, running"}},
        {"An on-delay timer begins to time when its coil is energized. Only when the time has",
         "passed do its timed contacts move: one closes (PL2), the other opens (PL1).",
         "De-energizing the coil puts the contacts back at once, whether the time has passed or",
         "not. The arrow below the contact points up: the delay is at energizing.",
         "Set the period at the top of the window; 1000 milliseconds are one second."},
        withExpiryAfter(2, pressAndRelease({"START 1", "START 1", "STOP 1"})),
        {{"Off", 0, "Everything is at rest.",
          "START 1 and the contacts of CR1 are open: no coil has a closed path from L1 to N.",
          "T1's timed contacts are at rest: the one to PL1 is closed, the one to PL2 is open."},
         {"Start", 1, "START 1 is pressed: CR1 is sealed in and T1 is timing.",
          "Coil CR1 is energized and has closed its contacts: one bridges START 1, one feeds T1,",
          "one lights PL1. T1's timed contacts have not moved yet."},
         {"Stop", 6, "STOP 1 is pressed: CR1 and T1 are de-energized.",
          "CR1 opens its seal and T1's supply. T1's contacts are back at rest at once:",
          "an on-delay timer delays the start, not the stop."},
         {"Start.T1.Expired", 4, "START 1 is pressed again: nothing changes.",
          "CR1 is sealed in already and T1 has timed out: START 1 is only a second path.",
          "T1 does not begin anew, because its coil was never de-energized."},
         {"T1.Expired", 3, "T1 has timed out: PL2 is lit.",
          "T1's coil has been energized for the whole period, so its timed contacts have moved:",
          "the one to PL2 has closed, the one to PL1 has opened. CR1 stays sealed in."},
         {"T1.Started", 2, "T1 is timing.",
          "START 1 is released, but CR1 is sealed in by its own contact and keeps T1 energized.",
          "PL1 is lit until the time has passed; then T1's contacts move."}}};
}

Demonstration offDelayTimer() {
    Ladder ladder = timedLadder(TimerKind::OffDelay);
    ladder.rung(3.25f, {{Kind::ContactNO, "CR1", 4}, {Kind::Lamp, "PL1", LoadX}});
    ladder.rung(4.25f, {{Kind::OffDelayNO, "T1", 4}, {Kind::Lamp, "PL2", LoadX}});
    return {
        "3",
        "OFF-DELAY TIMER",
        ladder.circuit,
        {{0.875f, "CONTROL", "CR1 is started by", "START 1 ..."},
         {1.5f, "", "... and held by its", "own contact"},
         {2.375f, "TIMER", "T1 is energized", "with CR1"},
         {3.25f, "MACHINE", "runs with CR1"},
         {4.25f, "FAN", "runs on until T1", "has timed out"}},
        {{"STOP 1", "Push button, normally closed"},
         {"START 1", "Push button, normally open"},
         {"CR1", "Control relay, sealed in"},
         {"T1", "Off-delay timer"},
         {"PL1", "Pilot light, machine"},
         {"PL2", "Pilot light, cooling fan"}},
        {"An off-delay timer moves its timed contact at once when its coil is energized. It begins",
         "to time when the coil is de-energized, and only when the time has passed does the",
         "contact go back. So a fan can cool a machine for a while after the machine has stopped.",
         "The arrow below the contact points down: the delay is at de-energizing.",
         "Set the period at the top of the window; 1000 milliseconds are one second."},
        withExpiryAfter(4, pressAndRelease({"START 1", "STOP 1", "STOP 1"})),
        {{"Off", 0, "Everything is at rest.",
          "START 1 and the contacts of CR1 are open: no coil has a closed path from L1 to N.",
          "T1 is not timing, so its contact is open and the fan stands still."},
         {"Start", 1, "START 1 is pressed: machine and fan run at once.",
          "Coil CR1 is energized and has closed its contacts: one bridges START 1, one feeds T1,",
          "one lights PL1. An off-delay timer does not wait here: T1 closes its contact at once."},
         {"Stop", 3, "STOP 1 is pressed: the machine stops, the fan runs on.",
          "CR1 and T1 are de-energized. T1 times from now on, and its contact is still closed:",
          "PL2 stays lit until the time has passed."},
         {"Stop.Off", 6, "STOP 1 is pressed: nothing was running.",
          "CR1 and T1 were de-energized before, and T1 has timed out.",
          "There is nothing to stop: the timer does not begin to time."},
         {"T1.Started", 2, "Machine and fan are running.",
          "START 1 is released, but CR1 is sealed in by its own contact and keeps T1 energized.",
          "As long as T1 is energized, its contact is closed and no time is counted."},
         {"T1.Stopped", 4, "T1 is timing: the fan runs on.",
          "CR1 and T1 are de-energized, the machine stands still.",
          "T1's contact stays closed until the time has passed; then the fan stops too."}}};
}

// --- A state as a drawing ------------------------------------------------------------------

class StateSheet {
  public:
    StateSheet(Sheet& sheet, const Demonstration& demo, const StateOf& state, View view)
        : sheet_(sheet), demo_(demo), state_(state), view_(view), running_(demo.circuit) {
        for (std::size_t i = 0; i < state.after; ++i)
            running_.act(demo.life[i]);
    }

    void draw() {
        sheet_.frame({0.25f, 0.25f}, {8.25f, 10.75f});
        drawLadder();
        drawRungs();
        drawExplanation();
        drawDeviceList();
        drawStory();
        drawTitle();
    }

  private:
    Sheet& sheet_;
    const Demonstration& demo_;
    const StateOf& state_;
    View view_;
    RunningCircuit running_;

    void drawLadder() {
        LadderDrawing(sheet_, demo_.circuit, running_, view_).draw();
        terminal(demo_.circuit.hot, "L1");
        terminal(demo_.circuit.neutral, "N");
        for (const RelayDevice& device : demo_.circuit.devices)
            if (device.kind == Kind::Coil && device.name == TimerName) tellTimer(device.at);
    }
    void terminal(Point at, std::string_view name) {
        constexpr Single Radius = 0.0375f;
        sheet_.circle(at.x - Radius, at.y - Radius, Radius);
        sheet_.centred(name, at.x, at.y - 0.17f, Plain);
    }

    void tellTimer(Point at) {
        const Point below{at.x + SymbolLength / 2, at.y + 0.35f};
        if (running_.isTiming()) sheet_.centred("TIMING", below.x, below.y, {8, true});
        if (running_.hasTimedOut()) sheet_.centred("TIMED OUT", below.x, below.y, {8, true});
    }

    void drawRungs() {
        int number = 0;
        for (const Rung& rung : demo_.rungs) {
            sheet_.centred(std::to_string(++number), 0.6875f, rung.y, Plain);
            Single y = rung.y - (rung.heading.empty() ? 0.0625f : 0.125f);
            for (const std::string_view text : {rung.heading, rung.remark1, rung.remark2}) {
                if (text.empty()) continue;
                sheet_.from(text, TextX, y, text == rung.heading ? TextStyle{8, true} : Remark);
                y += 0.125f;
            }
        }
    }

    // What is happening, why, and what the colours mean.
    void drawExplanation() {
        constexpr Single Top = 5.1875f, X = 0.6875f;
        sheet_.frameLine({0.25f, Top}, {8.25f, Top});
        sheet_.from(state_.headline, X, Top + 0.1875f, State);
        sheet_.from(state_.why1, X, Top + 0.42f, Reason);
        sheet_.from(state_.why2, X, Top + 0.5925f, Reason);
        drawLegend(Top + 0.8125f);
        sheet_.frameLine({0.25f, Top + 1}, {8.25f, Top + 1});
    }
    void drawLegend(Single y) {
        const auto sample = [&](Long color, std::string_view width, Single x,
                                std::string_view text) {
            sheet_.ink = color;
            sheet_.wire({{x, y}, {x + 0.3125f, y}}, width);
            sheet_.from(text, x + 0.375f, y, Remark);
        };
        if (view_ == View::Voltage)
            sample(LiveColor, Heavy, 0.6875f, "Live: at the voltage of L1");
        else
            sample(CurrentColor, Heavy, 0.6875f, "Current: part of a closed path from L1 to N");
        sample(Black, {}, 3.25f, "Off");
        sheet_.ink = OperatedColor;
        sheet_.disc(4.1875f, y, 0.075f);
        sheet_.ink = Black;
        sheet_.from("Operated: pressed, energized, moved, lit", 4.3125f, y, Remark);
        sheet_.from("Crossed contact: closed", 6.625f, y, Remark);
    }

    std::string_view conditionOf(const std::string& name) const {
        for (const RelayDevice& device : demo_.circuit.devices) {
            if (device.name != name) continue;
            const bool operated = running_.isOperated(device);
            switch (device.kind) {
                case Kind::Stop:
                    return operated ? "pressed, open" : "released, closed";
                case Kind::Start:
                    return operated ? "pressed, closed" : "released, open";
                case Kind::Lamp:
                    return operated ? "lit" : "dark";
                case Kind::Coil:
                    if (name == TimerName) return timerCondition(operated);
                    return operated ? "energized" : "de-energized";
                default:
                    continue;
            }
        }
        throw std::logic_error("No device " + name);
    }
    std::string_view timerCondition(bool energized) const {
        if (running_.isTiming()) return energized ? "energized, timing" : "de-energized, timing";
        if (running_.hasTimedOut()) return "energized, timed out";
        return energized ? "energized" : "de-energized";
    }

    void drawDeviceList() {
        constexpr Single Top = 6.5f;
        sheet_.from("DEVICES", 0.6875f, Top, Heading);
        sheet_.from("NOW", ConditionX, Top, Heading);
        sheet_.from("STEP BY STEP", ChartX, Top, Heading);
        Single y = Top + 0.25f;
        for (const auto& [name, purpose] : demo_.purposes) {
            sheet_.from(name, 0.6875f, y, {8, true});
            sheet_.from(purpose, 1.5f, y, Plain);
            sheet_.from(conditionOf(std::string(name)), ConditionX, y, Plain);
            drawWave(std::string(name), y);
            y += 0.1875f;
        }
    }
    // The life of a device: high while it is operated; the present step is marked.
    void drawWave(const std::string& name, Single y) {
        constexpr Single Width = 2.5f, Half = 0.055f;
        const std::size_t steps = demo_.life.size() + 1;
        const auto device = std::find_if(
            demo_.circuit.devices.begin(), demo_.circuit.devices.end(), [&](const auto& each) {
                return each.name == name && (RunningCircuit::isLoad(each) || isButton(each));
            });
        RunningCircuit running(demo_.circuit);
        Point pen{ChartX, y + Half};
        for (std::size_t i = 0; i < steps; ++i) {
            if (i > 0) running.act(demo_.life[i - 1]);
            const Single end =
                ChartX + Width * static_cast<Single>(i + 1) / static_cast<Single>(steps);
            const bool operated = running.isOperated(*device);
            const Single level = operated ? y - Half : y + Half;
            if (i == state_.after) {
                sheet_.ink = operated ? OperatedColor : AtRestColor;
                sheet_.disc((pen.x + end) / 2, level, 0.04f);
                sheet_.ink = Black;
            }
            if (level != pen.y) sheet_.frameLine(pen, {pen.x, level});
            sheet_.frameLine({pen.x, level}, {end, level});
            pen = {end, level};
        }
    }
    static bool isButton(const RelayDevice& device) {
        return device.kind == Kind::Stop || device.kind == Kind::Start;
    }

    void drawStory() {
        constexpr Single Top = 8.5f;
        sheet_.from("HOW IT WORKS", 0.6875f, Top, Heading);
        Single y = Top + 0.25f;
        for (const std::string_view line : demo_.story) {
            sheet_.from(line, 0.6875f, y, Reason);
            y += 0.1875f;
        }
    }

    void drawTitle() {
        constexpr Single Top = 10.125f, Divider = 5.75f;
        sheet_.frameLine({0.25f, Top}, {8.25f, Top});
        sheet_.frameLine({Divider, Top}, {Divider, 10.75f});
        sheet_.from(demo_.title, 0.6875f, Top + 0.225f, Title);
        sheet_.from("Circuit simulation " + std::string(demo_.number) + ", control circuit 120 VAC",
                    0.6875f, Top + 0.45f, Remark);
        sheet_.from(view_ == View::Voltage ? "VOLTAGE VIEW" : "CURRENT VIEW", Divider + 0.25f,
                    Top + 0.225f, Heading);
        sheet_.from("State: " + std::string(state_.file), Divider + 0.25f, Top + 0.45f, Remark);
    }
};

bool makeSimulation(const std::string& folder) {
    DiskFiles disk;
    Files& files = disk;
    for (const Demonstration& demo : {sealAndNoSeal(), onDelayTimer(), offDelayTimer()}) {
        for (const StateOf& state : demo.states) {
            for (const View view : {View::Voltage, View::Current}) {
                const bool voltage = view == View::Voltage;
                Sheet sheet("8.5x11Portrait", std::string(demo.title) +
                                                  (voltage ? ", voltage: " : ", current: ") +
                                                  std::string(state.headline));
                StateSheet(sheet, demo, state, view).draw();
                if (!sheet.good()) return false;
                files.replace(withSeparator(files, folder) + (voltage ? "V" : "C") + "_Demo_" +
                                  std::string(demo.number) + "_" + std::string(state.file) + ".els",
                              fileText(sheet.drawing));
            }
        }
    }
    return true;
}

}  // namespace

}  // namespace ladrix::tools

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: make_simulation OUTPUT-FOLDER\n";
        return 1;
    }
    try {
        return ladrix::tools::makeSimulation(argv[1]) ? 0 : 1;
    } catch (const ladrix::Failure& failure) {
        std::cerr << failure.text << '\n';
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
