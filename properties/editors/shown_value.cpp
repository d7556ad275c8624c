#include "properties/editors/shown_value.h"

#include <comdef.h>

namespace qz {

namespace {

/// Empty when the value does not convert.
_variant_t Converted(const VARIANT& value, VARTYPE type) {
    _variant_t plain;
    if (FAILED(VariantCopyInd(&plain, const_cast<VARIANT*>(&value)))) return {};  // only reads it
    const bool none = plain.vt == VT_EMPTY || plain.vt == VT_NULL;
    const bool object = plain.vt == VT_DISPATCH || plain.vt == VT_UNKNOWN;
    _variant_t converted;
    if (none || object || FAILED(VariantChangeTypeEx(&converted, &plain, LOCALE_INVARIANT, 0, type)))
        return {};
    return converted;
}

}  // namespace

std::optional<double> ShownReal(const VARIANT& value) {
    const _variant_t number = Converted(value, VT_R8);
    return number.vt == VT_R8 ? std::optional(number.dblVal) : std::nullopt;
}

std::optional<std::int64_t> ShownInteger(const VARIANT& value) {
    const _variant_t number = Converted(value, VT_I8);
    return number.vt == VT_I8 ? std::optional<std::int64_t>(number.llVal) : std::nullopt;
}

std::optional<std::wstring> ShownText(const VARIANT& value) {
    const _variant_t text = Converted(value, VT_BSTR);
    if (text.vt != VT_BSTR) return std::nullopt;
    return std::wstring(text.bstrVal, text.bstrVal + SysStringLen(text.bstrVal));
}

}  // namespace qz
