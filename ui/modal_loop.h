// The message loop of a modal dialog.
#pragma once

#include <windows.h>

namespace qz {

/// Runs a dialog that CreateDialogParamW made the way the system runs those of DialogBoxParamW, which makes a
/// dialog and runs it in one call: what is to hold while the dialog is made would hold for everything
/// meanwhile.
class ModalLoop {
  public:
    /// Disables the top-level window that `owner` (which may be null) stands in.
    explicit ModalLoop(HWND owner) noexcept;
    /// Enables it, unless End did or it was disabled before.
    ~ModalLoop() { EnableOwner(); }
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

    /// Shows the dialog and handles the thread's messages until End; gives its result. 0 when the dialog is
    /// destroyed or the program is to end, which its own loop is told again. The window is left to the
    /// caller.
    INT_PTR Run(HWND dialog);
    /// Hides the dialog and gives the owner back its input; the first result counts. May come before Run, and
    /// from any of the thread's messages.
    void End(HWND dialog, INT_PTR result) noexcept;

  private:
    void Handle(HWND dialog, MSG& message);
    void TellIdle(HWND dialog) const noexcept;
    void EnableOwner() noexcept;

    HWND owner_ = nullptr;  ///< Null when there is none to enable.
    bool ended_ = false;
    INT_PTR result_ = 0;
};

}  // namespace qz
