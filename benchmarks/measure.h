// Timing on a machine that has other things to do.
#pragma once

#include <functional>

namespace qz::bench {

/// What is timed: one run of it.
using Work = std::function<void()>;

/// A work that uses up what is made ready for it; only `run` is timed.
struct UsingUp {
    Work prepare;
    Work run;
};

/// Microseconds for one run of each.
struct Pair {
    double measured;
    double reference;
};

/// Times two works against each other: the best of several rounds each, the rounds in turn, each of many
/// runs. What is taken is the processor time of this thread: unlike the time on the wall it is much the same
/// while other programs run. Waiting, as for the window system, is not in it.
Pair MeasureBoth(const Work& measured, const Work& reference);
Pair MeasureBoth(const UsingUp& measured, const UsingUp& reference);

}  // namespace qz::bench
