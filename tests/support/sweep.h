// Failure sweeps: each call that a step makes to the host fails, or is interrupted, once.
#pragma once

#include "tests/support/error_text.h"
#include "tests/support/event_recorder.h"
#include "tests/support/host_under_test.h"

#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace qz {

/// Which calls sweeps look at: the first and about every fourth, others in each test but the same in each
/// run; all of them when QZ_COMPLETE_SWEEPS is set.
inline bool IsSwept(long call) {
    constexpr long stride = 4;
    static const bool complete = std::getenv("QZ_COMPLETE_SWEEPS") != nullptr;
    long offset = 0;
    for (const char letter : std::string(testing::UnitTest::GetInstance()->current_test_info()->name()))
        offset += letter;
    return complete || call == 1 || (call + offset) % stride == 0;
}

/// How many of the calls a sweep looks at; all of them where a run costs next to nothing.
enum class Sample { Some, All };

/// `run(call)` disturbs that call and gives the number of calls made. Ends with a run that makes fewer, after
/// which the last call is looked at too. Gives the number of calls that a run makes which nothing disturbs.
template <class Run>
long Sweep(Run&& run, Sample sample = Sample::Some) {
    constexpr long most = 1000;
    for (long call = 1, last = 0; call < most; ++call) {
        if (sample == Sample::Some && !IsSwept(call)) continue;
        const testing::ScopedTrace trace(__FILE__, __LINE__, "disturbed call " + std::to_string(call));
        const long made = run(call);
        if (made >= call) {
            last = call;
            continue;
        }
        if (made > last) run(made);
        return made;
    }
    ADD_FAILURE() << "the step never ended";
    return 0;
}

struct FailureSweep {
    /// Before each step; its calls are not counted.
    std::function<void()> prepare = [] {};
    /// Fails with `planned` and a text, or succeeds.
    std::function<HRESULT()> step;
    /// After each step, with nothing failing any more; `call` is 0 after the one that nothing disturbed.
    std::function<void(long call, HRESULT result)> check = [](long, HRESULT) {};
    Sample sample = Sample::Some;
};

/// Runs a step again and again, each time with another one of its calls to the host failing. The host is
/// asked for after `prepare`, which may make another one. Gives the number of calls that the step makes.
inline long FailEachCall(const std::function<IReferenceHost*()>& current, const FailureSweep& sweep) {
    return Sweep(
        [&](long call) {
            sweep.prepare();
            IReferenceHost* const host = current();
            SetErrorInfo(0, nullptr);
            const long before = CallCount(host, L"");
            ThrowIfFailed(host->FailCall(call, planned));
            const HRESULT result = sweep.step();
            const long made = CallCount(host, L"") - before;
            host->ClearFaults();
            if (FAILED(result)) {
                EXPECT_EQ(result, planned);
                EXPECT_NE(TakeErrorText(), L"");
            }
            EXPECT_TRUE(SUCCEEDED(result) || made >= call) << "nothing was disturbed";
            sweep.check(made < call ? 0 : call, result);
            return made;
        },
        sweep.sample);
}
inline long FailEachCall(IReferenceHost* host, const FailureSweep& sweep) {
    return FailEachCall([host] { return host; }, sweep);
}

/// Runs a step again and again, each time with another one of its calls to the host interrupted by the same
/// action: `prepare` and `step` before, `check` after it. Gives the number of calls that the step makes.
inline long InterruptEachCall(IReferenceHost* host, const std::function<void()>& prepare,
                              const std::function<void()>& step, const std::function<void()>& action,
                              const std::function<void()>& check) {
    const ComPtr<EventRecorder> called = MakeObject<EventRecorder>();
    called->actions[DISPID_VALUE] = action;
    return Sweep([&](long call) {
        prepare();
        const long before = CallCount(host, L"");
        EXPECT_EQ(host->InterruptCall(call, called.Get()), S_OK);
        step();
        host->ClearFaults();
        const long made = CallCount(host, L"") - before;
        EXPECT_EQ(called->TakeEvents().empty(), made < call);
        if (made >= call) check();
        return made;
    });
}

}  // namespace qz
