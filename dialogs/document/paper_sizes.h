// The papers of the printer's list.
#pragma once

#include <cstdint>
#include <optional>

namespace qz {

inline constexpr int paperCount = 68;

/// In tenths of a millimeter, as the paper stands upright.
struct PaperSize {
    std::int32_t width = 0;
    std::int32_t length = 0;

    bool operator==(const PaperSize&) const = default;
};

/// The size of a paper by its number, 1 to `paperCount`; nothing for any other number.
///
/// The sizes are those that documents have been set up with ever since. Papers 22 to 56 do not all have the
/// size that their names say (most have that of the name before); that is kept.
std::optional<PaperSize> PaperSizeOf(std::int32_t paper) noexcept;

}  // namespace qz
