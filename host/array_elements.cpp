#include "host/array_elements.h"

#include "com/error.h"

namespace qz {

namespace {

/// Of one dimension, or an exception.
SAFEARRAY* RequireArray(const VARIANT& value) {
    if ((value.vt & VT_ARRAY) == 0) Throw(DISP_E_TYPEMISMATCH, L"A value of the host is not an array");
    SAFEARRAY* const array =
        (value.vt & VT_BYREF) ? (value.pparray ? *value.pparray : nullptr) : value.parray;
    if (!array || SafeArrayGetDim(array) != 1) {
        Throw(DISP_E_TYPEMISMATCH, L"A value of the host is not an array of one dimension");
    }
    return array;
}

}  // namespace

std::vector<_variant_t> ElementsOf(const VARIANT& value) {
    SAFEARRAY* const array = RequireArray(value);
    VARTYPE type = VT_EMPTY;
    ThrowIfFailed(SafeArrayGetVartype(array, &type));
    if (type == VT_RECORD) Throw(DISP_E_TYPEMISMATCH, L"A value of the host is an array of records");
    std::vector<_variant_t> elements;
    const LONG first = array->rgsabound[0].lLbound;
    for (ULONG i = 0; i < array->rgsabound[0].cElements; ++i) {
        LONG index = first + static_cast<LONG>(i);
        _variant_t element;
        // These two take the whole of a VARIANT; a decimal leaves its type's place alone.
        const bool whole = type == VT_VARIANT || type == VT_DECIMAL;
        void* const slot = whole ? static_cast<void*>(&element) : &element.llVal;
        ThrowIfFailed(SafeArrayGetElement(array, &index, slot));
        if (type != VT_VARIANT) element.vt = type;
        elements.push_back(std::move(element));
    }
    return elements;
}

}  // namespace qz
