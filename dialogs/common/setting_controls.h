// The controls of a dialog that show a settings record.
#pragma once

#include "dialogs/common/setting_field.h"
#include "settings/settings_record.h"

#include <windows.h>

#include <vector>

namespace qz {

/// How lengths are shown to this user: the measures of his system, the decimal sign of the language.
LengthManner UserLengthManner(Language language) noexcept;

/// Binds fields to check boxes and text entries of a dialog. What the user does not touch keeps the value
/// that it was shown from, in range or not. Used on one thread, while the dialog's window is there.
class SettingControls {
  public:
    struct Bound {
        const SettingField* field;
        HWND control;
        FieldValue value;    ///< Last shown by us...
        std::wstring shown;  ///< ...as this text.
    };

    explicit SettingControls(LengthManner manner) noexcept : manner_(manner) {}

    /// The field must outlive this.
    void Bind(const SettingField& field, HWND control);
    void Show(zrSettings& record);
    void Show(std::wstring_view key, const FieldValue& value);

    const LengthManner& Manner() const noexcept { return manner_; }
    const std::vector<Bound>& All() const noexcept { return all_; }
    /// Null for a key that no control is bound to.
    const Bound* Find(std::wstring_view key) const noexcept;
    /// What a control tells now; nothing when it is refused.
    std::optional<FieldValue> Value(const Bound& bound) const;

    /// The first enabled control whose entry is refused; null when there is none.
    const Bound* FirstRefused() const;
    /// Tells the user why an entry is refused and leads him there.
    void Tell(HWND dialog, Language language, const Bound& refused) const;
    /// Writes what differs. An entry that is refused writes nothing.
    void Write(zrSettings& record) const;

  private:
    void Show(Bound& bound, const FieldValue& value) const;

    LengthManner manner_;
    std::vector<Bound> all_;
};

/// Shows a message over the dialog, then puts the focus into a control of it, its text selected.
void TellAboutEntry(HWND dialog, const std::wstring& text, HWND control);

}  // namespace qz
