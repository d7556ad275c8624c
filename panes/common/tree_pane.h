// The base of the panes that show a tree.
#pragma once

#include "panes/common/pane_control.h"
#include "panes/common/tree_view.h"

namespace qz {

/// A pane whose window is covered by a tree. The derived pane owns the tree, makes it with its window and
/// fills it.
class TreePane : public PaneControl {
  protected:
    using PaneControl::PaneControl;
    ~TreePane() = default;

    /// Has a window as long as the pane has.
    virtual const TreeView& Tree() const noexcept = 0;

    // The members that every pane with a tree offers
    // ------------------------------------------------------------------------------

    HRESULT GetFitToParent(long* answer) const noexcept { return Answer(answer, fitToParent_); }
    /// Non-zero gives the pane's window, if any, the size of its parent's client area at once.
    HRESULT PutFitToParent(long fit) noexcept;
    /// See `PutBackColor`; the tree gets the colour too.
    HRESULT PutTreeBackColor(OLE_COLOR colour) noexcept;

    // The window
    // --------------------------------------------------------------------------------------------------

    /// Gives the tree the pane's colours, as far as it is there.
    virtual void ApplyColours();
    /// Keys that every tree takes.
    static bool IsTreeKey(WPARAM key) noexcept;

    void OnDraw(HDC dc, const RECT& bounds) override;
    void OnSized(SIZE client) override;
    HWND FocusChild() const noexcept override { return Tree().Handle(); }
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    long fitToParent_ = 1;
};

}  // namespace qz
