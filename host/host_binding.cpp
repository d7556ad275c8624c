#include "host/host_binding.h"

#include "host/host_sink.h"

#include <ocidl.h>

namespace qz {

namespace {

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
    const ComPtr<IConnectionPoint> events = QueryEvents(host.Get());
    const ComPtr<HostSink> sink = MakeObject<HostSink>(listener_);
    Detach();
    DWORD cookie = 0;
    ThrowIfFailed(events->Advise(sink->Identity(), &cookie), L"The host refuses the event connection");
    Detach();  // a host that was attached inside the calls above would keep its sink
    host_ = host;
    events_ = events;
    sink_ = sink;
    cookie_ = cookie;
    short language = 0;
    const HRESULT result = host->GetLanguageId(&language);
    const bool replaced = sink_.Get() != sink.Get();  // by an attachment made inside that call, which stays
    if (FAILED(result)) {
        if (!replaced) Detach();
        Throw(result, L"The host does not tell its language");
    }
    if (!replaced) languageId_ = static_cast<std::uint16_t>(language);
}

void HostBinding::Detach() noexcept {
    // Taken out of the members first: each of these calls may come back here.
    const ComPtr<IVandraX> host = std::move(host_);
    const ComPtr<IConnectionPoint> events = std::move(events_);
    const ComPtr<HostSink> sink = std::move(sink_);
    languageId_ = 0;
    if (sink) sink->Disconnect();
    // A host that refuses is left with a sink that hears nothing.
    if (events) events->Unadvise(std::exchange(cookie_, 0));
}

}  // namespace qz
