#include "sample/container/event_sink.h"

#include "sample/container/error_text.h"

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
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

  protected:
    IID events_ = IID_NULL;
};

}  // namespace

class EventConnection::Sink final : public Object<Sink, EventDispatch> {
  public:
    Sink(REFIID events, EventHandler handler) : handler_(std::move(handler)) { events_ = events; }

    void Disconnect() noexcept { handler_ = nullptr; }

    STDMETHODIMP Invoke(DISPID event, REFIID iid, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        if (!parameters) return E_POINTER;
        return Guard(IID_NULL, [&] {
            const EventHandler handler = handler_;  // it may disconnect inside the call
            if (handler) handler(event, *parameters);
        });
    }

  private:
    EventHandler handler_;
};

EventConnection::EventConnection(IUnknown* source, REFIID events, EventHandler handler)
    : sink_(MakeObject<Sink>(events, std::move(handler))) {
    ComPtr<IConnectionPointContainer> container;
    RequireSuccess(source->QueryInterface(IID_PPV_ARGS(&container)), L"The object raises no events");
    RequireSuccess(container->FindConnectionPoint(events, &point_),
                   L"The object does not raise these events");
    RequireSuccess(point_->Advise(sink_->Identity(), &cookie_), L"The object takes no listener");
}

EventConnection::~EventConnection() {
    sink_->Disconnect();
    point_->Unadvise(cookie_);
}

}  // namespace qz
