#include "sample/container/pane.h"

#include "sample/container/automation.h"
#include "sample/container/dpi.h"
#include "sample/container/error_text.h"
#include "sample/container/event_text.h"
#include "sample/container/pane_header.h"

#include <algorithm>

namespace qz {

void HandlePaneEvent(const PaneRow& row, const PaneEnvironment& environment, ITypeInfo* info, DISPID event,
                     DISPPARAMS& parameters) {
    const std::wstring pane = std::wstring(row.title) + L": ";
    const std::wstring raised = DescribeEvent(info, event, parameters);
    environment.log(pane + raised);
    if (!row.onEvent) return;
    row.onEvent(event, parameters, environment.ask);
    const std::wstring answered = DescribeEvent(info, event, parameters);
    if (answered != raised) environment.log(pane + L"answered " + answered);
}

Pane::Pane(HWND parent, const PaneRow& row, const PaneEnvironment& environment)
    : row_(row), environment_(environment) {
    AppWindowOptions options;
    options.parent = parent;
    options.extendedStyle = WS_EX_CONTROLPARENT;
    options.title = row.title;
    Create(options);
    try {
        CreateControl();
    } catch (const ComError& error) {
        Close();
        ThrowDescribed(error.code, std::wstring(L"Pane \"") + row.title + L"\"", error.text);
    } catch (...) {
        Close();
        throw;
    }
}

Pane::~Pane() { Close(); }

void Pane::CreateControl() {
    SiteOptions options;
    options.frame = environment_.frame;
    options.window = Handle();
    options.ambients = environment_.ambients;
    options.name = row_.title;
    options.onFocus = [this](bool got) { OnFocusChanged(got); };
    site_.Swap(MakeObject<PaneSite>(std::move(options)));
    site_->CreateControl(*row_.classId);
    const ComPtr<IDispatch> control = Control();
    for (const InitialProperty& property : row_.properties) {
        PutProperty(control.Get(), property.name, property.value);
    }
    if (row_.events) ConnectEvents();
    site_->Activate(ControlArea());
}

void Pane::ConnectEvents() {
    const ComPtr<IDispatch> control = Control();
    const ComPtr<ITypeInfo> info = FindEventInfo(control.Get(), *row_.events);
    const auto handle = [&row = row_, &environment = environment_, info](DISPID event,
                                                                         DISPPARAMS& parameters) {
        HandlePaneEvent(row, environment, info.Get(), event, parameters);
    };
    events_.emplace(control.Get(), *row_.events, handle);
}

void Pane::Attach(IDispatch* host) {
    const ComPtr<IDispatch> control = Control();
    // The inspector takes its host as a property.
    if (HasMember(control.Get(), L"Initialize"))
        CallMethod(control.Get(), L"Initialize", {_variant_t(host)});
    else
        PutProperty(control.Get(), L"VandraX", _variant_t(host));
}

void Pane::Close() noexcept {
    events_.reset();
    if (site_) site_->Close();
    site_.Reset();
    Destroy();
}

bool Pane::HasFocus() const noexcept {
    const HWND focus = GetFocus();
    return focus && Handle() && (focus == Handle() || IsChild(Handle(), focus));
}

void Pane::EnvironmentChanged() {
    site_->AmbientsChanged();
    site_->Place(ControlArea());
    InvalidateRect(Handle(), nullptr, FALSE);
}

LRESULT Pane::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_SIZE:
            if (site_) site_->Place(ControlArea());
            return 0;
        case WM_ERASEBKGND:
            return 1;  // WM_PAINT paints all that the control does not cover
        case WM_PAINT:
            OnPaint();
            return 0;
        case WM_LBUTTONDOWN:  // in the header
        case WM_SETFOCUS:
            if (site_) ActivateUI();
            return 0;
        default:
            return Default(message, wParam, lParam);
    }
}

void Pane::OnError(const std::wstring& text) noexcept { environment_.log(text); }

void Pane::OnFocusChanged(bool got) {
    focused_ = got;
    InvalidateRect(Handle(), nullptr, FALSE);  // the header; the control is not repainted with it
    // Where the focus went to is known only when the message that moves it has been handled.
    if (!got) PostMessageW(GetParent(Handle()), paneLostFocus, 0, 0);
}

void Pane::OnPaint() {
    RECT header = ClientRect();
    header.bottom = HeaderHeight();
    const PaneHeader content{row_.title, environment_.fonts.title.get(), focused_, Scaled(Handle(), 1)};
    PaintPaneHeader(Handle(), header, content);
}

int Pane::HeaderHeight() const noexcept {
    return row_.kind == PaneKind::Pane && *row_.title ? Scaled(Handle(), 26) : 0;
}

RECT Pane::ControlArea() const noexcept {
    RECT area = ClientRect();
    area.top = std::min<LONG>(area.bottom, HeaderHeight());
    return area;
}

}  // namespace qz
