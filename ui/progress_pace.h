// When a long operation shows how far it is.
#pragma once

#include <cstdint>

namespace qz {

/// The rhythm of an operation that is mostly too short to be worth a window. Milliseconds of a clock that the
/// caller reads.
class ProgressPace {
  public:
    /// So long nothing is shown.
    static constexpr std::uint64_t patience = 1'000;
    /// So long the operation works between two looks at the user.
    static constexpr std::uint64_t interval = 50;

    explicit constexpr ProgressPace(std::uint64_t now) noexcept : due_(now + patience) {}

    /// Whether it is time to show how far the operation is, and to see whether it is to go on.
    constexpr bool Due(std::uint64_t now) const noexcept { return now >= due_; }
    /// It has been shown; what that took is not the operation's time.
    constexpr void Shown(std::uint64_t now) noexcept { due_ = now + interval; }

  private:
    std::uint64_t due_;
};

}  // namespace qz
