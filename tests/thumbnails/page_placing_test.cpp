// Where inserted pages end up, against a document in which they are simply put there.
#include "panes/thumbnails/page_placing.h"

#include <gtest/gtest.h>

#include <numeric>

namespace qz {
namespace {

using Pages = std::vector<long>;

/// What the host does: append, delete one by one, move the block.
Pages Inserted(Pages pages, const Pages& block, long position, const Pages& moved) {
    pages.insert(pages.end(), block.begin(), block.end());
    const auto count = static_cast<long>(pages.size());
    const Pages deleted = FromHighestDown(moved);
    for (const long page : deleted) pages.erase(pages.begin() + page - 1);
    const PageMove move = PlaceAppended(count, static_cast<long>(block.size()), position, deleted);
    EXPECT_EQ(move.first + move.count - 1, static_cast<long>(pages.size())) << "the block is the end";
    EXPECT_GE(move.target, 1);
    EXPECT_LE(move.target, move.first);
    const Pages taken(pages.begin() + move.first - 1, pages.end());
    pages.erase(pages.begin() + move.first - 1, pages.end());
    pages.insert(pages.begin() + move.target - 1, taken.begin(), taken.end());
    return pages;
}

/// The same as one would say it: the block goes before the page at `position`, then the moved ones go.
Pages Expected(const Pages& pages, const Pages& block, long position, const Pages& moved) {
    Pages result;
    for (long page = 1; page <= static_cast<long>(pages.size()) + 1; ++page) {
        if (page == position) result.insert(result.end(), block.begin(), block.end());
        const bool stays = std::find(moved.begin(), moved.end(), page) == moved.end();
        if (page <= static_cast<long>(pages.size()) && stays)
            result.push_back(pages[static_cast<std::size_t>(page - 1)]);
    }
    return result;
}

TEST(PagePlacing, EveryMoveAndCopyWithinASmallDocument) {
    for (long count = 0; count <= 6; ++count) {
        Pages pages(static_cast<std::size_t>(count));
        std::iota(pages.begin(), pages.end(), 1);
        for (unsigned chosen = 0; chosen < 1u << count; ++chosen) {
            Pages moved;
            for (long page = 1; page <= count; ++page) {
                if (chosen & (1u << (page - 1))) moved.push_back(page);
            }
            const Pages block = moved.empty() ? Pages{101, 102, 103} : moved;
            for (long position = 1; position <= count + 1; ++position) {
                EXPECT_EQ(Inserted(pages, block, position, moved), Expected(pages, block, position, moved))
                    << count << " pages, chosen " << chosen << ", position " << position;
            }
        }
    }
}

TEST(PagePlacing, PositionsOutsideTheDocumentAreItsEnds) {
    EXPECT_EQ(PlaceAppended(10, 2, -5, {}), (PageMove{9, 2, 1}));
    EXPECT_EQ(PlaceAppended(10, 2, 10, {}), (PageMove{9, 2, 9}));
}

TEST(PagePlacing, AnyOrderOfPagesIsDeletedFromTheHighestDownEachOnce) {
    EXPECT_EQ(FromHighestDown({2, 9, 2, 5}), (Pages{9, 5, 2}));
}

}  // namespace
}  // namespace qz
