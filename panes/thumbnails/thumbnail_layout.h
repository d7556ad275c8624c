// The flow of thumbnails into rows, and who is where.
#pragma once

#include "panes/thumbnails/thumbnail_record.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace qz {

/// A half-open range of page indexes.
struct IndexRange {
    std::size_t first = 0;
    std::size_t last = 0;

    bool Contains(std::size_t index) const noexcept { return first <= index && index < last; }
    bool operator==(const IndexRange&) const = default;
};

/// Places records left to right into rows that are stacked downwards, and finds them again by binary search
/// over the rows. All coordinates are content pixels. Positions beyond 32 bits stick at the largest.
class ThumbnailLayout {
  public:
    static constexpr std::int32_t gap = 10;           ///< between thumbnails, both ways
    static constexpr std::int32_t widthMargin = 12;   ///< of the client width that no thumbnail uses
    static constexpr std::int32_t heightMargin = 12;  ///< subtracted from the content height

    /// Sets every record's position for a pane of that client width.
    void Arrange(std::span<ThumbnailRecord> records, std::int32_t clientWidth);

    /// The height that the scroll bar spans; -12 without records.
    std::int32_t ContentHeight() const noexcept { return contentHeight_; }

    /// The first record whose rectangle holds the point (right and bottom edges excluded).
    std::optional<std::size_t> HitTest(std::span<const ThumbnailRecord> records, std::int64_t x,
                                       std::int64_t y) const;

    /// The records of all rows that touch the band from `top` to `bottom`, both included.
    IndexRange RecordsIn(std::int64_t top, std::int64_t bottom) const;

  private:
    struct Row {
        std::size_t first;
        std::int32_t top;
        std::int32_t height;
        std::int32_t Bottom() const noexcept;
    };

    IndexRange RecordsOf(std::size_t firstRow, std::size_t lastRow) const;

    std::vector<Row> rows_;
    std::size_t recordCount_ = 0;
    std::int32_t contentHeight_ = -heightMargin;
};

}  // namespace qz
