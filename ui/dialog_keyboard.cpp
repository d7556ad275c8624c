#include "ui/dialog_keyboard.h"

#include "com/module.h"

#include <initializer_list>

namespace qz {

namespace {

bool HasStyle(HWND window, LONG_PTR style) noexcept {
    return (GetWindowLongPtrW(window, GWL_STYLE) & style) != 0;
}

bool IsUsable(HWND window) noexcept { return HasStyle(window, WS_VISIBLE) && !HasStyle(window, WS_DISABLED); }

bool IsEntered(HWND window) noexcept {
    return (GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_CONTROLPARENT) != 0;
}

bool IsOurs(HWND window) noexcept {
    return reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(window, GWLP_HINSTANCE)) == ThisModule();
}

bool Holds(HWND window, HWND other) noexcept { return other && (window == other || IsChild(window, other)); }

/// Goes through the windows in the order of the Tab key.
class StopWalk {
  public:
    explicit StopWalk(HWND from) noexcept : from_(from) {}

    void Visit(HWND parent) noexcept {
        for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
            if (child != from_ && IsUsable(child) && IsEntered(child)) {
                Visit(child);
            } else if (Holds(child, from_)) {
                passed_ = true;
            } else if (IsUsable(child) && HasStyle(child, WS_TABSTOP)) {
                Note(child);
            }
        }
    }

    TabStops stops{};

  private:
    void Note(HWND stop) noexcept {
        if (!stops.first) stops.first = stop;
        stops.last = stop;
        if (!passed_)
            stops.before = stop;
        else if (!stops.after)
            stops.after = stop;
    }

    HWND from_;
    bool passed_ = false;
};

/// The focus is in a window that goes: by the dialog, so that the default button follows.
void MoveFocus(HWND root, HWND target) noexcept {
    if (IsDialog(root) && IsChild(root, target))
        SendMessageW(root, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    else
        SetFocus(target);
}

/// A loop that is not ours would look for the control that a character means from a window that is gone from
/// sight. No message that was sent is let in.
void DropCharacters(HWND typedInto) noexcept {
    for (const UINT character : {WM_CHAR, WM_SYSCHAR}) {
        MSG dropped;
        while (PeekMessageW(&dropped, typedInto, character, character, PM_REMOVE | PM_QS_POSTMESSAGE)) {
        }
    }
}

/// Windows around the module's own are their owners' business.
void LeaveFocus(HWND going) noexcept {
    const HWND focus = GetFocus();
    if (!Holds(going, focus)) return;
    DropCharacters(focus);
    const HWND parent = GetParent(going);
    for (HWND around = parent; around && IsOurs(around); around = GetAncestor(around, GA_PARENT)) {
        const TabStops stops = FindTabStops(around, going);
        const HWND next = stops.after ? stops.after : stops.before;
        if (next) return MoveFocus(GetAncestor(going, GA_ROOT), next);
    }
    // A dialog would look for a control of its own, and there is none.
    SetFocus(parent && !IsDialog(parent) ? parent : nullptr);
}

/// A window that the system's walk enters and does not leave.
bool HasTrap(HWND parent) noexcept {
    for (HWND child = GetWindow(parent, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsUsable(child) || !IsEntered(child)) continue;
        if (!FindTabStops(child).first || HasTrap(child)) return true;
    }
    return false;
}

bool IsCharacter(UINT message) noexcept { return message == WM_CHAR || message == WM_SYSCHAR; }

bool MayWalk(const MSG& message) noexcept {
    if (IsCharacter(message.message)) return true;
    if (message.message != WM_KEYDOWN && message.message != WM_SYSKEYDOWN) return false;
    return message.wParam != VK_RETURN && message.wParam != VK_ESCAPE && message.wParam != VK_CANCEL;
}

/// Whether nothing from the window up to the dialog is hidden or disabled.
bool IsReachable(HWND dialog, HWND window) noexcept {
    while (window && window != dialog && IsUsable(window)) window = GetAncestor(window, GA_PARENT);
    return window == dialog;
}

void FitDialogAround(HWND child) noexcept {
    const HWND parent = GetParent(child);
    if (parent && IsDialog(parent) && IsOurs(parent)) FitControlParent(parent);
}

}  // namespace

bool IsDialog(HWND window) noexcept {
    return GetClassLongPtrW(window, GCW_ATOM) == reinterpret_cast<ULONG_PTR>(WC_DIALOG);
}

TabStops FindTabStops(HWND in, HWND from) noexcept {
    StopWalk walk(from);
    walk.Visit(in);
    return walk.stops;
}

void ShowChild(HWND child, bool shown) noexcept {
    if (!shown) LeaveFocus(child);
    ShowWindow(child, shown ? SW_SHOWNA : SW_HIDE);
    FitDialogAround(child);
}

void EnableChild(HWND child, bool enabled) noexcept {
    if (!enabled) LeaveFocus(child);
    EnableWindow(child, enabled);
    FitDialogAround(child);
}

void FitControlParent(HWND window) noexcept {
    if (!HasStyle(window, WS_CHILD)) return;
    const bool wanted = FindTabStops(window).first != nullptr;
    if (wanted == IsEntered(window)) return;
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
    SetWindowLongPtrW(window, GWL_EXSTYLE,
                      wanted ? style | WS_EX_CONTROLPARENT : style & ~LONG_PTR{WS_EX_CONTROLPARENT});
}

bool HandleDialogMessage(HWND dialog, MSG& message) noexcept {
    if (MayWalk(message) && Holds(dialog, message.hwnd)) {
        const TabStops stops = FindTabStops(dialog);
        if (!stops.first || HasTrap(dialog)) return false;
        const HWND focus = GetFocus();
        if (Holds(dialog, focus) && !IsReachable(dialog, focus)) MoveFocus(dialog, stops.first);
        if (IsCharacter(message.message) && !IsReachable(dialog, message.hwnd)) return false;
    }
    return IsDialogMessageW(dialog, &message) != FALSE;
}

}  // namespace qz
