// The properties dialog, late-bound as a script would use it.
#include "sample/container/main_window.h"

#include "sample/container/automation.h"
#include "sample/container/error_text.h"

#include "generated/qzVandraExt.h"

#include <algorithm>

namespace qz {

namespace {

_variant_t HandleVariant(HWND window) { return _variant_t(HandleToLong(window)); }

}  // namespace

ComPtr<IDispatch> MainWindow::MakePropertiesDialog() const {
    ComPtr<IDispatch> dialog;
    RequireSuccess(
        CoCreateInstance(CLSID_qzPropertiesDlg, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&dialog)),
        L"The properties dialog cannot be created");
    PutProperty(dialog.Get(), L"VandraX", _variant_t(host_->Automation()));
    return dialog;
}

/// The window goes with the last reference, so the dialog is kept; called for again it shows another object.
void MainWindow::ShowObjectProperties() {
    if (!properties_) properties_ = MakePropertiesDialog();
    const ComPtr<IDispatch> dialog = properties_;
    PutProperty(dialog.Get(), L"AlwaysVisible", 1L);
    PutProperty(dialog.Get(), L"Object", _variant_t(host_->SelectedOrDocument().Get()));
    CallMethod(dialog.Get(), L"DoModeless", {HandleVariant(Handle())});
    CallMethod(dialog.Get(), L"InitObjectList");
    CallMethod(dialog.Get(), L"AddObject", {documentPath});
    for (long page = 1; page <= std::min(host_->PageCount(), 20L); ++page) {
        CallMethod(dialog.Get(), L"AddObject", {(L"Pages[" + std::to_wstring(page) + L"]").c_str()});
    }
}

void MainWindow::ShowDocumentProperties() {
    const ComPtr<IDispatch> dialog = MakePropertiesDialog();
    PutProperty(dialog.Get(), L"Object", _variant_t(host_->Document().Get()));
    CallMethod(dialog.Get(), L"DoModal", {HandleVariant(Handle())});
}

}  // namespace qz
