#include "properties/model/inspector_layout.h"

#include <algorithm>

namespace qz {

namespace {

constexpr int descriptionLines = 2;
constexpr int fewestListLines = 3;
constexpr int valueHeightAt96 = 140;

// The editor's distance from the frame around the value, in pixels at 96 dpi.
constexpr int frameSides = 6;
constexpr int frameTopAndBottom = 12;

Rect Inside(const Rect& frame, int dpi) noexcept {
    const int sides = Scaled(frameSides, dpi), ends = Scaled(frameTopAndBottom, dpi);
    const Rect inside{frame.left + sides, frame.top + ends, frame.right - sides, frame.bottom - ends};
    return inside.Empty() ? Rect{} : inside;
}

}  // namespace

InspectorPlaces ArrangeInspector(const InspectorMetrics& metrics) noexcept {
    const int gap = Scaled(4, metrics.dpi);
    const int left = gap, right = metrics.client.width - gap;
    const int bottom = metrics.client.height - gap;
    const int listTop = metrics.tabHeight + gap;
    const int fewest = fewestListLines * metrics.lineHeight;
    if (right <= left || bottom <= listTop) return {};

    const int room = bottom - listTop;
    const int wanted = descriptionLines * metrics.lineHeight + gap;
    const int value = std::clamp(room - fewest - gap, 0, Scaled(valueHeightAt96, metrics.dpi));
    const int description = room - fewest - value - 2 * gap >= wanted ? wanted : 0;

    InspectorPlaces places;
    const int valueTop = bottom - value;
    if (value > 0) places.value = {left, valueTop, right, bottom};
    places.editor = Inside(places.value, metrics.dpi);
    const int descriptionTop = valueTop - description;
    if (description > 0) places.description = {left, descriptionTop, right, valueTop - gap};
    const int listBottom = value > 0 ? descriptionTop - gap : bottom;
    places.tabs = {0, 0, metrics.client.width, metrics.tabHeight};
    places.list = {left, listTop, right, listBottom};
    if (places.list.Empty()) places.list = {};
    return places;
}

}  // namespace qz
