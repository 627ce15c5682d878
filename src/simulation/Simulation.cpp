#include "simulation/Simulation.h"

#include <algorithm>

#include "canvas/file/DrawingCommands.h"
#include "canvas/gestures/Keys.h"
#include "canvas/tools/LineWidth.h"
#include "canvas/tools/RadiusFields.h"
#include "canvas/view/Background.h"
#include "canvas/view/Painting.h"
#include "canvas/view/View.h"
#include "platform/Numbers.h"

namespace ladrix {

namespace {

constexpr std::string_view Any = "*", Same = "*";
constexpr std::string_view Voltage = "Voltage", Current = "Current";
constexpr int Timer1 = 1;  // its number among the platform's timers
constexpr Short EnterKey = 13;

constexpr Menu ClosedMenus[] = {Menu::mnuEdit,    Menu::mnuFile,   Menu::mnuInsert,
                                Menu::mnuAdmin,   Menu::mnuLayout, Menu::mnuLibraries,
                                Menu::mnuUOptions};
constexpr Menu CircuitEntries[] = {Menu::mnuSimCircuit0, Menu::mnuSimCircuit1,
                                   Menu::mnuSimCircuit2};

// A device's place on the page, inches, bounds included.
struct HotRectangle {
    Short circuit;
    Single left, right, top, bottom;
    std::string_view device;
};
constexpr HotRectangle HotRectangles[] = {
    {0, 4.5f, 5.0f, 0.5f, 1.0f, "Start1"}, {0, 4.5f, 5.0f, 3.0f, 3.5f, "Start2"},
    {0, 2.0f, 2.5f, 0.5f, 1.0f, "Stop1"},  {0, 2.0f, 2.5f, 3.0f, 3.5f, "Stop2"},
    {1, 4.0f, 4.5f, 0.5f, 1.0f, "Start1"}, {1, 2.0f, 2.5f, 0.5f, 1.0f, "Stop1"},
    {2, 4.0f, 4.5f, 0.5f, 1.0f, "Start1"}, {2, 2.0f, 2.5f, 0.5f, 1.0f, "Stop1"},
};

// The first row that applies is the step.
// clang-format off
constexpr SimRow Table[] = {
    // Seal and no seal: CR2 is latched by its own contact, CR1 is not.
    {0, SimEvent::Press,   "Start1", "2ON",          "Start1.CR2.On.els",    Same},
    {0, SimEvent::Press,   "Start1", Any,            "Start1.els",           Same},
    {0, SimEvent::Press,   "Stop1",  "2ON",          "Stop1.CR2.On.els",     Same},
    {0, SimEvent::Press,   "Stop1",  Any,            "Stop1.els",            Same},
    {0, SimEvent::Press,   "Start2", Any,            "Start2.els",           Same},
    {0, SimEvent::Press,   "Stop2",  Any,            "Stop2.els",            Same},
    {0, SimEvent::Release, "Stop1",  "2ON",          "CR2.On.els",           Same},
    {0, SimEvent::Release, "Stop1",  Any,            "Off.els",              ""},
    {0, SimEvent::Release, "Start1", "2ON",          "CR2.On.els",           Same},
    {0, SimEvent::Release, "Start1", Any,            "Off.els",              ""},
    {0, SimEvent::Release, "Stop2",  Any,            "Off.els",              ""},
    {0, SimEvent::Release, "Start2", Any,            "CR2.On.els",           "2ON"},
    // On-delay timer.
    {1, SimEvent::Press,   "Start1", "TimerExpired", "Start.T1.Expired.els", Same},
    {1, SimEvent::Press,   "Start1", Any,            "Start.els",            Same, SimTimer::On},
    {1, SimEvent::Press,   "Stop1",  Any,            "Stop.els",             Same, SimTimer::Off},
    {1, SimEvent::Release, "Start1", "TimerExpired", "T1.Expired.els",       Same},
    {1, SimEvent::Release, "Start1", Any,            "T1.Started.els",       ""},
    {1, SimEvent::Release, "Stop1",  Any,            "Off.els",              ""},
    {1, SimEvent::Tick,    Any,      Any,            "T1.Expired.els",       "TimerExpired", SimTimer::Off},
    // Off-delay timer.
    {2, SimEvent::Press,   "Start1", Any,            "Start.els",            Same},
    {2, SimEvent::Press,   "Stop1",  "TimerExpired", "Stop.Off.els",         Same},
    {2, SimEvent::Press,   "Stop1",  Any,            "Stop.els",             Same, SimTimer::On},
    {2, SimEvent::Release, "Start1", Any,            "T1.Started.els",       "TimerOn"},
    {2, SimEvent::Release, "Stop1",  "TimerExpired", "Off.els",              ""},
    {2, SimEvent::Release, "Stop1",  Any,            "T1.Stopped.els",       Same},
    {2, SimEvent::Tick,    Any,      Any,            "Off.els",              "TimerExpired", SimTimer::Off},
};

constexpr std::string_view VoltagePrefixes[] = {"V_Demo_1_", "V_Demo_2_", "V_Demo_3_"};
constexpr std::string_view CurrentPrefixes[] = {"C_Demo_1_", "C_Demo_2_", "C_Demo_3_"};
// clang-format on

Control legend(std::string caption, Long color, std::string tip) {
    Control control = hidden();
    control.Caption = std::move(caption);
    control.BackColor = color;
    control.ToolTipText = std::move(tip);
    return control;
}

void runTimer(Simulation& simulation, Editor& editor) {
    if (simulation.Timer1.Enabled && simulation.Timer1.Interval > 0)
        editor.platform.timers->start(Timer1, simulation.Timer1.Interval,
                                      [&] { Timer1_Timer(simulation, editor); });
    else
        editor.platform.timers->stop(Timer1);
}

// One that runs already goes on as it is.
void enableTimer(Simulation& simulation, Editor& editor, bool enabled) {
    if (simulation.Timer1.Enabled == enabled) return;
    simulation.Timer1.Enabled = enabled;
    runTimer(simulation, editor);
}

// The picture changes under the user's hands: the pointer and the keyboard's focus stay where they
// are.
void LoadSimFile(Editor& editor) {
    const MousePointer pointer = editor.form.pointer.Pointer;
    const Focus focus = editor.form.FocusRequest;
    OpenDrawingQuietly(editor);
    editor.form.pointer.Pointer = pointer;
    editor.form.FocusRequest = focus;
    editor.form.lblMessage.Caption = readyMessage(editor);
}

void loadState(Simulation& simulation, Editor& editor, std::string_view file) {
    editor.drawing.CurrentFileName = simulation.SimPrefix + std::string(file);
    LoadSimFile(editor);
}

void step(Simulation& simulation, Editor& editor, SimEvent event) {
    const auto fits = [](std::string_view wanted, const std::string& present) {
        return wanted == Any || wanted == present;
    };
    const auto row = std::find_if(std::begin(Table), std::end(Table), [&](const SimRow& each) {
        return each.circuit == simulation.SimCircuit && each.event == event &&
               fits(each.device, simulation.SimDevice) && fits(each.state, simulation.SimState);
    });
    if (row == std::end(Table)) return;
    if (row->newState != Same) simulation.SimState = row->newState;
    if (row->timer != SimTimer::Unchanged)
        enableTimer(simulation, editor, row->timer == SimTimer::On);
    loadState(simulation, editor, row->file);
}

void setMenus(Editor& editor, bool enabled) {
    for (const Menu entry : ClosedMenus)
        editor.form.menu[entry].Enabled = enabled;
}

// The mode menu tells which circuit is on, and in which view.
void showMode(const Simulation& simulation, Editor& editor) {
    MenuStates& menu = editor.form.menu;
    const bool on = editor.SimulationMode && !simulation.SimView.empty();
    for (Short i = 0; i < SimCircuitCount; ++i)
        menu[CircuitEntries[i]].Checked = on && simulation.SimCircuit == i;
    menu[Menu::mnuModeSimulation].Caption =
        on ? "Circuit &Simulation: " + simulation.SimView : std::string();
}

void showControls(Simulation& simulation, Editor& editor, bool running) {
    simulation.picSimulation.Visible = running;
    editor.form.picTop.Visible = !running;
    for (PaletteButton& button : editor.form.cmdSym)
        button.Visible = !running && !button.Tag.empty();
    ++editor.form.PaletteVersion;
}

void showLegend(Simulation& simulation, bool visible) {
    for (Control& label : simulation.lblSimColor)
        label.Visible = visible;
}

void showView(Simulation& simulation, std::string_view view) {
    simulation.SimView = view;
    simulation.cmdVoltage.BackColor = view == Voltage ? Cyan : ButtonFace;
    simulation.cmdCurrent.BackColor = view == Current ? Cyan : ButtonFace;
}

void chooseView(Simulation& simulation, Editor& editor, std::string_view view) {
    if (simulation.SimView.empty()) return;
    showView(simulation, view);
    simulation.SimButtonDown = 0;
    if (simulation.SimCircuit >= 0 && simulation.SimCircuit < SimCircuitCount)
        simulation.SimPrefix = simulationPrefix(simulation.SimCircuit, view);
    SimRelease(simulation, editor);
    showMode(simulation, editor);
}

}  // namespace

Simulation::Simulation()
    : lblSimColor{legend("Live", RGB(208, 0, 0), "Voltage view: at the voltage of L1"),
                  legend("Current", RGB(0, 96, 208), "Current view: carries current"),
                  legend("Off", Black, "No voltage, or no current"),
                  legend("Operated", RGB(255, 212, 96),
                         "A button pressed, a coil energized, a contact moved, a lamp lit")} {}

void connectSimulation(Simulation& simulation, Editor& editor) {
    editor.simulation.move = [&](Single x, Single y) { SimMove(simulation, editor, x, y); };
    editor.simulation.press = [&] { SimPress(simulation, editor); };
    editor.simulation.release = [&] { SimRelease(simulation, editor); };
}

void mnuSimCircuit_Click(Simulation& simulation, Editor& editor, Short index) {
    if (RefusedWhileCopying(editor)) return;
    showLegend(simulation, true);
    setMenus(editor, false);
    editor.SimulationMode = true;
    editor.form.menu[Menu::mnuModeNormal].Checked = false;
    editor.form.menu[Menu::mnuModeDesign].Checked = false;
    if (!MayGiveUpDrawing(editor)) return;
    enableTimer(simulation, editor, false);
    showView(simulation, Voltage);
    simulation.txtTimer.Text = longText(simulation.SimTimerInterval);
    showControls(simulation, editor, true);
    simulation.SimCircuit = index;
    simulation.SimState.clear();
    simulation.SimPrefix = simulationPrefix(index, Voltage);
    simulation.SimFirstFile = "Off.els";
    editor.drawing.CurrentFolder =
        editor.AppFilePath + "Simulation Files" + editor.platform.files->separator();
    showMode(simulation, editor);
    // The devices stand at the head of the page, and there are no scroll bars.
    ResetZoom(editor);
    loadState(simulation, editor, simulation.SimFirstFile);
    editor.form.FocusRequest = Focus::Canvas;
}

void LeaveSimulation(Simulation& simulation, Editor& editor) {
    applyThickDevices(editor);
    applyBlackBackground(editor);
    if (editor.SimulationMode) {
        editor.SimulationMode = false;
        // A tick must not replace what the user draws from here on.
        enableTimer(simulation, editor, false);
        showView(simulation, "");
        setMenus(editor, true);
        showControls(simulation, editor, false);
        showLegend(simulation, false);
        showMode(simulation, editor);
        editor.form.pointer.Pointer = MousePointer::Default;
        ArrangeScrollBars(editor);
    }
    RedrawDrawing(editor);
}

void SimMove(Simulation& simulation, Editor& editor, Single x, Single y) {
    if (simulation.SimView.empty()) return;
    if (simulation.SimCircuit < 0 || simulation.SimCircuit >= SimCircuitCount) return;
    simulation.SimButtonDown = 0;
    editor.form.pointer.Pointer = MousePointer::Default;
    for (const HotRectangle& place : HotRectangles) {
        if (place.circuit != simulation.SimCircuit) continue;
        if (x < place.left || x > place.right || y < place.top || y > place.bottom) continue;
        editor.form.pointer.Pointer = MousePointer::Hand;
        simulation.SimDevice = place.device;
    }
}

// Where no circuit is loaded, the drawing is the user's.
void SimPress(Simulation& simulation, Editor& editor) {
    if (simulation.SimView.empty()) return;
    simulation.SimButtonDown = 1;
    step(simulation, editor, SimEvent::Press);
}

void SimRelease(Simulation& simulation, Editor& editor) {
    if (simulation.SimView.empty()) return;
    simulation.SimButtonDown = 0;
    step(simulation, editor, SimEvent::Release);
}

void Timer1_Timer(Simulation& simulation, Editor& editor) {
    step(simulation, editor, SimEvent::Tick);
    enableTimer(simulation, editor, false);
}

void cmdVoltage_Click(Simulation& simulation, Editor& editor) {
    chooseView(simulation, editor, Voltage);
}

void cmdCurrent_Click(Simulation& simulation, Editor& editor) {
    chooseView(simulation, editor, Current);
}

void cmdTimer_Click(Simulation& simulation, Editor& editor) {
    try {
        simulation.SimTimerInterval = toLong(simulation.txtTimer.Text);
    } catch (const Failure& failure) {
        if (failure.number == failure::Overflow)
            editor.form.lblMessage.Caption = "The time period is too long.";
        return;
    }
    simulation.Timer1.Interval = simulation.SimTimerInterval;
    runTimer(simulation, editor);
    editor.form.lblMessage.Caption =
        simulation.SimTimerInterval > 0
            ? "The timer T1 takes " + longText(simulation.SimTimerInterval) + " milliseconds."
            : "The time period is 0: the timer T1 never expires.";
}

void txtTimer_KeyDown(Simulation& simulation, Editor& editor, Short keyCode) {
    if (keyCode == EnterKey) cmdTimer_Click(simulation, editor);
}

bool txtTimer_KeyPress(Short keyAscii) {
    return numberKeyAllowed(keyAscii);
}

std::span<const SimRow> simulationTable() {
    return Table;
}

std::string_view simulationPrefix(Short circuit, std::string_view view) {
    const auto& prefixes = view == Current ? CurrentPrefixes : VoltagePrefixes;
    return prefixes[circuit];
}

}  // namespace ladrix
