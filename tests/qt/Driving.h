// Driving windows and dialogs by pointer, by keys and by the names of their widgets.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <stdexcept>

#include "app/Program.h"

namespace ladrix::test {

inline void settle() {
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

// A window manager takes its time, and may give a window its size in more than one step: it is at
// rest when several looks in a row find it, and the frame in it, the same.
inline void resizeAndWait(QWidget& window, const QSize& size) {
    window.resize(size);
    const auto* const frame = window.findChild<QWidget*>("picFrame");
    QSize former;
    QElapsedTimer clock;
    clock.start();
    for (int same = 0; same < 5 && clock.elapsed() < 5000;) {
        QThread::msleep(10);
        settle();
        const QSize now = frame ? frame->size() : window.size();
        same = window.size() == size && now == former ? same + 1 : 0;
        former = now;
    }
}

inline void press(QWidget& widget, int key, const QString& text = {},
                  Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QKeyEvent up(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &down);
    QCoreApplication::sendEvent(&widget, &up);
    settle();
}

// To the widget that has the focus.
inline void press(int key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {}) {
    ASSERT_TRUE(QApplication::focusWidget()) << "nothing has the focus";
    press(*QApplication::focusWidget(), key, text, modifiers);
}

inline void type(const QString& text) {
    for (const QChar c : text)
        press(0, QString(c));
}
inline void type(QWidget& field, const QString& text) {
    for (const QChar c : text)
        press(field, 0, QString(c));
}

inline void sendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
                      Qt::MouseButtons held) {
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
    settle();
}
inline void move(QWidget& widget, QPointF at, Qt::MouseButtons held = Qt::NoButton) {
    sendMouse(widget, QEvent::MouseMove, at, Qt::NoButton, held);
}
inline void hold(QWidget& widget, QPointF at, Qt::MouseButton button = Qt::LeftButton) {
    sendMouse(widget, QEvent::MouseButtonPress, at, button, button);
}
inline void release(QWidget& widget, QPointF at, Qt::MouseButton button = Qt::LeftButton) {
    sendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
}
inline void click(QWidget& widget, QPointF at = {5, 5}, Qt::MouseButton button = Qt::LeftButton) {
    hold(widget, at, button);
    release(widget, at, button);
}
inline void drag(QWidget& widget, QPointF from, QPointF to) {
    hold(widget, from);
    move(widget, (from + to) / 2, Qt::LeftButton);
    move(widget, to, Qt::LeftButton);
    release(widget, to);
}

// Throws where there is none.
template <class Widget = QWidget>
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
