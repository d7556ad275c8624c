#include "settings/utf16.h"

#include "settings/utf8.h"

#include <cstddef>

namespace qz {

namespace {

bool IsHighSurrogate(wchar_t unit) noexcept { return (static_cast<unsigned>(unit) & 0xFC00U) == 0xD800U; }

unsigned Byte(char byte) noexcept { return static_cast<unsigned char>(byte); }

}  // namespace

void Utf16Bytes::Convert(std::string_view bytes, std::string& utf8) {
    for (const char byte : bytes) {
        if (!half_) {
            half_ = byte;
            continue;
        }
        const unsigned low = Byte(bigEndian_ ? byte : *half_);
        const unsigned high = Byte(bigEndian_ ? *half_ : byte);
        units_ += static_cast<wchar_t>(high << 8 | low);
        half_.reset();
    }
    const std::size_t waiting = !units_.empty() && IsHighSurrogate(units_.back()) ? 1 : 0;
    AppendUtf8(std::wstring_view(units_).substr(0, units_.size() - waiting), utf8);
    units_.erase(0, units_.size() - waiting);
}

void Utf16Bytes::Finish(std::string& utf8) {
    if (half_) units_ += static_cast<wchar_t>(0xFFFD);
    AppendUtf8(units_, utf8);
    units_.clear();
    half_.reset();
}

}  // namespace qz
