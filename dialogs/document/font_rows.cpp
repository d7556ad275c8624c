#include "dialogs/document/font_rows.h"

#include <algorithm>
#include <numeric>

namespace qz {

namespace {

int Compare(const FontRow& left, const FontRow& right, FontColumn column, const TextComparison& compare) {
    switch (column) {
        case FontColumn::Type:
            return compare(left.type, right.type);
        case FontColumn::Embedding:
            return left.level - right.level;
        case FontColumn::Encoding:
            return compare(left.encoding, right.encoding);
        default:
            return compare(left.name, right.name);
    }
}

}  // namespace

bool IsSubsetName(std::wstring_view name) noexcept {
    const std::size_t plus = name.find(L'+');
    return plus != std::wstring_view::npos && plus + 1 < name.size();
}

int EmbeddingLevel(long value) noexcept {
    return value >= 0 && value < embeddingLevelCount ? static_cast<int>(value) : 0;
}

std::vector<std::size_t> SortedPlaces(const std::vector<FontRow>& rows, FontOrder order,
                                      const TextComparison& compare) {
    std::vector<std::size_t> places(rows.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    std::ranges::stable_sort(places, [&](std::size_t left, std::size_t right) {
        const int result = Compare(rows[left], rows[right], order.column, compare);
        return order.descending ? result > 0 : result < 0;
    });
    return places;
}

}  // namespace qz
