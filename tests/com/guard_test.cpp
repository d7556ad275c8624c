// Every kind of failure leaves the boundary as an HRESULT with a text.
#include "com/error.h"
#include "tests/support/error_text.h"

#include <comdef.h>
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace qz {
namespace {

TEST(Guard, TurnsEveryFailure) {
    struct Case {
        void (*body)();
        HRESULT code;
    };
    const Case cases[] = {
        {[] { Throw(E_INVALIDARG, L"No host was given"); }, E_INVALIDARG},
        {[] { ThrowIfFailed(DISP_E_TYPEMISMATCH); }, DISP_E_TYPEMISMATCH},
        {[] { throw _com_error(E_ACCESSDENIED); }, E_ACCESSDENIED},
        {[] { throw std::bad_alloc(); }, E_OUTOFMEMORY},
        {[] { throw std::runtime_error("x"); }, E_FAIL},
        {[] { RequirePointer(nullptr); }, E_POINTER},
    };
    for (const Case& c : cases) {
        SetErrorInfo(0, nullptr);
        EXPECT_EQ(Guard(IID_IUnknown, c.body), c.code);
        EXPECT_FALSE(TakeErrorText().empty()) << std::hex << c.code;
    }
    Guard(IID_IUnknown, cases[0].body);
    EXPECT_EQ(TakeErrorText().rfind(L"No host was given (", 0), 0u);
}

TEST(Guard, WhatIsThrownAgainKeepsItsWords) {
    Guard(IID_IUnknown, [] {
        try {
            Throw(E_INVALIDARG, L"Bad");
        } catch (const ComError& error) {
            Rethrow(E_FAIL, error.text);
        }
    });
    EXPECT_EQ(TakeErrorText(), L"Bad (" + DescribeError(E_INVALIDARG) + L")");
    Guard(IID_IUnknown, [] { Rethrow(E_ABORT, L""); });
    EXPECT_EQ(TakeErrorText(), DescribeError(E_ABORT));
}

TEST(Guard, ReturnedCodesPassAndFailuresGetAText) {
    SetErrorInfo(0, nullptr);
    EXPECT_EQ(Guard(IID_IUnknown, [] { return S_FALSE; }), S_FALSE);
    EXPECT_EQ(TakeErrorText(), L"");
    EXPECT_EQ(Guard(IID_IUnknown, [] { return HRESULT{E_ABORT}; }), E_ABORT);
    EXPECT_NE(TakeErrorText(), L"");
    EXPECT_EQ(DescribeError(static_cast<HRESULT>(0x8ABCDEF0)), L"Error 0x8ABCDEF0");
}

}  // namespace
}  // namespace qz
