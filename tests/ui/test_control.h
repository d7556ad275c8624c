// A small control of its own for the tests of the control base, and a container's window with a site for it.
#pragma once

#include "tests/support/control_site.h"
#include "tests/support/error_text.h"
#include "tests/support/pane_window.h"
#include "ui/control.h"
#include "tests/support/silent_dispatch.h"

#include <functional>
#include <vector>

namespace qz {

inline constexpr CLSID testControlId = {
    0x7A0E1F52, 0x3C7B, 0x4B39, {0x9D, 0x11, 0x52, 0x60, 0xC4, 0x0E, 0x8A, 0x01}};

/// Three properties: Count (a long up to 1000), Caption, and BackColor. Paints its upper left
/// quarter red, the rest in BackColor. `living` counts the instances.
class TestControl final : public Object<TestControl, Control, SilentDispatch, ConnectionPointContainer> {
  public:
    static constexpr DISPID countId = 1;
    static constexpr DISPID captionId = 2;
    static inline int living = 0;

    TestControl() { ++living; }
    ~TestControl() override { --living; }

    long count = 5;
    std::wstring caption = L"untitled";
    std::vector<UINT> messages;
    std::vector<SIZE> sizes;
    std::vector<DISPID> ambientChanges;
    RECT drawnBounds{};
    int draws = 0;
    int promptAnswer = IDYES;
    std::function<std::optional<LRESULT>(UINT)> onMessage;

    using Control::Ambients;
    using Control::BackColorRef;
    using Control::ClientSize;
    using Control::Invalidate;
    using Control::SetDirty;
    using Control::UIActive;
    using Control::UserMode;
    using Control::WindowHandle;

    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD how, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO*, UINT*) override;

  private:
    REFCLSID ClassId() const noexcept override { return testControlId; }
    void OnDraw(HDC dc, const RECT& bounds) override;
    std::wstring Title() const override { return L"Test control"; }
    OLE_COLOR InitialBackColor() const override { return RGB(255, 255, 255); }
    std::span<const PersistentProperty> PersistentProperties() const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM, LPARAM) override;
    void OnSized(SIZE client) override { sizes.push_back(client); }
    bool IsInputKey(const MSG& message) const override {
        return message.wParam == VK_DOWN || message.wParam == VK_TAB;
    }
    void OnAmbientChanged(DISPID id) override { ambientChanges.push_back(id); }
    int AskToSave() override { return promptAnswer; }
    std::vector<ConnectionPoint*> Points() override { return {&PropertyNotifyPoint()}; }

    HRESULT Get(DISPID id, VARIANT& result);
    HRESULT Put(DISPID id, const VARIANT& value);
};

/// A top-level window with a site and a control sited there. The fixture of most tests.
struct Container {
    Container();
    ~Container();
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    HRESULT Do(LONG verb) {
        return control->DoVerb(verb, nullptr, site->Client(), 0, window, &site->position);
    }

    HWND window;
    ComPtr<ControlSite> site;
    ComPtr<TestControl> control;
};

}  // namespace qz
