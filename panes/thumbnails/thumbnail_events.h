// The pane's outgoing events.
#pragma once

#include "panes/common/pane_events.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// The events of `_IqzThumbnailCtrlEvents`. Those that can be vetoed return whether the pane shall go on.
class ThumbnailEvents {
  public:
    explicit ThumbnailEvents(PaneEvents& events) noexcept : events_(events) {}

    bool ThumbActivated(long page);
    bool DeleteSelectedPages();
    /// `page` is -1 after a range was selected.
    void ThumbSelected(long page);
    /// Whether the pane shall show its own message.
    bool ShowMessage(qzThumbnailCtrlShowMsgConsts message);
    bool ProcessingProgress(long totalSteps, long currentStep);
    /// Screen pixels. Whether the pane shall show its own menu.
    bool ContextSensitiveMenu(long x, long y);

  private:
    PaneEvents& events_;
};

}  // namespace qz
