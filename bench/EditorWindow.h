// The real program in its real window, with a home of its own that is gone afterwards. On the
// display that there is; on the toolkit's offscreen one where there is none.
#pragma once

#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <stdexcept>

#include "app/Startup.h"
#include "qt/MainWindow.h"
#include "qt/QtPlatform.h"
#include "qt/Theme.h"

namespace ladrix::bench {

inline constexpr QSize WindowSize{1920, 1080};

// Call before the application is made.
inline void chooseDisplay() {
    if (!qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return;
    std::printf("No display: measured on the toolkit's offscreen platform.\n");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

// A home in a temporary folder, for this process and those that it starts.
class TemporaryHome {
  public:
    TemporaryHome() {
        if (!folder_.isValid()) throw std::runtime_error("no temporary folder");
        const QByteArray path = folder_.path().toLocal8Bit();
        for (const char* name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qputenv(name, path);
    }

  private:
    QTemporaryDir folder_;
};

struct EditorWindow {
    EditorWindow(int& argc, char** argv) : application(argc, argv), program(machine.platform) {
        theme::apply(application);
        machine.dialogs.unattended = true;
        machine.platform.screen.Width = 15.0f * WindowSize.width();
        machine.platform.screen.Height = 15.0f * WindowSize.height();
        machine.picLX.showPageOf(program.editor);
        if (!startProgram(program)) throw std::runtime_error("the program does not start");
        window = std::make_unique<MainWindow>(program, machine.picLX);
        window->resize(WindowSize);
        window->show();
        showAll();
    }

    // Until the window shows what the state says.
    void showAll() {
        window->refresh();
        QCoreApplication::processEvents();
    }

    Editor& editor() { return program.editor; }

    // What of the page the canvas shows, in inches.
    double visibleWidth() { return (window->canvas().width() - 2.0 * QtCanvas::Margin) / 96; }
    double visibleHeight() { return (window->canvas().height() - 2.0 * QtCanvas::Margin) / 96; }

    TemporaryHome home;
    QApplication application;
    QtPlatform machine;
    Program program;
    std::unique_ptr<MainWindow> window;
};

}  // namespace ladrix::bench
