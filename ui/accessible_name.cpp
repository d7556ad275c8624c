#include "ui/accessible_name.h"

#include "com/object.h"

#include <oleacc.h>

namespace qz {

void SetAccessibleName(HWND window, const wchar_t* name) noexcept {
    ComPtr<IAccPropServices> services;
    // By its id: not every platform header ties the interface to it.
    void** const out = reinterpret_cast<void**>(services.GetAddressOf());
    const HRESULT found =
        CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices, out);
    if (FAILED(found)) return;
    constexpr auto client = static_cast<DWORD>(OBJID_CLIENT);
    if (*name) {
        services->SetHwndPropStr(window, client, CHILDID_SELF, PROPID_ACC_NAME, name);
    } else {
        services->ClearHwndProps(window, client, CHILDID_SELF, &PROPID_ACC_NAME, 1);
    }
}

}  // namespace qz
