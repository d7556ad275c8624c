#include "sample/container/automation.h"

#include "com/exception_info.h"
#include "sample/container/error_text.h"

#include <algorithm>

namespace qz {

namespace {

HRESULT FindMember(IDispatch* object, const wchar_t* name, DISPID& id) {
    auto* writable = const_cast<wchar_t*>(name);  // by history not const
    return object->GetIDsOfNames(IID_NULL, &writable, 1, LOCALE_USER_DEFAULT, &id);
}

_variant_t Invoke(IDispatch* object, const wchar_t* name, WORD flags, DISPPARAMS parameters) {
    DISPID id = DISPID_UNKNOWN;
    RequireSuccess(FindMember(object, name, id), name);
    _variant_t result;
    ExceptionInfo exception;
    const bool put = (flags & DISPATCH_PROPERTYPUT) != 0;
    const HRESULT code = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                        put ? nullptr : &result, &exception, nullptr);
    if (code == DISP_E_EXCEPTION) {
        const HRESULT inner = exception.Code();
        ThrowDescribed(inner, name, exception.Description());
    }
    RequireSuccess(code, name);
    return result;
}

}  // namespace

bool HasMember(IDispatch* object, const wchar_t* name) {
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(FindMember(object, name, id));
}

_variant_t CallMethod(IDispatch* object, const wchar_t* name, std::vector<_variant_t> arguments) {
    std::ranges::reverse(arguments);  // Invoke takes them last to first
    return Invoke(object, name, DISPATCH_METHOD,
                  {arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0});
}

_variant_t GetProperty(IDispatch* object, const wchar_t* name) {
    return Invoke(object, name, DISPATCH_PROPERTYGET, {});
}

void PutProperty(IDispatch* object, const wchar_t* name, const _variant_t& value) {
    _variant_t argument = value;
    DISPID named = DISPID_PROPERTYPUT;
    Invoke(object, name, DISPATCH_PROPERTYPUT, {&argument, &named, 1, 1});
}

}  // namespace qz
