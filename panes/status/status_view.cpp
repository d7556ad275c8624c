#include "panes/status/status_view.h"

#include "panes/common/pane_font.h"
#include "panes/status/status_painter.h"
#include "ui/accessible_name.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <algorithm>

namespace qz {

namespace {

/// Measures texts in a font.
class TextMeter {
  public:
    explicit TextMeter(const Font& font) : selected_(dc_.Get(), font.Get()) {}

    std::int32_t Width(const std::wstring& text) const {
        SIZE size{};
        GetTextExtentPoint32W(dc_.Get(), text.c_str(), static_cast<int>(text.size()), &size);
        return size.cx;
    }
    std::int32_t Height() const {
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc_.Get(), &metrics);
        return metrics.tmHeight;
    }

  private:
    MemoryDc dc_;
    SelectScope selected_;
};

/// What keeps entry fields from changing their width with every page and zoom.
const wchar_t* WidestUsual(StatusField entry) { return entry == StatusField::Zoom ? L"1000%" : L"888 / 888"; }

}  // namespace

void StatusView::Create(HWND bar) {
    bar_ = bar;
    tips_.Create(bar);
    content_ = {};
    font_.Reset();  // so that the new windows get it
    fontDpi_ = 0;
    for (const StatusField field : statusFields) windows_[field].CreateFor(field, bar);
}

void StatusView::Destroy() noexcept {
    tips_.Destroy();  // first, as it watches the other windows and has to let go of each
    for (const StatusField field : statusFields) {
        if (IsEntry(field) && windows_[field]) SetAccessibleName(windows_[field].Handle(), L"");
        windows_[field].Destroy();
    }
    bar_ = nullptr;
}

bool StatusView::Show(StatusContent content, SIZE bar) {
    const int dpi = WindowDpi(bar_);
    if (content == content_ && bar.cx == size_.cx && bar.cy == size_.cy && dpi == fontDpi_) return false;
    PerField<bool> edited;
    for (const StatusField field : statusFields) edited[field] = Edit(field).has_value();
    const PerField<std::wstring> namesBefore = std::move(content_.names);
    content_ = std::move(content);
    size_ = bar;
    if (dpi != fontDpi_) {
        fontDpi_ = dpi;
        UseFont();
    }
    places_ = Arrange(bar);
    for (const StatusField field : statusFields) {
        if (windows_[field]) Update(field, edited[field], namesBefore[field]);
    }
    return true;
}

void StatusView::UseFont() {
    Font font = MakeArial(fontDpi_);
    for (const StatusField field : statusFields) {
        if (windows_[field]) windows_[field].Send(WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), TRUE);
    }
    font_ = std::move(font);
}

PerField<Rect> StatusView::Arrange(SIZE bar) const {
    const auto scaled = [this](int length) { return MulDiv(length, fontDpi_, USER_DEFAULT_SCREEN_DPI); };
    const TextMeter meter(font_);
    StatusLayoutRequest request;
    request.bar = FromPlatform(bar);
    request.gap = scaled(5);
    request.fieldHeight = meter.Height() + scaled(3) + 2;
    request.smallestName = scaled(40);
    for (const StatusField field : statusFields) {
        const std::int32_t text = meter.Width(content_.texts[field]);
        std::int32_t& width = request.widths[field];
        if (!content_.wanted[field]) {
            width = 0;
        } else if (IsButton(field)) {
            width = request.fieldHeight;
        } else if (IsEntry(field)) {
            width = std::max(text, meter.Width(WidestUsual(field))) + scaled(14);
        } else {
            width = text > 0 ? text + scaled(4) : 0;
        }
    }
    return ArrangeStatusFields(request);
}

