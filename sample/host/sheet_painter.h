// The look of pages that have no picture.
#pragma once

#include "sample/document/value.h"

#include <windows.h>

namespace qz::sample {

/// The colour of the band at the top of a page's sheet; pages side by side differ.
COLORREF SheetColour(PageId page);

/// A white sheet of `size` pixels with a coloured band, lines like text, and the page's number in large
/// figures. Only `area` is drawn.
void DrawSheet(HDC dc, SIZE size, const RECT& area, PageId page, int32_t number);

}  // namespace qz::sample
