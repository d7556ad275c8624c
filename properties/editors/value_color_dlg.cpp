// The editor of colors: a palette, and a field of hexadecimal digits.
#include "properties/editors/make_editor.h"

#include "properties/editors/colour_field.h"
#include "properties/editors/colour_palette.h"
#include "properties/model/colour_text.h"
#include "res/dialog_ids.h"
#include "ui/gdi.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <algorithm>

namespace qz {

namespace {

constexpr WPARAM mostDigits = 8;

/// Hosts hold the 32 bits as a signed or as an unsigned number.
std::optional<std::uint32_t> ColourIn(const _variant_t& value) {
    if (value.vt == VT_EMPTY || value.vt == VT_NULL) return std::nullopt;
    auto* const source = const_cast<_variant_t*>(&value);  // only read
    _variant_t number;
    if (SUCCEEDED(VariantChangeType(&number, source, 0, VT_I4))) {
        return static_cast<std::uint32_t>(number.lVal);
    }
    if (SUCCEEDED(VariantChangeType(&number, source, 0, VT_UI4))) return number.ulVal;
    return std::nullopt;
}

BYTE Blended(BYTE colour, BYTE behind, unsigned alpha) noexcept {
    return static_cast<BYTE>((colour * alpha + behind * (255 - alpha) + 127) / 255);
}

/// What a colour looks like before another one.
COLORREF Blended(std::uint32_t colour, COLORREF behind) noexcept {
    const unsigned alpha = (colour >> 24) == 0 ? 255 : colour >> 24;
    return RGB(Blended(GetRValue(colour), GetRValue(behind), alpha),
               Blended(GetGValue(colour), GetGValue(behind), alpha),
               Blended(GetBValue(colour), GetBValue(behind), alpha));
}

/// Draws a colour over a chequerboard, of which as much is seen as the colour lets through.
void DrawChequered(HDC dc, const RECT& bounds, std::uint32_t colour, int square) noexcept {
    const COLORREF light = Blended(colour, RGB(255, 255, 255));
    const COLORREF dark = Blended(colour, RGB(160, 160, 160));
    FillSolid(dc, bounds, light);
    for (LONG y = bounds.top; y < bounds.bottom; y += square) {
        const bool odd = ((y - bounds.top) / square) % 2 != 0;
        for (LONG x = bounds.left + (odd ? square : 0); x < bounds.right; x += 2 * square) {
            const RECT cell{x, y, std::min(x + square, bounds.right), std::min(y + square, bounds.bottom)};
            FillSolid(dc, cell, dark);
        }
    }
}

/// No colour: white, struck through.
void DrawNoColour(HDC dc, const RECT& bounds) {
    FillSolid(dc, bounds, RGB(255, 255, 255));
    const Pen pen = MakePen(1, RGB(255, 0, 0));
    const SelectScope selected(dc, pen.Get());
    MoveToEx(dc, bounds.left, bounds.bottom - 1, nullptr);
    LineTo(dc, bounds.right, bounds.top - 1);
}

/// A color as properties/model/colour_text.h tells it. What is typed is a color when it has six or eight
/// digits; an empty field is none, the button for that writes "no color".
class CValueColorDlg final : public CValueDlg {
  public:
    explicit CValueColorDlg(Language language);
    ~CValueColorDlg() override;

    /// Moves the focus to the palette.
    void OpenPicker() override;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;
    bool KeepsReturn(HWND control) const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    void OnTyped();
    void Choose(std::uint32_t colour);
    void ShowColour(std::optional<std::uint32_t> colour);
    void DrawPreview(const DRAWITEMSTRUCT& item) const;

