// The picture of a sheet with several pages on it.
#pragma once

#include "dialogs/nup/nup_layout.h"

#include <windows.h>

#include <optional>

namespace qz {

struct NUpPicture {
    NUpLayout layout;
    Size page;                   ///< Of the source, in twips.
    std::optional<int> percent;  ///< As PagePlace takes it.
    bool borders = false;
    bool perforation = false;
    bool content = true;
};

/// Draws the sheet to scale, as large as the area (pixels) allows, at so many pixels per inch.
void PaintNUpPicture(HDC dc, const RECT& area, int dpi, const NUpPicture& picture);

}  // namespace qz
