#include "ui/parent_window.h"

#include "com/error.h"

#include <comdef.h>

namespace qz {

namespace {

bool HoldsNothing(const VARIANT& value) noexcept {
    return value.vt == VT_EMPTY || value.vt == VT_NULL || value.vt == VT_ERROR;
}

}  // namespace

HWND ParentWindow(const VARIANT& handle) {
    _variant_t plain;
    if (FAILED(VariantCopyInd(&plain, const_cast<VARIANT*>(&handle)))) {
        Throw(E_INVALIDARG, L"The parent window is no number");
    }
    if (HoldsNothing(plain)) return nullptr;
    const bool unsignedHandle = plain.vt == VT_UI4 || plain.vt == VT_UINT;
    if (unsignedHandle) plain.vt = VT_I4;  // the same bits, with a sign to extend
    _variant_t number;
    if (FAILED(VariantChangeType(&number, &plain, 0, VT_I8))) {
        Throw(E_INVALIDARG, L"The parent window is no number");
    }
    const HWND window = reinterpret_cast<HWND>(static_cast<LONG_PTR>(number.llVal));
    if (window && !IsWindow(window)) Throw(E_INVALIDARG, L"The parent window does not exist");
    return window;
}

}  // namespace qz
