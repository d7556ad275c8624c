#include "panes/bookmarks/icon_shapes.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qz {

namespace {

/// Samples across a pixel; edges have the square of it as many shades.
constexpr int samples = 6;
constexpr double gridUnits = 16;

/// By the even-odd rule.
bool Inside(const std::vector<IconPoint>& points, IconPoint p) {
    bool inside = false;
    for (std::size_t i = 0, j = points.size() - 1; i < points.size(); j = i++) {
        const IconPoint a = points[i];
        const IconPoint b = points[j];
        if ((a.y > p.y) != (b.y > p.y) && p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
    }
    return inside;
}

double SquaredDistance(IconPoint a, IconPoint b, IconPoint p) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = dx * dx + dy * dy;
    const double along =
        length > 0 ? std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length, 0.0, 1.0) : 0.0;
    const double x = a.x + along * dx - p.x;
    const double y = a.y + along * dy - p.y;
    return x * x + y * y;
}

bool OnLine(const IconShape& shape, IconPoint p) {
    const double reach = shape.lineWidth * shape.lineWidth / 4;
    const std::size_t count = shape.points.size();
    for (std::size_t i = shape.closed ? 0 : 1; i < count; ++i) {
        if (SquaredDistance(shape.points[(i + count - 1) % count], shape.points[i], p) <= reach) return true;
    }
    return false;
}

/// Later shapes cover earlier ones, and a shape's line its area.
IconColour ColourAt(std::span<const IconShape> shapes, IconPoint p) {
    for (std::size_t i = shapes.size(); i > 0; --i) {
        const IconShape& shape = shapes[i - 1];
        if (shape.line && OnLine(shape, p)) return shape.line;
        if (shape.fill && shape.closed && Inside(shape.points, p)) return shape.fill;
    }
    return 0;
}

/// The mean of colours, each counting by its alpha.
class Mixture {
  public:
    void Add(IconColour colour) {
        const std::uint32_t alpha = colour >> 24;
        alpha_ += alpha;
        for (int i = 0; i < 3; ++i)
            parts_[static_cast<std::size_t>(i)] += alpha * ((colour >> (8 * i)) & 0xFF);
        ++count_;
    }
    IconColour Colour() const {
        if (alpha_ == 0) return 0;
        IconColour colour = ((alpha_ + count_ / 2) / count_) << 24;
        for (int i = 0; i < 3; ++i) {
            colour |= ((parts_[static_cast<std::size_t>(i)] + alpha_ / 2) / alpha_) << (8 * i);
        }
        return colour;
    }

  private:
    std::array<std::uint32_t, 3> parts_{};
    std::uint32_t alpha_ = 0;
    std::uint32_t count_ = 0;
};

IconColour PixelOf(std::span<const IconShape> shapes, int side, int x, int y) {
    Mixture mixture;
    const double step = gridUnits / side / samples;
    const auto middleOf = [step](int sample) { return (sample + 0.5) * step; };
    for (int row = y * samples; row < (y + 1) * samples; ++row) {
        for (int column = x * samples; column < (x + 1) * samples; ++column) {
            mixture.Add(ColourAt(shapes, {middleOf(column), middleOf(row)}));
        }
    }
    return mixture.Colour();
}

}  // namespace

std::vector<IconColour> DrawIcon(std::span<const IconShape> shapes, int side) {
    std::vector<IconColour> pixels;
    pixels.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int i = 0; i < side * side; ++i) pixels.push_back(PixelOf(shapes, side, i % side, i / side));
    return pixels;
}

}  // namespace qz
