// Pages on the clipboard. The thread must have been through OleInitialize.
#pragma once

#include "com/object.h"

#include "generated/vandra_x.h"

#include <objidl.h>

#include <vector>

namespace qz {

/// Puts pages (1-based, in that order) on the clipboard, where they stay after this process has gone. Throws
/// the host's failure, the clipboard then being as before, or CLIPBRD_E_CANT_OPEN when another program keeps
/// the clipboard open.
void PutPagesOnClipboard(IVandraX* host, std::vector<long> pages);

/// What the clipboard holds, or null unless that can deliver pages.
ComPtr<IDataObject> PagesOnClipboard();

}  // namespace qz
