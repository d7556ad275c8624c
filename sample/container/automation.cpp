#include "sample/container/automation.h"

#include "sample/container/error_text.h"

#include <algorithm>

namespace qz {

namespace {

HRESULT FindMember(IDispatch* object, const wchar_t* name, DISPID& id) {
    auto* writable = const_cast<wchar_t*>(name);  // by history not const
    return object->GetIDsOfNames(IID_NULL, &writable, 1, LOCALE_USER_DEFAULT, &id);
}

/// Why a call failed, in the words of the called object.
std::wstring TakeDescription(EXCEPINFO& exception) {
    if (exception.pfnDeferredFillIn) exception.pfnDeferredFillIn(&exception);
    const _bstr_t source(exception.bstrSource, false);
    const _bstr_t help(exception.bstrHelpFile, false);
    const _bstr_t description(exception.bstrDescription, false);
    return description.length() ? std::wstring(description, description.length()) : std::wstring();
}

_variant_t Invoke(IDispatch* object, const wchar_t* name, WORD flags, DISPPARAMS parameters) {
    DISPID id = DISPID_UNKNOWN;
    RequireSuccess(FindMember(object, name, id), name);
    _variant_t result;
    EXCEPINFO exception{};
    const bool put = (flags & DISPATCH_PROPERTYPUT) != 0;
    const HRESULT code = object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                        put ? nullptr : &result, &exception, nullptr);
    if (code == DISP_E_EXCEPTION) {
        const HRESULT inner = FAILED(exception.scode) ? exception.scode : E_FAIL;
        ThrowDescribed(inner, name, TakeDescription(exception));
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
