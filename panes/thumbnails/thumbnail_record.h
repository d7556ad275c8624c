// What the pane keeps for each page.
#pragma once

#include "host/page_size.h"

#include <cstdint>

namespace qz {

enum ThumbnailFlags : std::uint8_t {
    thumbnailSelected = 1,
    thumbnailCurrent = 2,
    thumbnailInverted = 4,  // the drop target; set on the copy that is drawn, never kept
};

/// One page's thumbnail; its place in the array is its zero-based page index. Its picture, if drawn, is in
/// the pane's picture cache. Sizes are in pixels and may be zero or negative for a damaged page, which is
/// then not drawn. Positions are in content coordinates, before scrolling.
struct ThumbnailRecord {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::uint8_t flags = 0;

    bool HasArea() const noexcept { return width > 0 && height > 0; }
};

static_assert(sizeof(ThumbnailRecord) <= 64, "a document of 100,000 pages has as many records");

/// Twips to whole points (20 twips each), halves away from zero.
constexpr std::int32_t PointsFromTwips(std::int32_t twips) noexcept {
    const std::int32_t half = twips < 0 ? -10 : 10;
    return static_cast<std::int32_t>((std::int64_t{twips} + half) / 20);
}

/// A page length as a thumbnail's pixels at a size factor in percent: whole points first, then truncated.
constexpr std::int32_t ThumbnailPixels(std::int32_t twips, std::int32_t factor) noexcept {
    return static_cast<std::int32_t>(std::int64_t{PointsFromTwips(twips)} * factor / 100);
}

/// A record for a page of that size, not yet placed.
constexpr ThumbnailRecord MakeThumbnail(const PageSize& page, std::int32_t factor) noexcept {
    return {.width = ThumbnailPixels(page.width, factor), .height = ThumbnailPixels(page.length, factor)};
}

}  // namespace qz
