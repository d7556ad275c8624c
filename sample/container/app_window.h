// The thin base of the program's own windows.
#pragma once

#include <windows.h>

#include <string>

namespace qz {

/// What to create.
struct AppWindowOptions {
    HWND parent = nullptr;
    DWORD style = WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS;
    DWORD extendedStyle = 0;
    RECT bounds{};  ///< Client pixels of the parent, or screen pixels without one.
    HMENU menu = nullptr;
    std::wstring title;
};

/// One window, bound to its object from WM_NCCREATE to WM_NCDESTROY. Not movable; used on one thread. The
/// object must outlive the handling of each of its messages.
class AppWindow {
  public:
    AppWindow() = default;
    AppWindow(const AppWindow&) = delete;
    AppWindow& operator=(const AppWindow&) = delete;
    virtual ~AppWindow();

    HWND Handle() const noexcept { return handle_; }
    RECT ClientRect() const noexcept;

  protected:
    /// Throws when the system refuses.
    void Create(const AppWindowOptions& options);
    void Destroy() noexcept;

    /// Handles a message; what is of no interest goes to Default. It may throw.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    /// Told what OnMessage threw, in words for the user.
    virtual void OnError(const std::wstring& text) noexcept = 0;

    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) noexcept;

  private:
    static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

    HWND handle_ = nullptr;
};

}  // namespace qz
