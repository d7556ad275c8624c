// A control within one of our own dialogs.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <ole2.h>

namespace qz {

/// Keeps a control active in place in a window. Apartment-threaded. The dialog's own keyboard handling finds
/// the way into the control, which therefore is to answer WM_GETDLGCODE and to be a control parent.
class HostedControl {
  public:
    HostedControl() noexcept;
    HostedControl(const HostedControl&) = delete;
    HostedControl& operator=(const HostedControl&) = delete;
    ~HostedControl();

    /// Shows a control in a rectangle of the parent's client area, in pixels. Throws when it does not become
    /// active. There must be none yet.
    void Open(IUnknown* control, HWND parent, const RECT& bounds);
    /// Takes the control out of the window again; safe to call at any time.
    void Close() noexcept;
    void Move(const RECT& bounds) noexcept;
    HWND Window() const noexcept;

  private:
    class Site;

    ComPtr<Site> site_;
    ComPtr<IOleObject> control_;
};

}  // namespace qz
