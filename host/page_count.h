// The number of pages.
#pragma once

#include "com/error.h"

#include "generated/vandra_x.h"

namespace qz {

/// Throws the host's failure.
inline long PageCountOf(IVandraX* host) {
    long count = 0;
    ThrowIfFailed(host->GetPageCount(&count), L"The host does not tell the number of pages");
    return count;
}

}  // namespace qz
