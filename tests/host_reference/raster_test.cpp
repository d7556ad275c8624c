#include "sample/document/scaled_picture.h"
#include "sample/host/raster_cache.h"
#include "sample/host/view_geometry.h"

#include <gtest/gtest.h>

namespace qz::sample {
namespace {

constexpr uint32_t white = 0xFFFFFFFF;
constexpr uint32_t black = 0xFF000000;

Raster Checked(int width, int height) {
    Raster raster{width, height, {}};
    for (int i = 0; i < width * height; ++i)
        raster.pixels.push_back((i % width + i / width) % 2 ? black : white);
    return raster;
}

TEST(Scaling, AveragesWhatAPixelCovers) {
    const Raster grey = ScalePart(Checked(64, 64), 8, 8, {0, 0, 8, 8});
    ASSERT_EQ(grey.pixels.size(), 64u);
    for (const uint32_t pixel : grey.pixels) EXPECT_NEAR(static_cast<int>(pixel & 0xFF), 128, 1);
}

TEST(Scaling, OfOneToOneChangesNothingAndPartsFitTogether) {
    const Raster source = Checked(20, 10);
    EXPECT_EQ(ScalePart(source, 20, 10, {0, 0, 20, 10}).pixels, source.pixels);
    const Raster whole = ScalePart(source, 7, 5, {0, 0, 7, 5});
    const Raster part = ScalePart(source, 7, 5, {2, 1, 4, 3});
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(part.pixels[static_cast<size_t>(y * 4 + x)],
                      whole.pixels[static_cast<size_t>((y + 1) * 7 + x + 2)]);
        }
    }
}

TEST(RasterCaches, DropTheLeastRecentlyUsedFirst) {
    const auto picture = [] {
        return std::make_shared<const Raster>(Raster{10, 10, std::vector<uint32_t>(100)});
    };
    RasterCache cache(1000);  // two pictures of 400 bytes
    cache.Add(1, picture());
    cache.Add(2, picture());
    EXPECT_TRUE(cache.Find(1));
    cache.Add(3, picture());
    EXPECT_TRUE(cache.Find(1));
    EXPECT_FALSE(cache.Find(2));
    EXPECT_EQ(cache.BytesKept(), 800u);
}

TEST(ViewAxes, CentreWhatFitsAndClampWhatScrolls) {
    const ViewAxis roomy{500, 200};
    EXPECT_EQ(roomy.MostScroll(), 0);
    EXPECT_EQ(roomy.PageStart(0), 150);
    const ViewAxis tight{200, 500};
    EXPECT_EQ(tight.MostScroll(), 348);
    EXPECT_EQ(tight.PageStart(0), 24);
    EXPECT_EQ(tight.PageStart(9999), 24 - 348);
    EXPECT_EQ(tight.Clamp(-5), 0);
}

}  // namespace
}  // namespace qz::sample
