#include "tests/host_reference/host_fixture.h"

namespace qz::sample {
namespace {

struct HostFaults : HostTest {};

std::wstring LastErrorText() {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, &info) != S_OK) return {};
    BSTR text = nullptr;
    info->GetDescription(&text);
    return std::wstring(static_cast<const wchar_t*>(_bstr_t(text, false)));
}

TEST_F(HostFaults, CallsAreCountedAndLoggedByName) {
    host->ClearLog();
    host->put_LogEnabled(1);
    Read(L"Pages[2]", L"Width");
    ObjectAt(L"Document")->Refresh();
    host->SetZoom(75);
    host->put_LogEnabled(0);
    PageCount();
    BSTR text = nullptr;
    host->get_LogText(&text);
    EXPECT_STREQ(static_cast<const wchar_t*>(_bstr_t(text, false)),
                 L"GetObjectAttribute Pages[2], Width\nGetObjectByPath Document\nObject.Refresh\nSetZoom 75\n"
                 L"GetChangeFlags\n");
    long count = 0;
    host->get_CallCount(_bstr_t(L"GetObjectAttribute"), &count);
    EXPECT_EQ(count, 1);
    host->get_CallCount(nullptr, &count);
    EXPECT_EQ(count, 6);
}

TEST_F(HostFaults, UnusedPlacesSaySo) {
    EXPECT_EQ(host->Reserved7(), E_NOTIMPL);
    EXPECT_EQ(host->Reserved196(), E_NOTIMPL);
    long count = 0;
    host->get_CallCount(_bstr_t(L"Reserved196"), &count);
    EXPECT_EQ(count, 1);
}

/// Every failure is told as such, with a text; nothing is left in an out-parameter.
TEST_F(HostFaults, BadArgumentsAreRefused) {
    _variant_t value;
    IDispatch* object = reinterpret_cast<IDispatch*>(1);
    EXPECT_EQ(host->GetObjectByPath(_bstr_t(L"Layers[None]"), &object), HRESULT_FROM_WIN32(ERROR_NOT_FOUND));
    EXPECT_EQ(object, nullptr);
    EXPECT_NE(LastErrorText(), L"");
    EXPECT_EQ(host->GetObjectByPath(nullptr, &object), E_INVALIDARG);
    EXPECT_EQ(host->GetObjectAttribute(_bstr_t(L"Pages[6]"), _bstr_t(L"Width"), &value),
              HRESULT_FROM_WIN32(ERROR_NOT_FOUND));
    EXPECT_EQ(host->GetObjectAttribute(_bstr_t(L"Pages[1]"), nullptr, &value), DISP_E_UNKNOWNNAME);
    EXPECT_EQ(host->GetObjectAttribute(_bstr_t(L"Pages[1]"), _bstr_t(L"Width"), nullptr), E_POINTER);
    EXPECT_EQ(host->GetPageCount(nullptr), E_POINTER);
    EXPECT_EQ(host->SetCurrentPage(0), E_INVALIDARG);
    EXPECT_EQ(host->SetCurrentPage(6), E_INVALIDARG);
    EXPECT_EQ(host->DrawCurrentPage(0, 1, 14), E_INVALIDARG);
    EXPECT_EQ(host->InsertPagesFromStream(nullptr), E_POINTER);
    EXPECT_EQ(host->InsertDocument(nullptr), E_POINTER);
    EXPECT_EQ(host->InsertDocument(static_cast<IDispatch*>(sink.Get())), E_NOINTERFACE);
    EXPECT_EQ(host->NewDocument(-1, 1, 1), E_INVALIDARG);
    EXPECT_EQ(host->LoadDocument(_bstr_t(L"C:\\nowhere.vdoc")), HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND));
    const _variant_t unknown(static_cast<IUnknown*>(host.Get()));
    EXPECT_EQ(Write(L"Pages[1]", L"Width", unknown), E_INVALIDARG);
    EXPECT_EQ(PageCount(), 5);
}

}  // namespace
}  // namespace qz::sample
