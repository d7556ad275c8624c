#include "dialogs/dispatcher/plugin_ui_dialogs.h"

#include "com/scope.h"
#include "com/text.h"
#include "host/host_language.h"
#include "ui/parent_window.h"

#include <comdef.h>

namespace qz {

STDMETHODIMP PluginUIDialogs::Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
                                     VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
    const ComPtr<IUnknown> alive = Identity();
    const ScopedValue lateBound(lateBound_, true);
    return Dispatch::Invoke(id, iid, locale, flags, parameters, result, exception, badArgument);
}

STDMETHODIMP PluginUIDialogs::put_BookmarkCtrl(IDispatch* newVal) {
    bookmarks_ = newVal;
    return S_OK;
}

STDMETHODIMP PluginUIDialogs::put_ThumbnailsCtrl(IDispatch* newVal) {
    thumbnails_ = newVal;
    return S_OK;
}

STDMETHODIMP PluginUIDialogs::put_PDF(IDispatch* newVal) {
    host_ = newVal;
    NoteAttachedHost(newVal);
    return S_OK;
}

STDMETHODIMP PluginUIDialogs::get_LastResult(long* pVal) {
    return Guard(__uuidof(IqzPluginUIDialogs), [&] {
        RequirePointer(pVal);
        *pVal = lastResult_;
    });
}

STDMETHODIMP PluginUIDialogs::put_ParentWindowHandle(long newVal) {
    parent_ = newVal;
    return S_OK;
}

STDMETHODIMP PluginUIDialogs::put_Password(BSTR newVal) {
    return Guard(__uuidof(IqzPluginUIDialogs), [&] {
        if (newVal)
            password_.emplace(newVal, SysStringLen(newVal));
        else
            password_.reset();
    });
}

STDMETHODIMP PluginUIDialogs::get_Password(BSTR* pVal) {
    return Guard(__uuidof(IqzPluginUIDialogs), [&] {
        RequirePointer(pVal);
        *pVal = nullptr;
        if (password_) *pVal = MakeText(*password_);
    });
}

STDMETHODIMP PluginUIDialogs::DoDialog(qzPluginUIDialogsCommands dialogID) {
    return Run(CallMode::Modal, dialogID, nullptr, nullptr);
}

STDMETHODIMP PluginUIDialogs::DoDialogEx(qzPluginUIDialogsCommands dialogID, VARIANT* dataIn,
                                         VARIANT* dataOut) {
    return Run(CallMode::Modal, dialogID, dataIn, dataOut);
}

/// All dialogs are modal in every mode: the window is gone when the call returns, and its handle is not told.
STDMETHODIMP PluginUIDialogs::ShowWindow(qzPluginUIDialogsCommands dialogID, long*, VARIANT* dataIn,
                                         VARIANT* dataOut) {
    return Run(CallMode::ShowWindow, dialogID, dataIn, dataOut);
}

STDMETHODIMP PluginUIDialogs::EndWindow(qzPluginUIDialogsCommands dialogID, long*, VARIANT* dataOut) {
    return Run(CallMode::EndWindow, dialogID, nullptr, dataOut);
}

HRESULT PluginUIDialogs::Run(CallMode mode, long command, const VARIANT* dataIn, VARIANT* dataOut) {
    const ComPtr<IUnknown> alive = Identity();
    lastResult_ = Guard(__uuidof(IqzPluginUIDialogs), [&]() -> HRESULT {
        const ScopedValue calling(mode_, mode);
        ToolCall call = MakeCall(mode, dataIn, dataOut);
        const ToolCommand& tool = RequireCommand(command);
        call.host = host_;  // kept, for the host may take itself out while it is asked
        options_.LoadOnce(call.host.Get());
        call.parent = ParentWindow(_variant_t(parent_));
        return tool.run(call);
    });
    return lastResult_;
}

/// A late-bound caller's data out of ShowWindow and EndWindow is a variable of a script, which may hold a
/// value, or stands for an argument left out. That of DoDialogEx is the result, for which nobody vouches.
ToolCall PluginUIDialogs::MakeCall(CallMode mode, const VARIANT* dataIn, VARIANT* dataOut) {
    ToolCall call;
    call.mode = mode;
    call.dataIn = dataIn;
    call.dataOut = dataOut;
    call.dataOutHolds = std::exchange(lateBound_, false) && mode != CallMode::Modal;
    const bool leftOut =
        call.dataOutHolds && dataOut && dataOut->vt == VT_ERROR && dataOut->scode == DISP_E_PARAMNOTFOUND;
    if (leftOut) call.dataOut = nullptr;
    return call;
}

}  // namespace qz
