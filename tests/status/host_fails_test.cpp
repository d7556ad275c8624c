// Hosts that fail, lie, call back and let go at any moment.
#include "status_fixture.h"

#include "panes/status/status_reader.h"
#include "tests/support/sweep.h"
#include "tests/support/silent_dispatch.h"

namespace qz {
namespace {

class StatusHostFails : public StatusTest {};

TEST_F(StatusHostFails, AnyOneCallOfInitialize) {
    window = std::make_unique<PaneWindow>(bar.Get(), Wide());
    const auto host = MakeHost(4);
    SelectNew(host.Get(), L"Stamp", {1, 2, 3, 4});
    const ULONG before = ReferencesOf(host.Get());
    int fieldsMissing = 0;
    const auto check = [&](long call, HRESULT result) {
        EXPECT_EQ(SinkCount(host.Get()), SUCCEEDED(result) ? 1 : 0);
        const bool complete = !Text(PageSize).empty() && !Text(ObjectCoords).empty() &&
                              !Text(ObjectName).empty() && !Text(PagePosition).empty() && !Text(Zoom).empty();
        if (SUCCEEDED(result) && !complete) ++fieldsMissing;
        host->RaiseChange(0);
        EXPECT_EQ(Text(ObjectCoords), SUCCEEDED(result) ? L"(1,2:3,4) w:2, h:2" : L"")
            << "the next change mends it";
        bar->Reset();
        EXPECT_EQ(ReferencesOf(host.Get()), before);
        EXPECT_TRUE(complete || call > 0);
    };
    FailEachCall(host.Get(), {.step = [&] { return bar->Initialize(host.Get()); }, .check = check});
    EXPECT_GE(fieldsMissing, 3) << "calls of some fields were failed";
}

TEST_F(StatusHostFails, AnyOneCallOfAChangeKeepsWholeFields) {
    const auto host = MakeHost(4);
    SelectNew(host.Get(), L"Stamp", {1, 2, 3, 4});
    Show(host.Get());
    bool odd = false;
    bool first = true;
    for (long number = 1; number < 30; ++number) {
        if (!IsSwept(number)) continue;
        // Another document state each time; a field shows the old or the new one, never half of each.
        odd = !odd;
        host->SetAutoRefresh(0);
        host->SetObjectAttribute(_bstr_t(L"Pages[1]"), _bstr_t(L"Width"), _variant_t(odd ? 100L : 200L));
        host->SetObjectAttribute(_bstr_t(L"Pages[1]"), _bstr_t(L"Length"), _variant_t(odd ? 100L : 200L));
        host->SetObjectAttribute(_bstr_t(L"Objects[Stamp]"), _bstr_t(L"Left"), _variant_t(odd ? 10L : 20L));
        host->SetObjectAttribute(_bstr_t(L"Objects[Stamp]"), _bstr_t(L"Bottom"), _variant_t(odd ? 10L : 20L));
        host->FailCall(number, planned);
        host->RaiseChange(0);
        host->ClearFaults();
        host->SetAutoRefresh(1);
        if (std::exchange(first, false)) continue;  // the state before it is the first one
        EXPECT_TRUE(Text(PageSize) == L"Page: 100 x 100" || Text(PageSize) == L"Page: 200 x 200") << number;
        EXPECT_TRUE(Text(ObjectCoords).starts_with(L"(10,2:3,10)") ||
                    Text(ObjectCoords).starts_with(L"(20,2:3,20)"))
            << number;
    }
}

/// Initialises, resets or releases the bar from a sink that hears the change before or after it.
TEST_F(StatusHostFails, ResetAndReleaseWithinTheEvent) {
    const auto host = MakeHost(3);
    const auto other = MakeHost(7);
    const IID events = {0x95BDD95C, 0xF91D, 0x448F, {0x87, 0x68, 0x47, 0x18, 0x6B, 0x5D, 0xBD, 0x67}};
    const auto recorder = MakeObject<EventRecorder>();
    recorder->Connect(host.Get(), events);
    Show(host.Get());
    recorder->actions[5] = [&] { bar->Reset(); };
    host->SetCurrentPage(2);
    EXPECT_EQ(Text(PagePosition), L"");
    ASSERT_EQ(bar->Initialize(host.Get()), S_OK);
    recorder->actions[5] = [&] { bar->Initialize(other.Get()); };
    host->SetCurrentPage(3);
    EXPECT_EQ(Text(PagePosition), L"1 / 7");
    ASSERT_EQ(bar->Initialize(host.Get()), S_OK);
    recorder->actions[5] = [&] {
        window.reset();
        bar.Reset();
    };
    SetFocus(Field(PagePosition));
    SendMessageW(Field(PagePosition), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"1"));
    SendMessageW(Field(PagePosition), WM_KEYDOWN, VK_RETURN, 1);  // goes to page 1, and the bar goes
    EXPECT_EQ(bar, nullptr);
    recorder->Disconnect();
    EXPECT_EQ(SinkCount(host.Get()), 0);
}

TEST_F(StatusHostFails, AnotherHostIsAttachedInsideAnyOneCall) {
    const auto host = MakeHost(3), other = MakeHost(7);
    SelectNew(host.Get(), L"Stamp", {1, 2, 3, 4});
    other->put_LanguageId(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN));
    Show(host.Get());
    const auto moves = [&] { return CallCount(host.Get(), L"SetCurrentPage"); };
    long moved = 0;
    const std::function<void()> steps[] = {
        [&] { bar->Initialize(host.Get()); }, [&] { host->RaiseChange(0); },
        [&] { SendMessageW(Field(NextPage), BM_CLICK, 0, 0); },
        [&] {
            SendMessageW(Field(PagePosition), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"2"));
            SendMessageW(Field(PagePosition), WM_KEYDOWN, VK_RETURN, 1);
        }};
    for (const std::function<void()>& step : steps) {
        EXPECT_GT(InterruptEachCall(
                      host.Get(),
                      [&] {
                          host->SetCurrentPage(1);
                          ASSERT_EQ(bar->Initialize(host.Get()), S_OK);
                      },
                      step,
                      [&] {
                          EXPECT_EQ(bar->Initialize(other.Get()), S_OK);
                          moved = moves();
                      },
                      [&] {
                          EXPECT_EQ(Text(PagePosition), L"1 / 7");
                          EXPECT_EQ(Text(ObjectName), L"");
                          EXPECT_TRUE(Text(PageSize).starts_with(L"Seite")) << "the language is its own";
                          EXPECT_EQ(moves(), moved) << "a host that was let go is moved";
                          EXPECT_EQ(SinkCount(host.Get()), 0);
                      }),
                  5);
    }
}

