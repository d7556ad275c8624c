#include "dialogs/document/fonts_tab.h"

#include "dialogs/document/font_embedding_dlg.h"
#include "dialogs/document/list_columns.h"
#include "host/attributes.h"
#include "res/dialog_ids.h"
#include "res/text_ids.h"
#include "ui/window.h"

#include <algorithm>
#include <numeric>

namespace qz {

namespace {

/// By level.
constexpr unsigned levelTexts[embeddingLevelCount] = {QZ_TEXT_NO_EMBEDDING, QZ_TEXT_PARTIAL_EMBEDDING,
                                                      QZ_TEXT_FULL_EMBEDDING};

constexpr ListColumn fontColumns[] = {{QZ_TEXT_FONT_NAME_COLUMN, 40},
                                      {QZ_TEXT_FONT_TYPE_COLUMN, 16},
                                      {QZ_TEXT_EMBEDDING_COLUMN, 24, levelTexts},
                                      {QZ_TEXT_ENCODING_COLUMN, 20}};

constexpr wchar_t namelessFont[] = L"\n**** A font object was found having no FontName attribute value\n";

int CompareTexts(const std::wstring& left, const std::wstring& right) noexcept {
    return CompareStringEx(LOCALE_NAME_USER_DEFAULT, LINGUISTIC_IGNORECASE, left.data(),
                           static_cast<int>(left.size()), right.data(), static_cast<int>(right.size()),
                           nullptr, nullptr, 0) -
           CSTR_EQUAL;
}

/// What is no number is no level.
int EmbeddingOf(const _variant_t& embedding) noexcept {
    _variant_t number;
    const bool told = SUCCEEDED(VariantChangeType(&number, const_cast<_variant_t*>(&embedding), 0, VT_I4));
    return told ? EmbeddingLevel(number.lVal) : 0;
}

bool BeginsWith(const std::wstring& text, const std::wstring& start) noexcept {
    return text.size() >= start.size() && CompareTexts(text.substr(0, start.size()), start) == 0;
}

}  // namespace

CDocSettingsDlgTab4::CDocSettingsDlgTab4(const SettingsSource& source, Language language) noexcept
    : CDocSettingsDlgTab(QZ_DIALOG_DOCUMENT_FONTS, source, language) {}

void CDocSettingsDlgTab4::OnInit() {
    std::ranges::transform(levelTexts, levels_.begin(), [this](unsigned id) { return Text(id); });
    AddColumns(Item(QZ_FONTS_LIST), fontColumns, TextLanguage());
    keys_.Watch(Handle());
}

// Filling
// ------------------------------------------------------------------------------------------------------

/// When a font cannot be read, those before it are shown all the same.
void CDocSettingsDlgTab4::Fill() {
    fonts_.clear();
    rows_.clear();
    try {
        ReadFonts();
    } catch (...) {
        ShowFonts();
        throw;
    }
    ShowFonts();
}

void CDocSettingsDlgTab4::ReadFonts() {
    for (const ComPtr<IDispatch>& font : ObjectsOf(Read(L"Fonts"))) {
        std::optional<FontRow> row = ReadFont(font.Get());
        if (!row) {
            OutputDebugStringW(namelessFont);
            continue;
        }
        rows_.push_back(*std::move(row));
        fonts_.push_back(font);
    }
}

std::optional<FontRow> CDocSettingsDlgTab4::ReadFont(IDispatch* font) {
    FontRow row;
    row.name = ToText(ReadName(font));
    if (row.name.empty()) return std::nullopt;
    const bool subset = IsSubsetName(row.name);
    if (subset) {
        std::wstring original = ToText(Objects().Attribute(font, L"OriginalName"));
        if (!original.empty()) row.name = std::move(original);
    }
    row.type = ToText(Objects().Attribute(font, L"FontType"));
    const _variant_t embedding = Objects().Attribute(font, L"Embedding");
    row.level = subset ? partialEmbedding : EmbeddingOf(embedding);
    row.encoding = ToText(Objects().Attribute(font, L"Encoding"));
    return row;
}

_variant_t CDocSettingsDlgTab4::ReadName(IDispatch* font) {
    try {
        return Objects().Attribute(font, L"FontName");
    } catch (const ComError& error) {
        if (error.code == DISP_E_UNKNOWNNAME) return {};  // has no such attribute
        throw;
    }
}

void CDocSettingsDlgTab4::ShowFonts() {
    places_.resize(rows_.size());
    std::iota(places_.begin(), places_.end(), std::size_t{0});
    SendItem(QZ_FONTS_LIST, LVM_SETITEMCOUNT, rows_.size());
}

// The list
// ------------------------------------------------------------------------------------------------------

std::optional<LRESULT> CDocSettingsDlgTab4::OnMessage(UINT message, WPARAM, LPARAM lParam) {
    if (message != WM_NOTIFY) return std::nullopt;
    const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
    return header.idFrom == QZ_FONTS_LIST ? OnListNotification(header, lParam) : std::nullopt;
}

std::optional<LRESULT> CDocSettingsDlgTab4::OnListNotification(const NMHDR& header, LPARAM details) {
    switch (header.code) {
        case LVN_GETDISPINFOW:
            TellText(*reinterpret_cast<NMLVDISPINFOW*>(details));
            return 0;
        case LVN_ODFINDITEMW:
            return FindRow(*reinterpret_cast<const NMLVFINDITEMW*>(details));
        case LVN_COLUMNCLICK:
            SortBy(static_cast<FontColumn>(reinterpret_cast<const NMLISTVIEW*>(details)->iSubItem));
            return 0;
        case LVN_ITEMACTIVATE:
            if (const auto font = SelectedFont()) ChooseEmbedding(*font);
            return 0;
        default:
            return std::nullopt;
    }
}

void CDocSettingsDlgTab4::TellText(NMLVDISPINFOW& details) const {
    LVITEMW& item = details.item;
    const auto row = static_cast<std::size_t>(item.iItem);
    if (!(item.mask & LVIF_TEXT) || !item.pszText || row >= places_.size()) return;
    const std::wstring& text = TextOf(places_[row], static_cast<FontColumn>(item.iSubItem));
    lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
}

const std::wstring& CDocSettingsDlgTab4::TextOf(std::size_t font, FontColumn column) const {
    const FontRow& row = rows_[font];
    switch (column) {
        case FontColumn::Type:
            return row.type;
        case FontColumn::Embedding:
            return levels_[static_cast<std::size_t>(row.level)];
        case FontColumn::Encoding:
            return row.encoding;
        default:
            return row.name;
    }
}

/// The next row whose name begins with what the user types; -1 when there is none.
LRESULT CDocSettingsDlgTab4::FindRow(const NMLVFINDITEMW& details) const {
    const bool byText = details.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL);
    if (!byText || !details.lvfi.psz || places_.empty()) return -1;
    const std::wstring start = details.lvfi.psz;
    const auto first = static_cast<std::size_t>(std::max(details.iStart, 0));
    for (std::size_t step = 0; step < places_.size(); ++step) {
        const std::size_t row = (first + step) % places_.size();
        if (BeginsWith(rows_[places_[row]].name, start)) return static_cast<LRESULT>(row);
    }
    return -1;
}

