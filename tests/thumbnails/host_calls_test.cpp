// Which calls the pane makes, in what order, and what it makes of the answers.
#include "pane_fixture.h"

namespace qz {
namespace {

using HostCalls = PaneTest;

TEST_F(HostCalls, InitializeReadsEveryPageOnce) {
    const auto host = MakeHost(2);
    host->put_LogEnabled(1);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    std::vector<std::wstring> operations;
    for (const std::wstring& line : LogLines(host.Get()))
        operations.push_back(line.substr(0, line.find(L' ')));
    const std::vector<std::wstring> expected{
        L"GetLanguageId",      L"GetPageCount",                               // attaching
        L"GetPageCount",       L"SetObjectAttribute",                         // no contents from here
        L"GetObjectAttribute", L"GetObjectAttribute", L"GetObjectAttribute",  // page 1
        L"GetObjectAttribute", L"GetObjectAttribute", L"GetObjectAttribute",  // page 2
        L"SetObjectAttribute", L"GetCurrentPage",
    };
    EXPECT_EQ(operations, expected);
    const auto lines = LogLines(host.Get());
    EXPECT_NE(lines[4].find(L"Pages[1]"), std::wstring::npos);
    EXPECT_NE(lines[4].find(L"Width"), std::wstring::npos);
    EXPECT_NE(lines[5].find(L"Length"), std::wstring::npos);
    EXPECT_NE(lines[6].find(L"Landscape"), std::wstring::npos);
    EXPECT_NE(lines[7].find(L"Pages[2]"), std::wstring::npos);
}

TEST_F(HostCalls, DrawingBorrowsTheHostsPageAndRefresh) {
    const auto host = MakeHost(1);
    Activate();
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    host->put_LogEnabled(1);
    host->ClearLog();
    PumpMessages();
    const std::vector<std::wstring> expected{L"GetCurrentPage",   L"GetAutoRefresh",  L"SetAutoRefresh 0",
                                             L"SetCurrentPage 1", L"DrawCurrentPage", L"SetCurrentPage 1",
                                             L"SetAutoRefresh 1"};
    const auto lines = LogLines(host.Get());
    ASSERT_EQ(lines.size(), expected.size());
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lines[i].rfind(expected[i], 0), 0u) << i;
}

TEST_F(HostCalls, PagesOfAnySizeAndType) {
    struct Value {
        _variant_t width;
        HRESULT result;
    };
    const Value values[] = {
        {_variant_t(0L), S_OK},
        {_variant_t(-12240L), S_OK},
        {_variant_t(2000000L), S_OK},
        {_variant_t(2147483647L), S_OK},
        {_variant_t(12240.4), S_OK},
        {_variant_t(static_cast<short>(12240)), S_OK},
        {_variant_t(L"12240"), S_OK},
        {_variant_t(1e12), DISP_E_OVERFLOW},
        {_variant_t(L"wide"), DISP_E_TYPEMISMATCH},
    };
    Activate();
    for (const Value& value : values) {
        const auto host = MakeHost(3);
        host->OverrideAttribute(_bstr_t(L"Pages[2]"), _bstr_t(L"Width"), value.width);
        host->OverrideAttribute(_bstr_t(L"Pages[2]"), _bstr_t(L"Length"), value.width);
        EXPECT_EQ(pane->Initialize(host.Get()), value.result) << value.width.vt;
        PumpMessages();  // painted, whatever the size
        SendMessageW(PaneWindow(), WM_VSCROLL, SB_PAGEDOWN, 0);
        PumpMessages();
    }
}

}  // namespace
}  // namespace qz
