#include "dialogs/document/doc_settings_dlg.h"

#include "dialogs/document/doc_settings_window.h"
#include "com/scope.h"
#include "com/text.h"
#include "host/host_calls.h"
#include "host/host_language.h"
#include "host/object_path.h"
#include "ui/parent_window.h"
#include "ui/text_edit.h"

namespace qz {

namespace {

ComPtr<IVandraX> TakeHost(IDispatch* candidate) {
    ComPtr<IVandraX> host;
    ThrowIfFailed(candidate->QueryInterface(IID_PPV_ARGS(&host)), L"The object is no host");
    NoteAttachedHost(host.Get());
    return host;
}

void RunDialog(const ComPtr<IVandraX>& host, HWND parent) {
    RegisterTextEdits();
    const Language language = LanguageOf(host.Get());
    const SettingsSource source{host,
                                FindObject(host.Get(), documentPath)};  // without a document the tabs say so
    MakeDialog<DocSettingsWindow>(source, language)->RunModal(parent);
}

}  // namespace

STDMETHODIMP DocSettingsDlg::Initialize(IDispatch* VandraX) {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzDocSettingsDlg), [&] {
        RequirePointer(VandraX);
        host_ = TakeHost(VandraX);
    });
}

STDMETHODIMP DocSettingsDlg::DoModal(VARIANT hWndParent) {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzDocSettingsDlg), [&] {
        const HWND parent = ParentWindow(hWndParent);
        if (!host_) Throw(E_POINTER, L"The document settings need a host: call Initialize first");
        if (open_) Throw(E_FAIL, L"The dialog is open already");
        const ScopedValue open(open_, true);
        const ComPtr<IVandraX> host = host_;  // it may be put anew while the dialog runs
        RunDialog(host, parent);
    });
}

void RunDocSettings(IDispatch* host, HWND parent) { RunDialog(TakeHost(host), parent); }

}  // namespace qz