    ColourPalette palette_;
    ColourField field_;
    std::optional<std::uint32_t> colour_;  ///< Nothing while the field holds no color.
    std::wstring text_;                    ///< Of the field, before the change under way.
};

}  // namespace

CValueColorDlg::CValueColorDlg(Language language) : CValueDlg(QZ_DIALOG_VALUE_COLOR, language) {}

/// The boxes must go before their class.
CValueColorDlg::~CValueColorDlg() { Destroy(); }

void CValueColorDlg::OpenPicker() {
    if (!ReadOnly()) SetFocus(palette_.Current());
}

void CValueColorDlg::OnEditorInit() {
    SendItem(QZ_EDITOR_TEXT, EM_SETLIMITTEXT, mostDigits);
    field_.Attach(Item(QZ_EDITOR_TEXT));
    palette_.Create(Handle(), QZ_EDITOR_COLOR_BOXES);
}

void CValueColorDlg::OnSized(SIZE client) {
    const ColourPlaces places =
        ArrangeColourEditor({{client.cx, client.cy}, WindowDpi(Handle()), Pixels({0, 8}).cy});
    PlaceItem(QZ_EDITOR_COLOR_LABEL, ToPlatform(places.label));
    PlaceItem(QZ_EDITOR_TEXT, ToPlatform(places.text));
    PlaceItem(QZ_EDITOR_COLOR_PREVIEW, ToPlatform(places.preview));
    PlaceItem(QZ_EDITOR_NO_COLOR, ToPlatform(places.none));
    palette_.Arrange(places);
}

void CValueColorDlg::ShowValue(const _variant_t* value) {
    ShowColour(value ? ColourIn(*value) : std::nullopt);
}

void CValueColorDlg::ShowColour(std::optional<std::uint32_t> colour) {
    colour_ = colour;
    text_ = colour ? ColourText(*colour) : std::wstring();
    SetItemText(QZ_EDITOR_TEXT, text_);
    palette_.ShowColour(colour);
    InvalidateRect(Item(QZ_EDITOR_COLOR_PREVIEW), nullptr, FALSE);
}

std::optional<_variant_t> CValueColorDlg::EnteredValue() const {
    if (!colour_) return std::nullopt;
    return _variant_t(static_cast<long>(*colour_));
}

bool CValueColorDlg::OnEdited(int id, int notification) {
    if (id == QZ_EDITOR_TEXT && notification == EN_CHANGE) {
        OnTyped();
        return true;
    }
    if (id == QZ_EDITOR_NO_COLOR && notification == BN_CLICKED) {
        Choose(noColour);
        return true;
    }
    return false;
}

/// What comes into the field past the filter of what is typed and pasted, is put back.
void CValueColorDlg::OnTyped() {
    const std::wstring text = ItemText(QZ_EDITOR_TEXT);
    if (!IsColourText(text)) {
        WithoutNotifications([&] {
            SetItemText(QZ_EDITOR_TEXT, text_);
            SendItem(QZ_EDITOR_TEXT, EM_SETSEL, mostDigits, mostDigits);
        });
        return;
    }
    text_ = text;
    colour_ = ColourOf(text);
    InvalidateRect(Item(QZ_EDITOR_COLOR_PREVIEW), nullptr, FALSE);
    WriteLater();
}

void CValueColorDlg::Choose(std::uint32_t colour) {
    if (ReadOnly()) return;
    WithoutNotifications([&] { ShowColour(colour); });
    WriteNow();
}

/// A box of the palette takes it as a click.
bool CValueColorDlg::KeepsReturn(HWND control) const { return control == palette_.Current(); }

std::optional<LRESULT> CValueColorDlg::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == colourChosenMessage) {
        Choose(static_cast<std::uint32_t>(lParam));
        return 0;
    }
    if (message == WM_DRAWITEM && wParam == QZ_EDITOR_COLOR_PREVIEW) {
        DrawPreview(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return CValueDlg::OnMessage(message, wParam, lParam);
}

void CValueColorDlg::DrawPreview(const DRAWITEMSTRUCT& item) const {
    RECT bounds = item.rcItem;
    FillSolid(item.hDC, bounds, GetSysColor(COLOR_BTNSHADOW));
    InflateRect(&bounds, -1, -1);
    if (!colour_) return FillSolid(item.hDC, bounds, GetSysColor(COLOR_BTNFACE));
    if (*colour_ == noColour) return DrawNoColour(item.hDC, bounds);
    DrawChequered(item.hDC, bounds, *colour_, WindowDpi(Handle()) / 24);
}

ValueDlgPointer MakeColorEditor(const EditorChoice&, Language language) {
    return MakeDialog<CValueColorDlg>(language);
}

}  // namespace qz
