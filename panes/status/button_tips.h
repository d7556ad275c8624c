// The tooltips of a pane's buttons.
#pragma once

#include <windows.h>
#include <commctrl.h>

#include <string>

namespace qz {

/// Owns one tooltip window for child windows of a pane, which shows their window texts.
class ButtonTips {
  public:
    ButtonTips() = default;
    ~ButtonTips() { Destroy(); }
    ButtonTips(const ButtonTips&) = delete;
    ButtonTips& operator=(const ButtonTips&) = delete;

    /// Tips are a convenience: a system that gives no window for them leaves the pane without.
    void Create(HWND pane);
    void Destroy() noexcept;
    /// Gives a child its tip, or another one.
    void Set(HWND child, const std::wstring& text) noexcept;

  private:
    HWND pane_ = nullptr;
    HWND tips_ = nullptr;
};

}  // namespace qz
