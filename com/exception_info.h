// What a failed IDispatch::Invoke tells.
#pragma once

#include <windows.h>
#include <oleauto.h>

#include <string>

namespace qz {

/// To be handed to one call of Invoke; frees the texts that a failed call leaves behind.
struct ExceptionInfo : EXCEPINFO {
    ExceptionInfo() : EXCEPINFO{} {}
    ~ExceptionInfo() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }
    ExceptionInfo(const ExceptionInfo&) = delete;
    ExceptionInfo& operator=(const ExceptionInfo&) = delete;

    /// After DISP_E_EXCEPTION: the failure itself. Also lets the object fill in what it has put off.
    HRESULT Code() {
        if (pfnDeferredFillIn) pfnDeferredFillIn(this);
        return FAILED(scode) ? scode : DISP_E_EXCEPTION;
    }

    /// The object's own words; empty when it has none.
    std::wstring Description() const { return bstrDescription ? bstrDescription : L""; }
};

}  // namespace qz
