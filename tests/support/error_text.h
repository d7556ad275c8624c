// What a failed call leaves behind for the developer.
#pragma once

#include "com/object.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <string>

namespace qz {

/// The text of the thread's error, which is taken away; empty when there is none. The system's own text,
/// which stands in brackets, is told once.
inline std::wstring TakeErrorText() {
    ComPtr<IErrorInfo> info;
    _bstr_t text;
    if (GetErrorInfo(0, &info) != S_OK || FAILED(info->GetDescription(text.GetAddress()))) return {};
    const std::wstring told = text.length() ? std::wstring(text) : std::wstring();
    EXPECT_EQ(told.find(L") ("), std::wstring::npos) << testing::PrintToString(told);
    return told;
}

}  // namespace qz
