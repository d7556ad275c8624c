// Counts and log of the calls that the host gets, and the plan of those that it lets fail. Counting is cheap
// enough for benchmarks; lines are made only while the log is on.
#pragma once

#include "sample/host/operations.h"

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace qz::sample {

class CallRecorder {
  public:
    /// To be called at the start of each operation: 0 to go on, else the code it has to fail with.
    int32_t Enter(Operation operation) noexcept {
        ++total_;
        ++counts_[operation.number];
        return faultsPlanned_ ? PlannedFault(operation) : 0;
    }

    bool Logging() const noexcept { return logging_; }
    void SetLogging(bool on) noexcept { logging_ = on; }
    void WriteLine(Operation operation, std::wstring_view arguments);

    uint64_t Total() const noexcept { return total_; }
    uint64_t CountOf(Operation operation) const noexcept { return counts_[operation.number]; }
    const std::vector<std::wstring>& Lines() const noexcept { return lines_; }
    /// Counts to zero, lines away; the plan of faults stays.
    void Clear();

    /// The `number`-th call from now (1: the next) fails with `code`. Several may be planned.
    void FailCall(uint64_t number, int32_t code);
    void FailOperation(Operation operation, int32_t code);
    /// The `number`-th call from now runs `action` first, which does not throw.
    void InterruptCall(uint64_t number, std::function<void()> action);
    void ClearFaults();

  private:
    int32_t PlannedFault(Operation operation) noexcept;

    uint64_t total_ = 0;
    std::array<uint64_t, Operation::count> counts_{};
    bool logging_ = false;
    std::vector<std::wstring> lines_;
    bool faultsPlanned_ = false;
    uint64_t callsSinceFirstPlan_ = 0;
    std::map<uint64_t, int32_t> failingCalls_;
    std::map<size_t, int32_t> failingOperations_;
    uint64_t interruptedCall_ = 0;
    std::function<void()> interruption_;
};

}  // namespace qz::sample
