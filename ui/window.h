// The thin base of the module's own windows.
#pragma once

#include "com/object.h"
#include "ui/activation.h"

#include <windows.h>

#include <optional>
#include <string>

namespace qz {

/// What to create.
struct WindowOptions {
    HWND parent = nullptr;
    RECT bounds{};  ///< In client pixels of the parent.
    DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN;
    DWORD extendedStyle = 0;
    std::wstring title;
};

/// Puts the text of the thread's IErrorInfo, if there is one, into the debugger's output.
void ShowErrorInDebugger() noexcept;

/// Owns one window of the module's window class and gets its messages. Bound from WM_NCCREATE to
/// WM_NCDESTROY; a window destroyed by its parent unbinds itself. Not movable; used on one thread. A window
/// that may be deleted inside one of its own messages must give its owner in KeepAlive().
class Window {
  public:
    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    /// Destroys a window still there. Its last messages no longer reach the derived class: call Destroy()
    /// earlier to see them.
    virtual ~Window();

    HWND Handle() const noexcept { return handle_; }

    /// Makes the window; throws when the system or the window's own WM_CREATE refuses. There must be none
    /// yet.
    void Create(const WindowOptions& options);
    void Destroy() noexcept;

  protected:
    /// Handles a message; nothing when the system's default handling shall follow. What it throws ends here:
    /// see OnMessageFailed. Creation fails when it throws at WM_NCCREATE or WM_CREATE.
    virtual std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;

    /// Told when OnMessage threw; the thread's IErrorInfo has the text. The default handling follows.
    virtual void OnMessageFailed(UINT, HRESULT) noexcept { ShowErrorInDebugger(); }

    /// The object that this window is a part of; counted for the duration of every message, so that it may be
    /// released inside one.
    virtual ComPtr<IUnknown> KeepAlive() noexcept { return nullptr; }

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT Dispatch(UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    HWND handle_ = nullptr;
    bool going_ = false;  ///< Since WM_DESTROY.
    CallerContext caller_;
};

}  // namespace qz
