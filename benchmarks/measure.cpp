#include "benchmarks/measure.h"

#include "com/error.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace qz::bench {

namespace {

/// The system counts a thread's time in steps of 10 to 16 milliseconds.
constexpr double roundMicroseconds = 250'000;
constexpr int rounds = 5;

double ThreadMicroseconds() {
    FILETIME created;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    ThrowLastErrorIf(!GetThreadTimes(GetCurrentThread(), &created, &ended, &kernel, &user),
                     L"The thread's time is not told");
    const auto tenths = [](const FILETIME& time) {
        return static_cast<double>(std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
    };
    return (tenths(kernel) + tenths(user)) / 10;
}

double TimeOf(const Work& work, int repeats) {
    const double start = ThreadMicroseconds();
    for (int i = 0; i < repeats; ++i) work();
    return (ThreadMicroseconds() - start) / repeats;
}

/// Each run ends anywhere in a step of the system's clock, so that the error of the sum stays small.
double TimeOf(const UsingUp& work, int repeats) {
    double sum = 0;
    for (int i = 0; i < repeats; ++i) {
        work.prepare();
        const double start = ThreadMicroseconds();
        work.run();
        sum += ThreadMicroseconds() - start;
    }
    return sum / repeats;
}

/// How often a work is repeated to fill a round.
template <class W>
int RepeatsFor(const W& work) {
    int repeats = 1;
    for (;;) {
        const double round = TimeOf(work, repeats) * repeats;
        if (round >= roundMicroseconds / 4)
            return static_cast<int>(std::ceil(repeats * roundMicroseconds / round));
        repeats *= 2;
    }
}

template <class W>
Pair BestOfRounds(const W& measured, const W& reference) {
    const int measuredRepeats = RepeatsFor(measured);
    const int referenceRepeats = RepeatsFor(reference);
    Pair best{HUGE_VAL, HUGE_VAL};
    for (int round = 0; round < rounds; ++round) {
        best.measured = std::min(best.measured, TimeOf(measured, measuredRepeats));
        best.reference = std::min(best.reference, TimeOf(reference, referenceRepeats));
    }
    return best;
}

}  // namespace

Pair MeasureBoth(const Work& measured, const Work& reference) { return BestOfRounds(measured, reference); }

Pair MeasureBoth(const UsingUp& measured, const UsingUp& reference) {
    return BestOfRounds(measured, reference);
}

}  // namespace qz::bench
