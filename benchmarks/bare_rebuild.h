// The host calls of a rebuild and nothing else: what a pane cannot do without.
#pragma once

#include "generated/reference_host.h"
#include "com/text.h"

#include <comdef.h>

#include <vector>

namespace qz::bench {

/// Throws when a host call fails.
void Check(HRESULT result);

/// All texts are made beforehand. The host outlives this.
class BareRebuild {
  public:
    BareRebuild(IVandraX* host, long pages);

    void Run() const;

  private:
    IVandraX* host_;
    std::vector<Bstr> paths_;
    Bstr document_;
    Bstr noContents_{L"GetPagePtrNoReadContents"};
    Bstr width_{L"Width"};
    Bstr length_{L"Length"};
    Bstr landscape_{L"Landscape"};
    _variant_t on_{true};
    _variant_t off_{false};
};

}  // namespace qz::bench
