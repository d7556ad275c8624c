#include "properties/dialog/properties_dlg.h"

#include "host/host_language.h"
#include "ui/parent_window.h"

namespace qz {

void PropertiesDlg::FinalRelease() noexcept {
    if (window_) window_->Destroy();
    const bool saves = (state_.options & qzPropertiesDlgOptions_NoSavePosition) == 0;
    if (saves && state_.lastPlace != Rect{}) state_.memory.Write(state_.lastPlace);
}

STDMETHODIMP PropertiesDlg::get_AlwaysVisible(long* pVal) {
    return Guard(__uuidof(IqzPropertiesDlg), [&] {
        RequirePointer(pVal);
        *pVal = state_.alwaysVisible;
    });
}

STDMETHODIMP PropertiesDlg::put_AlwaysVisible(long newVal) {
    return Guard(__uuidof(IqzPropertiesDlg), [&] {
        state_.alwaysVisible = newVal;
        if (Open()) window_->ShowPin();
    });
}

STDMETHODIMP PropertiesDlg::get_Options(qzPropertiesDlgOptions* pVal) {
    return Guard(__uuidof(IqzPropertiesDlg), [&] {
        RequirePointer(pVal);
        *pVal = static_cast<qzPropertiesDlgOptions>(state_.options);
    });
}

STDMETHODIMP PropertiesDlg::put_Options(qzPropertiesDlgOptions newVal) {
    state_.options = newVal;
    return S_OK;
}

STDMETHODIMP PropertiesDlg::put_VandraX(IDispatch* newVal) {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzPropertiesDlg), [&] {
        Attach(newVal);
        if (Open()) window_->TakeHost();
    });
}

STDMETHODIMP PropertiesDlg::put_Object(IDispatch* newVal) {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzPropertiesDlg), [&] {
        state_.object = newVal;
        if (Open()) window_->TakeObject();
    });
}

void PropertiesDlg::Attach(IDispatch* host) {
    state_.host = host;
    NoteAttachedHost(host);
}

void PropertiesDlg::MakeWindow() {
    window_ = MakeDialog<PropertiesWindow>(state_, Identity(), LanguageOf(state_.host.Get()));
}

void PropertiesDlg::ShowModal(HWND parent) {
    MakeWindow();
    const std::shared_ptr<PropertiesWindow> window = window_;
    window->ShowModal(parent);
}

void PropertiesDlg::Serve(const PropertiesRequest& request) {
    const ComPtr<PropertiesDlg> dialog = MakeObject<PropertiesDlg>();
    dialog->state_.options = request.options;
    dialog->state_.changes = request.changes;
    dialog->state_.object = request.object;
    dialog->Attach(request.host);
    dialog->ShowModal(request.owner);
}

STDMETHODIMP PropertiesDlg::DoModal(VARIANT hWndParent) {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzPropertiesDlg), [&] {
        const HWND parent = ParentWindow(hWndParent);
        if (Open()) Throw(E_FAIL, L"The dialog is open already");
        ShowModal(parent);
    });
}

STDMETHODIMP PropertiesDlg::DoModeless(VARIANT hWndParent) {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzPropertiesDlg), [&] {
        const HWND parent = ParentWindow(hWndParent);
        if (Open()) return window_->Activate();
        MakeWindow();
        const std::shared_ptr<PropertiesWindow> window = window_;
        try {
            window->ShowModeless(parent);
        } catch (const ComError& error) {
            window->Destroy();
            Rethrow(E_FAIL, error.text);
        }
    });
}

STDMETHODIMP PropertiesDlg::InitObjectList() {
    return Guard(__uuidof(IqzPropertiesDlg), [&]() -> HRESULT {
        if (!Open()) return S_FALSE;
        window_->ClearObjects();
        return S_OK;
    });
}

STDMETHODIMP PropertiesDlg::AddObject(BSTR Name) {
    return Guard(__uuidof(IqzPropertiesDlg), [&]() -> HRESULT {
        if (!Open()) return S_FALSE;
        if (!window_->AppendObject(Name ? Name : L"")) Throw(E_FAIL, L"The list of objects takes no entry");
        return S_OK;
    });
}

}  // namespace qz
