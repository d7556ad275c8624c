#include "sample/host/host_session.h"

#include "com/type_info.h"
#include "sample/document/document_file.h"
#include "sample/document/text.h"

namespace qz::sample {

HRESULT CodeOf(AccessFailure failure) noexcept {
    switch (failure) {
        case AccessFailure::NoSuchObject:
            return HRESULT_FROM_WIN32(ERROR_NOT_FOUND);
        case AccessFailure::NoSuchAttribute:
            return DISP_E_UNKNOWNNAME;
        case AccessFailure::ReadOnly:
        case AccessFailure::NotAllowed:
            return E_ACCESSDENIED;
        case AccessFailure::BadValue:
            break;
    }
    return E_INVALIDARG;
}

void ThrowModelError() {
    try {
        throw;
    } catch (const AccessError& error) {
        Throw(CodeOf(error.failure), FromUtf8(error.what()));
    } catch (const FormatError& error) {
        Throw(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), FromUtf8(error.what()));
    }
}

HRESULT PlannedFailure(REFIID iid, Operation operation, HRESULT code) noexcept {
    return Guard(iid, [&] { Throw(code, L"Planned failure of " + std::wstring(NameOf(operation))); });
}

bool HostSession::ReadOverride(std::wstring_view path, std::wstring_view attribute, VARIANT* value) const {
    if (overrides_.empty()) return false;
    const auto found = overrides_.find({std::wstring(path), std::wstring(attribute)});
    if (found == overrides_.end()) return false;
    ThrowIfFailed(VariantCopy(value, const_cast<_variant_t*>(&found->second)));
    return true;
}

bool HostSession::ReadOverride(ObjectKey key, std::wstring_view attribute, VARIANT* value) const {
    return !overrides_.empty() && ReadOverride(PathOf(model.Doc(), key), attribute, value);
}

ComPtr<ITypeInfo> HostSession::TypeInfoOf(REFIID iid) {
    for (const auto& [known, info] : typeInfos_) {
        if (known == iid) return info;
    }
    typeInfos_.emplace_back(iid, LoadTypeInfo(iid));
    return typeInfos_.back().second;
}

std::wstring ArgumentText(long value) { return std::to_wstring(value); }

std::wstring ArgumentText(BSTR text) { return std::wstring(text ? text : L"", SysStringLen(text)); }

std::wstring ArgumentText(const VARIANT& value) {
    VARIANT text;
    VariantInit(&text);
    if (FAILED(VariantChangeType(&text, const_cast<VARIANT*>(&value), VARIANT_ALPHABOOL, VT_BSTR))) {
        return L"(type " + std::to_wstring(value.vt) + L")";
    }
    std::wstring result = ArgumentText(text.bstrVal);
    VariantClear(&text);
    return result;
}

}  // namespace qz::sample
