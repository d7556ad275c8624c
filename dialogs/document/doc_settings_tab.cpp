#include "dialogs/document/doc_settings_tab.h"

#include "host/attributes.h"
#include "res/strings.h"
#include "res/text_ids.h"

namespace qz {

HRESULT CDocSettingsDlgTab::Exchange(ExchangeDirection direction) noexcept {
    return Guard(IID_NULL, [&] {
        failure_.clear();
        try {
            if (!source_.document) Throw(E_POINTER, L"The host gives no document");
            direction == ExchangeDirection::Fill ? Fill() : Write();
        } catch (const ComError& error) {
            failure_ = error.text;
            throw;
        }
    });
}

void CDocSettingsDlgTab::ShowFailure() { ShowError(failure_); }

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
