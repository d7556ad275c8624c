#include "sample/container/event_text.h"

#include <comdef.h>

#include <vector>

namespace qz {

namespace {

/// The event's name, then those of its parameters; as many as are known.
std::vector<_bstr_t> MemberNames(ITypeInfo* info, DISPID event, size_t parameters) {
    std::vector<BSTR> raw(parameters + 1, nullptr);
    UINT count = 0;
    if (!info || FAILED(info->GetNames(event, raw.data(), static_cast<UINT>(raw.size()), &count))) return {};
    std::vector<_bstr_t> names;
    names.reserve(raw.size());
    for (const BSTR name : raw) names.emplace_back(name, false);
    names.resize(count);
    return names;
}

std::wstring Text(VARIANT& value) {
    _variant_t plain;
    if (FAILED(VariantCopyInd(&plain, &value))) return L"?";
    if (FAILED(VariantChangeType(&plain, &plain, VARIANT_ALPHABOOL, VT_BSTR))) return L"?";
    return std::wstring(plain.bstrVal, SysStringLen(plain.bstrVal));
}

}  // namespace

ComPtr<ITypeInfo> FindEventInfo(IDispatch* object, REFIID events) noexcept {
    ComPtr<ITypeInfo> own;
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> info;
    UINT index = 0;
    if (FAILED(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, &own)) || !own) return nullptr;
    if (FAILED(own->GetContainingTypeLib(&library, &index))) return nullptr;
    if (FAILED(library->GetTypeInfoOfGuid(events, &info))) return nullptr;
    return info;
}

std::wstring DescribeEvent(ITypeInfo* info, DISPID event, const DISPPARAMS& parameters) {
    const std::vector<_bstr_t> names = MemberNames(info, event, parameters.cArgs);
    std::wstring text = names.empty() ? L"Event " + std::to_wstring(event) : std::wstring(names[0]);
    text += L'(';
    for (UINT i = 0; i < parameters.cArgs; ++i) {
        if (i > 0) text += L", ";
        if (i + 1 < names.size()) text += std::wstring(names[i + 1]) + L": ";
        text += Text(parameters.rgvarg[parameters.cArgs - 1 - i]);
    }
    return text + L')';
}

}  // namespace qz
