#include "host/late_bound.h"

#include "com/exception_info.h"

#include <vector>

namespace qz {

namespace {

/// Arguments last to first, as Invoke takes them.
std::vector<_variant_t> Reversed(std::initializer_list<_variant_t> arguments) {
    return {std::make_reverse_iterator(arguments.end()), std::make_reverse_iterator(arguments.begin())};
}

}  // namespace

_variant_t LateBoundMember::Get(IDispatch* object, std::initializer_list<_variant_t> arguments) {
    constexpr WORD flags = DISPATCH_PROPERTYGET | DISPATCH_METHOD;
    if (arguments.size() < 2) {  // most calls, and thousands of them: nothing to turn round
        DISPPARAMS parameters{const_cast<_variant_t*>(arguments.begin()), nullptr,  // only read
                              static_cast<UINT>(arguments.size()), 0};
        return Invoke(object, flags, parameters);
    }
    std::vector<_variant_t> reversed = Reversed(arguments);
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    return Invoke(object, flags, parameters);
}

void LateBoundMember::Put(IDispatch* object, const _variant_t& value,
                          std::initializer_list<_variant_t> arguments) {
    std::vector<_variant_t> reversed{value};  // the value is the last argument
    const std::vector<_variant_t> others = Reversed(arguments);
    reversed.insert(reversed.end(), others.begin(), others.end());
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{reversed.data(), &named, static_cast<UINT>(reversed.size()), 1};
    Invoke(object, DISPATCH_PROPERTYPUT, parameters);
}

_variant_t LateBoundMember::Call(IDispatch* object, std::initializer_list<_variant_t> arguments) {
    std::vector<_variant_t> reversed = Reversed(arguments);
    DISPPARAMS parameters{reversed.data(), nullptr, static_cast<UINT>(reversed.size()), 0};
    return Invoke(object, DISPATCH_METHOD, parameters);
}

DISPID LateBoundMember::IdOn(IDispatch* object) {
    if (!id_) {
        DISPID id = DISPID_UNKNOWN;
        LPOLESTR name = name_.data();
        const HRESULT result = object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id);
        if (FAILED(result)) Throw(result, L"A host object has no member \"" + name_ + L"\"");
        id_ = id;
    }
    return *id_;
}

_variant_t LateBoundMember::Invoke(IDispatch* object, WORD flags, DISPPARAMS& parameters) {
    if (!object) Throw(E_POINTER, L"There is no object to ask for \"" + name_ + L"\"");
    _variant_t result;
    ExceptionInfo exception;
    VARIANT* const slot = (flags & DISPATCH_PROPERTYPUT) ? nullptr : &result;
    const HRESULT code = object->Invoke(IdOn(object), IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, slot,
                                        &exception, nullptr);
    if (code == DISP_E_EXCEPTION) {
        const HRESULT inner = exception.Code();
        const std::wstring description = exception.Description();
        if (description.empty()) Throw(inner, L"The host object's member \"" + name_ + L"\" fails");
        Rethrow(inner, description);
    }
    if (FAILED(code)) Throw(code, L"The host object's member \"" + name_ + L"\" fails");
    return result;
}

}  // namespace qz
