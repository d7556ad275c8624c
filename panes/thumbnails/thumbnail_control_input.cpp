// What the user does with mouse and keyboard, turned into changes of the selection and into commands.
#include "host/host_calls.h"
#include "panes/thumbnails/drag_rules.h"
#include "panes/thumbnails/thumbnail_control.h"
#include "panes/thumbnails/thumbnail_menu.h"
#include "ui/keys.h"
#include "ui/platform_geometry.h"

#include <windowsx.h>

namespace qz {

namespace {

POINT PointIn(LPARAM lParam) noexcept { return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}; }

ClickModifiers ModifiersOf(WPARAM keys) noexcept {
    return {.shift = (keys & MK_SHIFT) || KeyIsDown(VK_SHIFT),
            .control = (keys & MK_CONTROL) || KeyIsDown(VK_CONTROL)};
}

/// Where a menu opens that was asked for by key: in the middle of the visible part of a thumbnail.
POINT MiddleOfVisible(const Rect& area, SIZE client) noexcept {
    const Rect visible = area.Intersected({0, 0, client.cx, client.cy});
    return {visible.left + visible.Width() / 2, visible.top + visible.Height() / 2};
}

}  // namespace

void ThumbnailControl::OnWindowCreated() {
    // A thread without OLE, or a container that has made the window its own drop target: no drops here.
    Run([this] { dropTarget_ = PageDropRegistration(WindowHandle(), *this); });
}

