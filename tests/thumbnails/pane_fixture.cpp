#include "pane_fixture.h"

#include <sstream>

namespace qz {

ComPtr<IReferenceHost> MakeHost(long pages) {
    static const HMODULE library = LoadLibraryW(L"vandra_reference_host.dll");
    using GetClassObject = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto entry = reinterpret_cast<GetClassObject>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
    ComPtr<IClassFactory> factory;
    ComPtr<IReferenceHost> host;
    ThrowIfFailed(entry(CLSID_ReferenceHost, IID_PPV_ARGS(&factory)));
    ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&host)));
    ThrowIfFailed(host->NewDocument(pages, 12240, 15840));
    ThrowIfFailed(host->ClearLog());
    return host;
}

long SinkCount(IReferenceHost* host) {
    long count = -1;
    ThrowIfFailed(host->get_SinkCount(&count));
    return count;
}

long CallCount(IReferenceHost* host, const wchar_t* operation) {
    long count = -1;
    ThrowIfFailed(host->get_CallCount(_bstr_t(operation), &count));
    return count;
}

std::vector<std::wstring> LogLines(IReferenceHost* host) {
    _bstr_t text;
    ThrowIfFailed(host->get_LogText(text.GetAddress()));
    std::vector<std::wstring> lines;
    std::wistringstream stream(text.length() ? static_cast<const wchar_t*>(text) : L"");
    for (std::wstring line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == L'\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

ULONG ReferencesOf(IUnknown* object) {
    object->AddRef();
    return object->Release();
}

PaneTest::PaneTest() : pane(MakePane()) {}

PaneTest::~PaneTest() {
    Close();
    pane.Reset();
    EXPECT_EQ(module.CanUnloadNow(), S_OK) << "an object of the module is still alive";
}

ComPtr<IqzThumbnailCtrl> PaneTest::MakePane() const {
    ComPtr<IClassFactory> factory;
    ComPtr<IqzThumbnailCtrl> made;
    ThrowIfFailed(module.GetClassObject(CLSID_qzThumbnailCtrl, IID_PPV_ARGS(&factory)));
    ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&made)));
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
    if (SUCCEEDED(pane.As(&object))) object->GetWindow(&window);
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
