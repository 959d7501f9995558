/// Targets as ratios, which hold on any machine: each line gives what was measured, its target and whether it
/// holds.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <ctime>

#include "tests/support/Allocations.h"

namespace tvok::bench {

inline int missed = 0; ///< Targets so far: what `main` returns.

enum class Wanted { AtMost, AtLeast };

inline void Report(const char* what, double value, Wanted wanted, double target, const char* unit = "times") {
    const bool holds = wanted == Wanted::AtMost ? value <= target : value >= target;
    missed += holds ? 0 : 1;
    std::printf("%-66s %9.2f %-5s %s %6.2f  %s\n", what, value, unit,
                wanted == Wanted::AtMost ? "at most " : "at least", target, holds ? "holds" : "MISSED");
    std::fflush(stdout);
}

/// Processor time that this program has used, in seconds: what else runs on the machine does not count.
inline double Now() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Seconds of one run: the least of several, since others on the machine take from the caches. An action of a
/// few microseconds is repeated `each` times in a run, and the result is the mean of these.
template<class Action>
double Seconds(int runs, Action&& action, int each = 1) {
    double least = 1e9;
    for (int run = 0; run < runs; ++run) {
        const double start = Now();
        for (int i = 0; i < each; ++i) action();
        least = std::min(least, Now() - start);
    }
    return least / each;
}

/// Time of an action against that of another. They take turns in short runs, so that a busy moment does not
/// hit one alone, until neither has become faster for a while.
template<class Action, class Other>
double RatioOf(Action&& action, Other&& other, int each = 1) {
    constexpr int settled = 200;
    constexpr double most = 5; // seconds
    double time = 1e9, otherTime = 1e9;
    const double end = Now() + most;
    for (int since = 0; since < settled && Now() < end; ++since) {
        const double now = Seconds(1, action, each), otherNow = Seconds(1, other, each);
        if (now < time * 0.99 || otherNow < otherTime * 0.99) since = 0;
        time = std::min(time, now);
        otherTime = std::min(otherTime, otherNow);
    }
    return time / otherTime;
}

/// Heap blocks that `action` asks for, also inside the text libraries.
template<class Action>
double AllocationsOf(Action&& action) {
    const auto before = test::Allocations();
    action();
    return static_cast<double>(test::Allocations() - before);
}

} // namespace tvok::bench
