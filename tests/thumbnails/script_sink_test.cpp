// A late-bound script as the listener of the pane's events: the system's own script engine, hosted here
// without a window, runs a Sub for each event it has one for.
#include "com/safe_array.h"
#include "pane_fixture.h"
#include "tests/support/script.h"

#include <ole2.h>

namespace qz {
namespace {

/// Arguments as any engine takes them. Not every engine assigns through a reference to a number, but all do
/// through one to a variant: such references are handed over, and what was assigned is written back as a
/// number.
class ScriptArguments {
  public:
    explicit ScriptArguments(const DISPPARAMS& raised)
        : raised_(raised), values_(raised.cArgs), passed_(raised.rgvarg, raised.rgvarg + raised.cArgs) {
        for (UINT i = 0; i < raised.cArgs; ++i) {
            if (!IsReference(i)) continue;
            ThrowIfFailed(VariantCopyInd(&values_[i], &passed_[i]));
            passed_[i].vt = VT_BYREF | VT_VARIANT;
            passed_[i].pvarVal = &values_[i];
        }
    }

    DISPPARAMS Parameters() noexcept { return {passed_.data(), nullptr, raised_.cArgs, 0}; }

    void WriteBack() {
        for (UINT i = 0; i < raised_.cArgs; ++i) {
            if (IsReference(i)) *raised_.rgvarg[i].plVal = values_[i];
        }
    }

  private:
    bool IsReference(UINT index) const { return raised_.rgvarg[index].vt == (VT_BYREF | VT_I4); }

    const DISPPARAMS& raised_;
    std::vector<_variant_t> values_;
    std::vector<VARIANT> passed_;
};

/// What stands between an object and a script in every script host: finds the Sub that is named after the
/// event and calls it with the event's arguments.
class ScriptSink final : public Object<ScriptSink, IDispatch> {
  public:
    ScriptSink(IDispatch* members, ITypeInfo* events) : members_(members), events_(events) {}

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID event, REFIID, LCID locale, WORD, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* badArgument) override {
        return Guard(IID_NULL, [&]() -> HRESULT {
            const _bstr_t name = NameOf(event);
            LPOLESTR procedure = name;
            DISPID id = DISPID_UNKNOWN;
            const HRESULT found = members_->GetIDsOfNames(IID_NULL, &procedure, 1, locale, &id);
            if (found == DISP_E_UNKNOWNNAME) return S_OK;  // the script does not listen to this event
            ThrowIfFailed(found);
            ScriptArguments arguments(*parameters);
            DISPPARAMS passed = arguments.Parameters();
            ThrowIfFailed(members_->Invoke(id, IID_NULL, locale, DISPATCH_METHOD, &passed, result, exception,
                                           badArgument));
            arguments.WriteBack();
            return S_OK;
        });
    }

  private:
    _bstr_t NameOf(DISPID event) const {
        BSTR name = nullptr;
        UINT count = 0;
        ThrowIfFailed(events_->GetNames(event, &name, 1, &count), L"The event has no name");
        return _bstr_t(name, false);
    }

    ComPtr<IDispatch> members_;
    ComPtr<ITypeInfo> events_;
};

constexpr wchar_t vetoingScript[] =
    LR"(
Dim activated, deletions, messages, selected, lastMessage
Sub ThumbActivated(page, Continue)
    activated = page
    If page = 2 Then Continue = 0
End Sub
Sub DeleteSelectedPages(Continue)
    deletions = deletions + 1
    If deletions = 1 Then Continue = 0
End Sub
Sub ThumbSelected(page)
    selected = page
End Sub
Sub ShowMessage(message, ShowDefault)
    messages = messages + 1
    lastMessage = message
    ShowDefault = 0
End Sub
)";

