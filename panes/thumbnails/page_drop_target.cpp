#include "panes/thumbnails/page_drop_target.h"

#include "panes/thumbnails/drag_rules.h"
#include "panes/thumbnails/page_formats.h"

#include <ole2.h>
#include <shlobj.h>

#include <utility>

namespace qz {

/// What the system calls. The listener may go inside any call to it: whatever follows looks for it anew.
class PageDropTarget : public Object<PageDropTarget, IDropTarget> {
  public:
    PageDropTarget(HWND window, PageDropListener& listener) noexcept
        : window_(window), listener_(&listener) {}

    /// The listener is not called any more.
    void Disconnect() noexcept { listener_ = nullptr; }

    void ShowImage(bool show) noexcept {
        if (inside_ && image_) image_->Show(show);
    }

    STDMETHODIMP DragEnter(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) override {
        return Run(effect, [&](DWORD allowed) {
            inside_ = true;
            usable_ = OffersPages(data);
            const DWORD chosen = Hover(keys, point, allowed);
            if (IDropTargetHelper* const image = Image()) {
                POINT at{point.x, point.y};
                image->DragEnter(window_, data, &at, chosen);
            }
            return chosen;
        });
    }

    STDMETHODIMP DragOver(DWORD keys, POINTL point, DWORD* effect) override {
        return Run(effect, [&](DWORD allowed) {
            const DWORD chosen = Hover(keys, point, allowed);
            if (image_) {
                POINT at{point.x, point.y};
                image_->DragOver(&at, chosen);
            }
            return chosen;
        });
    }

    STDMETHODIMP DragLeave() override {
        const ComPtr<IDropTarget> alive = this;
        return Guard(__uuidof(IDropTarget), [&] {
            if (image_) image_->DragLeave();
            Forget();
            EndHover();
        });
    }

    STDMETHODIMP Drop(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) override {
        return Run(effect, [&](DWORD allowed) {
            usable_ = OffersPages(data);
            const DWORD chosen = Choose(keys, allowed);
            if (image_) {
                POINT at{point.x, point.y};
                image_->Drop(data, &at, chosen);
            }
            Forget();
            if (chosen == DROPEFFECT_NONE) {
                EndHover();
                return chosen;
            }
            hovering_ = false;
            return Call(
                [&](PageDropListener& listener) { return listener.OnDrop(data, ToClient(point), chosen); },
                DWORD{DROPEFFECT_NONE});
        });
    }

  private:
    /// Runs a member that turns the allowed effects into the chosen one; none when it fails.
    template <class Body>
    HRESULT Run(DWORD* effect, Body body) noexcept {
        if (!effect) return E_POINTER;
        const ComPtr<IDropTarget> alive = this;
        const DWORD allowed = std::exchange(*effect, DROPEFFECT_NONE);
        return Guard(__uuidof(IDropTarget), [&] { *effect = body(allowed); });
    }

    /// Calls the listener if it is still there.
    template <class Action, class Answer>
    Answer Call(Action action, Answer otherwise) {
        if (!listener_) return otherwise;
        const ComPtr<IUnknown> alive = listener_->KeepAlive();
        return action(*listener_);
    }

    DWORD Choose(DWORD keys, DWORD allowed) {
        const bool accepted =
            usable_ && Call([](PageDropListener& listener) { return listener.AcceptsDrops(); }, false);
        return accepted ? DropEffectFor(keys, allowed) : DROPEFFECT_NONE;
    }

    DWORD Hover(DWORD keys, POINTL point, DWORD allowed) {
        const DWORD chosen = Choose(keys, allowed);
        if (chosen == DROPEFFECT_NONE) {
            EndHover();
            return chosen;
        }
        hovering_ = true;
        return Call(
            [&](PageDropListener& listener) {
                listener.OnDragOver(ToClient(point));
                return chosen;
            },
            DWORD{DROPEFFECT_NONE});
    }

    void EndHover() {
        if (!std::exchange(hovering_, false)) return;
        Call(
            [](PageDropListener& listener) {
                listener.OnDragLeave();
                return true;
            },
            false);
    }

    void Forget() noexcept {
        inside_ = false;
        usable_ = false;
    }

    POINT ToClient(POINTL point) const noexcept {
        POINT client{point.x, point.y};
        ScreenToClient(window_, &client);
        return client;
    }

    /// What draws the drag's picture; a system may have none.
    IDropTargetHelper* Image() {
        if (!std::exchange(imageSought_, true)) {
            CoCreateInstance(CLSID_DragDropHelper, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&image_));
        }
        return image_.Get();
    }

    HWND window_;
    PageDropListener* listener_;
    ComPtr<IDropTargetHelper> image_;
    bool imageSought_ = false;
    bool inside_ = false;    ///< A drag is over the window.
    bool usable_ = false;    ///< It has pages.
    bool hovering_ = false;  ///< The listener was told so.
};

PageDropRegistration::PageDropRegistration() noexcept = default;

PageDropRegistration::PageDropRegistration(HWND window, PageDropListener& listener)
    : window_(window), target_(MakeObject<PageDropTarget>(window, listener)) {
    ThrowIfFailed(RegisterDragDrop(window, target_.Get()), L"The window cannot be made a drop target");
}

PageDropRegistration::~PageDropRegistration() {
    if (!target_) return;
    target_->Disconnect();
    RevokeDragDrop(window_);
}

PageDropRegistration::PageDropRegistration(PageDropRegistration&& other) noexcept {
    *this = std::move(other);
}

PageDropRegistration& PageDropRegistration::operator=(PageDropRegistration&& other) noexcept {
    std::swap(window_, other.window_);
    target_.Swap(other.target_);
    return *this;
}

void PageDropRegistration::ShowImage(bool show) noexcept {
    if (target_) target_->ShowImage(show);
}

}  // namespace qz
