// The pane's outgoing events.
#pragma once

#include "com/connection_points.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// Raises the events of `_IqzThumbnailCtrlEvents` to every sink, but for those due while the container wants
/// none. Those that can be vetoed return whether the pane shall go on; nobody listening is no veto. A sink
/// may do anything inside: callers look again at what they go on with.
class ThumbnailEvents {
  public:
    /// `owner` is the control's identity, not counted; `frozen` tells whether events are to be dropped.
    ThumbnailEvents(IUnknown* owner, std::function<bool()> frozen)
        : point_(owner, DIID__IqzThumbnailCtrlEvents), frozen_(std::move(frozen)) {}

    ConnectionPoint& Point() noexcept { return point_; }

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
    void Raise(DISPID id, std::vector<VARIANT> arguments);
    bool Ask(DISPID id, std::vector<VARIANT> arguments);

    ConnectionPoint point_;
    std::function<bool()> frozen_;
};

}  // namespace qz
