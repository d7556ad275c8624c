// Pages of a document as others can take them: on the clipboard and in a drag.
#pragma once

#include "panes/thumbnails/page_formats.h"

#include "com/object.h"

#include "generated/vandra_x.h"

#include <vector>

namespace qz {

enum class Rendering {
    WhenAsked,  ///< each time that somebody takes the pages; keeps a counted reference to the host
    AtOnce,     ///< now; the host is not needed any more
};

/// A data object that delivers pages (1-based, in that order) in both formats, and any other format that it
/// is given. Throws E_INVALIDARG without pages, and the host's failure when it renders at once.
ComPtr<IDataObject> MakePageDataObject(IVandraX* host, std::vector<long> pages,
                                       Rendering rendering = Rendering::WhenAsked);

}  // namespace qz
