// Dragging pages out of a pane.
#pragma once

#include "com/object.h"
#include "panes/thumbnails/drag_picture.h"

#include "generated/vandra_x.h"

#include <vector>

namespace qz {

/// A drag of pages that this module has started and that is still going on.
struct PageDrag {
    ComPtr<IVandraX> host;
    std::vector<long> pages;      ///< 1-based
    bool finishedByDrop = false;  ///< set by a drop target that moved the pages within their own document
};

/// The drag in progress on this thread, or null.
PageDrag* CurrentPageDrag() noexcept;

/// The same, but only if it comes from the document of that host.
PageDrag* CurrentPageDragOf(IUnknown* host) noexcept;

/// How a drag ended.
struct PageDragResult {
    DWORD effect = DROPEFFECT_NONE;  ///< none when cancelled
    bool finishedByDrop = false;     ///< the pages are moved already

    /// Whether the pages now stand elsewhere and are to be deleted here.
    bool SourceDeletes() const noexcept { return effect == DROPEFFECT_MOVE && !finishedByDrop; }
};

/// Lets the user drag pages until he drops them or cancels; handles messages meanwhile, so the caller may
/// find everything changed. Throws HRESULT_FROM_WIN32(ERROR_BUSY) while another drag is in progress,
/// E_INVALIDARG without pages, and the drag's own failure. A system that shows no pictures drags without.
PageDragResult DragPages(IVandraX* host, std::vector<long> pages, DWORD allowedEffects,
                         const DragPicture& picture);

}  // namespace qz
