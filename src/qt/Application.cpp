#include "qt/Application.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <utility>

#include "app/Startup.h"
#include "qt/DescriptionDialog.h"
#include "qt/FavoritesDialog.h"
#include "qt/FileDialog.h"
#include "qt/LayoutDialog.h"
#include "qt/LibManagerDialog.h"
#include "qt/LocalHelp.h"
#include "qt/LogDialog.h"
#include "qt/MainWindow.h"
#include "qt/PreviewDialog.h"
#include "qt/PrinterDialog.h"
#include "qt/PrintersDialog.h"
#include "qt/QtPlatform.h"
#include "qt/RemovedDialog.h"
#include "qt/SymbolDialogs.h"
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

// A form that changes while its own handler runs.
template <class Dialog>
void runShowing(QtPlatform& machine, Program& program, QWidget* window) {
    Dialog dialog(program, window);
    const auto outer = std::exchange(machine.showForm, [&dialog] { dialog.showState(); });
    dialog.run();
    machine.showForm = outer;
}

// A form that another one shows stands before that one.
void runForm(QtPlatform& machine, Program& program, QWidget* window, Form form) {
    if (QWidget* const before = QApplication::activeModalWidget()) window = before;
    switch (form) {
        case Form::frmFile:
            return runShowing<FileDialog>(machine, program, window);
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
        case Form::frmLayout:
            LayoutDialog(program, window).run();
            return;
        case Form::frmPrinter:
            return runShowing<PrinterDialog>(machine, program, window);
        case Form::frmPrinters:
            return runShowing<PrintersDialog>(machine, program, window);
        case Form::frmPreview:
            return runShowing<PreviewDialog>(machine, program, window);
        case Form::frmButtonColor:
            ButtonColorDialog(program, window).run();
            return;
        case Form::frmLibManager:
            LibManagerDialog(program, window).run();
            return;
        case Form::frmRemoved:
            RemovedDialog(program, window).run();
            return;
        case Form::frmUS:
            SaveSymbolDialog(program, window).run();
            return;
        case Form::frmUBRows:
            PaletteRowsDialog(program, window).run();
            return;
        default:
            return;
    }
}

// Where a form has the input to itself its buttons work; else nobody may change what is being
// worked on.
void letEventsRun(const std::function<void()>& showState, QElapsedTimer& sinceLast) {
    constexpr int Interval = 15;  // milliseconds
    if (sinceLast.isValid() && sinceLast.elapsed() < Interval) return;
    showState();
    QCoreApplication::processEvents(QApplication::activeModalWidget()
                                        ? QEventLoop::AllEvents
                                        : QEventLoop::ExcludeUserInputEvents);
    sinceLast.start();
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

// What a person reads who was not asked anything: once for all files, and the run goes on.
void tellNotPut(const QtPlatform& machine) {
    if (machine.shell.notPut.empty()) return;
    machine.platform.ReportError(
        "Some files that come with Ladrix could not be put in place. The next start tries again.",
        asOneFailure(machine.shell.notPut));
}

}  // namespace

void connectPlatform(QtPlatform& machine, Program& program, MainWindow& window) {
    const auto refresh = [&window] { window.refresh(); };
    machine.dialogs.window = &window;
    machine.dialogs.runForm = [&](Form form) { runForm(machine, program, &window, form); };
    auto* const help = new LocalHelp(program, &window);
    machine.dialogs.openForm = [help, &window](Form form) {
        if (form == Form::frmHelp) help->openWindow();
        if (form == Form::frmFind) window.openFind();
    };
    machine.dialogs.popUpMenu = [&](std::string_view menu) { window.popUp(menu); };
    machine.timers.afterExpiry = refresh;
    const auto showAll = [&machine, refresh] {
        refresh();
        if (machine.showForm) machine.showForm();
    };
    machine.dialogs.beforeModal = showAll;
    machine.printers.afterChange = showAll;
    machine.platform.LetEventsRun = [showAll, sinceLast = QElapsedTimer()]() mutable {
        letEventsRun(showAll, sinceLast);
    };
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
    tellNotPut(machine);

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
