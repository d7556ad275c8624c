// The picture of dragged pages, pixel by pixel where it matters.
#include "panes/thumbnails/drag_picture.h"
#include "tests/support/host_under_test.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

constexpr DWORD opaqueWhite = 0xFFFFFFFF;
constexpr DWORD frame = 0xFF7F7F7F;

class DragPictureTest : public ::testing::Test {
  protected:
    DragPictureTest() {
        model.SetClientSize(400, 400);
        model.SetRecords(
            {{.width = 20, .height = 30}, {.width = -1, .height = 5}, {.width = 40, .height = 10}});
    }

    DragPicture Make(const std::vector<std::size_t>& indexes) {
        return MakeDragPicture(painter, model, indexes, host.Get(), 14);
    }
    static DWORD At(const DragPicture& picture, LONG x, LONG y) {
        return picture.pixels.Pixels()[static_cast<std::size_t>(y * picture.pixels.Extent().cx + x)];
    }

    ComPtr<IReferenceHost> host = MakeHost(3);
    ThumbnailModel model;
    ThumbnailPainter painter{model};
};

TEST_F(DragPictureTest, SheetsWithAnAreaLieOverEachOther) {
    const DragPicture picture = Make({0, 1, 2});
    ASSERT_EQ(picture.pixels.Extent().cx, 42);
    ASSERT_EQ(picture.pixels.Extent().cy, 32);
    EXPECT_EQ(picture.hotSpot.x, 21);
    EXPECT_EQ(picture.hotSpot.y, 16);
    EXPECT_EQ(At(picture, 0, 0), frame);
    EXPECT_EQ(At(picture, 0, 29), frame);
    EXPECT_EQ(At(picture, 2, 2), frame) << "the second sheet, the damaged page passed over";
    EXPECT_EQ(At(picture, 41, 11), frame);
    EXPECT_EQ(At(picture, 41, 31), opaqueWhite);
    EXPECT_EQ(At(picture, 30, 0), opaqueWhite);
}

TEST_F(DragPictureTest, OfManyPagesOnlySomeAreDrawn) {
    model.SetRecords(std::vector<ThumbnailRecord>(200, {.width = 20, .height = 30}));
    host->NewDocument(200, 3000, 4400);
    std::vector<std::size_t> all(200);
    for (std::size_t i = 0; i < all.size(); ++i) all[i] = i;
    host->ClearLog();
    EXPECT_EQ(Make(all).pixels.Extent().cx, 20 + 62);
    EXPECT_EQ(CallCount(host.Get(), L"DrawCurrentPage"), 32);
}

}  // namespace
}  // namespace qz
