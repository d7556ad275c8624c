#include "sample/container/ambient_properties.h"

#include <comdef.h>
#include <olectl.h>

namespace qz {

namespace {

_variant_t Colour(OLE_COLOR colour) { return _variant_t(static_cast<long>(colour), VT_I4); }

/// Empty for a property without a value here.
_variant_t Value(DISPID id, const AmbientValues& ambients, const std::wstring& displayName) {
    switch (id) {
        case DISPID_AMBIENT_BACKCOLOR:
            return Colour(ambients.backColour);
        case DISPID_AMBIENT_FORECOLOR:
            return Colour(ambients.foreColour);
        case DISPID_AMBIENT_FONT:
            return ambients.font ? _variant_t(ambients.font.Get()) : _variant_t();
        case DISPID_AMBIENT_LOCALEID:
            return _variant_t(static_cast<long>(ambients.locale), VT_I4);
        case DISPID_AMBIENT_DISPLAYNAME:
            return _variant_t(displayName.c_str());
        case DISPID_AMBIENT_USERMODE:
        case DISPID_AMBIENT_SUPPORTSMNEMONICS:
            return _variant_t(true);
        case DISPID_AMBIENT_UIDEAD:
        case DISPID_AMBIENT_SHOWGRABHANDLES:
        case DISPID_AMBIENT_SHOWHATCHING:
        case DISPID_AMBIENT_DISPLAYASDEFAULT:
        case DISPID_AMBIENT_MESSAGEREFLECT:
            return _variant_t(false);
        default:
            return {};
    }
}

}  // namespace

STDMETHODIMP AmbientProperties::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP AmbientProperties::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (info) *info = nullptr;
    return E_NOTIMPL;
}

STDMETHODIMP AmbientProperties::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return E_NOTIMPL; }

STDMETHODIMP AmbientProperties::Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS*, VARIANT* result,
                                       EXCEPINFO*, UINT*) {
    if (iid != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
    if (!result) return E_POINTER;
    VariantInit(result);
    if (!(flags & DISPATCH_PROPERTYGET)) return DISP_E_MEMBERNOTFOUND;
    return Guard(IID_NULL, [&]() -> HRESULT {
        *result = Value(id, *ambients_, displayName_).Detach();
        return result->vt == VT_EMPTY ? DISP_E_MEMBERNOTFOUND : S_OK;
    });
}

}  // namespace qz
