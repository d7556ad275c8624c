// The rules of dragging pages: when a drag starts, what a drop does, when the pane scrolls, how the picture
// of the dragged pages is laid out.
#pragma once

#include "ui/geometry.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace qz {

/// Whether the pointer is far enough from where the button was pressed.
constexpr bool DragStarts(Point press, Point now) noexcept {
    constexpr std::int64_t slack = 8;
    const auto beyond = [](std::int64_t from, std::int64_t to) {
        return to > from + slack || to < from - slack;
    };
    return beyond(press.x, now.x) || beyond(press.y, now.y);
}

/// The platform's key and button bits of a drag.
namespace drag_keys {
inline constexpr std::uint32_t leftButton = 0x1;
inline constexpr std::uint32_t rightButton = 0x2;
inline constexpr std::uint32_t shift = 0x4;
inline constexpr std::uint32_t control = 0x8;
inline constexpr std::uint32_t middleButton = 0x10;
}  // namespace drag_keys

/// The platform's drop effects.
namespace drop_effect {
inline constexpr std::uint32_t none = 0;
inline constexpr std::uint32_t copy = 1;
inline constexpr std::uint32_t move = 2;
inline constexpr std::uint32_t link = 4;
}  // namespace drop_effect

/// What a drop does: one effect, or none when the source does not allow what the keys ask for. Without a key
/// a source that allows no move is taken to mean a copy.
constexpr std::uint32_t DropEffectFor(std::uint32_t keys, std::uint32_t allowed) noexcept {
    using namespace drag_keys;
    using namespace drop_effect;
    const std::uint32_t modifiers = keys & (shift | control);
    if (modifiers == (shift | control)) return allowed & link;
    if (modifiers == control) return allowed & copy;
    if (modifiers == 0 && !(allowed & move)) return allowed & copy;
    return allowed & move;
}

/// What the drag's source does after a change of the keys.
enum class DragStep { GoOn, Drop, Cancel };

/// The escape key or a second button cancels, letting the left button go drops.
constexpr DragStep NextDragStep(bool escape, std::uint32_t keys) noexcept {
    if (escape || (keys & (drag_keys::rightButton | drag_keys::middleButton))) return DragStep::Cancel;
    return keys & drag_keys::leftButton ? DragStep::GoOn : DragStep::Drop;
}

/// Pixels to scroll while the pointer is near the upper or lower edge of a client area of that height.
constexpr std::int32_t AutoScrollStep(std::int32_t y, std::int32_t clientHeight) noexcept {
    constexpr std::int32_t band = 30;
    constexpr std::int32_t step = 10;
    if (y < band) return -step;
    return y > clientHeight - band && y < clientHeight ? step : 0;
}

/// The picture of the dragged pages: each sheet a little right of and below the one before.
struct Cascade {
    static constexpr std::int32_t offset = 2;
    /// More sheets would look the same, and make a bitmap of thousands of pixels a side for a large
    /// selection.
    static constexpr std::size_t mostSheets = 32;

    Size size;               ///< empty when no sheet has an area
    std::size_t sheets = 0;  ///< how many of the first ones are drawn

    constexpr Point PlaceOf(std::size_t sheet) const noexcept {
        const auto shift = static_cast<std::int32_t>(sheet) * offset;
        return {shift, shift};
    }
    /// Where the pointer holds the picture.
    constexpr Point HotSpot() const noexcept { return {size.width / 2, size.height / 2}; }
    constexpr bool Empty() const noexcept { return size.width <= 0 || size.height <= 0; }
};

constexpr Cascade LayOutCascade(std::span<const Size> sheets) noexcept {
    const std::span<const Size> drawn = sheets.first(std::min(sheets.size(), Cascade::mostSheets));
    Cascade cascade{.size = {}, .sheets = drawn.size()};
    for (const Size& sheet : drawn) {
        cascade.size.width = std::max(cascade.size.width, sheet.width);
        cascade.size.height = std::max(cascade.size.height, sheet.height);
    }
    if (cascade.Empty()) return {};
    const Point last = cascade.PlaceOf(drawn.size() - 1);
    cascade.size.width += last.x;
    cascade.size.height += last.y;
    return cascade;
}

}  // namespace qz
