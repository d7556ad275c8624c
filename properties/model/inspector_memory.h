// What the inspector remembers from one object to the next.
#pragma once

#include "properties/model/attribute_row.h"
#include "properties/model/text_equality.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace qz {

/// The category and the attribute chosen last, for all inspectors of a process. They may live in several
/// threads: every function may be called by any of them.
class InspectorMemory {
  public:
    /// Names as long as this or longer are not remembered.
    static constexpr std::size_t nameLimit = 128;

    std::uint32_t Category() const {
        const std::lock_guard lock(mutex_);
        return category_;
    }
    void SetCategory(std::uint32_t category) {
        const std::lock_guard lock(mutex_);
        category_ = category;
    }

    /// Empty when none is remembered.
    std::wstring Name() const {
        const std::lock_guard lock(mutex_);
        return name_;
    }
    void SetName(std::wstring_view name) {
        const std::lock_guard lock(mutex_);
        name_ = name.size() < nameLimit ? name : std::wstring_view();
    }
    void ForgetName() { SetName({}); }

  private:
    mutable std::mutex mutex_;
    std::uint32_t category_ = allTab;
    std::wstring name_;
};

/// The first of the names that equals `name`; an empty name is none.
inline std::optional<std::size_t> FindName(std::span<const std::wstring> names, std::wstring_view name,
                                           TextEquality equal) {
    if (name.empty()) return std::nullopt;
    const auto found =
        std::ranges::find_if(names, [&](const std::wstring& each) { return equal(each, name); });
    if (found == names.end()) return std::nullopt;
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace qz
