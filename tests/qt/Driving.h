// Driving a modal dialog by keys and by the names of its widgets.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <stdexcept>

#include "app/Program.h"

namespace ladrix::test {

inline void ensureApplication() {
    if (QCoreApplication::instance()) return;
    static int count = 1;
    static char name[] = "qt_tests";
    static char* arguments[] = {name, nullptr};
    static QApplication application(count, arguments);
}

inline void settle() {
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

// A window manager takes its time, and may give a window its size in more than one step: it is at
// rest when several looks in a row find it the same.
inline void resizeAndWait(QWidget& window, const QSize& size) {
    window.resize(size);
    QElapsedTimer clock;
    clock.start();
    for (int same = 0; same < 5 && clock.elapsed() < 5000;) {
        QThread::msleep(10);
        settle();
        same = window.size() == size ? same + 1 : 0;
    }
}

inline void press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) {
    QWidget* const target = QApplication::focusWidget();
    ASSERT_TRUE(target) << "nothing has the focus";
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(target, &down);
    QCoreApplication::sendEvent(target, &up);
    settle();
}

inline void type(const QString& text) {
    for (const QChar c : text)
        press(0, QString(c));
}

template <class Widget>
Widget& named(QWidget& window, const char* name) {
    auto* const found = window.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) throw std::logic_error(std::string("no widget ") + name);
    return *found;
}

// Waits until the window has the keyboard, which another one may have had before.
inline void activate(QWidget& window) {
    window.activateWindow();
    const auto ready = [&] {
        return QApplication::activeWindow() == &window && QApplication::focusWidget();
    };
    for (int i = 0; i < 1000 && !ready(); ++i) {
        QThread::msleep(5);
        QCoreApplication::processEvents();
    }
}

// Shows the dialog and acts on it while it is up; closes what the steps left open.
template <class Dialog>
void drive(Program& program, const std::function<void(Dialog&)>& steps) {
    Dialog dialog(program, nullptr);
    QTimer::singleShot(0, &dialog, [&] {
        activate(dialog);
        try {
            steps(dialog);
        } catch (const std::exception& fault) {
            ADD_FAILURE() << fault.what();
        }
        if (dialog.isVisible()) dialog.reject();
    });
    dialog.run();
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace ladrix::test
