// The names that entries have for assistive tools, on a system with the service for them: no Wine has it.
#include "status_fixture.h"
#include "tests/support/served_class.h"

#include <oleacc.h>

#include <map>

namespace qz {
namespace {

/// By its id: not every platform header ties the interface to it.
struct NamingInterface : IAccPropServices {
    static void* FindInterface(NamingInterface* self, REFIID iid) noexcept {
        return iid == IID_IAccPropServices ? static_cast<IAccPropServices*>(self) : nullptr;
    }
};

/// Keeps the names of windows, as the system's service does.
class NameService final : public Object<NameService, NamingInterface> {
  public:
    std::map<HWND, std::wstring> names;
    bool clearedTooLate = false;

    STDMETHODIMP SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID property,
                                LPCWSTR text) override {
        if (object != static_cast<DWORD>(OBJID_CLIENT) || child != CHILDID_SELF ||
            property != PROPID_ACC_NAME || !IsWindow(window)) {
            return E_INVALIDARG;
        }
        names[window] = text;
        return S_OK;
    }
    STDMETHODIMP ClearHwndProps(HWND window, DWORD, DWORD, const MSAAPROPID* properties, int count) override {
        if (count != 1 || *properties != PROPID_ACC_NAME) return E_INVALIDARG;
        clearedTooLate = clearedTooLate || !IsWindow(window);
        names.erase(window);
        return S_OK;
    }

    STDMETHODIMP SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                               AnnoScope) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    STDMETHODIMP SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                   AnnoScope) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return E_NOTIMPL; }
    STDMETHODIMP SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                    AnnoScope) override {
        return E_NOTIMPL;
    }
    STDMETHODIMP ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return E_NOTIMPL; }
    STDMETHODIMP ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return E_NOTIMPL; }
    STDMETHODIMP DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override {
        return E_NOTIMPL;
    }
};

TEST_F(StatusTest, EntriesHaveNamesInTheHostsLanguageUntilTheirWindowsGo) {
    const auto service = MakeObject<NameService>();
    const ServedClass served(CLSID_AccPropServices, service->Identity());
    Show(MakeHost(3).Get());
    const HWND page = Field(StatusField::PagePosition), zoom = Field(StatusField::Zoom);
    EXPECT_EQ(service->names.size(), 2u);
    const std::wstring english = service->names[page];
    EXPECT_FALSE(english.empty());
    EXPECT_FALSE(service->names[zoom].empty());

    const auto german = MakeHost(3);
    EXPECT_EQ(german->put_LanguageId(0x0407), S_OK);
    EXPECT_EQ(bar->Initialize(german.Get()), S_OK);
    EXPECT_NE(service->names[page], english);
    EXPECT_EQ(service->names.size(), 2u);
    window.reset();
    EXPECT_TRUE(service->names.empty());
    EXPECT_FALSE(service->clearedTooLate);
}

}  // namespace
}  // namespace qz
