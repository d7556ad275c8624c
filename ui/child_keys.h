// Keys of the controls in a dialog that the dialog wants before them.
#pragma once

#include "ui/child_window.h"

#include <memory>
#include <vector>

namespace qz {

/// What a dialog decides about the keys of its controls.
class ChildKeyListener {
  public:
    /// Whether the dialog takes a key of the control: `message` is WM_KEYDOWN or WM_SYSKEYDOWN.
    virtual bool WantsKey(HWND control, UINT message, WPARAM key) = 0;
    /// The key was pressed. May end the dialog.
    virtual void OnKey(HWND control, UINT message, WPARAM key) = 0;

  protected:
    ~ChildKeyListener() = default;
};

/// Watches the controls below a window. The listener outlives it.
class ChildKeys {
  public:
    explicit ChildKeys(ChildKeyListener& listener) noexcept : listener_(listener) {}

    /// Watches all children that are there now and are not yet watched, and their children, other than
    /// dialogs, which watch their own.
    void Watch(HWND window);

  private:
    class Control;

    bool Watches(HWND window) const noexcept;

    ChildKeyListener& listener_;
    std::vector<std::unique_ptr<ChildWindow>> controls_;
};

}  // namespace qz
