#include "format/user_locale.h"

#include "com/error.h"

#include <windows.h>

#include <cstddef>

namespace qz {
namespace {

std::wstring LocaleText(LCTYPE type) {
    constexpr int longest = 80;  // of all the texts asked for here, the closing null included
    wchar_t text[longest];
    const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type, text, longest);
    ThrowLastErrorIf(length == 0, L"The regional settings cannot be read");
    return {text, static_cast<std::size_t>(length - 1)};
}

static_assert(LOCALE_SMONTHNAME12 - LOCALE_SMONTHNAME1 == 11);
static_assert(LOCALE_SABBREVMONTHNAME12 - LOCALE_SABBREVMONTHNAME1 == 11);
std::array<std::wstring, 12> MonthNames(LCTYPE january) {
    std::array<std::wstring, 12> names;
    for (LCTYPE i = 0; i < names.size(); ++i) names[i] = LocaleText(january + i);
    return names;
}

static_assert(LOCALE_SDAYNAME7 - LOCALE_SDAYNAME1 == 6);
static_assert(LOCALE_SABBREVDAYNAME7 - LOCALE_SABBREVDAYNAME1 == 6);
std::array<std::wstring, 7> DayNames(LCTYPE monday) {
    std::array<std::wstring, 7> names;  // Sunday first
    for (LCTYPE i = 0; i < names.size(); ++i) names[(i + 1) % names.size()] = LocaleText(monday + i);
    return names;
}

std::wstring MapLetters(std::wstring_view text, DWORD map) {
    if (text.empty()) return {};
    const auto convert = [&](wchar_t* out, int room) {
        const int length = LCMapStringEx(LOCALE_NAME_USER_DEFAULT, map | LCMAP_LINGUISTIC_CASING, text.data(),
                                         static_cast<int>(text.size()), out, room, nullptr, nullptr, 0);
        ThrowLastErrorIf(length == 0, L"The letters of a text cannot be converted");
        return length;
    };
    std::wstring mapped(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(mapped.data(), static_cast<int>(mapped.size()));
    return mapped;
}

}  // namespace

/// A user may have no thousands separator at all; groups are then parted by the other of the two signs.
NumberSeparators UserSeparators() {
    NumberSeparators separators;
    const std::wstring decimal = LocaleText(LOCALE_SDECIMAL);
    const std::wstring thousands = LocaleText(LOCALE_STHOUSAND);
    if (!decimal.empty()) separators.decimal = decimal[0];
    separators.thousands = separators.decimal == L',' ? L'.' : L',';
    if (!thousands.empty()) separators.thousands = thousands[0];
    return separators;
}

DateNames UserDateNames() {
    return {MonthNames(LOCALE_SMONTHNAME1), MonthNames(LOCALE_SABBREVMONTHNAME1),
            DayNames(LOCALE_SDAYNAME1),     DayNames(LOCALE_SABBREVDAYNAME1),
            LocaleText(LOCALE_S1159),       LocaleText(LOCALE_S2359)};
}

LetterCase UserLetterCase() noexcept {
    return {[](std::wstring_view text) { return MapLetters(text, LCMAP_UPPERCASE); },
            [](std::wstring_view text) { return MapLetters(text, LCMAP_LOWERCASE); }};
}

}  // namespace qz
