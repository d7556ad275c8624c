// The pane's outgoing events.
#pragma once

#include "panes/common/pane_events.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// The events of `_IqzLayersCtrlEvents`. Each returns whether the pane shall go on.
class LayerEvents {
  public:
    explicit LayerEvents(PaneEvents& events) noexcept : events_(events) {}

    bool LayerActivated() { return events_.Ask(1); }
    /// Whether the pane shall show its own message.
    bool ShowMessage(qzLayersCtrlShowMsgConsts message) {
        return events_.Ask(2, {EventArgument(static_cast<long>(message))});
    }
    /// Screen pixels. Whether the pane shall show its own menu.
    bool ContextSensitiveMenu(long x, long y) { return events_.Ask(3, {EventArgument(x), EventArgument(y)}); }

  private:
    PaneEvents& events_;
};

}  // namespace qz
