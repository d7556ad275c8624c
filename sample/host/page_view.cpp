#include "sample/host/page_view.h"

#include "ui/gdi.h"

namespace qz::sample {

namespace {

constexpr COLORREF deskColour = RGB(122, 128, 140);
constexpr COLORREF shadowColour = RGB(92, 97, 107);
constexpr COLORREF selectionColour = RGB(0, 90, 220);
constexpr int lineStep = 40;
constexpr long zoomSteps[] = {10, 25, 33, 50, 67, 75, 100, 125, 150, 200, 300, 400, 600, 1000};

void Frame(HDC dc, const RECT& area, COLORREF colour, int width) {
    const Pen pen = MakePen(width, colour);
    const SelectScope withPen(dc, pen.Get());
    const SelectScope hollow(dc, GetStockObject(NULL_BRUSH));
    Rectangle(dc, area.left, area.top, area.right, area.bottom);
}

long NextZoom(long zoom, int direction) {
    long next = zoom;
    for (const long step : zoomSteps) {
        if (direction > 0 && step > zoom) return step;
        if (direction < 0 && step < zoom) next = step;
    }
    return next;
}

}  // namespace

void PageView::ShowIn(HWND parent) {
    WindowOptions options;
    options.parent = parent;
    options.style |= WS_TABSTOP | WS_HSCROLL | WS_VSCROLL;
    GetClientRect(parent, &options.bounds);
    Create(options);
    Follow();
}

std::optional<LRESULT> PageView::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    switch (message) {
        case WM_PAINT:
            Paint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_SIZE:
            UpdateBars();
            InvalidateRect(Handle(), nullptr, FALSE);  // the page stands in the middle, which has moved
            return 0;
        case WM_HSCROLL:
            Scroll(SB_HORZ, LOWORD(wParam));
            return 0;
        case WM_VSCROLL:
            Scroll(SB_VERT, LOWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            Wheel(wParam);
            return 0;
        case WM_KEYDOWN:
            Key(wParam);
            return 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS;
        case WM_LBUTTONDOWN:
            SetFocus(Handle());
            return 0;
        default:
            return std::nullopt;
    }
}

void PageView::Move(int left, int top, int width, int height) {
    if (Handle()) MoveWindow(Handle(), left, top, width, height, TRUE);
}

void PageView::Follow() {
    if (shownPage_ != State().currentPage) left_ = top_ = 0;
    shownPage_ = State().currentPage;
    UpdateBars();
    if (Handle()) InvalidateRect(Handle(), nullptr, FALSE);
}

void PageView::DrawNow() {
    Follow();
    if (Handle()) UpdateWindow(Handle());
}

ViewAxis PageView::Axis(int bar) const {
    RECT client{};
    GetClientRect(Handle(), &client);
    const Document& document = session_.model.Doc();
    const bool there = document.pages.Holds(State().currentPage);
    const SIZE page = there ? PixelsOfPage(session_.model.CurrentPage(), State().zoom) : SIZE{};
    return bar == SB_HORZ ? ViewAxis{client.right, page.cx} : ViewAxis{client.bottom, page.cy};
}

void PageView::SetBar(int bar, const ViewAxis& axis, int position) {
    const SCROLLINFO info{sizeof(SCROLLINFO),
                          SIF_RANGE | SIF_PAGE | SIF_POS,
                          0,
                          axis.Content() - 1,
                          static_cast<UINT>(axis.client),
                          position,
                          0};
    SetScrollInfo(Handle(), bar, &info, TRUE);
}

void PageView::UpdateBars() {
    if (!Handle()) return;
    // Each bar takes room from the other direction, so the second may change what the first had to show.
    for (const int bar : {SB_HORZ, SB_VERT, SB_HORZ}) {
        const ViewAxis axis = Axis(bar);
        Position(bar) = axis.Clamp(Position(bar));
        SetBar(bar, axis, Position(bar));
    }
}

void PageView::Paint() {
    const PaintScope paint(Handle());
    RECT client{};
    GetClientRect(Handle(), &client);
    if (IsRectEmpty(&client)) return;
    const PaintBuffer buffer(paint.Get(), client);
    PaintInto(buffer.Dc(), client);
    buffer.Show();
}

void PageView::PaintInto(HDC dc, const RECT& client) {
    FillSolid(dc, client, deskColour);
    const ViewState state = State();
    if (!session_.model.Doc().pages.Holds(state.currentPage)) return;
    const int left = Axis(SB_HORZ).PageStart(left_);
    const int top = Axis(SB_VERT).PageStart(top_);
    const SIZE size = PixelsOfPage(session_.model.CurrentPage(), state.zoom);
    FillSolid(dc, {left + 4, top + 4, left + size.cx + 4, top + size.cy + 4}, shadowColour);
    Frame(dc, {left - 1, top - 1, left + size.cx + 1, top + size.cy + 1}, shadowColour, 1);
    const SavedDc saved(dc);
    OffsetViewportOrgEx(dc, left, top, nullptr);
    painter_.Draw(dc, session_.model.CurrentPage(), state.currentPage, state.zoom, false);
    PaintSelection(dc, state.zoom);
}

void PageView::PaintSelection(HDC dc, long zoom) {
    const Document& document = session_.model.Doc();
    const PageId page = session_.model.CurrentPage().id;
    const auto pixels = [zoom](const Attribute* length) {
        return length ? MulDiv(ToInteger(length->value), zoom, 2000) : 0;
    };
    for (const ObjectKey key : session_.model.Selection()) {
        const DocumentObject* object =
            key.kind == ObjectKey::Kind::Object ? document.objects.Find(key.id) : nullptr;
        if (!object || object->page != page) continue;
        const RECT area{pixels(object->Find(L"Left")) - 2, pixels(object->Find(L"Top")) - 2,
                        pixels(object->Find(L"Right")) + 3, pixels(object->Find(L"Bottom")) + 3};
        Frame(dc, area, selectionColour, 2);
    }
}

void PageView::ScrollTo(int bar, int position) {
    Position(bar) = Axis(bar).Clamp(position);
    UpdateBars();
    InvalidateRect(Handle(), nullptr, FALSE);
}

void PageView::Scroll(int bar, WORD command) {
    const ViewAxis axis = Axis(bar);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(Handle(), bar, &info);
    int position = Position(bar);
    switch (command) {
        case SB_LINEUP:
            position -= lineStep;
            break;
        case SB_LINEDOWN:
            position += lineStep;
            break;
        case SB_PAGEUP:
            position -= axis.client;
            break;
        case SB_PAGEDOWN:
            position += axis.client;
            break;
        case SB_THUMBTRACK:
            position = info.nTrackPos;
            break;
        case SB_TOP:
            position = 0;
            break;
        case SB_BOTTOM:
            position = axis.MostScroll();
            break;
        default:
            return;
    }
    ScrollTo(bar, position);
}

void PageView::Wheel(WPARAM wParam) {
    wheelRest_ += GET_WHEEL_DELTA_WPARAM(wParam);
    const int notches = wheelRest_ / WHEEL_DELTA;
    wheelRest_ %= WHEEL_DELTA;
    if (notches == 0) return;
    if (GET_KEYSTATE_WPARAM(wParam) & MK_CONTROL) return Zoom(NextZoom(State().zoom, notches));
    const int wanted = top_ - notches * 3 * lineStep;
    const int most = Axis(SB_VERT).MostScroll();
    if (notches < 0 && top_ >= most) return TurnPage(1, false);
    if (notches > 0 && top_ <= 0) return TurnPage(-1, true);
    ScrollTo(SB_VERT, wanted);
}

void PageView::Key(WPARAM key) {
    const ViewAxis vertical = Axis(SB_VERT);
    switch (key) {
        case VK_LEFT:
            return ScrollTo(SB_HORZ, left_ - lineStep);
        case VK_RIGHT:
            return ScrollTo(SB_HORZ, left_ + lineStep);
        case VK_UP:
            return top_ > 0 ? ScrollTo(SB_VERT, top_ - lineStep) : TurnPage(-1, true);
        case VK_DOWN:
            return top_ < vertical.MostScroll() ? ScrollTo(SB_VERT, top_ + lineStep) : TurnPage(1, false);
        case VK_PRIOR:
            return TurnPage(-1, false);
        case VK_NEXT:
            return TurnPage(1, false);
        case VK_HOME:
            return TurnPage(1 - State().currentPage, false);
        case VK_END:
            return TurnPage(session_.model.Doc().pages.Count() - State().currentPage, false);
        case VK_ADD:
        case VK_OEM_PLUS:
            return Zoom(NextZoom(State().zoom, 1));
        case VK_SUBTRACT:
        case VK_OEM_MINUS:
            return Zoom(NextZoom(State().zoom, -1));
        default:
            return;
    }
}

void PageView::TurnPage(int step, bool toBottom) {
    const int page = State().currentPage + step;
    if (step == 0 || !session_.model.Doc().pages.Holds(page)) return;
    session_.model.SetCurrentPage(page);
    Follow();
    if (toBottom) ScrollTo(SB_VERT, Axis(SB_VERT).MostScroll());
    session_.Settle();  // last: whoever is told may remove the view
}

void PageView::Zoom(long percent) {
    session_.model.SetZoom(percent);
    Follow();
    session_.Settle();
}

}  // namespace qz::sample
