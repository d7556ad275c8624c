// The layers pane as a control: joins the records, the tree and the host.
#pragma once

#include "com/class_info.h"
#include "com/dispatch.h"
#include "panes/common/context_menu.h"
#include "panes/common/tree_pane.h"
#include "panes/layers/layer_commands.h"
#include "panes/layers/layer_events.h"
#include "panes/layers/layer_painter.h"
#include "panes/layers/layer_reader.h"
#include "panes/layers/layer_tree_view.h"
#include "panes/layers/layer_visibility.h"

#include "generated/qzVandraExt.h"

#include <optional>
#include <unordered_set>
#include <vector>

namespace qz {

/// See the type library for the members. Those with a host return S_OK and do nothing without one.
///
/// The host's states of all layers are in `layers_`, and every change of them goes through it; the tree shows
/// the items that are listed.
class LayersControl final
    : public Object<LayersControl, PaneOf<IqzLayersCtrl, DIID__IqzLayersCtrlEvents, TreePane>,
                    Dispatch<IqzLayersCtrl>, ProvideClassInfo<CLSID_qzLayersCtrl, DIID__IqzLayersCtrlEvents>>,
      private LayerTreeListener,
      private ContextMenuSource {
  public:
    STDMETHODIMP Initialize(IDispatch* pDispatch) override;
    STDMETHODIMP Refresh() override;
    STDMETHODIMP Reset() override;
    STDMETHODIMP get_IsInitialized(long* pVal) override;
    STDMETHODIMP get_FitToParent(long* pVal) override { return GetFitToParent(pVal); }
    STDMETHODIMP put_FitToParent(long newVal) override { return PutFitToParent(newVal); }
    STDMETHODIMP get_Locked(long* pVal) override;
    STDMETHODIMP put_Locked(long newVal) override;
    STDMETHODIMP get_ListLayers(qzLayersCtrlListLayers* pVal) override;
    STDMETHODIMP put_ListLayers(qzLayersCtrlListLayers newVal) override;
    STDMETHODIMP ResetToInitialVisibility() override;
    STDMETHODIMP LayerProperties() override;
    STDMETHODIMP get_BackColor(OLE_COLOR* pVal) override { return GetBackColor(pVal); }
    STDMETHODIMP put_BackColor(OLE_COLOR newVal) override { return PutTreeBackColor(newVal); }

  private:
    // layers_control.cpp: members, host and records
    REFCLSID ClassId() const noexcept override { return CLSID_qzLayersCtrl; }
    std::span<const PersistentProperty> PersistentProperties() const override;
    void ShowDocument() override { Rebuild(); }
    void ForgetDocument() override;
    void FollowHost() override;

    void Rebuild();
    void Take(LayerDocument document);
    void ReadStates(const ComPtr<IVandraX>& host, bool names);
    std::vector<bool> LayersOnPage(IVandraX* host) const;
    void List();
    void Carry(const ComPtr<IVandraX>& host, const LayerChange& change);
    void WriteChange(IVandraX* host, const LayerChange& change, std::size_t& written);

    // layers_control_view.cpp: the tree and its drawing
    std::wstring Title() const override;
    const TreeView& Tree() const noexcept override { return tree_; }
    void OnWindowCreated() override;
    UINT StateImage(LPARAM item) const override;
    /// What of the tree outlives its items, by name.
    struct TreeState {
        std::unordered_set<std::wstring> expanded;
        std::wstring selected;
    };
    TreeState KeptState() const;
    void FillTree(const TreeState& kept);
    void InsertBelow(HTREEITEM parent, std::size_t first, std::size_t end, const TreeState& kept);
    void ShowStates();
    LRESULT OnCustomDraw(const NMTVCUSTOMDRAW& notice);
    void DrawItem(HDC dc, HTREEITEM handle);
    LayerItemLayout LayoutOf(HTREEITEM handle, std::size_t item) const;
    LayerRowLook LookOf(HTREEITEM handle, std::size_t item) const;

    // layers_control_input.cpp: what the user does
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::optional<LRESULT> OnNotify(const NMHDR& notice);
    bool IsInputKey(const MSG& message) const override;
    void OnPress(MousePress press, HTREEITEM handle, POINT client) override;
    void OnLeftPress(MousePress press, HTREEITEM handle, POINT client);
    void OnSpace() override;
    void OnSelect(HTREEITEM handle) override;
    ComPtr<IUnknown> KeepAlive() noexcept override { return Identity(); }
    void ToggleByUser(std::size_t record);
    void RefuseBelowHidden();
    bool WantsMenu(const MenuRequest& request) const override;
    void OpenMenu(const MenuRequest& request, POINT screen) override;
    bool IsAboutSelection(const MenuRequest& request) const;
    POINT KeyboardMenuPoint() override;
    void RunCommand(LayerCommand command, const ComPtr<IVandraX>& host);
    LayerCommandState CommandState() const;
    std::optional<std::size_t> ItemOf(HTREEITEM handle) const;
    std::optional<std::size_t> SelectedLayer() const;
    void ShowSelectedProperties(const ComPtr<IVandraX>& host);

    LayerEvents events_{Events()};
    LayerTreeView tree_{*this};
    LayerVisibility layers_;
    std::vector<ComPtr<IDispatch>> configurations_;
    LayerTexts texts_;
    LayerPaths paths_ = PathsOf({});
    std::vector<bool> listed_;        ///< By item.
    std::vector<HTREEITEM> handles_;  ///< By item; null for those not listed.
    unsigned changes_ = 0;            ///< Counts the changes made here.
    long locked_ = 0;
    long listLayers_ = qzLayersCtrlListLayers_ForAllPages;
};

}  // namespace qz
