#include "panes/thumbnails/page_drag.h"

#include "panes/thumbnails/drag_rules.h"
#include "panes/thumbnails/page_data_object.h"

#include <ole2.h>
#include <shlobj.h>

namespace qz {

static_assert(drag_keys::leftButton == MK_LBUTTON && drag_keys::rightButton == MK_RBUTTON &&
              drag_keys::middleButton == MK_MBUTTON && drag_keys::shift == MK_SHIFT &&
              drag_keys::control == MK_CONTROL);
static_assert(drop_effect::none == DROPEFFECT_NONE && drop_effect::copy == DROPEFFECT_COPY &&
              drop_effect::move == DROPEFFECT_MOVE && drop_effect::link == DROPEFFECT_LINK);

namespace {

thread_local PageDrag* currentDrag = nullptr;

/// Makes a drag the current one for a scope.
class CurrentDragScope {
  public:
    explicit CurrentDragScope(PageDrag& drag) {
        if (currentDrag) Throw(HRESULT_FROM_WIN32(ERROR_BUSY), L"A drag is in progress already");
        currentDrag = &drag;
    }
    ~CurrentDragScope() { currentDrag = nullptr; }
    CurrentDragScope(const CurrentDragScope&) = delete;
    CurrentDragScope& operator=(const CurrentDragScope&) = delete;
};

class PageDropSource : public Object<PageDropSource, IDropSource> {
  public:
    STDMETHODIMP QueryContinueDrag(BOOL escape, DWORD keys) override {
        switch (NextDragStep(escape != FALSE, keys)) {
            case DragStep::Cancel:
                return DRAGDROP_S_CANCEL;
            case DragStep::Drop:
                return DRAGDROP_S_DROP;
            case DragStep::GoOn:
                break;
        }
        return S_OK;
    }

    STDMETHODIMP GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

/// Hands the picture to the system. A drag is as good without, so a system that takes none is no failure.
void AttachPicture(IDataObject* data, const DragPicture& picture) {
    if (!picture.pixels) return;
    ComPtr<IDragSourceHelper> helper;
    if (FAILED(CoCreateInstance(CLSID_DragDropHelper, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&helper))))
        return;
    // The helper keeps the bitmap that it takes, hence one of its own.
    Bitmap own(
        static_cast<HBITMAP>(CopyImage(picture.pixels.Get(), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
    if (!own) return;
    SHDRAGIMAGE image{};
    image.sizeDragImage = picture.pixels.Extent();
    image.ptOffset = picture.hotSpot;
    image.hbmpDragImage = own.Get();
    image.crColorKey = CLR_NONE;
    if (SUCCEEDED(helper->InitializeFromBitmap(&image, data))) own.Detach();
}

}  // namespace

PageDrag* CurrentPageDrag() noexcept { return currentDrag; }

PageDrag* CurrentPageDragOf(IUnknown* host) noexcept {
    return currentDrag && SameObject(currentDrag->host.Get(), host) ? currentDrag : nullptr;
}

PageDragResult DragPages(IVandraX* host, std::vector<long> pages, DWORD allowedEffects,
                         const DragPicture& picture) {
    const ComPtr<IDataObject> data = MakePageDataObject(host, pages);
    const ComPtr<IDropSource> source = MakeObject<PageDropSource>();
    PageDrag drag{.host = host, .pages = std::move(pages), .finishedByDrop = false};
    const CurrentDragScope current(drag);
    AttachPicture(data.Get(), picture);
    DWORD effect = DROPEFFECT_NONE;
    const HRESULT ended = DoDragDrop(data.Get(), source.Get(), allowedEffects, &effect);
    ThrowIfFailed(ended, L"The pages cannot be dragged");
    if (ended != DRAGDROP_S_DROP) effect = DROPEFFECT_NONE;
    return {.effect = effect, .finishedByDrop = drag.finishedByDrop};
}

}  // namespace qz
