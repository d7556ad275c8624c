#include "benchmarks/subjects.h"

#include "benchmarks/bare_rebuild.h"
#include "benchmarks/hosted_pane.h"
#include "com/error.h"

namespace qz::bench {

namespace {

constexpr long allPages = 10'000;
constexpr long keptPages = allPages / 2;

/// A time is worth nothing when the work was not done.
void RequireDeleted(IReferenceHost* host) {
    long count = 0;
    Check(host->GetPageCount(&count));
    if (count != keptPages) Throw(E_UNEXPECTED, L"The pages are not deleted");
}

/// The calls that the deletion cannot do without.
class BareDeletion {
  public:
    BareDeletion() : host_(MakeHost(allPages)), rebuild_(host_.Get(), keptPages) {}

    void Prepare() const { NewDocument(host_.Get(), allPages); }

    void Run() const {
        long value = 0;
        long refresh = 0;
        Check(host_->GetPageCount(&value));
        Check(host_->GetAutoRefresh(&refresh));
        Check(host_->SetAutoRefresh(0));
        for (long page = allPages - 1; page >= 1; page -= 2) Check(host_->DeletePage(page, 1));
        Check(host_->UpdateView(pagesChanged, 1));
        Check(host_->GetCurrentPage(&value));
        Check(host_->GetChangeFlags(&value));
        rebuild_.Run();
        Check(host_->UpdateView(0, 0));
        Check(host_->SetAutoRefresh(refresh));
        RequireDeleted(host_.Get());
    }

  private:
    static constexpr long pagesChanged = 128;

    ComPtr<IReferenceHost> host_;
    BareRebuild rebuild_;
};

/// A user who selects pages and presses the Delete key.
class PaneDeletion {
  public:
    /// The pane follows its host to the new document.
    void Prepare() const {
        NewDocument(pane_.Host(), allPages);
        Check(pane_.Pane()->put_SelectedPages(selection_));
    }

    void Run() const {
        SendMessageW(pane_.Window(), WM_KEYDOWN, VK_DELETE, 0);
        RequireDeleted(pane_.Host());
    }

  private:
    HostedPane pane_{allPages, HostedPane::Shown::No};
    _variant_t selection_ = EverySecondPage(allPages);
};

}  // namespace

void MeasureDeletion(Report& report) {
    const PaneDeletion pane;
    const BareDeletion bare;
    report.AddTime("delete 5,000 of 10,000 pages to the bare host calls",
                   MeasureBoth(UsingUp{[&] { pane.Prepare(); }, [&] { pane.Run(); }},
                               UsingUp{[&] { bare.Prepare(); }, [&] { bare.Run(); }}),
                   1.2);
}

}  // namespace qz::bench
