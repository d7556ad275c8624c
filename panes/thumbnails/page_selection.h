// Which pages are selected, and how clicks and keys change that.
#pragma once

#include "panes/thumbnails/thumbnail_record.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace qz {

/// What a change of the selection asks of the pane: in this order, show it, scroll to it, tell it.
struct SelectionChange {
    enum class Repaint { Nothing, Record, Everything };

    Repaint repaint = Repaint::Nothing;
    std::size_t record = 0;               ///< The one to repaint.
    std::optional<std::size_t> reveal{};  ///< To be scrolled into view.
    std::optional<long> announced{};      ///< For the selection event: a page, or `announcedRange`.

    static constexpr long announcedRange = -1;

    bool operator==(const SelectionChange&) const = default;
};

/// The modifier keys of a click.
struct ClickModifiers {
    bool shift = false;
    bool control = false;
};

/// The selection lives in the records' flags; beside them stand its bounds, the lowest and the highest
/// selected index. Records between them need not be selected. Indexes are zero-based, pages 1-based.
class PageSelection {
  public:
    struct Bounds {
        std::size_t first;
        std::size_t last;
        bool operator==(const Bounds&) const = default;
    };

    /// The records outlive the selection. After they were replaced, `Forget` must follow.
    explicit PageSelection(std::vector<ThumbnailRecord>& records) noexcept : records_(records) {}

    void Forget() noexcept { bounds_.reset(); }

    /// Nothing when no page is selected.
    const std::optional<Bounds>& GetBounds() const noexcept { return bounds_; }
    bool IsSelected(std::size_t index) const { return (records_[index].flags & thumbnailSelected) != 0; }
    std::size_t Count() const;
    /// Ascending.
    std::vector<long> Pages() const;
    /// No gap between the bounds.
    bool Contiguous() const { return !bounds_ || Count() == bounds_->last - bounds_->first + 1; }

    /// A click on a record. With both modifiers nothing happens.
    SelectionChange Click(std::size_t index, ClickModifiers modifiers);
    /// A click beside all records; nothing happens with a modifier.
    SelectionChange ClickBeside(ClickModifiers modifiers);
    /// The arrow keys: the page before the first, or after the last selected one; `extend` (Shift) selects
    /// from bound to bound, otherwise that page alone. At the end of the document the last one reached stays.
    SelectionChange StepBack(bool extend);
    SelectionChange StepForward(bool extend);
    /// Home and End.
    SelectionChange SelectFirst();
    SelectionChange SelectLast();
    SelectionChange SelectAll();
    SelectionChange Clear();

    /// Makes that record selected beside those that are.
    void Include(std::size_t index);
    /// Selects these pages beside those that are; unknown ones are passed over. A page given here loses its
    /// other marks.
    void AddPages(std::span<const long> pages);

  private:
    void Deselect();
    void SelectRange();
    void Widen(std::size_t index);
    SelectionChange SelectOnly(std::size_t index);
    SelectionChange KeepOnly(std::size_t index);
    SelectionChange Moved(std::size_t reached, bool extend);
    SelectionChange ShiftClick(std::size_t index);
    SelectionChange ControlClick(std::size_t index);
    void Remove(std::size_t index);

    std::vector<ThumbnailRecord>& records_;
    std::optional<Bounds> bounds_;
};

}  // namespace qz
