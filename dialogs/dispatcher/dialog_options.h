// The byte of options that the tool dialogs keep for the user.
#pragma once

#include "com/object.h"

#include <oaidl.h>

#include <cstdint>
#include <optional>
#include <string>

namespace qz {

/// Kept below a key of the current user that the host names. A value there that is no single byte counts as
/// 0. Without such a key the options are 0, and nothing is written.
class DialogOptions {
  public:
    /// Reads the byte the first time that it is called.
    void LoadOnce(IDispatch* host);
    /// Writes the byte back, if it was read.
    void Save() const noexcept;

    std::uint8_t Bits() const noexcept { return bits_; }
    void SetBits(std::uint8_t bits) noexcept { bits_ = bits; }

  private:
    bool loaded_ = false;
    std::optional<std::wstring> key_;
    std::uint8_t bits_ = 0;
};

}  // namespace qz
