#include "format/data_value.h"

#include "com/exception_info.h"
#include "format/refusal.h"

#include <algorithm>
#include <iterator>

namespace qz {
namespace {

_variant_t DefaultValueOf(const ComPtr<IDispatch>& object) {
    if (!object) Refuse(noDefaultValue, L"There is no object whose default value could be shown");
    _variant_t value;
    ExceptionInfo exception;
    DISPPARAMS noParameters{};
    const HRESULT code = object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                        &noParameters, &value, &exception, nullptr);
    if (SUCCEEDED(code)) return value;
    const HRESULT inner = code == DISP_E_EXCEPTION ? exception.Code() : code;
    const std::wstring description = exception.Description();
    Refuse(noDefaultValue, L"The object's default value cannot be read: " +
                               (description.empty() ? DescribeError(inner) : description));
}

struct NamedType {
    VARTYPE type;
    const wchar_t* name;
};

constexpr NamedType namedTypes[] = {
    {VT_EMPTY, L"empty"},
    {VT_NULL, L"null"},
    {VT_CY, L"an amount of money"},
    {VT_DISPATCH, L"an object"},
    {VT_ERROR, L"an error code or a missing argument"},
    {VT_BOOL, L"a Boolean"},
    {VT_UNKNOWN, L"an object"},
    {VT_DECIMAL, L"a decimal number"},
    {VT_I8, L"a 64-bit integer"},
    {VT_UI8, L"a 64-bit integer"},
};

}  // namespace

DataValue::DataValue(const VARIANT& data) {
    LookInto(data);
    if (type_ != VT_DISPATCH) return;
    given_ = DefaultValueOf(As<IDispatch*>());
    LookInto(given_);
}

void DataValue::LookInto(const VARIANT& data) {
    variant_ = &data;
    if (variant_->vt == (VT_BYREF | VT_VARIANT)) {
        RequirePointer(variant_->pvarVal);
        variant_ = variant_->pvarVal;
    }
    const bool reference = (variant_->vt & VT_BYREF) != 0;
    type_ = static_cast<VARTYPE>(variant_->vt & ~VT_BYREF);
    place_ = reference ? variant_->byref : &variant_->byref;  // all values begin at one place
    RequirePointer(place_);
}

std::wstring DataValue::TypeName() const {
    if (type_ & VT_ARRAY) return L"an array";
    const auto found = std::ranges::find(namedTypes, type_, &NamedType::type);
    if (found != std::end(namedTypes)) return found->name;
    return L"of the variant type " + std::to_wstring(type_);
}

}  // namespace qz
