// A sink for the events of an object: it writes them down and does what the test wants.
#pragma once

#include "com/object.h"
#include "tests/support/silent_dispatch.h"

#include <ocidl.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace qz {

/// Answers IDispatch only, as script hosts do. An event is written down as "id" or "id:argument,argument",
/// in/out arguments with "&" and their value at the time.
class EventRecorder final : public Object<EventRecorder, SilentDispatch> {
  public:
    /// What is done inside an event, after it was written down.
    std::map<DISPID, std::function<void()>> actions;
    /// What an event's in/out argument (the last) is set to.
    std::map<DISPID, long> answers;
    /// What Invoke returns.
    HRESULT result = S_OK;

    std::vector<std::string> TakeEvents() { return std::exchange(events_, {}); }

    void Connect(IUnknown* source, REFIID events) {
        ComPtr<IConnectionPointContainer> container;
        ThrowIfFailed(source->QueryInterface(IID_PPV_ARGS(&container)));
        ThrowIfFailed(container->FindConnectionPoint(events, &point_));
        ThrowIfFailed(point_->Advise(Identity(), &cookie_));
    }
    void Disconnect() {
        if (const ComPtr<IConnectionPoint> point = std::exchange(point_, nullptr)) point->Unadvise(cookie_);
    }

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        events_.push_back(Describe(id, *parameters));
        if (answers.contains(id) && parameters->cArgs > 0 && parameters->rgvarg[0].vt == (VT_BYREF | VT_I4)) {
            *parameters->rgvarg[0].plVal = answers[id];
        }
        const auto found = actions.find(id);
        if (found != actions.end()) {
            const std::function<void()> action = found->second;  // it may replace itself
            action();
        }
        return result;
    }

  private:
    static std::string Describe(DISPID id, const DISPPARAMS& parameters) {
        std::ostringstream text;
        text << id;
        for (UINT i = parameters.cArgs; i > 0; --i) {
            const VARIANT& argument = parameters.rgvarg[i - 1];
            text << (i == parameters.cArgs ? ':' : ',');
            if (argument.vt == (VT_BYREF | VT_I4)) {
                text << '&' << *argument.plVal;
            } else {
                text << (argument.vt == VT_I4 ? std::to_string(argument.lVal)
                                              : "type " + std::to_string(argument.vt));
            }
        }
        return text.str();
    }

    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
    std::vector<std::string> events_;
};

}  // namespace qz
