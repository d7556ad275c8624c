// The drawn images of the pane.
#include "panes/bookmarks/icon_shapes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qz {
namespace {

constexpr IconColour red = 0xFFFF0000;

std::uint32_t Alpha(IconColour colour) { return colour >> 24; }

TEST(IconDrawing, EdgesAreSmoothAndColoursAreNotDarkened) {
    // Covers the left half of the middle column of three, nothing of the last.
    const IconShape half{.points = {{0, 0}, {8, 0}, {8, 16}, {0, 16}}, .fill = red};
    const std::vector<IconColour> pixels = DrawIcon({&half, 1}, 3);
    EXPECT_EQ(pixels[0], red);
    EXPECT_NEAR(Alpha(pixels[1]), 128, 1);
    EXPECT_EQ(pixels[1] & 0xFFFFFF, red & 0xFFFFFF);
    EXPECT_EQ(pixels[2], 0u);
}

TEST(IconShapes, KindsAndStylesDifferAndStayInside) {
    std::vector<std::vector<IconColour>> drawn;
    for (const IconStyle style : {IconStyle::Classic, IconStyle::Outline}) {
        for (const IconKind kind : {IconKind::Expanded, IconKind::Collapsed, IconKind::Leaf}) {
            drawn.push_back(DrawIcon(IconShapes(style, kind, red), 16));
            const auto covered =
                std::ranges::count_if(drawn.back(), [](IconColour c) { return Alpha(c) > 0; });
            EXPECT_GT(covered, 40);
            for (std::size_t i = 0; i < 16; ++i) EXPECT_EQ(Alpha(drawn.back()[15 * 16 + i]), 0u);
        }
    }
    std::ranges::sort(drawn);
    EXPECT_EQ(std::ranges::adjacent_find(drawn), drawn.end());
}

}  // namespace
}  // namespace qz
