// What the status bar knows of the document.
#pragma once

#include "panes/status/status_layout.h"
#include "panes/status/status_texts.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qz {

struct PagePosition {
    std::int32_t page = 0;  ///< 1-based; 0 in a document without pages.
    std::int32_t count = 0;
};

/// Lengths in twips. A value that the host has not told yet is absent, and its field empty.
struct StatusValues {
    std::optional<PageSize> pageSize;
    std::optional<Rect> objectRect;
    std::wstring objectName;
    std::optional<PagePosition> position;
    std::optional<std::int32_t> zoom;
};

/// The text of a field; empty for buttons. `pageLabel` stands before the page's size.
std::wstring TextOf(StatusField field, const StatusValues& values, LengthUnit unit,
                    std::wstring_view pageLabel);

}  // namespace qz
