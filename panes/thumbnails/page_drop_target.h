// Dropping pages on a window.
#pragma once

#include "com/object.h"

#include <objidl.h>
#include <oleidl.h>
#include <windows.h>

namespace qz {

/// The view behind a drop target. Points are in client pixels of its window. Any of these may throw: the
/// effect is then none, and the drag's source is given the error.
class PageDropListener {
  public:
    /// Whether pages may be dropped now.
    virtual bool AcceptsDrops() = 0;
    /// Pages hover here, and a drop would do something; called again and again. Ends with one `OnDragLeave`
    /// or one `OnDrop`.
    virtual void OnDragOver(POINT client) = 0;
    virtual void OnDragLeave() = 0;
    /// Pages are dropped; `effect` is what the drop shall do. Gives the effect that it had.
    virtual DWORD OnDrop(IDataObject* data, POINT client, DWORD effect) = 0;

    /// What the listener is a part of; counted during every call, so that it may be released inside one.
    virtual ComPtr<IUnknown> KeepAlive() noexcept { return nullptr; }

  protected:
    ~PageDropListener() = default;
};

class PageDropTarget;

/// Makes a window a drop target for pages as long as this object lives; to be ended before the window goes.
/// The thread must have been through OleInitialize. May end inside a call of the listener.
class PageDropRegistration {
  public:
    PageDropRegistration() noexcept;
    /// Throws the system's failure, such as DRAGDROP_E_ALREADYREGISTERED.
    PageDropRegistration(HWND window, PageDropListener& listener);
    ~PageDropRegistration();
    PageDropRegistration(PageDropRegistration&& other) noexcept;
    PageDropRegistration& operator=(PageDropRegistration&& other) noexcept;

    /// Hides or shows the picture of a drag that hovers over the window, around painting it. Does nothing
    /// without one.
    void ShowImage(bool show) noexcept;

  private:
    HWND window_ = nullptr;
    ComPtr<PageDropTarget> target_;
};

}  // namespace qz
