// One child window of the status bar: a button, an entry field or a text.
#pragma once

#include "panes/status/status_layout.h"
#include "ui/child_window.h"

#include <string>

namespace qz {

/// Sent to the bar when Enter or Escape (wParam) is pressed in an entry field; lParam is the field.
inline constexpr UINT entryKeyMessage = WM_APP + 0x110;

/// The id of a field's window, as WM_COMMAND and WM_DRAWITEM name it, and back.
constexpr int ChildId(StatusField field) { return static_cast<int>(field) + 1; }
constexpr StatusField FieldOfChild(int id) { return static_cast<StatusField>(id - 1); }

class StatusFieldWindow final : public ChildWindow {
  public:
    /// Makes the window, hidden. Throws when the system refuses.
    void CreateFor(StatusField field, HWND bar);

    std::wstring Text() const;
    /// Does nothing, and paints nothing, when the window has that text.
    void SetText(const std::wstring& text) const;
    void SetEnabled(bool enabled) const;
    /// Moves and shows the window; an empty place hides it.
    void Place(const Rect& place) const;
    bool TakesFocus() const noexcept;

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    StatusField field_ = StatusField::PageSize;
};

}  // namespace qz
