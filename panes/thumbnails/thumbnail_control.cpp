#include "panes/thumbnails/thumbnail_control.h"

#include "host/page_sizes.h"
#include "panes/thumbnails/host_changes.h"
#include "res/language.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/gdi.h"

#include <algorithm>

namespace qz {

namespace {

constexpr long defaultSizeFactor = 14;
constexpr long smallestSizeFactor = 10;
constexpr long largestSizeFactor = 50;

/// One value for all thumbnail panes of the process; all run on the user-interface thread.
long sizeFactor = defaultSizeFactor;

/// Marks a stretch in which the pane itself calls the host.
class OwnHostCalls {
  public:
    explicit OwnHostCalls(int& depth) noexcept : depth_(depth) { ++depth_; }
    ~OwnHostCalls() { --depth_; }
    OwnHostCalls(const OwnHostCalls&) = delete;
    OwnHostCalls& operator=(const OwnHostCalls&) = delete;

  private:
    int& depth_;
};

long PageCountOf(IVandraX* host) {
    long count = 0;
    ThrowIfFailed(host->GetPageCount(&count), L"The host does not tell the number of pages");
    return count;
}

}  // namespace

ThumbnailControl::ThumbnailControl() : events_(Identity(), DIID__IqzThumbnailCtrlEvents) {
    sizeFactor = defaultSizeFactor;
}

void ThumbnailControl::FinalRelease() noexcept {
    binding_.Detach();
    events_.DisconnectAll();
    Control::FinalRelease();
}

// Members
// ------------------------------------------------------------------------------------------------------

STDMETHODIMP ThumbnailControl::Initialize(IDispatch* pDispatch) {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        Attach(pDispatch);
        ScrollTo(0);
        RebuildAndMarkCurrent();
    });
}

void ThumbnailControl::Attach(IDispatch* host) {
    const OwnHostCalls ours(ownHostCalls_);
    try {
        binding_.Attach(host);
    } catch (...) {
        if (!binding_.Host()) LetGo();
        throw;
    }
    try {
        const ComPtr<IVandraX> attached = binding_.Host();
        if (!attached) Throw(E_ABORT, L"The pane was reset while it was being attached");
        PageCountOf(attached.Get());
    } catch (...) {
        LetGo();
        throw;
    }
    if (const HWND window = WindowHandle()) SetWindowTextW(window, Title().c_str());
}

void ThumbnailControl::LetGo() {
    binding_.Detach();
    TakeRecords({});
}

STDMETHODIMP ThumbnailControl::Reset() {
    if (!binding_.Host()) return S_OK;
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        OleFlushClipboard();  // pages of this document on the clipboard outlive the pane
        LetGo();
    });
}

STDMETHODIMP ThumbnailControl::ScrollPageThumbIntoView(long page) {
    if (!binding_.Host()) return S_OK;
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        if (page < 1 || static_cast<std::size_t>(page) > model_.Records().size()) {
            Throw(E_FAIL, L"The document has no page " + std::to_wstring(page));
        }
        model_.ScrollIntoView(static_cast<std::size_t>(page) - 1);
        SyncScrollPosition();
        Invalidate();
    });
}

STDMETHODIMP ThumbnailControl::get_IsInitialized(long* pVal) {
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        RequirePointer(pVal);
        *pVal = binding_.Host() ? 1 : 0;
    });
}

STDMETHODIMP ThumbnailControl::get_ThumbSizeFactor(long* pVal) {
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        RequirePointer(pVal);
        *pVal = sizeFactor;
    });
}

STDMETHODIMP ThumbnailControl::put_ThumbSizeFactor(long newVal) {
    if (newVal >= smallestSizeFactor && newVal <= largestSizeFactor) sizeFactor = newVal;
    return S_OK;
}

STDMETHODIMP ThumbnailControl::RedrawAllThumbs() {
    const ComPtr<IUnknown> alive = Identity();
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        RebuildAndMarkCurrent();
        if (const HWND window = WindowHandle()) {
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        }
    });
}

STDMETHODIMP ThumbnailControl::get_SelectedPages(VARIANT* pVal) {
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        RequirePointer(pVal);
        VariantInit(pVal);
        Throw(E_NOTIMPL, L"Selecting pages is not available yet");
    });
}

