#include "host/host_binding.h"

namespace qz {

namespace {

constexpr DISPID changedEvent = 5;

ComPtr<IVandraX> QueryHost(IDispatch* candidate) {
    if (!candidate) Throw(E_INVALIDARG, L"No host was given");
    ComPtr<IVandraX> host;
    ThrowIfFailed(candidate->QueryInterface(IID_PPV_ARGS(&host)), L"The object given is not a VandraX host");
    return host;
}

ComPtr<IConnectionPoint> QueryEvents(IVandraX* host) {
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> events;
    ThrowIfFailed(host->QueryInterface(IID_PPV_ARGS(&container)), L"The host has no events");
    ThrowIfFailed(container->FindConnectionPoint(DIID__IVandraXEvents, &events),
                  L"The host does not raise the change event");
    return events;
}

}  // namespace

HostBinding::HostBinding(HostListener& listener) noexcept : listener_(listener) {}

HostBinding::~HostBinding() { Detach(); }

void HostBinding::Attach(IDispatch* candidate) {
    const ComPtr<IVandraX> host = QueryHost(candidate);
    const ComPtr<IConnectionPoint> point = QueryEvents(host.Get());
    Detach();
    auto events =
        std::make_unique<EventConnection>(point, DIID__IVandraXEvents, [this](DISPID event, DISPPARAMS&) {
            if (event == changedEvent) listener_.OnHostChanged();
        });
    Detach();  // a host that was attached inside the calls above would keep its sink
    const unsigned attachment = ++attachments_;
    host_ = host;
    events_ = std::move(events);
    short language = 0;
    const HRESULT result = host->GetLanguageId(&language);
    const bool replaced = attachments_ != attachment;  // by one made inside that call, which stays
    if (FAILED(result)) {
        if (!replaced) Detach();
        Throw(result, L"The host does not tell its language");
    }
    if (!replaced) languageId_ = static_cast<std::uint16_t>(language);
}

void HostBinding::Detach() noexcept {
    // Taken out of the members first: the calls by which they go may come back here.
    const ComPtr<IVandraX> host = std::move(host_);
    const std::unique_ptr<EventConnection> events = std::move(events_);
    ++attachments_;
    languageId_ = 0;
}

}  // namespace qz
