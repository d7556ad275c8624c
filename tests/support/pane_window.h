// A control in a window of its own, as its user meets it.
#pragma once

#include "tests/support/control_site.h"

#include <windows.h>

namespace qz {

/// Handles what is queued for this thread, paints included.
void PumpMessages();

/// A frame window with a control active in it, filling it. Ends with the scope, or before by Close().
class PaneWindow {
  public:
    /// Throws when the control does not become active. `at` is on the screen, `size` in pixels.
    PaneWindow(IUnknown* control, SIZE size, POINT at = {0, 0});
    ~PaneWindow() { Close(); }
    PaneWindow(const PaneWindow&) = delete;
    PaneWindow& operator=(const PaneWindow&) = delete;

    /// The control's window; null when it has none.
    HWND Window() const;
    /// The first child of the control's window of that class; null when there is none.
    HWND Child(const wchar_t* className) const {
        return FindWindowExW(Window(), nullptr, className, nullptr);
    }
    HWND Frame() const noexcept { return frame_; }
    ControlSite& Site() const { return *site_.Get(); }
    /// The colour on the screen at a client point of the control.
    COLORREF PixelAt(int x, int y) const;

    /// Takes the control out of its window again and lets it go.
    void Close();

  private:
    HWND frame_ = nullptr;
    ComPtr<ControlSite> site_;
    ComPtr<IOleObject> control_;
};

}  // namespace qz
