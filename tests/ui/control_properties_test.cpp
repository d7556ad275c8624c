// BackColor, bindable properties, ambient properties, and what a control says of itself.
#include "tests/ui/test_control.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

HRESULT PutColour(TestControl& control, OLE_COLOR colour) {
    VARIANT value{};
    value.vt = VT_UI4;
    value.ulVal = colour;
    DISPPARAMS parameters{&value, nullptr, 1, 0};
    return control.Invoke(DISPID_BACKCOLOR, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr, nullptr,
                          nullptr);
}

class Bound : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(container.control->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
        ASSERT_EQ(point->Advise(static_cast<IPropertyNotifySink*>(container.site.Get()), &cookie), S_OK);
        container.control->SetDirty(false);
    }
    void TearDown() override { EXPECT_EQ(point->Unadvise(cookie), S_OK); }

    Container container;
    ComPtr<IConnectionPoint> point;
    DWORD cookie = 0;
};

TEST_F(Bound, BackColorIsAnnouncedAndMarksTheControlDirty) {
    ASSERT_EQ(PutColour(*container.control.Get(), RGB(1, 2, 3)), S_OK);
    EXPECT_EQ(container.control->BackColorRef(), static_cast<COLORREF>(RGB(1, 2, 3)));
    EXPECT_LT(container.site->IndexOf("OnRequestEdit"), container.site->IndexOf("OnChanged"));
    EXPECT_EQ(container.control->IsDirty(), S_OK);
}

TEST_F(Bound, VetoKeepsTheOldColour) {
    container.site->answers["OnRequestEdit"] = [] { return S_FALSE; };
    EXPECT_EQ(PutColour(*container.control.Get(), RGB(1, 2, 3)), S_FALSE);
    EXPECT_EQ(container.control->BackColorRef(), static_cast<COLORREF>(RGB(255, 255, 255)));
    EXPECT_FALSE(container.site->Saw("OnChanged"));
    EXPECT_EQ(container.control->IsDirty(), S_FALSE);
}

TEST_F(Bound, WhatIsNoColourIsRefused) {
    for (const OLE_COLOR colour : {0x12000000u, 0x800000FFu, 0x7F000000u}) {
        EXPECT_EQ(PutColour(*container.control.Get(), colour), E_INVALIDARG) << std::hex << colour;
        EXPECT_NE(TakeErrorText().find(L"BackColor"), std::wstring::npos);
    }
    EXPECT_FALSE(container.site->Saw("OnRequestEdit"));
    ASSERT_EQ(PutColour(*container.control.Get(), 0x80000000u | COLOR_BTNFACE), S_OK);
    EXPECT_EQ(container.control->BackColorRef(), GetSysColor(COLOR_BTNFACE));
}

TEST_F(Bound, FrozenContainerHearsNothing) {
    container.control->FreezeEvents(TRUE);
    container.control->FreezeEvents(TRUE);
    container.control->FreezeEvents(FALSE);
    ASSERT_EQ(PutColour(*container.control.Get(), 1), S_OK);
    EXPECT_FALSE(container.site->Saw("OnRequestEdit"));
    EXPECT_FALSE(container.site->Saw("OnChanged"));
    container.control->FreezeEvents(FALSE);
    container.control->FreezeEvents(FALSE);  // one too many
    ASSERT_EQ(PutColour(*container.control.Get(), 2), S_OK);
    EXPECT_TRUE(container.site->Saw("OnChanged"));
}

TEST(AmbientProperties, AreReadWhenAskedFor) {
    Container container;
    auto& ambients = container.site->ambients;
    ambients[DISPID_AMBIENT_BACKCOLOR] = static_cast<long>(0x80000000u | COLOR_BTNFACE);
    ambients[DISPID_AMBIENT_FORECOLOR] = 0x12000000L;  // no colour
    ambients[DISPID_AMBIENT_LOCALEID] = 0x407L;
    ambients[DISPID_AMBIENT_USERMODE] = false;
    ambients[DISPID_AMBIENT_DISPLAYASDEFAULT] = L"not a flag";
    const Ambient ambient = container.control->Ambients();
    EXPECT_EQ(ambient.BackColor(), OLE_COLOR{0x80000000u | COLOR_BTNFACE});
    EXPECT_EQ(ambient.ForeColor(), std::nullopt);
    EXPECT_EQ(ambient.Locale(), 0x407u);
    EXPECT_FALSE(ambient.DisplayAsDefault());
    EXPECT_FALSE(container.control->UserMode());
    ambients[DISPID_AMBIENT_USERMODE] = true;
    EXPECT_TRUE(container.control->UserMode());
}

TEST(AmbientProperties, FontComesAsAnObject) {
    Container container;
    FONTDESC description{};
    wchar_t face[] = L"Tahoma";
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = face;
    description.cySize.int64 = 120000;
    ComPtr<IDispatch> font;
    ASSERT_EQ(OleCreateFontIndirect(&description, IID_PPV_ARGS(&font)), S_OK);
    container.site->ambients[DISPID_AMBIENT_FONT] = font.Get();
    const ComPtr<IFont> read = container.control->Ambients().Font();
    CY size{};
    ASSERT_TRUE(read);
    EXPECT_EQ(read->get_Size(&size), S_OK);
    EXPECT_EQ(size.int64, 120000);
}

