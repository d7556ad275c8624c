// Does something while a modal window of the thread is open.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

namespace qz {

/// Runs an action once, a little later, from within the modal window's own message loop. One at a time; ends
/// with the scope. The action is to close the window, or the test hangs.
class DuringModal {
  public:
    explicit DuringModal(std::function<void()> action) {
        action_ = std::move(action);
        timer_ = SetTimer(nullptr, 0, 60, &Run);
    }
    ~DuringModal() {
        KillTimer(nullptr, timer_);
        action_ = nullptr;
    }
    DuringModal(const DuringModal&) = delete;
    DuringModal& operator=(const DuringModal&) = delete;

  private:
    static void CALLBACK Run(HWND, UINT, UINT_PTR timer, DWORD) {
        KillTimer(nullptr, timer);
        if (const auto action = std::exchange(action_, nullptr)) action();
    }

    static inline std::function<void()> action_;
    UINT_PTR timer_;
};

}  // namespace qz
