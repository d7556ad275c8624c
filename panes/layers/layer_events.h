// The pane's outgoing events.
#pragma once

#include "panes/common/pane_events.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// The events of `_IqzLayersCtrlEvents`. Each returns whether the pane shall go on.
class LayerEvents : private PaneEvents {
  public:
    LayerEvents(IUnknown* owner, std::function<bool()> frozen)
        : PaneEvents(owner, DIID__IqzLayersCtrlEvents, std::move(frozen)) {}

    using PaneEvents::Point;

    bool LayerActivated() { return Ask(1); }
    /// Whether the pane shall show its own message.
    bool ShowMessage(qzLayersCtrlShowMsgConsts message) {
        return Ask(2, {EventArgument(static_cast<long>(message))});
    }
    /// Screen pixels. Whether the pane shall show its own menu.
    bool ContextSensitiveMenu(long x, long y) { return Ask(3, {EventArgument(x), EventArgument(y)}); }
};

}  // namespace qz
