#include "panes/status/status_layout.h"

#include <algorithm>

namespace qz {

namespace {

constexpr std::array byImportance = {
    StatusField::PagePosition, StatusField::Zoom,         StatusField::PreviousPage,
    StatusField::NextPage,     StatusField::FirstPage,    StatusField::LastPage,
    StatusField::PageSize,     StatusField::ObjectCoords, StatusField::ObjectName,
};
static_assert(byImportance.size() == statusFields.size());

constexpr bool AtLeft(StatusField field) { return field <= StatusField::ObjectName; }

/// The widths that the fields get; 0 for those left out.
PerField<std::int32_t> Fit(const StatusLayoutRequest& request) {
    PerField<std::int32_t> fitting;
    std::int64_t room = std::int64_t{request.bar.width} - request.gap;
    for (const StatusField field : byImportance) {
        const std::int64_t wanted = request.widths[field];
        if (wanted <= 0) continue;
        const std::int64_t free = room - request.gap;
        const bool shrinks = field == StatusField::ObjectName;
        const std::int64_t least = shrinks ? std::min<std::int64_t>(wanted, request.smallestName) : wanted;
        // A less important field that is small enough does not take the place of a more important one.
        if (free <= 0 || least > free) break;
        const std::int64_t width = std::min(wanted, free);
        fitting[field] = static_cast<std::int32_t>(width);
        room -= width + request.gap;
    }
    return fitting;
}

}  // namespace

PerField<Rect> ArrangeStatusFields(const StatusLayoutRequest& request) {
    PerField<Rect> places;
    if (request.bar.width <= 0 || request.bar.height <= 0) return places;
    const PerField<std::int32_t> widths = Fit(request);
    const std::int32_t height = std::clamp(request.fieldHeight, 1, request.bar.height);
    const std::int32_t top = (request.bar.height - height) / 2;
    std::int32_t left = request.gap;
    for (const StatusField field : statusFields) {
        if (!AtLeft(field) || widths[field] == 0) continue;
        places[field] = Rect::At({left, top}, {widths[field], height});
        left = places[field].right + request.gap;
    }
    std::int32_t right = request.bar.width - request.gap;
    for (auto field = statusFields.rbegin(); field != statusFields.rend() && !AtLeft(*field); ++field) {
        if (widths[*field] == 0) continue;
        places[*field] = Rect::At({right - widths[*field], top}, {widths[*field], height});
        right = places[*field].left - request.gap;
    }
    return places;
}

}  // namespace qz
