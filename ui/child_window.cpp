#include "ui/child_window.h"

#include "ui/window.h"

#include <commctrl.h>

namespace qz {

HWND MakeChild(HWND parent, const ChildOptions& options) {
    const RECT& bounds = options.bounds;
    const ModuleActivation activation;
    const HWND made = CreateWindowExW(
        options.extendedStyle, options.className, options.text, options.style | WS_CHILD | WS_CLIPSIBLINGS,
        bounds.left, bounds.top, bounds.right - bounds.left, bounds.bottom - bounds.top, parent,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(options.id)), ThisModule(), nullptr);
    ThrowLastErrorIf(!made, L"A child window cannot be made");
    return made;
}

void ChildWindow::Create(HWND parent, const ChildOptions& options) { Attach(MakeChild(parent, options)); }

void ChildWindow::Attach(HWND child) {
    if (!child) Throw(E_INVALIDARG, L"There is no such child window");
    if (handle_) Throw(E_UNEXPECTED, L"The child window is there already");
    caller_.Capture();
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
    std::optional<LRESULT> result = Handle(message, wParam, lParam);
    if (!result) result = DefSubclassProc(handle, message, wParam, lParam);
    if ((message == WM_SETFOCUS || message == WM_KILLFOCUS) && IsWindow(handle)) {
        SendMessageW(GetParent(handle), childFocusMessage, message == WM_SETFOCUS ? 1 : 0,
                     static_cast<LPARAM>(wParam));
    }
    return *result;
}

/// The class itself runs under the context that its window was made in: it makes windows of its own.
std::optional<LRESULT> ChildWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const CallerActivation caller(caller_);
    std::optional<LRESULT> result;
    const HRESULT outcome = Guard(IID_NULL, [&] { result = OnMessage(message, wParam, lParam); });
    if (FAILED(outcome)) ShowErrorInDebugger();
    return result;
}

}  // namespace qz
