#include "properties/model/entry_layouts.h"
#include "properties/model/picture_filter.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(FieldLayout, FollowsTheModeAndTheResolution) {
    const FieldMetrics usual{{260, 116}, 96, 70};
    EXPECT_EQ(ArrangeField(EditMode::Integer, usual), (FieldPlaces{{0, 2, 60, 22}, {60, 2, 76, 22}, {}}));
    EXPECT_EQ(ArrangeField(EditMode::Real, {{260, 116}, 192, 0}), (FieldPlaces{{0, 4, 120, 44}, {}, {}}));
    EXPECT_EQ(ArrangeField(EditMode::Lines, usual), (FieldPlaces{{0, 2, 260, 114}, {}, {}}));
    EXPECT_EQ(ArrangeField(EditMode::File, usual), (FieldPlaces{{0, 2, 186, 22}, {}, {190, 2, 260, 22}}));
    EXPECT_EQ(ArrangeField(EditMode::DatabaseField, {{100, 60}, 96, 70}),
              (FieldPlaces{{0, 2, 100, 22}, {}, {0, 26, 70, 46}}))
        << "narrow";
    EXPECT_EQ(ArrangeField(EditMode::DatabaseField, {{100, 40}, 96, 70}),
              (FieldPlaces{{0, 2, 48, 22}, {}, {52, 2, 100, 22}}))
        << "narrow and low";
    EXPECT_EQ(ArrangeField(EditMode::Integer, {{0, 0}, 96, 0}), FieldPlaces{});
}

TEST(ChoiceLayout, UsesAsFewColumnsAsShowAll) {
    ChoiceMetrics metrics{{260, 116}, 96, 13, 60, 4};
    EXPECT_EQ(ArrangeChoices(metrics).choices[3], (Rect{0, 77, 64, 94}));
    metrics.count = 12;  // 5 fit below each other
    const ChoicePlaces three = ArrangeChoices(metrics);
    EXPECT_EQ(three.choices[3].left, 0) << "down the columns, which are equally long";
    EXPECT_EQ(three.choices[4].left, 64);
    EXPECT_EQ(three.choices[11].left, 128);
    EXPECT_LE(three.height, 116);
    metrics.count = 50;
    const ChoicePlaces scrolled = ArrangeChoices(metrics);
    EXPECT_EQ(scrolled.choices[49].right, 256);
    EXPECT_EQ(scrolled.height, scrolled.choices[12].bottom);
    EXPECT_GT(scrolled.height, 116);
    metrics.count = 0;
    EXPECT_EQ(ArrangeChoices(metrics).height, 22);
    metrics = {{0, 0}, 96, 13, 60, 2};
    EXPECT_EQ(ArrangeChoices(metrics).choices.size(), 2U);
}

TEST(ChoiceLayout, ScrollsNoMoreThanNeeded) {
    EXPECT_EQ(ScrolledTo(10, 20, 40, 100), 10);
    EXPECT_EQ(ScrolledTo(10, 5, 25, 100), 5);
    EXPECT_EQ(ScrolledTo(10, 200, 220, 100), 120);
    EXPECT_EQ(ScrolledTo(10, 20, 300, 100), 20) << "too high: its top";
}

}  // namespace
}  // namespace qz
