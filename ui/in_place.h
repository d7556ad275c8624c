// A control's place in its container: the states "loaded", "active in place" and "active in the user
// interface".
//
// Each step of an activation calls the container, which may end the activation inside that call. What ends
// one counts `stage_` up; the step under way compares and stops.
#pragma once

#include "com/object.h"
#include "ui/window.h"

#include <windows.h>
#include <ocidl.h>
#include <oleidl.h>

#include <string>

namespace qz {

/// Holds the client site, and the container's place while the control is active there, and takes the
/// container through the states. Window and active object are parts of the control that this is a part of
/// too; the control stays alive during every call. Apartment-threaded. What throws gives the container's
/// refusal, or OLE_E_NOT_INPLACEACTIVE when the container ended the activation meanwhile.
class InPlace {
  public:
    InPlace(Window& window, IOleInPlaceActiveObject& activeObject) noexcept
        : window_(window), activeObject_(activeObject) {}

    IOleClientSite* Site() const noexcept { return site_.Get(); }
    /// Ends what the site before was used for, and gives it back to be let go of.
    ComPtr<IOleClientSite> PutSite(IOleClientSite* site) noexcept;
    /// The site as one for controls; null when it is none.
    ComPtr<IOleControlSite> SiteOfControl() const noexcept;

    bool Active() const noexcept { return active_; }
    bool UIActive() const noexcept { return uiActive_; }
    /// The container's frame window while the control is active; may be null.
    const ComPtr<IOleInPlaceFrame>& Frame() const noexcept { return frame_; }

    /// Makes the window, unless there is one, and shows it. Throws.
    void Activate(const std::wstring& title);
    /// Makes a control that has a window the container's active object and gives it the focus. A failure says
    /// that the container does not want it.
    HRESULT ActivateUserInterface(const std::wstring& title);
    void LeaveUserInterface() noexcept;
    /// Destroys the window. After it the site is called no more.
    void Leave() noexcept;
    /// The same, also for an activation that is under way.
    void End() noexcept;

    /// Moves the window, in client pixels of the parent; what lies outside `clip` is cut off.
    void MoveTo(const RECT& position, const RECT& clip) noexcept;

    /// Whether a window is the control's or a child of it.
    bool Owns(HWND window) const noexcept;
    void TakeFocus() noexcept;
    /// The focus came into the control's windows, or left them; the container is told of changes only.
    void TellFocus(bool has) noexcept;

  private:
    void Enter(const std::wstring& title);
    void MakeWindow(IOleInPlaceSite* place, const std::wstring& title);
    void Announce(IOleInPlaceActiveObject* active, const wchar_t* title) noexcept;
    void RequireStage(unsigned stage) const;

    Window& window_;
    IOleInPlaceActiveObject& activeObject_;
    ComPtr<IOleClientSite> site_;
    ComPtr<IOleInPlaceSite> place_;
    ComPtr<IOleInPlaceFrame> frame_;
    ComPtr<IOleInPlaceUIWindow> documentWindow_;
    unsigned stage_ = 0;
    bool entering_ = false;
    bool leaving_ = false;
    bool active_ = false;
    bool uiActive_ = false;
    bool focusTold_ = false;  ///< The container knows that the control, or a child of it, has the focus.
};

}  // namespace qz
