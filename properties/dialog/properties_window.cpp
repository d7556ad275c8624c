#include "properties/dialog/properties_window.h"

#include "com/scope.h"
#include "com/text.h"
#include "host/host_calls.h"
#include "host/late_bound.h"
#include "properties/model/window_placement.h"
#include "res/dialog_ids.h"
#include "res/strings.h"
#include "res/text_ids.h"
#include "ui/button_picture.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"
#include "ui/text_edit.h"

namespace qz {

namespace {

constexpr wchar_t captionStart[] = L"Properties for: ";
constexpr std::size_t longestShownPath = 127;
constexpr int buttonGap = 4;  // pixels at 96 dpi

// Events of the inspector.
constexpr DISPID openingChildDialog = 1;
constexpr DISPID closingChildDialog = 2;
constexpr DISPID selectedObjectChanged = 3;

/// Of all monitors.
Rect Desktop() noexcept {
    return Rect::At({GetSystemMetrics(SM_XVIRTUALSCREEN), GetSystemMetrics(SM_YVIRTUALSCREEN)},
                    {GetSystemMetrics(SM_CXVIRTUALSCREEN), GetSystemMetrics(SM_CYVIRTUALSCREEN)});
}

Rect BoundsOf(HMONITOR monitor) noexcept {
    MONITORINFO info{};
    info.cbSize = sizeof info;
    return GetMonitorInfoW(monitor, &info) ? FromPlatform(info.rcMonitor) : Desktop();
}

/// The place, or one on the monitor next to it when no monitor shows it: the desktop may have had another
/// shape.
Rect Visible(const Rect& place, int dpi) noexcept {
    const RECT bounds = ToPlatform(place);
    if (MonitorFromRect(&bounds, MONITOR_DEFAULTTONULL)) return place;
    return Clamp(place, BoundsOf(MonitorFromRect(&bounds, MONITOR_DEFAULTTONEAREST)), dpi);
}

Rect PlaceOf(HWND window) noexcept {
    RECT place{};
    GetWindowRect(window, &place);
    return FromPlatform(place);
}

void MoveTo(HWND window, const Rect& place) noexcept {
    SetWindowPos(window, nullptr, place.left, place.top, place.Width(), place.Height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

PropertiesWindow::PropertiesWindow(PropertiesState& state, IUnknown* owner, Language language) noexcept
    : Dialog(QZ_DIALOG_PROPERTIES, language), state_(state), owner_(owner) {}

// Opening
// ------------------------------------------------------------------------------------------------------

void PropertiesWindow::ShowModal(HWND parent) {
    modal_ = true;
    parent_ = parent;
    RunModal(parent);
}

void PropertiesWindow::ShowModeless(HWND parent) {
    modal_ = false;
    parent_ = parent;
    Create(parent);
    keyboard_.emplace(Handle());
    Activate();
}

void PropertiesWindow::Activate() const noexcept {
    ShowWindow(Handle(), SW_SHOW);
    SetActiveWindow(Handle());
}

void PropertiesWindow::OnInit() {
    RegisterTextEdits();
    SetFrame();
    LoadPins();
    ShowPin();
    EnableItem(QZ_PROPERTIES_PIN, !modal_);
    EnableItem(QZ_PROPERTIES_OBJECTS, !Has(qzPropertiesDlgOptions_NoObjectsList));
    OpenInspector();
    TakeHost();
    PlaceWindow(parent_);
}

void PropertiesWindow::SetFrame() const noexcept {
    LONG_PTR style = GetWindowLongPtrW(Handle(), GWL_STYLE);
    if (Has(qzPropertiesDlgOptions_NoBorder))
        style &= ~static_cast<LONG_PTR>(WS_CAPTION | WS_THICKFRAME | WS_SYSMENU);
    else if (Has(qzPropertiesDlgOptions_ThinBorder))
        style = (style & ~static_cast<LONG_PTR>(WS_THICKFRAME)) | WS_BORDER;
    SetWindowLongPtrW(Handle(), GWL_STYLE, style);
    SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

void PropertiesWindow::LoadPins() {
    const int side = 16 * WindowDpi(Handle()) / 96;
    const auto load = modal_ ? LoadDisabledPicture : LoadButtonPicture;
    unpinned_ = load(QZ_BITMAP_UNPINNED, side);
    pinned_ = load(QZ_BITMAP_PINNED, side);
    NameControl(Item(QZ_PROPERTIES_PIN), LoadText(TextLanguage(), QZ_TEXT_KEEP_OPEN));
    NameControl(Item(QZ_PROPERTIES_OBJECTS), LoadText(TextLanguage(), QZ_TEXT_OBJECTS));
}

void PropertiesWindow::ShowPin() const noexcept {
    const bool pinned = state_.alwaysVisible != 0;
    SendItem(QZ_PROPERTIES_PIN, BM_SETCHECK, pinned ? BST_CHECKED : BST_UNCHECKED);
    SendItem(QZ_PROPERTIES_PIN, BM_SETIMAGE, IMAGE_BITMAP,
             reinterpret_cast<LPARAM>(pinned ? pinned_.Get() : unpinned_.Get()));
}

void PropertiesWindow::OpenInspector() {
    const ComPtr<PropControl> control = MakeObject<PropControl>();
    control->RecordIn(state_.changes);
    control->TellFollowed([this] { HearInspector(selectedObjectChanged); });
    inspector_ = control;
    site_.Open(static_cast<IqzPropCtrl*>(control.Get()), Handle(), ItemBounds(QZ_PROPERTIES_INSPECTOR));
    // In the order of the Tab key it stands where the template has its place.
    SetWindowPos(site_.Window(), Item(QZ_PROPERTIES_INSPECTOR), 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    events_.emplace(static_cast<IqzPropCtrl*>(inspector_.Get()), DIID__IqzPropCtrlEvents,
                    [this](DISPID event, DISPPARAMS&) { HearInspector(event); });
}

void PropertiesWindow::CloseInspector() noexcept {
    keyboard_.reset();
    const ComPtr<PropControl> inspector = std::move(inspector_);
    inspector_ = nullptr;
    if (!inspector) return;
    site_.Close();  // what waits in an editor is written, and may say so
    events_.reset();
    inspector->TellFollowed(nullptr);
    inspector->put_VandraX(nullptr);
}

void PropertiesWindow::HearInspector(DISPID event) {
    // No message of the window holds it here, and what follows asks the host.
    const ComPtr<IUnknown> owner = owner_;
    const std::shared_ptr<Dialog> self = weak_from_this().lock();
    if (event == openingChildDialog) ++childDialogs_;
    if (event == closingChildDialog && childDialogs_ > 0) --childDialogs_;
    if (event == selectedObjectChanged) ShowCaption();
}

void PropertiesWindow::ShowCaption() {
    _bstr_t name;
    if (inspector_ && SUCCEEDED(inspector_->get_SelectionName(name.GetAddress()))) {
        SetWindowTextW(Handle(), (captionStart + std::wstring(TextView(name.GetBSTR()))).c_str());
    }
}

void PropertiesWindow::TakeHost() {
    const ComPtr<PropControl> inspector = inspector_;
    if (!inspector) return;
    ThrowIfFailed(inspector->put_VandraX(state_.host.Get()), L"The inspector does not take the host");
    TakeObject();
}

void PropertiesWindow::TakeObject() {
    const ComPtr<PropControl> inspector = inspector_;
    if (!inspector) return;
    ThrowIfFailed(inspector->put_Object(state_.object.Get()), L"The inspector does not take the object");
    ShowCaption();
}

// Place and layout
// ------------------------------------------------------------------------------------------------------

void PropertiesWindow::PlaceWindow(HWND parent) const noexcept {
    const int dpi = WindowDpi(Handle());
    const HWND over = parent ? GetAncestor(parent, GA_ROOT) : nullptr;
    const Rect monitor = BoundsOf(MonitorFromWindow(over, MONITOR_DEFAULTTOPRIMARY));
    const std::optional<Rect> saved = state_.memory.Read();
    if (Has(qzPropertiesDlgOptions_CenterWindow)) {
        MoveTo(Handle(), Centred(saved.value_or(PlaceOf(Handle())), monitor, monitor, dpi));
    } else if (saved) {
        MoveTo(Handle(), Visible(Clamp(*saved, Desktop(), dpi), dpi));
    } else {
        const Rect around = over && !IsIconic(over) ? PlaceOf(over) : monitor;
        MoveTo(Handle(), Centred(PlaceOf(Handle()), around, monitor, dpi));
    }
}

/// Pin, list, OK and Cancel in a row; the inspector below them.
void PropertiesWindow::Arrange(SIZE client) {
    const auto widthOf = [this](int id) {
        const RECT at = ItemBounds(id);
        return at.right - at.left;
    };
    const auto moveTo = [this](int id, LONG left, LONG width) {
        const RECT at = ItemBounds(id);
        SetWindowPos(Item(id), nullptr, left, at.top, width, at.bottom - at.top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    };
    const LONG gap = MulDiv(buttonGap, WindowDpi(Handle()), 96);
    const LONG cancelLeft = client.cx - gap - widthOf(IDCANCEL);
    const LONG okLeft = cancelLeft - gap - widthOf(IDOK);
    moveTo(IDCANCEL, cancelLeft, widthOf(IDCANCEL));
    moveTo(IDOK, okLeft, widthOf(IDOK));
    const LONG listLeft = ItemBounds(QZ_PROPERTIES_PIN).right + gap;
    moveTo(QZ_PROPERTIES_OBJECTS, listLeft, std::max<LONG>(okLeft - gap - listLeft, 0));
    const LONG top = ItemBounds(QZ_PROPERTIES_INSPECTOR).top;
    site_.Move({0, top, client.cx, std::max(client.cy, top)});
}

void PropertiesWindow::KeepInLimits() const noexcept {
    const Rect place = PlaceOf(Handle());
    const Rect allowed = Clamp(place, Desktop(), WindowDpi(Handle()));
    if (allowed != place) MoveTo(Handle(), allowed);
}

void PropertiesWindow::RememberPlace() noexcept {
    if (!IsIconic(Handle())) state_.lastPlace = PlaceOf(Handle());
}

// The list of objects
// ------------------------------------------------------------------------------------------------------

void PropertiesWindow::ClearObjects() const {
    SendItem(QZ_PROPERTIES_OBJECTS, CB_RESETCONTENT);
    if (!AppendObject(L"")) Throw(E_FAIL, L"The list of objects takes no entry");
}

bool PropertiesWindow::AppendObject(const wchar_t* path) const noexcept {
    return SendItem(QZ_PROPERTIES_OBJECTS, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(path)) >= 0;
}

std::wstring PropertiesWindow::ChosenPath() const {
    const LRESULT entry = SendItem(QZ_PROPERTIES_OBJECTS, CB_GETCURSEL);
    const LRESULT length =
        entry < 0 ? -1 : SendItem(QZ_PROPERTIES_OBJECTS, CB_GETLBTEXTLEN, static_cast<WPARAM>(entry));
    if (length < 0) return {};
    std::wstring path(static_cast<std::size_t>(length), L'\0');
    SendItem(QZ_PROPERTIES_OBJECTS, CB_GETLBTEXT, static_cast<WPARAM>(entry),
             reinterpret_cast<LPARAM>(path.data()));
    path.resize(std::min(path.size(), longestShownPath));
    return path;
}

void PropertiesWindow::OnObjectChosen() {
    if (choosing_) return;
    const HRESULT outcome = Guard(IID_NULL, [this] {
        const ScopedValue choosing(choosing_, true);
        ShowChosen(ChosenPath());
    });
    if (FAILED(outcome)) TellFailure(outcome);
}

/// The host's selection goes, so that what is inspected is what was chosen here.
void PropertiesWindow::LetSelectionGo(IDispatch* host) const noexcept {
    LateBoundMember selectObjects(L"SelectObjects");
    // A host without it has nothing to let go.
    Guard(IID_NULL, [&] { selectObjects.Call(host, {_variant_t(0L)}); });
}

void PropertiesWindow::ShowChosen(const std::wstring& path) {
    state_.object = nullptr;
    TakeObject();
    const ComPtr<IDispatch> host = state_.host;
    ComPtr<IVandraX> vandra;
    if (!host || FAILED(host.As(&vandra))) return;
    LetSelectionGo(host.Get());
    const ComPtr<IDispatch> object = path.empty() ? nullptr : FindObject(vandra.Get(), path);
    if (!object) return;
    state_.object = object;
    LateBoundMember update(L"Update"), refresh(L"Refresh");
    update.Call(object.Get(), {_variant_t(1L)});
    refresh.Call(object.Get());
    TakeHost();
}

// Closing
// ------------------------------------------------------------------------------------------------------

void PropertiesWindow::RequestClose(INT_PTR result) {
    if (closing_) return;
    const ComPtr<PropControl> inspector = inspector_;
    long answer = 0;
    HRESULT asked = S_OK;
    if (inspector) {
        const ScopedValue closing(closing_, true);
        asked = inspector->Closing(&answer);
    }
    if (FAILED(asked)) return TellFailure(asked);
    if (answer != IDCANCEL && Handle()) End(result);
}

void PropertiesWindow::End(INT_PTR result) noexcept {
    if (modal_)
        EndModal(result);
    else
        Destroy();
}

/// The dialog stays open: nothing that the user did is lost.
void PropertiesWindow::TellFailure(HRESULT code) {
    ++childDialogs_;
    const ScopeExit closed([this] { --childDialogs_; });
    const std::wstring caption = LoadText(TextLanguage(), QZ_TEXT_PROPERTIES);
    MessageBoxW(Handle(), TakeErrorText(code).c_str(), caption.c_str(), MB_OK | MB_ICONWARNING);
}

bool PropertiesWindow::ClosesWhenLeft() const noexcept {
    return !modal_ && state_.alwaysVisible == 0 && childDialogs_ == 0 && !closing_;
}

// Messages
// ------------------------------------------------------------------------------------------------------

void PropertiesWindow::OnPinClicked() {
    state_.alwaysVisible = SendItem(QZ_PROPERTIES_PIN, BM_GETCHECK) == BST_CHECKED ? 1 : 0;
    ShowPin();
}

bool PropertiesWindow::OnCommand(int id, int notification) {
    switch (id) {
        case IDOK:
        case IDCANCEL:
            RequestClose(id);
            return true;
        case QZ_PROPERTIES_PIN:
            if (notification == BN_CLICKED) OnPinClicked();
            return true;
        case QZ_PROPERTIES_OBJECTS:
            if (notification == CBN_SELCHANGE) OnObjectChosen();
            return true;
        default:
            return false;
    }
}

std::optional<LRESULT> PropertiesWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CLOSE:
            RequestClose(IDCANCEL);
            return 0;
        case WM_ACTIVATE:
            if (LOWORD(wParam) == WA_INACTIVE && ClosesWhenLeft()) PostMessageW(Handle(), WM_CLOSE, 0, 0);
            return std::nullopt;
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) Arrange({LOWORD(lParam), HIWORD(lParam)});
            RememberPlace();
            return std::nullopt;
        case WM_MOVE:
            RememberPlace();
            return std::nullopt;
        case WM_SIZING: {
            RECT& place = *reinterpret_cast<RECT*>(lParam);
            place = ToPlatform(Clamp(FromPlatform(place), Desktop(), WindowDpi(Handle())));
            return TRUE;
        }
        case WM_EXITSIZEMOVE:
            KeepInLimits();
            return std::nullopt;
        case WM_DESTROY:
            CloseInspector();
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace qz
