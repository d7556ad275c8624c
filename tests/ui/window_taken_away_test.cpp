// Containers that destroy a window around a control, or the control's own, while the focus is inside.
#include "tests/module/loaded_module.h"
#include "tests/support/host_under_test.h"
#include "tests/support/pane_window.h"

#include "generated/qzVandraExt.h"

#include <comdef.h>
#include <gtest/gtest.h>

namespace qz {
namespace {

const CLSID& ClassOf(const char* name) {
    static const std::map<std::string, const CLSID*> classes = {{"bookmarks", &CLSID_qzBookmarkCtrl},
                                                                {"thumbnails", &CLSID_qzThumbnailCtrl},
                                                                {"layers", &CLSID_qzLayersCtrl},
                                                                {"status", &CLSID_qzStatusCtrl},
                                                                {"inspector", &CLSID_qzPropCtrl}};
    return *classes.at(name);
}

class WindowTakenAway : public ::testing::TestWithParam<const char*> {
  protected:
    WindowTakenAway() {
        module.Make(ClassOf(GetParam()), pane);
        window.emplace(pane.Get(), SIZE{400, 400});
        ThrowIfFailed(host->CreateObject(21, _bstr_t(L"F"), &object));
        GiveHost();
    }
    ~WindowTakenAway() override {
        ComPtr<IqzPropCtrl> inspector;
        if (SUCCEEDED(pane.As(&inspector))) inspector->put_VandraX(nullptr);
        inspector.Reset();
        window.reset();
        EXPECT_EQ(ReferencesOf(pane.Get()), 1u) << "the control leaks";
        pane.Reset();
        EXPECT_EQ(module.CanUnloadNow(), S_OK);
    }

    void GiveHost() {
        ComPtr<IqzPropCtrl> inspector;
        if (SUCCEEDED(pane.As(&inspector))) {
            ThrowIfFailed(inspector->put_VandraX(host.Get()));
            ThrowIfFailed(inspector->put_Object(object.Get()));
            return;
        }
        DISPID id = 0;
        wchar_t name[] = L"Initialize";
        wchar_t* names = name;
        ThrowIfFailed(pane->GetIDsOfNames(IID_NULL, &names, 1, 0, &id));
        _variant_t argument(static_cast<IDispatch*>(host.Get()));
        DISPPARAMS arguments{&argument, nullptr, 1, 0};
        ThrowIfFailed(pane->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &arguments, nullptr, nullptr, nullptr));
    }

    /// The control's window and all that can take the focus in it.
    std::vector<HWND> Places() const {
        std::vector<HWND> places{window->Window()};
        const auto add = [](HWND child, LPARAM list) -> BOOL {
            const bool takes = (GetWindowLongW(child, GWL_STYLE) & WS_TABSTOP) && IsWindowEnabled(child);
            if (takes) reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            return TRUE;
        };
        EnumChildWindows(window->Window(), add, reinterpret_cast<LPARAM>(&places));
        return places;
    }

    /// Destroys the control's window, or the frame around it, while its window number `place` has the focus.
    void Destroy(std::size_t place, bool frame) {
        SCOPED_TRACE(testing::Message() << "focus in place " << place << (frame ? ", frame" : ", control"));
        ControlSite& site = window->Site();
        SetFocus(Places()[place]);
        ASSERT_NE(GetFocus(), nullptr);
        const HWND own = window->Window();
        ASSERT_TRUE(GetFocus() == own || IsChild(own, GetFocus()));
        ASSERT_TRUE(site.Saw("OnUIActivate"));
        site.answers["OnInPlaceDeactivate"] = [&] {
            EXPECT_EQ(site.Count("OnUIActivate"), site.Count("OnUIDeactivate"));
            EXPECT_EQ(site.Count("OnFocus(1)"), site.Count("OnFocus(0)"));
            site.ForgetCalls();
            return S_OK;
        };
        DestroyWindow(frame ? window->Frame() : own);
        EXPECT_TRUE(site.SawNothing()) << "a call after the end of the activation";
        EXPECT_EQ(window->Window(), nullptr);
    }

    LoadedModule module;
    ComPtr<IReferenceHost> host = MakeHost(3);
    ComPtr<IDispatch> pane, object;
    std::optional<PaneWindow> window;
};

TEST_P(WindowTakenAway, NothingOfTheSiteIsCalledAnyMore) {
    const std::size_t places = Places().size();
    for (std::size_t place = 0; place < places; ++place) {
        for (const bool frame : {false, true}) {
            Destroy(place, frame);
            window.reset();
            window.emplace(pane.Get(), SIZE{400, 400});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Panes, WindowTakenAway,
                         ::testing::Values("bookmarks", "thumbnails", "layers", "status", "inspector"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace qz
