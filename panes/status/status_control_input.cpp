// The bar's window: drawing, keys, entries, buttons and the menu of units.
#include "host/attributes.h"
#include "host/host_calls.h"
#include "host/object_path.h"
#include "ui/popup_menu.h"
#include "panes/status/status_control.h"
#include "panes/status/status_entry.h"
#include "panes/status/status_painter.h"
#include "panes/status/status_reader.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/keys.h"
#include "ui/platform_geometry.h"

#include <windowsx.h>

namespace qz {

namespace {

/// Posted to the bar when the focus has left one of its fields: while it moves nothing else may move it.
constexpr UINT entryLeftMessage = WM_APP + 0x111;
/// The name is younger than the platform headers that this is built with.
constexpr UINT dpiChangedMessage = 0x02E3;

constexpr UINT firstUnitCommand = 1;  // the unit codes, from 1 on
constexpr unsigned unitTexts[] = {QZ_TEXT_TWIPS, QZ_TEXT_MILLIMETRES, QZ_TEXT_INCHES};
constexpr UINT lastUnitCommand = firstUnitCommand + std::size(unitTexts) - 1;

/// Keys with which an entry field is edited, and which are commands of many containers.
bool EditsText(WPARAM key) noexcept {
    switch (key) {
        case VK_RETURN:
        case VK_ESCAPE:
        case VK_LEFT:
        case VK_RIGHT:
        case VK_HOME:
        case VK_END:
        case VK_BACK:
        case VK_DELETE:
        case VK_INSERT:
            return true;
        case 'C':
        case 'V':
        case 'X':
        case 'Z':
            return KeyIsDown(VK_CONTROL);
        default:
            return false;
    }
}

std::optional<PageStep> StepOf(StatusField button) noexcept {
    switch (button) {
        case StatusField::FirstPage:
            return PageStep::First;
        case StatusField::PreviousPage:
            return PageStep::Previous;
        case StatusField::NextPage:
            return PageStep::Next;
        case StatusField::LastPage:
            return PageStep::Last;
        default:
            return std::nullopt;
    }
}

}  // namespace

// The window
// ---------------------------------------------------------------------------------------------------

std::wstring StatusControl::Title() const { return LoadText(TextLanguage(), QZ_TEXT_STATUS_BAR); }

void StatusControl::OnWindowCreated() { view_.Create(WindowHandle()); }

void StatusControl::OnSized(SIZE) { ShowFields(); }

/// The child windows are left out by the window's own clipping.
void StatusControl::OnDraw(HDC dc, const RECT& bounds) {
    view_.Show(Content(), ClientSize());  // without a window nobody tells of a new size
    const COLORREF background = BackColorRef();
    FillSolid(dc, bounds, background);
    view_.Draw(dc, TextColourOn(BackColorOle(), background));
}

std::optional<LRESULT> StatusControl::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_DESTROY:
            view_.Destroy();
            return std::nullopt;
        case dpiChangedMessage:
            ShowFields();
            return std::nullopt;
        case WM_SYSCOLORCHANGE:
            view_.Invalidate();
            return std::nullopt;
        case WM_CTLCOLORSTATIC:
            return ColourText(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
        case WM_DRAWITEM:
            view_.DrawButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
            return TRUE;
        case WM_COMMAND:
            if (const auto field = view_.FieldOf(reinterpret_cast<HWND>(lParam))) {
                OnCommand(*field, HIWORD(wParam));
            }
            return 0;
        case entryKeyMessage:
            OnEntryKey(static_cast<StatusField>(lParam), wParam);
            return 0;
        case childFocusMessage:
            if (!wParam) PostMessageW(WindowHandle(), entryLeftMessage, 0, 0);
            return std::nullopt;
        case entryLeftMessage:
            FinishEntries();
            return 0;
        case WM_LBUTTONDOWN:
            return OnButtonDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}) ? std::optional<LRESULT>(0)
                                                                              : std::nullopt;
        case WM_CONTEXTMENU:
            return OnContextMenu(wParam, lParam);
        default:
            return std::nullopt;
    }
}