STDMETHODIMP ThumbnailControl::put_SelectedPages(VARIANT) {
    return Guard(__uuidof(IqzThumbnailCtrl),
                 [] { Throw(E_NOTIMPL, L"Selecting pages is not available yet"); });
}

STDMETHODIMP ThumbnailControl::get_Settings(qzThumbnailCtrlSettings* pVal) {
    return Guard(__uuidof(IqzThumbnailCtrl), [&] {
        RequirePointer(pVal);
        *pVal = static_cast<qzThumbnailCtrlSettings>(settings_);
    });
}

STDMETHODIMP ThumbnailControl::put_Settings(qzThumbnailCtrlSettings newVal) {
    settings_ = newVal;
    SetDirty(true);
    return S_OK;
}

STDMETHODIMP ThumbnailControl::SettingsChange(long enabled, qzThumbnailCtrlSettings settingsToChange) {
    const long changed =
        enabled ? settings_ | settingsToChange : settings_ & ~static_cast<long>(settingsToChange);
    return put_Settings(static_cast<qzThumbnailCtrlSettings>(changed));
}

// Records
// ------------------------------------------------------------------------------------------------------

/// Throws the first failure; what was read until then is shown.
void ThumbnailControl::RebuildAndMarkCurrent() {
    Rebuild();
    MarkCurrent();
}

void ThumbnailControl::Rebuild() {
    const ComPtr<IVandraX> host = binding_.Host();
    std::vector<ThumbnailRecord> records;
    // The records there were stay until the new ones have been read: emptying the pane first would lose the
    // scroll position, and hide the scroll bar only to show it again.
    const auto take = [&] {
        if (binding_.Host() == host) TakeRecords(std::move(records));
    };
    try {
        if (host) ReadRecords(host.Get(), records);
    } catch (...) {
        take();
        throw;
    }
    take();
}

/// Appends a record for each page; those read before a failure are in `records` when it throws.
void ThumbnailControl::ReadRecords(IVandraX* host, std::vector<ThumbnailRecord>& records) {
    const OwnHostCalls ours(ownHostCalls_);
    const long count = PageCountOf(host);
    records.reserve(static_cast<std::size_t>(std::clamp(count, 0l, 1l << 20)));
    recordFactor_ = sizeFactor;
    ReadPageSizes(host, count,
                  [&](const PageSize& size) { records.push_back(MakeThumbnail(size, recordFactor_)); });
}

void ThumbnailControl::TakeRecords(std::vector<ThumbnailRecord> records) {
    painter_.Pictures().Clear();
    model_.SetRecords(std::move(records));
    UpdateScrollBar();
    Invalidate();
}

void ThumbnailControl::MarkCurrent() {
    const ComPtr<IVandraX> host = binding_.Host();
    if (!host) return;
    long page = 0;
    ThrowIfFailed(host->GetCurrentPage(&page), L"The host does not tell its current page");
    model_.MakeCurrent(page >= 1 ? std::optional(static_cast<std::size_t>(page) - 1) : std::nullopt);
    Invalidate();
}

// The host's changes
// -------------------------------------------------------------------------------------------

void ThumbnailControl::OnHostChanged() noexcept {
    if (ownHostCalls_ > 0 || !binding_.Host()) return;
    const ComPtr<IUnknown> alive = Identity();
    // Nobody asked, so nobody is told of a failure: the pane shows what it could learn.
    Guard(__uuidof(IqzThumbnailCtrl), [this] { FollowHost(); });
}

void ThumbnailControl::FollowHost() {
    const ComPtr<IVandraX> host = binding_.Host();
    long page = 0;
    long flags = 0;
    ThrowIfFailed(host->GetCurrentPage(&page));
    ThrowIfFailed(host->GetChangeFlags(&flags));
    const HostChange change{static_cast<std::uint32_t>(flags)};
    if (change.Ignored()) return;
    const long count = PageCountOf(host.Get());
    const bool recount = static_cast<std::size_t>(std::max(count, 0l)) != model_.Records().size();
    const bool rebuilt = recount || change.PagesChanged();
    if (rebuilt) Rebuild();
    const auto current = page >= 1 ? std::optional(static_cast<std::size_t>(page) - 1) : std::nullopt;
    model_.MakeCurrent(current);
    if (model_.Current()) {
        model_.ScrollIntoView(*model_.Current());
        SyncScrollPosition();
        // Dropped, so that the painting below draws it anew.
        if (change.PictureChanged() && !rebuilt) painter_.Pictures().Drop(*model_.Current());
    }
    Invalidate();
    if (const HWND window = WindowHandle()) UpdateWindow(window);
}

