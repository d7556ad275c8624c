#include "panes/thumbnails/page_numbers.h"

#include "com/safe_array.h"
#include "host/array_elements.h"
#include "host/attributes.h"

#include <utility>

namespace qz {

namespace {

SAFEARRAY* ArrayIn(const VARIANT& value) {
    if (!(value.vt & VT_ARRAY)) Throw(DISP_E_TYPEMISMATCH, L"Page numbers come as an array of integers");
    const bool byReference = (value.vt & VT_BYREF) != 0;
    SAFEARRAY* const array = byReference ? (value.pparray ? *value.pparray : nullptr) : value.parray;
    if (!array || SafeArrayGetDim(array) != 1) {
        Throw(E_INVALIDARG, L"Page numbers come as an array of one dimension");
    }
    return array;
}

/// Numbers beyond `long` name no page; they become one that names none either.
template <class T>
std::vector<long> Integers(SAFEARRAY* array) {
    const SafeArrayView<T> view(array);
    std::vector<long> numbers;
    numbers.reserve(view.Elements().size());
    for (const T element : view.Elements()) {
        numbers.push_back(std::in_range<long>(element) ? static_cast<long>(element) : 0);
    }
    return numbers;
}

std::vector<long> VariantNumbers(SAFEARRAY* array) {
    const SafeArrayView<VARIANT> view(array);
    std::vector<long> numbers;
    numbers.reserve(view.Elements().size());
    for (const VARIANT& element : view.Elements()) {
        numbers.push_back(ToLong(LookThrough(element), L"An element of the array is no page number"));
    }
    return numbers;
}

}  // namespace

std::vector<long> PageNumbersOf(const VARIANT& value) {
    SAFEARRAY* const array = ArrayIn(LookThrough(value));
    VARTYPE type = VT_EMPTY;
    ThrowIfFailed(SafeArrayGetVartype(array, &type), L"The array does not tell its element type");
    switch (type) {
        case VT_I1:
            return Integers<signed char>(array);
        case VT_UI1:
            return Integers<unsigned char>(array);
        case VT_I2:
            return Integers<short>(array);
        case VT_UI2:
            return Integers<unsigned short>(array);
        case VT_I4:
        case VT_INT:
            return Integers<int>(array);
        case VT_UI4:
        case VT_UINT:
            return Integers<unsigned int>(array);
        case VT_I8:
            return Integers<long long>(array);
        case VT_UI8:
            return Integers<unsigned long long>(array);
        case VT_VARIANT:
            return VariantNumbers(array);
        default:
            Throw(DISP_E_TYPEMISMATCH, L"The elements of the array are no page numbers");
    }
}

_variant_t MakePageNumbers(std::span<const long> pages) {
    _variant_t value;
    value.parray = MakeLongArray(pages).Detach();
    value.vt = VT_ARRAY | VT_I4;
    return value;
}

_variant_t MakePageVariants(std::span<const long> pages) {
    _variant_t value;
    value.parray = MakeVariantArray(pages).Detach();
    value.vt = VT_ARRAY | VT_VARIANT;
    return value;
}

}  // namespace qz
