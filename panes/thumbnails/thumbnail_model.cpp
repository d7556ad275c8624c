#include "panes/thumbnails/thumbnail_model.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace qz {

namespace {

/// Where a rectangle ends at the latest, so that its width has 32 bits too: damaged documents have sizes and
/// places at their ends.
constexpr std::int64_t farthest = std::numeric_limits<std::int32_t>::max() / 2 - ThumbnailModel::frameReach;

std::int32_t Bounded(std::int64_t coordinate) noexcept {
    return static_cast<std::int32_t>(std::clamp(coordinate, -farthest, farthest));
}

}  // namespace

void ThumbnailModel::SetRecords(std::vector<ThumbnailRecord> records) {
    records_ = std::move(records);
    current_.reset();
    dropTarget_.reset();
    selection_.Forget();
    contents_.Next();
    Arrange();
}

void ThumbnailModel::SetClientSize(std::int32_t width, std::int32_t height) {
    clientWidth_ = width;
    clientHeight_ = height;
    Arrange();
}

void ThumbnailModel::Arrange() {
    layout_.Arrange(records_, clientWidth_);
    ScrollTo(scrollPosition_);
}

bool ThumbnailModel::ScrollTo(std::int64_t position) {
    const std::int32_t clamped = Limits().Clamp(position);
    return std::exchange(scrollPosition_, clamped) != clamped;
}

bool ThumbnailModel::ScrollIntoView(std::size_t index) {
    const ThumbnailRecord& record = records_.at(index);
    return ScrollTo(ScrolledIntoView(scrollPosition_, record.y, record.height, Limits()));
}

void ThumbnailModel::MakeCurrent(std::optional<std::size_t> index) {
    if (current_) records_.at(*current_).flags &= static_cast<std::uint8_t>(~thumbnailCurrent);
    if (!index && selection_.GetBounds()) index = selection_.GetBounds()->first;
    current_ = index && *index < records_.size() ? index : std::nullopt;
    if (current_) records_[*current_].flags |= thumbnailCurrent;
}

std::optional<std::size_t> ThumbnailModel::HitTest(std::int32_t clientX, std::int32_t clientY) const {
    return layout_.HitTest(records_, clientX, std::int64_t{clientY} + scrollPosition_);
}

Rect ThumbnailModel::DrawnArea(std::size_t index) const {
    const ThumbnailRecord& record = records_.at(index);
    const std::int64_t left = std::int64_t{record.x} + drawMargin;
    const std::int64_t top = std::int64_t{record.y} - scrollPosition_ + drawMargin;
    const Rect drawn{Bounded(left), Bounded(top), Bounded(left + record.width), Bounded(top + record.height)};
    return drawn.Grown(frameReach);
}

IndexRange ThumbnailModel::VisibleIn(std::int32_t top, std::int32_t bottom) const {
    const std::int64_t shift = std::int64_t{scrollPosition_} - drawMargin;
    return layout_.RecordsIn(top + shift - frameReach, bottom + shift + frameReach);
}

}  // namespace qz
