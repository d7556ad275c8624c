// A place in a container, with a window of its own instead of a control's.
#include "tests/ui/test_control.h"

#include "ui/in_place.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

constexpr const char* callsOfActivation[] = {"CanInPlaceActivate", "OnInPlaceActivate",   "GetWindow",
                                             "GetWindowContext",   "ShowObject",          "OnUIActivate",
                                             "SetActiveObject",    "SetBorderSpace(null)"};

class PlainWindow final : public Window {
    std::optional<LRESULT> OnMessage(UINT, WPARAM, LPARAM) override { return {}; }
};

class InPlaceTest : public testing::Test {
  protected:
    InPlaceTest() { place.PutSite(container.site->Client()); }
    ~InPlaceTest() override {
        site().answers.clear();
        place.PutSite(nullptr);
    }

    ControlSite& site() const { return *container.site.Get(); }

    HRESULT GoUIActive() {
        return Guard(IID_NULL, [&] {
            place.Activate(L"title");
            return place.ActivateUserInterface(L"title");
        });
    }

    Container container;
    PlainWindow window;
    InPlace place{window, *container.control.Get()};  // announced, and nothing else of it is used
};

TEST_F(InPlaceTest, CallsTheContainerInOrderAndOnce) {
    ASSERT_EQ(GoUIActive(), S_OK);
    long last = -1;
    for (const char* name : callsOfActivation) {
        EXPECT_GT(site().IndexOf(name), last) << name;
        last = site().IndexOf(name);
    }
    site().ForgetCalls();
    ASSERT_EQ(GoUIActive(), S_OK);
    EXPECT_TRUE(site().SawNothing());
    place.Leave();
    EXPECT_LT(site().IndexOf("OnUIDeactivate"), site().IndexOf("OnInPlaceDeactivate"));
    EXPECT_FALSE(place.Active() || place.UIActive() || place.Frame() || window.Handle());
}

// The step under way sees that it has been ended, and calls no further.
TEST_F(InPlaceTest, EndInsideACallStopsTheActivation) {
    for (const char* call : callsOfActivation) {
        SCOPED_TRACE(call);
        site().ForgetCalls();
        site().answers[call] = [&] {
            place.End();
            return S_OK;
        };
        EXPECT_EQ(GoUIActive(), OLE_E_NOT_INPLACEACTIVE);
        EXPECT_FALSE(place.Active() || place.UIActive() || window.Handle());
        EXPECT_FALSE(site().activeObject);
        EXPECT_EQ(site().Count("OnInPlaceActivate"), site().Count("OnInPlaceDeactivate"));
        EXPECT_EQ(site().Count("OnUIActivate"), site().Count("OnUIDeactivate"));
        for (const char* later : callsOfActivation) EXPECT_LE(site().IndexOf(later), site().IndexOf(call));
        site().answers.clear();
    }
}

TEST_F(InPlaceTest, RefusalLeavesNothingActive) {
    const struct {
        const char* call;
        HRESULT answer;
        HRESULT result;
        bool toldDeactivated;
    } rows[] = {
        {"CanInPlaceActivate", S_FALSE, OLE_E_NOT_INPLACEACTIVE, false},
        {"CanInPlaceActivate", E_ACCESSDENIED, E_ACCESSDENIED, false},
        {"OnInPlaceActivate", E_FAIL, E_FAIL, false},
        {"GetWindow", E_FAIL, E_FAIL, true},
        {"GetWindowContext", E_OUTOFMEMORY, E_OUTOFMEMORY, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.call);
        site().ForgetCalls();
        site().answers[row.call] = [&] { return row.answer; };
        EXPECT_EQ(GoUIActive(), row.result);
        EXPECT_FALSE(TakeErrorText().empty());
        EXPECT_EQ(window.Handle(), nullptr);
        EXPECT_EQ(site().Saw("OnInPlaceDeactivate"), row.toldDeactivated);
        site().answers.clear();
        EXPECT_EQ(GoUIActive(), S_OK);
        place.End();
    }
}

TEST_F(InPlaceTest, RefusedUserInterfaceLeavesTheWindow) {
    site().answers["OnUIActivate"] = [] { return E_FAIL; };
    EXPECT_EQ(GoUIActive(), E_FAIL);
    EXPECT_NE(window.Handle(), nullptr);
    EXPECT_FALSE(place.UIActive() || site().Saw("SetActiveObject") || site().Saw("OnUIDeactivate"));

    site().answers["OnUIActivate"] = [&] {
        place.LeaveUserInterface();
        return S_OK;
    };
    EXPECT_EQ(GoUIActive(), OLE_E_NOT_INPLACEACTIVE);
    EXPECT_FALSE(place.UIActive());
    EXPECT_NE(GetFocus(), window.Handle()) << "the focus is not fetched back";
}

TEST_F(InPlaceTest, TellsOfTheFocusOnceAndBeforeItLeaves) {
    ASSERT_EQ(GoUIActive(), S_OK);
    place.TellFocus(true);
    place.TellFocus(true);
    EXPECT_EQ(site().Count("OnFocus(1)"), 1);
    place.Leave();
    EXPECT_EQ(site().Count("OnFocus(0)"), 1);
    EXPECT_LT(site().IndexOf("OnFocus(0)"), site().IndexOf("OnInPlaceDeactivate"));
    place.TellFocus(false);
    EXPECT_EQ(site().Count("OnFocus(0)"), 1);
}

}  // namespace
}  // namespace qz
