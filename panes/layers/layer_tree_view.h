// The tree of the layers pane: the system's tree view, with our own marks and clicks.
#pragma once

#include "com/object.h"
#include "panes/common/tree_view.h"
#include "panes/layers/layer_item_layout.h"
#include "ui/gdi.h"
#include "ui/image_list.h"

namespace qz {

/// A press of a mouse button.
enum class MousePress { Left, LeftTwice, Right };

/// What the tree asks of its pane. Items go by their data.
class LayerTreeListener {
  public:
    /// The item's check mark as a state image: 0 none, 1 hidden, 2 visible.
    virtual UINT StateImage(LPARAM item) const = 0;
    /// These may end the pane, and the tree with it. `item` is null beside all items.
    virtual void OnPress(MousePress press, HTREEITEM item, POINT client) = 0;
    virtual void OnSpace() = 0;
    /// The user wants another item selected, which the tree leaves to the pane.
    virtual void OnSelect(HTREEITEM item) = 0;
    virtual ComPtr<IUnknown> KeepAlive() noexcept = 0;

  protected:
    ~LayerTreeListener() = default;
};

/// Mouse buttons never reach the system's window: what they do may end the pane, which that window does not
/// survive inside its own handling. For the same reason a selection by key is noted only, see NoteSelection,
/// and made when the key has been handled.
///
/// The check marks are not kept in the window: it is told of none, and answers with the pane's.
class LayerTreeView : public TreeView {
  public:
    explicit LayerTreeView(LayerTreeListener& listener) noexcept : listener_(listener) {}
    ~LayerTreeView() override { Destroy(); }

    void Create(HWND parent);

    const LayerMetrics& Metrics() const noexcept { return metrics_; }
    HFONT TextFont() const noexcept { return font_.Get(); }

    /// To be called on TVN_SELCHANGING; gives the answer to it. Only selections by key are the user's own:
    /// the others are the pane's.
    bool NoteSelection(const NMTREEVIEWW& notice) noexcept;

  private:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void TakeFocus();
    LRESULT OnKey(UINT message, WPARAM wParam, LPARAM lParam);
    std::optional<LRESULT> OnButton(UINT message, LPARAM lParam);
    LRESULT WithStateImage(UINT message, WPARAM wParam, LPARAM lParam);

    LayerTreeListener& listener_;
    ImageList places_;
    LayerMetrics metrics_ = LayerMetrics::ForDpi(96);
    Font font_;
    HTREEITEM noted_ = nullptr;
    bool takingFocus_ = false;
};

}  // namespace qz
