// The thumbnail pane of the built module, in a window, on a reference host.
#pragma once

#include "tests/module/loaded_module.h"
#include "tests/support/control_site.h"

#include "generated/qzVandraExt.h"
#include "generated/reference_host.h"

#include <comdef.h>

namespace qz::bench {

/// Gives a host a new document of that many pages of US Letter size.
void NewDocument(IReferenceHost* host, long pages);

/// A reference host with that many pages of US Letter size.
ComPtr<IReferenceHost> MakeHost(long pages);

/// The odd page numbers up to `pages`, as a pane takes and gives its selection.
_variant_t EverySecondPage(long pages);

/// A pane on a host of its own. Hidden, it lays out but does not paint.
class HostedPane {
  public:
    enum class Shown { No, Yes };

    HostedPane(long pages, Shown shown);
    ~HostedPane();
    HostedPane(const HostedPane&) = delete;
    HostedPane& operator=(const HostedPane&) = delete;

    IReferenceHost* Host() const noexcept { return host_.Get(); }
    IqzThumbnailCtrl* Pane() const noexcept { return pane_.Get(); }
    HWND Window() const noexcept { return window_; }

    /// Paints the whole window now.
    void Paint() const;

  private:
    void Activate(Shown shown);

    LoadedModule module_;
    ComPtr<IReferenceHost> host_;
    ComPtr<IqzThumbnailCtrl> pane_;
    ComPtr<ControlSite> site_;
    HWND frame_ = nullptr;
    HWND window_ = nullptr;
};

}  // namespace qz::bench
