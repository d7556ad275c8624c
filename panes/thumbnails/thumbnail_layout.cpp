#include "panes/thumbnails/thumbnail_layout.h"

#include <algorithm>
#include <limits>

namespace qz {

namespace {

/// Sums of sizes from damaged documents leave 32 bits.
constexpr std::int32_t Add(std::int32_t a, std::int64_t b) noexcept {
    constexpr std::int64_t low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t high = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::int64_t{a} + b, low, high));
}

}  // namespace

std::int32_t ThumbnailLayout::Row::Bottom() const noexcept { return Add(top, height); }

void ThumbnailLayout::Arrange(std::span<ThumbnailRecord> records, std::int32_t clientWidth) {
    rows_.clear();
    recordCount_ = records.size();
    const std::int32_t usable = clientWidth - widthMargin;
    std::int32_t x = 0;
    Row row{0, 0, 0};
    for (std::size_t i = 0; i < records.size(); ++i) {
        ThumbnailRecord& record = records[i];
        if (Add(x, record.width) > usable) {
            // Also for a first record that is too wide: it lands below an empty row.
            if (i > row.first) rows_.push_back(row);
            row = {i, Add(row.top, std::int64_t{row.height} + gap), 0};
            x = 0;
        }
        record.x = x;
        record.y = row.top;
        row.height = std::max(row.height, record.height);
        x = Add(x, std::int64_t{record.width} + gap);
    }
    if (recordCount_ > row.first) rows_.push_back(row);
    contentHeight_ = Add(row.top, std::int64_t{row.height} - heightMargin);
}

std::optional<std::size_t> ThumbnailLayout::HitTest(std::span<const ThumbnailRecord> records, std::int64_t x,
                                                    std::int64_t y) const {
    const IndexRange range = RecordsIn(y, y);
    for (std::size_t i = range.first; i < range.last; ++i) {
        const ThumbnailRecord& record = records[i];
        const bool hit = record.x <= x && x < Add(record.x, record.width) && record.y <= y &&
                         y < Add(record.y, record.height);
        if (hit) return i;
    }
    return std::nullopt;
}

IndexRange ThumbnailLayout::RecordsIn(std::int64_t top, std::int64_t bottom) const {
    const auto first =
        std::ranges::partition_point(rows_, [top](const Row& row) { return row.Bottom() < top; });
    const auto last =
        std::partition_point(first, rows_.end(), [bottom](const Row& row) { return row.top <= bottom; });
    return RecordsOf(static_cast<std::size_t>(first - rows_.begin()),
                     static_cast<std::size_t>(last - rows_.begin()));
}

IndexRange ThumbnailLayout::RecordsOf(std::size_t firstRow, std::size_t lastRow) const {
    if (firstRow >= lastRow) return {};
    return {rows_[firstRow].first, lastRow < rows_.size() ? rows_[lastRow].first : recordCount_};
}

}  // namespace qz
