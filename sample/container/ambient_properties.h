// The ambient properties: what controls should look and behave like here.
#pragma once

#include "com/object.h"

#include <ocidl.h>

#include <memory>
#include <string>

namespace qz {

/// Shared by all sites of the program. When it changes, the sites must tell their controls.
struct AmbientValues {
    OLE_COLOR backColour = 0x80000000u | COLOR_WINDOW;
    OLE_COLOR foreColour = 0x80000000u | COLOR_WINDOWTEXT;
    ComPtr<IFontDisp> font;
    LCID locale = LOCALE_USER_DEFAULT;
};

/// Answers a site's ambient properties by dispatch id. There is a type library for none of this: controls
/// know the numbers.
class AmbientProperties : public IDispatch {
  public:
    static void* FindInterface(AmbientProperties* self, REFIID iid) noexcept {
        return iid == __uuidof(IDispatch) ? static_cast<IDispatch*>(self) : nullptr;
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID, DISPID* ids) override;
    /// DISP_E_MEMBERNOTFOUND for a property that the program has no opinion on, and for anything but reading.
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override;

  protected:
    ~AmbientProperties() = default;

    std::shared_ptr<const AmbientValues> ambients_;
    std::wstring displayName_;  ///< What the control is called in the program's messages.
};

}  // namespace qz
