// A pane on a document whose pages can be told apart, a listener of its events, and the user's hands.
#pragma once

#include "pane_fixture.h"
#include "tests/support/event_recorder.h"

#include <functional>
#include <initializer_list>

namespace qz {

using PageList = std::vector<long>;
using Events = std::vector<std::string>;

/// US Letter pages whose widths are some twips more than that: `first`, `first` + 1, ... up to 9.
ComPtr<IReferenceHost> MakeTellingHost(long pages, long first = 0);
/// The pages of a document by what `MakeTellingHost` gave them.
PageList OrderOf(IReferenceHost* host);

PageList SelectedPages(IqzThumbnailCtrl* pane);
HRESULT SelectPages(IqzThumbnailCtrl* pane, std::initializer_list<long> pages);

/// The pane shows two thumbnails a row.
class PagesTest : public PaneTest {
  protected:
    static constexpr long pageCount = 8;

    PagesTest();
    ~PagesTest() override;

    /// The middle of a page's thumbnail in the pane, client pixels.
    POINT PointOn(long page) const;
    POINT ScreenPointOn(long page) const;
    void Press(long page, WPARAM keys = 0) const;
    void Release(long page, WPARAM keys = 0) const;
    void Click(long page, WPARAM keys = 0) const;
    void Key(WPARAM key) const;
    void KeyUp(WPARAM key) const;
    /// The key while Ctrl is held.
    void ControlKey(WPARAM key) const;

    PageList Selected() const { return SelectedPages(pane.Get()); }
    HRESULT Select(std::initializer_list<long> pages) const { return SelectPages(pane.Get(), pages); }
    PageList Order() const { return OrderOf(host.Get()); }
    Events TakeEvents() { return events->TakeEvents(); }
    long CurrentPage() const;
    /// Lets `action` run while a message box may come up; gives the box's text, empty when there was none.
    std::wstring BoxDuring(const std::function<void()>& action) const;

    ComPtr<IReferenceHost> host;
    ComPtr<EventRecorder> events = MakeObject<EventRecorder>();
};

}  // namespace qz
