// Listening to the events of an object.
#pragma once

#include "com/object.h"

#include <ocidl.h>

#include <functional>

namespace qz {

/// An event that was raised. The parameters are the raiser's, valid during the call, last to first as Invoke
/// gets them; an in/out parameter is changed through its VT_BYREF variant.
using EventHandler = std::function<void(DISPID event, DISPPARAMS& parameters)>;

/// A sink connected to one event dispinterface of an object; it is disconnected when this goes, and from then
/// on the handler is not called any more. Not movable, for the connection may hold on to the sink.
class EventConnection {
  public:
    /// Throws when the object does not raise these events.
    EventConnection(IUnknown* source, REFIID events, EventHandler handler);
    ~EventConnection();
    EventConnection(const EventConnection&) = delete;
    EventConnection& operator=(const EventConnection&) = delete;

  private:
    class Sink;

    ComPtr<IConnectionPoint> point_;
    ComPtr<Sink> sink_;
    DWORD cookie_ = 0;
};

}  // namespace qz
