// The pane's members, its tie to the host, and its records.
#include "panes/thumbnails/thumbnail_control.h"

#include "host/host_calls.h"
#include "host/page_sizes.h"
#include "panes/thumbnails/host_changes.h"
#include "panes/thumbnails/page_drag.h"
#include "panes/thumbnails/page_numbers.h"

#include <algorithm>

namespace qz {

namespace {

constexpr long defaultSizeFactor = 14;
constexpr long smallestSizeFactor = 10;
constexpr long largestSizeFactor = 50;

/// One value for all thumbnail panes of the process; all run on the user-interface thread.
long sizeFactor = defaultSizeFactor;

}  // namespace

ThumbnailControl::ThumbnailControl() { sizeFactor = defaultSizeFactor; }

// Members
// ------------------------------------------------------------------------------------------------------

STDMETHODIMP ThumbnailControl::Initialize(IDispatch* pDispatch) { return InitializePane(pDispatch); }

STDMETHODIMP ThumbnailControl::Reset() { return ResetPane(); }

STDMETHODIMP ThumbnailControl::get_IsInitialized(long* pVal) { return TellInitialized(pVal); }

STDMETHODIMP ThumbnailControl::ScrollPageThumbIntoView(long page) {
    if (!Host()) return S_OK;
    return Run([&] {
        if (page < 1 || static_cast<std::size_t>(page) > model_.Records().size()) {
            Throw(E_FAIL, L"The document has no page " + std::to_wstring(page));
        }
        scrollBar_.ScrollIntoView(WindowHandle(), static_cast<std::size_t>(page) - 1);
        Invalidate();
    });
}

STDMETHODIMP ThumbnailControl::get_ThumbSizeFactor(long* pVal) { return Answer(pVal, sizeFactor); }

STDMETHODIMP ThumbnailControl::put_ThumbSizeFactor(long newVal) {
    if (newVal >= smallestSizeFactor && newVal <= largestSizeFactor) sizeFactor = newVal;
    return S_OK;
}

STDMETHODIMP ThumbnailControl::RedrawAllThumbs() {
    return Run([&] {
        RebuildAndMarkCurrent();
        if (const HWND window = WindowHandle()) {
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        }
    });
}

STDMETHODIMP ThumbnailControl::get_SelectedPages(VARIANT* pVal) {
    return Run([&] {
        RequirePointer(pVal);
        VariantInit(pVal);
        *pVal = MakePageNumbers(model_.Selection().Pages()).Detach();
    });
}

STDMETHODIMP ThumbnailControl::get_SelectedPagesVariant(VARIANT* pVal) {
    return Run([&] {
        RequirePointer(pVal);
        VariantInit(pVal);
        *pVal = MakePageVariants(model_.Selection().Pages()).Detach();
    });
}

STDMETHODIMP ThumbnailControl::put_SelectedPages(VARIANT newVal) {
    return Run([&] {
        model_.Selection().AddPages(PageNumbersOf(newVal));
        UpdateNow();
    });
}

STDMETHODIMP ThumbnailControl::get_Settings(qzThumbnailCtrlSettings* pVal) {
    return Answer(pVal, static_cast<qzThumbnailCtrlSettings>(settings_));
}

STDMETHODIMP ThumbnailControl::put_Settings(qzThumbnailCtrlSettings newVal) {
    return Keep(settings_, newVal);
}

STDMETHODIMP ThumbnailControl::SettingsChange(long enabled, qzThumbnailCtrlSettings settingsToChange) {
    const long changed =
        enabled ? settings_ | settingsToChange : settings_ & ~static_cast<long>(settingsToChange);
    return put_Settings(static_cast<qzThumbnailCtrlSettings>(changed));
}

// The host
// -----------------------------------------------------------------------------------------------------

void ThumbnailControl::CheckHost(IVandraX* host) { PageCountOf(host); }

void ThumbnailControl::ShowDocument() {
    ScrollTo(0);
    RebuildAndMarkCurrent();
}

void ThumbnailControl::ForgetDocument() { TakeRecords({}); }

/// Pages of this document that are on the clipboard outlive the pane.
void ThumbnailControl::OnReset() { OleFlushClipboard(); }

void ThumbnailControl::FollowHost() { Follow(Pages::AskHost); }

// Records
// ------------------------------------------------------------------------------------------------------

/// Throws the first failure; what was read until then is shown.
void ThumbnailControl::RebuildAndMarkCurrent() {
    Rebuild();
    MarkCurrent();
}

void ThumbnailControl::Rebuild() {
    const ShownDocument shown = Shown();
    std::vector<ThumbnailRecord> records;
    // The records there were stay until the new ones have been read: emptying the pane first would lose the
    // scroll position, and hide the scroll bar only to show it again.
    const auto take = [&] {
        if (!shown.HostLeft()) TakeRecords(std::move(records));
    };
    try {
        if (shown.Host()) ReadRecords(shown.Host().Get(), records);
    } catch (...) {
        take();
        throw;
    }
    take();
}

/// Appends a record for each page; those read before a failure are in `records` when it throws.
void ThumbnailControl::ReadRecords(IVandraX* host, std::vector<ThumbnailRecord>& records) {
    const OwnHostCalls ours(*this);
    const long count = PageCountOf(host);
    records.reserve(static_cast<std::size_t>(std::clamp(count, 0l, 1l << 20)));
    recordFactor_ = sizeFactor;
    ReadPageSizes(host, count,
                  [&](const PageSize& size) { records.push_back(MakeThumbnail(size, recordFactor_)); });
}

void ThumbnailControl::TakeRecords(std::vector<ThumbnailRecord> records) {
    painter_.Pictures().Clear();
    model_.SetRecords(std::move(records));
    press_.reset();
    ForgetDrag();
    scrollBar_.Update(WindowHandle());
    Invalidate();
}

/// A drag from here goes on, but its page numbers mean nothing any more: nothing will be deleted for it.
void ThumbnailControl::ForgetDrag() {
    if (!draggedRecord_) return;
    draggedRecord_.reset();
    if (PageDrag* const drag = CurrentPageDrag()) drag->pages.clear();
}

void ThumbnailControl::MarkCurrent() {
    const ShownDocument shown = Shown();
    if (!shown.Host()) return;
    const long page = CurrentPageOf(shown.Host().Get());
    if (shown.HostLeft()) return;
    model_.MakeCurrent(page >= 1 ? std::optional(static_cast<std::size_t>(page) - 1) : std::nullopt);
    Invalidate();
}

// The host's changes
// -------------------------------------------------------------------------------------------

/// Reads from the host what changed; that the pages did is known already when the pane itself changed them.
void ThumbnailControl::Follow(Pages pages) {
    const ShownDocument shown = Shown();
    const long page = CurrentPageOf(shown.Host().Get());
    const HostChange change{ChangesOf(shown.Host().Get())};
    const bool changed = pages == Pages::Changed;
    if (change.Ignored() && !changed) return;
    const long count = PageCountOf(shown.Host().Get());
    if (shown.HostLeft()) return;  // another one was attached meanwhile, and read
    const bool recount = static_cast<std::size_t>(std::max(count, 0l)) != model_.Records().size();
    const bool rebuilt = changed || recount || change.PagesChanged();
    if (rebuilt) Rebuild();
    if (shown.HostLeft()) return;
    const auto current = page >= 1 ? std::optional(static_cast<std::size_t>(page) - 1) : std::nullopt;
    model_.MakeCurrent(current);
    if (model_.Current()) {
        scrollBar_.ScrollIntoView(WindowHandle(), *model_.Current());
        // Dropped, so that the painting below draws it anew.
        if (change.PictureChanged() && !rebuilt) painter_.Pictures().Drop(*model_.Current());
    }
    UpdateNow();
}

std::span<const PersistentProperty> ThumbnailControl::PersistentProperties() const {
    static constexpr PersistentProperty properties[] = {
        {L"BackColor", DISPID_BACKCOLOR, VT_UI4},
        {L"Settings", 9, VT_I4},
    };
    return properties;
}

}  // namespace qz
