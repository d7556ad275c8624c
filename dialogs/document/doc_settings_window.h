// The window of the document settings: tabs, OK and Cancel.
#pragma once

#include "dialogs/document/doc_settings_tab.h"
#include "ui/child_keys.h"

#include <array>
#include <memory>

namespace qz {

/// Modal. OK writes tab after tab and closes; at the first failure it shows that tab and stays, with all that
/// was entered. Ctrl+Tab and Ctrl+Page Down go to the next tab, with Shift and Ctrl+Page Up to the one
/// before. Made by MakeDialog.
class DocSettingsWindow final : public Dialog, private ChildKeyListener {
  public:
    DocSettingsWindow(const SettingsSource& source, Language language);

  private:
    static constexpr std::size_t tabCount = 4;

    void OnInit() override;
    bool OnCommand(int id, int notification) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

    bool WantsKey(HWND control, UINT message, WPARAM key) override;
    void OnKey(HWND control, UINT message, WPARAM key) override;

    void AppendTab(std::size_t tab) const;
    RECT TabArea() const noexcept;
    std::size_t ChosenTab() const noexcept;
    void ShowTab(std::size_t tab) const;
    void Accept();
    void WriteTabs();

    std::array<std::shared_ptr<CDocSettingsDlgTab>, tabCount> tabs_;
    ChildKeys keys_{*this};
    bool busy_ = false;
};

}  // namespace qz
