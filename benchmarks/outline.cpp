#include "benchmarks/subjects.h"

#include "benchmarks/bare_outline.h"
#include "benchmarks/bare_rebuild.h"
#include "sample/host/reference_host.h"
#include "tests/module/loaded_module.h"
#include "tests/support/pane_window.h"

#include "generated/qzVandraExt.h"

#include <optional>
#include <string>

namespace qz::bench {

namespace {

ComPtr<IHostBookmark> RootOf(IReferenceHost* host) {
    ComPtr<IDispatch> outline;
    ComPtr<IHostBookmark> root;
    Check(host->GetBookmarks(&outline));
    Check(outline.As(&root));
    return root;
}

/// Bookmarks below a bookmark, `each` of them on every one of `levels` levels.
void AddBookmarks(IHostBookmark* parent, int each, int levels) {
    for (int i = 0; i < each; ++i) {
        ComPtr<IDispatch> added;
        ComPtr<IHostBookmark> bookmark;
        Check(parent->AppendChild(_bstr_t((L"Section " + std::to_wstring(i + 1)).c_str()), &added));
        if (levels == 1) continue;
        Check(added.As(&bookmark));
        AddBookmarks(bookmark.Get(), each, levels - 1);
    }
}

class OutlinePane {
  public:
    OutlinePane(int each, int levels) {
        Check(host_->NewDocument(1, 12240, 15840));
        Check(host_->SetAutoRefresh(0));
        AddBookmarks(RootOf(host_.Get()).Get(), each, levels);
        Check(host_->SetAutoRefresh(1));
        ComPtr<IClassFactory> factory;
        Check(module_.GetClassObject(CLSID_qzBookmarkCtrl, IID_PPV_ARGS(&factory)));
        Check(factory->CreateInstance(nullptr, IID_PPV_ARGS(&pane_)));
        window_.emplace(pane_.Get(), SIZE{220, 600});
        ShowWindow(window_->Frame(), SW_HIDE);
        Check(pane_->Initialize(host_.Get()));
    }

    IReferenceHost* Host() const noexcept { return host_.Get(); }
    IqzBookmarkCtrl* Pane() const noexcept { return pane_.Get(); }

  private:
    LoadedModule module_;
    ComPtr<IReferenceHost> host_ = MakeObject<sample::MemoryHost>();
    ComPtr<IqzBookmarkCtrl> pane_;
    std::optional<PaneWindow> window_;
};

}  // namespace

void MeasureOutline(Report& report) {
    {
        const OutlinePane flat(100'000, 1);
        const auto root = RootOf(flat.Host());
        BareOutline bare(root.Get());
        report.AddTime("flat outline of 100,000 bookmarks to the bare calls and insertions",
                       MeasureBoth([&] { Check(flat.Pane()->Refresh()); }, [&] { bare.ReadTopLevel(); }),
                       1.5);
        report.AddTime("collapsing 100,000 flat bookmarks to the bare request",
                       MeasureBoth([&] { Check(flat.Pane()->CollapseAll()); }, [&] { bare.CollapseAll(); }),
                       1.5);
    }
    const OutlinePane nested(46, 3);
    const auto root = RootOf(nested.Host());
    BareOutline bare(root.Get());
    report.AddTime("expanding 99,498 bookmarks of three levels to the bare calls and insertions",
                   MeasureBoth([&] { Check(nested.Pane()->ExpandAll()); }, [&] { bare.ReadEverything(); }),
                   1.5);
}

}  // namespace qz::bench
