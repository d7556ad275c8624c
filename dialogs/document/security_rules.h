// Which change of a document's protection follows from what the user enters.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace qz {

inline constexpr std::int32_t allowPrinting = 4;
inline constexpr std::int32_t allowModifying = 8;
inline constexpr std::int32_t allowCopying = 16;
inline constexpr std::int32_t allowAnnotating = 32;

struct Protection {
    /// Bits of the key: 40 or 128; anything else is no protection. Nothing when none is chosen.
    std::optional<std::int32_t> level = 0;
    std::wstring owner;  ///< Passwords.
    std::wstring user;
    std::int32_t permissions = 0;  ///< Bits as above, and others that are kept.

    bool operator==(const Protection&) const = default;
};

/// The level in an attribute's value: its low 16 bits.
constexpr std::int32_t LevelOf(std::int32_t security) noexcept { return security & 0xFFFF; }

/// Permissions are granted here, never withdrawn.
constexpr std::int32_t Granted(std::int32_t permissions, std::int32_t ticked) noexcept {
    return permissions | ticked;
}

/// What the document is to be protected with; nothing when neither a password nor a permission is another
/// one: a level alone changes nothing. No protection has no passwords and no permissions. Without a level
/// chosen the result has none either, and is not to be applied: nobody has asked to remove the protection.
std::optional<Protection> ProtectionToApply(const Protection& document, const Protection& entered);

}  // namespace qz
