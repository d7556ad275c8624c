// Draws the rows of the layers tree.
#pragma once

#include "panes/layers/layer_item_layout.h"

#include <windows.h>

#include <string>

namespace qz {

/// What a row shows.
struct LayerRowLook {
    enum class Mark { None, Check, Radio };

    LayerItemLayout layout;
    LayerMetrics metrics{};
    std::wstring text;
    Mark mark = Mark::None;
    bool checked = false;
    bool greyed = false;  ///< Disabled by what is above it.
    bool hasChildren = false;
    bool expanded = false;
    bool selected = false;
    bool focused = false;  ///< The tree has the focus: the selection is drawn in its colours.
    COLORREF background = 0;
};

/// Draws a row in the user's colours, with the font selected into the device context.
void DrawLayerRow(HDC dc, const LayerRowLook& look);

}  // namespace qz
