// The system's script engine, hosted by a test without a window.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <activscp.h>
#include <comdef.h>

#include <string>

namespace qz {

/// The least a script engine wants of its host.
class ScriptSite final : public Object<ScriptSite, IActiveScriptSite> {
  public:
    std::wstring error;  ///< Of the script, as the engine told it last.

    STDMETHODIMP GetLCID(LCID*) override { return E_NOTIMPL; }  // the engine takes the user's
    STDMETHODIMP GetItemInfo(LPCOLESTR, DWORD, IUnknown**, ITypeInfo**) override {
        return TYPE_E_ELEMENTNOTFOUND;
    }
    STDMETHODIMP GetDocVersionString(BSTR*) override { return E_NOTIMPL; }
    STDMETHODIMP OnScriptTerminate(const VARIANT*, const EXCEPINFO*) override { return S_OK; }
    STDMETHODIMP OnStateChange(SCRIPTSTATE) override { return S_OK; }
    STDMETHODIMP OnScriptError(IActiveScriptError* failure) override {
        EXCEPINFO info{};
        if (FAILED(failure->GetExceptionInfo(&info))) return E_FAIL;
        const _bstr_t source(info.bstrSource, false);
        const _bstr_t help(info.bstrHelpFile, false);
        const _bstr_t text(info.bstrDescription, false);
        error = text.length() ? std::wstring(text) : std::to_wstring(info.scode);
        return S_OK;
    }
    STDMETHODIMP OnEnterScript() override { return S_OK; }
    STDMETHODIMP OnLeaveScript() override { return S_OK; }
};

/// A VBScript program; its procedures are members of `Members()`.
class Script {
  public:
    explicit Script(const wchar_t* text) {
        CLSID language{};
        ThrowIfFailed(CLSIDFromProgID(L"VBScript", &language), L"There is no VBScript");
        ThrowIfFailed(CoCreateInstance(language, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&engine_)));
        ThrowIfFailed(engine_->SetScriptSite(site_.Get()));
        ComPtr<IActiveScriptParse> parser;
        ThrowIfFailed(engine_.As(&parser));
        ThrowIfFailed(parser->InitNew());
        ThrowIfFailed(parser->ParseScriptText(text, nullptr, nullptr, nullptr, 0, 0, SCRIPTTEXT_ISVISIBLE,
                                              nullptr, nullptr));
        ThrowIfFailed(engine_->SetScriptState(SCRIPTSTATE_CONNECTED));
        ThrowIfFailed(engine_->GetScriptDispatch(nullptr, &members_));
    }
    ~Script() { engine_->Close(); }
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;

    IDispatch* Members() const noexcept { return members_.Get(); }
    const std::wstring& Error() const { return site_->error; }

    /// Calls a procedure of the script. `Error` tells what went wrong inside it.
    HRESULT Call(const wchar_t* procedure, IDispatch* argument) const {
        _variant_t passed(argument);
        DISPPARAMS parameters{&passed, nullptr, 1, 0};
        return members_->Invoke(IdOf(procedure), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                nullptr, nullptr, nullptr);
    }

    /// The value of one of the script's variables.
    long Read(const wchar_t* variable) const {
        DISPPARAMS none{};
        _variant_t value;
        ThrowIfFailed(members_->Invoke(IdOf(variable), IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                       &none, &value, nullptr, nullptr));
        return value;
    }

  private:
    DISPID IdOf(const wchar_t* member) const {
        DISPID id = DISPID_UNKNOWN;
        LPOLESTR name = const_cast<LPOLESTR>(member);
        ThrowIfFailed(members_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id), member);
        return id;
    }

    ComPtr<ScriptSite> site_ = MakeObject<ScriptSite>();
    ComPtr<IActiveScript> engine_;
    ComPtr<IDispatch> members_;
};

}  // namespace qz
