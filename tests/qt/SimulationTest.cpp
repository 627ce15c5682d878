// The circuit simulation in the real window: started from its menu, worked by the pointer, left
// again; what is checked is what a person would see.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolButton>

#include "ProgramOnQt.h"
#include "qt/MainWindow.h"
#include "qt/QtText.h"
#include "qt/Theme.h"

namespace ladrix {
namespace {

class SimulationWindow : public test::ProgramOnQt {
  protected:
    void SetUp() override {
        ASSERT_NO_FATAL_FAILURE(startAnew());
        program->editor.AppFilePath = LADRIX_DATA "/";
        window = std::make_unique<MainWindow>(*program, canvas);
        window->resize(1024, 720);
        window->show();
        settle();
    }

    static void settle() {
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
    }
    template <class Widget = QWidget>
    Widget& find(const char* name) {
        auto* widget = window->findChild<Widget*>(name);
        if (!widget) throw std::logic_error(std::string("no widget ") + name);
        return *widget;
    }
    void choose(const char* entry) {
        find<QAction>(entry).trigger();
        settle();
    }
    void mouse(QEvent::Type type, double x, double y, Qt::MouseButton button) {
        QWidget& page = window->canvas();
        const QPointF at = window->canvas().pixelOf(static_cast<Single>(x), static_cast<Single>(y));
        const bool held = type == QEvent::MouseButtonPress;
        QMouseEvent event(type, at, page.mapToGlobal(at), button,
                          held ? Qt::MouseButtons(button) : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&page, &event);
        settle();
    }
    void move(double x, double y) { mouse(QEvent::MouseMove, x, y, Qt::NoButton); }
    void press() { mouse(QEvent::MouseButtonPress, 4.25, 0.75, Qt::LeftButton); }
    void release() { mouse(QEvent::MouseButtonRelease, 4.25, 0.75, Qt::LeftButton); }
    QColor shownAt(double x, double y) {
        QWidget& page = window->canvas();
        const QPointF at = window->canvas().pixelOf(static_cast<Single>(x), static_cast<Single>(y));
        return page.grab().toImage().pixelColor(at.toPoint());
    }
    // Beside the name in the coil of CR1, and beside the one in the second lamp.
    bool relayIsLit() { return shownAt(6.25, 0.7) == theme::color(RGB(255, 212, 96)); }
    bool lampIsLit() { return shownAt(6.25, 4.13) == theme::color(RGB(255, 212, 96)); }

    std::unique_ptr<MainWindow> window;
};

TEST_F(SimulationWindow, IsWorkedByThePointerAndTheTimer) {
    const int top = find("picFrame").mapTo(window.get(), QPoint()).y();
    choose("mnuSimCircuit1");
    EXPECT_FALSE(find("picTop").isVisible());
    ASSERT_TRUE(find("picSimulation").isVisible());
    EXPECT_EQ(find("picSimulation").height(), 28);
    EXPECT_EQ(find("picSimulation").width(), find("picFrame").width());
    EXPECT_LT(find("picFrame").mapTo(window.get(), QPoint()).y(), top);
    EXPECT_TRUE(window->palette().buttonRect(3).isEmpty());
    EXPECT_TRUE(window->windowTitle().endsWith("V_Demo_2_Off.els"));
    EXPECT_FALSE(relayIsLit());

    EXPECT_EQ(window->canvas().cursor().shape(), Qt::ArrowCursor);
    move(4.25, 0.75);
    EXPECT_EQ(window->canvas().cursor().shape(), Qt::BitmapCursor);
    press();
    EXPECT_TRUE(relayIsLit());
    release();
    EXPECT_TRUE(relayIsLit() && !lampIsLit());
    EXPECT_EQ(window->canvas().cursor().shape(), Qt::BitmapCursor);
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
    choose("mnuSimCircuit1");
    auto& field = find<QLineEdit>("txtTimer");
    EXPECT_EQ(field.text(), "5000");
    field.clear();
    field.setFocus();
    for (const QChar key : QStringLiteral("7x0-0\r")) {
        QKeyEvent event(QEvent::KeyPress, key == '\r' ? Qt::Key_Return : Qt::Key_unknown,
                        Qt::NoModifier, QString(key));
        QCoreApplication::sendEvent(&field, &event);
    }
    settle();
    EXPECT_EQ(field.text(), "700");
    EXPECT_EQ(program->simulation.Timer1.Interval, 700);
}

TEST_F(SimulationWindow, FitsItsPanelAndIsLeftByTheMenuAlone) {
    choose("mnuSimCircuit0");
    QWidget& panel = find("picSimulation");
    for (const QWidget* child : panel.findChildren<QWidget*>()) {
        EXPECT_TRUE(panel.rect().contains(child->geometry())) << qPrintable(child->objectName());
        EXPECT_GE(child->width(), child->minimumSizeHint().width())
            << qPrintable(child->objectName());
    }
    for (const char* entry : {"mnuFileNew", "mnuEditUndo", "mnuEditDelete", "mnuLibIEC"})
        EXPECT_FALSE(find<QAction>(entry).isEnabled()) << entry;
    EXPECT_TRUE(find<QAction>("mnuSimCircuit0").isChecked());
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&window->canvas(), &escape);
    settle();
    EXPECT_TRUE(panel.isVisible());
    choose("mnuModeNormal");
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(find("picTop").isVisible() && find("VScroll1").isVisible());
    EXPECT_FALSE(window->palette().buttonRect(3).isEmpty());
    EXPECT_TRUE(find<QAction>("mnuFileNew").isEnabled());
    EXPECT_TRUE(find<QAction>("mnuModeNormal").isChecked());
    EXPECT_FALSE(find<QAction>("mnuSimCircuit0").isChecked());
}

}  // namespace
}  // namespace ladrix
