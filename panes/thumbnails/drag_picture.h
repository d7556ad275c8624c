// The picture that follows the pointer while pages are dragged.
#pragma once

#include "panes/thumbnails/thumbnail_painter.h"
#include "ui/gdi.h"

#include <cstddef>
#include <span>

namespace qz {

/// Opaque pixels, and the one of them that the pointer holds. Empty: the drag goes without a picture.
struct DragPicture {
    DibSection pixels;
    POINT hotSpot{};
};

/// Draws the records `indexes` of `model` as a cascade of sheets on white. The host may be called for
/// pictures not drawn yet, and may then rebuild the model: the sheets that follow stay white. `factor` is the
/// host's scale in percent.
DragPicture MakeDragPicture(ThumbnailPainter& painter, const ThumbnailModel& model,
                            std::span<const std::size_t> indexes, IVandraX* host, long factor);

}  // namespace qz
