#include "ui/property_values.h"

#include "com/exception_info.h"
#include "com/text.h"

#include <string_view>

namespace qz {

namespace {

HRESULT Convert(VARIANT& value, VARTYPE type) noexcept {
    _variant_t plain;
    HRESULT result = VariantCopyInd(&plain, &value);
    if (FAILED(result)) return result;
    if (plain.vt == VT_EMPTY || plain.vt == VT_NULL) return DISP_E_TYPEMISMATCH;  // nothing is not zero
    const bool sameBits = (plain.vt == VT_I4 && type == VT_UI4) || (plain.vt == VT_UI4 && type == VT_I4);
    if (sameBits) {
        plain.vt = type;
    } else {
        result = VariantChangeTypeEx(&plain, &plain, LOCALE_INVARIANT, 0, type);
    }
    if (FAILED(result)) return result;
    VariantClear(&value);
    value = plain.Detach();
    return S_OK;
}

void Invoke(IDispatch* object, DISPID id, WORD how, DISPPARAMS& parameters, VARIANT* result) {
    ExceptionInfo exception;
    const HRESULT code =
        object->Invoke(id, IID_NULL, LOCALE_INVARIANT, how, &parameters, result, &exception, nullptr);
    if (code == DISP_E_EXCEPTION) {
        const HRESULT inner = exception.Code();
        Rethrow(inner, exception.Description());
    }
    ThrowIfFailed(code, L"A property of the control does not answer");
}

enum class Form { integer, real, boolean, text };

Form FormOf(VARTYPE type) {
    switch (type) {
        case VT_BOOL:
            return Form::boolean;
        case VT_R4:
        case VT_R8:
            return Form::real;
        case VT_BSTR:
            return Form::text;
        default:
            return Form::integer;
    }
}

std::u16string TextOf(BSTR text) {
    const std::wstring_view view = TextView(text);
    return {view.begin(), view.end()};
}

struct VariantMaker {
    _variant_t operator()(std::int64_t value) const { return _variant_t(static_cast<LONGLONG>(value)); }
    _variant_t operator()(double value) const { return _variant_t(value); }
    _variant_t operator()(bool value) const { return _variant_t(value); }
    _variant_t operator()(const std::u16string& value) const {
        return TextVariant(std::wstring(value.begin(), value.end()));
    }
};

}  // namespace

bool TryCoerce(VARIANT& value, VARTYPE type) noexcept { return SUCCEEDED(Convert(value, type)); }

void Coerce(VARIANT& value, VARTYPE type) {
    ThrowIfFailed(Convert(value, type), L"A value cannot be converted to the property's type");
}

StoredValue ToStored(const VARIANT& value, VARTYPE type) {
    _variant_t typed(value);
    Coerce(typed, type);
    switch (FormOf(type)) {
        case Form::boolean:
            return typed.boolVal != VARIANT_FALSE;
        case Form::real:
            Coerce(typed, VT_R8);
            return typed.dblVal;
        case Form::text:
            return TextOf(typed.bstrVal);
        case Form::integer:
            break;
    }
    Coerce(typed, VT_I8);
    return static_cast<std::int64_t>(typed.llVal);
}

_variant_t FromStored(const StoredValue& value, VARTYPE type) {
    _variant_t result = std::visit(VariantMaker{}, value);
    Coerce(result, type);
    return result;
}

_variant_t GetProperty(IDispatch* object, DISPID id) {
    DISPPARAMS none{};
    _variant_t value;
    Invoke(object, id, DISPATCH_PROPERTYGET, none, &value);
    return value;
}

void PutProperty(IDispatch* object, DISPID id, const VARIANT& value) {
    DISPID named = DISPID_PROPERTYPUT;
    VARIANT argument = value;  // borrowed: the callee only reads it
    DISPPARAMS parameters{&argument, &named, 1, 1};
    Invoke(object, id, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

}  // namespace qz
