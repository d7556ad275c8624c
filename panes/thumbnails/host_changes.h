// What the host's change flags mean for the thumbnails.
#pragma once

#include "host/change_flags.h"

namespace qz {

/// A change as the thumbnail pane reads it.
struct HostChange {
    ChangeFlags flags;

    constexpr bool Ignored() const noexcept { return flags.OnlyView(); }
    /// The current page looks different.
    constexpr bool PictureChanged() const noexcept {
        return flags.Any(change::objects | change::attribute | change::picture | change::layers);
    }
    /// Pages came, went, moved or changed their size.
    constexpr bool PagesChanged() const noexcept {
        return flags.AnyOrUntold(change::pages | change::pageSize);
    }
};

}  // namespace qz
