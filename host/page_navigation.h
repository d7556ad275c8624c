// Where the page buttons lead.
#pragma once

#include <cstdint>
#include <optional>

namespace qz {

enum class PageStep { First, Previous, Next, Last };

/// The 1-based page that a step from `current` leads to in a document of `count` pages; none when the step
/// leads nowhere. First and last lead to their page even when it is the current one.
constexpr std::optional<std::int32_t> StepTarget(PageStep step, std::int32_t current,
                                                 std::int32_t count) noexcept {
    if (count < 1) return std::nullopt;
    switch (step) {
        case PageStep::First:
            return 1;
        case PageStep::Last:
            return count;
        case PageStep::Next:
            return current < count ? std::optional(current + 1) : std::nullopt;
        case PageStep::Previous:
            return current > 1 ? std::optional(current - 1) : std::nullopt;
    }
    return std::nullopt;
}

}  // namespace qz
