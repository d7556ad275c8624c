// The tab with a document's protection.
#pragma once

#include "dialogs/document/doc_settings_tab.h"
#include "dialogs/document/security_rules.h"

namespace qz {

class CDocSettingsDlgTab2 final : public CDocSettingsDlgTab {
  public:
    CDocSettingsDlgTab2(const SettingsSource& source, Language language) noexcept;

    void ShowFailure(HRESULT code) override;

  private:
    /// What the four fields of passwords show.
    struct Passwords {
        std::wstring owner, ownerConfirmation, user, userConfirmation;
    };

    void OnInit() override;
    void Fill() override;
    void Write() override;
    Protection ReadProtection();
    Passwords ShownPasswords() const;
    void ShowLevel(std::int32_t level) const;
    std::optional<std::int32_t> ChosenLevel() const noexcept;
    std::int32_t Ticked() const noexcept;
    /// Throws when the confirmation is another one.
    void RequireConfirmed(const std::wstring& password, const std::wstring& confirmation, int confirmationId);
    void Apply(const Protection& protection);

    Passwords shown_;
    int wrongConfirmation_ = 0;  ///< The field that let the tab fail.
    bool levelMissing_ = false;
    bool refused_ = false;
};

}  // namespace qz
