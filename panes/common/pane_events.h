// The outgoing events of a pane.
#pragma once

#include "com/connection_points.h"

#include <functional>
#include <vector>

namespace qz {

/// Raises a pane's events to every sink, but for those due while the container wants none. A sink may do
/// anything inside: callers look again at what they go on with.
class PaneEvents {
  public:
    /// `owner` counts for the control, not counted here; `frozen` tells whether events are to be dropped.
    PaneEvents(IUnknown* owner, const IID& events, std::function<bool()> frozen)
        : point_(owner, events), frozen_(std::move(frozen)) {}

    PaneEvents(const PaneEvents&) = delete;
    PaneEvents& operator=(const PaneEvents&) = delete;

    ConnectionPoint& Point() noexcept { return point_; }

    void Raise(DISPID id, std::vector<VARIANT> arguments = {}) {
        if (!frozen_()) FireEvent(point_, id, std::move(arguments));
    }

    /// Raises an event whose last parameter, added here, is an in/out flag: it starts at 1, and set to 0 it
    /// vetoes. Whether the pane shall go on; nobody listening is no veto.
    bool Ask(DISPID id, std::vector<VARIANT> arguments = {}) {
        long goOn = 1;
        arguments.push_back(EventArgument(&goOn));
        Raise(id, std::move(arguments));
        return goOn != 0;
    }

  private:
    ConnectionPoint point_;
    std::function<bool()> frozen_;
};

}  // namespace qz
