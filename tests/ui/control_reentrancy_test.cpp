// Containers that act on the control from inside the calls it makes to them.
#include "tests/ui/test_control.h"

#include <gtest/gtest.h>

namespace qz {
namespace {

constexpr const char* calls[] = {"CanInPlaceActivate",    "OnInPlaceActivate",    "GetWindow",
                                 "GetWindowContext",      "ShowObject",           "OnUIActivate",
                                 "SetActiveObject",       "SetBorderSpace(null)", "OnFocus(1)",
                                 "SetActiveObject(null)", "OnUIDeactivate",       "OnInPlaceDeactivate"};

struct Action {
    const char* name;
    bool ends;  ///< Nothing may be active any more when the control comes to rest.
    void (*run)(Container& container);
};

const Action actions[] = {
    {"release", true,
     [](Container& container) {
         if (!container.control) return;
         container.control->SetClientSite(nullptr);
         container.control.Reset();
     }},
    {"only release", false, [](Container& container) { container.control.Reset(); }},
    {"close", true, [](Container& container) { container.control->Close(OLECLOSE_NOSAVE); }},
    {"deactivate", true, [](Container& container) { container.control->InPlaceDeactivate(); }},
    {"UI deactivate", false, [](Container& container) { container.control->UIDeactivate(); }},
    {"take the site away", true, [](Container& container) { container.control->SetClientSite(nullptr); }},
    {"activate again", false, [](Container& container) { container.Do(OLEIVERB_UIACTIVATE); }},
    {"destroy the window", true, [](Container& container) { DestroyWindow(container.window); }},
};

/// Activates and deactivates a control whose container does something inside one of the calls.
void GoThrough(const char* call, const Action& action, bool inSteps) {
    bool ran = false;
    Container container;
    const ComPtr<ControlSite> site = container.site;
    site->answers[call] = [&] {
        if (!std::exchange(ran, true)) action.run(container);
        return S_OK;
    };
    const ComPtr<TestControl> control = container.control;
    container.Do(OLEIVERB_UIACTIVATE);
    EXPECT_FALSE(ran && action.ends && control->WindowHandle());
    if (inSteps) control->UIDeactivate();
    EXPECT_FALSE(ran && action.ends && control->WindowHandle());
    control->InPlaceDeactivate();
    control->InPlaceDeactivate();  // it may have been activated again in between
    EXPECT_TRUE(ran);
    EXPECT_EQ(control->WindowHandle(), nullptr);
    EXPECT_FALSE(site->activeObject);
    EXPECT_EQ(site->Count("OnInPlaceActivate"), site->Count("OnInPlaceDeactivate"));
    EXPECT_EQ(site->Count("OnUIActivate"), site->Count("OnUIDeactivate"));
}

// Every action inside every call: the control comes to rest, and nothing of it is left in the end.
TEST(Reentrancy, SurvivesEveryActionInEveryCall) {
    const int before = TestControl::living;
    for (const char* call : calls) {
        for (const Action& action : actions) {
            for (const bool inSteps : {false, true}) {
                SCOPED_TRACE(testing::Message()
                             << action.name << " in " << call << (inSteps ? ", stepwise" : ""));
                GoThrough(call, action, inSteps);
                EXPECT_EQ(TestControl::living, before);
            }
        }
    }
}

// The last reference goes while the control itself is the one calling.
TEST(Reentrancy, LastReferenceGoesInsideACall) {
    const int before = TestControl::living;
    for (const char* call : {"OnInPlaceActivate", "GetWindowContext", "ShowObject", "OnUIActivate"}) {
        Container container;
        container.site->answers[call] = [&] {
            container.control.Reset();
            return S_OK;
        };
        container.Do(OLEIVERB_UIACTIVATE);
        container.site->activeObject.Reset();  // the frame's own reference
        EXPECT_EQ(TestControl::living, before) << call;
        EXPECT_EQ(container.site->Count("OnInPlaceDeactivate"), 1) << call;
    }
}

TEST(Reentrancy, LastReferenceGoesInsideAMessage) {
    const int before = TestControl::living;
    for (const UINT message : {WM_LBUTTONDOWN, WM_SETFOCUS, WM_PAINT, WM_SIZE}) {
        Container container;
        ASSERT_EQ(container.Do(OLEIVERB_SHOW), S_OK);
        const HWND window = container.control->WindowHandle();
        container.control->onMessage = [&, message](UINT now) -> std::optional<LRESULT> {
            if (now != message) return {};
            container.site->activeObject.Reset();
            container.control.Reset();
            return {};
        };
        SendMessageW(window, message, 0, 0);
        EXPECT_EQ(TestControl::living, before) << message;
        EXPECT_FALSE(IsWindow(window)) << message;
    }
}

TEST(Reentrancy, SinkReleasesTheControlInsideAPropertyChange) {
    const int before = TestControl::living;
    Container container;
    ComPtr<IConnectionPoint> point;
    DWORD cookie = 0;
    ASSERT_EQ(container.control->FindConnectionPoint(IID_IPropertyNotifySink, &point), S_OK);
    ASSERT_EQ(point->Advise(static_cast<IPropertyNotifySink*>(container.site.Get()), &cookie), S_OK);
    point.Reset();
    container.site->answers["OnRequestEdit"] = [&] {
        container.control.Reset();
        return S_OK;
    };
    VARIANT colour{};
    colour.vt = VT_UI4;
    DISPPARAMS parameters{&colour, nullptr, 1, 0};
    container.control->Invoke(DISPID_BACKCOLOR, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr,
                              nullptr, nullptr);
    EXPECT_EQ(TestControl::living, before);
    EXPECT_TRUE(container.site->Saw("OnChanged"));
}

}  // namespace
}  // namespace qz
