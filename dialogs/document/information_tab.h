// The tab with what a document says of itself.
#pragma once

#include "dialogs/document/doc_settings_tab.h"
#include "dialogs/document/rich_field.h"

#include <array>
#include <optional>

namespace qz {

class CDocSettingsDlgTab1 final : public CDocSettingsDlgTab {
  public:
    CDocSettingsDlgTab1(const SettingsSource& source, Language language) noexcept;

    static constexpr std::size_t fieldCount = 6;

  private:
    /// A field that was filled: from what, and how that shows.
    struct Filled {
        std::wstring source;
        std::wstring shown;
    };

    void OnInit() override;
    void Fill() override;
    void Write() override;
    void ShowText(std::size_t field, const std::wstring& text);
    void ListFurther();
    void Append(const std::wstring& name, const std::wstring& value) const;
    std::optional<std::wstring> Entered(std::size_t field) const;

    std::array<RichField, fieldCount> controls_;
    std::array<std::optional<Filled>, fieldCount> filled_;
};

}  // namespace qz
