#include "panes/status/status_entry.h"

#include <algorithm>

namespace qz {

namespace {

/// Reads a text from left to right. Full-width characters, as input methods produce them, count as the plain
/// ones.
class Reader {
  public:
    explicit Reader(std::wstring_view text) : rest_(text) {}

    bool AtEnd() {
        SkipBlanks();
        return rest_.empty();
    }

    bool Take(wchar_t wanted) {
        SkipBlanks();
        if (rest_.empty() || Plain(rest_.front()) != wanted) return false;
        rest_.remove_prefix(1);
        return true;
    }

    /// A whole number; one beyond `limit` becomes the limit.
    std::optional<std::int32_t> Number() {
        const bool negative = Take(L'-');
        if (!negative) Take(L'+');
        if (rest_.empty() || !IsDigit(Plain(rest_.front()))) return std::nullopt;
        std::int32_t number = 0;
        for (; !rest_.empty() && IsDigit(Plain(rest_.front())); rest_.remove_prefix(1)) {
            number = std::min<std::int32_t>(limit, number * 10 + (Plain(rest_.front()) - L'0'));
        }
        return negative ? -number : number;
    }

  private:
    static constexpr std::int32_t limit = 100'000'000;  // ten times as much is still a 32-bit number

    static wchar_t Plain(wchar_t c) {
        constexpr wchar_t first = 0xFF01;
        constexpr wchar_t last = 0xFF5E;
        constexpr wchar_t ideographicSpace = 0x3000;
        constexpr wchar_t noBreakSpace = 0xA0;
        if (c == ideographicSpace || c == noBreakSpace) return L' ';
        return c >= first && c <= last ? static_cast<wchar_t>(c - first + L'!') : c;
    }
    static bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

    void SkipBlanks() {
        while (!rest_.empty() && Plain(rest_.front()) == L' ') rest_.remove_prefix(1);
    }

    std::wstring_view rest_;
};

}  // namespace

std::optional<std::int32_t> ParsePage(std::wstring_view text, std::int32_t count) {
    Reader reader(text);
    const std::optional<std::int32_t> page = reader.Number();
    if (!page || count < 1) return std::nullopt;
    if (reader.Take(L'/') && !reader.Number()) return std::nullopt;
    return reader.AtEnd() ? std::optional(std::clamp(*page, 1, count)) : std::nullopt;
}

std::optional<std::int32_t> ParseZoom(std::wstring_view text) {
    Reader reader(text);
    const std::optional<std::int32_t> zoom = reader.Number();
    if (!zoom) return std::nullopt;
    reader.Take(L'%');
    return reader.AtEnd() ? std::optional(std::clamp(*zoom, smallestZoom, largestZoom)) : std::nullopt;
}

}  // namespace qz
