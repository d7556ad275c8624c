// What the host's change flags mean for the thumbnails.
#pragma once

#include <cstdint>

namespace qz {

/// The bits of the host's change flags as the thumbnail pane reads them.
struct HostChange {
    std::uint32_t flags;

    /// The flags say nothing but that the view moved.
    constexpr bool Ignored() const noexcept { return flags == 0x40; }
    /// The current page looks different.
    constexpr bool PictureChanged() const noexcept { return (flags & 0x5C10) != 0; }
    /// Pages came, went, moved or changed their size; a host that tells nothing may mean that too.
    constexpr bool PagesChanged() const noexcept { return flags == 0 || (flags & 0x180) != 0; }
};

}  // namespace qz
