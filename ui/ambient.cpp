#include "ui/ambient.h"

#include "ui/property_values.h"

namespace qz {

Ambient::Ambient(IOleClientSite* site) noexcept {
    if (site && FAILED(site->QueryInterface(IID_PPV_ARGS(&properties_)))) properties_.Reset();
}

_variant_t Ambient::Value(DISPID id) const noexcept {
    _variant_t value;
    if (!properties_) return value;
    DISPPARAMS none{};
    if (FAILED(properties_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, &value,
                                   nullptr, nullptr))) {
        VariantInit(&value);  // what a failed call left there is nobody's
    }
    return value;
}

bool Ambient::Flag(DISPID id, bool fallback) const noexcept {
    _variant_t value = Value(id);
    return TryCoerce(value, VT_BOOL) ? value.boolVal != VARIANT_FALSE : fallback;
}

std::optional<OLE_COLOR> Ambient::BackColor() const noexcept { return Colour(DISPID_AMBIENT_BACKCOLOR); }

std::optional<OLE_COLOR> Ambient::ForeColor() const noexcept { return Colour(DISPID_AMBIENT_FORECOLOR); }

std::optional<OLE_COLOR> Ambient::Colour(DISPID id) const noexcept {
    _variant_t value = Value(id);
    COLORREF translated = 0;
    if (!TryCoerce(value, VT_UI4) || FAILED(OleTranslateColor(value.ulVal, nullptr, &translated))) return {};
    return value.ulVal;
}

ComPtr<IFont> Ambient::Font() const noexcept {
    const _variant_t value = Value(DISPID_AMBIENT_FONT);
    ComPtr<IFont> font;
    const bool isObject = value.vt == VT_DISPATCH || value.vt == VT_UNKNOWN;
    if (isObject && value.punkVal) value.punkVal->QueryInterface(IID_PPV_ARGS(&font));
    return font;
}

LCID Ambient::Locale() const noexcept {
    _variant_t value = Value(DISPID_AMBIENT_LOCALEID);
    return TryCoerce(value, VT_UI4) ? value.ulVal : LOCALE_USER_DEFAULT;
}

}  // namespace qz
