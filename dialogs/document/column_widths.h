// How wide the columns of a list are.
#pragma once

#include <span>
#include <vector>

namespace qz {

/// What a column is to have, in pixels but for the share.
struct ColumnWish {
    int percent;  ///< Of the list's width.
    int least;
};

/// Each column gets its share of the list, but at least what it needs: that is taken from the columns with
/// the most to spare. When none has any left, the columns are wider than the list.
std::vector<int> ColumnWidths(int listWidth, std::span<const ColumnWish> wishes);

}  // namespace qz
