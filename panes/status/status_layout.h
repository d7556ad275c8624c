// Where the fields of the status bar lie: sizes in, rectangles out. All lengths in pixels.
#pragma once

#include "ui/geometry.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace qz {

/// From left to right, and in the order of the Tab key.
enum class StatusField : std::uint8_t {
    PageSize,
    ObjectCoords,
    ObjectName,
    FirstPage,
    PreviousPage,
    PagePosition,
    NextPage,
    LastPage,
    Zoom,
};

inline constexpr std::array statusFields = {
    StatusField::PageSize,  StatusField::ObjectCoords, StatusField::ObjectName,
    StatusField::FirstPage, StatusField::PreviousPage, StatusField::PagePosition,
    StatusField::NextPage,  StatusField::LastPage,     StatusField::Zoom,
};

constexpr bool IsButton(StatusField field) {
    return field != StatusField::PagePosition && field >= StatusField::FirstPage &&
           field <= StatusField::LastPage;
}
/// Fields that the user types into.
constexpr bool IsEntry(StatusField field) {
    return field == StatusField::PagePosition || field == StatusField::Zoom;
}

/// One value for each field.
template <class T>
struct PerField {
    std::array<T, statusFields.size()> values{};

    constexpr T& operator[](StatusField field) { return values[static_cast<std::size_t>(field)]; }
    constexpr const T& operator[](StatusField field) const { return values[static_cast<std::size_t>(field)]; }

    friend bool operator==(const PerField&, const PerField&) = default;
};

struct StatusLayoutRequest {
    Size bar;
    PerField<std::int32_t> widths;  ///< What each field wants; 0 or less: it is not shown.
    std::int32_t smallestName = 0;  ///< The object's name is cut down to this width before it is dropped.
    std::int32_t fieldHeight = 0;   ///< Cut to the height of the bar.
    std::int32_t gap = 0;           ///< Between fields, and before the first and behind the last.
};

/// The fields' rectangles, none touching another and all within the bar; an empty one for a field that is not
/// shown. When not all of them fit, the least important ones are left out. What tells of the object and the
/// page lies at the left, what leads to pages and the zoom at the right.
PerField<Rect> ArrangeStatusFields(const StatusLayoutRequest& request);

}  // namespace qz
