#include "properties/model/entry_layouts.h"

#include <algorithm>

namespace qz {

namespace {

constexpr int insetAt96 = 2;
constexpr Size numberAt96{60, 20};
constexpr int arrowsWidthAt96 = 16;
constexpr int gapAt96 = 4;
constexpr int narrowestTextAt96 = 60;

FieldPlaces WithButton(const FieldMetrics& metrics, const Rect& row) noexcept {
    const int gap = Scaled(gapAt96, metrics.dpi);
    const int width = metrics.client.width;
    const Rect below = row.Moved(0, row.Height() + gap);
    int button = metrics.buttonWidth;
    if (width - gap - button < Scaled(narrowestTextAt96, metrics.dpi)) {
        if (below.bottom <= metrics.client.height) {
            return {row, {}, {0, below.top, std::min(button, width), below.bottom}};
        }
        button = std::min(button, (width - gap) / 2);
    }
    return {{0, row.top, width - gap - button, row.bottom}, {}, {width - button, row.top, width, row.bottom}};
}

FieldPlaces Unlimited(EditMode mode, const FieldMetrics& metrics) noexcept {
    const int inset = Scaled(insetAt96, metrics.dpi);
    const int bottom = inset + Scaled(numberAt96.height, metrics.dpi);
    const int right = Scaled(numberAt96.width, metrics.dpi);
    const Size client = metrics.client;
    switch (mode) {
        case EditMode::Integer:
            return {{0, inset, right, bottom},
                    {right, inset, right + Scaled(arrowsWidthAt96, metrics.dpi), bottom},
                    {}};
        case EditMode::Real:
            return {{0, inset, right, bottom}, {}, {}};
        case EditMode::Lines:
            return {{0, inset, client.width, client.height - inset}, {}, {}};
        default:
            return WithButton(metrics, {0, inset, client.width, bottom});
    }
}

}  // namespace

FieldPlaces ArrangeField(EditMode mode, const FieldMetrics& metrics) noexcept {
    const Rect client{0, 0, metrics.client.width, metrics.client.height};
    const FieldPlaces places = Unlimited(mode, metrics);
    return {places.text.Intersected(client), places.upDown.Intersected(client),
            places.button.Intersected(client)};
}

ChoicePlaces ArrangeChoices(const ChoiceMetrics& metrics) {
    const int gap = Scaled(gapAt96, metrics.dpi);
    const int inset = Scaled(insetAt96, metrics.dpi);
    const Size field{Scaled(numberAt96.width, metrics.dpi), Scaled(numberAt96.height, metrics.dpi)};
    const int top = inset + field.height + gap;
    const int rowHeight = metrics.lineHeight + gap;
    const int columnWidth = std::clamp(metrics.widestChoice + gap, 1, std::max(metrics.client.width, 1));
    const auto mostColumns = static_cast<std::size_t>(std::max(metrics.client.width / columnWidth, 1));
    const auto fitting = static_cast<std::size_t>(std::max((metrics.client.height - top) / rowHeight, 1));

    const std::size_t columns =
        std::clamp<std::size_t>((metrics.count + fitting - 1) / fitting, 1, mostColumns);
    const std::size_t rows = (metrics.count + columns - 1) / columns;
    ChoicePlaces places;
    places.text = Rect::At({0, inset}, field);
    for (std::size_t i = 0; i < metrics.count; ++i) {
        const Point origin{static_cast<int>(i / rows) * columnWidth,
                           top + static_cast<int>(i % rows) * rowHeight};
        places.choices.push_back(Rect::At(origin, {columnWidth, rowHeight}));
    }
    places.height = rows == 0 ? inset + field.height : top + static_cast<int>(rows) * rowHeight;
    return places;
}

int ScrolledTo(int position, int top, int bottom, int clientHeight) noexcept {
    return std::min(std::max(position, bottom - clientHeight), top);
}

}  // namespace qz
