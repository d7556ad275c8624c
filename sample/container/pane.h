// One pane: a header with its title above a control.
#pragma once

#include "sample/container/app_window.h"
#include "sample/container/pane_site.h"
#include "com/event_connection.h"
#include "sample/container/fonts.h"
#include "sample/container/pane_table.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace qz {

/// What panes share with the window around them; outlives them.
struct PaneEnvironment {
    ComPtr<InPlaceFrame> frame;
    std::shared_ptr<AmbientValues> ambients = std::make_shared<AmbientValues>();
    Fonts fonts;
    std::function<void(const std::wstring& line)> log;
    Ask ask;
};

/// Logs an event of a pane's control and hands it to the row's handler; what the handler changes is logged
/// too. The pane may be closed meanwhile, not so the row and the environment. `info` may be null.
void HandlePaneEvent(const PaneRow& row, const PaneEnvironment& environment, ITypeInfo* info, DISPID event,
                     DISPPARAMS& parameters);

/// Sent to a pane's parent, by way of the queue, after the pane's control has lost the focus.
inline constexpr UINT paneLostFocus = WM_APP + 1;

class Pane final : public AppWindow {
  public:
    /// Creates the pane's window and, in it, its control. Throws with the pane's title.
    Pane(HWND parent, const PaneRow& row, const PaneEnvironment& environment);
    ~Pane() override;

    const PaneRow& Row() const noexcept { return row_; }
    ComPtr<IDispatch> Control() const { return site_->Automation(); }

    /// Hands the host to the control, which follows it from then on. Again: the control takes it afresh.
    void Attach(IDispatch* host);
    /// Ends the control.
    void Close() noexcept;

    /// Gives the control the focus.
    void ActivateUI() { site_->ActivateUI(); }
    bool HasFocus() const noexcept;
    /// The environment's fonts or ambient values have changed.
    void EnvironmentChanged();

  private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnError(const std::wstring& text) noexcept override;

    void CreateControl();
    void ConnectEvents();
    void OnFocusChanged(bool got);
    void OnPaint();

    int HeaderHeight() const noexcept;
    RECT ControlArea() const noexcept;

    const PaneRow& row_;
    const PaneEnvironment& environment_;
    ComPtr<PaneSite> site_;
    std::optional<EventConnection> events_;
    bool focused_ = false;
};

}  // namespace qz
