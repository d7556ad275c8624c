// The ambient properties of a container.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <comdef.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include <optional>

namespace qz {

/// Reads ambient properties (DISPID_AMBIENT_...) through a site's IDispatch. A container without the
/// property, or without ambient properties at all, gives the fallback.
class Ambient {
  public:
    explicit Ambient(IOleClientSite* site) noexcept;

    _variant_t Value(DISPID id) const noexcept;  ///< VT_EMPTY when there is none.
    bool Flag(DISPID id, bool fallback) const noexcept;
    std::optional<OLE_COLOR> BackColor() const noexcept;
    std::optional<OLE_COLOR> ForeColor() const noexcept;
    ComPtr<IFont> Font() const noexcept;  ///< Null when there is none.
    LCID Locale() const noexcept;         ///< The user's default when the container does not say.
    bool DisplayAsDefault() const noexcept { return Flag(DISPID_AMBIENT_DISPLAYASDEFAULT, false); }

  private:
    std::optional<OLE_COLOR> Colour(DISPID id) const noexcept;

    ComPtr<IDispatch> properties_;
};

}  // namespace qz
