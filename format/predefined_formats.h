// The categories of formats that every formatter begins with.
#pragma once

#include <span>
#include <string_view>

namespace qz {

struct PredefinedCategory {
    unsigned nameId;  // of the module's texts (res/text_ids.h)
    std::span<const std::wstring_view> formats;
};

/// In the order of their ids, which are their places here.
std::span<const PredefinedCategory> PredefinedCategories() noexcept;

}  // namespace qz
