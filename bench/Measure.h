// What the benches share: the two clocks, medians of runs by turns, and the table in which each
// figure stands beside its measure from the same run.
//
// Speed is no test: a figure over its limit is marked and the bench still ends with 0. It fails
// only if something could not be run.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

namespace ladrix::bench {

// Milliseconds of the processor, all threads and the kernel's share: what else the machine does
// does not count.
struct ProcessorClock {
    static double now() { return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }
};

// Milliseconds on the wall, for what waits for the disk.
struct WallClock {
    static double now() {
        const auto since = std::chrono::steady_clock::now().time_since_epoch();
        return std::chrono::duration<double, std::milli>(since).count();
    }
};

template <class Clock = ProcessorClock, class Work>
double milliseconds(const Work& work) {
    const double start = Clock::now();
    work();
    return Clock::now() - start;
}

inline double median(std::vector<double> values) {
    if (values.empty()) return 0;
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Medians {
    double own = 0, measure = 0;
};

// The two by turns, so that both meet the same machine. The first round warms up and is not kept.
template <class Clock = ProcessorClock, class Own, class Measure>
Medians byTurns(int rounds, const Own& own, const Measure& measure) {
    std::vector<double> owns, measures;
    for (int round = 0; round <= rounds; ++round) {
        const double ofMeasure = milliseconds<Clock>(measure);
        const double ofOwn = milliseconds<Clock>(own);
        if (round == 0) continue;
        measures.push_back(ofMeasure);
        owns.push_back(ofOwn);
    }
    return {median(owns), median(measures)};
}

inline void printHeading(const std::string& title) {
    std::printf("\n%s\n%-44s %10s %10s %8s %7s\n", title.c_str(), "", "ours", "measure", "ratio",
                "limit");
}

// `limit` is the largest ratio allowed; 0: there is none.
inline void printLine(const std::string& name, Medians medians, double limit) {
    const double ratio = medians.own / medians.measure;
    std::printf("%-44s %10.3f %10.3f %8.2f ", name.c_str(), medians.own, medians.measure, ratio);
    if (limit == 0) {
        std::printf("%7s\n", "-");
    } else {
        std::printf("%7.2f %s\n", limit, ratio <= limit ? "ok" : "OVER");
    }
    std::fflush(stdout);
}

}  // namespace ladrix::bench
