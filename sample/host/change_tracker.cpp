#include "sample/host/change_tracker.h"

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
    : raising_(tracker.raising_, true), told_(tracker.told_, flags) {}

}  // namespace qz::sample
