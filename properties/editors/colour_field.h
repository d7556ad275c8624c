// The text field in the editor of colors.
#pragma once

#include "ui/child_window.h"

namespace qz {

/// Attached to an edit control, lets hexadecimal digits in: typed ones, and texts of at most eight of them
/// that are pasted. What programs put there is the dialog's to check.
class ColourField final : public ChildWindow {
  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace qz
