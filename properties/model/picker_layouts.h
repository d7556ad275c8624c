// Where the controls of the editors lie in which something is picked: colors, fonts, formats, objects.
#pragma once

#include "ui/geometry.h"

#include <array>

namespace qz {

/// What the layouts depend on. Pixels.
struct PickerMetrics {
    Size client;
    int dpi = 96;
    int lineHeight = 13;  ///< Of the dialog's font.
};

// Controls without room are empty. No two overlap, and none reaches beyond the client's right or bottom edge.

struct ColourPlaces {
    Rect label;
    Rect text;
    Rect preview;
    Rect none;
    Rect palette;
    int columns = 16;  ///< Of the palette: 16 or 8, whichever gives the larger boxes.
};

/// The place of one of the palette's 64 boxes.
Rect BoxPlace(const ColourPlaces& places, int box) noexcept;

/// The text stands above the palette; what else is in its row goes first when the editor is narrow.
ColourPlaces ArrangeColourEditor(const PickerMetrics& metrics) noexcept;

struct FontPlaces {
    Rect faceLabel, face;
    Rect sizeLabel, size;
    std::array<Rect, 4> marks;
    Rect choose;
};

/// In a low editor the labels go first, then the button and the marks, from below.
FontPlaces ArrangeFontEditor(const PickerMetrics& metrics) noexcept;

struct FormatPlaces {
    Rect textLabel, text;
    Rect previewLabel, preview;
    Rect listLabel, list;
};

/// The list stands beside the text and its preview, in a narrow editor below them.
FormatPlaces ArrangeFormatEditor(const PickerMetrics& metrics) noexcept;

struct ActionsPlaces {
    Rect list;
    std::array<Rect, 5> buttons;
    Rect text;
};

/// Buttons and text stand in a row above the list. In a narrow editor the text goes, in a low one the row.
ActionsPlaces ArrangeActionsEditor(const PickerMetrics& metrics) noexcept;

struct ObjectsPlaces {
    Rect fieldsOnly;
    Rect list;
};

/// The list takes what the check box above it leaves; in a low editor all.
ObjectsPlaces ArrangeObjectsEditor(const PickerMetrics& metrics) noexcept;

}  // namespace qz
