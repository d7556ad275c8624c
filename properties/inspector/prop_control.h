// The property inspector as a control: joins the list of attributes, the editors and the host.
#pragma once

#include "com/class_info.h"
#include "com/dispatch.h"
#include "panes/common/pane_control.h"
#include "panes/common/stage.h"
#include "properties/editors/edited_attribute.h"
#include "properties/inspector/inspector_dialog.h"
#include "properties/editors/value_dlg.h"

#include "generated/qzVandraExt.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace qz {

/// See the type library for the members. Without an object the inspector shows nothing. What it shows it
/// reads from the host when it shows it; it keeps no values but the old ones of what it changed.
class PropControl final
    : public Object<PropControl, PaneOf<IqzPropCtrl, DIID__IqzPropCtrlEvents>, Dispatch<IqzPropCtrl>,
                    ProvideClassInfo<CLSID_qzPropCtrl, DIID__IqzPropCtrlEvents>>,
      private InspectorDialogListener,
      private ValueDlgSite {
  public:
    /// The put lets go of the object and of the host before; E_NOINTERFACE and the like for what is no host,
    /// null for none.
    STDMETHODIMP put_VandraX(IDispatch* newVal) override;
    STDMETHODIMP get_VandraX(IDispatch** pVal) override;
    /// The put forgets the changes of the object before, without a question. The failure of an object that
    /// does not tell its path leaves the inspector without one; E_FAIL when its attributes cannot be listed.
    STDMETHODIMP put_Object(IDispatch* newVal) override;
    STDMETHODIMP get_Object(IDispatch** pVal) override;
    STDMETHODIMP get_SelectionName(BSTR* pVal) override;
    /// Leaves the answer untouched when nothing was asked. A failure to take changes back leaves those that
    /// are left in the list.
    STDMETHODIMP Closing(long* pAnswer) override;

    /// For an inspector in the service of another one: changes are recorded there, whatever the object, and
    /// confirmed there. To be called before an object is set.
    void RecordIn(const std::shared_ptr<AttributeChanges>& changes) { sharedChanges_ = changes; }
    /// Called after each event of the host that was followed; none to be told no longer.
    void TellFollowed(std::function<void()> followed) { followed_ = std::move(followed); }

  private:
    // prop_control.cpp: members, host and object
    REFCLSID ClassId() const noexcept override { return CLSID_qzPropCtrl; }
    void ShowDocument() override;
    void ForgetDocument() override;
    void FollowHost() override;

    void SetObject(const ComPtr<IDispatch>& object);
    void TakeObject(const ComPtr<IDispatch>& object);
    void FollowChange();
    void FollowSelection(IVandraX* host);
    void ReopenEditor();
    bool ObjectIsThere();
    bool IsInspected(const ComPtr<IDispatch>& object);
    bool TakeNews();
    bool ConfirmationWanted();

    // prop_control_list.cpp: tabs, list, editor
    void ShowObject();
    std::vector<AttributeRow> ReadRows();
    void FillList(const std::vector<AttributeRow>& rows, ListRefill refill);
    void ChooseRemembered(const std::vector<std::wstring>& names);
    void OpenEditor(long index);
    void ShowEditor(const ValueDlgPointer& editor);
    void PlaceEditor();
    void CloseEditor();

    void OnTabChosen() override;
    void OnAttributeChosen() override;
    void OnPickerKey() override;
    bool CanRestoreValue() const override { return editor_ && editor_->CanRestore(); }
    void OnRestoreKey() override;
    IUnknown* DialogOwner() noexcept override { return Identity(); }

    void OpeningChildDialog() override;
    void ClosingChildDialog() override;
    void ValuesChanged() override;
    int ShowMessage(const std::wstring& text, const std::wstring& caption, UINT style) override;
    void EditObject(IDispatch* object) override;
    IUnknown* SiteOwner() noexcept override { return Identity(); }

    // prop_control_window.cpp: the window
    std::wstring Title() const override;
    SIZEL InitialExtent() const override { return {6000, 9000}; }
    OLE_COLOR InitialBackColor() const override { return 0x80000000u | COLOR_BTNFACE; }
    void OnDraw(HDC dc, const RECT& bounds) override;
    void OnWindowCreated() override;
    void OnSized(SIZE client) override;
    HWND FocusChild() const noexcept override;
    HWND TabTarget(bool backwards) const override;
    bool IsInputKey(const MSG& message) const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void MakeDialog();
    void ShowDialog(bool shown);
    HWND DialogWindow() const noexcept { return dialog_ ? dialog_->Handle() : nullptr; }
    /// The inner dialog is hidden without one.
    bool ShowsObject() const noexcept { return object_ && Host(); }

    std::shared_ptr<HostMembers> members_;
    ComPtr<IDispatch> object_;
    ComPtr<IDispatch> toldObject_;  ///< The one that the container was told of last.
    std::wstring path_;
    std::shared_ptr<AttributeChanges> changes_;
    std::shared_ptr<AttributeChanges> sharedChanges_;  ///< Of the inspector that this one serves, if any.
    std::function<void()> followed_;
    std::shared_ptr<InspectorDialog> dialog_;
    Language dialogLanguage_ = Language::English;
    int focusedPart_ = 0;  ///< The part that had the focus when the dialog was hidden; 0 for none.
    ValueDlgPointer editor_;
    Stage editors_;  ///< Another one with every editor; the pane's contents are those of one object.
};

}  // namespace qz
