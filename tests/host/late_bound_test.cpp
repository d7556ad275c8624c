// Members called by name, on objects that have them, lack them or fail.
#include "host/late_bound.h"
#include "tests/support/host_under_test.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

ComPtr<IDispatch> DocumentOf(IReferenceHost* host) {
    ComPtr<IDispatch> object;
    ThrowIfFailed(host->GetObjectByPath(_bstr_t(L"Document"), &object));
    return object;
}

template <class Body>
HRESULT CodeOf(Body&& body) {
    try {
        body();
        return S_OK;
    } catch (const ComError& error) {
        EXPECT_FALSE(error.text.empty());
        EXPECT_EQ(error.text.find(L") ("), std::wstring::npos) << testing::PrintToString(error.text);
        return error.code;
    }
}

TEST(LateBoundMember, GetsPutsAndCalls) {
    const auto host = MakeHost(2);
    const auto document = DocumentOf(host.Get());
    LateBoundMember redraw(L"Redraw");
    redraw.Put(document.Get(), _variant_t(1L));
    EXPECT_EQ(static_cast<long>(redraw.Get(document.Get())), 1);
    redraw.Put(document.Get(), _variant_t(0L));
    EXPECT_EQ(static_cast<long>(redraw.Get(document.Get())), 0);

    LateBoundMember attribute(L"Attribute");
    const _variant_t title = attribute.Get(document.Get(), {_variant_t(L"Title")});
    EXPECT_EQ(title.vt, VT_BSTR);
    EXPECT_EQ(CodeOf([&] { LateBoundMember(L"Update").Call(document.Get(), {_variant_t(1L)}); }), S_OK);
}

TEST(LateBoundMember, FailuresAreErrorsWithATextAndMayBeTriedAgain) {
    const auto host = MakeHost(2);
    const auto document = DocumentOf(host.Get());
    EXPECT_EQ(CodeOf([&] { LateBoundMember(L"NoSuchMember").Get(document.Get()); }), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(CodeOf([] { LateBoundMember(L"Name").Get(nullptr); }), E_POINTER);
    LateBoundMember name(L"Name");
    host->FailOperation(_bstr_t(L"Object.Name"), E_ACCESSDENIED);
    EXPECT_EQ(CodeOf([&] { name.Get(document.Get()); }), E_ACCESSDENIED);
    host->ClearFaults();
    EXPECT_EQ(CodeOf([&] { name.Get(document.Get()); }), S_OK);
    LateBoundMember attribute(L"Attribute");
    EXPECT_TRUE(FAILED(CodeOf([&] { attribute.Get(document.Get(), {_variant_t(L"no such attribute")}); })));
}

}  // namespace
}  // namespace qz
