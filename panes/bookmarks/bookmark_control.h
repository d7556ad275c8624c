// The bookmark pane as a control: the outline of the host's document as a tree.
#pragma once

#include "com/class_info.h"
#include "com/dispatch.h"
#include "panes/bookmarks/bookmark_images.h"
#include "panes/bookmarks/bookmark_tree.h"
#include "panes/bookmarks/item_colours.h"
#include "panes/common/tree_pane.h"
#include "ui/gdi.h"

#include "generated/qzVandraExt.h"

namespace qz {

/// See the type library for the members. Those with a host return S_OK and do nothing without one.
class BookmarkControl final
    : public Object<BookmarkControl, PaneOf<IqzBookmarkCtrl, DIID__IqzBookmarkCtrlEvents, TreePane>,
                    Dispatch<IqzBookmarkCtrl>,
                    ProvideClassInfo<CLSID_qzBookmarkCtrl, DIID__IqzBookmarkCtrlEvents>>,
      private BookmarkTreeListener {
  public:
    STDMETHODIMP Initialize(IDispatch* pDispatch) override;
    STDMETHODIMP Refresh() override;
    STDMETHODIMP InitializeV(VARIANT Var) override;
    STDMETHODIMP get_FitToParent(long* pVal) override { return GetFitToParent(pVal); }
    STDMETHODIMP put_FitToParent(long newVal) override { return PutFitToParent(newVal); }
    STDMETHODIMP get_ReadOnly(long* pVal) override { return Answer(pVal, readOnly_); }
    STDMETHODIMP put_ReadOnly(long newVal) override { return Keep(readOnly_, newVal); }
    STDMETHODIMP get_EnableDragDrop(long* pVal) override { return Answer(pVal, enableDragDrop_); }
    STDMETHODIMP put_EnableDragDrop(long newVal) override { return Keep(enableDragDrop_, newVal); }
    STDMETHODIMP ExpandAll() override;
    STDMETHODIMP CollapseAll() override;
    STDMETHODIMP get_BackColor(OLE_COLOR* pVal) override { return GetBackColor(pVal); }
    STDMETHODIMP put_BackColor(OLE_COLOR newVal) override { return PutTreeBackColor(newVal); }
    STDMETHODIMP get_TextColor(OLE_COLOR* pVal) override;
    STDMETHODIMP put_TextColor(OLE_COLOR newVal) override;
    STDMETHODIMP get_SelectedTextColor(OLE_COLOR* pVal) override;
    STDMETHODIMP put_SelectedTextColor(OLE_COLOR newVal) override;
    STDMETHODIMP get_SelectedTextBackColor(OLE_COLOR* pVal) override;
    STDMETHODIMP put_SelectedTextBackColor(OLE_COLOR newVal) override;
    STDMETHODIMP get_IconSet(qzBookmarksCtrlIconSetConsts* pVal) override;
    STDMETHODIMP put_IconSet(qzBookmarksCtrlIconSetConsts newVal) override;

  private:
    class HostSilence;
    class ReadingProgress;
    struct OutlineOutcome {
        bool empty;
        bool whole;
    };

    // bookmark_control.cpp: members
    REFCLSID ClassId() const noexcept override { return CLSID_qzBookmarkCtrl; }
    std::span<const PersistentProperty> PersistentProperties() const override;

    // bookmark_control_outline.cpp: the host and its outline
    void ShowDocument() override;
    void ForgetDocument() override;
    void FollowHost() override;
    const Stage& Contents() const noexcept override { return tree_.Contents(); }
    HRESULT Rebuild(const OutlineLimits& limits);
    HRESULT ReadOutline(const ShownDocument& shown, const OutlineLimits& limits);
    OutlineOutcome BuildTree(IDispatch* root, BookmarkReader reader, HostSilence& silence,
                             const OutlineLimits& limits);
    template <class Reading>
    HRESULT EndableByRefresh(Reading&& reading);
    BookmarkReader MakeReader(const ComPtr<IVandraX>& host) const;

    // BookmarkTreeListener
    bool ReadBelow(HTREEITEM item) override;
    void ExpandBelow(HTREEITEM item) override;
    void ActivateItem(HTREEITEM item) override;
    ComPtr<IUnknown> KeepAlive() noexcept override { return Identity(); }

    // bookmark_control_view.cpp: the window and what it looks like
    std::wstring Title() const override;
    const TreeView& Tree() const noexcept override { return tree_; }
    void OnWindowCreated() override;
    void OnAmbientChanged(DISPID id) override;
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool IsInputKey(const MSG& message) const override;
    LRESULT OnCustomDraw(NMTVCUSTOMDRAW& draw) const;
    void ApplyFont();
    void ApplyColours() override;
    void ApplyImages();
    void ApplyItemHeight();
    void Redraw() noexcept;

    BookmarkTree tree_{*this};
    std::shared_ptr<BookmarkMembers> members_ = std::make_shared<BookmarkMembers>();
    ItemColours colours_;
    ImageList images_;
    Font font_;
    long readOnly_ = 0;
    long enableDragDrop_ = 1;
    qzBookmarksCtrlIconSetConsts iconSet_ = qzBookmarksCtrlIconSet_None;
    /// As last read from the host, with the tree.
    long documentMode_ = 0;
    long bookmarkState_ = 0;
    bool refreshing_ = false;
    /// Messages are being handled in the midst of a long reading. Nothing else is read then: a refresh asked
    /// for ends the reading, and comes after it.
    bool othersTurn_ = false;
    bool refreshAsked_ = false;
};

}  // namespace qz
