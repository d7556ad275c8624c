// The system's own controls as children of our windows: a tree, an edit field, a button.
#pragma once

#include "com/object.h"
#include "ui/activation.h"

#include <windows.h>

#include <optional>

namespace qz {

/// What to create.
struct ChildOptions {
    const wchar_t* className = L"";
    const wchar_t* text = L"";  ///< Also its name for assistive tools.
    DWORD style = 0;            ///< WS_CHILD and WS_CLIPSIBLINGS are added.
    DWORD extendedStyle = 0;
    int id = 0;
    RECT bounds{};  ///< In client pixels of the parent.
};

/// Makes a child window in the version of the controls that is the module's. Throws when the system refuses.
HWND MakeChild(HWND parent, const ChildOptions& options);

/// Sent to the parent when a child window got (wParam non-zero) or lost the focus; lParam is the other window
/// that lost or gets it. `Control` takes it as its own focus.
inline constexpr UINT childFocusMessage = WM_APP + 0x100;

/// Owns one child window of a class of the system's and sees its messages before it does. Not movable; used
/// on one thread. A child destroyed with its parent unbinds itself.
class ChildWindow {
  public:
    ChildWindow() = default;
    ChildWindow(const ChildWindow&) = delete;
    ChildWindow& operator=(const ChildWindow&) = delete;
    virtual ~ChildWindow() { Destroy(); }

    HWND Handle() const noexcept { return handle_; }
    explicit operator bool() const noexcept { return handle_ != nullptr; }

    /// Throws when the system refuses. There must be none yet.
    void Create(HWND parent, const ChildOptions& options);
    /// Takes over a child window that is there already, such as one of a dialog's template. Several may
    /// attach to one window; the last one sees its messages first.
    void Attach(HWND child);
    void Destroy() noexcept;

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const noexcept {
        return SendMessageW(handle_, message, wParam, lParam);
    }

    /// Sends a message to the window's own class, past OnMessage and whoever else looks at its messages: for
    /// many in a row, as on Wine finding out who looks costs far more than most messages do.
    LRESULT SendToClass(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const noexcept {
        return CallWindowProcW(classProcedure_, handle_, message, wParam, lParam);
    }

  protected:
    /// Handles a message instead of the window; nothing lets it go on. What it throws is shown in the
    /// debugger's output, and the window handles the message.
    virtual std::optional<LRESULT> OnMessage(UINT, WPARAM, LPARAM) { return std::nullopt; }

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                      DWORD_PTR self) noexcept;
    LRESULT Dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    UINT_PTR Id() const noexcept { return reinterpret_cast<UINT_PTR>(this); }

    HWND handle_ = nullptr;
    WNDPROC classProcedure_ = nullptr;
    CallerContext caller_;
};

}  // namespace qz