TEST(AmbientProperties, HaveDefaultsWithoutAContainer) {
    const auto control = MakeObject<TestControl>();
    EXPECT_TRUE(control->UserMode());
    EXPECT_EQ(control->Ambients().BackColor(), std::nullopt);
    EXPECT_EQ(control->Ambients().Font(), nullptr);
    EXPECT_EQ(control->Ambients().Locale(), LCID{LOCALE_USER_DEFAULT});
}

TEST(AmbientProperties, ChangesReachTheControl) {
    Container container;
    container.control->ambientChanges.clear();
    EXPECT_EQ(container.control->OnAmbientPropertyChange(DISPID_AMBIENT_FONT), S_OK);
    EXPECT_EQ(container.control->ambientChanges, std::vector<DISPID>{DISPID_AMBIENT_FONT});
}

TEST(SelfDescription, TellsStatusNameAndExtent) {
    const auto control = MakeObject<TestControl>();
    DWORD status = 0;
    EXPECT_EQ(control->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, 131473u);
    EXPECT_EQ(control->GetMiscStatus(DVASPECT_ICON, &status), S_OK);
    EXPECT_EQ(status, 0u);
    LPOLESTR name = nullptr;
    EXPECT_EQ(control->GetUserType(USERCLASSTYPE_FULL, &name), S_OK);
    EXPECT_STREQ(name, L"Test control");
    CoTaskMemFree(name);
    SIZEL extent{};
    EXPECT_EQ(control->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_EQ(extent.cx, 5080);
    EXPECT_EQ(control->GetExtent(DVASPECT_ICON, &extent), DV_E_DVASPECT);
    EXPECT_EQ(extent.cx, 0);
    SIZEL negative{-1, 5};
    EXPECT_EQ(control->SetExtent(DVASPECT_CONTENT, &negative), E_INVALIDARG);
    CLSID id{};
    EXPECT_EQ(control->GetClassID(&id), S_OK);
    EXPECT_EQ(id, testControlId);
}

// The class is not registered: what is told comes from the control itself.
TEST(SelfDescription, TellsVerbsAndApplicationWithoutTheRegistry) {
    Container container;
    ComPtr<IEnumOLEVERB> verbs;
    ASSERT_EQ(container.control->EnumVerbs(&verbs), S_OK);
    OLEVERB verb{};
    std::vector<LONG> numbers;
    while (verbs->Next(1, &verb, nullptr) == S_OK) {
        numbers.push_back(verb.lVerb);
        EXPECT_GT(std::wcslen(verb.lpszVerbName), 0u);
        EXPECT_EQ(verb.grfAttribs & OLEVERBATTRIB_ONCONTAINERMENU, 0u);
        CoTaskMemFree(verb.lpszVerbName);
        EXPECT_EQ(container.Do(verb.lVerb), S_OK) << verb.lVerb;
    }
    EXPECT_EQ(numbers, (std::vector<LONG>{OLEIVERB_PRIMARY, OLEIVERB_SHOW, OLEIVERB_HIDE, OLEIVERB_UIACTIVATE,
                                          OLEIVERB_INPLACEACTIVATE, OLEIVERB_DISCARDUNDOSTATE}));
    LPOLESTR name = nullptr;
    ASSERT_EQ(container.control->GetUserType(USERCLASSTYPE_APPNAME, &name), S_OK);
    EXPECT_STREQ(name, L"qzVandraExt");
    CoTaskMemFree(name);
    EXPECT_EQ(container.control->EnumVerbs(nullptr), E_POINTER);
}

template <class T>
T* Garbage() {
    return reinterpret_cast<T*>(static_cast<UINT_PTR>(0xBAD));
}

// What a member cannot give must not be left as the caller's garbage.
TEST(SelfDescription, NullsWhatItDoesNotGive) {
    const auto control = MakeObject<TestControl>();
    auto* moniker = Garbage<IMoniker>();
    auto* data = Garbage<IDataObject>();
    auto* site = Garbage<IOleClientSite>();
    auto* colours = Garbage<LOGPALETTE>();
    DWORD cookie = 0xBAD;
    EXPECT_EQ(control->GetMoniker(1, 1, &moniker), E_NOTIMPL);
    EXPECT_EQ(control->GetClipboardData(0, &data), E_NOTIMPL);
    EXPECT_EQ(control->GetClientSite(&site), S_OK);
    EXPECT_EQ(control->GetColorSet(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, &colours), S_FALSE);
    EXPECT_EQ(control->Freeze(DVASPECT_CONTENT, -1, nullptr, &cookie), E_NOTIMPL);
    EXPECT_EQ(control->Advise(nullptr, &cookie), E_POINTER);
    EXPECT_FALSE(moniker || data || site || colours || cookie);
}

TEST(SelfDescription, NullSlotsAreRefused) {
    const auto control = MakeObject<TestControl>();
    EXPECT_EQ(control->GetMiscStatus(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(control->GetUserType(1, nullptr), E_POINTER);
    EXPECT_EQ(control->GetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(control->SetExtent(DVASPECT_CONTENT, nullptr), E_POINTER);
    EXPECT_EQ(control->GetClassID(nullptr), E_POINTER);
    EXPECT_EQ(control->GetControlInfo(nullptr), E_POINTER);
    EXPECT_EQ(control->GetSizeMax(nullptr), E_POINTER);
    EXPECT_EQ(control->EnumAdvise(nullptr), E_POINTER);
    EXPECT_EQ(control->Unadvise(7), OLE_E_NOCONNECTION);
}

}  // namespace
}  // namespace qz
