// A page's size as the host tells it.
#pragma once

#include <cstdint>

namespace qz {

/// A page's size in twips; damaged documents bring any value, also negative ones.
struct PageSize {
    std::int32_t width;
    std::int32_t length;
};

}  // namespace qz
