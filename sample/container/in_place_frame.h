// The frame window as controls see it, and the bookkeeping of which control is the active one.
#pragma once

#include "com/object.h"

#include <ole2.h>
#include <oleidl.h>

#include <string>

namespace qz {

/// What controls may ask of the window that is the frame.
class FrameShell {
  public:
    virtual HWND FrameWindow() const noexcept = 0;
    /// A key that the active control has no use for: the program's accelerators and the way round its parts.
    /// True when it was used. May throw.
    virtual bool UseKey(const MSG& message) = 0;
    virtual void ShowStatus(const std::wstring& text) noexcept = 0;

  protected:
    ~FrameShell() = default;
};

/// At most one control is "UI active": it has the focus, or had it last, and is asked about keys first.
class InPlaceFrame final
    : public Object<InPlaceFrame, Chain<IOleInPlaceFrame, IOleInPlaceUIWindow, IOleWindow>> {
  public:
    explicit InPlaceFrame(FrameShell& shell) noexcept : shell_(&shell) {}

    /// The frame's window goes. Controls that still hold the frame find it empty from now on.
    void Detach() noexcept;

    /// A control becomes UI active; the one that was is deactivated.
    void OnUIActivate(IOleInPlaceObject* object) noexcept;
    void OnUIDeactivate(IOleInPlaceObject* object) noexcept;
    /// The focus went to a part of the program that is no control.
    void DeactivateUI() noexcept;

    /// Offers a key message to the active control; true when it used it.
    bool OfferKey(MSG& message) noexcept;
    /// A key that a control passed on; false when the program has no use for it either.
    bool UseKey(const MSG& message) { return shell_ && shell_->UseKey(message); }
    void OnFrameActivated(bool active) noexcept;

    STDMETHODIMP GetWindow(HWND* window) override;
    STDMETHODIMP ContextSensitiveHelp(BOOL enter) override;
    /// Controls get no room for tools of their own around the frame.
    STDMETHODIMP GetBorder(LPRECT border) override;
    STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS widths) override;
    STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS widths) override;
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR name) override;
    /// Nor a part in the menu.
    STDMETHODIMP InsertMenus(HMENU shared, LPOLEMENUGROUPWIDTHS widths) override;
    STDMETHODIMP SetMenu(HMENU shared, HOLEMENU menu, HWND activeObject) override;
    STDMETHODIMP RemoveMenus(HMENU shared) override;
    STDMETHODIMP SetStatusText(LPCOLESTR text) override;
    STDMETHODIMP EnableModeless(BOOL enable) override;
    STDMETHODIMP TranslateAccelerator(LPMSG message, WORD id) override;

  private:
    FrameShell* shell_;
    ComPtr<IOleInPlaceObject> activeControl_;
    ComPtr<IOleInPlaceActiveObject> activeObject_;
};

}  // namespace qz
