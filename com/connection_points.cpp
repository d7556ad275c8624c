#include "com/connection_points.h"

#include "com/enumerator.h"

#include <algorithm>

namespace qz {

namespace {

/// A kept CONNECTDATA that owns its sink.
struct KeptConnection {
    DWORD cookie;
    ComPtr<IUnknown> sink;
};

struct CopyConnection {
    static void Copy(CONNECTDATA& to, const KeptConnection& from) {
        to.dwCookie = from.cookie;
        from.sink.CopyTo(&to.pUnk);
    }
    static void Undo(CONNECTDATA& item) noexcept {
        item.pUnk->Release();
        item.pUnk = nullptr;
    }
};

using ConnectionEnumerator = Enumerator<IEnumConnections, CONNECTDATA, KeptConnection, CopyConnection>;
using PointEnumerator = Enumerator<IEnumConnectionPoints, IConnectionPoint*, ComPtr<IConnectionPoint>,
                                   CopyReference<IConnectionPoint>>;

}  // namespace

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** result) {
    if (!result) return E_POINTER;
    const bool known = iid == __uuidof(IUnknown) || iid == __uuidof(IConnectionPoint);
    *result = known ? static_cast<IConnectionPoint*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

void ConnectionPoint::ForEachSink(const std::function<void(IUnknown*)>& notify) {
    const ComPtr<IUnknown> ownerAlive = owner_;
    std::vector<DWORD> cookies;
    cookies.reserve(connections_.size());
    for (const Connection& connection : connections_) cookies.push_back(connection.cookie);
    for (const DWORD cookie : cookies) {
        if (const ComPtr<IUnknown> sink = SinkOf(cookie)) notify(sink.Get());
    }
}

void ConnectionPoint::DisconnectAll() noexcept {
    // A sink that goes may call back; it must find the list empty already.
    const std::vector<Connection> gone = std::move(connections_);
    connections_.clear();
}

ComPtr<IUnknown> ConnectionPoint::SinkOf(DWORD cookie) const {
    const auto found = std::ranges::find(connections_, cookie, &Connection::cookie);
    return found == connections_.end() ? nullptr : found->sink;
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* iid) {
    if (!iid) return E_POINTER;
    *iid = iid_;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container) {
    if (!container) return E_POINTER;
    return owner_->QueryInterface(IID_PPV_ARGS(container));
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie) {
    if (cookie) *cookie = 0;
    if (!sink || !cookie) return E_POINTER;
    return Guard(__uuidof(IConnectionPoint), [&]() -> HRESULT {
        Connection connection{lastCookie_ + 1, nullptr};
        HRESULT result = sink->QueryInterface(iid_, reinterpret_cast<void**>(connection.sink.GetAddressOf()));
        // Script hosts answer only IDispatch for an event interface.
        if (FAILED(result) && iid_ != IID_IPropertyNotifySink) {
            result = sink->QueryInterface(__uuidof(IDispatch),
                                          reinterpret_cast<void**>(connection.sink.GetAddressOf()));
        }
        if (FAILED(result) || !connection.sink) return CONNECT_E_CANNOTCONNECT;
        connections_.push_back(std::move(connection));
        *cookie = ++lastCookie_;
        return S_OK;
    });
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie) {
    const auto found = std::ranges::find(connections_, cookie, &Connection::cookie);
    if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
    // Released after the list is whole again: the release may run the sink's code.
    const ComPtr<IUnknown> gone = std::move(found->sink);
    connections_.erase(found);
    return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** result) {
    if (!result) return E_POINTER;
    *result = nullptr;
    return Guard(__uuidof(IConnectionPoint), [&] {
        std::vector<KeptConnection> kept;
        for (const Connection& connection : connections_)
            kept.push_back({connection.cookie, connection.sink});
        *result = MakeObject<ConnectionEnumerator>(std::move(kept)).Detach();
    });
}

VARIANT EventArgument(long value) noexcept {
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_I4;
    argument.lVal = value;
    return argument;
}

VARIANT EventArgument(long* value) noexcept {
    VARIANT argument;
    VariantInit(&argument);
    argument.vt = VT_I4 | VT_BYREF;
    argument.plVal = value;
    return argument;
}

void FireEvent(ConnectionPoint& point, DISPID id, std::vector<VARIANT> arguments) {
    point.ForEachSink([&](IUnknown* sink) {
        // Invoke takes them last to first, in a copy: what one sink does to it does not reach the next.
        std::vector<VARIANT> reversed(arguments.rbegin(), arguments.rend());
        DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
        static_cast<IDispatch*>(sink)->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                              nullptr, nullptr, nullptr);
    });
}

STDMETHODIMP ConnectionPointContainer::EnumConnectionPoints(IEnumConnectionPoints** result) {
    if (!result) return E_POINTER;
    *result = nullptr;
    return Guard(__uuidof(IConnectionPointContainer), [&] {
        std::vector<ComPtr<IConnectionPoint>> kept;
        for (ConnectionPoint* point : Points()) kept.emplace_back(point);
        *result = MakeObject<PointEnumerator>(std::move(kept)).Detach();
    });
}

STDMETHODIMP ConnectionPointContainer::FindConnectionPoint(REFIID iid, IConnectionPoint** result) {
    if (!result) return E_POINTER;
    *result = nullptr;
    return Guard(__uuidof(IConnectionPointContainer), [&]() -> HRESULT {
        for (ConnectionPoint* point : Points()) {
            if (point->Interface() != iid) continue;
            return point->QueryInterface(IID_PPV_ARGS(result));
        }
        return CONNECT_E_NOCONNECTION;
    });
}

}  // namespace qz
