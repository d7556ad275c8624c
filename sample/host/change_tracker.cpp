#include "sample/host/change_tracker.h"

#include <utility>

namespace qz::sample {

uint32_t ChangeTracker::Differences(const ViewState& view) const {
    uint32_t flags = change::none;
    if (view.mode != toldView_.mode) flags |= change::mode;
    if (view.zoom != toldView_.zoom) flags |= change::view;
    if (view.currentPage != toldView_.currentPage) flags |= change::currentPage;
    return flags;
}

uint32_t ChangeTracker::Take(const ViewState& view) {
    if (!autoRefresh_) return change::none;
    const uint32_t due = pending_ | Differences(view);
    const uint32_t held = pageOperations_ ? change::none : due & (change::pages | change::currentPage);
    if (!(held & change::currentPage)) toldView_.currentPage = view.currentPage;
    toldView_.mode = view.mode;
    toldView_.zoom = view.zoom;
    pending_ = held & change::pages;
    return due & ~held;
}

ChangeTracker::Raising::Raising(ChangeTracker& tracker, uint32_t flags)
    : tracker_(tracker),
      outerRaising_(std::exchange(tracker.raising_, true)),
      outerTold_(std::exchange(tracker.told_, flags)) {}

ChangeTracker::Raising::~Raising() {
    tracker_.raising_ = outerRaising_;
    tracker_.told_ = outerTold_;
}

}  // namespace qz::sample
