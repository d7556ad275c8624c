// Reading from the host what the status bar shows. Every function throws the host's failure.
#pragma once

#include "com/object.h"
#include "panes/status/status_values.h"

#include "generated/vandra_x.h"

namespace qz {

PageSize ReadCurrentPageSize(IVandraX* host);
PagePosition ReadPagePosition(IVandraX* host);
std::int32_t ReadZoom(IVandraX* host);

/// The object that is selected; null when there is none, or when the host is in a mode without selection.
ComPtr<IDispatch> ReadSelectedObject(IVandraX* host);
std::wstring ReadObjectName(IDispatch* object);
/// Twips.
Rect ReadObjectRect(IDispatch* object);

}  // namespace qz
