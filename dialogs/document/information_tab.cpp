#include "dialogs/document/information_tab.h"

#include "dialogs/document/entered_text.h"
#include "dialogs/document/list_columns.h"
#include "host/attributes.h"
#include "com/text.h"
#include "host/host_calls.h"
#include "host/object_path.h"
#include "res/dialog_ids.h"
#include "res/text_ids.h"

#include <commctrl.h>

namespace qz {

namespace {

constexpr const wchar_t* informationFields[CDocSettingsDlgTab1::fieldCount] = {
    L"Title", L"Subject", L"Author", L"Creator", L"Keywords", L"Producer"};

constexpr std::size_t longestInformation = 512;  // characters, 1024 bytes
constexpr long informationCategory = 'I';

constexpr ListColumn informationColumns[] = {{QZ_TEXT_INFO_NAME_COLUMN, 35}, {QZ_TEXT_INFO_VALUE_COLUMN, 65}};

int ControlOf(std::size_t field) noexcept { return QZ_INFO_TITLE + static_cast<int>(field); }

}  // namespace

CDocSettingsDlgTab1::CDocSettingsDlgTab1(const SettingsSource& source, Language language) noexcept
    : CDocSettingsDlgTab(QZ_DIALOG_DOCUMENT_INFO, source, language) {}

void CDocSettingsDlgTab1::OnInit() {
    for (std::size_t field = 0; field < fieldCount; ++field) {
        controls_[field].Take(Item(ControlOf(field)), longestInformation);
    }
    AddColumns(Item(QZ_INFO_FURTHER), informationColumns, TextLanguage());
}

void CDocSettingsDlgTab1::Fill() {
    for (std::size_t field = 0; field < fieldCount; ++field)
        ShowText(field, ReadText(informationFields[field]));
    ListFurther();
}

void CDocSettingsDlgTab1::ShowText(std::size_t field, const std::wstring& text) {
    controls_[field].Show(text.c_str());
    filled_[field] = Filled{text, ItemText(ControlOf(field))};
}

/// A document may be without further information.
void CDocSettingsDlgTab1::ListFurther() {
    SendItem(QZ_INFO_FURTHER, LVM_DELETEALLITEMS);
    const ComPtr<IDispatch> information = FindObject(Source().host.Get(), informationPath);
    if (!information) return;
    HostAttributes members;
    ForEachItem(Objects().Attributes(information.Get()).Get(), [&](const VARIANT& item) {
        const ComPtr<IDispatch> attribute = RequireAttribute(item);
        if (members.Category(attribute.Get()) != informationCategory) return true;
        const _variant_t value = members.Value(attribute.Get());
        if (value.vt == VT_BSTR && SysStringLen(value.bstrVal) > 0) {
            Append(members.Name(attribute.Get()), ToText(value));
        }
        return true;
    });
}

void CDocSettingsDlgTab1::Append(const std::wstring& name, const std::wstring& value) const {
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = static_cast<int>(SendItem(QZ_INFO_FURTHER, LVM_GETITEMCOUNT));
    item.pszText = const_cast<wchar_t*>(name.c_str());  // only read
    const LRESULT row = SendItem(QZ_INFO_FURTHER, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    if (row < 0) Throw(E_OUTOFMEMORY, L"The list of information takes no more");
    item.iSubItem = 1;
    item.pszText = const_cast<wchar_t*>(value.c_str());
    SendItem(QZ_INFO_FURTHER, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void CDocSettingsDlgTab1::Write() {
    std::array<std::optional<std::wstring>, fieldCount> entered;
    for (std::size_t field = 0; field < fieldCount; ++field) entered[field] = Entered(field);
    for (std::size_t field = 0; field < fieldCount; ++field) {
        if (!entered[field]) continue;
        Objects().SetAttribute(Source().document.Get(), informationFields[field],
                               TextVariant(*entered[field]));
    }
}

/// Nothing for a field that the document did not tell and the user left empty.
std::optional<std::wstring> CDocSettingsDlgTab1::Entered(std::size_t field) const {
    const std::wstring now = ItemText(ControlOf(field));
    if (filled_[field])
        return EnteredText(now, filled_[field]->shown, filled_[field]->source, longestInformation);
    if (now.empty()) return std::nullopt;
    return now.substr(0, longestInformation);
}

}  // namespace qz
