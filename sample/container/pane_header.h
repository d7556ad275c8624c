// The strip with a pane's title.
#pragma once

#include <windows.h>

#include <string>

namespace qz {

struct PaneHeader {
    std::wstring title;
    HFONT font = nullptr;
    bool focused = false;
    int unit = 1;  ///< Pixels for one at 96 dots per inch.
};

/// Handles a window's WM_PAINT: draws the header into its rectangle, all at once, in the user's colours.
void PaintPaneHeader(HWND window, const RECT& bounds, const PaneHeader& header);

}  // namespace qz
