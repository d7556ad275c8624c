// The thumbnail pane as a control: joins model, painter and host.
#pragma once

#include "com/class_info.h"
#include "com/dispatch.h"
#include "panes/common/context_menu.h"
#include "panes/common/pane_control.h"
#include "panes/thumbnails/drag_picture.h"
#include "panes/thumbnails/page_commands.h"
#include "panes/thumbnails/page_drop_target.h"
#include "panes/thumbnails/thumbnail_events.h"
#include "panes/thumbnails/thumbnail_model.h"
#include "panes/thumbnails/thumbnail_painter.h"
#include "panes/thumbnails/thumbnail_scroll_bar.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// A mouse button that is down on the pane.
struct Press {
    POINT point{};  ///< Client pixels.
    std::optional<std::size_t> record;
};

/// The modifier keys as the pane's key messages tell them.
struct HeldKeys {
    bool shift = false;
    bool control = false;
};

/// See the type library for the members. Those with a host return S_OK and do nothing without one.
class ThumbnailControl final
    : public Object<ThumbnailControl, PaneOf<IqzThumbnailCtrl, DIID__IqzThumbnailCtrlEvents>,
                    Dispatch<IqzThumbnailCtrl>,
                    ProvideClassInfo<CLSID_qzThumbnailCtrl, DIID__IqzThumbnailCtrlEvents>>,
      private PageDropListener,
      private ContextMenuSource {
  public:
    ThumbnailControl();

    STDMETHODIMP Initialize(IDispatch* pDispatch) override;
    STDMETHODIMP Reset() override;
    STDMETHODIMP ScrollPageThumbIntoView(long page) override;
    STDMETHODIMP get_IsInitialized(long* pVal) override;
    STDMETHODIMP get_ThumbSizeFactor(long* pVal) override;
    STDMETHODIMP put_ThumbSizeFactor(long newVal) override;
    STDMETHODIMP RedrawAllThumbs() override;
    STDMETHODIMP get_SelectedPages(VARIANT* pVal) override;
    STDMETHODIMP put_SelectedPages(VARIANT newVal) override;
    STDMETHODIMP get_BackColor(OLE_COLOR* pVal) override { return GetBackColor(pVal); }
    STDMETHODIMP put_BackColor(OLE_COLOR newVal) override { return PutBackColor(newVal); }
    STDMETHODIMP get_Settings(qzThumbnailCtrlSettings* pVal) override;
    STDMETHODIMP put_Settings(qzThumbnailCtrlSettings newVal) override;
    STDMETHODIMP SettingsChange(long enabled, qzThumbnailCtrlSettings settingsToChange) override;
    STDMETHODIMP get_SelectedPagesVariant(VARIANT* pVal) override;

  private:
    // thumbnail_control.cpp: members, host and records
    REFCLSID ClassId() const noexcept override { return CLSID_qzThumbnailCtrl; }
    std::span<const PersistentProperty> PersistentProperties() const override;
    void CheckHost(IVandraX* host) override;
    void ShowDocument() override;
    void ForgetDocument() override;
    void FollowHost() override;
    const Stage& Contents() const noexcept override { return model_.Contents(); }
    void OnReset() override;

    void RebuildAndMarkCurrent();
    void Rebuild();
    void ReadRecords(IVandraX* host, std::vector<ThumbnailRecord>& records);
    enum class Pages { AskHost, Changed };
    void Follow(Pages pages);
    void TakeRecords(std::vector<ThumbnailRecord> records);
    void ForgetDrag();
    void MarkCurrent();

    // thumbnail_control_view.cpp: drawing and scrolling
    std::wstring Title() const override;
    OLE_COLOR InitialBackColor() const override { return RGB(255, 255, 255); }
    void OnDraw(HDC dc, const RECT& bounds) override;
    void OnSized(SIZE client) override;
    void DrawPane(HDC dc, const RECT& dirty);
    void Paint(HDC dc, const RECT& dirty);
    void ScrollTo(std::int64_t position);
    void InvalidateRecord(std::size_t index);
    void UpdateNow();

    // thumbnail_control_input.cpp: what the user does
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnWindowCreated() override;
    bool IsInputKey(const MSG& message) const override;
    void OnButtonDown(POINT point);
    void OnButtonUp(WPARAM keys);
    void OnMouseMove(WPARAM keys, POINT point);
    bool OnKeyDown(WPARAM key);
    bool OnControlKey(WPARAM key);
    bool SystemSeesDrag(WPARAM keys);
    void OnKeyUp(WPARAM key) noexcept;
    void ReadHeldKeys() noexcept;
    void Click(std::size_t index, ClickModifiers modifiers);
    void Show(const SelectionChange& change);
    void GoToPage(std::size_t index);
    void OnReturn();
    bool WantsMenu(const MenuRequest& request) const override;
    POINT KeyboardMenuPoint() override;
    void OpenMenu(const MenuRequest& request, POINT screen) override;

    // thumbnail_control_pages.cpp: what is done with the selected pages
    PageCommandState CommandState() const;
    void RunCommand(PageCommand command);
    void Copy();
    void Cut();
    void Paste();
    void DeleteSelected();
    void DeletePagesOf(const ShownDocument& shown, std::vector<long> pages);
    bool RefusesToDelete(IVandraX* host, std::size_t pages);
    void Refuse(qzThumbnailCtrlShowMsgConsts message, unsigned textId);
    template <class Change>
    void ChangePages(const ShownDocument& shown, Change&& change);
    void FollowOwnChange();
    long InsertFrom(IDataObject* data, std::optional<std::size_t> target, std::vector<long> moved);
    long InsertionPoint(std::optional<std::size_t> target) const;
    void StartDrag(bool copies);
    void DragSelection(const ComPtr<IVandraX>& host, std::size_t pressed, DWORD allowed);
    DragPicture PictureOfDrag(IVandraX* host);

    // PageDropListener
    bool AcceptsDrops() override;
    void OnDragOver(POINT client) override;
    void OnDragLeave() override;
    DWORD OnDrop(IDataObject* data, POINT client, DWORD effect) override;
    ComPtr<IUnknown> KeepAlive() noexcept override { return Identity(); }
    void SetDropTarget(std::optional<std::size_t> target);

    ThumbnailModel model_;
    ThumbnailPainter painter_{model_};
    ThumbnailScrollBar scrollBar_{model_};
    ThumbnailEvents events_{Events()};
    PageDropRegistration dropTarget_;
    /// The size factor that the records were made with: a new one shows from the next rebuild on, also in the
    /// pictures drawn until then.
    long recordFactor_ = 0;
    long settings_ = qzThumbnailCtrlSettings_ContextMenu | qzThumbnailCtrlSettings_PageMoveOrDragAndDrop;
    std::optional<Press> press_;
    HeldKeys held_;
    /// The record that was pressed to start the drag now under way.
    std::optional<std::size_t> draggedRecord_;
};

}  // namespace qz
