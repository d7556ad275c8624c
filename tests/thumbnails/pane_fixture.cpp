#include "pane_fixture.h"

namespace qz {

PaneTest::PaneTest() : pane(MakePane()) {}

PaneTest::~PaneTest() {
    Close();
    pane.Reset();
    EXPECT_EQ(module.CanUnloadNow(), S_OK) << "an object of the module is still alive";
}

ComPtr<IqzThumbnailCtrl> PaneTest::MakePane() const {
    ComPtr<IqzThumbnailCtrl> made;
    module.Make(CLSID_qzThumbnailCtrl, made);
    return made;
}

void PaneTest::Activate() {
    frame_ = CreateWindowExW(0, L"STATIC", L"frame", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                             paneSize.cx, paneSize.cy, nullptr, nullptr, nullptr, nullptr);
    site_ = MakeObject<ControlSite>(frame_);
    site_->position = {0, 0, paneSize.cx, paneSize.cy};
    ComPtr<IOleObject> object;
    ThrowIfFailed(pane.As(&object));
    ThrowIfFailed(object->SetClientSite(site_->Client()));
    ThrowIfFailed(
        object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_->Client(), 0, frame_, &site_->position));
    PumpMessages();
}

void PaneTest::Close() {
    if (!frame_) return;
    ComPtr<IOleObject> object;
    if (pane && SUCCEEDED(pane.As(&object))) {
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
    DestroyWindow(frame_);
    frame_ = nullptr;
    site_.Reset();
}

HWND PaneTest::PaneWindow() const {
    ComPtr<IOleWindow> object;
    HWND window = nullptr;
    if (pane && SUCCEEDED(pane.As(&object))) object->GetWindow(&window);
    return window;
}

void PaneTest::PumpMessages() {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

COLORREF PaneTest::PixelAt(int x, int y) const {
    const HDC dc = GetDC(PaneWindow());
    const COLORREF colour = GetPixel(dc, x, y);
    ReleaseDC(PaneWindow(), dc);
    return colour;
}

}  // namespace qz
