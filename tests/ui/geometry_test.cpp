#include "ui/geometry.h"
#include "ui/himetric.h"
#include "ui/wheel.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace qz {
namespace {

TEST(Wheel, CollectsPartsOfANotchAndDropsTheRestWhenTurnedBack) {
    WheelAccumulator wheel;
    const std::vector<std::pair<int, int>> turnsAndNotches = {{119, 0},  {1, 1},     {360, 3},  {-60, 0},
                                                              {-60, -1}, {100, 0},   {-30, 0},  {-90, -1},
                                                              {0, 0},    {-250, -2}, {-110, -1}};
    for (const auto& [turn, notches] : turnsAndNotches) EXPECT_EQ(wheel.Turn(turn), notches) << turn;
}

TEST(Geometry, RightAndBottomLieOutside) {
    const Rect rect = Rect::At({10, 20}, {30, 40});
    EXPECT_TRUE(rect.Contains({10, 20}));
    EXPECT_TRUE(rect.Contains({39, 59}));
    EXPECT_FALSE(rect.Contains({40, 59}));
    EXPECT_FALSE(rect.Contains({39, 60}));
}

TEST(Geometry, RectanglesThatOnlyTouchHaveNothingInCommon) {
    const Rect rect{0, 0, 10, 10};
    EXPECT_EQ(rect.Intersected({10, 0, 20, 10}), Rect{});
    EXPECT_EQ(rect.Intersected({0, -5, 10, 0}), Rect{});
    EXPECT_EQ(rect.Intersected({5, -5, 20, 3}), (Rect{5, 0, 10, 3}));
    EXPECT_EQ(rect.Intersected({4, 4, 4, 8}), Rect{});
}

TEST(Geometry, HimetricRoundsToTheNearestPixelAndStaysInRange) {
    const Size dpi{96, 144};
    EXPECT_EQ(HimetricToPixels({5080, 5080}, dpi), (Size{192, 288}));
    EXPECT_EQ(HimetricToPixels({13, 14}, {96, 96}), (Size{0, 1}));
    EXPECT_EQ(PixelsToHimetric({192, 288}, dpi), (Size{5080, 5080}));
    EXPECT_EQ(PixelsToHimetric({INT32_MAX, -INT32_MAX}, dpi), (Size{INT32_MAX, INT32_MIN}));
}

}  // namespace
}  // namespace qz
