// Attaching the pane to hosts, good and bad, and letting go of them.
#include "pane_fixture.h"

#include <comdef.h>

namespace qz {
namespace {

using AttachTest = PaneTest;

long Initialized(IqzThumbnailCtrl* pane) {
    long value = -1;
    EXPECT_EQ(pane->get_IsInitialized(&value), S_OK);
    return value;
}

/// An automation object that is no host.
ComPtr<IDispatch> MakeStranger() { return MakeObject<ControlSite>(nullptr).Get(); }

TEST_F(AttachTest, AnswersWhatContainersAsk) {
    const IID asked[] = {
        IID_IOleObject,         IID_IOleInPlaceObject, IID_IOleInPlaceActiveObject,   IID_IOleControl,
        IID_IViewObject,        IID_IViewObject2,      IID_IPersistStreamInit,        IID_IPersistPropertyBag,
        IID_IDispatch,          IID_ISupportErrorInfo, IID_IConnectionPointContainer, IID_IProvideClassInfo,
        IID_IProvideClassInfo2, IID_IqzThumbnailCtrl};
    ComPtr<IUnknown> identity;
    ASSERT_EQ(pane.As(&identity), S_OK);
    for (const IID& iid : asked) {
        ComPtr<IUnknown> answered;
        ASSERT_EQ(pane->QueryInterface(iid, &answered), S_OK) << std::hex << iid.Data1;
        ComPtr<IUnknown> same;
        answered.As(&same);
        EXPECT_EQ(same.Get(), identity.Get());
    }
    ComPtr<IProvideClassInfo2> information;
    ASSERT_EQ(pane.As(&information), S_OK);
    GUID events{};
    EXPECT_EQ(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
    EXPECT_EQ(events, DIID__IqzThumbnailCtrlEvents);
    ComPtr<ITypeInfo> type;
    ASSERT_EQ(information->GetClassInfo(&type), S_OK);
    _bstr_t name;
    type->GetDocumentation(MEMBERID_NIL, name.GetAddress(), nullptr, nullptr, nullptr);
    EXPECT_STREQ(name, L"qzThumbnailCtrl");
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(pane.As(&container), S_OK);
    EXPECT_EQ(container->FindConnectionPoint(events, &point), S_OK);
    EXPECT_EQ(container->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
}

TEST_F(AttachTest, WithoutHostMembersDoNothing) {
    Activate();
    EXPECT_EQ(pane->Reset(), S_OK);
    EXPECT_EQ(pane->RedrawAllThumbs(), S_OK);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(-5), S_OK);
    EXPECT_EQ(Initialized(pane.Get()), 0);
    SendMessageW(PaneWindow(), WM_VSCROLL, SB_PAGEDOWN, 0);
    EXPECT_EQ(ScrollPosition(), 0);
}

TEST_F(AttachTest, HoldsOneSinkAndOneReferenceUntilReset) {
    const auto host = MakeHost(3);
    const ULONG before = ReferencesOf(host.Get());
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    EXPECT_EQ(Initialized(pane.Get()), 1);
    EXPECT_EQ(SinkCount(host.Get()), 1);

    const auto other = MakeHost(1);
    ASSERT_EQ(pane->Initialize(other.Get()), S_OK);
    EXPECT_EQ(SinkCount(host.Get()), 0);
    EXPECT_EQ(ReferencesOf(host.Get()), before);
    EXPECT_EQ(SinkCount(other.Get()), 1);

    EXPECT_EQ(pane->Reset(), S_OK);
    EXPECT_EQ(Initialized(pane.Get()), 0);
    EXPECT_EQ(SinkCount(other.Get()), 0);
}

TEST_F(AttachTest, WhatIsNoHostIsRefusedAndTheOldOneStays) {
    const auto host = MakeHost(3);
    ASSERT_EQ(pane->Initialize(host.Get()), S_OK);
    const auto stranger = MakeStranger();
    const auto half = MakeHost(2);
    const auto refused = [&](IDispatch* candidate, HRESULT code) {
        SetErrorInfo(0, nullptr);
        EXPECT_EQ(pane->Initialize(candidate), code);
        EXPECT_NE(TakeErrorText(), L"");
        EXPECT_EQ(Initialized(pane.Get()), 1);
        EXPECT_EQ(SinkCount(host.Get()), 1);
        EXPECT_EQ(SinkCount(half.Get()), 0);
    };
    refused(nullptr, E_INVALIDARG);
    refused(stranger.Get(), E_NOINTERFACE);
    for (const long hidden : {1, 2}) {
        half->put_HiddenInterfaces(hidden);
        refused(half.Get(), E_NOINTERFACE);
    }
    half->put_HiddenInterfaces(4);
    refused(half.Get(), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(3), S_OK);
    EXPECT_EQ(pane->ScrollPageThumbIntoView(4), E_FAIL);
}

TEST_F(AttachTest, NullSlotsAreRefused) {
    EXPECT_EQ(pane->get_IsInitialized(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_ThumbSizeFactor(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_Settings(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_BackColor(nullptr), E_POINTER);
    EXPECT_EQ(pane->get_SelectedPages(nullptr), E_POINTER);
}

TEST_F(AttachTest, EachPaneSpeaksItsOwnHostsLanguage) {
    const auto german = MakeHost(1);
    german->put_LanguageId(0x0807);  // Swiss German
    Activate();
    ASSERT_EQ(pane->Initialize(german.Get()), S_OK);
    wchar_t title[100] = {};
    GetWindowTextW(PaneWindow(), title, 100);
    EXPECT_STREQ(title, L"Seitenminiaturen");
    const auto other = MakePane();
    const auto french = MakeHost(1);
    french->put_LanguageId(0x040C);
    ASSERT_EQ(other->Initialize(french.Get()), S_OK);
    ComPtr<IOleObject> object;
    other.As(&object);
    LPOLESTR text = nullptr;
    ASSERT_EQ(object->GetUserType(USERCLASSTYPE_FULL, &text), S_OK);
    EXPECT_STRNE(text, title);
    CoTaskMemFree(text);
    GetWindowTextW(PaneWindow(), title, 100);
    EXPECT_STREQ(title, L"Seitenminiaturen");
}

TEST_F(AttachTest, SizeFactorIsOneForAllPanes) {
    long factor = 0;
    EXPECT_EQ(pane->put_ThumbSizeFactor(50), S_OK);
    for (const long refused : {9L, 51L, -1L}) EXPECT_EQ(pane->put_ThumbSizeFactor(refused), S_OK);
    pane->get_ThumbSizeFactor(&factor);
    EXPECT_EQ(factor, 50);
    const auto second = MakePane();
    pane->get_ThumbSizeFactor(&factor);
    EXPECT_EQ(factor, 14);
    second->put_ThumbSizeFactor(10);
    pane->get_ThumbSizeFactor(&factor);
    EXPECT_EQ(factor, 10);
}

}  // namespace
}  // namespace qz
