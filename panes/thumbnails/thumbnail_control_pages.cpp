// What the pane does with the selected pages: delete, cut, copy, paste, drag and drop.
#include "host/auto_refresh.h"
#include "host/host_calls.h"
#include "panes/common/asked_by_user.h"
#include "panes/thumbnails/drag_rules.h"
#include "panes/thumbnails/page_clipboard.h"
#include "panes/thumbnails/page_drag.h"
#include "panes/thumbnails/page_operations.h"
#include "panes/thumbnails/thumbnail_control.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

namespace {

/// Remembers the record that a drag started from for as long as it lasts.
class DraggedRecordScope {
  public:
    DraggedRecordScope(std::optional<std::size_t>& place, std::size_t record) noexcept : place_(place) {
        place_ = record;
    }
    ~DraggedRecordScope() { place_.reset(); }
    DraggedRecordScope(const DraggedRecordScope&) = delete;
    DraggedRecordScope& operator=(const DraggedRecordScope&) = delete;

  private:
    std::optional<std::size_t>& place_;
};

}  // namespace

// Commands
// -----------------------------------------------------------------------------------------------------

PageCommandState ThumbnailControl::CommandState() const {
    const ComPtr<IVandraX> host = Host();
    return {.selected = model_.Selection().Count(),
            .pageCount = PageCountOf(host.Get()),
            .clipboardHasPages = PagesOnClipboard() != nullptr};
}

/// A command by key or menu. Where it cannot be given nothing happens, but for deleting everything, which is
/// refused with a message.
void ThumbnailControl::RunCommand(PageCommand command) {
    AskedByUser([&] {
        switch (command) {
            case PageCommand::Cut:
                return Cut();
            case PageCommand::Copy:
                return Copy();
            case PageCommand::Paste:
                return Paste();
            case PageCommand::Delete:
                return DeleteSelected();
        }
    });
}

void ThumbnailControl::Copy() {
    const std::vector<long> pages = model_.Selection().Pages();
    if (pages.empty()) return;
    const ComPtr<IVandraX> host = Host();
    const OwnHostCalls ours(*this);
    PutPagesOnClipboard(host.Get(), pages);
}

void ThumbnailControl::Cut() {
    const ShownDocument shown = Shown();
    const std::vector<long> pages = model_.Selection().Pages();
    if (pages.empty() || RefusesToDelete(shown.Host().Get(), pages.size())) return;
    Copy();
    if (!shown.Stale()) DeletePagesOf(shown, pages);
}

void ThumbnailControl::Paste() {
    if (!CommandState().Enables(PageCommand::Paste)) return;
    if (const ComPtr<IDataObject> data = PagesOnClipboard()) InsertFrom(data.Get(), std::nullopt, {});
}

// Deleting
// -----------------------------------------------------------------------------------------------------

/// The container is asked first.
void ThumbnailControl::DeleteSelected() {
    const ShownDocument shown = Shown();
    const std::vector<long> pages = model_.Selection().Pages();
    if (pages.empty() || RefusesToDelete(shown.Host().Get(), pages.size())) return;
    if (!events_.DeleteSelectedPages() || shown.Stale()) return;
    DeletePagesOf(shown, pages);
}

/// One page must remain.
bool ThumbnailControl::RefusesToDelete(IVandraX* host, std::size_t pages) {
    if (static_cast<long>(pages) < PageCountOf(host)) return false;
    Refuse(qzThumbnailCtrlShowMsgConsts_DelAllForbidden, QZ_TEXT_NOT_ALL_PAGES);
    return true;
}

void ThumbnailControl::Refuse(qzThumbnailCtrlShowMsgConsts message, unsigned textId) {
    if (events_.ShowMessage(message)) ShowMessageBox(LoadText(TextLanguage(), textId), MB_OK);
}

void ThumbnailControl::DeletePagesOf(const ShownDocument& shown, std::vector<long> pages) {
    const bool focused = WindowHandle() && GetFocus() == WindowHandle();
    ChangePages(shown, [&] { DeletePages(shown.Host().Get(), std::move(pages)); });
    // The host's view may have taken the focus when it was updated.
    if (focused && WindowHandle() && GetFocus() != WindowHandle()) SetFocus(WindowHandle());
}

/// Runs a change of the host's pages. Its many notifications are spared everyone: others are told once at the
/// end, and the pane reads its records anew before that, also when the change failed midway.
template <class Change>
void ThumbnailControl::ChangePages(const ShownDocument& shown, Change&& change) {
    const ComPtr<IVandraX>& host = shown.Host();
    const OwnHostCalls ours(*this);
    const qzVandraAutoRefresh suspended(host.Get());
    std::exception_ptr failure;
    try {
        change();
    } catch (...) {
        failure = std::current_exception();
    }
    host->UpdateView(change::pages, 1);
    if (!shown.HostLeft()) FollowOwnChange();
    host->UpdateView(change::none, 0);
    if (failure) std::rethrow_exception(failure);
}

/// Nobody will tell the pane again of what it has changed itself: one failure is not taken as final.
void ThumbnailControl::FollowOwnChange() {
    const auto follow = [this] { return Run([this] { Follow(Pages::Changed); }); };
    if (FAILED(follow()) && Host()) follow();
}

// Inserting
// ----------------------------------------------------------------------------------------------------

