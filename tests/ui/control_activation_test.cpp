#include "tests/ui/test_control.h"

#include "ui/gdi.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

TEST(Activation, VerbsReachTheStateThatTheyName) {
    const struct {
        LONG verb;
        HRESULT answer;
        bool active;
        bool uiActive;
    } rows[] = {
        {OLEIVERB_PRIMARY, S_OK, true, true},     {OLEIVERB_UIACTIVATE, S_OK, true, true},
        {OLEIVERB_SHOW, S_OK, true, false},       {OLEIVERB_INPLACEACTIVATE, S_OK, true, false},
        {OLEIVERB_HIDE, S_OK, false, false},      {OLEIVERB_DISCARDUNDOSTATE, S_OK, false, false},
        {OLEIVERB_OPEN, E_NOTIMPL, false, false}, {-7, E_NOTIMPL, false, false},
        {1, OLEOBJ_S_INVALIDVERB, true, true},
    };
    for (const auto& row : rows) {
        Container container;
        SetErrorInfo(0, nullptr);
        EXPECT_EQ(container.Do(row.verb), row.answer) << row.verb;
        EXPECT_EQ(container.control->WindowHandle() != nullptr, row.active) << row.verb;
        EXPECT_EQ(container.control->UIActive(), row.uiActive) << row.verb;
        EXPECT_EQ(container.site->activeObject != nullptr, row.uiActive) << row.verb;
        EXPECT_EQ(FAILED(row.answer), !TakeErrorText().empty()) << row.verb;
    }
}

