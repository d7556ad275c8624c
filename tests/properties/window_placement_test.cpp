#include "properties/model/window_placement.h"

#include <gtest/gtest.h>

#include <limits>

namespace qz {
namespace {

constexpr Rect desktop{0, 0, 1280, 1024};
constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();

TEST(WindowPlacement, LimitsTheSizeByTheRightAndBottomEdges) {
    EXPECT_EQ(Clamp({10, 20, 1010, 120}, desktop), (Rect{10, 20, 610, 320}));
    EXPECT_EQ(Clamp({10, 20, 0, 900}, desktop), (Rect{10, 20, 410, 620}));
    EXPECT_EQ(Clamp({10, 20, 510, 420}, desktop), (Rect{10, 20, 510, 420}));
    EXPECT_EQ(Clamp({10, 20, 1010, 120}, desktop, 144), (Rect{10, 20, 910, 470}));
}

TEST(WindowPlacement, ShiftsTheWindowInside) {
    EXPECT_EQ(Clamp({1000, 900, 1500, 1300}, desktop), (Rect{780, 624, 1280, 1024}));
    EXPECT_EQ(Clamp({-100, -50, 400, 350}, desktop), (Rect{0, 0, 500, 400}));
    constexpr Rect withMonitorAtTheLeft{-1920, -100, 1280, 1024};
    EXPECT_EQ(Clamp({-1800, -50, -1300, 350}, withMonitorAtTheLeft), (Rect{-1800, -50, -1300, 350}));
    EXPECT_EQ(Clamp({-2000, -500, -1500, -100}, withMonitorAtTheLeft), (Rect{-1920, -100, -1420, 300}));
    EXPECT_EQ(Clamp({50, 50, 550, 450}, {0, 0, 320, 200}), (Rect{0, 0, 500, 400})) << "left and top show";
}

TEST(WindowPlacement, CentresOnAnyOwnerInsideTheDesktop) {
    constexpr Rect window{0, 0, 500, 400}, left{-1000, 0, 0, 1000}, small{0, 0, 320, 200};
    EXPECT_EQ(Centred(window, desktop, desktop), (Rect{390, 312, 890, 712}));
    EXPECT_EQ(Centred(window, left, left), (Rect{-750, 300, -250, 700}));
    EXPECT_EQ(Centred(window, {600, 500, 700, 560}, desktop), (Rect{400, 330, 900, 730})) << "a smaller one";
    EXPECT_EQ(Centred(window, {1200, 10, 1300, 60}, desktop), (Rect{780, 0, 1280, 400})) << "at the edge";
    EXPECT_EQ(Centred(window, small, small), window) << "left and top show";
}

TEST(WindowPlacement, AnyFourNumbersMakeAWindowOnTheDesktop) {
    for (const Rect& garbage :
         {Rect{lowest, lowest, highest, highest}, Rect{highest, highest, lowest, lowest},
          Rect{lowest, lowest, lowest, lowest}, Rect{highest, highest, highest, highest}}) {
        for (const Rect& placed : {Clamp(garbage, desktop), Centred(garbage, desktop, desktop),
                                   Centred(garbage, garbage, desktop)}) {
            EXPECT_EQ(placed.Intersected(desktop), placed);
            EXPECT_TRUE(placed.Width() >= 400 && placed.Width() <= 600);
            EXPECT_TRUE(placed.Height() >= 300 && placed.Height() <= 600);
        }
    }
}

TEST(WindowPlacement, IsSavedWithAllItsEdges) {
    EXPECT_EQ(SavedPlacement(1, 2, 3, 4), (Rect{1, 3, 2, 4}));
    EXPECT_EQ(SavedPlacement(1, 2, std::nullopt, 4), std::nullopt);
}

}  // namespace
}  // namespace qz
