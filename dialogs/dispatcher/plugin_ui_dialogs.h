// Runs the tool dialogs by number, as an automation object.
#pragma once

#include "com/dispatch.h"
#include "dialogs/dispatcher/dialog_options.h"
#include "dialogs/dispatcher/tool_commands.h"

#include "generated/qzVandraExt.h"

#include <string>

namespace qz {

/// See the type library for the members. The panes and the host are kept until others are put. A command
/// gives S_OK, S_FALSE when the user cancelled and the command hands something back, E_NOTIMPL for a number
/// without dialog. Apartment-threaded.
class PluginUIDialogs final : public Object<PluginUIDialogs, Dispatch<IqzPluginUIDialogs>> {
  public:
    void FinalRelease() noexcept { options_.Save(); }

    /// Marks the call as one of a late-bound caller.
    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* exception, UINT* badArgument) override;

    STDMETHODIMP put_BookmarkCtrl(IDispatch* newVal) override;
    STDMETHODIMP put_ThumbnailsCtrl(IDispatch* newVal) override;
    STDMETHODIMP put_LayersCtrl(IDispatch*) override { return S_OK; }
    STDMETHODIMP put_StatusCtrl(IDispatch*) override { return S_OK; }
    STDMETHODIMP put_ParentWindowHandle(long newVal) override;
    STDMETHODIMP DoDialog(qzPluginUIDialogsCommands dialogID) override;
    STDMETHODIMP put_Password(BSTR newVal) override;
    STDMETHODIMP get_Password(BSTR* pVal) override;
    STDMETHODIMP DoDialogEx(qzPluginUIDialogsCommands dialogID, VARIANT* dataIn, VARIANT* dataOut) override;
    STDMETHODIMP ShowWindow(qzPluginUIDialogsCommands dialogID, long* hWnd, VARIANT* dataIn,
                            VARIANT* dataOut) override;
    STDMETHODIMP EndWindow(qzPluginUIDialogsCommands dialogID, long* hWnd, VARIANT* dataOut) override;
    STDMETHODIMP put_PDF(IDispatch* newVal) override;
    STDMETHODIMP get_LastResult(long* pVal) override;

  private:
    HRESULT Run(CallMode mode, long command, const VARIANT* dataIn, VARIANT* dataOut);
    ToolCall MakeCall(CallMode mode, const VARIANT* dataIn, VARIANT* dataOut);

    ComPtr<IDispatch> host_, bookmarks_, thumbnails_;
    long parent_ = 0;
    std::optional<std::wstring> password_;
    CallMode mode_ = CallMode::Idle;
    bool lateBound_ = false;  ///< A late-bound call is about to reach its member.
    HRESULT lastResult_ = S_OK;
    DialogOptions options_;
};

}  // namespace qz
