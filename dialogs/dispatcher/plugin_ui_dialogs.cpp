#include "dialogs/dispatcher/plugin_ui_dialogs.h"

#include "com/text.h"
#include "ui/parent_window.h"

#include <comdef.h>

namespace qz {

namespace {

/// Sets the mode of the call in progress, and back to that of the call around it.
class ModeScope {
  public:
    ModeScope(CallMode& mode, CallMode now) noexcept : mode_(mode), before_(std::exchange(mode, now)) {}
    ~ModeScope() { mode_ = before_; }
    ModeScope(const ModeScope&) = delete;
    ModeScope& operator=(const ModeScope&) = delete;

  private:
    CallMode& mode_;
    CallMode before_;
};

}  // namespace

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
    return S_OK;
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
    return Guard(__uuidof(IqzPluginUIDialogs), [&]() -> HRESULT {
        const ModeScope scope(mode_, mode);
        const ToolCommand& tool = RequireCommand(command);
        ToolCall call;
        call.host = host_;  // kept, for the host may take itself out while it is asked
        options_.LoadOnce(call.host.Get());
        call.parent = ParentWindow(_variant_t(parent_));
        call.mode = mode_;
        call.dataIn = dataIn;
        call.dataOut = dataOut;
        call.dataOutHolds = mode != CallMode::Modal;  // in and out there, out alone in DoDialogEx
        return tool.run(call);
    });
}

}  // namespace qz
