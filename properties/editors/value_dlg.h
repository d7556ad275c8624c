// The base of the value editors: a small dialog that changes one attribute of a host object.
#pragma once

#include "com/scope.h"
#include "properties/editors/edited_attribute.h"
#include "properties/model/edit_state.h"
#include "ui/child_keys.h"
#include "ui/dialog.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace qz {

/// What the inspector lends its editors. Each call may run foreign code: look again at `Handle()` after it.
class ValueDlgSite {
  public:
    /// A modal window of an editor opens, has closed.
    virtual void OpeningChildDialog() = 0;
    virtual void ClosingChildDialog() = 0;
    /// The editor shows one value instead of several, or the other way round.
    virtual void ValuesChanged() = 0;
    /// Shows a message box over the inspector; gives the button pressed.
    virtual int ShowMessage(const std::wstring& text, const std::wstring& caption, UINT style) = 0;
    /// Lets the user change the attributes of another object, in a modal dialog over the inspector. What he
    /// changes is recorded with the inspector's own changes. Throws when the dialog cannot be shown.
    virtual void EditObject(IDispatch* object) = 0;
    /// The object that the site is a part of.
    virtual IUnknown* SiteOwner() noexcept = 0;

  protected:
    ~ValueDlgSite() = default;
};

/// Tells the site of a modal window for a scope.
class ChildDialogScope {
  public:
    explicit ChildDialogScope(ValueDlgSite& site) : site_(site) { site_.OpeningChildDialog(); }
    ~ChildDialogScope() { site_.ClosingChildDialog(); }
    ChildDialogScope(const ChildDialogScope&) = delete;
    ChildDialogScope& operator=(const ChildDialogScope&) = delete;

  private:
    ValueDlgSite& site_;
};

/// An editor. Owned by a shared_ptr; apartment-threaded. A derived editor shows values and tells what was
/// entered; reading, writing at once or after a pause, and taking back are the same for all.
class CValueDlg : public Dialog, private ChildKeyListener {
  public:
    /// To be called once, before Create. The site outlives the editor's window.
    void SetInputs(EditedAttribute edited, ValueDlgSite& site);

    /// Writes what still waits, into the objects that it was entered for. The user is told of a failure.
    void Finish();
    /// Shows what the host has now, unless the user is entering something or the host called because of the
    /// editor's own writing.
    void FollowHost();
    /// Opens the editor's drop-down or picker, if it has one.
    virtual void OpenPicker() {}
    /// Whether several objects with different values are edited and nothing was entered yet.
    bool ShowsSeveralValues() const noexcept { return state_.Several(); }
    /// Whether Escape has something to restore.
    bool CanRestore() const noexcept { return state_.CanRestore(); }
    /// Shows, and if need be writes, what was there when the editor was opened.
    void Restore();

  protected:
    CValueDlg(unsigned templateId, Language language) noexcept : Dialog(templateId, language) {}

    // For the derived editor: what it must do
    // --------------------------------------------------

    /// The window is there; fill and arrange the controls. The value is shown afterwards.
    virtual void OnEditorInit() {}
    /// The editor got a size, in pixels.
    virtual void OnSized(SIZE /*client*/) {}
    /// Shows a value, whatever its type; null: several objects with different values. Notifications that it
    /// causes are not passed on.
    virtual void ShowValue(const _variant_t* value) = 0;
    /// What the controls say; nothing when that is no value of the attribute.
    virtual std::optional<_variant_t> EnteredValue() const = 0;
    /// As Dialog::OnCommand, but not for changes that the editor makes itself.
    virtual bool OnEdited(int /*id*/, int /*notification*/) { return false; }
    /// The window is about to go, with nothing waiting.
    virtual void OnFinished() {}
    /// Whether what was entered stays when it is to be written and is no value; else what the host has is
    /// shown again.
    virtual bool KeepsWhatIsNoValue() const { return true; }
    /// Whether Return in a control is the control's own.
    virtual bool KeepsReturn(HWND /*control*/) const { return false; }

    // For the derived editor: services
    // ----------------------------------------------------------------------

    const EditedAttribute& Edited() const noexcept { return edited_; }
    ValueDlgSite& Site() const noexcept { return *site_; }
    bool ReadOnly() const noexcept { return IsReadOnly(edited_.row); }
    _variant_t ReadObjectAttribute(std::wstring_view name) const;

    /// The user chose: writes at once. A failure is told to the user; what he entered stays.
    void WriteNow();
    /// The user typed: writes when he has paused for two seconds.
    void WriteLater();
    /// Writes what waits, if anything does, once the messages now under way are handled.
    void WriteSoon();
    /// Does what the user asked for and tells him when it fails; whether it succeeded.
    bool Attempt(const std::function<void()>& action);
    /// Does something to the controls whose notifications mean nothing.
    template <class Change>
    void WithoutNotifications(Change&& change) {
        const bool before = state_.ChangeOwnControls(true);
        const ScopeExit restored([this, before] { state_.ChangeOwnControls(before); });
        change();
    }

    void OnInit() final;
    bool OnCommand(int id, int notification) final;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool WantsKey(HWND control, UINT message, WPARAM key) override;
    void OnKey(HWND control, UINT message, WPARAM key) override;

  private:
    ComPtr<IUnknown> KeepAlive() noexcept final { return site_ ? site_->SiteOwner() : nullptr; }
    void Show(const AttributeValues& values);
    void ShowSeveral(bool several);
    void DisableAll() const noexcept;
    void StopWaiting() noexcept;
    template <class Writing>
    bool Write(Writing&& writing);
    void TellFailure(const std::wstring& reason);

    EditedAttribute edited_;
    ValueDlgSite* site_ = nullptr;
    ChildKeys keys_{*this};
    AttributeValues opened_;  ///< What the editor was opened with.
    EditState state_;
};

using ValueDlgPointer = std::shared_ptr<CValueDlg>;

}  // namespace qz
