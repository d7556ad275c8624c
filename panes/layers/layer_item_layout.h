// Where the parts of a row of the layers tree stand.
#pragma once

#include "ui/geometry.h"

namespace qz {

/// The parts of a row, numbered as clients know them.
enum class LayerPart { Row = 0, CheckMark = 1, ExpandMark = 2, Text = 3, None = -1 };

/// Lengths in pixels.
struct LayerMetrics {
    std::int32_t indent;      ///< Of each level, and the width of the expand mark's place.
    std::int32_t checkPlace;  ///< Width of the check mark's place.
    std::int32_t checkMark;   ///< Side of the check mark.
    std::int32_t expandMark;  ///< Width of the expand mark.
    std::int32_t rowHeight;   ///< At least; a larger font makes rows higher.

    static constexpr LayerMetrics ForDpi(std::int32_t dpi) noexcept {
        const auto scaled = [dpi](std::int32_t pixels) { return (pixels * dpi + 48) / 96; };
        return {scaled(19), scaled(18), scaled(13), scaled(9), scaled(20)};
    }
};

/// What a row is made of.
struct LayerRow {
    Rect row;                   ///< The whole width.
    std::int32_t textLeft = 0;  ///< As the tree places it, right of the marks.
    std::int32_t textRight = 0;
    bool checkMark = false;
    bool expandMark = false;
};

/// The hit rectangles; empty for a part that the row does not have.
struct LayerItemLayout {
    Rect row;
    Rect checkMark;
    Rect expandMark;
    Rect text;

    static constexpr LayerItemLayout Of(const LayerRow& row, const LayerMetrics& metrics) noexcept {
        LayerItemLayout layout;
        const auto column = [&row](std::int32_t left, std::int32_t right) {
            return Rect{left, row.row.top, right, row.row.bottom};
        };
        layout.row = row.row;
        layout.text = column(row.textLeft, row.textRight);
        std::int32_t left = row.textLeft;
        if (row.checkMark) {
            layout.checkMark = column(left - metrics.checkPlace, left);
            left -= metrics.checkPlace;
        }
        if (row.expandMark) layout.expandMark = column(left - metrics.indent, left);
        return layout;
    }

    /// The part at a point; the row where no other part is.
    constexpr LayerPart PartAt(Point point) const noexcept {
        if (checkMark.Contains(point)) return LayerPart::CheckMark;
        if (expandMark.Contains(point)) return LayerPart::ExpandMark;
        if (text.Contains(point)) return LayerPart::Text;
        return row.Contains(point) ? LayerPart::Row : LayerPart::None;
    }
};

/// A square in the middle of a place, for a mark.
constexpr Rect MarkIn(const Rect& place, std::int32_t side) noexcept {
    return Rect::At({place.left + (place.Width() - side) / 2, place.top + (place.Height() - side) / 2},
                    {side, side});
}

}  // namespace qz
