#include "sample/container/workspace.h"

#include "sample/container/automation.h"
#include "sample/container/dpi.h"

#include "generated/qzVandraExt.h"

#include <windowsx.h>

#include <algorithm>

namespace qz {

namespace {

// At 96 dots per inch.
constexpr int splitterWidth = 5;
constexpr int smallestPane = 110;
constexpr int smallestCentre = 160;

}  // namespace

Workspace::Workspace(HWND parent, std::span<const PaneRow> rows, const PaneEnvironment& environment,
                     HostView& host)
    : environment_(environment), host_(host) {
    AppWindowOptions options;
    options.parent = parent;
    options.extendedStyle = WS_EX_CONTROLPARENT;
    Create(options);
    for (const PaneRow& row : rows) {
        panes_.push_back(std::make_unique<Pane>(Handle(), row, environment));
        sides_.push_back(row.side);
        shares_.push_back(row.share);
        extents_[row.side] = std::max(extents_[row.side], row.extent);
        fixed_[row.side] = row.kind == PaneKind::Bar;
    }
    host_.ShowIn(Handle());
}

Workspace::~Workspace() {
    panes_.clear();
    host_.Hide();
    Destroy();
}

void Workspace::AttachPanes() {
    for (const auto& pane : panes_) pane->Attach(host_.Automation());
    Inspect(host_.SelectedOrDocument());
}

void Workspace::Inspect(const ComPtr<IDispatch>& object) const {
    for (const Pane* const pane : PanesOf(CLSID_qzPropCtrl)) {
        PutProperty(pane->Control().Get(), L"Object", _variant_t(object.Get()));
    }
}

bool Workspace::MayClose() const {
    return std::ranges::none_of(PanesOf(CLSID_qzPropCtrl), [](const Pane* pane) {
        const _variant_t answer = CallMethod(pane->Control().Get(), L"Closing");
        return answer.vt == VT_I4 && answer.lVal == IDCANCEL;
    });
}

std::vector<Pane*> Workspace::PanesOf(REFCLSID classId) const {
    std::vector<Pane*> found;
    for (const auto& pane : panes_) {
        if (*pane->Row().classId == classId) found.push_back(pane.get());
    }
    return found;
}

void Workspace::EnvironmentChanged() {
    for (const auto& pane : panes_) pane->EnvironmentChanged();
    Arrange();
}

LRESULT Workspace::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_SIZE:
            Arrange();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            OnPaint();
            return 0;
        case WM_SETCURSOR:
            return ShowSplitterCursor() ? TRUE : Default(message, wParam, lParam);
        case WM_LBUTTONDOWN:
            BeginDrag(point);
            return 0;
        case WM_MOUSEMOVE:
            Drag(point);
            return 0;
        case WM_LBUTTONUP:
            ReleaseCapture();
            return 0;
        case WM_CAPTURECHANGED:
            dragged_.reset();
            return 0;
        case paneLostFocus:
            OnPaneLostFocus();
            return 0;
        default:
            return Default(message, wParam, lParam);
    }
}

void Workspace::OnError(const std::wstring& text) noexcept { environment_.log(text); }

DockRequest Workspace::Request() const {
    const RECT client = ClientRect();
    DockRequest request;
    request.width = client.right;
    request.height = client.bottom;
    request.panes = sides_;
    request.shares = shares_;
    for (const DockSide side : dockSides) request.extents[side] = Scaled(Handle(), extents_[side]);
    request.fixed = fixed_;
    request.splitter = Scaled(Handle(), splitterWidth);
    request.smallestCentre = Scaled(Handle(), smallestCentre);
    return request;
}

void Workspace::Arrange() {
    layout_ = qz::Arrange(Request());
    for (size_t i = 0; i < panes_.size(); ++i) {
        const Area& area = layout_.panes[i];
        SetWindowPos(panes_[i]->Handle(), nullptr, area.left, area.top, area.width, area.height,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    InvalidateRect(Handle(), nullptr, FALSE);
    host_.Place(layout_.centre);
}

/// The splitters, and the centre as long as the host shows no view.
void Workspace::OnPaint() noexcept {
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(Handle(), &paint);
    if (!dc) return;
    FillRect(dc, &paint.rcPaint, GetSysColorBrush(COLOR_BTNFACE));
    EndPaint(Handle(), &paint);
}

std::optional<DockSide> Workspace::SplitterAt(POINT point) const {
    for (const DockSide side : dockSides) {
        if (layout_.splitters[side].Contains(point.x, point.y)) return side;
    }
    return {};
}

bool Workspace::ShowSplitterCursor() const {
    POINT point{};
    if (!GetCursorPos(&point) || !ScreenToClient(Handle(), &point)) return false;
    const auto side = SplitterAt(point);
    if (!side) return false;
    SetCursor(LoadCursorW(nullptr, *side == DockSide::Bottom ? IDC_SIZENS : IDC_SIZEWE));
    return true;
}

void Workspace::BeginDrag(POINT point) {
    const auto side = SplitterAt(point);
    if (!side) return;
    SetCapture(Handle());
    dragged_ = side;
}

void Workspace::Drag(POINT point) {
    if (!dragged_) return;
    const int smallest = Scaled(Handle(), smallestPane);
    const int extent = ExtentAt(Request(), *dragged_, point.x, point.y, smallest);
    extents_[*dragged_] = MulDiv(extent, USER_DEFAULT_SCREEN_DPI, DpiOf(Handle()));
    Arrange();
    UpdateWindow(Handle());
}

// The focus
// ------------------------------------------------------------------------------------------------------

bool Workspace::HostHasFocus() const {
    const HWND focus = GetFocus();
    const HWND view = host_.Window();
    return focus && view && (focus == view || IsChild(view, focus));
}

/// The host's view comes after the panes. One past the end when the focus is with none of them.
size_t Workspace::FocusedPart() const {
    for (size_t i = 0; i < panes_.size(); ++i) {
        if (panes_[i]->HasFocus()) return i;
    }
    return panes_.size() + (HostHasFocus() ? 0 : 1);
}

void Workspace::FocusPart(size_t part) {
    if (part < panes_.size())
        panes_[part]->ActivateUI();
    else
        FocusHost();
}

void Workspace::MoveFocus(bool backwards) {
    const size_t parts = panes_.size() + 1;
    const size_t from = FocusedPart();
    if (from == parts) return FocusPart(backwards ? parts - 1 : 0);
    FocusPart((from + (backwards ? parts - 1 : 1)) % parts);
}

void Workspace::FocusHost() {
    if (const HWND view = host_.Window()) SetFocus(view);
}

/// A pane that lost the focus to the host's view is no longer the active one; if it lost it to another
/// program or a menu it stays so.
void Workspace::OnPaneLostFocus() {
    if (HostHasFocus()) environment_.frame->DeactivateUI();
}

}  // namespace qz
