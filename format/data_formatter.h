// Values as text by a pattern.
#pragma once

#include "format/data_value.h"
#include "format/date_format.h"
#include "format/number_format.h"
#include "format/text_format.h"

#include <optional>
#include <string>
#include <string_view>

namespace qz {

/// The pattern of one language that was used last, read once.
template <class Format>
class LastPattern {
  public:
    const Format& Read(std::wstring_view pattern) {
        if (!format_ || pattern != pattern_) {
            format_.reset();  // first, so that a failure below leaves no format of another pattern
            pattern_ = pattern;
            format_.emplace(pattern_);
        }
        return *format_;
    }

  private:
    std::wstring pattern_;
    std::optional<Format> format_;
};

/// Formats by the user's regional settings, which are read when they are first needed. Remembers the last
/// pattern of each language, since the same one is mostly used again.
class DataFormatter {
  public:
    /// Throws E_FAIL for a type that no pattern can show, and for a date outside the years 100 to 9999.
    std::wstring Format(std::wstring_view pattern, const DataValue& value, NumberSeparators separators);

  private:
    std::wstring FormatDate(std::wstring_view pattern, DATE date);

    LastPattern<NumberFormat> numbers_;
    LastPattern<DateFormat> dates_;
    LastPattern<TextFormat> texts_;
    std::optional<DateNames> dateNames_;
};

}  // namespace qz
