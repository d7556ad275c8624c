// A small object with events, and sinks that misbehave.
#pragma once

#include "com/connection_points.h"
#include "tests/support/silent_dispatch.h"

#include <functional>

namespace qz {

inline constexpr IID testEvents = {
    0x2f1c0a51, 0x7d35, 0x4f0e, {0x8b, 0x1a, 0x60, 0x10, 0x5c, 0x3e, 0x77, 0x01}};

class TestSource final : public Object<TestSource, ConnectionPointContainer> {
  public:
    explicit TestSource(bool* destroyed = nullptr) : destroyed_(destroyed) {}
    ~TestSource() {
        if (destroyed_) *destroyed_ = true;
    }

    ConnectionPoint& Events() { return events_; }

  private:
    std::vector<ConnectionPoint*> Points() override { return {&events_}; }

    ConnectionPoint events_{Identity(), testEvents};
    bool* destroyed_;
};

/// A sink that runs a function; answers IDispatch only, as script hosts do.
class TestSink final : public Object<TestSink, SilentDispatch> {
  public:
    using Handler = std::function<HRESULT(DISPID, DISPPARAMS&)>;

    explicit TestSink(Handler handler) : handler_(std::move(handler)) {}

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        return handler_(id, *parameters);
    }

  private:
    Handler handler_;
};

}  // namespace qz
