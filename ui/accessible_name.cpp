#include "ui/accessible_name.h"

#include "com/object.h"

#include <oleacc.h>

namespace qz {

namespace {

// Of our own, as not every platform's libraries define the system's names for them, nor every header ties the
// interface to its id.
constexpr CLSID propertyServices = {
    0xb5f8350b, 0x0548, 0x48b1, {0xa6, 0xee, 0x88, 0xbd, 0x00, 0xb4, 0xa5, 0xe7}};
constexpr IID propertyServicesInterface = {
    0x6e26e776, 0x04f0, 0x495d, {0x80, 0xe4, 0x33, 0x30, 0x35, 0x2e, 0x31, 0x69}};
constexpr GUID nameProperty = {0x608d3df8, 0x8128, 0x4aa7, {0xa4, 0x28, 0xf5, 0x5e, 0x49, 0x26, 0x72, 0x91}};

}  // namespace

void SetAccessibleName(HWND window, const wchar_t* name) noexcept {
    ComPtr<IAccPropServices> services;
    void** const out = reinterpret_cast<void**>(services.GetAddressOf());
    const HRESULT found =
        CoCreateInstance(propertyServices, nullptr, CLSCTX_INPROC_SERVER, propertyServicesInterface, out);
    if (FAILED(found)) return;
    constexpr auto client = static_cast<DWORD>(OBJID_CLIENT);
    if (*name) {
        services->SetHwndPropStr(window, client, CHILDID_SELF, nameProperty, name);
    } else {
        services->ClearHwndProps(window, client, CHILDID_SELF, &nameProperty, 1);
    }
}

}  // namespace qz
