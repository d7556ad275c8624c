// Outgoing interfaces: the connection points of an object and the firing of its events.
#pragma once

#include "com/object.h"

#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <vector>

namespace qz {

/// One outgoing interface of an object; a part of that object, whose life it shares. Sinks are called on the
/// object's thread. A sink may advise, unadvise or release the object inside a call.
class ConnectionPoint : public IConnectionPoint {
  public:
    /// `owner` is the object's identity, not counted here (the point is a member of the owner).
    ConnectionPoint(IUnknown* owner, const IID& iid) noexcept : owner_(owner), iid_(iid) {}
    ConnectionPoint(const ConnectionPoint&) = delete;
    ConnectionPoint& operator=(const ConnectionPoint&) = delete;

    const IID& Interface() const noexcept { return iid_; }

    /// Calls `notify` with every sink connected at this moment, in the order of their connection, but for
    /// those that are disconnected before their turn. What a sink answers is nobody's business but its own.
    void ForEachSink(const std::function<void(IUnknown*)>& notify);

    /// Drops all sinks.
    void DisconnectAll() noexcept;

    STDMETHODIMP QueryInterface(REFIID iid, void** result) override;
    STDMETHODIMP_(ULONG) AddRef() override { return owner_->AddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return owner_->Release(); }

    STDMETHODIMP GetConnectionInterface(IID* iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    /// CONNECT_E_CANNOTCONNECT when the sink answers neither the event interface nor, for events, IDispatch.
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    /// CONNECT_E_NOCONNECTION for a cookie that is not connected.
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** result) override;

  private:
    struct Connection {
        DWORD cookie;
        ComPtr<IUnknown> sink;
    };

    ComPtr<IUnknown> SinkOf(DWORD cookie) const;

    IUnknown* owner_;
    IID iid_;
    DWORD lastCookie_ = 0;
    std::vector<Connection> connections_;
};

/// An argument of an event: `long` by value, `long*` as an in/out parameter.
VARIANT EventArgument(long value) noexcept;
VARIANT EventArgument(long* value) noexcept;

/// Raises the event `id` of a dispatch interface with arguments in their declared order.
/// What they refer to stays the caller's.
void FireEvent(ConnectionPoint& point, DISPID id, std::vector<VARIANT> arguments = {});

/// Base of an object with connection points, which it lists in `Points()`.
class ConnectionPointContainer : public IConnectionPointContainer {
  public:
    static void* FindInterface(ConnectionPointContainer* self, REFIID iid) noexcept {
        return iid == __uuidof(IConnectionPointContainer) ? static_cast<IConnectionPointContainer*>(self)
                                                          : nullptr;
    }

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** result) override;
    /// CONNECT_E_NOCONNECTION when the object has no such outgoing interface.
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** result) override;

  protected:
    ~ConnectionPointContainer() = default;
    virtual std::vector<ConnectionPoint*> Points() = 0;
};

}  // namespace qz
