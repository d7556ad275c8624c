// Writing for some of the pages, on hosts that know of that and on hosts that do not.
#include "dialogs/document/scoped_write.h"

#include "tests/support/host_under_test.h"
#include "tests/support/silent_dispatch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qz {
namespace {

/// Has the one member, unless that is taken away, and writes down its calls.
class ScopingHost final : public Object<ScopingHost, SilentDispatch> {
  public:
    std::vector<std::wstring> calls;
    bool knowsScopes = true;
    HRESULT result = S_OK;

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        *ids = 7;
        return knowsScopes && std::wstring(*names) == L"SetScopedAttribute" ? S_OK : DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        std::wstring call;
        for (UINT i = parameters->cArgs; i > 0; --i) {
            call += static_cast<const wchar_t*>(_bstr_t(_variant_t(parameters->rgvarg[i - 1])));
            call += L" ";
        }
        calls.push_back(call);
        return result;
    }
};

class ScopedWriteTest : public ::testing::Test {
  protected:
    ScopedWriteTest() { ThrowIfFailed(host->GetObjectByPath(_bstr_t(L"Document"), &document)); }

    void Write(IDispatch* to, PageScope scope) {
        ScopedWriter(to, document.Get(), objects, scope).Write(L"Width", _variant_t(720L));
    }
    long Width() {
        _variant_t width;
        ThrowIfFailed(host->GetObjectAttribute(_bstr_t(L"Document"), _bstr_t(L"Width"), &width));
        return static_cast<long>(width);
    }

    ComPtr<IReferenceHost> host = MakeHost(1);
    ComPtr<IDispatch> document;
    HostObjects objects;
};

TEST_F(ScopedWriteTest, GoesThroughTheHostsMember) {
    const auto scoping = MakeObject<ScopingHost>();
    Write(scoping.Get(), PageScope::Current);
    Write(scoping.Get(), PageScope::FromCurrentOn);
    EXPECT_EQ(scoping->calls,
              (std::vector<std::wstring>{L"Document Width 720 1 ", L"Document Width 720 2 "}));
    EXPECT_EQ(Width(), 12240);
    scoping->result = E_ACCESSDENIED;
    EXPECT_THROW(Write(scoping.Get(), PageScope::Current), ComError) << "no plain write instead";
    EXPECT_EQ(Width(), 12240);
    Write(scoping.Get(), PageScope::All);
    EXPECT_EQ(Width(), 720);
}

TEST_F(ScopedWriteTest, IsAPlainWriteOnAHostWithoutIt) {
    const auto plain = MakeObject<ScopingHost>();
    plain->knowsScopes = false;
    Write(plain.Get(), PageScope::Current);
    EXPECT_EQ(Width(), 720);
}

}  // namespace
}  // namespace qz
