// The host's own window: the current page on a desk, with scrolling and zooming.
#pragma once

#include "sample/host/host_session.h"
#include "sample/host/page_painter.h"
#include "sample/host/view_geometry.h"
#include "ui/window.h"

namespace qz::sample {

/// Draws what the session shows and turns the user's keys and wheel into changes of the session's page and
/// zoom.
class PageView : public Window {
  public:
    /// The session, the painter and the host that the view is a part of outlive it.
    PageView(IUnknown* host, HostSession& session, PagePainter& painter)
        : host_(host), session_(session), painter_(painter) {}

    /// Fills the parent's client area. Throws when the window cannot be made.
    void ShowIn(HWND parent);
    void Move(int left, int top, int width, int height);

    /// The document, the page or the zoom may have changed: shows it as soon as the window is painted next.
    void Follow();
    void DrawNow();

  protected:
    std::optional<LRESULT> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    ComPtr<IUnknown> KeepAlive() noexcept override { return host_; }

  private:
    void Paint();
    void PaintInto(HDC dc, const RECT& client);
    void PaintSelection(HDC dc, long zoom);
    void UpdateBars();
    void SetBar(int bar, const ViewAxis& axis, int position);
    void Scroll(int bar, WORD command);
    void ScrollTo(int bar, int position);
    void Wheel(WPARAM wParam);
    void Key(WPARAM key);
    void TurnPage(int step, bool toBottom);
    void Zoom(long percent);

    ViewAxis Axis(int bar) const;
    int& Position(int bar) { return bar == SB_HORZ ? left_ : top_; }
    const ViewState& State() const { return session_.model.View(); }

    IUnknown* host_;
    HostSession& session_;
    PagePainter& painter_;
    int left_ = 0;
    int top_ = 0;
    int shownPage_ = 0;
    int wheelRest_ = 0;
};

}  // namespace qz::sample
