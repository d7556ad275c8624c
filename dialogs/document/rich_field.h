// A line of rich text as a field of a dialog.
#pragma once

#include "ui/child_window.h"

namespace qz {

/// Leaves the Tab key to the dialog, which some versions of the control take for themselves. The text is
/// plain.
class RichField final : public ChildWindow {
  public:
    /// Takes a control that is empty and lets the user enter at most so many characters.
    void Take(HWND control, int longestText);
    /// Text that begins like formatted text is shown as it is.
    void Show(const wchar_t* text) const noexcept;

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace qz