/// An object whose attributes are whatever the test wants.
class OddObject final : public Object<OddObject, SilentDispatch> {
  public:
    std::map<std::wstring, _variant_t> values;

    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* ids) override {
        *ids = 9;
        return std::wstring(*names) == L"Attribute" ? S_OK : DISP_E_UNKNOWNNAME;
    }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT* result, EXCEPINFO*,
                        UINT*) override {
        if (arguments->cArgs == 0) return DISP_E_MEMBERNOTFOUND;  // its value, as a number or text
        const auto found = values.find(arguments->rgvarg[0].bstrVal);
        return found == values.end() ? DISP_E_UNKNOWNNAME : VariantCopy(result, &found->second);
    }
};

HRESULT CodeOf(const std::function<void()>& body) { return Guard(IID_NULL, body); }

TEST(StatusReader, OddValuesOfObjects) {
    const auto object = MakeObject<OddObject>();
    object->values = {{L"Left", _variant_t(12.6)},
                      {L"Top", _variant_t(L"-40")},
                      {L"Right", _variant_t(short{7})},
                      {L"Bottom", _variant_t(90L)},
                      {L"Name", _variant_t(17L)}};
    EXPECT_EQ(ReadObjectRect(object.Get()), (Rect{13, -40, 7, 90}));
    EXPECT_EQ(ReadObjectName(object.Get()), L"17");
    object->values[L"Name"] = _variant_t();
    EXPECT_EQ(ReadObjectName(object.Get()), L"");
    VARIANT nullText{};
    nullText.vt = VT_BSTR;
    object->values[L"Name"] = _variant_t(nullText);
    EXPECT_EQ(ReadObjectName(object.Get()), L"");
    VARIANT null{};
    null.vt = VT_NULL;
    const _variant_t odd[] = {_variant_t(null), _variant_t(L"left"), _variant_t(1e12),
                              _variant_t(object.Get())};
    for (const _variant_t& value : odd) {
        object->values[L"Left"] = value;
        EXPECT_TRUE(FAILED(CodeOf([&] { ReadObjectRect(object.Get()); })));
    }
    object->values[L"Name"] = _variant_t(null);
    EXPECT_TRUE(FAILED(CodeOf([&] { ReadObjectName(object.Get()); })));
    object->values.clear();
    EXPECT_EQ(CodeOf([&] { ReadObjectName(object.Get()); }), DISP_E_UNKNOWNNAME);
}

}  // namespace
}  // namespace qz
