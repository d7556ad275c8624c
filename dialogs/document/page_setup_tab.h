// The tab with the setup of a document's pages.
#pragma once

#include "dialogs/document/doc_settings_tab.h"
#include "dialogs/document/page_setup.h"
#include "dialogs/document/scoped_write.h"

namespace qz {

class CDocSettingsDlgTab3 final : public CDocSettingsDlgTab {
  public:
    CDocSettingsDlgTab3(const SettingsSource& source, Language language) noexcept;

  private:
    void OnInit() override;
    bool OnCommand(int id, int notification) override;
    void Fill() override;
    void Write() override;
    void ReadSetup(SizeUnit& unit, SetupValues& values);
    void ShowSetup() const;
    void ShowUnit() const;
    void ShowSizes(bool margins) const;
    void OnPaperChosen();
    void AppendTexts(int list, unsigned firstTextId, int count) const;
    void AppendText(int list, unsigned textId) const;
    void EnableSizes() const noexcept;
    SetupEntries Entries() const;
    int ChosenPaper() const noexcept;
    PageScope ChosenScope() const noexcept;

    PageSetup setup_;
    PageScope shownScope_ = PageScope::All;
    bool touched_ = false;  ///< Something was chosen, or a write was tried.
};

}  // namespace qz
