// What a scope undoes at its end, however it ends.
#pragma once

#include <utility>

namespace qz {

/// Does something at the end of its scope. The action must not throw.
template <class Action>
class ScopeExit {
  public:
    explicit ScopeExit(Action action) noexcept : action_(std::move(action)) {}
    ~ScopeExit() { action_(); }
    ScopeExit(const ScopeExit&) = delete;
    ScopeExit& operator=(const ScopeExit&) = delete;

  private:
    Action action_;
};

/// Gives a variable another value for a scope and its old one back at the end, whatever it holds by then. The
/// variable outlives the scope.
template <class T>
class ScopedValue {
  public:
    template <class U>
    ScopedValue(T& variable, U&& value)
        : variable_(variable), before_(std::exchange(variable, std::forward<U>(value))) {}
    ~ScopedValue() { variable_ = std::move(before_); }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

  private:
    T& variable_;
    T before_;
};

}  // namespace qz
