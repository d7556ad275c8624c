#include "benchmarks/subjects.h"

#include "benchmarks/hosted_pane.h"
#include "host/bstr.h"
#include "host/object_path.h"

#include <vector>

namespace qz::bench {

namespace {

void Check(HRESULT result) { ThrowIfFailed(result, L"A call of the benchmark fails"); }

/// The host calls of a rebuild and nothing else, all texts made beforehand.
class BareRebuild {
  public:
    BareRebuild(IVandraX* host, long pages) : host_(host) {
        for (long page = 1; page <= pages; ++page) paths_.emplace_back(PagePath(page));
    }

    void Run() const {
        long value = 0;
        VARIANT attribute;
        Check(host_->GetPageCount(&value));
        Check(host_->SetObjectAttribute(document_.Get(), noContents_.Get(), on_));
        for (const Bstr& path : paths_) {
            Check(host_->GetObjectAttribute(path.Get(), width_.Get(), &attribute));
            Check(host_->GetObjectAttribute(path.Get(), length_.Get(), &attribute));
            Check(host_->GetObjectAttribute(path.Get(), landscape_.Get(), &attribute));
        }
        Check(host_->SetObjectAttribute(document_.Get(), noContents_.Get(), off_));
        Check(host_->GetCurrentPage(&value));
    }

  private:
    IVandraX* host_;
    std::vector<Bstr> paths_;
    Bstr document_{documentPath};
    Bstr noContents_{L"GetPagePtrNoReadContents"};
    Bstr width_{L"Width"};
    Bstr length_{L"Length"};
    Bstr landscape_{L"Landscape"};
    _variant_t on_{true};
    _variant_t off_{false};
};

Pair TimeRebuild(long pages) {
    const HostedPane pane(pages, HostedPane::Shown::No);
    const BareRebuild bare(pane.Host(), pages);
    return MeasureBoth([&] { Check(pane.Pane()->RedrawAllThumbs()); }, [&] { bare.Run(); });
}

}  // namespace

void MeasureRebuild(Report& report) {
    const Pair some = TimeRebuild(10'000);
    const Pair many = TimeRebuild(100'000);
    report.AddTime("rebuild of 10,000 pages to the bare host calls", some, 2.0);
    report.AddTime("rebuild of 100,000 pages to the bare host calls", many, 2.0);
    report.AddTime("rebuild of 100,000 pages to ten times that of 10,000",
                   {many.measured, 10 * some.measured}, 1.25);
}

}  // namespace qz::bench