TEST(Activation, DeactivatesOnceAndInOrder) {
    Container container;
    ASSERT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
    const HWND window = container.control->WindowHandle();
    EXPECT_EQ(container.control->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(container.control->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(container.control->UIDeactivate(), S_OK);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(container.site->activeObject);
    EXPECT_EQ(container.site->Count("OnUIDeactivate"), 1);
    EXPECT_EQ(container.site->Count("OnInPlaceDeactivate"), 1);
    EXPECT_LT(container.site->IndexOf("OnUIDeactivate"), container.site->IndexOf("OnInPlaceDeactivate"));
    HWND none = window;
    EXPECT_EQ(static_cast<IOleInPlaceObject*>(container.control.Get())->GetWindow(&none), E_FAIL);
    EXPECT_EQ(none, nullptr);
}

TEST(Activation, NeedsASite) {
    const auto control = MakeObject<TestControl>();
    EXPECT_EQ(control->DoVerb(OLEIVERB_SHOW, nullptr, nullptr, 0, nullptr, nullptr), OLE_E_NOT_INPLACEACTIVE);
    EXPECT_FALSE(TakeErrorText().empty());
}

TEST(Activation, WindowLiesWhereTheContainerPutsItAndIsClipped) {
    Container container;
    container.site->position = {10, 20, 110, 70};
    ASSERT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
    const HWND window = container.control->WindowHandle();
    EXPECT_EQ(GetParent(window), container.window);
    ASSERT_FALSE(container.control->sizes.empty());
    EXPECT_EQ(container.control->sizes.back().cx, 100);
    EXPECT_EQ(container.control->sizes.back().cy, 50);

    const RECT position{30, 40, 90, 100};
    const RECT clip{0, 0, 50, 60};
    ASSERT_EQ(container.control->SetObjectRects(&position, &clip), S_OK);
    RECT now{};
    GetWindowRect(window, &now);
    MapWindowPoints(nullptr, container.window, reinterpret_cast<POINT*>(&now), 2);
    EXPECT_TRUE(EqualRect(&now, &position));
    const Region region(CreateRectRgn(0, 0, 0, 0));
    RECT visible{};
    ASSERT_EQ(GetWindowRgn(window, region.Get()), SIMPLEREGION);
    GetRgnBox(region.Get(), &visible);
    const RECT expected{0, 0, 20, 20};
    EXPECT_TRUE(EqualRect(&visible, &expected));

    ASSERT_EQ(container.control->SetObjectRects(&position, &position), S_OK);
    EXPECT_EQ(GetWindowRgn(window, region.Get()), ERROR);
}

TEST(Activation, RefusesRectanglesThatAreNone) {
    Container container;
    ASSERT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
    const RECT insideOut{10, 10, 5, 20};
    EXPECT_EQ(container.control->SetObjectRects(nullptr, nullptr), E_POINTER);
    EXPECT_EQ(container.control->SetObjectRects(&insideOut, nullptr), E_INVALIDARG);
}

TEST(Activation, HiddenControlIsShownAgainByAVerb) {
    Container container;
    ASSERT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
    ASSERT_EQ(container.Do(OLEIVERB_HIDE), S_OK);
    EXPECT_FALSE(IsWindowVisible(container.control->WindowHandle()));
    EXPECT_FALSE(container.control->UIActive());
    ASSERT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
    EXPECT_TRUE(IsWindowVisible(container.control->WindowHandle()));
}

// A container that just destroys its window must find the control inactive and usable in another window.
TEST(Activation, OutlivesItsParentWindow) {
    Container container;
    Container other;
    ASSERT_EQ(container.Do(OLEIVERB_UIACTIVATE), S_OK);
    DestroyWindow(container.window);
    EXPECT_EQ(container.control->WindowHandle(), nullptr);
    EXPECT_EQ(container.site->Count("OnInPlaceDeactivate"), 1);
    ASSERT_EQ(container.control->SetClientSite(other.site->Client()), S_OK);
    EXPECT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
    EXPECT_EQ(GetParent(container.control->WindowHandle()), other.window);
}

TEST(Closing, SavesAsAskedAndTellsSinks) {
    const struct {
        DWORD option;
        bool dirty;
        int prompt;
        HRESULT saveAnswer;
        HRESULT result;
        bool saves;
    } rows[] = {
        {OLECLOSE_NOSAVE, true, IDYES, S_OK, S_OK, false},
        {OLECLOSE_SAVEIFDIRTY, true, IDCANCEL, S_OK, S_OK, true},
        {OLECLOSE_SAVEIFDIRTY, false, IDYES, S_OK, S_OK, false},
        {OLECLOSE_PROMPTSAVE, true, IDYES, S_OK, S_OK, true},
        {OLECLOSE_PROMPTSAVE, true, IDNO, S_OK, S_OK, false},
        {OLECLOSE_PROMPTSAVE, true, IDCANCEL, S_OK, OLE_E_PROMPTSAVECANCELLED, false},
        {OLECLOSE_PROMPTSAVE, false, IDCANCEL, S_OK, S_OK, false},
        {OLECLOSE_SAVEIFDIRTY, true, IDYES, STG_E_MEDIUMFULL, STG_E_MEDIUMFULL, true},
        {OLECLOSE_SAVEIFDIRTY, true, IDYES, E_NOTIMPL, S_OK, true},
        {3, true, IDYES, S_OK, E_INVALIDARG, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << "option " << row.option << " prompt " << row.prompt);
        Container container;
        DWORD cookie = 0;
        ASSERT_EQ(container.control->Advise(container.site.Get(), &cookie), S_OK);
        ASSERT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
        container.control->SetDirty(row.dirty);
        container.control->promptAnswer = row.prompt;
        container.site->answers["SaveObject"] = [&] { return row.saveAnswer; };
        EXPECT_EQ(container.control->Close(row.option), row.result);
        EXPECT_EQ(container.site->Saw("SaveObject"), row.saves);
        EXPECT_EQ(container.site->Saw("OnClose"), SUCCEEDED(row.result));
        EXPECT_EQ(container.control->WindowHandle() == nullptr, SUCCEEDED(row.result));
        EXPECT_EQ(container.control->Unadvise(cookie), S_OK);
    }
}

}  // namespace
}  // namespace qz
