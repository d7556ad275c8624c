#include "ui/child_window.h"

#include "ui/window.h"

#include <commctrl.h>

namespace qz {

void ChildWindow::Create(HWND parent, const ChildOptions& options) {
    const RECT& bounds = options.bounds;
    Attach(CreateWindowExW(options.extendedStyle, options.className, options.text,
                           options.style | WS_CHILD | WS_CLIPSIBLINGS, bounds.left, bounds.top,
                           bounds.right - bounds.left, bounds.bottom - bounds.top, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(options.id)), ThisModule(), nullptr));
}

void ChildWindow::Attach(HWND child) {
    ThrowLastErrorIf(!child, L"A child window cannot be made");
    if (handle_) Throw(E_UNEXPECTED, L"The child window is there already");
    handle_ = child;
    // Not the window's own procedure, nor one id for all: there may be several of these on the window.
    classProcedure_ = reinterpret_cast<WNDPROC>(GetClassLongPtrW(handle_, GCLP_WNDPROC));
    SetWindowSubclass(handle_, &Procedure, Id(), reinterpret_cast<DWORD_PTR>(this));
}

void ChildWindow::Destroy() noexcept {
    if (!handle_) return;
    const HWND handle = handle_;
    handle_ = nullptr;
    RemoveWindowSubclass(handle, &Procedure, Id());
    DestroyWindow(handle);
}

LRESULT CALLBACK ChildWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                        DWORD_PTR self) noexcept {
    return reinterpret_cast<ChildWindow*>(self)->Dispatch(handle, message, wParam, lParam);
}

LRESULT ChildWindow::Dispatch(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    // Nothing of this object may be used after a call out: the message may end it.
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(handle, &Procedure, Id());
        handle_ = nullptr;
        return DefSubclassProc(handle, message, wParam, lParam);
    }
    std::optional<LRESULT> result;
    const HRESULT outcome = Guard(IID_NULL, [&] { result = OnMessage(message, wParam, lParam); });
    if (FAILED(outcome)) ShowErrorInDebugger();
    if (!result) result = DefSubclassProc(handle, message, wParam, lParam);
    if ((message == WM_SETFOCUS || message == WM_KILLFOCUS) && IsWindow(handle)) {
        SendMessageW(GetParent(handle), childFocusMessage, message == WM_SETFOCUS ? 1 : 0,
                     static_cast<LPARAM>(wParam));
    }
    return *result;
}

}  // namespace qz