/// Inserts what a data object holds, after the target, and gives the number of pages; `moved` are pages of
/// this document that are thereby moved. The container is told of the beginning, which it may veto, and of
/// the end, whatever comes between.
long ThumbnailControl::InsertFrom(IDataObject* data, std::optional<std::size_t> target,
                                  std::vector<long> moved) {
    const ShownDocument shown = Shown();
    const Insertion where{InsertionPoint(target), std::move(moved)};
    long inserted = 0;
    std::exception_ptr failure;
    if (events_.ProcessingProgress(2, 1) && !shown.Stale()) {
        try {
            ChangePages(shown, [&] { inserted = InsertPages(shown.Host().Get(), data, where); });
        } catch (...) {
            failure = std::current_exception();
        }
    }
    events_.ProcessingProgress(-1, 0);
    if (failure) std::rethrow_exception(failure);
    return inserted;
}

/// The page number that the first inserted page gets: after the target, else after the first selected page,
/// else at the front.
long ThumbnailControl::InsertionPoint(std::optional<std::size_t> target) const {
    if (!target && model_.Selection().GetBounds()) target = model_.Selection().GetBounds()->first;
    return target ? static_cast<long>(*target) + 2 : 1;
}

// Dragging
// -----------------------------------------------------------------------------------------------------

/// Only a range without gaps can be moved; held Ctrl says at the start that the pages are to be copied.
void ThumbnailControl::StartDrag(bool copies) {
    const std::size_t pressed = *press_->record;
    const ComPtr<IVandraX> host = Host();
    if (GetCapture() == WindowHandle()) ReleaseCapture();
    press_.reset();
    if (!model_.Selection().GetBounds()) {
        model_.Selection().Include(pressed);
        InvalidateRecord(pressed);
    }
    DWORD allowed = DROPEFFECT_COPY | DROPEFFECT_MOVE;
    if (!model_.Selection().Contiguous()) {
        if (!copies) {
            return Refuse(qzThumbnailCtrlShowMsgConsts_NonCntForbidden, QZ_TEXT_ONLY_CONTIGUOUS_PAGES);
        }
        allowed = DROPEFFECT_COPY;
    }
    DragSelection(host, pressed, allowed);
}

void ThumbnailControl::DragSelection(const ComPtr<IVandraX>& host, std::size_t pressed, DWORD allowed) {
    const ShownDocument shown = Shown(host);
    const std::vector<long> pages = model_.Selection().Pages();
    const DragPicture picture = PictureOfDrag(host.Get());
    if (shown.Stale()) return;
    PageDragResult result;
    {
        const DraggedRecordScope dragging(draggedRecord_, pressed);
        result = DragPages(host.Get(), pages, allowed, picture);
    }
    if (!result.SourceDeletes() || shown.Stale()) return;
    if (RefusesToDelete(host.Get(), pages.size())) return;
    if (!shown.Stale()) DeletePagesOf(shown, pages);
}

/// The selected pages and, when it stands among them, the current one.
DragPicture ThumbnailControl::PictureOfDrag(IVandraX* host) {
    const OwnHostCalls ours(*this);
    const auto bounds = *model_.Selection().GetBounds();
    std::vector<std::size_t> shown;
    for (std::size_t i = bounds.first; i <= bounds.last; ++i) {
        if (model_.Records()[i].flags & (thumbnailSelected | thumbnailCurrent)) shown.push_back(i);
    }
    return MakeDragPicture(painter_, model_, shown, host, recordFactor_);
}

// Dropping
// -----------------------------------------------------------------------------------------------------

bool ThumbnailControl::AcceptsDrops() {
    return Host() && (settings_ & qzThumbnailCtrlSettings_PageMoveOrDragAndDrop);
}

void ThumbnailControl::OnDragOver(POINT client) {
    const std::int32_t step = AutoScrollStep(client.y, model_.ClientHeight());
    if (step != 0 && scrollBar_.ScrollTo(WindowHandle(), std::int64_t{model_.ScrollPosition()} + step))
        UpdateNow();
    std::optional<std::size_t> hit = model_.HitTest(client.x, client.y);
    if (hit == draggedRecord_) hit.reset();
    SetDropTarget(hit);
}

void ThumbnailControl::OnDragLeave() { SetDropTarget(std::nullopt); }

DWORD ThumbnailControl::OnDrop(IDataObject* data, POINT client, DWORD effect) {
    std::optional<std::size_t> target = model_.HitTest(client.x, client.y);
    if (target == draggedRecord_) target.reset();
    SetDropTarget(std::nullopt);
    const ComPtr<IVandraX> host = Host();
    PageDrag* const drag = effect == DROPEFFECT_MOVE ? CurrentPageDragOf(host.Get()) : nullptr;
    const long inserted = InsertFrom(data, target, drag ? drag->pages : std::vector<long>());
    if (inserted == 0) return DROPEFFECT_NONE;
    if (drag) drag->finishedByDrop = true;
    return effect;
}

/// Shows where a drop would insert, before it returns.
void ThumbnailControl::SetDropTarget(std::optional<std::size_t> target) {
    const std::optional<std::size_t> before = model_.DropTarget();
    if (before == target) return;
    model_.SetDropTarget(target);
    if (before) InvalidateRecord(*before);
    if (target) InvalidateRecord(*target);
    if (const HWND window = WindowHandle()) UpdateWindow(window);
}

}  // namespace qz
