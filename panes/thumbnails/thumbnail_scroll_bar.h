// The pane's scroll bar and wheel, and the model's scroll position in step.
#pragma once

#include "panes/thumbnails/thumbnail_model.h"
#include "ui/wheel.h"

#include <windows.h>

namespace qz {

/// Scrolls a model by what the user does and shows its position in a window's vertical scroll bar. The window
/// may be null: then only the model moves. Members return whether the position changed; painting is the
/// caller's.
class ThumbnailScrollBar {
  public:
    explicit ThumbnailScrollBar(ThumbnailModel& model) noexcept : model_(model) {}

    /// A command of WM_VSCROLL.
    bool OnCommand(HWND window, WORD command);
    /// The rotation of WM_MOUSEWHEEL.
    bool OnWheel(HWND window, short delta);
    bool ScrollTo(HWND window, std::int64_t position);
    bool ScrollIntoView(HWND window, std::size_t index);

    /// Shows range, page and position. The bar's coming or going changes the client width, which the window
    /// is told by WM_SIZE.
    void Update(HWND window);

  private:
    void ShowPosition(HWND window) const;

    ThumbnailModel& model_;
    WheelAccumulator wheel_;
};

}  // namespace qz
