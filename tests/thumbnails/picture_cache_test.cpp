// The budget of the kept pictures.
#include "panes/thumbnails/picture_cache.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

Picture Square(std::int32_t side) {
    return {side, side, std::vector<std::uint32_t>(static_cast<std::size_t>(side) * side)};
}

constexpr std::size_t squareBytes = 10 * 10 * 4;

TEST(PictureCache, DropsTheLeastRecentlyUsedFirst) {
    PictureCache cache(3 * squareBytes);
    for (std::size_t i = 0; i < 3; ++i) cache.Keep(i, Square(10));
    EXPECT_NE(cache.Use(0), nullptr);
    cache.Keep(3, Square(10));
    cache.Trim({});
    EXPECT_EQ(cache.Use(1), nullptr);
    EXPECT_NE(cache.Use(0), nullptr);
    EXPECT_EQ(cache.Count(), 3u);
    EXPECT_EQ(cache.Bytes(), 3 * squareBytes);
}

TEST(PictureCache, NeverDropsWhatIsVisible) {
    PictureCache cache(2 * squareBytes);
    for (std::size_t i = 0; i < 6; ++i) cache.Keep(i, Square(10));
    cache.Trim({0, 4});
    for (std::size_t i = 0; i < 4; ++i) EXPECT_NE(cache.Use(i), nullptr) << i;
    EXPECT_EQ(cache.Count(), 4u);
    cache.Trim({5, 5});
    EXPECT_EQ(cache.Count(), 2u);
}

TEST(PictureCache, ReplacingAndDroppingKeepsTheSumRight) {
    PictureCache cache;
    cache.Keep(7, Square(10));
    cache.Keep(7, Square(20));
    EXPECT_EQ(cache.Bytes(), 4 * squareBytes);
    cache.Drop(7);
    cache.Drop(7);
    EXPECT_EQ(cache.Bytes(), 0u);
    EXPECT_EQ(cache.Use(7), nullptr);
}

}  // namespace
}  // namespace qz
