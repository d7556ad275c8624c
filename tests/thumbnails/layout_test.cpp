// The flow of thumbnails, hit testing and culling.
#include "panes/thumbnails/thumbnail_layout.h"
#include "panes/thumbnails/thumbnail_model.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace qz {
namespace {

constexpr PageSize letter{12240, 15840};

std::vector<ThumbnailRecord> Letters(std::size_t count) {
    return std::vector<ThumbnailRecord>(count, MakeThumbnail(letter, 14));
}

TEST(ThumbnailSize, RoundsToPointsAndTruncatesPixels) {
    const ThumbnailRecord record = MakeThumbnail(letter, 14);
    EXPECT_EQ(record.width, 85);
    EXPECT_EQ(record.height, 110);
    EXPECT_EQ(PointsFromTwips(10), 1);
    EXPECT_EQ(PointsFromTwips(9), 0);
    EXPECT_EQ(PointsFromTwips(-10), -1);
    EXPECT_EQ(ThumbnailPixels(-15840, 14), -110);
    EXPECT_EQ(ThumbnailPixels(std::numeric_limits<std::int32_t>::max(), 50), 53687091);
    EXPECT_EQ(ThumbnailPixels(std::numeric_limits<std::int32_t>::min(), 50), -53687091);
}

TEST(ThumbnailLayout, WrapsAtTheUsableWidth) {
    auto records = Letters(5);
    ThumbnailLayout layout;
    layout.Arrange(records, 212);  // 200 usable
    EXPECT_EQ(records[1].x, 95);
    EXPECT_EQ(records[1].y, 0);
    EXPECT_EQ(records[2].x, 0);
    EXPECT_EQ(records[2].y, 120);
    EXPECT_EQ(records[4].y, 240);
    EXPECT_EQ(layout.ContentHeight(), 240 + 110 - 12);
    layout.Arrange(records, 192);  // exactly fits two
    EXPECT_EQ(records[1].x, 95);
    layout.Arrange(records, 191);
    EXPECT_EQ(records[1].x, 0);
}

TEST(ThumbnailLayout, RowIsAsTallAsItsTallest) {
    std::vector<ThumbnailRecord> records{
        {.width = 80, .height = 30}, {.width = 80, .height = 90}, {.width = 80, .height = 10}};
    ThumbnailLayout layout;
    layout.Arrange(records, 200);
    EXPECT_EQ(records[2].y, 100);
    EXPECT_EQ(layout.ContentHeight(), 100 + 10 - 12);
}

TEST(ThumbnailLayout, TooWideFirstRecordLandsBelowAnEmptyRow) {
    std::vector<ThumbnailRecord> records{{.width = 300, .height = 40}, {.width = 50, .height = 20}};
    ThumbnailLayout layout;
    layout.Arrange(records, 212);
    EXPECT_EQ(records[0].x, 0);
    EXPECT_EQ(records[0].y, 10);
    EXPECT_EQ(records[1].y, 60);
    EXPECT_EQ(layout.HitTest(records, 5, 12), 0u);
    EXPECT_EQ(layout.HitTest(records, 5, 5), std::nullopt);
}

TEST(ThumbnailLayout, EmptyDocument) {
    ThumbnailLayout layout;
    layout.Arrange({}, 200);
    EXPECT_EQ(layout.ContentHeight(), -12);
    EXPECT_EQ(layout.HitTest({}, 0, 0), std::nullopt);
    EXPECT_EQ(layout.RecordsIn(0, 1000), IndexRange{});
}

TEST(ThumbnailLayout, SizesOfDamagedPagesStayInRange) {
    constexpr std::int32_t big = std::numeric_limits<std::int32_t>::max();
    std::vector<ThumbnailRecord> records;
    for (int i = 0; i < 100; ++i) {
        records.push_back({.width = i % 3 == 0 ? -big : big, .height = i % 2 == 0 ? big : -big});
    }
    ThumbnailLayout layout;
    layout.Arrange(records, 300);
    EXPECT_EQ(layout.ContentHeight(), big);
    for (const ThumbnailRecord& record : records) EXPECT_GE(record.y, 0);
    EXPECT_NO_FATAL_FAILURE(layout.HitTest(records, big, big));

    ThumbnailModel model;
    model.SetRecords(records);
    model.SetClientSize(300, 300);
    for (const std::int64_t position : {std::int64_t{0}, std::int64_t{big}}) {
        model.ScrollTo(position);
        for (std::size_t i = 0; i < records.size(); ++i) {
            const Rect area = model.DrawnArea(i);
            EXPECT_EQ(area.Width() > 0, records[i].width > 0) << i;
            EXPECT_EQ(area.Height(), area.bottom - area.top) << i;
        }
    }
}

/// What the pane's users see must not depend on the search being clever.
TEST(ThumbnailLayout, SearchAgreesWithAWalkOverAllRecords) {
    std::mt19937 random(20240607);
    for (int round = 0; round < 50; ++round) {
        std::vector<ThumbnailRecord> records(random() % 60);
        for (ThumbnailRecord& record : records) {
            record.width = static_cast<std::int32_t>(random() % 140) - 10;
            record.height = static_cast<std::int32_t>(random() % 140) - 10;
        }
        ThumbnailLayout layout;
        layout.Arrange(records, 50 + static_cast<std::int32_t>(random() % 400));
        for (int probe = 0; probe < 200; ++probe) {
            const auto x = static_cast<std::int32_t>(random() % 450);
            const auto y = static_cast<std::int32_t>(random() % 3000) - 50;
            std::optional<std::size_t> walked;
            for (std::size_t i = 0; i < records.size() && !walked; ++i) {
                const ThumbnailRecord& r = records[i];
                if (x >= r.x && x < r.x + r.width && y >= r.y && y < r.y + r.height) walked = i;
            }
            ASSERT_EQ(layout.HitTest(records, x, y), walked);

            const IndexRange range = layout.RecordsIn(y, y + 200);
            for (std::size_t i = 0; i < records.size(); ++i) {
                const bool touches =
                    records[i].height > 0 && records[i].y + records[i].height >= y && records[i].y <= y + 200;
                if (touches) {
                    ASSERT_TRUE(range.Contains(i)) << "record " << i << " would not be painted";
                }
            }
        }
    }
}

}  // namespace
}  // namespace qz
