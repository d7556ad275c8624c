// Raster pictures and their scaling: pure arithmetic on pixels.
#pragma once

#include <cstdint>
#include <vector>

namespace qz::sample {

/// Pixels row by row from the top, each 0xAARRGGBB; alpha is not used.
struct Raster {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;
};

struct PixelArea {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// The part `area` of the picture scaled to `width` x `height` pixels. Each pixel is the average of the part
/// of the source that it covers, so that a page stays readable when it is much smaller than its picture.
/// `area` lies within the scaled picture; the source is not empty.
Raster ScalePart(const Raster& source, int width, int height, PixelArea area);

}  // namespace qz::sample
