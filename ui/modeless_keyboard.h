// The keyboard of a modeless dialog in somebody else's program.
#pragma once

#include <windows.h>

namespace qz {

/// While it lives, keys pressed in a modeless dialog of this thread work as in any dialog (Tab, arrows,
/// mnemonics, Return, Escape), although the program's message loop knows nothing of the dialog.
class ModelessKeyboard {
  public:
    /// Throws when the system refuses. The dialog outlives it.
    explicit ModelessKeyboard(HWND dialog);
    ~ModelessKeyboard();
    ModelessKeyboard(const ModelessKeyboard&) = delete;
    ModelessKeyboard& operator=(const ModelessKeyboard&) = delete;

  private:
    static LRESULT CALLBACK OnMessage(int code, WPARAM removed, LPARAM message) noexcept;

    HWND dialog_;
    HHOOK hook_;
    ModelessKeyboard* next_;  ///< Of the same thread.
};

}  // namespace qz
