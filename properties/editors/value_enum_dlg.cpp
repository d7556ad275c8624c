// The editor of enumerations.
#include "properties/editors/make_editor.h"

#include "properties/editors/choice_buttons.h"
#include "properties/editors/entry_field.h"
#include "properties/editors/shown_value.h"
#include "properties/model/edit_rules.h"
#include "res/dialog_ids.h"
#include "ui/keys.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"
#include "ui/wheel.h"

#include <algorithm>

namespace qz {

namespace {

/// Labels write numbers so, whatever the user's locale.
constexpr wchar_t labelSeparator = L'.';

int TrackPosition(HWND window) noexcept {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    GetScrollInfo(window, SB_VERT, &info);
    return info.nTrackPos;
}

/// The choices, and a field for their numbers and those between. An entry that can no longer become such a
/// number is put back at once, one before the first choice when it is to be written or the field is left: "1"
/// is on the way to "15". An attribute without labels takes any number. What does not fit into the editor is
/// scrolled.
class CValueEnumDlg final : public CValueDlg {
  public:
    /// `real`: the choices need not be whole numbers.
    CValueEnumDlg(bool real, Language language) noexcept;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    bool KeepsWhatIsNoValue() const override { return false; }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::optional<double> EnteredNumber() const;
    std::optional<double> ShownNumber(const VARIANT& value) const;
    void OnTyped();
    void CheckNumber(std::optional<double> number) const;
    void Choose(std::size_t index);

    void ScrollTo(int position);
    void OnScrollBar(WORD command);
    void OnWheel(int delta);
    void ShowFocus();
    SIZE Visible() const noexcept;

    bool real_;
    std::vector<Choice> choices_;
    ChoiceButtons buttons_;
    EntryField field_;
    ChoicePlaces places_;
    WheelAccumulator wheel_;
    int scrolled_ = 0;  ///< Pixels.
};

}  // namespace

CValueEnumDlg::CValueEnumDlg(bool real, Language language) noexcept
    : CValueDlg(QZ_DIALOG_VALUE_ENUM, language), real_(real) {}

// Value
// ------------------------------------------------------------------------------------------------------

void CValueEnumDlg::OnEditorInit() {
    choices_ = ChoicesOf(Edited().members->attributes.Choices(Edited().attribute.Get()), real_);
    if (!Handle()) return;
    field_.AttachTo(Item(QZ_EDITOR_TEXT));
    NameControl(field_.Handle(), Edited().row.name);
    buttons_.Create(Handle(), choices_);
}

std::optional<double> CValueEnumDlg::ShownNumber(const VARIANT& value) const {
    if (real_) return ShownReal(value);
    return ShownInteger(value);
}

void CValueEnumDlg::ShowValue(const _variant_t* value) {
    const std::optional<double> number = value ? ShownNumber(*value) : std::nullopt;
    field_.Show(number ? TextOf(*number, labelSeparator) : std::wstring());
    CheckNumber(number);
}

/// By their texts: the same number is not the same in single and in double precision.
void CValueEnumDlg::CheckNumber(std::optional<double> number) const {
    const std::wstring text = number ? TextOf(*number, labelSeparator) : std::wstring();
    const auto same = [&](const Choice& choice) { return TextOf(choice.number, labelSeparator) == text; };
    const auto found = std::ranges::find_if(choices_, same);
    const auto index = static_cast<std::size_t>(found - choices_.begin());
    buttons_.Check(found != choices_.end() ? std::optional(index) : std::nullopt);
}

std::optional<double> CValueEnumDlg::EnteredNumber() const {
    const std::wstring text = field_.Text();
    if (!choices_.empty()) return TypedChoice(text, choices_, real_);
    if (real_) return RealOf(text, labelSeparator);
    return IntegerOf(text);
}

std::optional<_variant_t> CValueEnumDlg::EnteredValue() const {
    const std::optional<double> number = EnteredNumber();
    if (!number) return std::nullopt;
    if (real_) return _variant_t(*number);
    return _variant_t(static_cast<long>(*number));
}

bool CValueEnumDlg::OnEdited(int id, int notification) {
    if (id == QZ_EDITOR_TEXT && notification == EN_CHANGE) {
        OnTyped();
        return true;
    }
    if (id == QZ_EDITOR_TEXT && notification == EN_KILLFOCUS) {
        WriteSoon();
        return true;
    }
    const auto chosen = notification == BN_CLICKED ? buttons_.Clicked(id) : std::nullopt;
    if (chosen) Choose(*chosen);
    return chosen.has_value();
}

void CValueEnumDlg::OnTyped() {
    const auto mayBecome = [this](const std::wstring& text) {
        return MayBecomeChoice(text, choices_, real_);
    };
    if (!mayBecome(field_.Text()) && mayBecome(field_.Accepted())) {
        WithoutNotifications([this] { field_.Revert(); });
        MessageBeep(MB_OK);
        return;  // what was typed before may still wait
    }
    field_.Accept();
    CheckNumber(EnteredNumber());
    WriteLater();
}

void CValueEnumDlg::Choose(std::size_t index) {
    WithoutNotifications([&] { field_.Show(TextOf(choices_[index].number, labelSeparator)); });
    WriteNow();
}

// Places
// ------------------------------------------------------------------------------------------------------

std::optional<LRESULT> CValueEnumDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_VSCROLL:
            OnScrollBar(LOWORD(wParam));
            return 0;
        case WM_MOUSEWHEEL:
            OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
            return 0;
        case childFocusMessage:
            if (wParam) ShowFocus();
            break;
        default:
            break;
    }
    return CValueDlg::OnMessage(message, wParam, lParam);
}

