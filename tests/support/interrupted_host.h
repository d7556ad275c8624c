// A host that calls back in the middle of a component's work.
#pragma once

#include "tests/support/event_recorder.h"
#include "tests/support/host_under_test.h"

#include <gtest/gtest.h>

#include <functional>

namespace qz {

/// Runs a step with `action` inside its first call to the host, then, again, inside its second, ... until one
/// run makes fewer calls; `prepare` comes before each run and `check` after it. Gives the number of calls
/// that were interrupted.
inline long InterruptEachCall(IReferenceHost* host, const std::function<void()>& prepare,
                              const std::function<void()>& step, const std::function<void()>& action,
                              const std::function<void()>& check) {
    const ComPtr<EventRecorder> called = MakeObject<EventRecorder>();
    for (long number = 1; number < 500; ++number) {
        const testing::ScopedTrace trace(__FILE__, __LINE__, "interrupted call " + std::to_string(number));
        prepare();
        called->TakeEvents();
        called->actions[DISPID_VALUE] = action;
        EXPECT_EQ(host->InterruptCall(number, called.Get()), S_OK);
        step();
        host->ClearFaults();
        if (called->TakeEvents().empty()) return number - 1;
        check();
    }
    ADD_FAILURE() << "the step never ended";
    return 0;
}

}  // namespace qz
