#include "panes/status/status_values.h"

namespace qz {

std::wstring TextOf(StatusField field, const StatusValues& values, LengthUnit unit,
                    std::wstring_view pageLabel) {
    switch (field) {
        case StatusField::PageSize:
            return values.pageSize ? PageSizeText(pageLabel, *values.pageSize, unit) : std::wstring();
        case StatusField::ObjectCoords:
            return values.objectRect ? ObjectCoordsText(*values.objectRect, unit) : std::wstring();
        case StatusField::ObjectName:
            return values.objectName;
        case StatusField::PagePosition:
            return values.position ? PagePositionText(values.position->page, values.position->count)
                                   : std::wstring();
        case StatusField::Zoom:
            return values.zoom ? ZoomText(*values.zoom) : std::wstring();
        default:
            return {};
    }
}

}  // namespace qz
