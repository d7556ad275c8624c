#include "benchmarks/subjects.h"

#include "benchmarks/bare_rebuild.h"
#include "benchmarks/hosted_pane.h"

namespace qz::bench {

namespace {

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
