// An outline read from a host into a tree with nothing but the calls that this takes.
#pragma once

#include "com/object.h"

#include <windows.h>
#include <commctrl.h>
#include <comdef.h>

#include <vector>

namespace qz::bench {

/// A tree in a hidden window, filled anew by each run.
class BareOutline {
  public:
    explicit BareOutline(IDispatch* root);
    ~BareOutline() { DestroyWindow(tree_); }
    BareOutline(const BareOutline&) = delete;
    BareOutline& operator=(const BareOutline&) = delete;

    /// The top level with a placeholder below each parent.
    void ReadTopLevel() { Read(false); }
    void ReadEverything() { Read(true); }
    /// The one request for all items.
    void CollapseAll() const;

  private:
    struct Child {
        IDispatch* bookmark;
        HTREEITEM item;
    };

    void Read(bool everything);
    void Build(IDispatch* parent, HTREEITEM under, bool everything);
    HTREEITEM Insert(HTREEITEM under, wchar_t* text, IDispatch* bookmark) const;
    _variant_t Ask(IDispatch* bookmark, DISPID member, long argument = 0, UINT arguments = 0) const;

    IDispatch* root_;
    HWND tree_;
    std::vector<ComPtr<IDispatch>> held_;
};

}  // namespace qz::bench