// View
// ---------------------------------------------------------------------------------------------------------

std::wstring ThumbnailControl::Title() const {
    return LoadText(LanguageFromId(binding_.LanguageId()), QZ_TEXT_THUMBNAILS);
}

std::span<const PersistentProperty> ThumbnailControl::PersistentProperties() const {
    static constexpr PersistentProperty properties[] = {
        {L"BackColor", DISPID_BACKCOLOR, VT_UI4},
        {L"Settings", 9, VT_I4},
    };
    return properties;
}

void ThumbnailControl::OnDraw(HDC dc, const RECT& bounds) {
    const HWND window = WindowHandle();
    if (!window) model_.SetClientSize(bounds.right, bounds.bottom);
    RECT dirty{};
    GetClipBox(dc, &dirty);
    if (!IntersectRect(&dirty, &dirty, &bounds)) return;
    if (window && WindowFromDC(dc) == window) {
        const PaintBuffer buffer(dc, dirty);  // no flicker on the screen; containers get the drawing itself
        DrawPane(buffer.Dc(), dirty);
        buffer.Show();
    } else {
        DrawPane(dc, dirty);
    }
}

void ThumbnailControl::DrawPane(HDC dc, const RECT& dirty) {
    const Brush background = MakeBrush(BackColorRef());
    FillRect(dc, &dirty, background.Get());
    const ComPtr<IVandraX> host = binding_.Host();
    if (!host) return;
    const OwnHostCalls ours(ownHostCalls_);
    painter_.Paint(dc, dirty, host.Get(), recordFactor_);
}

void ThumbnailControl::OnSized(SIZE client) {
    model_.SetClientSize(client.cx, client.cy);
    UpdateScrollBar();
    Invalidate();
}

std::optional<LRESULT> ThumbnailControl::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_VSCROLL:
            OnVerticalScroll(LOWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
            return 0;
        default:
            return std::nullopt;
    }
}

// Scrolling
// ----------------------------------------------------------------------------------------------------

void ThumbnailControl::OnVerticalScroll(WORD command) {
    if (!binding_.Host()) return;
    const std::int64_t position = model_.ScrollPosition();
    switch (command) {
        case SB_LINEUP:
            ScrollTo(position - scrollLine);
            break;
        case SB_LINEDOWN:
            ScrollTo(position + scrollLine);
            break;
        case SB_PAGEUP:
            ScrollTo(position - model_.ClientHeight());
            break;
        case SB_PAGEDOWN:
            ScrollTo(position + model_.ClientHeight());
            break;
        case SB_THUMBTRACK: {
            // The message carries only 16 bits of the position.
            SCROLLINFO info{};
            info.cbSize = sizeof(info);
            info.fMask = SIF_TRACKPOS;
            if (GetScrollInfo(WindowHandle(), SB_VERT, &info)) ScrollTo(info.nTrackPos);
            break;
        }
        default:
            break;
    }
}

void ThumbnailControl::OnWheel(short delta) {
    if (!binding_.Host()) return;
    const int notches = wheel_.Turn(delta);
    if (notches == 0) return;
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const std::int64_t step =
        lines == WHEEL_PAGESCROLL ? model_.ClientHeight() : std::int64_t{scrollLine} * lines;
    ScrollTo(model_.ScrollPosition() - notches * step);
}

void ThumbnailControl::ScrollTo(std::int64_t position) {
    if (!model_.ScrollTo(position)) return;
    SyncScrollPosition();
    Invalidate();
}

void ThumbnailControl::UpdateScrollBar() {
    const HWND window = WindowHandle();
    if (!window) return;
    // Showing or hiding the bar changes the client width, which comes back through OnSized.
    SCROLLINFO info{};
    info.cbSize = sizeof(info);
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = model_.ContentHeight();
    info.nPage = static_cast<UINT>(model_.ClientHeight());
    SetScrollInfo(window, SB_VERT, &info, TRUE);
    SyncScrollPosition();
}

void ThumbnailControl::SyncScrollPosition() {
    const HWND window = WindowHandle();
    const int position = model_.ScrollPosition();
    if (window && GetScrollPos(window, SB_VERT) != position) SetScrollPos(window, SB_VERT, position, TRUE);
}

}  // namespace qz
