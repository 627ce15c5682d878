// The circuit simulation in the real window: started from its menu, worked by the pointer, left
// again; what is checked is what a person would see.
#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QToolButton>

#include "ProgramOnQt.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {
namespace {

using test::settle;

class SimulationWindow : public test::WindowOnQt {
  protected:
    void SetUp() override {
        start({1024, 720});
        editor().AppFilePath = LADRIX_DATA "/";
    }
    void press() { test::hold(picLX(), at(4.25, 0.75)); }
    void release() { test::release(picLX(), at(4.25, 0.75)); }
    // Beside the name in the coil of CR1, and beside the one in the second lamp.
    bool relayIsLit() { return shownAt(6.25, 0.7) == theme::color(RGB(255, 212, 96)); }
    bool lampIsLit() { return shownAt(6.25, 4.13) == theme::color(RGB(255, 212, 96)); }
};

TEST_F(SimulationWindow, IsWorkedByThePointerAndTheTimer) {
    const int top = find("picFrame").mapTo(window.get(), QPoint()).y();
    trigger("mnuSimCircuit1");
    EXPECT_FALSE(find("picTop").isVisible());
    ASSERT_TRUE(find("picSimulation").isVisible());
    EXPECT_EQ(find("picSimulation").height(), 28);
    EXPECT_EQ(find("picSimulation").width(), find("picFrame").width());
    EXPECT_LT(find("picFrame").mapTo(window.get(), QPoint()).y(), top);
    EXPECT_TRUE(window->palette().buttonRect(3).isEmpty());
    EXPECT_TRUE(window->windowTitle().endsWith("V_Demo_2_Off.els"));
    EXPECT_FALSE(relayIsLit());

    EXPECT_EQ(picLX().cursor().shape(), Qt::ArrowCursor);
    test::move(picLX(), at(4.25, 0.75));
    EXPECT_EQ(picLX().cursor().shape(), Qt::BitmapCursor);
    press();
    EXPECT_TRUE(relayIsLit());
    release();
    EXPECT_TRUE(relayIsLit() && !lampIsLit());
    EXPECT_EQ(picLX().cursor().shape(), Qt::BitmapCursor);
    machine.timers.advance(5000);
    window->refresh();
    settle();
    EXPECT_TRUE(lampIsLit());
    find<QToolButton>("cmdCurrent").click();
    settle();
    EXPECT_TRUE(window->windowTitle().endsWith("C_Demo_2_T1.Expired.els"));
    EXPECT_TRUE(lampIsLit());
}

TEST_F(SimulationWindow, TakesTheTypedPeriodAndLetsNoLetterIn) {
    trigger("mnuSimCircuit1");
    auto& field = find<QLineEdit>("txtTimer");
    EXPECT_EQ(field.text(), "5000");
    field.clear();
    field.setFocus();
    test::type(field, "7x0-0");
    test::press(field, Qt::Key_Return, "\r");
    EXPECT_EQ(field.text(), "700");
    EXPECT_EQ(program->simulation.Timer1.Interval, 700);
}

TEST_F(SimulationWindow, FitsItsPanelAndIsLeftByTheMenuAlone) {
    trigger("mnuSimCircuit0");
    QWidget& panel = find("picSimulation");
    for (const QWidget* child : panel.findChildren<QWidget*>()) {
        EXPECT_TRUE(panel.rect().contains(child->geometry())) << qPrintable(child->objectName());
        EXPECT_GE(child->width(), child->minimumSizeHint().width())
            << qPrintable(child->objectName());
    }
    for (const char* entry : {"mnuFileNew", "mnuEditUndo", "mnuEditDelete", "mnuLibIEC"})
        EXPECT_FALSE(find<QAction>(entry).isEnabled()) << entry;
    EXPECT_TRUE(find<QAction>("mnuSimCircuit0").isChecked());
    test::press(picLX(), Qt::Key_Escape);
    EXPECT_TRUE(panel.isVisible());
    trigger("mnuModeNormal");
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(find("picTop").isVisible() && find("VScroll1").isVisible());
    EXPECT_FALSE(window->palette().buttonRect(3).isEmpty());
    EXPECT_TRUE(find<QAction>("mnuFileNew").isEnabled());
    EXPECT_TRUE(find<QAction>("mnuModeNormal").isChecked());
    EXPECT_FALSE(find<QAction>("mnuSimCircuit0").isChecked());
}

}  // namespace
}  // namespace ladrix
