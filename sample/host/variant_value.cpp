#include "sample/host/variant_value.h"

#include "com/safe_array.h"
#include "generated/reference_host.h"
#include "sample/host/host_object.h"

#include <comdef.h>

namespace qz::sample {

namespace {

[[noreturn]] void Unsuited() { Throw(E_INVALIDARG, L"The value is of a type that the host does not take"); }

Value NumberOf(const VARIANT& variant) {
    _variant_t number;
    if (FAILED(VariantChangeType(&number, const_cast<VARIANT*>(&variant), 0, VT_R8))) Unsuited();
    return number.dblVal;
}

ObjectId ObjectIn(const VARIANT& element, const Document& document) {
    ComPtr<IHostObject> object;
    BSTR path = nullptr;
    const bool ours = element.vt == VT_DISPATCH && element.pdispVal &&
                      SUCCEEDED(element.pdispVal->QueryInterface(IID_PPV_ARGS(&object)));
    if (!ours) Unsuited();
    ThrowIfFailed(object->get_Path(&path));
    const _bstr_t owned(path, false);
    const std::optional<ObjectPath> parsed = ParseObjectPath(TextView(path));
    const std::optional<ObjectKey> key = parsed ? Resolve(document, *parsed) : std::nullopt;
    if (!key || key->kind != ObjectKey::Kind::Object) Unsuited();
    return key->id;
}

_variant_t ElementOf(SAFEARRAY* array, VARTYPE type, LONG index) {
    _variant_t element;
    if (type == VT_VARIANT) {
        ThrowIfFailed(SafeArrayGetElement(array, &index, &element));
    } else {
        ThrowIfFailed(SafeArrayGetElement(array, &index, &element.llVal));
        element.vt = type;
    }
    return element;
}

Value ListOf(SAFEARRAY* array, const Document& document) {
    VARTYPE type = VT_EMPTY;
    if (!array || SafeArrayGetDim(array) != 1 || FAILED(SafeArrayGetVartype(array, &type))) Unsuited();
    if (type == VT_DECIMAL || type == VT_RECORD) Unsuited();  // larger than a variant's value
    LONG first = 0;
    LONG last = 0;
    ThrowIfFailed(SafeArrayGetLBound(array, 1, &first));
    ThrowIfFailed(SafeArrayGetUBound(array, 1, &last));
    ObjectList objects;
    NumberList numbers;
    for (LONG index = first; index <= last; ++index) {
        const _variant_t element = ElementOf(array, type, index);
        if (element.vt == VT_DISPATCH) {
            objects.ids.push_back(ObjectIn(element, document));
        } else {
            numbers.push_back(ToInteger(NumberOf(element)));
        }
    }
    if (!objects.ids.empty() && !numbers.empty()) Unsuited();
    if (type == VT_DISPATCH || !objects.ids.empty()) return objects;
    return numbers;
}

Value ValueOfPlain(const VARIANT& variant, const Document& document) {
    switch (variant.vt) {
        case VT_EMPTY:
        case VT_NULL:
            return {};
        case VT_BOOL:
            return variant.boolVal != VARIANT_FALSE;
        case VT_I2:
            return variant.iVal;
        case VT_I4:
            return static_cast<int32_t>(variant.lVal);
        case VT_R4:
            return variant.fltVal;
        case VT_R8:
            return variant.dblVal;
        case VT_BSTR:
            return std::wstring(TextView(variant.bstrVal));
        case VT_ERROR:
        case VT_UNKNOWN:
        case VT_DISPATCH:
            Unsuited();
        default:
            break;
    }
    if (variant.vt & VT_ARRAY) return ListOf(variant.parray, document);
    return NumberOf(variant);
}

SafeArray ArrayOf(const ObjectList& list, HostSession& session) {
    std::vector<ComPtr<IDispatch>> objects;
    for (const ObjectId id : list.ids)
        objects.push_back(MakeHostObject(session, {ObjectKey::Kind::Object, id}));
    return MakeObjectArray(objects);
}

struct Putter {
    HostSession& session;
    VARIANT* result;

    void operator()(std::monostate) const {}
    void operator()(bool value) const { Set(VT_BOOL, result->boolVal, value ? VARIANT_TRUE : VARIANT_FALSE); }
    void operator()(int16_t value) const { Set(VT_I2, result->iVal, value); }
    void operator()(int32_t value) const { Set(VT_I4, result->lVal, value); }
    void operator()(float value) const { Set(VT_R4, result->fltVal, value); }
    void operator()(double value) const { Set(VT_R8, result->dblVal, value); }
    void operator()(const std::wstring& value) const { Set(VT_BSTR, result->bstrVal, MakeText(value)); }
    void operator()(const NumberList& value) const {
        const std::vector<long> numbers(value.begin(), value.end());
        Set(VT_ARRAY | VT_I4, result->parray, MakeLongArray(numbers).Detach());
    }
    void operator()(const ObjectList& value) const {
        Set(VT_ARRAY | VT_DISPATCH, result->parray, ArrayOf(value, session).Detach());
    }

  private:
    template <class Slot, class Content>
    void Set(int type, Slot& slot, Content content) const {
        slot = content;
        result->vt = static_cast<VARTYPE>(type);
    }
};

}  // namespace

Value ValueOf(const VARIANT& variant, const Document& document) {
    if (!(variant.vt & VT_BYREF)) return ValueOfPlain(variant, document);
    _variant_t plain;
    ThrowIfFailed(VariantCopyInd(&plain, const_cast<VARIANT*>(&variant)));
    return ValueOfPlain(plain, document);
}

void PutValue(const Value& value, HostSession& session, VARIANT* result) {
    VariantInit(result);
    std::visit(Putter{session, result}, value);
}

void PutTexts(const std::vector<std::wstring>& texts, VARIANT* result) {
    VariantInit(result);
    SafeArray array = MakeSafeArray(VT_BSTR, texts.size());
    const SafeArrayView<BSTR> view(array.Get());
    for (size_t i = 0; i < texts.size(); ++i) view.Elements()[i] = MakeText(texts[i]);
    result->parray = array.Detach();
    result->vt = VT_ARRAY | VT_BSTR;
}

}  // namespace qz::sample
