// Inside a program whose start is measured: when its first window is painted and nothing is left
// to do, writes what the start has cost to standard output and ends the program.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <fstream>

#include "Measure.h"

namespace ladrix::bench {

// As written to standard output, in this order. Both clocks are the system's, so that the parent
// can subtract the moment at which it started the program.
struct StartCost {
    double processor = 0, wallClock = 0;  // milliseconds
    double resident = 0;                  // KB
};

class StartProbe final : public QObject {
  public:
    explicit StartProbe(QObject* parent) : QObject(parent) {
        idle_.setSingleShot(true);
        connect(&idle_, &QTimer::timeout, this, [this] { lookAround(); });
        parent->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool ofWindow = watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow();
        if (ofWindow && event->type() == QEvent::Paint) {
            paintedAgain_ = true;
            if (!idle_.isActive()) idle_.start(0);
        }
        return false;
    }

  private:
    // A timer of no interval expires when the queue of events is empty.
    void lookAround() {
        if (std::exchange(paintedAgain_, false)) return idle_.start(0);
        std::printf("%.3f %.3f %.0f\n", ProcessorClock::now(), WallClock::now(), residentKB());
        std::fflush(stdout);
        std::_Exit(0);
    }
    static double residentKB() {
        std::ifstream status("/proc/self/status");
        for (std::string word; status >> word;) {
            double value = 0;
            if (word == "VmRSS:" && status >> value) return value;
        }
        return 0;
    }

    QTimer idle_;
    bool paintedAgain_ = false;
};

// Call at the start of main: the probe comes with the application.
inline void probeStart() {
    qAddPreRoutine([] { new StartProbe(QCoreApplication::instance()); });
}

}  // namespace ladrix::bench
