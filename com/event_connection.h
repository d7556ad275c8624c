// Listening to the events of another object.
#pragma once

#include "com/object.h"

#include <ocidl.h>

#include <functional>

namespace qz {

/// An event that was raised. The parameters are the raiser's, valid during the call, last to first as Invoke
/// gets them; an in/out parameter is changed through its VT_BYREF variant.
using EventHandler = std::function<void(DISPID event, DISPPARAMS& parameters)>;

/// A sink connected to one event dispinterface of an object, which is disconnected when this goes. From then
/// on the handler is not called any more, even if the object refuses and keeps the sink. The handler may end
/// the connection inside its call; what it throws is the event's failure.
class EventConnection {
  public:
    /// Connects to an object. Throws when it does not raise these events or takes no listener.
    EventConnection(IUnknown* source, REFIID events, EventHandler handler);
    /// Connects at a connection point for these events. Throws when it takes no listener.
    EventConnection(ComPtr<IConnectionPoint> point, REFIID events, EventHandler handler);
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
