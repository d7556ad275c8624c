// UTF-16 as it lies in files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// Turns the bytes of one text, in pieces of any size, into UTF-8.
class Utf16Bytes {
  public:
    explicit Utf16Bytes(bool bigEndian) noexcept : bigEndian_(bigEndian) {}

    /// Appends the characters that are whole; what is left waits for the next piece.
    void Convert(std::string_view bytes, std::string& utf8);
    /// The text has ended: half a character becomes U+FFFD.
    void Finish(std::string& utf8);

  private:
    bool bigEndian_;
    std::optional<char> half_;  // a byte without the other of its unit
    std::wstring units_;        // not converted yet
};

}  // namespace qz
