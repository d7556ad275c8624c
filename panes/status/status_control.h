// The status bar as a control: joins the fields and the host.
#pragma once

#include "com/class_info.h"
#include "com/dispatch.h"
#include "host/page_navigation.h"
#include "panes/common/context_menu.h"
#include "panes/common/pane_control.h"
#include "panes/status/status_values.h"
#include "panes/status/status_view.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// See the type library for the members. Those with a host return S_OK and do nothing without one. A field
/// whose value the host fails to tell stays as it is; nobody is told.
class StatusControl final
    : public Object<StatusControl, PaneOf<IqzStatusCtrl, GUID_NULL>, Dispatch<IqzStatusCtrl>,
                    ProvideClassInfo<CLSID_qzStatusCtrl, GUID_NULL>>,
      private ContextMenuSource {
  public:
    STDMETHODIMP Initialize(IDispatch* pDispatch) override;
    STDMETHODIMP Reset() override;
    STDMETHODIMP get_UnitOfMeasure(StatusCtrlUnitsOfMeasure* pVal) override;
    STDMETHODIMP put_UnitOfMeasure(StatusCtrlUnitsOfMeasure newVal) override;
    STDMETHODIMP get_SelectedObjectNameVisible(VARIANT_BOOL* pVal) override;
    STDMETHODIMP put_SelectedObjectNameVisible(VARIANT_BOOL newVal) override;
    STDMETHODIMP get_SelectedObjectCoordsVisible(VARIANT_BOOL* pVal) override;
    STDMETHODIMP put_SelectedObjectCoordsVisible(VARIANT_BOOL newVal) override;
    STDMETHODIMP get_PageSizeVisible(VARIANT_BOOL* pVal) override;
    STDMETHODIMP put_PageSizeVisible(VARIANT_BOOL newVal) override;
    STDMETHODIMP get_BackColor(OLE_COLOR* pVal) override { return GetBackColor(pVal); }
    STDMETHODIMP put_BackColor(OLE_COLOR newVal) override;

  private:
    // status_control.cpp: members, host and fields
    REFCLSID ClassId() const noexcept override { return CLSID_qzStatusCtrl; }
    std::span<const PersistentProperty> PersistentProperties() const override;
    void ShowDocument() override;
    void ForgetDocument() override;
    void FollowHost() override;

    HRESULT TellVisible(StatusField field, VARIANT_BOOL* answer) const;
    HRESULT MakeVisible(StatusField field, VARIANT_BOOL visible);
    void ReadHost();
    void ReadObject(const ShownDocument& shown);
    template <class Value, class Read>
    bool ReadInto(const ShownDocument& shown, Value& value, Read&& read);
    StatusContent Content() const;
    void ShowFields();

    // status_control_input.cpp: the window, and what the user does
    std::wstring Title() const override;
    SIZEL InitialExtent() const override { return {16000, 700}; }
    OLE_COLOR InitialBackColor() const override { return 0x80000000u | COLOR_BTNFACE; }
    void OnDraw(HDC dc, const RECT& bounds) override;
    void OnWindowCreated() override;
    void OnSized(SIZE client) override;
    HWND FocusChild() const noexcept override { return view_.FirstToFocus(); }
    HWND TabTarget(bool backwards) const override { return view_.NextToFocus(GetFocus(), backwards); }
    bool IsInputKey(const MSG& message) const override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> ColourText(HDC dc, HWND child) const;
    void SelectEntry(StatusField entry) const;
    void OnCommand(StatusField field, UINT notification);
    bool OnButtonDown(POINT point);
    POINT KeyboardMenuPoint() override;
    void OpenMenu(const MenuRequest&, POINT screen) override { ChooseUnit(screen); }
    void OnEntryKey(StatusField entry, WPARAM key);

    bool HasFocus() const noexcept;
    void FinishEntries();
    bool Apply(StatusField entry);
    void ApplyText(StatusField entry, const std::wstring& text);
    void Step(PageStep step);
    void GoToPage(const ShownDocument& shown, std::int32_t page) const;
    void ChooseUnit(POINT screen);
    void GiveFocusBack();

    LengthUnit unit_ = LengthUnit::Twips;
    PerField<bool> visible_{{true, true, true, true, true, true, true, true, true}};
    StatusValues values_;
    StatusView view_;
    /// The user has changed something and is still in the bar: the document gets the focus when he leaves.
    bool focusOwed_ = false;
};

}  // namespace qz
