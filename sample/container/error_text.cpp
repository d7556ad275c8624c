#include "sample/container/error_text.h"

#include <comdef.h>
#include <wrl/client.h>

namespace qz {

namespace {

/// Takes the thread's error description; empty when there is none.
std::wstring TakeDescription() {
    Microsoft::WRL::ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, &info) != S_OK) return {};
    _bstr_t text;
    info->GetDescription(text.GetAddress());
    return text.length() ? std::wstring(text, text.length()) : std::wstring();
}

}  // namespace

void RequireSuccess(HRESULT code, const wchar_t* what) {
    if (FAILED(code)) ThrowDescribed(code, what, TakeDescription());
}

void ThrowDescribed(HRESULT code, const std::wstring& what, const std::wstring& description) {
    throw ComError(code, what + L": " + (description.empty() ? DescribeError(code) : description));
}

std::wstring CurrentExceptionText() noexcept {
    const HRESULT code = TurnException(IID_NULL);
    try {
        const std::wstring text = TakeDescription();
        return text.empty() ? DescribeError(code) : text;
    } catch (const std::exception&) {
        return {};  // no memory for words
    }
}

}  // namespace qz
