#include "panes/thumbnails/page_selection.h"

#include <algorithm>

namespace qz {

namespace {

using Repaint = SelectionChange::Repaint;

long PageOf(std::size_t index) { return static_cast<long>(index) + 1; }

void Mark(ThumbnailRecord& record) { record.flags |= thumbnailSelected; }

void Unmark(ThumbnailRecord& record) { record.flags &= static_cast<std::uint8_t>(~thumbnailSelected); }

}  // namespace

std::size_t PageSelection::Count() const {
    std::size_t count = 0;
    if (!bounds_) return count;
    for (std::size_t i = bounds_->first; i <= bounds_->last; ++i) count += IsSelected(i) ? 1 : 0;
    return count;
}

std::vector<long> PageSelection::Pages() const {
    std::vector<long> pages;
    if (!bounds_) return pages;
    for (std::size_t i = bounds_->first; i <= bounds_->last; ++i) {
        if (IsSelected(i)) pages.push_back(PageOf(i));
    }
    return pages;
}

SelectionChange PageSelection::Click(std::size_t index, ClickModifiers modifiers) {
    if (modifiers.shift && modifiers.control) return {};
    if (modifiers.shift) return ShiftClick(index);
    if (modifiers.control) return ControlClick(index);
    return SelectOnly(index);
}

SelectionChange PageSelection::ClickBeside(ClickModifiers modifiers) {
    return modifiers.shift || modifiers.control ? SelectionChange{} : Clear();
}

SelectionChange PageSelection::ShiftClick(std::size_t index) {
    if (!bounds_ || IsSelected(index)) return SelectOnly(index);
    Widen(index);
    SelectRange();
    return {.repaint = Repaint::Everything, .announced = SelectionChange::announcedRange};
}

SelectionChange PageSelection::ControlClick(std::size_t index) {
    SelectionChange change{.repaint = Repaint::Record, .record = index};
    if (IsSelected(index)) {
        Remove(index);
    } else {
        Include(index);
        change.announced = PageOf(index);
    }
    return change;
}

void PageSelection::Remove(std::size_t index) {
    Unmark(records_[index]);
    if (!bounds_) return;
    if (bounds_->first == bounds_->last) return Forget();
    while (!IsSelected(bounds_->first)) ++bounds_->first;
    while (!IsSelected(bounds_->last)) --bounds_->last;
}

SelectionChange PageSelection::StepBack(bool extend) {
    if (records_.empty()) return {};
    if (!bounds_) return SelectLast();
    if (bounds_->first == 0) return extend ? SelectionChange{} : KeepOnly(0);
    return Moved(bounds_->first - 1, extend);
}

SelectionChange PageSelection::StepForward(bool extend) {
    if (records_.empty()) return {};
    if (!bounds_) return SelectFirst();
    const std::size_t end = records_.size() - 1;
    if (bounds_->last == end) return extend ? SelectionChange{} : KeepOnly(end);
    return Moved(bounds_->last + 1, extend);
}

SelectionChange PageSelection::Moved(std::size_t reached, bool extend) {
    if (extend) {
        Widen(reached);
        SelectRange();
    } else {
        SelectOnly(reached);
    }
    return {.repaint = Repaint::Everything, .reveal = reached, .announced = PageOf(reached)};
}

SelectionChange PageSelection::SelectFirst() {
    return records_.empty() ? SelectionChange{} : Moved(0, false);
}

SelectionChange PageSelection::SelectLast() {
    return records_.empty() ? SelectionChange{} : Moved(records_.size() - 1, false);
}

SelectionChange PageSelection::SelectAll() {
    if (records_.empty()) return {};
    bounds_ = Bounds{0, records_.size() - 1};
    SelectRange();
    return {.repaint = Repaint::Everything};
}

SelectionChange PageSelection::Clear() {
    if (!bounds_) return {};
    Deselect();
    return {.repaint = Repaint::Everything};
}

/// Selects the record alone. When it was the only one before, or none was, it alone needs repainting.
SelectionChange PageSelection::SelectOnly(std::size_t index) {
    const Bounds alone{index, index};
    const bool others = bounds_ && bounds_ != alone;
    Deselect();
    Include(index);
    return {.repaint = others ? Repaint::Everything : Repaint::Record,
            .record = index,
            .announced = PageOf(index)};
}

/// An arrow key that can go no further: what else was selected no longer is.
SelectionChange PageSelection::KeepOnly(std::size_t index) {
    return bounds_ == Bounds{index, index} ? SelectionChange{} : Moved(index, false);
}

void PageSelection::Include(std::size_t index) {
    Mark(records_[index]);
    Widen(index);
}

void PageSelection::AddPages(std::span<const long> pages) {
    for (const long page : pages) {
        if (page < 1 || static_cast<std::size_t>(page) > records_.size()) continue;
        const std::size_t index = static_cast<std::size_t>(page) - 1;
        records_[index].flags = thumbnailSelected;
        Widen(index);
    }
}

void PageSelection::Widen(std::size_t index) {
    if (!bounds_) bounds_ = Bounds{index, index};
    bounds_->first = std::min(bounds_->first, index);
    bounds_->last = std::max(bounds_->last, index);
}

void PageSelection::SelectRange() {
    for (std::size_t i = bounds_->first; i <= bounds_->last; ++i) Mark(records_[i]);
}

void PageSelection::Deselect() {
    if (!bounds_) return;
    for (std::size_t i = bounds_->first; i <= bounds_->last; ++i) Unmark(records_[i]);
    Forget();
}

}  // namespace qz
