// A reference host of the test's own, with a sink that counts the change event.
#pragma once

#include "sample/host/reference_host.h"
#include "tests/support/silent_dispatch.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace qz::sample {

/// Notes the change flags at every event.
class EventSink : public Object<EventSink, SilentDispatch> {
  public:
    explicit EventSink(IReferenceHost* host) : host_(host) {}

    std::vector<long> flags;
    std::function<void()> whenTold;

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        if (id != 5 || parameters->cArgs != 0) return DISP_E_MEMBERNOTFOUND;
        long now = 0;
        host_->GetChangeFlags(&now);
        flags.push_back(now);
        if (whenTold) whenTold();
        return S_OK;
    }

  private:
    IReferenceHost* host_;  // outlives the connection
};

struct HostTest : testing::Test {
    ComPtr<IReferenceHost> host = MakeHost();
    ComPtr<EventSink> sink = MakeObject<EventSink>(host.Get());
    DWORD cookie = Advise(sink.Get());

    static ComPtr<IReferenceHost> MakeHost() {
        const ComPtr<MemoryHost> made = MakeObject<MemoryHost>();
        const ComPtr<IReferenceHost> host = static_cast<IReferenceHost*>(made.Get());
        host->NewDocument(5, 12240, 15840);
        return host;
    }

    ComPtr<IConnectionPoint> Point() {
        ComPtr<IConnectionPointContainer> container;
        ComPtr<IConnectionPoint> point;
        EXPECT_EQ(host.As(&container), S_OK);
        EXPECT_EQ(container->FindConnectionPoint(DIID__IVandraXEvents, &point), S_OK);
        return point;
    }

    DWORD Advise(EventSink* listener) {
        DWORD made = 0;
        EXPECT_EQ(Point()->Advise(static_cast<IDispatch*>(listener), &made), S_OK);
        return made;
    }

    /// What the sink was told since the last time.
    std::vector<long> Told() { return std::exchange(sink->flags, {}); }

    _variant_t Read(const wchar_t* path, const wchar_t* attribute) {
        _variant_t value;
        EXPECT_EQ(host->GetObjectAttribute(_bstr_t(path), _bstr_t(attribute), &value), S_OK)
            << path << attribute;
        return value;
    }

    HRESULT Write(const wchar_t* path, const wchar_t* attribute, const _variant_t& value) {
        return host->SetObjectAttribute(_bstr_t(path), _bstr_t(attribute), value);
    }

    long PageCount() {
        long count = -1;
        host->GetPageCount(&count);
        return count;
    }

    ComPtr<IHostObject> ObjectAt(const wchar_t* path) {
        ComPtr<IDispatch> object;
        ComPtr<IHostObject> typed;
        EXPECT_EQ(host->GetObjectByPath(_bstr_t(path), &object), S_OK) << path;
        EXPECT_EQ(object.As(&typed), S_OK);
        return typed;
    }
};

using Flags = std::vector<long>;

}  // namespace qz::sample
