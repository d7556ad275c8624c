// The container's site with a small control in it.
#include "sample/container/pane_site.h"

#include "com/class_factory.h"
#include "tests/ui/test_control.h"

#include <gtest/gtest.h>

using namespace qz;

namespace {

class TestShell final : public FrameShell {
  public:
    HWND FrameWindow() const noexcept override { return window; }
    bool UseKey(const MSG& message) override {
        keys.push_back(message.wParam);
        return true;
    }
    void ShowStatus(const std::wstring& text) noexcept override { status = text; }

    HWND window = nullptr;
    std::vector<WPARAM> keys;
    std::wstring status;
};

/// The test control as a class that can be created by its id.
ComPtr<TestControl> lastMade;

HRESULT MakeTestControl(REFIID iid, void** object) {
    lastMade = MakeObject<TestControl>();
    return lastMade->QueryInterface(iid, object);
}

class PaneSiteTest : public ::testing::Test {
  protected:
    PaneSiteTest() {
        ComPtr<IClassFactory> factory;
        ThrowIfFailed(MakeClassFactory(MakeTestControl, IID_PPV_ARGS(&factory)));
        ThrowIfFailed(CoRegisterClassObject(testControlId, factory.Get(), CLSCTX_INPROC_SERVER,
                                            REGCLS_MULTIPLEUSE, &registration_));
        shell.window = CreateWindowExW(0, L"STATIC", L"frame", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                                       400, 300, nullptr, nullptr, nullptr, nullptr);
        ambients->backColour = RGB(1, 2, 3);
    }

    ~PaneSiteTest() override {
        for (const auto& site : sites_) site->Close();
        frame->Detach();
        DestroyWindow(shell.window);
        lastMade.Reset();
        CoRevokeClassObject(registration_);
        EXPECT_EQ(TestControl::living, 0);
    }

    /// A site with a control active in a rectangle.
    ComPtr<PaneSite> Show(const RECT& position, std::function<void(bool)> onFocus = nullptr) {
        SiteOptions options{frame, shell.window, ambients, L"Test", std::move(onFocus)};
        sites_.push_back(MakeObject<PaneSite>(std::move(options)));
        sites_.back()->CreateControl(testControlId);
        sites_.back()->Activate(position);
        return sites_.back();
    }

    RECT Bounds(const ComPtr<PaneSite>& site) const {
        RECT bounds{};
        GetWindowRect(site->ControlWindow(), &bounds);
        MapWindowPoints(nullptr, shell.window, reinterpret_cast<POINT*>(&bounds), 2);
        return bounds;
    }

    bool Offer(WPARAM key, HWND target) {
        MSG message{};
        message.hwnd = target;
        message.message = WM_KEYDOWN;
        message.wParam = key;
        return frame->OfferKey(message);
    }

    TestShell shell;
    ComPtr<InPlaceFrame> frame = MakeObject<InPlaceFrame>(static_cast<FrameShell&>(shell));
    std::shared_ptr<AmbientValues> ambients = std::make_shared<AmbientValues>();

  private:
    DWORD registration_ = 0;
    std::vector<ComPtr<PaneSite>> sites_;
};

constexpr RECT firstPlace{10, 30, 110, 90};
constexpr RECT secondPlace{120, 30, 220, 90};

}  // namespace

TEST_F(PaneSiteTest, ControlStandsWhereItIsPlaced) {
    const ComPtr<PaneSite> site = Show(firstPlace);
    EXPECT_EQ(GetParent(site->ControlWindow()), shell.window);
    const RECT first = Bounds(site);
    EXPECT_TRUE(EqualRect(&first, &firstPlace));
    site->Place(secondPlace);
    const RECT second = Bounds(site);
    EXPECT_TRUE(EqualRect(&second, &secondPlace));
    site->OnPosRectChange(&firstPlace);
    const RECT kept = Bounds(site);
    EXPECT_TRUE(EqualRect(&kept, &secondPlace)) << "the container decides";
}

