#include "properties/editors/colour_palette.h"

#include "com/module.h"
#include "properties/model/colour_text.h"
#include "ui/gdi.h"
#include "ui/platform_geometry.h"
#include "ui/window.h"
#include "ui/window_class.h"

#include <algorithm>
#include <mutex>

namespace qz {

namespace {

std::mutex classMutex;
unsigned classUsers = 0;
std::optional<WindowClass> boxClass;

constexpr int paletteSlot = 0;  // of a box's extra bytes

COLORREF ColourOfBox(HWND box) noexcept {
    return static_cast<COLORREF>(GetWindowLongPtrW(box, GWLP_USERDATA)) & 0xFFFFFF;
}

/// The focus comes first, as it may end the box.
void Choose(HWND box) noexcept {
    const HWND parent = GetParent(box);
    const LONG_PTR colour = GetWindowLongPtrW(box, GWLP_USERDATA);
    SetFocus(box);
    if (IsWindow(box)) SendMessageW(parent, colourChosenMessage, 0, colour);
}

LRESULT DialogCodeOf(LPARAM asked) noexcept {
    const auto* const message = reinterpret_cast<const MSG*>(asked);
    const bool isReturn = message && message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    return DLGC_WANTARROWS | (isReturn ? DLGC_WANTMESSAGE : 0);
}

/// Where a key leads from a box of the palette; nothing for other keys.
std::optional<std::size_t> Target(std::size_t from, WPARAM key, std::size_t columns) noexcept {
    const std::size_t last = palette.size() - 1;
    switch (key) {
        case VK_LEFT:
            return from > 0 ? from - 1 : 0;
        case VK_RIGHT:
            return std::min(from + 1, last);
        case VK_UP:
            return from >= columns ? from - columns : from;
        case VK_DOWN:
            return from + columns <= last ? from + columns : from;
        case VK_HOME:
            return 0;
        case VK_END:
            return last;
        default:
            return std::nullopt;
    }
}

}  // namespace

// The window class
// ------------------------------------------------------------------------------------------------------

ColourBoxClass::ColourBoxClass() {
    const std::lock_guard lock(classMutex);
    if (classUsers == 0) {
        WNDCLASSEXW description{};
        description.style = CS_HREDRAW | CS_VREDRAW;
        description.lpfnWndProc = &ColourPalette::Procedure;
        description.cbWndExtra = sizeof(LONG_PTR);
        description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
        description.lpszClassName = name;
        boxClass.emplace(description);
    }
    ++classUsers;
}

ColourBoxClass::~ColourBoxClass() {
    const std::lock_guard lock(classMutex);
    if (--classUsers == 0) boxClass.reset();
}

// The palette
// ------------------------------------------------------------------------------------------------------

void ColourPalette::Create(HWND parent, int firstId) {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const auto id = static_cast<INT_PTR>(firstId) + static_cast<INT_PTR>(i);
        boxes_[i] = CreateWindowExW(0, ColourBoxClass::name, ColourText(palette[i]).c_str(),
                                    WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, parent,
                                    reinterpret_cast<HMENU>(id), ThisModule(), this);
        ThrowLastErrorIf(!boxes_[i], L"A color box cannot be made");
        SetWindowLongPtrW(boxes_[i], GWLP_USERDATA, static_cast<LONG_PTR>(palette[i]));
    }
    SetCurrent(0, false);
}

void ColourPalette::Arrange(const ColourPlaces& places) {
    columns_ = static_cast<std::size_t>(places.columns);
    const UINT shown = places.palette.Empty() ? SWP_HIDEWINDOW : SWP_SHOWWINDOW;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const Rect place = BoxPlace(places, static_cast<int>(i));
        SetWindowPos(boxes_[i], nullptr, place.left, place.top, place.Width(), place.Height(),
                     shown | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void ColourPalette::ShowColour(std::optional<std::uint32_t> colour) {
    const std::optional<std::size_t> index = colour ? PaletteIndexOf(*colour) : std::nullopt;
    if (index && *index != current_ && GetFocus() != Current()) SetCurrent(*index, false);
}

std::size_t ColourPalette::IndexOf(HWND box) const noexcept {
    return static_cast<std::size_t>(std::ranges::find(boxes_, box) - boxes_.begin());
}

void ColourPalette::SetCurrent(std::size_t index, bool marked) {
    const auto setTabStop = [this](LONG_PTR bit) {
        const LONG_PTR style = GetWindowLongPtrW(Current(), GWL_STYLE);
        SetWindowLongPtrW(Current(), GWL_STYLE, (style & ~static_cast<LONG_PTR>(WS_TABSTOP)) | bit);
        InvalidateRect(Current(), nullptr, FALSE);
    };
    setTabStop(0);
    current_ = index;
    marked_ = marked;
    setTabStop(WS_TABSTOP);
}

void ColourPalette::Draw(HWND box, HDC dc) const {
    RECT bounds{};
    GetClientRect(box, &bounds);
    FillSolid(dc, bounds, GetSysColor(COLOR_BTNFACE));
    InflateRect(&bounds, -1, -1);
    FillSolid(dc, bounds, GetSysColor(COLOR_BTNSHADOW));
    InflateRect(&bounds, -1, -1);
    FillSolid(dc, bounds, ColourOfBox(box));
    if (!marked_ || box != Current()) return;
    SetBkColor(dc, RGB(255, 255, 255));
    SetTextColor(dc, RGB(0, 0, 0));
    DrawFocusRect(dc, &bounds);
}

bool ColourPalette::OnKey(HWND box, WPARAM key) {
    if (key == VK_SPACE || key == VK_RETURN) {
        Choose(box);
        return true;
    }
    const std::optional<std::size_t> target = Target(IndexOf(box), key, columns_);
    if (target) SetFocus(boxes_[*target]);
    return target.has_value();
}

LRESULT CALLBACK ColourPalette::Procedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
    if (message == WM_NCCREATE) {
        const auto* const description = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(box, paletteSlot, reinterpret_cast<LONG_PTR>(description->lpCreateParams));
    }
    auto* const self = reinterpret_cast<ColourPalette*>(GetWindowLongPtrW(box, paletteSlot));
    if (!self) return DefWindowProcW(box, message, wParam, lParam);
    LRESULT result = 0;
    const HRESULT outcome = Guard(IID_NULL, [&] { result = self->Dispatch(box, message, wParam, lParam); });
    if (FAILED(outcome)) ShowErrorInDebugger();
    return result;
}

LRESULT ColourPalette::Dispatch(HWND box, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_PAINT:
            Draw(box, PaintScope(box).Get());
            return 0;
        case WM_PRINTCLIENT:
            Draw(box, reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_GETDLGCODE:
            return DialogCodeOf(lParam);
        case WM_SETFOCUS:
            SetCurrent(IndexOf(box), true);
            return 0;
        case WM_LBUTTONDOWN:
            SetCurrent(IndexOf(box), true);
            Choose(box);
            return 0;
        case WM_KEYDOWN:
            if (OnKey(box, wParam)) return 0;
            break;
        default:
            break;
    }
    return DefWindowProcW(box, message, wParam, lParam);
}

}  // namespace qz
