// The image lists of the bookmark pane.
#pragma once

#include "panes/bookmarks/icon_shapes.h"
#include "ui/image_list.h"

#include <windows.h>

namespace qz {

/// The images of a style, in the order of `BookmarkImage`, at the screen's resolution. Throws when the system
/// makes none.
ImageList MakeBookmarkImages(IconStyle style, COLORREF ink);

}  // namespace qz
