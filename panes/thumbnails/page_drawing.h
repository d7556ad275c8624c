// Has the host draw one page, with the pane's frame and label.
#pragma once

#include "host/host_binding.h"
#include "panes/thumbnails/thumbnail_record.h"

#include <windows.h>

#include <cstddef>

namespace qz {

/// Draws the page with that zero-based index as a thumbnail of the record's size into (0, 0) of a device
/// context. The host's current page and automatic refresh are as before when it returns. Gives false when the
/// host failed: frame and label are drawn all the same. `factor` is the scale in percent.
bool DrawPageThumbnail(HDC dc, IVandraX* host, std::size_t index, const ThumbnailRecord& record, long factor);

}  // namespace qz
