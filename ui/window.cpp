#include "ui/window.h"

#include "ui/window_class.h"

#include <comdef.h>

namespace qz {

namespace {

/// One class for all windows of the module. Made outside the module's activation context, which the system
/// would keep with every window: the class is our own.
const WindowClass& OwnClass(WNDPROC procedure) {
    static const WindowClass own([procedure] {
        WNDCLASSEXW description{};
        description.style = CS_DBLCLKS;
        description.lpfnWndProc = procedure;
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.lpszClassName = L"qzVandraExt.Window";
        return description;
    }());
    return own;
}

bool Refuses(UINT message) noexcept { return message == WM_NCCREATE || message == WM_CREATE; }

LRESULT RefusalOf(UINT message) noexcept { return message == WM_CREATE ? -1 : FALSE; }

}  // namespace

Window::~Window() {
    if (!handle_) return;
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    DestroyWindow(handle_);
}

void Window::Create(const WindowOptions& options) {
    if (handle_) Throw(E_UNEXPECTED, L"The window is there already");
    const WindowClass& own = OwnClass(&Window::Procedure);
    caller_.Capture();
    const RECT& bounds = options.bounds;
    const HWND made = CreateWindowExW(
        options.extendedStyle, own.Name(), options.title.c_str(), options.style, bounds.left, bounds.top,
        bounds.right - bounds.left, bounds.bottom - bounds.top, options.parent, nullptr, ThisModule(), this);
    if (made) return;
    const DWORD error = GetLastError();
    handle_ = nullptr;
    Throw(error == ERROR_SUCCESS ? E_FAIL : HRESULT_FROM_WIN32(error), L"The window cannot be made");
}

void Window::Destroy() noexcept {
    if (handle_ && !going_) DestroyWindow(handle_);
}

void ShowErrorInDebugger() noexcept {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, &info) != S_OK) return;
    _bstr_t text;
    if (SUCCEEDED(info->GetDescription(text.GetAddress())) && text.length()) OutputDebugStringW(text);
}

LRESULT CALLBACK Window::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_NCCREATE) {
        auto* window = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        window->handle_ = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
    }
    auto* window = reinterpret_cast<Window*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    return window ? window->Dispatch(message, wParam, lParam)
                  : DefWindowProcW(handle, message, wParam, lParam);
}

LRESULT Window::Dispatch(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    const ComPtr<IUnknown> alive = KeepAlive();
    const CallerActivation caller(caller_);
    const HWND handle = handle_;  // the window may be gone when the message has been handled
    if (message == WM_DESTROY) going_ = true;
    std::optional<LRESULT> result;
    try {
        result = OnMessage(message, wParam, lParam);
    } catch (...) {
        OnMessageFailed(message, TurnException(IID_NULL));
        if (Refuses(message)) result = RefusalOf(message);
    }
    if (!result) result = DefWindowProcW(handle, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
        handle_ = nullptr;
        going_ = false;
    }
    return *result;
}

}  // namespace qz