class ScriptSinkTest : public PaneTest {
  protected:
    ScriptSinkTest() {
        Activate();
        ThrowIfFailed(pane->Initialize(host.Get()));
        PumpMessages();
        ComPtr<IConnectionPointContainer> container;
        ThrowIfFailed(pane.As(&container));
        ThrowIfFailed(container->FindConnectionPoint(DIID__IqzThumbnailCtrlEvents, &point));
        const auto sink = MakeObject<ScriptSink>(script.Members(), EventInfo().Get());
        ThrowIfFailed(point->Advise(sink->Identity(), &cookie));
    }
    ~ScriptSinkTest() override {
        point->Unadvise(cookie);
        point.Reset();
        EXPECT_EQ(script.Error(), L"");
    }

    ComPtr<ITypeInfo> EventInfo() const {
        ComPtr<ITypeInfo> own;
        ComPtr<ITypeLib> library;
        ComPtr<ITypeInfo> events;
        UINT index = 0;
        ThrowIfFailed(pane->GetTypeInfo(0, LOCALE_USER_DEFAULT, &own));
        ThrowIfFailed(own->GetContainingTypeLib(&library, &index));
        ThrowIfFailed(library->GetTypeInfoOfGuid(DIID__IqzThumbnailCtrlEvents, &events));
        return events;
    }

    long PageCount() const {
        long count = 0;
        ThrowIfFailed(host->GetPageCount(&count));
        return count;
    }
    long CurrentPage() const {
        long page = 0;
        ThrowIfFailed(host->GetCurrentPage(&page));
        return page;
    }
    /// The middle of a thumbnail of the first row; two stand in a row.
    void Click(int column) const {
        const LPARAM point = MAKELPARAM(6 + 42 + column * 95, 6 + 55);
        SendMessageW(PaneWindow(), WM_LBUTTONDOWN, MK_LBUTTON, point);
        SendMessageW(PaneWindow(), WM_LBUTTONUP, 0, point);
    }
    void Press(WPARAM key) const { SendMessageW(PaneWindow(), WM_KEYDOWN, key, 0); }
    void Select(std::initializer_list<long> pages) const {
        SafeArray numbers = MakeLongArray(std::vector<long>(pages));
        _variant_t value;
        value.parray = numbers.Detach();
        value.vt = VT_ARRAY | VT_I4;
        ThrowIfFailed(pane->put_SelectedPages(value));
    }

    ComPtr<IReferenceHost> host = MakeHost(3);
    Script script{vetoingScript};
    ComPtr<IConnectionPoint> point;
    DWORD cookie = 0;
};

TEST_F(ScriptSinkTest, VetoesAnActivation) {
    Click(1);
    EXPECT_EQ(script.Read(L"activated"), 2);
    EXPECT_EQ(CurrentPage(), 1) << "the click on page 2 is vetoed";
    EXPECT_EQ(script.Read(L"selected"), 0);
    Click(0);
    EXPECT_EQ(script.Read(L"activated"), 1);
    EXPECT_EQ(script.Read(L"selected"), 1);
}

TEST_F(ScriptSinkTest, VetoesADeletionAndLetsTheNextOnePass) {
    Select({2, 3});
    Press(VK_DELETE);
    EXPECT_EQ(script.Read(L"deletions"), 1);
    EXPECT_EQ(PageCount(), 3);
    Press(VK_DELETE);
    EXPECT_EQ(script.Read(L"deletions"), 2);
    EXPECT_EQ(PageCount(), 1);
}

// Without the script's answer the pane's message box would keep this test waiting.
TEST_F(ScriptSinkTest, SuppressesTheMessageOfAForbiddenDeletion) {
    Select({1, 2, 3});
    Press(VK_DELETE);
    EXPECT_EQ(script.Read(L"messages"), 1);
    EXPECT_EQ(script.Read(L"lastMessage"), qzThumbnailCtrlShowMsgConsts_DelAllForbidden);
    EXPECT_EQ(script.Read(L"deletions"), 0);
    EXPECT_EQ(PageCount(), 3);
}

}  // namespace
}  // namespace qz
