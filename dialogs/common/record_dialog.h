// The base of the dialogs that show a settings record.
#pragma once

#include "dialogs/common/setting_controls.h"
#include "res/dialog_ids.h"
#include "ui/dialog.h"

namespace qz {

/// A modal dialog with OK, Cancel and a button for the defaults.
class RecordDialog : public Dialog {
  protected:
    RecordDialog(unsigned templateId, Language language) noexcept
        : Dialog(templateId, language), controls_(UserLengthManner(language)) {}

    /// OK: ends the dialog, or tells what is wrong.
    virtual void Finish() = 0;
    /// Shows the values of a new record.
    virtual void ShowDefaults() = 0;
    /// Any other notification.
    virtual bool OnNotification(int id, int notification) = 0;

    SettingControls& Controls() noexcept { return controls_; }
    const SettingControls& Controls() const noexcept { return controls_; }

  private:
    bool OnCommand(int id, int notification) final {
        switch (id) {
            case IDOK:
                Finish();
                return true;
            case IDCANCEL:
                EndModal(IDCANCEL);
                return true;
            case QZ_SETTINGS_DEFAULTS:
                ShowDefaults();
                return true;
            default:
                return OnNotification(id, notification);
        }
    }

    SettingControls controls_;
};

}  // namespace qz
