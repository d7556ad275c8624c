// The editor of format strings.
#include "properties/editors/make_editor.h"

#include "com/text.h"
#include "format/formatter.h"
#include "format/predefined_formats.h"
#include "host/attributes.h"
#include "com/text.h"
#include "properties/model/picker_layouts.h"
#include "res/dialog_ids.h"
#include "ui/platform_geometry.h"
#include "ui/screen.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace qz {

namespace {

/// The categories of the formatter whose samples are not plain numbers.
enum Category : std::size_t { General, Date, Time, DateAndTime, Percentage };

/// Every field of it reads differently.
constexpr DATE sampleDate = 46106;           // 25 March 2026
constexpr DATE sampleTime = 50709. / 86400;  // 14:05:09

_variant_t SampleOf(std::size_t category) {
    switch (category) {
        case Date:
            return {sampleDate, VT_DATE};
        case Time:
            return {sampleTime, VT_DATE};
        case DateAndTime:
            return {sampleDate + sampleTime, VT_DATE};
        case Percentage:
            return 0.1234;
        default:
            return 1234.567;
    }
}

/// Nothing for what is none of the formatter's categories.
std::optional<std::size_t> CategoryOf(const _variant_t& dataType) {
    if (dataType.vt == VT_EMPTY || dataType.vt == VT_NULL) return std::nullopt;
    const long type = ToLong(dataType);
    const auto categories = static_cast<long>(PredefinedCategories().size());
    return type >= 0 && type < categories ? std::optional(static_cast<std::size_t>(type)) : std::nullopt;
}

std::wstring FormatOf(const _variant_t& value) {
    std::wstring text;
    // What is no text is shown as none.
    if (FAILED(Guard(IID_NULL, [&] { text = ToText(value); }))) text.clear();
    return text;
}

/// Any text is a format. Those that the formatter offers for the object's kind of data are listed, all when
/// its "DataType" is no category of the formatter's or cannot be read. A sample of that kind shows what the
/// format does while it is typed.
class CValueFormatDlg final : public CValueDlg {
  public:
    explicit CValueFormatDlg(Language language) noexcept;

    /// Moves the focus to the list.
    void OpenPicker() override;

  private:
    void OnEditorInit() override;
    void OnSized(SIZE client) override;
    void ShowValue(const _variant_t* value) override;
    std::optional<_variant_t> EnteredValue() const override;
    bool OnEdited(int id, int notification) override;

    struct OfferedFormat {
        std::wstring_view text;
        std::size_t category;
    };

    void FillList();
    /// What the field holds is marked in the list, if it is there, and applied to the sample.
    void ShowPreview();
    const OfferedFormat* Offered(std::wstring_view text) const noexcept;

    ComPtr<Formatter> formatter_;
    std::optional<std::size_t>
        category_;  ///< Of the object's data; nothing when it is none of the formatter's.
    std::vector<OfferedFormat> offered_;
    bool mixed_ = false;  ///< The field shows nothing, as several objects differ; an empty text is a value.
};

}  // namespace

CValueFormatDlg::CValueFormatDlg(Language language) noexcept : CValueDlg(QZ_DIALOG_VALUE_FORMAT, language) {}

void CValueFormatDlg::OpenPicker() {
    if (!ReadOnly()) SetFocus(Item(QZ_EDITOR_FORMATS));
}

void CValueFormatDlg::OnEditorInit() {
    formatter_ = MakeObject<Formatter>();
    // An object without the attribute has data of no known kind.
    Guard(IID_NULL, [this] { category_ = CategoryOf(ReadObjectAttribute(L"DataType")); });
    FillList();
}

void CValueFormatDlg::FillList() {
    const auto categories = PredefinedCategories();
    for (std::size_t i = 0; i < categories.size(); ++i) {
        if (category_ && *category_ != i) continue;
        for (const std::wstring_view format : categories[i].formats) offered_.push_back({format, i});
    }
    for (const OfferedFormat& format : offered_) {
        SendItem(QZ_EDITOR_FORMATS, LB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(std::wstring(format.text).c_str()));
    }
}

void CValueFormatDlg::OnSized(SIZE client) {
    const FormatPlaces places =
        ArrangeFormatEditor({{client.cx, client.cy}, WindowDpi(Handle()), Pixels({0, 8}).cy});
    PlaceItem(QZ_EDITOR_FORMAT_LABEL, ToPlatform(places.textLabel));
    PlaceItem(QZ_EDITOR_TEXT, ToPlatform(places.text));
    PlaceItem(QZ_EDITOR_PREVIEW_LABEL, ToPlatform(places.previewLabel));
    PlaceItem(QZ_EDITOR_PREVIEW, ToPlatform(places.preview));
    PlaceItem(QZ_EDITOR_FORMATS_LABEL, ToPlatform(places.listLabel));
    PlaceItem(QZ_EDITOR_FORMATS, ToPlatform(places.list));
}

void CValueFormatDlg::ShowValue(const _variant_t* value) {
    mixed_ = !value;
    SetItemText(QZ_EDITOR_TEXT, value ? FormatOf(*value) : std::wstring());
    if (value) return ShowPreview();
    SendItem(QZ_EDITOR_FORMATS, LB_SETCURSEL, static_cast<WPARAM>(-1));
    SetItemText(QZ_EDITOR_PREVIEW, {});
}

std::optional<_variant_t> CValueFormatDlg::EnteredValue() const {
    if (mixed_) return std::nullopt;
    return _variant_t(Bstr(ItemText(QZ_EDITOR_TEXT)).Get());
}

bool CValueFormatDlg::OnEdited(int id, int notification) {
    if (id == QZ_EDITOR_TEXT && notification == EN_CHANGE) {
        mixed_ = false;
        ShowPreview();
        WriteLater();
        return true;
    }
    if (id == QZ_EDITOR_FORMATS && notification == LBN_SELCHANGE) {
        const LRESULT chosen = SendItem(QZ_EDITOR_FORMATS, LB_GETCURSEL);
        if (chosen < 0) return true;
        mixed_ = false;
        const std::wstring format(offered_[static_cast<std::size_t>(chosen)].text);
        WithoutNotifications([&] { SetItemText(QZ_EDITOR_TEXT, format); });
        ShowPreview();
        WriteNow();
        return true;
    }
    return false;
}

/// Formats differ in the case of their letters, so the list is not asked.
const CValueFormatDlg::OfferedFormat* CValueFormatDlg::Offered(std::wstring_view text) const noexcept {
    const auto found = std::ranges::find(offered_, text, &OfferedFormat::text);
    return found != offered_.end() ? &*found : nullptr;
}

void CValueFormatDlg::ShowPreview() {
    const std::wstring text = ItemText(QZ_EDITOR_TEXT);
    const OfferedFormat* const offered = Offered(text);
    const LRESULT entry = offered ? offered - offered_.data() : -1;
    SendItem(QZ_EDITOR_FORMATS, LB_SETCURSEL, static_cast<WPARAM>(entry));
    const std::size_t category = category_.value_or(offered ? offered->category : General);
    BSTR shown = nullptr;
    const HRESULT formatted = formatter_->FormatData(Bstr(text).Get(), SampleOf(category), &shown);
    const _bstr_t owned(shown, false);
    SetItemText(QZ_EDITOR_PREVIEW, SUCCEEDED(formatted) ? std::wstring(TextView(shown)) : std::wstring());
}

ValueDlgPointer MakeFormatEditor(const EditorChoice&, Language language) {
    return MakeDialog<CValueFormatDlg>(language);
}

}  // namespace qz
