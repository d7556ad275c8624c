// A sink for the events of another object.
#pragma once

#include "com/object.h"

#include <ocidl.h>

#include <functional>

namespace qz {

/// Hears the events of one dispatch interface of an object. `Disconnect` before what `heard` refers to goes.
class DispatchSink final : public Object<DispatchSink, IDispatch> {
  public:
    explicit DispatchSink(std::function<void(DISPID)> heard) : heard_(std::move(heard)) {}

    /// Throws when the object has no such events.
    void Connect(IUnknown* source, REFIID events) {
        ComPtr<IConnectionPointContainer> container;
        ThrowIfFailed(source->QueryInterface(IID_PPV_ARGS(&container)));
        ThrowIfFailed(container->FindConnectionPoint(events, &point_));
        ThrowIfFailed(point_->Advise(Identity(), &cookie_));
    }

    void Disconnect() noexcept {
        heard_ = nullptr;
        const ComPtr<IConnectionPoint> point = std::move(point_);
        point_ = nullptr;
        if (point) point->Unadvise(cookie_);
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (count) *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        const ComPtr<IUnknown> alive = Identity();
        const std::function<void(DISPID)> heard = heard_;  // it may disconnect this sink
        return Guard(IID_IDispatch, [&] {
            if (heard) heard(id);
        });
    }

  private:
    std::function<void(DISPID)> heard_;
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

}  // namespace qz