/// The client size without a scroll bar, which comes and goes by what is found here.
SIZE CValueEnumDlg::Visible() const noexcept {
    RECT bounds{};
    GetWindowRect(Handle(), &bounds);
    return {bounds.right - bounds.left, bounds.bottom - bounds.top};
}

void CValueEnumDlg::OnSized(SIZE) {
    const SIZE client = Visible();
    ChoiceMetrics metrics{FromPlatform(client), WindowDpi(Handle()), static_cast<int>(Pixels({0, 8}).cy),
                          buttons_.Widest(), buttons_.Count()};
    places_ = ArrangeChoices(metrics);
    if (places_.height > client.cy) {
        metrics.client.width -= GetSystemMetrics(SM_CXVSCROLL);
        places_ = ArrangeChoices(metrics);
    }
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = std::max(places_.height - 1, 0);
    info.nPage = static_cast<UINT>(client.cy);
    SetScrollInfo(Handle(), SB_VERT, &info, TRUE);
    ScrollTo(scrolled_);
}

void CValueEnumDlg::ScrollTo(int position) {
    const int furthest = std::max(places_.height - static_cast<int>(Visible().cy), 0);
    scrolled_ = std::clamp(position, 0, furthest);
    SetScrollPos(Handle(), SB_VERT, scrolled_, TRUE);
    PlaceItem(QZ_EDITOR_TEXT, ToPlatform(places_.text.Moved(0, -scrolled_)));
    buttons_.Place(places_.choices, scrolled_);
}

void CValueEnumDlg::OnScrollBar(WORD command) {
    const int page = static_cast<int>(Visible().cy);
    const int line = static_cast<int>(Pixels({0, 12}).cy);
    switch (command) {
        case SB_LINEUP:
            return ScrollTo(scrolled_ - line);
        case SB_LINEDOWN:
            return ScrollTo(scrolled_ + line);
        case SB_PAGEUP:
            return ScrollTo(scrolled_ - page);
        case SB_PAGEDOWN:
            return ScrollTo(scrolled_ + page);
        case SB_TOP:
            return ScrollTo(0);
        case SB_BOTTOM:
            return ScrollTo(places_.height);
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return ScrollTo(TrackPosition(Handle()));
        default:
            return;
    }
}

void CValueEnumDlg::OnWheel(int delta) {
    UINT lines = 3;
    SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const int page = static_cast<int>(Visible().cy);
    const int step =
        lines == WHEEL_PAGESCROLL ? page : static_cast<int>(lines) * static_cast<int>(Pixels({0, 12}).cy);
    ScrollTo(scrolled_ - wheel_.Turn(delta) * step);
}

/// A button that moved away under the mouse would not be clicked.
void CValueEnumDlg::ShowFocus() {
    if (KeyIsDown(VK_LBUTTON)) return;
    RECT bounds{};
    GetWindowRect(GetFocus(), &bounds);
    MapWindowPoints(nullptr, Handle(), reinterpret_cast<POINT*>(&bounds), 2);
    ScrollTo(ScrolledTo(scrolled_, bounds.top + scrolled_, bounds.bottom + scrolled_,
                        static_cast<int>(Visible().cy)));
}

ValueDlgPointer MakeEnumEditor(const EditorChoice& choice, Language language) {
    return MakeDialog<CValueEnumDlg>(choice.realChoices, language);
}

}  // namespace qz
