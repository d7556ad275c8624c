#include "sample/host/call_recorder.h"

#include <utility>

namespace qz::sample {

void CallRecorder::WriteLine(Operation operation, std::wstring_view arguments) {
    std::wstring line(NameOf(operation));
    if (!arguments.empty()) line += L" " + std::wstring(arguments);
    lines_.push_back(std::move(line));
}

void CallRecorder::Clear() {
    total_ = 0;
    counts_.fill(0);
    lines_.clear();
}

void CallRecorder::FailCall(uint64_t number, int32_t code) {
    failingCalls_[callsSinceFirstPlan_ + number] = code;
    faultsPlanned_ = true;
}

void CallRecorder::FailOperation(Operation operation, int32_t code) {
    failingOperations_[operation.number] = code;
    faultsPlanned_ = true;
}

void CallRecorder::InterruptCall(uint64_t number, std::function<void()> action) {
    interruptedCall_ = callsSinceFirstPlan_ + number;
    interruption_ = std::move(action);
    faultsPlanned_ = true;
}

void CallRecorder::ClearFaults() {
    failingCalls_.clear();
    failingOperations_.clear();
    interruption_ = nullptr;
    faultsPlanned_ = false;
    callsSinceFirstPlan_ = 0;
}

int32_t CallRecorder::PlannedFault(Operation operation) noexcept {
    const uint64_t number = ++callsSinceFirstPlan_;
    if (interruption_ && number == interruptedCall_) {
        const auto action = std::exchange(interruption_, nullptr);
        action();
    }
    if (const auto call = failingCalls_.find(number); call != failingCalls_.end()) return call->second;
    const auto failing = failingOperations_.find(operation.number);
    return failing == failingOperations_.end() ? 0 : failing->second;
}

}  // namespace qz::sample
