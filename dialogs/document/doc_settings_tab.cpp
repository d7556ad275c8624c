#include "dialogs/document/doc_settings_tab.h"

#include "host/attributes.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

HRESULT CDocSettingsDlgTab::Exchange(ExchangeDirection direction) noexcept {
    return Guard(IID_NULL, [&] {
        if (!source_.document) Throw(E_POINTER, L"The host gives no document");
        direction == ExchangeDirection::Fill ? Fill() : Write();
    });
}

void CDocSettingsDlgTab::ShowFailure(HRESULT code) {
    ShowError(Text(QZ_TEXT_VALUE_NOT_WRITTEN) + L"\n\n" + TakeErrorText(code));
}

void CDocSettingsDlgTab::ShowError(const std::wstring& text) const {
    MessageBeep(MB_ICONERROR);
    const HWND owner = Handle() ? GetAncestor(Handle(), GA_ROOT) : nullptr;
    MessageBoxW(owner, text.c_str(), Text(QZ_TEXT_ERROR_CAPTION).c_str(), MB_OK | MB_ICONERROR);
}

_variant_t CDocSettingsDlgTab::Read(std::wstring_view attribute) {
    return objects_.Attribute(source_.document.Get(), attribute);
}

std::wstring CDocSettingsDlgTab::ReadText(std::wstring_view attribute) { return ToText(Read(attribute)); }

long CDocSettingsDlgTab::ReadNumber(std::wstring_view attribute) { return ToLong(Read(attribute)); }

std::wstring CDocSettingsDlgTab::Text(unsigned textId) const { return LoadText(TextLanguage(), textId); }

}  // namespace qz
