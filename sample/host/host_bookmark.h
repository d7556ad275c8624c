// Bookmarks of the host.
#pragma once

#include "sample/host/host_session.h"

namespace qz::sample {

/// A bookmark of the session's document; Outline::root for the outline itself.
ComPtr<IDispatch> MakeHostBookmark(HostSession& session, BookmarkId id);

}  // namespace qz::sample
