// Reading the sizes of all pages in one pass.
#pragma once

#include "com/object.h"
#include "host/page_size.h"

#include "generated/vandra_x.h"

#include <cstdint>
#include <functional>

namespace qz {

/// Calls `take` with the size of page 1, 2, ... `count`. The document is told before and after that page
/// contents are not needed. Throws the first failure at once; the document then stays told, and the sizes
/// taken so far are good.
void ReadPageSizes(IVandraX* host, std::int32_t count, const std::function<void(const PageSize&)>& take);

}  // namespace qz
