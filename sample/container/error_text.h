// Errors in words: what a COM call that failed says of itself.
#pragma once

#include "com/error.h"

#include <string>

namespace qz {

/// Throws when `code` is a failure, with `what` followed by the description that the called object left
/// behind (IErrorInfo), or the system's text when it left none.
void RequireSuccess(HRESULT code, const wchar_t* what);

/// Throws with such a text.
[[noreturn]] void ThrowDescribed(HRESULT code, const std::wstring& what, const std::wstring& description);

/// To be called inside a catch block: the text of the exception in flight.
std::wstring CurrentExceptionText() noexcept;

}  // namespace qz
