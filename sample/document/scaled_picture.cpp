#include "sample/document/scaled_picture.h"

#include <algorithm>

namespace qz::sample {

namespace {

/// What one pixel of the result takes from one row or column of the source: pixels first..last, of which the
/// outer two count in part. Weights add up to 256.
struct Span {
    int first;
    std::vector<uint32_t> weights;
};

constexpr uint32_t whole = 256;

/// The span of result pixel `index` of `scaled`, over a source of `size` pixels. An enlarged picture repeats
/// its pixels.
Span SpanOf(int index, int scaled, int size) {
    // In units of 1 / scaled of a source pixel, so that all borders are whole numbers.
    const int64_t begin = static_cast<int64_t>(index) * size;
    const int64_t end = begin + size;
    const int first = static_cast<int>(begin / scaled);
    const int last = static_cast<int>(std::min<int64_t>((end + scaled - 1) / scaled, size)) - 1;
    Span span{first, {}};
    uint32_t given = 0;
    for (int pixel = first; pixel <= last; ++pixel) {
        const int64_t from = std::max(begin, static_cast<int64_t>(pixel) * scaled);
        const int64_t to = std::min(end, static_cast<int64_t>(pixel + 1) * scaled);
        span.weights.push_back(static_cast<uint32_t>((to - from) * whole / size));
        given += span.weights.back();
    }
    span.weights[span.weights.size() / 2] += whole - given;  // what rounding left
    return span;
}

struct Sum {
    uint64_t red = 0;
    uint64_t green = 0;
    uint64_t blue = 0;

    void Add(uint32_t pixel, uint32_t weight) {
        red += static_cast<uint64_t>((pixel >> 16) & 0xFF) * weight;
        green += static_cast<uint64_t>((pixel >> 8) & 0xFF) * weight;
        blue += static_cast<uint64_t>(pixel & 0xFF) * weight;
    }
    uint32_t Pixel() const {
        const auto level = [](uint64_t sum) { return static_cast<uint32_t>((sum + 0x8000) >> 16); };
        return 0xFF000000u | (level(red) << 16) | (level(green) << 8) | level(blue);
    }
};

uint32_t Average(const Raster& source, const Span& column, const Span& row) {
    Sum sum;
    for (size_t y = 0; y < row.weights.size(); ++y) {
        const uint32_t* pixels = source.pixels.data() +
                                 (static_cast<size_t>(row.first) + y) * static_cast<size_t>(source.width) +
                                 column.first;
        for (size_t x = 0; x < column.weights.size(); ++x)
            sum.Add(pixels[x], column.weights[x] * row.weights[y]);
    }
    return sum.Pixel();
}

}  // namespace

Raster ScalePart(const Raster& source, int width, int height, PixelArea area) {
    std::vector<Span> columns;
    columns.reserve(static_cast<size_t>(area.width));
    for (int x = 0; x < area.width; ++x) columns.push_back(SpanOf(area.left + x, width, source.width));
    Raster result{area.width, area.height, {}};
    result.pixels.reserve(static_cast<size_t>(area.width) * static_cast<size_t>(area.height));
    for (int y = 0; y < area.height; ++y) {
        const Span row = SpanOf(area.top + y, height, source.height);
        for (const Span& column : columns) result.pixels.push_back(Average(source, column, row));
    }
    return result;
}

}  // namespace qz::sample
