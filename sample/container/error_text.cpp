#include "sample/container/error_text.h"

namespace qz {

void RequireSuccess(HRESULT code, const wchar_t* what) {
    if (FAILED(code)) ThrowDescribed(code, what, TakeErrorText(code));
}

void ThrowDescribed(HRESULT code, const std::wstring& what, const std::wstring& description) {
    throw ComError(code, what + L": " + (description.empty() ? DescribeError(code) : description));
}

std::wstring CurrentExceptionText() noexcept {
    const HRESULT code = TurnException(IID_NULL);
    try {
        return TakeErrorText(code);
    } catch (const std::exception&) {
        return {};  // no memory for words
    }
}

}  // namespace qz
