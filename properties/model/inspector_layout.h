// Where the parts of the inspector lie.
#pragma once

#include "ui/geometry.h"

namespace qz {

/// What the layout depends on. Pixels.
struct InspectorMetrics {
    Size client;
    int dpi = 96;
    int lineHeight = 13;  ///< Of the dialog's font.
    int tabHeight = 20;   ///< Of the row of tabs.
};

/// Parts without room are empty.
struct InspectorPlaces {
    Rect tabs;  ///< The row of tabs, without the frame below it.
    Rect list;
    Rect description;
    Rect value;   ///< The frame around the editor.
    Rect editor;  ///< Inside the frame.

    friend bool operator==(const InspectorPlaces&, const InspectorPlaces&) = default;
};

/// The value keeps its height as long as the list above it has some lines left; the list takes what is left
/// over. In a low inspector the description goes first, then the value shrinks.
InspectorPlaces ArrangeInspector(const InspectorMetrics& metrics) noexcept;

}  // namespace qz
