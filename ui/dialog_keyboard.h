// The keyboard's way through a dialog. The system's own walk from control to control does not end when it
// comes to a window with WS_EX_CONTROLPARENT in which nothing can take the focus; its search for the control
// that a character means does not when it starts within a window that is hidden or disabled.
#pragma once

#include <windows.h>

namespace qz {

/// Whether a window is of the system's dialog class.
bool IsDialog(HWND window) noexcept;

/// Where the Tab key leads among what lies in a window, in windows with WS_EX_CONTROLPARENT there too: tab
/// stops that are shown and enabled. Null where there is none.
struct TabStops {
    HWND first, last;
    /// Next to a window that lies among them, or holds one, or lies in one.
    HWND before, after;
};
TabStops FindTabStops(HWND in, HWND from = nullptr) noexcept;

/// Shows or hides a child window, or enables or disables it. What has the focus gives it to the next tab stop
/// of the module's own windows around it first, and its characters on the way are lost. A dialog that is a
/// child keeps WS_EX_CONTROLPARENT only while it has a tab stop.
void ShowChild(HWND child, bool shown) noexcept;
void EnableChild(HWND child, bool enabled) noexcept;

/// Gives a child window WS_EX_CONTROLPARENT while there is a tab stop in it, and takes it away otherwise.
void FitControlParent(HWND window) noexcept;

/// IsDialogMessage for the message loops of dialogs. A key that moves the focus, or a character, is left to
/// the window that it was pressed in, and the answer is false, when there is nothing to walk to or the walk
/// would not end. A hidden or disabled window in the dialog loses the focus first.
bool HandleDialogMessage(HWND dialog, MSG& message) noexcept;

}  // namespace qz
