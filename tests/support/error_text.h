// What a failed call leaves behind for the developer.
#pragma once

#include "com/object.h"

#include <comdef.h>

#include <string>

namespace qz {

/// The text of the thread's error, which is taken away; empty when there is none.
inline std::wstring TakeErrorText() {
    ComPtr<IErrorInfo> info;
    _bstr_t text;
    if (GetErrorInfo(0, &info) != S_OK || FAILED(info->GetDescription(text.GetAddress()))) return {};
    return text.length() ? std::wstring(text) : std::wstring();
}

}  // namespace qz
