// The list of the events that the panes' controls have raised.
#pragma once

#include "sample/container/layout.h"

#include <windows.h>

#include <string>

namespace qz {

/// Numbered lines in a list that scrolls, the newest at its end and in sight.
class EventLog {
  public:
    /// How many lines are kept; older ones go.
    static constexpr int capacity = 500;

    /// Throws when the system refuses.
    void Create(HWND parent);
    HWND Handle() const noexcept { return handle_; }

    /// `font` is not owned.
    void SetFont(HFONT font) noexcept;
    void Place(const Area& area) noexcept;
    bool Shown() const noexcept { return shown_; }
    void Show(bool shown) noexcept;

    void Add(const std::wstring& line);

  private:
    int Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const noexcept;

    HWND handle_ = nullptr;  ///< Goes with its parent.
    bool shown_ = true;
    unsigned added_ = 0;
};

}  // namespace qz
