#include "host/array_elements.h"

#include "com/error.h"

namespace qz {

namespace {

/// Null when the value is no array of one dimension.
SAFEARRAY* ArrayIn(const VARIANT& value) noexcept {
    const VARIANT& plain = LookThrough(value);
    if (!(plain.vt & VT_ARRAY)) return nullptr;
    SAFEARRAY* const array =
        (plain.vt & VT_BYREF) ? (plain.pparray ? *plain.pparray : nullptr) : plain.parray;
    return array && SafeArrayGetDim(array) == 1 ? array : nullptr;
}

}  // namespace

const VARIANT& LookThrough(const VARIANT& value) noexcept {
    const VARIANT* inner = &value;
    // A reference to a reference is malformed; the limit keeps a circle from being followed for ever.
    for (int depth = 0; inner->vt == (VT_BYREF | VT_VARIANT) && inner->pvarVal && depth < 4; ++depth) {
        inner = inner->pvarVal;
    }
    return *inner;
}

bool IsList(const VARIANT& value) noexcept { return ArrayIn(value) != nullptr; }

std::vector<_variant_t> ElementsOf(const VARIANT& value) {
    SAFEARRAY* const array = ArrayIn(value);
    if (!array) Throw(DISP_E_TYPEMISMATCH, L"A value of the host is not an array of one dimension");
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
