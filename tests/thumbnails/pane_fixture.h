// The thumbnail pane as a user meets it: from the built DLL, in a real window, on the reference host.
#pragma once

#include "tests/module/loaded_module.h"
#include "tests/support/control_site.h"
#include "tests/support/error_text.h"
#include "tests/support/host_under_test.h"

#include "generated/qzVandraExt.h"

#include <gtest/gtest.h>

namespace qz {

class PaneTest : public ::testing::Test {
  protected:
    /// Two thumbnails a row: pictures have the same pixels at every resolution, scroll bars have not.
    static SIZE PaneSize() noexcept { return {203 + GetSystemMetrics(SM_CXVSCROLL), 400}; }
    const SIZE paneSize = PaneSize();

    PaneTest();
    ~PaneTest() override;

    ComPtr<IqzThumbnailCtrl> MakePane() const;
    /// Makes `pane` active in a window of its own.
    void Activate();
    /// Takes it out of its window again.
    void Close();
    HWND PaneWindow() const;
    long ScrollPosition() const { return GetScrollPos(PaneWindow(), SB_VERT); }
    /// Handles what is queued, paints included.
    static void PumpMessages();
    /// The colour on the screen at a client point of the pane.
    COLORREF PixelAt(int x, int y) const;

    LoadedModule module;
    ComPtr<IqzThumbnailCtrl> pane;

  private:
    HWND frame_ = nullptr;
    ComPtr<ControlSite> site_;
};

}  // namespace qz
