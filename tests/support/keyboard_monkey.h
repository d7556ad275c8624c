// Keys pressed at random in the dialogs of this thread.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <random>

namespace qz {

/// Presses keys from within whatever message loop the thread runs, wherever the focus is, and closes dialogs
/// that are not the module's own, such as message boxes. After the last key it closes all dialogs. A program
/// that does not get on any more ends with a backtrace: see crash_guard.h. After each key no window that the
/// keyboard enters may be without anything for it to stop at, and what has the focus must be shown and
/// enabled.
///
/// QZ_MONKEY_KEYS keys with the seed QZ_MONKEY_SEED, both of the environment; 2,000 with the seed 1 by
/// default. One at a time.
class KeyboardMonkey {
  public:
    KeyboardMonkey();
    ~KeyboardMonkey();
    KeyboardMonkey(const KeyboardMonkey&) = delete;
    KeyboardMonkey& operator=(const KeyboardMonkey&) = delete;

    /// One of several that play with the same dialog presses its part of the keys.
    void TakePart(long of) { keysLeft_ = keysLeft_ / of; }
    /// Opens the dialog until all keys are pressed. `open` returns when the dialog has been closed.
    void Play(const std::function<void()>& open);
    /// Does something else between two keys, now and then.
    std::function<void()> distraction;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static DWORD WINAPI Watch(void* self);
    void Step();
    void PressKey(HWND focus);
    void CheckRules(HWND root);
    void Schedule(bool pause);

    unsigned Random(unsigned below) { return static_cast<unsigned>(random_() % below); }

    unsigned seed_;
    std::atomic<long> keysLeft_;
    std::mt19937 random_;
    HWND window_;  ///< Its posted messages are the steps.
    HANDLE thread_ = nullptr, ended_, watcher_;
};

}  // namespace qz
