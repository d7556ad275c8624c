#include "panes/layers/layer_item_layout.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(LayerItemLayout, PartsStandSideBySideAtEveryResolution) {
    for (const std::int32_t dpi : {96, 120, 144, 192, 288}) {
        const LayerMetrics metrics = LayerMetrics::ForDpi(dpi);
        const LayerRow row{{0, 40, 500, 40 + metrics.rowHeight}, 200, 260, true, true};
        const LayerItemLayout layout = LayerItemLayout::Of(row, metrics);
        EXPECT_EQ(layout.checkMark.right, layout.text.left);
        EXPECT_EQ(layout.expandMark.right, layout.checkMark.left);
        const Rect check = MarkIn(layout.checkMark, metrics.checkMark);
        const Rect expand = MarkIn(layout.expandMark, metrics.expandMark);
        EXPECT_EQ(check.Intersected(layout.checkMark), check);
        EXPECT_EQ(expand.Intersected(layout.expandMark), expand);
        EXPECT_NEAR(check.Width(), 13.0 * dpi / 96, 0.51);
    }
}

TEST(LayerItemLayout, EachPartIsHitAndTheRowElsewhere) {
    const LayerMetrics metrics = LayerMetrics::ForDpi(96);
    const Rect bounds{0, 20, 300, 40};
    const LayerItemLayout whole = LayerItemLayout::Of({bounds, 60, 100, true, true}, metrics);
    EXPECT_EQ(whole.PartAt({59, 20}), LayerPart::CheckMark);
    EXPECT_EQ(whole.PartAt({60, 39}), LayerPart::Text);
    EXPECT_EQ(whole.PartAt({41, 30}), LayerPart::ExpandMark);
    EXPECT_EQ(whole.PartAt({100, 30}), LayerPart::Row);
    EXPECT_EQ(whole.PartAt({5, 30}), LayerPart::Row);
    EXPECT_EQ(whole.PartAt({60, 40}), LayerPart::None);
    const LayerItemLayout heading = LayerItemLayout::Of({bounds, 60, 100, false, true}, metrics);
    EXPECT_EQ(heading.PartAt({59, 30}), LayerPart::ExpandMark);
    const LayerItemLayout leaf = LayerItemLayout::Of({bounds, 60, 100, true, false}, metrics);
    EXPECT_EQ(leaf.PartAt({41, 30}), LayerPart::Row);
}

}  // namespace
}  // namespace qz
