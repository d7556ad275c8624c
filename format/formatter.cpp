#include "format/formatter.h"

#include "format/predefined_formats.h"
#include "format/refusal.h"
#include "format/user_locale.h"
#include "res/strings.h"

namespace qz {
namespace {

void AppendToList(std::wstring& list, std::wstring_view item) {
    if (!list.empty()) list += L'\t';
    list += item;
}

bool IsSeparator(short sign) { return sign == L',' || sign == L'.'; }

/// The system's own conversion, by the user's regional settings; a text as it is. S_FALSE when it cannot be
/// converted.
HRESULT ConvertPlainly(const DataValue& value, BSTR* text) {
    if (value.Type() == VT_BSTR) {
        *text = MakeText(TextView(value.As<BSTR>()));
        return S_OK;
    }
    _variant_t converted;
    auto* const source = const_cast<VARIANT*>(&value.Variant());  // only read
    if (FAILED(VariantChangeType(&converted, source, 0, VT_BSTR))) return S_FALSE;
    *text = converted.Detach().bstrVal;
    return S_OK;
}

}  // namespace

Formatter::Formatter() : separators_(UserSeparators()) {
    for (const PredefinedCategory& predefined : PredefinedCategories()) {
        const std::wstring name = LoadText(Language::English, predefined.nameId);
        AppendToList(categoryNames_, name);
        const ComPtr<FormatCategory> category = AddItem(name);
        for (const std::wstring_view format : predefined.formats) category->AddItem(format);
    }
}

STDMETHODIMP Formatter::get_DecimalSeperator(short* pVal) {
    return Guard(__uuidof(IqzFormatter), [&] {
        RequirePointer(pVal);
        *pVal = static_cast<short>(separators_.decimal);
    });
}

STDMETHODIMP Formatter::put_DecimalSeperator(short newVal) {
    return Guard(__uuidof(IqzFormatter), [&] {
        if (!IsSeparator(newVal)) {
            Refuse(badDecimalSeparator, L"The decimal separator can be a comma (44) or a full stop (46)");
        }
        separators_.decimal = static_cast<wchar_t>(newVal);
    });
}

STDMETHODIMP Formatter::get_ThousandSeperator(short* pVal) {
    return Guard(__uuidof(IqzFormatter), [&] {
        RequirePointer(pVal);
        *pVal = static_cast<short>(separators_.thousands);
    });
}

STDMETHODIMP Formatter::put_ThousandSeperator(short newVal) {
    return Guard(__uuidof(IqzFormatter), [&] {
        if (!IsSeparator(newVal)) {
            Refuse(badThousandsSeparator, L"The thousands separator can be a comma (44) or a full stop (46)");
        }
        separators_.thousands = static_cast<wchar_t>(newVal);
    });
}

STDMETHODIMP Formatter::EnumCategories(BSTR* pCategories) {
    return Guard(__uuidof(IqzFormatter), [&] {
        RequirePointer(pCategories);
        *pCategories = nullptr;
        *pCategories = MakeText(categoryNames_);
    });
}

STDMETHODIMP Formatter::EnumFormats(int Category, BSTR* pFormats) {
    return Guard(__uuidof(IqzFormatter), [&] {
        RequirePointer(pFormats);
        *pFormats = nullptr;
        const auto categories = PredefinedCategories();
        const auto index = static_cast<std::size_t>(static_cast<unsigned>(Category));
        if (index >= categories.size()) {
            Refuse(noPredefinedCategory, L"There is no predefined category " + std::to_wstring(Category));
        }
        std::wstring list;
        for (const std::wstring_view format : categories[index].formats) AppendToList(list, format);
        *pFormats = MakeText(list);
    });
}

STDMETHODIMP Formatter::FormatData(BSTR Format, VARIANT Data, BSTR* FormattedValue) {
    const ComPtr<IUnknown> alive =
        Identity();  // an object that is asked for its value may let go of this one
    return Guard(__uuidof(IqzFormatter), [&] {
        RequirePointer(FormattedValue);
        *FormattedValue = nullptr;
        const DataValue value(Data);
        const std::wstring_view pattern = TextView(Format);
        if (pattern.empty()) return ConvertPlainly(value, FormattedValue);
        *FormattedValue = MakeText(data_.Format(pattern, value, separators_));
        return S_OK;
    });
}

}  // namespace qz