std::optional<LRESULT> ThumbnailControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY:
            dropTarget_ = {};
            return std::nullopt;
        case WM_SETFOCUS:
            ReadHeldKeys();
            return std::nullopt;
        case WM_KILLFOCUS:
            held_ = {};
            return std::nullopt;
        case WM_CAPTURECHANGED:
            press_.reset();
            return 0;
        case WM_CONTEXTMENU:
            return OnContextMenu(wParam, lParam);
        case WM_KEYUP:
            OnKeyUp(wParam);
            return std::nullopt;
        default:
            break;
    }
    if (!Host()) return std::nullopt;
    switch (message) {
        case WM_VSCROLL:
            if (scrollBar_.OnCommand(WindowHandle(), LOWORD(wParam))) Invalidate();
            return 0;
        case WM_MOUSEWHEEL:
            if (scrollBar_.OnWheel(WindowHandle(), GET_WHEEL_DELTA_WPARAM(wParam))) Invalidate();
            return 0;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            OnButtonDown(PointIn(lParam));
            return 0;
        case WM_LBUTTONUP:
            OnButtonUp(wParam);
            return 0;
        case WM_MOUSEMOVE:
            OnMouseMove(wParam, PointIn(lParam));
            return 0;
        case WM_KEYDOWN:
            if (OnKeyDown(wParam)) return 0;
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

// Mouse
// --------------------------------------------------------------------------------------------------------

void ThumbnailControl::OnButtonDown(POINT point) {
    SetCapture(WindowHandle());  // so that the release comes here wherever it happens
    press_ = Press{point, model_.HitTest(point.x, point.y)};
}

void ThumbnailControl::OnButtonUp(WPARAM keys) {
    const std::optional<Press> press = std::exchange(press_, std::nullopt);
    if (GetCapture() == WindowHandle()) ReleaseCapture();
    if (!press) return;
    const ClickModifiers modifiers = ModifiersOf(keys);
    if (press->record) {
        Click(*press->record, modifiers);
    } else {
        Show(model_.Selection().ClickBeside(modifiers));
    }
}

void ThumbnailControl::Click(std::size_t index, ClickModifiers modifiers) {
    const ShownDocument shown = Shown();
    const bool plain = !modifiers.shift && !modifiers.control;
    if (plain && !events_.ThumbActivated(static_cast<long>(index) + 1)) return;
    if (shown.Stale()) return;
    Show(model_.Selection().Click(index, modifiers));
    if (plain && !shown.Stale()) GoToPage(index);
}

void ThumbnailControl::OnMouseMove(WPARAM keys, POINT point) {
    if (!press_ || !press_->record || !(keys & MK_LBUTTON)) return;
    if (!(settings_ & qzThumbnailCtrlSettings_PageMoveOrDragAndDrop)) return;
    if (!DragStarts(FromPlatform(press_->point), FromPlatform(point))) return;
    if (SystemSeesDrag(keys)) StartDrag(ModifiersOf(keys).control);
}

/// The system's own drag detection. It takes the mouse's messages from the queue: a button released meanwhile
/// is a click here.
bool ThumbnailControl::SystemSeesDrag(WPARAM keys) {
    if (!KeyIsDown(VK_LBUTTON)) return false;
    const std::optional<Press> press = press_;
    const ShownDocument shown = Shown();
    POINT screen = press->point;
    ClientToScreen(WindowHandle(), &screen);
    const bool drags = DragDetect(WindowHandle(), screen) != FALSE;
    if (shown.Stale() || !WindowHandle()) return false;
    press_ = press;  // the detection took the capture, and the press went with it
    if (!drags && KeyIsDown(VK_LBUTTON)) press_.reset();  // cancelled by key
    if (!drags) OnButtonUp(keys);
    return drags;
}

// Keyboard
// -----------------------------------------------------------------------------------------------------

bool ThumbnailControl::IsInputKey(const MSG& message) const {
    if (!Host() || model_.Records().empty()) return false;
    if (IsNavigationKey(message.wParam)) return true;
    const auto& bounds = model_.Selection().GetBounds();
    switch (message.wParam) {
        // With nothing to do here these are the container's.
        case VK_DELETE:
        case VK_ESCAPE:
            return bounds.has_value();
        case VK_RETURN:
            return bounds && bounds->first == bounds->last;
        case 'A':
        case 'C':
        case 'V':
        case 'X':
            return (held_.control || KeyIsDown(VK_CONTROL)) && !KeyIsDown(VK_MENU);
        default:
            return false;
    }
}

bool ThumbnailControl::OnKeyDown(WPARAM key) {
    if (model_.Records().empty()) return false;
    PageSelection& selection = model_.Selection();
    const bool shift = held_.shift || KeyIsDown(VK_SHIFT);
    switch (key) {
        case VK_SHIFT:
            held_.shift = true;
            return true;
        case VK_CONTROL:
            held_.control = true;
            return true;
        case VK_HOME:
            Show(selection.SelectFirst());
            return true;
        case VK_END:
            Show(selection.SelectLast());
            return true;
        case VK_LEFT:
        case VK_UP:
            Show(selection.StepBack(shift));
            return true;
        case VK_RIGHT:
        case VK_DOWN:
            Show(selection.StepForward(shift));
            return true;
        case VK_PRIOR:
            ScrollTo(std::int64_t{model_.ScrollPosition()} - model_.ClientHeight());
            return true;
        case VK_NEXT:
            ScrollTo(std::int64_t{model_.ScrollPosition()} + model_.ClientHeight());
            return true;
        case VK_ESCAPE:
            Show(selection.Clear());
            return true;
        case VK_RETURN:
            OnReturn();
            return true;
        case VK_DELETE:
            RunCommand(PageCommand::Delete);
            return true;
        default:
            return OnControlKey(key);
    }
}

bool ThumbnailControl::OnControlKey(WPARAM key) {
    if (!held_.control && !KeyIsDown(VK_CONTROL)) return false;
    switch (key) {
        case 'A':
            held_.control = false;
            Show(model_.Selection().SelectAll());
            return true;
        case 'C':
            RunCommand(PageCommand::Copy);
            return true;
        case 'X':
            RunCommand(PageCommand::Cut);
            return true;
        case 'V':
            RunCommand(PageCommand::Paste);
            return true;
        default:
            return false;
    }
}

void ThumbnailControl::OnKeyUp(WPARAM key) noexcept {
    if (key == VK_SHIFT) held_.shift = false;
    if (key == VK_CONTROL) held_.control = false;
}

/// Keys that were pressed or released elsewhere.
void ThumbnailControl::ReadHeldKeys() noexcept { held_ = {KeyIsDown(VK_SHIFT), KeyIsDown(VK_CONTROL)}; }

void ThumbnailControl::OnReturn() {
    const auto bounds = model_.Selection().GetBounds();
    if (!bounds || bounds->first != bounds->last) return;
    const ShownDocument shown = Shown();
    if (!events_.ThumbActivated(static_cast<long>(bounds->first) + 1)) return;
    if (shown.Stale()) return;
    if (scrollBar_.ScrollIntoView(WindowHandle(), bounds->first)) Invalidate();
    GoToPage(bounds->first);
}

// Effects
// ------------------------------------------------------------------------------------------------------

void ThumbnailControl::Show(const SelectionChange& change) {
    if (change.reveal) scrollBar_.ScrollIntoView(WindowHandle(), *change.reveal);
    if (change.repaint == SelectionChange::Repaint::Everything) UpdateNow();
    if (change.repaint == SelectionChange::Repaint::Record) InvalidateRecord(change.record);
    if (change.announced) events_.ThumbSelected(*change.announced);
}

/// Marks the record as the current page and takes the host there.
void ThumbnailControl::GoToPage(std::size_t index) {
    const ShownDocument shown = Shown();
    const std::optional<std::size_t> before = model_.Current();
    model_.MakeCurrent(index);
    if (before && *before < model_.Records().size()) InvalidateRecord(*before);
    InvalidateRecord(index);
    const long page = static_cast<long>(index) + 1;
    const long current = CurrentPageOf(shown.Host().Get());
    if (current == page || shown.HostLeft()) return;
    MakePageCurrent(shown.Host().Get(), page);
}

// Context menu
// -------------------------------------------------------------------------------------------------

/// With our menu off the request goes on to the container.
bool ThumbnailControl::WantsMenu(const MenuRequest& request) const {
    return (settings_ & qzThumbnailCtrlSettings_ContextMenu) && !request.OnScrollBarOf(WindowHandle());
}

void ThumbnailControl::OpenMenu(const MenuRequest&, POINT screen) {
    if (!events_.ContextSensitiveMenu(screen.x, screen.y)) return;
    const ShownDocument shown = Shown();
    if (shown.Stale() || !WindowHandle()) return;
    const auto command = ShowPageMenu(WindowHandle(), screen, TextLanguage(), CommandState());
    if (command && !shown.Stale()) RunCommand(*command);
}

/// On the first selected thumbnail, which is scrolled into view, or at the pane's corner.
POINT ThumbnailControl::KeyboardMenuPoint() {
    POINT point{ThumbnailModel::drawMargin, ThumbnailModel::drawMargin};
    if (const auto& bounds = model_.Selection().GetBounds()) {
        if (scrollBar_.ScrollIntoView(WindowHandle(), bounds->first)) UpdateNow();
        // The painting may have changed the records.
        if (const auto& shown = model_.Selection().GetBounds()) {
            point = MiddleOfVisible(model_.DrawnArea(shown->first), ClientSize());
        }
    }
    ClientToScreen(WindowHandle(), &point);
    return point;
}

}  // namespace qz
