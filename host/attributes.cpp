#include "host/attributes.h"

namespace qz {

namespace {

std::wstring Quoted(BSTR path, BSTR attribute) {
    return L"the attribute \"" + std::wstring(attribute) + L"\" of \"" + std::wstring(path) + L"\"";
}

}  // namespace

_variant_t ReadAttribute(IVandraX* host, std::wstring_view path, std::wstring_view attribute) {
    _variant_t value;
    ReadAttribute(host, Bstr(path).Get(), Bstr(attribute).Get(), value);
    return value;
}

void ReadAttribute(IVandraX* host, BSTR path, BSTR attribute, _variant_t& value) {
    value.Clear();
    const HRESULT result = host->GetObjectAttribute(path, attribute, &value);
    if (FAILED(result)) Throw(result, L"The host does not tell " + Quoted(path, attribute));
}

void WriteAttribute(IVandraX* host, std::wstring_view path, std::wstring_view attribute,
                    const _variant_t& value) {
    const Bstr pathText(path);
    const Bstr attributeText(attribute);
    const HRESULT result = host->SetObjectAttribute(pathText.Get(), attributeText.Get(), value);
    if (FAILED(result)) {
        Throw(result, L"The host refuses to set " + Quoted(pathText.Get(), attributeText.Get()));
    }
}

long ToLong(const VARIANT& value, const wchar_t* failure) {
    if (value.vt == VT_I4) return value.lVal;
    _variant_t number;
    ThrowIfFailed(VariantChangeType(&number, const_cast<VARIANT*>(&value), 0, VT_I4),
                  failure);  // only reads it
    return number.lVal;
}

std::wstring ToText(const VARIANT& value) {
    if (value.vt == VT_EMPTY || value.vt == VT_NULL) return {};
    _variant_t text;
    const VARIANT* source = &value;
    if (value.vt != VT_BSTR) {
        ThrowIfFailed(VariantChangeType(&text, const_cast<VARIANT*>(&value), VARIANT_NOUSEROVERRIDE, VT_BSTR),
                      L"A value of the host is not a text");
        source = &text;
    }
    return {source->bstrVal, source->bstrVal + SysStringLen(source->bstrVal)};
}

}  // namespace qz
