#include "com/event_connection.h"

namespace qz {

namespace {

/// The sink's interfaces: IDispatch, under its own id and that of the events.
class EventDispatch : public IDispatch {
  public:
    static void* FindInterface(EventDispatch* self, REFIID iid) noexcept {
        const bool known = iid == __uuidof(IDispatch) || iid == self->events_;
        return known ? static_cast<IDispatch*>(self) : nullptr;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo** info) override {
        if (info) *info = nullptr;
        return E_NOTIMPL;
    }
    // Whoever raises events knows their numbers.
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }

  protected:
    IID events_ = IID_NULL;
};

ComPtr<IConnectionPoint> PointOf(IUnknown* source, REFIID events) {
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    ThrowIfFailed(source->QueryInterface(IID_PPV_ARGS(&container)), L"The object raises no events");
    ThrowIfFailed(container->FindConnectionPoint(events, &point), L"The object does not raise these events");
    return point;
}

}  // namespace

class EventConnection::Sink final : public Object<Sink, EventDispatch> {
  public:
    Sink(REFIID events, EventHandler handler) : handler_(std::move(handler)) { events_ = events; }

    void Disconnect() noexcept { handler_ = nullptr; }

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        const ComPtr<IUnknown> alive = Identity();
        return Guard(IID_NULL, [&] {
            const EventHandler handler = handler_;  // it may disconnect inside the call
            DISPPARAMS none{};
            if (handler) handler(event, parameters ? *parameters : none);
        });
    }

  private:
    EventHandler handler_;
};

EventConnection::EventConnection(IUnknown* source, REFIID events, EventHandler handler)
    : EventConnection(PointOf(source, events), events, std::move(handler)) {}

EventConnection::EventConnection(ComPtr<IConnectionPoint> point, REFIID events, EventHandler handler)
    : point_(std::move(point)), sink_(MakeObject<Sink>(events, std::move(handler))) {
    const HRESULT result = point_->Advise(sink_->Identity(), &cookie_);
    if (SUCCEEDED(result)) return;
    sink_->Disconnect();  // the object may have kept it all the same
    Throw(result, L"The object takes no listener");
}

EventConnection::~EventConnection() {
    sink_->Disconnect();
    point_->Unadvise(cookie_);
}

}  // namespace qz
