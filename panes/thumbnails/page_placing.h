// Where inserted pages go. The host can only append pages; a block appended is then moved to its place.
#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

namespace qz {

/// Where pages are inserted. Page numbers are 1-based.
struct Insertion {
    long position = 1;        ///< the number that the first inserted page gets before anything is deleted
    std::vector<long> moved;  ///< pages of the same document that the insertion moves: deleted once appended
};

/// The arguments of the host's page move: `count` pages from `first` on shall start at `target`.
struct PageMove {
    long first = 0;
    long count = 0;
    long target = 0;

    friend bool operator==(const PageMove&, const PageMove&) = default;
};

/// Page numbers from the highest down, each once: deleting in this order renumbers no page still to be
/// deleted.
inline std::vector<long> FromHighestDown(std::vector<long> pages) {
    std::sort(pages.begin(), pages.end(), std::greater<>());
    pages.erase(std::unique(pages.begin(), pages.end()), pages.end());
    return pages;
}

/// How a block of `appended` pages at the end gets to `position`, once the pages `deleted` (each once, none
/// of them in the block) are gone. `pageCount` is the count before they were deleted. Every deleted page
/// lowers the count, and those before the position lower it too, so that exactly the appended block moves.
inline PageMove PlaceAppended(long pageCount, long appended, long position, std::span<const long> deleted) {
    const auto before =
        std::count_if(deleted.begin(), deleted.end(), [&](long page) { return page < position; });
    const long first = pageCount - static_cast<long>(deleted.size()) - appended + 1;
    const long target = std::clamp(position - static_cast<long>(before), 1L, std::max(first, 1L));
    return {.first = first, .count = appended, .target = target};
}

}  // namespace qz
