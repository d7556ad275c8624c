#include "benchmarks/hosted_pane.h"

#include "panes/thumbnails/page_numbers.h"
#include "sample/host/reference_host.h"

#include <vector>

namespace qz::bench {

namespace {

constexpr RECT paneBounds{0, 0, 220, 600};
constexpr long letterWidth = 12240;
constexpr long letterHeight = 15840;

ComPtr<IqzThumbnailCtrl> MakePane(const LoadedModule& module) {
    ComPtr<IClassFactory> factory;
    ComPtr<IqzThumbnailCtrl> pane;
    ThrowIfFailed(module.GetClassObject(CLSID_qzThumbnailCtrl, IID_PPV_ARGS(&factory)),
                  L"There is no pane's class");
    ThrowIfFailed(factory->CreateInstance(nullptr, IID_PPV_ARGS(&pane)), L"No pane can be made");
    return pane;
}

void PumpMessages() {
    for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}  // namespace

void NewDocument(IReferenceHost* host, long pages) {
    ThrowIfFailed(host->NewDocument(pages, letterWidth, letterHeight), L"The host makes no document");
}

ComPtr<IReferenceHost> MakeHost(long pages) {
    ComPtr<IReferenceHost> host = MakeObject<sample::MemoryHost>();
    NewDocument(host.Get(), pages);
    return host;
}

_variant_t EverySecondPage(long pages) {
    std::vector<long> odd;
    for (long page = 1; page <= pages; page += 2) odd.push_back(page);
    return MakePageNumbers(odd);
}

HostedPane::HostedPane(long pages, Shown shown) : host_(MakeHost(pages)), pane_(MakePane(module_)) {
    Activate(shown);
    ThrowIfFailed(pane_->Initialize(host_.Get()), L"The pane does not attach to the host");
    PumpMessages();
}

HostedPane::~HostedPane() {
    ComPtr<IOleObject> object;
    if (SUCCEEDED(pane_.As(&object))) {
        object->Close(OLECLOSE_NOSAVE);
        object->SetClientSite(nullptr);
    }
    DestroyWindow(frame_);
}

void HostedPane::Activate(Shown shown) {
    const DWORD style = WS_POPUP | WS_CLIPCHILDREN | (shown == Shown::Yes ? WS_VISIBLE : 0u);
    frame_ = CreateWindowExW(0, L"STATIC", L"benchmarks", style, paneBounds.left, paneBounds.top,
                             paneBounds.right, paneBounds.bottom, nullptr, nullptr, nullptr, nullptr);
    ThrowLastErrorIf(!frame_, L"No window could be made");
    site_ = MakeObject<ControlSite>(frame_);
    site_->position = paneBounds;
    ComPtr<IOleObject> object;
    ComPtr<IOleWindow> window;
    ThrowIfFailed(pane_.As(&object));
    ThrowIfFailed(pane_.As(&window));
    ThrowIfFailed(object->SetClientSite(site_->Client()));
    ThrowIfFailed(object->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site_->Client(), 0, frame_, &paneBounds),
                  L"The pane does not become active");
    ThrowIfFailed(window->GetWindow(&window_), L"The pane has no window");
}

void HostedPane::Paint() const { RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); }

}  // namespace qz::bench