TEST_F(PaneSiteTest, ControlReadsTheAmbientProperties) {
    const ComPtr<PaneSite> site = Show(firstPlace);
    EXPECT_EQ(lastMade->Ambients().BackColor(), RGB(1, 2, 3));
    EXPECT_EQ(lastMade->Ambients().Locale(), ambients->locale);
    EXPECT_TRUE(lastMade->Ambients().Flag(DISPID_AMBIENT_USERMODE, false));
    EXPECT_FALSE(lastMade->Ambients().Flag(DISPID_AMBIENT_UIDEAD, true));

    DISPPARAMS none{};
    VARIANT value;
    EXPECT_EQ(site->Invoke(DISPID_AMBIENT_PALETTE, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr,
                           nullptr),
              DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(value.vt, VT_EMPTY);

    site->AmbientsChanged();
    ASSERT_FALSE(lastMade->ambientChanges.empty());
    EXPECT_EQ(lastMade->ambientChanges.back(), DISPID_UNKNOWN);
}

TEST_F(PaneSiteTest, OneControlAtATimeIsUIActive) {
    const ComPtr<PaneSite> first = Show(firstPlace);
    const ComPtr<TestControl> firstControl = lastMade;
    const ComPtr<PaneSite> second = Show(secondPlace);
    const ComPtr<TestControl> secondControl = lastMade;
    first->ActivateUI();
    EXPECT_TRUE(firstControl->UIActive());
    second->ActivateUI();
    EXPECT_FALSE(firstControl->UIActive());
    EXPECT_TRUE(secondControl->UIActive());
    frame->DeactivateUI();
    EXPECT_FALSE(secondControl->UIActive());
}

TEST_F(PaneSiteTest, ActiveControlGetsKeysFirstAndPassesThemOnOnce) {
    const ComPtr<PaneSite> site = Show(firstPlace);
    EXPECT_FALSE(Offer(VK_TAB, shell.window)) << "no control is active";
    site->ActivateUI();
    EXPECT_TRUE(Offer(VK_DOWN, site->ControlWindow()));
    EXPECT_TRUE(shell.keys.empty()) << "the control wanted it";
    EXPECT_TRUE(Offer(VK_TAB, site->ControlWindow()));
    EXPECT_EQ(shell.keys, std::vector<WPARAM>{VK_TAB});
    site->Close();
    EXPECT_FALSE(Offer(VK_TAB, shell.window)) << "a closed control is asked no more";
}

TEST_F(PaneSiteTest, ClosedSiteAnswersWithErrors) {
    const ComPtr<PaneSite> site = Show(firstPlace);
    const HWND window = site->ControlWindow();
    site->Close();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(site->ControlWindow(), nullptr);
    EXPECT_THROW(site->ActivateUI(), ComError);
    EXPECT_THROW(site->Automation(), ComError);
    EXPECT_EQ(site->OnUIActivate(), E_UNEXPECTED);
    EXPECT_EQ(site->CanInPlaceActivate(), S_FALSE);
    site->Place(secondPlace);
    site->Close();
}

TEST_F(PaneSiteTest, MayBeClosedByTheFocusItTellsOf) {
    ComPtr<PaneSite> site;
    site = Show(firstPlace, [&](bool got) {
        if (got && site) site->Close();
    });
    const HWND window = site->ControlWindow();
    ASSERT_TRUE(IsWindow(window));
    try {
        site->ActivateUI();
    } catch (const ComError&) {  // the control may say that it lost its place
    }
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(PaneSiteTest, UnknownClassIsAReadableError) {
    const ComPtr<PaneSite> site =
        MakeObject<PaneSite>(SiteOptions{frame, shell.window, ambients, L"Test", nullptr});
    EXPECT_THROW(site->CreateControl(IID_NULL), ComError);
    EXPECT_THROW(site->Activate(firstPlace), ComError);
}

TEST_F(PaneSiteTest, FrameWithoutItsWindowIsHarmless) {
    frame->Detach();
    HWND window = shell.window;
    MSG message{};
    message.message = WM_KEYDOWN;
    EXPECT_EQ(frame->GetWindow(&window), E_FAIL);
    EXPECT_EQ(window, nullptr);
    EXPECT_EQ(frame->TranslateAccelerator(&message, 0), S_FALSE);
    EXPECT_EQ(frame->TranslateAccelerator(nullptr, 0), E_POINTER);
    EXPECT_EQ(frame->SetStatusText(L"late"), S_OK);
    EXPECT_TRUE(shell.status.empty());
}
