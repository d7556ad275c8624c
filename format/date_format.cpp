#include "format/date_format.h"

#include "format/date_time.h"

#include <algorithm>
#include <cstddef>

namespace qz {
namespace {

constexpr std::wstring_view dateLetters = L"dmyhHMST";

bool IsDateLetter(PatternSign sign) {
    return !sign.quoted && dateLetters.find(sign.sign) != std::wstring_view::npos;
}

std::wstring Digits(unsigned value, int minDigits) {
    std::wstring digits = std::to_wstring(value);
    const auto wanted = static_cast<std::size_t>(minDigits);
    if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), L'0');
    return digits;
}

std::wstring DayText(const DateTime& time, int length, const DateNames& names) {
    if (length <= 2) return Digits(time.day, length);
    return (length == 3 ? names.shortDays : names.days)[time.weekday];
}

std::wstring MonthText(const DateTime& time, int length, const DateNames& names) {
    if (length <= 2) return Digits(time.month, length);
    return (length == 3 ? names.shortMonths : names.months)[time.month - 1];
}

std::wstring YearText(const DateTime& time, int length) {
    if (length == 1) return Digits(time.dayOfYear, 1);
    const auto year = static_cast<unsigned>(time.year);
    return length == 2 ? Digits(year % 100, 2) : Digits(year, 4);
}

unsigned TwelveHour(unsigned hour) { return hour % 12 == 0 ? 12 : hour % 12; }

std::wstring FieldText(wchar_t letter, int length, const DateTime& time, const DateNames& names,
                       bool twelveHours) {
    const int digits = std::min(length, 2);
    switch (letter) {
        case L'd':
            return DayText(time, length, names);
        case L'm':
            return MonthText(time, length, names);
        case L'y':
            return YearText(time, length);
        case L'h':
            return Digits(twelveHours ? TwelveHour(time.hour) : time.hour, digits);
        case L'H':
            return Digits(time.hour, digits);
        case L'M':
            return Digits(time.minute, digits);
        case L'S':
            return Digits(time.second, digits);
        default:
            return time.hour < 12 ? names.morning : names.afternoon;  // T
    }
}

}  // namespace

DateFormat::DateFormat(std::wstring_view pattern) {
    bool run = false;  // whether the token before is one of a date letter, from the sign just before
    for (const PatternSign sign : ReadPattern(pattern)) {
        const bool letter = IsDateLetter(sign);
        if (letter && run && tokens_.back().sign == sign.sign) {
            ++tokens_.back().length;
        } else {
            tokens_.push_back({sign.sign, letter ? 1 : 0});
        }
        run = letter;
        twelveHours_ |= sign.Is(L'T');
    }
}

std::optional<std::wstring> DateFormat::Format(double serial, const DateNames& names) const {
    const auto time = ToDateTime(serial);
    if (!time) return std::nullopt;
    std::wstring out;
    for (const Token& token : tokens_) {
        if (token.length == 0) {
            out += token.sign;
        } else {
            out += FieldText(token.sign, token.length, *time, names, twelveHours_);
        }
    }
    return out;
}

}  // namespace qz
