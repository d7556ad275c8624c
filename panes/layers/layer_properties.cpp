#include "panes/layers/layer_properties.h"

#include "com/object.h"

#include <comdef.h>

namespace qz {

/// By the module's own entry point, so that it works without registration.
ComPtr<IqzPropertiesDlg> MakePropertiesDialog() noexcept {
    using Entry = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    const auto entry =
        reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(ThisModule(), "DllGetClassObject")));
    ComPtr<IClassFactory> factory;
    ComPtr<IqzPropertiesDlg> dialog;
    if (!entry || FAILED(entry(CLSID_qzPropertiesDlg, IID_PPV_ARGS(&factory)))) return nullptr;
    if (FAILED(factory->CreateInstance(nullptr, IID_PPV_ARGS(&dialog)))) return nullptr;
    return dialog;
}

void ShowProperties(IqzPropertiesDlg* dialog, IDispatch* host, IDispatch* object, HWND owner) {
    ThrowIfFailed(dialog->put_VandraX(host), L"The properties dialog does not take the host");
    ThrowIfFailed(dialog->put_Object(object), L"The properties dialog does not take the layer");
    const _variant_t parent(static_cast<long>(reinterpret_cast<LONG_PTR>(owner)));
    ThrowIfFailed(dialog->DoModal(parent), L"The properties dialog cannot be shown");
}

}  // namespace qz