/// Once more on the same column: the other way round.
void CDocSettingsDlgTab4::SortBy(FontColumn column) {
    const bool again = order_ && order_->column == column;
    order_ = FontOrder{column, again && !order_->descending};
    const std::optional<std::size_t> selected = SelectedFont();
    places_ = SortedPlaces(rows_, *order_, CompareTexts);
    if (selected) Select(*selected);
    ShowOrder();
    InvalidateRect(Item(QZ_FONTS_LIST), nullptr, TRUE);
}

void CDocSettingsDlgTab4::ShowOrder() const {
    const auto header = reinterpret_cast<HWND>(SendItem(QZ_FONTS_LIST, LVM_GETHEADER));
    for (int place = 0; place < static_cast<int>(std::size(fontColumns)); ++place) {
        HDITEMW item{};
        item.mask = HDI_FORMAT;
        SendMessageW(header, HDM_GETITEMW, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&item));
        item.fmt &= ~(HDF_SORTUP | HDF_SORTDOWN);
        if (place == static_cast<int>(order_->column)) {
            item.fmt |= order_->descending ? HDF_SORTDOWN : HDF_SORTUP;
        }
        SendMessageW(header, HDM_SETITEMW, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&item));
    }
}

std::optional<std::size_t> CDocSettingsDlgTab4::SelectedFont() const noexcept {
    const LRESULT row = SendItem(QZ_FONTS_LIST, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    const bool any = Handle() && row >= 0 && static_cast<std::size_t>(row) < places_.size();
    return any ? std::optional(places_[static_cast<std::size_t>(row)]) : std::nullopt;
}

void CDocSettingsDlgTab4::Select(std::size_t font) const {
    const auto row = static_cast<WPARAM>(std::ranges::find(places_, font) - places_.begin());
    LVITEMW item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    SendItem(QZ_FONTS_LIST, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&item));
    item.state = item.stateMask;
    SendItem(QZ_FONTS_LIST, LVM_SETITEMSTATE, row, reinterpret_cast<LPARAM>(&item));
    SendItem(QZ_FONTS_LIST, LVM_ENSUREVISIBLE, row, FALSE);
}

// The embedding
// ------------------------------------------------------------------------------------------------------

/// Return opens the font instead of pressing OK.
bool CDocSettingsDlgTab4::WantsKey(HWND control, UINT message, WPARAM key) {
    return control == Item(QZ_FONTS_LIST) && message == WM_KEYDOWN && key == VK_RETURN && SelectedFont();
}

void CDocSettingsDlgTab4::OnKey(HWND control, UINT, WPARAM) {
    NMITEMACTIVATE details{};
    details.hdr = {control, QZ_FONTS_LIST, LVN_ITEMACTIVATE};
    // As a message, so that the tab lives until it has been handled.
    SendMessageW(Handle(), WM_NOTIFY, QZ_FONTS_LIST, reinterpret_cast<LPARAM>(&details));
}

void CDocSettingsDlgTab4::ChooseEmbedding(std::size_t font) {
    const auto level = AskForEmbedding(GetAncestor(Handle(), GA_ROOT), rows_[font].level, TextLanguage());
    if (!level) return;
    const ComPtr<IDispatch> object = fonts_[font];
    const HRESULT written = Guard(IID_NULL, [&] {
        Objects().SetAttribute(object.Get(), L"Embedding", _variant_t(static_cast<long>(*level)));
    });
    if (FAILED(written) && Handle()) ShowFailure(written);
    const HRESULT read = Guard(IID_NULL, [&] {
        if (const auto row = ReadFont(object.Get())) rows_[font] = *row;
    });
    if (FAILED(read)) ShowErrorInDebugger();
    if (Handle()) InvalidateRect(Item(QZ_FONTS_LIST), nullptr, TRUE);
}

}  // namespace qz