void StatusView::Update(StatusField field, bool edited, const std::wstring& nameBefore) {
    const StatusFieldWindow& window = windows_[field];
    const std::wstring& name = content_.names[field];
    const bool usable = content_.enabled[field] && !places_[field].Empty();
    if (IsButton(field)) {
        window.SetText(name);
        if (name != nameBefore) tips_.Set(window.Handle(), name);
    } else if (!edited) {
        window.SetText(content_.texts[field]);
        if (IsEntry(field) && GetFocus() == window.Handle()) SelectAll(field);
    }
    if (IsEntry(field) && name != nameBefore) SetAccessibleName(window.Handle(), name.c_str());
    if (!usable && GetFocus() == window.Handle()) PassFocusOn(field);
    if (IsButton(field) || IsEntry(field)) window.SetEnabled(content_.enabled[field]);
    window.Place(places_[field]);
}

/// A window that is disabled or hidden would keep the focus and swallow every key.
void StatusView::PassFocusOn(StatusField field) const noexcept {
    for (const StatusField other : {StatusField::PagePosition, StatusField::Zoom}) {
        const bool usable = content_.enabled[other] && !places_[other].Empty();
        if (other == field || !usable || !windows_[other]) continue;
        SetFocus(windows_[other].Handle());
        return;
    }
    SetFocus(bar_);
}

void StatusView::Draw(HDC dc, COLORREF textColour) {
    const SelectScope withFont(dc, font_.Get());
    for (const StatusField field : statusFields) {
        const FieldLook look{places_[field], content_.texts[field], content_.enabled[field], false, false};
        DrawStatusField(dc, field, look, textColour);
    }
}

void StatusView::DrawButton(const DRAWITEMSTRUCT& item) const {
    const bool shows = (item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT);
    const FieldLook look{FromPlatform(item.rcItem),
                         {},
                         !(item.itemState & ODS_DISABLED),
                         (item.itemState & ODS_SELECTED) != 0,
                         shows};
    DrawStatusButton(item.hDC, FieldOfChild(static_cast<int>(item.CtlID)), look);
}

void StatusView::Invalidate() const noexcept {
    for (const StatusField field : statusFields) {
        if (windows_[field]) InvalidateRect(windows_[field].Handle(), nullptr, TRUE);
    }
}

// Entries
// ------------------------------------------------------------------------------------------------------

std::optional<std::wstring> StatusView::Edit(StatusField entry) const {
    if (!IsEntry(entry) || !windows_[entry]) return std::nullopt;
    std::wstring text = windows_[entry].Text();
    return text == content_.texts[entry] ? std::nullopt : std::optional(std::move(text));
}

void StatusView::Restore(StatusField entry) const {
    if (windows_[entry]) windows_[entry].SetText(content_.texts[entry]);
}

void StatusView::SelectAll(StatusField entry) const noexcept { windows_[entry].Send(EM_SETSEL, 0, -1); }

// Fields and focus
// -----------------------------------------------------------------------------------------------

std::optional<StatusField> StatusView::FieldOf(HWND child) const noexcept {
    const auto found = std::ranges::find_if(
        statusFields, [&](StatusField field) { return child && windows_[field].Handle() == child; });
    return found == statusFields.end() ? std::nullopt : std::optional(*found);
}

std::optional<StatusField> StatusView::FieldAt(POINT point) const noexcept {
    const auto found = std::ranges::find_if(
        statusFields, [&](StatusField field) { return places_[field].Contains(FromPlatform(point)); });
    return found == statusFields.end() ? std::nullopt : std::optional(*found);
}

HWND StatusView::FirstToFocus() const noexcept {
    for (const StatusField entry : {StatusField::PagePosition, StatusField::Zoom}) {
        if (windows_[entry].TakesFocus()) return windows_[entry].Handle();
    }
    return NextToFocus(nullptr, false);
}

HWND StatusView::NextToFocus(HWND from, bool backwards) const noexcept {
    const auto nextIn = [&](auto fields) -> HWND {
        auto next = fields.begin();
        if (const auto current = FieldOf(from)) next = std::ranges::find(fields, *current) + 1;
        next =
            std::find_if(next, fields.end(), [&](StatusField field) { return windows_[field].TakesFocus(); });
        return next == fields.end() ? nullptr : windows_[*next].Handle();
    };
    if (!backwards) return nextIn(statusFields);
    auto reversed = statusFields;
    std::ranges::reverse(reversed);
    return nextIn(reversed);
}

}  // namespace qz
