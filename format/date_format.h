// Dates and times as text by a pattern such as dd/mm/yyyy hh:MM:SS T. docs/formatting.md tells the language.
#pragma once

#include "format/pattern_sections.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qz {

/// The words of a user's language.
struct DateNames {
    std::array<std::wstring, 12> months, shortMonths;
    std::array<std::wstring, 7> days, shortDays;  // Sunday first
    std::wstring morning = L"AM", afternoon = L"PM";
};

/// A pattern read once, for any number of values. Any text is a pattern.
class DateFormat {
  public:
    explicit DateFormat(std::wstring_view pattern);

    /// Nothing when `serial` is no automation date (see ToDateTime).
    std::optional<std::wstring> Format(double serial, const DateNames& names) const;

  private:
    /// A run of one letter of the language, or a sign that stands for itself.
    struct Token {
        wchar_t sign;
        int length;  // 0 for a sign that stands for itself
    };

    std::vector<Token> tokens_;
    bool twelveHours_ = false;  // what h and hh count
};

}  // namespace qz
