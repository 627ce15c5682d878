#include "qt/Application.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>
#include <cstdio>

#include "app/Startup.h"
#include "qt/DescriptionDialog.h"
#include "qt/FavoritesDialog.h"
#include "qt/FileDialog.h"
#include "qt/LocalHelp.h"
#include "qt/LogDialog.h"
#include "qt/MainWindow.h"
#include "qt/QtPlatform.h"
#include "qt/TextPropsDialog.h"
#include "qt/Theme.h"

namespace ladrix {

namespace {

constexpr QSize FirstSize{1240, 900};
constexpr QSize WindowFrame{16, 48};  // room for what the window manager adds
constexpr auto ScreenshotOption = "--demo-screenshot";

struct Options {
    QString screenshot;  // "" for an ordinary run
    bool valid = true;
};

Options readOptions(const QStringList& arguments) {
    if (arguments.size() == 1) return {};
    if (arguments.size() == 3 && arguments[1] == ScreenshotOption) return {arguments[2], true};
    return {{}, false};
}

// A form that another one shows stands before that one.
void runForm(Program& program, QWidget* window, Form form) {
    if (QWidget* const before = QApplication::activeModalWidget()) window = before;
    switch (form) {
        case Form::frmFile:
            FileDialog(program, window).run();
            return;
        case Form::frmDesc:
            DescriptionDialog(program, window).run();
            return;
        case Form::frmLog:
            LogDialog(program, window).run();
            return;
        case Form::frmTextProps:
            TextPropsDialog(program, window).run();
            return;
        case Form::frmFavorites:
            FavoritesDialog(program, window).run();
            return;
        default:
            return;
    }
}

// Runs when the event loop is idle, with the window painted. The result is the exit status.
int takeScreenshot(const QString& file, QtPlatform& machine, Program& program, MainWindow& window) {
    runCommand(program, Menu::mnuHelpDemo1);
    window.refresh();
    if (machine.dialogs.refused || program.editor.drawing.devices.DeviceCount == 0) {
        std::fprintf(stderr, "ladrix: the demonstration drawing could not be opened\n");
        return 1;
    }
    QCoreApplication::processEvents();
    if (window.grab().save(file)) return 0;
    std::fprintf(stderr, "ladrix: %s could not be written\n", qPrintable(file));
    return 1;
}

}  // namespace

void connectPlatform(QtPlatform& machine, Program& program, MainWindow& window) {
    const auto refresh = [&window] { window.refresh(); };
    machine.dialogs.window = &window;
    machine.dialogs.beforeModal = refresh;
    machine.dialogs.runForm = [&](Form form) { runForm(program, &window, form); };
    auto* const help = new LocalHelp(program, &window);
    machine.dialogs.openForm = [help](Form form) {
        if (form == Form::frmHelp) help->openWindow();
    };
    machine.dialogs.popUpMenu = [&](std::string_view menu) { window.popUp(menu); };
    machine.timers.afterExpiry = refresh;
    machine.shell.ended = [&program] { program.Ending = true; };
}

int runEditor(int argc, char** argv) {
    // The menus stand in the window, whatever a desktop offers; nobody need be asked.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication application(argc, argv);
    QApplication::setApplicationName("Ladrix");
    QApplication::setDesktopFileName("ladrix");
    const Options options = readOptions(QApplication::arguments());
    if (!options.valid) {
        std::fprintf(stderr, "usage: ladrix [%s FILE]\n", ScreenshotOption);
        return 1;
    }
    theme::apply(application);
    QApplication::setWindowIcon(theme::applicationIcon());

    QtPlatform machine;
    machine.dialogs.unattended = !options.screenshot.isEmpty();
    Program program(machine.platform);
    machine.picLX.showPageOf(program.editor);
    if (!startProgram(program)) return options.screenshot.isEmpty() ? 0 : 1;

    MainWindow window(program, machine.picLX);
    connectPlatform(machine, program, window);
    window.resize(FirstSize.boundedTo(window.screen()->availableSize() - WindowFrame));
    window.show();
    if (!options.screenshot.isEmpty())
        QTimer::singleShot(0, &window, [&] {
            QCoreApplication::exit(takeScreenshot(options.screenshot, machine, program, window));
        });
    return QApplication::exec();
}

}  // namespace ladrix
