// The part of the window that the panes and the host's view share: docking, splitters, and the way of the
// focus from one to the next.
#pragma once

#include "sample/container/app_window.h"
#include "sample/container/host_view.h"
#include "sample/container/layout.h"
#include "sample/container/pane.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace qz {

class Workspace final : public AppWindow {
  public:
    /// Creates the panes of the table around the host's view. The environment and the host outlive the
    /// workspace. Throws when any of them cannot be created.
    Workspace(HWND parent, std::span<const PaneRow> rows, const PaneEnvironment& environment, HostView& host);
    ~Workspace() override;

    /// Hands the host to every pane, the first time or afresh.
    void AttachPanes();
    /// Lets the inspectors show an object of the host.
    void Inspect(const ComPtr<IDispatch>& object) const;
    /// The panes whose control is of that class.
    std::vector<Pane*> PanesOf(REFCLSID classId) const;
    /// Asks the inspectors, which may ask the user whether he wants to keep his changes.
    bool MayClose() const;
    void EnvironmentChanged();

    /// Gives the focus to the next part, or the one before; the parts are the panes and the host's view.
    void MoveFocus(bool backwards);
    void FocusHost();

  private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnError(const std::wstring& text) noexcept override;

    DockRequest Request() const;
    void Arrange();
    void OnPaint() noexcept;

    std::optional<DockSide> SplitterAt(POINT point) const;
    bool ShowSplitterCursor() const;
    void BeginDrag(POINT point);
    void Drag(POINT point);

    bool HostHasFocus() const;
    size_t FocusedPart() const;
    void FocusPart(size_t part);
    void OnPaneLostFocus();

    const PaneEnvironment& environment_;
    HostView& host_;
    std::vector<std::unique_ptr<Pane>> panes_;
    std::vector<DockSide> sides_;  ///< Of each pane.
    std::vector<int> shares_;      ///< Of each pane.
    PerSide<int> extents_;         ///< At 96 dots per inch.
    PerSide<bool> fixed_;          ///< Sides that hold bars.
    DockLayout layout_;
    std::optional<DockSide> dragged_;
};

}  // namespace qz
