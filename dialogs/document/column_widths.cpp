#include "dialogs/document/column_widths.h"

#include <algorithm>
#include <cstddef>

namespace qz {

std::vector<int> ColumnWidths(int listWidth, std::span<const ColumnWish> wishes) {
    std::vector<int> widths;
    int missing = 0;
    for (const ColumnWish& wish : wishes) {
        const int share = listWidth * wish.percent / 100;
        widths.push_back(std::max(share, wish.least));
        missing += widths.back() - share;
    }
    const auto spare = [&](std::size_t column) { return widths[column] - wishes[column].least; };
    while (missing > 0) {
        std::size_t giver = 0;
        for (std::size_t column = 1; column < widths.size(); ++column) {
            if (spare(column) > spare(giver)) giver = column;
        }
        const int given = std::min(missing, spare(giver));
        if (given <= 0) break;
        widths[giver] -= given;
        missing -= given;
    }
    return widths;
}

}  // namespace qz
