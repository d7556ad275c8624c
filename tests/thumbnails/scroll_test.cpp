// Scroll limits, scrolling into view and the current-page mark.
#include "panes/thumbnails/host_changes.h"
#include "panes/thumbnails/thumbnail_model.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

/// One record a row, each 100 pixels high.
struct Column : ThumbnailModel {
    Column(std::size_t count, std::int32_t clientHeight) {
        SetClientSize(100, clientHeight);
        SetRecords(std::vector<ThumbnailRecord>(count, {.width = 80, .height = 100}));
    }
};

TEST(ThumbnailScroll, UpperLimitFirstThenLower) {
    constexpr ScrollLimits tall{1000, 300};
    EXPECT_EQ(tall.Clamp(5000), 716);
    EXPECT_EQ(tall.Clamp(-1), 0);
    constexpr ScrollLimits shorterThanTheView{-12, 300};
    EXPECT_EQ(shorterThanTheView.Clamp(50), 0);
}

TEST(ThumbnailScroll, IntoViewMovesAsLittleAsNeeded) {
    Column model(20, 250);
    EXPECT_FALSE(model.ScrollIntoView(0));
    EXPECT_TRUE(model.ScrollIntoView(2));  // 220..320 and its gap end at the view's lower edge
    EXPECT_EQ(model.ScrollPosition(), 330 - 250);
    EXPECT_FALSE(model.ScrollIntoView(1));
    EXPECT_TRUE(model.ScrollIntoView(0));
    EXPECT_EQ(model.ScrollPosition(), 0);
    model.ScrollIntoView(19);
    EXPECT_EQ(model.ScrollPosition(), 19 * 110 + 100 - 12 - 250 + 16) << "the limit comes before the gap";
}

TEST(ThumbnailScroll, PositionFollowsAShrinkingDocument) {
    Column model(20, 250);
    model.ScrollTo(100000);
    EXPECT_EQ(model.ScrollPosition(), 19 * 110 + 100 - 12 - 250 + 16);
    model.SetRecords({{.width = 80, .height = 100}});
    EXPECT_EQ(model.ScrollPosition(), 0);
}

TEST(ThumbnailModel, HitAndVisibleFollowTheScrolling) {
    Column model(20, 250);
    model.ScrollTo(300);
    EXPECT_EQ(model.HitTest(10, 40), 3u);  // 330..430 in the content
    EXPECT_EQ(model.HitTest(10, 20), std::nullopt);
    EXPECT_EQ(model.VisibleIn(0, 250), (IndexRange{2, 5}));
    // A frame reaches out of its thumbnail: 4 pixels, less the drawing margin of 6.
    model.ScrollTo(220);
    EXPECT_EQ(model.VisibleIn(0, 0), (IndexRange{1, 2}));
    EXPECT_EQ(model.VisibleIn(2, 2), (IndexRange{2, 3}));
}

TEST(ThumbnailModel, OneCurrentPageAtMost) {
    Column model(5, 250);
    const auto marked = [&] {
        std::vector<std::size_t> indexes;
        for (std::size_t i = 0; i < model.Records().size(); ++i) {
            if (model.Records()[i].flags & thumbnailCurrent) indexes.push_back(i);
        }
        return indexes;
    };
    model.MakeCurrent(2);
    model.MakeCurrent(4);
    EXPECT_EQ(marked(), std::vector<std::size_t>{4});
    model.MakeCurrent(5);  // beyond the pages
    EXPECT_EQ(marked(), std::vector<std::size_t>{});
    EXPECT_EQ(model.Current(), std::nullopt);
    model.MakeCurrent(1);
    model.SetRecords({{.width = 1, .height = 1}});
    model.MakeCurrent(0);
    EXPECT_EQ(marked(), std::vector<std::size_t>{0});
}

TEST(HostChange, FlagsDecideWhatIsRedone) {
    EXPECT_TRUE((HostChange{0x40}.Ignored()));
    EXPECT_FALSE((HostChange{0x41}.Ignored()));
    EXPECT_TRUE((HostChange{0}.PagesChanged()));
    for (const std::uint32_t bit : {0x80u, 0x100u}) EXPECT_TRUE((HostChange{bit}.PagesChanged()));
    for (const std::uint32_t bit : {0x10u, 0x400u, 0x800u, 0x1000u, 0x4000u}) {
        EXPECT_TRUE((HostChange{bit}.PictureChanged())) << bit;
        EXPECT_FALSE((HostChange{bit}.PagesChanged())) << bit;
    }
    EXPECT_FALSE((HostChange{0x8001}.PictureChanged()));
}

}  // namespace
}  // namespace qz
