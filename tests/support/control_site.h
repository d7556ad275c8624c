// A container's side of one control, for tests: it logs what the control asks and answers what the test
// wants.
#pragma once

#include "com/object.h"
#include "tests/support/silent_dispatch.h"

#include <windows.h>
#include <comdef.h>
#include <ocidl.h>
#include <ole2.h>
#include <olectl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace qz {

/// Client site, in-place site, frame, ambient properties and sinks in one object. A call is logged under its
/// member's name, then answered with what the test put into `answers` under that name, otherwise with S_OK.
class ControlSite final
    : public Object<ControlSite, IOleClientSite, Chain<IOleInPlaceSite, IOleWindow>, IOleControlSite,
                    SilentDispatch, Chain<IOleInPlaceFrame, IOleInPlaceUIWindow>, IPropertyNotifySink,
                    IAdviseSink> {
  public:
    explicit ControlSite(HWND window) : window_(window) {}

    std::map<std::string, std::function<HRESULT()>> answers;
    std::map<DISPID, _variant_t> ambients;
    RECT position{0, 0, 100, 80};
    RECT clip{0, 0, 1000, 1000};
    ComPtr<IOleInPlaceActiveObject> activeObject;
    DWORD lastModifiers = 0;

    bool Saw(const std::string& name) const { return Count(name) > 0; }
    bool SawNothing() const { return log_.empty(); }
    long Count(const std::string& name) const;
    /// Where the call comes in the order of all logged calls; -1 when there was none.
    long IndexOf(const std::string& name) const;
    void ForgetCalls() { log_.clear(); }

    /// The IOleClientSite, which several bases could give.
    IOleClientSite* Client() noexcept { return this; }

    // IOleWindow
    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return Called("ContextSensitiveHelp"); }

    // IOleClientSite
    STDMETHODIMP SaveObject() override { return Called("SaveObject"); }
    STDMETHODIMP GetMoniker(DWORD, DWORD, IMoniker**) override { return E_NOTIMPL; }
    STDMETHODIMP GetContainer(IOleContainer**) override { return E_NOINTERFACE; }
    STDMETHODIMP ShowObject() override { return Called("ShowObject"); }
    STDMETHODIMP OnShowWindow(BOOL) override { return Called("OnShowWindow"); }
    STDMETHODIMP RequestNewObjectLayout() override { return E_NOTIMPL; }

    // IOleInPlaceSite
    STDMETHODIMP CanInPlaceActivate() override { return Called("CanInPlaceActivate"); }
    STDMETHODIMP OnInPlaceActivate() override { return Called("OnInPlaceActivate"); }
    STDMETHODIMP OnUIActivate() override { return Called("OnUIActivate"); }
    STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT place,
                                  LPRECT clipping, LPOLEINPLACEFRAMEINFO info) override;
    STDMETHODIMP Scroll(SIZE) override { return Called("Scroll"); }
    STDMETHODIMP OnUIDeactivate(BOOL) override { return Called("OnUIDeactivate"); }
    STDMETHODIMP OnInPlaceDeactivate() override { return Called("OnInPlaceDeactivate"); }
    STDMETHODIMP DiscardUndoState() override { return Called("DiscardUndoState"); }
    STDMETHODIMP DeactivateAndUndo() override { return Called("DeactivateAndUndo"); }
    STDMETHODIMP OnPosRectChange(LPCRECT) override { return Called("OnPosRectChange"); }

    // IOleControlSite
    STDMETHODIMP OnControlInfoChanged() override { return Called("OnControlInfoChanged"); }
    STDMETHODIMP LockInPlaceActive(BOOL) override { return Called("LockInPlaceActive"); }
    STDMETHODIMP GetExtendedControl(IDispatch**) override { return E_NOTIMPL; }
    STDMETHODIMP TransformCoords(POINTL*, POINTF*, DWORD) override { return E_NOTIMPL; }
    STDMETHODIMP TranslateAccelerator(MSG*, DWORD modifiers) override;
    STDMETHODIMP OnFocus(BOOL got) override { return Called(got ? "OnFocus(1)" : "OnFocus(0)"); }
    STDMETHODIMP ShowPropertyFrame() override { return E_NOTIMPL; }

    // IDispatch: ambient properties
    STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*,
                        UINT*) override;

    // IOleInPlaceFrame
    STDMETHODIMP GetBorder(LPRECT) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS) override { return INPLACE_E_NOTOOLSPACE; }
    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS widths) override;
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR name) override;
    STDMETHODIMP InsertMenus(HMENU, LPOLEMENUGROUPWIDTHS) override { return E_NOTIMPL; }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return Called("SetMenu"); }
    STDMETHODIMP RemoveMenus(HMENU) override { return E_NOTIMPL; }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return S_OK; }
    STDMETHODIMP EnableModeless(BOOL enable) override {
        return Called(enable ? "EnableModeless(1)" : "EnableModeless(0)");
    }
    STDMETHODIMP TranslateAccelerator(LPMSG, WORD) override { return S_FALSE; }

    // IPropertyNotifySink
    STDMETHODIMP OnChanged(DISPID) override { return Called("OnChanged"); }
    STDMETHODIMP OnRequestEdit(DISPID) override { return Called("OnRequestEdit"); }

    // IAdviseSink
    STDMETHODIMP_(void) OnDataChange(FORMATETC*, STGMEDIUM*) override { Called("OnDataChange"); }
    STDMETHODIMP_(void) OnViewChange(DWORD, LONG) override { Called("OnViewChange"); }
    STDMETHODIMP_(void) OnRename(IMoniker*) override { Called("OnRename"); }
    STDMETHODIMP_(void) OnSave() override { Called("OnSave"); }
    STDMETHODIMP_(void) OnClose() override { Called("OnClose"); }

  private:
    HRESULT Called(const char* name);

    HWND window_;
    std::vector<std::string> log_;
};

}  // namespace qz
