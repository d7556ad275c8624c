#include "tests/support/pane_window.h"

namespace qz {

void PumpMessages() {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

PaneWindow::PaneWindow(IUnknown* control, SIZE size, POINT at)
    : frame_(CreateWindowExW(0, L"STATIC", L"frame", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, at.x, at.y,
                             size.cx, size.cy, nullptr, nullptr, nullptr, nullptr)),
      site_(MakeObject<ControlSite>(frame_)) {
    site_->position = {0, 0, size.cx, size.cy};
    site_->clip = site_->position;
    try {
        ThrowIfFailed(control->QueryInterface(IID_PPV_ARGS(&control_)));
        ThrowIfFailed(control_->SetClientSite(site_->Client()));
        ThrowIfFailed(control_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_->Client(), 0, frame_,
                                       &site_->position));
    } catch (...) {
        Close();
        throw;
    }
    PumpMessages();
}

HWND PaneWindow::Window() const {
    ComPtr<IOleWindow> object;
    HWND window = nullptr;
    if (control_ && SUCCEEDED(control_.As(&object))) object->GetWindow(&window);
    return window;
}

COLORREF PaneWindow::PixelAt(int x, int y) const {
    const HWND window = Window();
    const HDC dc = GetDC(window);
    const COLORREF colour = GetPixel(dc, x, y);
    ReleaseDC(window, dc);
    return colour;
}

void PaneWindow::Close() {
    if (!frame_) return;
    if (control_) {
        control_->Close(OLECLOSE_NOSAVE);
        control_->SetClientSite(nullptr);
    }
    control_.Reset();
    DestroyWindow(frame_);
    frame_ = nullptr;
    site_.Reset();
}

}  // namespace qz
