// The pane's pages: their records, where they lie, what is scrolled to, which are selected and which is
// current.
#pragma once

#include "panes/common/stage.h"
#include "panes/thumbnails/page_selection.h"
#include "panes/thumbnails/thumbnail_layout.h"
#include "panes/thumbnails/thumbnail_scroll.h"
#include "ui/geometry.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace qz {

/// Pure state; the control asks it what to draw and where to scroll. Indexes are zero-based.
class ThumbnailModel {
  public:
    ThumbnailModel() = default;
    ThumbnailModel(const ThumbnailModel&) = delete;  // the selection refers to the records
    ThumbnailModel& operator=(const ThumbnailModel&) = delete;

    /// Takes new records and places them. Selection and current page are forgotten; the scroll position
    /// stays, within its limits.
    void SetRecords(std::vector<ThumbnailRecord> records);

    /// Places the records anew for a client area of that size.
    void SetClientSize(std::int32_t width, std::int32_t height);

    std::span<const ThumbnailRecord> Records() const noexcept { return records_; }
    std::int32_t ContentHeight() const noexcept { return layout_.ContentHeight(); }
    std::int32_t ClientHeight() const noexcept { return clientHeight_; }

    /// Another one with every `SetRecords`: indexes of one stage mean nothing in the next.
    const Stage& Contents() const noexcept { return contents_; }

    std::int32_t ScrollPosition() const noexcept { return scrollPosition_; }
    /// These return whether the position changed.
    bool ScrollTo(std::int64_t position);
    bool ScrollBy(std::int64_t pixels) { return ScrollTo(scrollPosition_ + pixels); }
    bool ScrollIntoView(std::size_t index);

    std::optional<std::size_t> Current() const noexcept { return current_; }
    /// Moves the current-page mark; without an index to the first selected record, if any. An index beyond
    /// the records marks none.
    void MakeCurrent(std::optional<std::size_t> index);

    PageSelection& Selection() noexcept { return selection_; }
    const PageSelection& Selection() const noexcept { return selection_; }

    /// The record that a drag would drop its pages on; it is drawn inverted. Forgotten with the records.
    std::optional<std::size_t> DropTarget() const noexcept { return dropTarget_; }
    void SetDropTarget(std::optional<std::size_t> index) noexcept { dropTarget_ = index; }

    /// The record at a point of the client area.
    std::optional<std::size_t> HitTest(std::int32_t clientX, std::int32_t clientY) const;

    /// Where a record is drawn, frames included, in client coordinates.
    Rect DrawnArea(std::size_t index) const;

    /// The records whose drawing, frames included, may touch the client rows from `top` to `bottom`.
    IndexRange VisibleIn(std::int32_t top, std::int32_t bottom) const;

    /// How far right of and below its place a thumbnail is drawn.
    static constexpr std::int32_t drawMargin = 6;
    /// How far a frame reaches out of the thumbnail.
    static constexpr std::int32_t frameReach = 4;

  private:
    ScrollLimits Limits() const noexcept { return {layout_.ContentHeight(), clientHeight_}; }
    void Arrange();

    std::vector<ThumbnailRecord> records_;
    ThumbnailLayout layout_;
    PageSelection selection_{records_};
    std::optional<std::size_t> current_;
    std::optional<std::size_t> dropTarget_;
    std::int32_t clientWidth_ = 0;
    std::int32_t clientHeight_ = 0;
    std::int32_t scrollPosition_ = 0;
    Stage contents_;
};

}  // namespace qz
