#include "dialogs/grid/grid_steps.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(GridSteps, TextIsReadAsItsLeadingDigits) {
    EXPECT_EQ(StepsOf(L"12"), 12);
    EXPECT_EQ(StepsOf(L"12.9 mm"), 12);
    EXPECT_EQ(StepsOf(L"-5"), 0);
    EXPECT_EQ(StepsOf(L" 5"), 0);
    EXPECT_EQ(StepsOf(L""), 0);
    EXPECT_EQ(StepsOf(L"99999999999999999999999999999999"), 2147483647);
}

TEST(GridSteps, UnitsConvertWithoutOverflow) {
    EXPECT_EQ(StepsInTwips(10, GridUnit::Millimeters), 566);
    EXPECT_EQ(StepsInTwips(1, GridUnit::Millimeters), 56);
    EXPECT_EQ(StepsInTwips(1, GridUnit::Inches), 1440);
    EXPECT_EQ(StepsInTwips(7, GridUnit::Twips), 7);
    EXPECT_EQ(StepsInTwips(2147483647, GridUnit::Inches), 2147483647);
    EXPECT_EQ(StepsInTwips(2147483647, GridUnit::Millimeters), 2147483647);
    EXPECT_EQ(StepsInTwips(7, static_cast<GridUnit>(4)), 0);
}

}  // namespace
}  // namespace qz
