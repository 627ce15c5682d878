// A program that draws with the toolkit's canvas and fonts; the rest of its machine is the fake
// one.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <memory>

#include "Driving.h"
#include "app/Startup.h"
#include "qt/MainWindow.h"
#include "qt/QtCanvas.h"
#include "qt/QtFonts.h"
#include "qt/Theme.h"
#include "support/FakePlatform.h"

namespace ladrix::test {

// The fixture of windows under test. A window must go before the program: members of a derived
// fixture do.
class ProgramOnQt : public testing::Test {
  protected:
    // A fresh program on the machine as it stands, started.
    void startAnew() {
        theme::apply(*qApp);
        machine.platform.picLX = &canvas;
        machine.platform.fonts = &fonts;
        program = std::make_unique<Program>(machine.platform);
        canvas.showPageOf(program->editor);
        ASSERT_TRUE(startProgram(*program));
    }

    FakePlatform machine;
    QtFonts fonts;
    QtCanvas canvas;
    std::unique_ptr<Program> program;
};

// The main window of a started program.
class WindowOnQt : public ProgramOnQt {
  protected:
    void SetUp() override { start(); }
    void start(QSize size = {1240, 900}) {
        window.reset();
        ASSERT_NO_FATAL_FAILURE(startAnew());
        window = std::make_unique<MainWindow>(*program, canvas);
        open(size.width(), size.height());
    }
    void open(int width, int height) {
        window->show();
        window->activateWindow();
        QApplication::setActiveWindow(window.get());
        resizeAndWait(*window, {width, height});
        ASSERT_EQ(window->size(), QSize(width, height));
    }

    template <class Widget = QWidget>
    Widget& find(const char* name) {
        return named<Widget>(*window, name);
    }
    QString textOf(const char* name) { return find(name).property("text").toString(); }
    void trigger(const char* entry) {
        find<QAction>(entry).trigger();
        settle();
    }

    Editor& editor() { return program->editor; }
    DeviceTable& devices() { return program->editor.drawing.devices; }
    QWidget& picLX() { return window->canvas(); }
    QPointF at(double x, double y) {  // inches of the page
        return window->canvas().pixelOf(static_cast<Single>(x), static_cast<Single>(y));
    }
    void clickPage(double x, double y) {
        move(picLX(), at(x, y));
        click(picLX(), at(x, y));
    }
    // A button of the palette, near its corner, where no fly-out comes up.
    void choose(Short button) {
        const QRect cell = window->palette().buttonRect(button);
        ASSERT_FALSE(cell.isEmpty());
        click(window->palette(), cell.topLeft() + QPoint(2, 2));
    }
    QColor shownAt(double x, double y) {
        return picLX().grab().toImage().pixelColor(at(x, y).toPoint());
    }

    std::unique_ptr<MainWindow> window;
};

}  // namespace ladrix::test
