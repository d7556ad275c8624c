#include "format/data_formatter.h"

#include "com/text.h"
#include "format/user_locale.h"

namespace qz {
namespace {

template <class T>
DecimalNumber Integer(const DataValue& value) noexcept {
    return DecimalNumber(static_cast<double>(value.As<T>()));
}

std::optional<DecimalNumber> NumberIn(const DataValue& value) noexcept {
    switch (value.Type()) {
        case VT_I1:
            return Integer<signed char>(value);
        case VT_UI1:
            return Integer<BYTE>(value);
        case VT_I2:
            return Integer<SHORT>(value);
        case VT_UI2:
            return Integer<USHORT>(value);
        case VT_I4:
            return Integer<LONG>(value);
        case VT_INT:
            return Integer<INT>(value);
        case VT_UI4:
            return Integer<ULONG>(value);
        case VT_UINT:
            return Integer<UINT>(value);
        case VT_R4:
            return DecimalNumber(value.As<FLOAT>());
        case VT_R8:
            return DecimalNumber(value.As<DOUBLE>());
        default:
            return std::nullopt;
    }
}

}  // namespace

std::wstring DataFormatter::Format(std::wstring_view pattern, const DataValue& value,
                                   NumberSeparators separators) {
    if (const auto number = NumberIn(value)) return numbers_.Read(pattern).Format(*number, separators);
    if (value.Type() == VT_DATE) return FormatDate(pattern, value.As<DATE>());
    if (value.Type() == VT_BSTR) {
        return texts_.Read(pattern).Format(TextView(value.As<BSTR>()), UserLetterCase());
    }
    Throw(E_FAIL, L"A format string shows numbers, dates and texts, but the value is " + value.TypeName());
}

std::wstring DataFormatter::FormatDate(std::wstring_view pattern, DATE date) {
    if (!dateNames_) dateNames_ = UserDateNames();
    auto text = dates_.Read(pattern).Format(date, *dateNames_);
    if (!text) Throw(E_FAIL, L"The date " + std::to_wstring(date) + L" is not within the years 100 to 9999");
    return std::move(*text);
}

}  // namespace qz
