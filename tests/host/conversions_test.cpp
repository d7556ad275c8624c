// Lengths, object paths and page steps.
#include "host/object_path.h"
#include "host/page_navigation.h"
#include "host/units.h"

#include <gtest/gtest.h>

#include <limits>

namespace qz {
namespace {

TEST(Units, FromTwips) {
    EXPECT_DOUBLE_EQ(FromTwips(12240, LengthUnit::Inches), 8.5);
    EXPECT_DOUBLE_EQ(RoundToShow(FromTwips(15840, LengthUnit::Millimetres)), 279.4);
    EXPECT_DOUBLE_EQ(FromTwips(-7, LengthUnit::Twips), -7);
    EXPECT_DOUBLE_EQ(FromTwips(5, static_cast<LengthUnit>(9)), 5);
    // Halves away from zero; 0.125 and its negative are exact in binary.
    EXPECT_DOUBLE_EQ(RoundToShow(0.125), 0.13);
    EXPECT_DOUBLE_EQ(RoundToShow(-0.125), -0.13);
}

TEST(Units, MillimetresBackToTwips) {
    EXPECT_EQ(TwipsFromMillimetres(10), 566);
    EXPECT_EQ(TwipsFromMillimetres(-10), -566);
    EXPECT_EQ(TwipsFromMillimetres(std::numeric_limits<std::int32_t>::max()), 121747104396);
}

TEST(ObjectPath, NamesPagesAndLayers) {
    EXPECT_EQ(std::wstring(std::wstring_view(PagePath(1))), L"Pages[1]");
    EXPECT_EQ(std::wstring(std::wstring_view(PagePath(std::numeric_limits<std::int32_t>::min()))),
              L"Pages[-2147483648]");
    EXPECT_EQ(LayerPath(L"Roads"), L"Layers[Roads]");
}

TEST(PageNavigation, Steps) {
    struct Case {
        PageStep step;
        std::int32_t current, count;
        std::optional<std::int32_t> target;
    };
    const Case cases[] = {
        {PageStep::First, 3, 5, 1},
        {PageStep::First, 1, 1, 1},
        {PageStep::Previous, 3, 5, 2},
        {PageStep::Previous, 1, 5, std::nullopt},
        {PageStep::Next, 4, 5, 5},
        {PageStep::Next, 5, 5, std::nullopt},
        {PageStep::Next, std::numeric_limits<std::int32_t>::max(), 5, std::nullopt},
        {PageStep::Last, 2, 5, 5},
        {PageStep::Last, 1, 1, 1},
        {PageStep::First, 0, 0, std::nullopt},
        {PageStep::Last, 0, 0, std::nullopt},
    };
    for (const Case& c : cases) EXPECT_EQ(StepTarget(c.step, c.current, c.count), c.target) << c.current;
}

}  // namespace
}  // namespace qz
