// What a host tells of its changes. docs/host-contract.md says who goes by which bit.
#pragma once

#include <cstdint>

namespace qz {

/// The bits.
namespace change {

inline constexpr std::uint32_t none = 0;
inline constexpr std::uint32_t mode = 0x1;
inline constexpr std::uint32_t selection = 0x2;
inline constexpr std::uint32_t objects = 0x10;  // objects of a page were added, removed or moved
inline constexpr std::uint32_t currentPage = 0x20;
inline constexpr std::uint32_t view = 0x40;   // zoomed or scrolled
inline constexpr std::uint32_t pages = 0x80;  // pages were added, removed or moved
inline constexpr std::uint32_t pageSize = 0x100;
inline constexpr std::uint32_t documentSettings = 0x200;  // document information, security, fonts, options
inline constexpr std::uint32_t attribute = 0x400;         // an attribute of an object was written
inline constexpr std::uint32_t picture = 0x1800;  // either bit: the current page looks different otherwise
inline constexpr std::uint32_t layers = 0x4000;   // a layer was shown or hidden
inline constexpr std::uint32_t outline = 0x8000;

}  // namespace change

/// The flags of one change.
struct ChangeFlags {
    std::uint32_t bits = change::none;

    constexpr bool Any(std::uint32_t mask) const noexcept { return (bits & mask) != 0; }
    /// A host that tells nothing may mean anything.
    constexpr bool AnyOrUntold(std::uint32_t mask) const noexcept { return bits == 0 || Any(mask); }
    /// Nothing but the view moved.
    constexpr bool OnlyView() const noexcept { return bits == change::view; }
};

}  // namespace qz
