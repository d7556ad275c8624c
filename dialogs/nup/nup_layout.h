// How several pages lie on one sheet.
#pragma once

#include "ui/geometry.h"

#include <optional>
#include <vector>

namespace qz {

/// The most rows, and columns, on a sheet.
inline constexpr int mostNUpRows = 32;

/// Lengths in twips.
struct NUpSheet {
    Size paper{12240, 15840};  ///< Upright; landscape turns it.
    bool landscape = false;
    int rows = 1;
    int columns = 1;
    int gap = 0;  ///< Between neighbours; none at the sheet's edges.
    bool columnsFirst = false;
    bool rightToLeft = false;

    friend bool operator==(const NUpSheet&, const NUpSheet&) = default;
};

struct NUpCell {
    Rect bounds;
    int page = 0;  ///< The first one is 1.
};

struct NUpLayout {
    Size sheet;                  ///< As it lies.
    std::vector<NUpCell> cells;  ///< In the order of their pages.
    std::vector<int> cutsDown;   ///< Where lines from top to bottom part the cells: amid the gaps.
    std::vector<int> cutsAcross;
};

/// Nothing when the sheet has no room for the cells, or when there are none or too many of them.
std::optional<NUpLayout> LayOut(const NUpSheet& sheet);

/// The largest rectangle of a size's proportions within an area, in its middle. Empty for an empty size.
Rect FitInto(Size size, const Rect& area) noexcept;

/// Where a page lies in its cell, in the middle: at `percent` of its size and cut off at the cell's bounds,
/// or as large as the cell allows when there is none.
Rect PagePlace(const Rect& cell, Size page, std::optional<int> percent) noexcept;

/// A part of a sheet in a picture of it.
Rect Scaled(const Rect& part, Size sheet, const Rect& picture) noexcept;

}  // namespace qz
