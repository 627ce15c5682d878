// The circuit simulation driven by its pointer, its buttons and its timer, on the shipped drawings.
#include "simulation/Simulation.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "canvas/gestures/Keys.h"
#include "canvas/gestures/Pointer.h"
#include "canvas/tools/PaletteButtons.h"
#include "canvas/view/Zoom.h"
#include "support/FakePlatform.h"

namespace ladrix::test {
namespace {

constexpr Menu Closed[] = {Menu::mnuEdit,   Menu::mnuFile,      Menu::mnuInsert,  Menu::mnuAdmin,
                           Menu::mnuLayout, Menu::mnuLibraries, Menu::mnuUOptions};

struct SimulationTest : testing::Test {
    FakePlatform machine;
    Editor editor{machine.platform};
    Simulation simulation;

    SimulationTest() {
        editor.AppFilePath = LADRIX_DATA "/";
        editor.drawing.TempFolder = machine.folder / "program/";
        editor.drawing.CurrentFolder = machine.folder / "documents/";
        LoadDeviceButtons(editor);
        LoadLibraryButtons(editor, Library::NEMA);
        connectSimulation(simulation, editor);
    }

    void start(Short circuit) { mnuSimCircuit_Click(simulation, editor, circuit); }
    void move(double x, double y) {
        picLX_MouseMove(editor, 0, 0, static_cast<Single>(x), static_cast<Single>(y));
    }
    void press() { picLX_MouseDown(editor, LeftButton, 0, 8, 8); }
    void release() { picLX_MouseUp(editor, LeftButton, 0, 8, 8); }
    const std::string& shown() const { return editor.drawing.CurrentFileName; }
    bool ticking() const { return machine.timers.running(1); }
};

// What is to follow, written out for itself.
struct Expected {
    std::string file, state;
    int timer = 0;  // 1 on, -1 off
};

Expected seal(SimEvent event, const std::string& device, const std::string& state) {
    const bool on = state == "2ON";
    if (event == SimEvent::Tick || device.empty()) return {};
    if (event == SimEvent::Press) {
        if (device == "Start1" || device == "Stop1")
            return {device + (on ? ".CR2.On.els" : ".els"), state};
        return {device + ".els", state};
    }
    if (device == "Start2") return {"CR2.On.els", "2ON"};
    if (device == "Stop2" || !on) return {"Off.els", ""};
    return {"CR2.On.els", state};
}

Expected onDelay(SimEvent event, const std::string& device, const std::string& state) {
    const bool expired = state == "TimerExpired";
    if (event == SimEvent::Tick) return {"T1.Expired.els", "TimerExpired", -1};
    if (device == "Stop1")
        return event == SimEvent::Press ? Expected{"Stop.els", state, -1} : Expected{"Off.els", ""};
    if (device != "Start1") return {};
    if (expired)
        return {event == SimEvent::Press ? "Start.T1.Expired.els" : "T1.Expired.els", state};
    return event == SimEvent::Press ? Expected{"Start.els", state, 1}
                                    : Expected{"T1.Started.els", ""};
}

Expected offDelay(SimEvent event, const std::string& device, const std::string& state) {
    const bool expired = state == "TimerExpired";
    if (event == SimEvent::Tick) return {"Off.els", "TimerExpired", -1};
    if (device == "Start1")
        return event == SimEvent::Press ? Expected{"Start.els", state}
                                        : Expected{"T1.Started.els", "TimerOn"};
    if (device != "Stop1") return {};
    if (event == SimEvent::Press)
        return expired ? Expected{"Stop.Off.els", state} : Expected{"Stop.els", state, 1};
    return expired ? Expected{"Off.els", ""} : Expected{"T1.Stopped.els", state};
}

TEST_F(SimulationTest, FollowsItsTablesFromEveryStateInBothViews) {
    static constexpr Expected (*Circuits[])(SimEvent, const std::string&, const std::string&) = {
        seal, onDelay, offDelay};
    int steps = 0;
    for (Short circuit = 0; circuit < SimCircuitCount; ++circuit)
        for (const std::string view : {"V", "C"})
            for (const std::string device : {"", "Start1", "Stop1", "Start2", "Stop2"})
                for (const std::string state : {"", "2ON", "TimerExpired", "TimerOn"})
                    for (const bool running : {false, true})
                        for (const SimEvent event :
                             {SimEvent::Press, SimEvent::Release, SimEvent::Tick}) {
                            start(circuit);
                            if (view == "C") cmdCurrent_Click(simulation, editor);
                            simulation.SimDevice = device;
                            simulation.SimState = state;
                            const std::string before = shown();
                            simulation.Timer1.Enabled = running;
                            if (event == SimEvent::Press) press();
                            if (event == SimEvent::Release) release();
                            if (event == SimEvent::Tick) Timer1_Timer(simulation, editor);
                            const Expected then = Circuits[circuit](event, device, state);
                            SCOPED_TRACE(std::to_string(circuit) + view + ' ' + device + ' ' +
                                         state + " -> " + then.file);
                            const std::string prefix =
                                view + "_Demo_" + std::to_string(circuit + 1) + "_";
                            EXPECT_EQ(shown(), then.file.empty() ? before : prefix + then.file);
                            EXPECT_EQ(simulation.SimState, then.file.empty() ? state : then.state);
                            const bool off = then.timer < 0 || event == SimEvent::Tick;
                            EXPECT_EQ(simulation.Timer1.Enabled,
                                      !off && (running || then.timer > 0));
                            EXPECT_GT(editor.drawing.devices.DeviceCount, 20);
                            EXPECT_EQ(simulation.SimButtonDown, event == SimEvent::Press ? 1 : 0);
                            simulation.SimDevice.clear();
                            ++steps;
                        }
    EXPECT_EQ(steps, 720);
    EXPECT_TRUE(machine.reports.empty());
}

TEST_F(SimulationTest, FindsTheDevicesAtTheBoundsOfTheirPlaces) {
    struct {
        Short circuit;
        double x, y;
        const char* device;
    } const places[] = {
        {0, 4.5, 0.5, "Start1"}, {0, 5, 1, "Start1"},     {0, 4.75, 3.0, "Start2"},
        {0, 2, 0.75, "Stop1"},   {0, 2.5, 3.5, "Stop2"},  {1, 4, 0.75, "Start1"},
        {1, 4.5, 1, "Start1"},   {1, 2.25, 0.5, "Stop1"}, {2, 4.25, 0.5, "Start1"},
        {2, 2, 1, "Stop1"},
    };
    for (const auto& place : places) {
        start(place.circuit);
        move(place.x, place.y);
        EXPECT_EQ(simulation.SimDevice, place.device);
        EXPECT_EQ(editor.form.pointer.Pointer, MousePointer::Hand);
        for (const double beside : {1.97, 2.53, 3.97, 5.03}) {
            move(beside, 0.49);
            EXPECT_EQ(editor.form.pointer.Pointer, MousePointer::Default);
            EXPECT_EQ(simulation.SimDevice, place.device) << "it stays the last one touched";
        }
    }
    start(1);
    move(4.75, 0.75);
    move(2.25, 3.25);
    EXPECT_EQ(editor.form.pointer.Pointer, MousePointer::Default) << "places of circuit 0";
}

TEST_F(SimulationTest, LetsTheTimerRunOutInTheHandAndAfterIt) {
    start(1);
    move(4.25, 0.75);
    press();
    EXPECT_EQ(shown(), "V_Demo_2_Start.els");
    machine.timers.advance(4999);
    EXPECT_EQ(shown(), "V_Demo_2_Start.els");
    machine.timers.advance(1);
    EXPECT_EQ(shown(), "V_Demo_2_T1.Expired.els");
    EXPECT_EQ(editor.form.pointer.Pointer, MousePointer::Hand) << "the pointer has not moved";
    release();
    EXPECT_EQ(shown(), "V_Demo_2_T1.Expired.els");
    press();
    EXPECT_EQ(shown(), "V_Demo_2_Start.T1.Expired.els");
    EXPECT_FALSE(ticking());

    start(1);
    press();
    release();
    machine.timers.advance(3000);
    press();  // does not begin the time anew
    release();
    EXPECT_EQ(shown(), "V_Demo_2_T1.Started.els");
    machine.timers.advance(2000);
    EXPECT_EQ(shown(), "V_Demo_2_T1.Expired.els");

    start(1);
    press();
    move(2.25, 0.75);
    press();
    machine.timers.advance(60000);
    EXPECT_EQ(shown(), "V_Demo_2_Stop.els") << "no tick after a stop";
}

TEST_F(SimulationTest, TakesTheTypedPeriodAtOnceAndNoNonsense) {
    struct {
        const char* typed;
        Long interval;
    } const entries[] = {{"1200", 1200}, {"", 1200},   {"1.2.3", 1200},
                         {".", 1200},    {"0", 0},     {"99999999999999999999", 0},
                         {"2,5", 2},     {"250", 250}, {"2147483647", 2147483647}};
    start(1);
    EXPECT_EQ(simulation.txtTimer.Text, "5000");
    move(4.25, 0.75);
    press();
    for (const auto& entry : entries) {
        simulation.txtTimer.Text = entry.typed;
        txtTimer_KeyDown(simulation, editor, 13);
        EXPECT_EQ(simulation.SimTimerInterval, entry.interval) << entry.typed;
        EXPECT_EQ(ticking(), entry.interval > 0);
        if (entry.interval > 0) {
            EXPECT_EQ(machine.timers.millisecondsLeft(1), entry.interval);
        }
    }
    for (const char key : std::string("0123456789,.\b"))
        EXPECT_TRUE(txtTimer_KeyPress(static_cast<Short>(key)));
    for (const char key : std::string("-+eE /\x0d"))
        EXPECT_FALSE(txtTimer_KeyPress(static_cast<Short>(key)));
}

TEST_F(SimulationTest, SwitchesTheViewToTheStateOfRest) {
    start(0);
    cmdCurrent_Click(simulation, editor);
    EXPECT_EQ(shown(), "V_Demo_1_Off.els") << "no device touched yet";
    move(4.75, 3.25);
    press();
    release();
    EXPECT_EQ(shown(), "C_Demo_1_CR2.On.els");
    cmdVoltage_Click(simulation, editor);
    EXPECT_EQ(shown(), "V_Demo_1_CR2.On.els");
    EXPECT_EQ(simulation.SimView, "Voltage");
    EXPECT_EQ(simulation.cmdVoltage.BackColor, Cyan);
    EXPECT_EQ(simulation.cmdCurrent.BackColor, ButtonFace);
    start(1);
    cmdCurrent_Click(simulation, editor);
    EXPECT_EQ(editor.form.menu[Menu::mnuModeSimulation].Caption, "Circuit &Simulation: Current");
    EXPECT_EQ(shown(), "V_Demo_2_Off.els") << "Start2 is no device of this circuit";
}

TEST_F(SimulationTest, ClosesTheEditorWhileItRunsAndOpensItAgain) {
    editor.ZoomStepCount = 0;
    ZoomIn(editor);
    const auto visible = [this] {
        const auto& buttons = editor.form.cmdSym;
        return std::count_if(buttons.begin(), buttons.end(),
                             [](const PaletteButton& button) { return button.Visible; });
    };
    const auto before = visible();
    ASSERT_GT(before, 80);
    start(2);
    Form_KeyDown(editor, key::Escape, 0);
    EXPECT_TRUE(editor.SimulationMode) << "Esc does not leave it";
    EXPECT_TRUE(editor.form.lblMessage.Caption.starts_with("Simulation:")) << "nor says so";
    EXPECT_EQ(visible(), 0);
    EXPECT_FALSE(editor.form.picTop.Visible);
    EXPECT_TRUE(simulation.picSimulation.Visible && simulation.lblSimColor[3].Visible);
    EXPECT_TRUE(editor.form.menu[Menu::mnuSimCircuit2].Checked);
    EXPECT_FALSE(editor.form.menu[Menu::mnuModeNormal].Checked);
    EXPECT_EQ(editor.ZoomFactor, 1) << "the devices are in view";
    for (const Menu entry : Closed)
        EXPECT_FALSE(editor.form.menu[entry].Enabled);
    move(2.25, 0.75);
    press();
    release();
    ASSERT_TRUE(ticking());

    LeaveSimulation(simulation, editor);
    EXPECT_FALSE(editor.SimulationMode || simulation.picSimulation.Visible ||
                 simulation.lblSimColor[0].Visible);
    EXPECT_TRUE(editor.form.picTop.Visible && editor.form.VScroll1.Visible);
    EXPECT_EQ(visible(), before);
    for (const Menu entry : Closed)
        EXPECT_TRUE(editor.form.menu[entry].Enabled);
    EXPECT_FALSE(editor.form.menu[Menu::mnuSimCircuit2].Checked);
    const std::string last = shown();
    machine.timers.advance(60000);
    EXPECT_EQ(shown(), last) << "no tick takes the user's drawing away";
    EXPECT_GT(editor.drawing.devices.DeviceCount, 20) << "the drawing stays";
}

TEST_F(SimulationTest, KeepsTheViewFromStateToState) {
    start(0);
    zoomByWheel(editor, ZoomStep::In, 4.75f, 0.75f);
    const Single left = editor.ScaleLeft, zoom = editor.ZoomFactor;
    ASSERT_GT(left, 0);
    move(4.75, 0.75);
    press();
    EXPECT_EQ(shown(), "V_Demo_1_Start1.els");
    EXPECT_EQ(editor.ScaleLeft, left);
    EXPECT_EQ(editor.ZoomFactor, zoom);
}

TEST_F(SimulationTest, OffersUnsavedWorkForSavingAndTouchesNothingAfterCancel) {
    start(0);
    move(4.75, 0.75);
    LeaveSimulation(simulation, editor);
    editor.drawing.DrawingChanged = true;
    const std::string mine = shown();
    machine.dialogs.answers = {Answer::Cancel};
    start(1);
    EXPECT_TRUE(editor.SimulationMode && editor.drawing.DrawingChanged);
    EXPECT_FALSE(simulation.picSimulation.Visible);
    press();
    release();
    cmdCurrent_Click(simulation, editor);
    EXPECT_EQ(shown(), mine);
    LeaveSimulation(simulation, editor);
    machine.dialogs.answers = {Answer::No};
    start(1);
    EXPECT_EQ(shown(), "V_Demo_2_Off.els");
    EXPECT_EQ(machine.dialogs.boxes.size(), 2u);
}

TEST_F(SimulationTest, DoesNotStartWhileACopyWaitsForItsPoint) {
    editor.drawing.DrawingChanged = true;
    editor.gesture.CopyStage = 1;
    start(0);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1u);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "New drawing not possible. Copy point not selected.");
    EXPECT_FALSE(editor.SimulationMode || simulation.lblSimColor[0].Visible);
    EXPECT_TRUE(editor.form.menu[Menu::mnuFile].Enabled);
}

