// Draws pages into device contexts.
#pragma once

#include "sample/document/document.h"
#include "sample/host/picture_decoder.h"
#include "sample/host/raster_cache.h"

#include <windows.h>

namespace qz::sample {

/// The pixels of a page at a scale in percent, at which a point is percent / 100 of a pixel.
SIZE PixelsOfPage(const Page& page, long percent);

class PagePainter {
  public:
    /// Draws a page with its top left corner at the context's origin (MM_TEXT), within the context's
    /// clipping. With `leaveEdge` the outermost pixels stay as they are, for a frame that the caller has
    /// drawn there. A page without a picture, or whose picture is damaged, is drawn as a sheet with its
    /// number.
    void Draw(HDC dc, const Page& page, int32_t number, long percent, bool leaveEdge);

  private:
    std::shared_ptr<const Raster> PictureOf(const Page& page);

    PictureDecoder decoder_;
    RasterCache cache_{128u << 20};
};

}  // namespace qz::sample
