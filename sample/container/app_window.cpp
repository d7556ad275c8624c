#include "sample/container/app_window.h"

#include "com/module.h"
#include "sample/container/error_text.h"

namespace qz {

namespace {

constexpr wchar_t className[] = L"qzSampleContainerWindow";

void RegisterWindowClass(WNDPROC procedure) {
    WNDCLASSEXW info{};
    info.cbSize = sizeof info;
    if (GetClassInfoExW(ThisModule(), className, &info)) return;
    info = {};
    info.cbSize = sizeof info;
    info.lpfnWndProc = procedure;
    info.hInstance = ThisModule();
    info.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
    info.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    info.lpszClassName = className;  // without a brush: each window paints all of itself
    ThrowLastErrorIf(!RegisterClassExW(&info), L"The window class cannot be registered");
}

}  // namespace

AppWindow::~AppWindow() { Destroy(); }

RECT AppWindow::ClientRect() const noexcept {
    RECT client{};
    GetClientRect(handle_, &client);
    return client;
}

void AppWindow::Create(const AppWindowOptions& options) {
    RegisterWindowClass(Procedure);
    const RECT& at = options.bounds;
    CreateWindowExW(options.extendedStyle, className, options.title.c_str(), options.style, at.left, at.top,
                    at.right - at.left, at.bottom - at.top, options.parent, options.menu, ThisModule(), this);
    ThrowLastErrorIf(!handle_, L"A window cannot be created");
}

void AppWindow::Destroy() noexcept {
    if (!handle_) return;
    // The derived class may be gone already; it gets no more messages.
    SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    DestroyWindow(handle_);
    handle_ = nullptr;
}

LRESULT AppWindow::Default(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    return DefWindowProcW(handle_, message, wParam, lParam);
}

LRESULT CALLBACK AppWindow::Procedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    auto* window = reinterpret_cast<AppWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
    if (message == WM_NCCREATE) {
        window = static_cast<AppWindow*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        window->handle_ = handle;
        SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
    }
    if (!window) return DefWindowProcW(handle, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
        window->handle_ = nullptr;
        return DefWindowProcW(handle, message, wParam, lParam);
    }
    try {
        return window->OnMessage(message, wParam, lParam);
    } catch (...) {
        window->OnError(CurrentExceptionText());
        return DefWindowProcW(handle, message, wParam, lParam);
    }
}

}  // namespace qz