TEST_F(SimulationTest, GoesOnWithoutAPictureThatIsMissing) {
    start(0);
    const Short devices = editor.drawing.devices.DeviceCount;
    move(4.75, 3.25);
    machine.files.fail(Operation::Read, {failure::FileNotFound, "gone"}, "Start2");
    press();
    ASSERT_EQ(machine.reports.size(), 1u);
    EXPECT_EQ(editor.drawing.devices.DeviceCount, devices);
    EXPECT_EQ(shown(), "") << "a save must not give the picture the missing name";
    release();
    EXPECT_EQ(shown(), "V_Demo_1_CR2.On.els");
    EXPECT_EQ(simulation.SimState, "2ON");
}

TEST_F(SimulationTest, TakesADoubleClickForAPressAndTheRightButtonForNothing) {
    start(1);
    move(4.25, 0.75);
    picLX_MouseDown(editor, RightButton, 0, 4.25f, 0.75f);
    picLX_MouseUp(editor, RightButton, 0, 4.25f, 0.75f);
    EXPECT_EQ(shown(), "V_Demo_2_Off.els");
    EXPECT_TRUE(machine.dialogs.popUps.empty());
    press();
    release();
    picLX_DblClick(editor);
    EXPECT_EQ(shown(), "V_Demo_2_Start.els");
    EXPECT_EQ(editor.gesture.CurrentTool, -1);
}

TEST_F(SimulationTest, DoesNotJoinATemplateToItsPictures) {
    start(0);
    const Short devices = editor.drawing.devices.DeviceCount;
    LeaveSimulation(simulation, editor);
    editor.drawing.TemplateActive = true;
    editor.drawing.TemplateDevices = editor.drawing.DeviceString;
    start(0);
    EXPECT_EQ(editor.drawing.devices.DeviceCount, devices);
    EXPECT_TRUE(editor.drawing.TemplateActive);
}

}  // namespace
}  // namespace ladrix::test