/// The texts stand on the bar's own colour; a disabled entry field asks too, and has its own.
std::optional<LRESULT> StatusControl::ColourText(HDC dc, HWND child) const {
    const auto field = view_.FieldOf(child);
    if (!field || IsEntry(*field)) return std::nullopt;
    const COLORREF background = BackColorRef();
    SetTextColor(dc, TextColourOn(BackColorOle(), background));
    SetBkColor(dc, background);
    SetDCBrushColor(dc, background);
    return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

bool StatusControl::IsInputKey(const MSG& message) const {
    const auto field = view_.FieldOf(message.hwnd);
    if (!field) return false;
    return IsEntry(*field) ? EditsText(message.wParam) : message.wParam == VK_SPACE;
}

bool StatusControl::HasFocus() const noexcept {
    const HWND focus = GetFocus();
    return focus && WindowHandle() && (focus == WindowHandle() || IsChild(WindowHandle(), focus));
}

/// A click would undo the selection at once: then it is made after the click.
void StatusControl::SelectEntry(StatusField entry) const {
    if (KeyIsDown(VK_LBUTTON)) {
        PostMessageW(view_.WindowOf(entry), EM_SETSEL, 0, -1);
    } else {
        view_.SelectAll(entry);
    }
}

void StatusControl::OnCommand(StatusField field, UINT notification) {
    if (IsEntry(field) && notification == EN_SETFOCUS) {
        SelectEntry(field);
        return;
    }
    const std::optional<PageStep> step = StepOf(field);
    // The second of two quick clicks is one more step.
    if (step && (notification == BN_CLICKED || notification == BN_DBLCLK)) Step(*step);
}

// Entries
// ------------------------------------------------------------------------------------------------------

void StatusControl::OnEntryKey(StatusField entry, WPARAM key) {
    if (key == VK_ESCAPE) {
        view_.Restore(entry);
    } else {
        Apply(entry);
    }
    GiveFocusBack();
}

/// What was typed into a field takes effect when the field is left. The document gets the focus back once the
/// user has left the bar altogether.
void StatusControl::FinishEntries() {
    const HWND focus = GetFocus();
    for (const StatusField field : statusFields) {
        if (view_.FieldOf(focus) != field && Apply(field)) focusOwed_ = true;
    }
    if (focusOwed_ && !HasFocus()) GiveFocusBack();
}

/// Whether there was something to apply. What the host does not take, and what is no number, changes nothing.
bool StatusControl::Apply(StatusField entry) {
    const std::optional<std::wstring> text = view_.Edit(entry);
    if (!text) return false;
    // Before the host is called, which may have the field left a second time.
    view_.Restore(entry);
    const HRESULT result = Run([&] { ApplyText(entry, *text); });
    if (FAILED(result)) ShowErrorInDebugger();
    return true;
}

void StatusControl::ApplyText(StatusField entry, const std::wstring& text) {
    const ShownDocument shown = Shown();
    if (!shown.Host()) return;
    {
        const OwnHostCalls ours(*this);
        if (entry == StatusField::Zoom) {
            const std::optional<std::int32_t> zoom = ParseZoom(text);
            if (zoom) ThrowIfFailed(shown.Host()->SetZoom(*zoom), L"The host does not take the zoom");
        } else {
            const std::optional<std::int32_t> page =
                ParsePage(text, static_cast<std::int32_t>(PageCountOf(shown.Host().Get())));
            if (page) GoToPage(shown, *page);
        }
    }
    ReadHost();
}

/// A host that was let go while it was asked for its pages stays where it is.
void StatusControl::GoToPage(const ShownDocument& shown, std::int32_t page) const {
    if (!shown.HostLeft()) MakePageCurrent(shown.Host().Get(), page);
}

void StatusControl::Step(PageStep step) {
    const ShownDocument shown = Shown();
    if (!shown.Host()) return;
    {
        const OwnHostCalls ours(*this);
        const PagePosition position = ReadPagePosition(shown.Host().Get());
        const std::optional<std::int32_t> target = StepTarget(step, position.page, position.count);
        if (target) GoToPage(shown, *target);
    }
    ReadHost();
}

/// The host's view takes the keyboard focus.
void StatusControl::GiveFocusBack() {
    focusOwed_ = false;
    const ComPtr<IVandraX> host = Host();
    if (!host) return;
    const OwnHostCalls ours(*this);
    WriteAttribute(host.Get(), documentPath, L"SetFocus_M", _variant_t(1L));
}

// Units
// --------------------------------------------------------------------------------------------------------

/// A click on a length lets the user choose its unit.
bool StatusControl::OnButtonDown(POINT point) {
    const auto field = view_.FieldAt(point);
    if (field != StatusField::PageSize && field != StatusField::ObjectCoords) return false;
    const Rect& place = view_.PlaceOf(*field);
    POINT screen{place.left, place.bottom};
    ClientToScreen(WindowHandle(), &screen);
    ChooseUnit(screen);
    return true;
}

POINT StatusControl::KeyboardMenuPoint() {
    POINT screen{0, ClientSize().cy};
    ClientToScreen(WindowHandle(), &screen);
    return screen;
}

void StatusControl::ChooseUnit(POINT screen) {
    const ShownDocument shown = Shown();
    if (!shown.Host()) return;
    PopupMenu menu;
    UINT command = firstUnitCommand;
    for (const unsigned text : unitTexts) menu.Append(command++, LoadText(TextLanguage(), text));
    menu.CheckOne(firstUnitCommand, lastUnitCommand, firstUnitCommand + static_cast<UINT>(unit_));
    const UINT chosen = menu.Track(WindowHandle(), screen);
    if (!chosen || shown.HostLeft()) return;
    ThrowIfFailed(put_UnitOfMeasure(static_cast<StatusCtrlUnitsOfMeasure>(chosen - firstUnitCommand)));
    GiveFocusBack();
}

}  // namespace qz
