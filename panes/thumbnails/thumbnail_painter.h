// Paints the pane's visible thumbnails, from the cache where it has them.
#pragma once

#include "host/host_binding.h"
#include "panes/thumbnails/picture_cache.h"
#include "panes/thumbnails/thumbnail_model.h"

#include <windows.h>

namespace qz {

/// Draws records of a model whose pictures come from a host. Holds the pictures, not the host.
class ThumbnailPainter {
  public:
    explicit ThumbnailPainter(const ThumbnailModel& model) noexcept : model_(model) {}

    PictureCache& Pictures() noexcept { return pictures_; }

    /// Paints the records that touch `dirty` (client coordinates) over a background that is there already.
    /// `factor` is the host's scale in percent. Stops early when the host's doings changed the records.
    void Paint(HDC dc, const RECT& dirty, IVandraX* host, long factor);

    /// Draws the sheet of one record, unmarked, with its top left corner at `at`. A sheet without area draws
    /// nothing.
    void DrawSheet(HDC dc, std::size_t index, POINT at, IVandraX* host, long factor);

  private:
    void DrawRecord(HDC dc, std::size_t index, IVandraX* host, long factor);
    bool DrawPicture(HDC dc, std::size_t index, const ThumbnailRecord& record, IVandraX* host, long factor);
    bool DrawUncached(HDC dc, std::size_t index, const ThumbnailRecord& record, IVandraX* host, long factor);

    const ThumbnailModel& model_;
    PictureCache pictures_;
};

}  // namespace qz
