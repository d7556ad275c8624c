// What is asked of a host in several places, each with the text of its failure.
#pragma once

#include "com/object.h"
#include "host/change_flags.h"

#include "generated/vandra_x.h"

#include <comdef.h>

#include <string_view>

namespace qz {

// Each throws the host's failure where it does not say otherwise. The host may come back, or be let go of,
// inside.

long PageCountOf(IVandraX* host);

/// 1-based; a document without pages has whatever its host says, less than 1.
long CurrentPageOf(IVandraX* host);
/// Takes the host to a page, 1-based.
void MakePageCurrent(IVandraX* host, long page);

/// What has changed since the last change event, or is told by the one under way.
ChangeFlags ChangesOf(IVandraX* host);

/// The mode that the host is in; docs/host-contract.md tells which of them the module knows.
long ModeOf(IVandraX* host);

/// The selected object, as the host gives it: a reference, or no value.
_variant_t CurrentObjectOf(IVandraX* host);

/// The object at a path; null when the host gives none, for whatever reason.
ComPtr<IDispatch> FindObject(IVandraX* host, std::wstring_view path);

}  // namespace qz
