#include "dialogs/nup/nup_layout.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace qz {

namespace {

/// Where one of `count` cells along a side begins and ends.
struct Span {
    int begin = 0;
    int end = 0;
};

Span SpanOf(int index, int count, int side, int gap) noexcept {
    const std::int64_t whole = std::int64_t{side} + gap;  // a gap behind each cell, the last one too
    return {static_cast<int>(whole * index / count), static_cast<int>(whole * (index + 1) / count - gap)};
}

std::vector<int> Cuts(int count, int side, int gap) {
    std::vector<int> cuts;
    for (int index = 0; index + 1 < count; ++index)
        cuts.push_back(SpanOf(index, count, side, gap).end + gap / 2);
    return cuts;
}

bool HasRoom(int count, int side, int gap) noexcept {
    return count >= 1 && count <= mostNUpRows && side > 0 && gap >= 0 &&
           std::int64_t{gap} * (count - 1) + count <= side;
}

/// The cell of a page; pages count from 0 here.
Rect CellOf(int page, const NUpSheet& sheet, Size lying) noexcept {
    const int row = sheet.columnsFirst ? page % sheet.rows : page / sheet.columns;
    const int place = sheet.columnsFirst ? page / sheet.rows : page % sheet.columns;
    const int column = sheet.rightToLeft ? sheet.columns - 1 - place : place;
    const Span across = SpanOf(column, sheet.columns, lying.width, sheet.gap);
    const Span down = SpanOf(row, sheet.rows, lying.height, sheet.gap);
    return {across.begin, down.begin, across.end, down.end};
}

/// A size whose sides may be beyond 32 bits.
struct LargeSize {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

LargeSize SizeOf(const Rect& area) noexcept {
    return {std::int64_t{area.right} - area.left, std::int64_t{area.bottom} - area.top};
}

std::int32_t Bounded(std::int64_t coordinate) noexcept {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(coordinate, Limits::min(), Limits::max()));
}

Rect Centred(LargeSize size, const Rect& area) noexcept {
    const LargeSize room = SizeOf(area);
    const std::int64_t left = area.left + (room.width - size.width) / 2;
    const std::int64_t top = area.top + (room.height - size.height) / 2;
    return {Bounded(left), Bounded(top), Bounded(left + size.width), Bounded(top + size.height)};
}

/// `whole` and `numerator` are within 32 bits.
std::int64_t Part(std::int64_t whole, std::int64_t numerator, std::int64_t denominator) noexcept {
    return whole * numerator / denominator;
}

}  // namespace

std::optional<NUpLayout> LayOut(const NUpSheet& sheet) {
    NUpLayout layout{sheet.paper, {}, {}, {}};
    if (sheet.landscape) std::swap(layout.sheet.width, layout.sheet.height);
    if (!HasRoom(sheet.columns, layout.sheet.width, sheet.gap) ||
        !HasRoom(sheet.rows, layout.sheet.height, sheet.gap)) {
        return std::nullopt;
    }
    for (int page = 0; page < sheet.rows * sheet.columns; ++page) {
        layout.cells.push_back({CellOf(page, sheet, layout.sheet), page + 1});
    }
    layout.cutsDown = Cuts(sheet.columns, layout.sheet.width, sheet.gap);
    layout.cutsAcross = Cuts(sheet.rows, layout.sheet.height, sheet.gap);
    return layout;
}

Rect FitInto(Size size, const Rect& area) noexcept {
    if (size.width <= 0 || size.height <= 0 || area.Empty()) return {};
    const LargeSize room = SizeOf(area);
    const bool wide = size.width * room.height > size.height * room.width;
    const LargeSize fitted = wide ? LargeSize{room.width, Part(room.width, size.height, size.width)}
                                  : LargeSize{Part(room.height, size.width, size.height), room.height};
    return Centred(fitted, area);
}

Rect PagePlace(const Rect& cell, Size page, std::optional<int> percent) noexcept {
    if (!percent) return FitInto(page, cell);
    return Centred({Part(page.width, *percent, 100), Part(page.height, *percent, 100)}, cell)
        .Intersected(cell);
}

Rect Scaled(const Rect& part, Size sheet, const Rect& picture) noexcept {
    if (sheet.width <= 0 || sheet.height <= 0) return {};
    const auto across = [&](int x) {
        return Bounded(picture.left + Part(x, SizeOf(picture).width, sheet.width));
    };
    const auto down = [&](int y) {
        return Bounded(picture.top + Part(y, SizeOf(picture).height, sheet.height));
    };
    return {across(part.left), down(part.top), across(part.right), down(part.bottom)};
}

}  // namespace qz
