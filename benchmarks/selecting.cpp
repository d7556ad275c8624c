#include "benchmarks/subjects.h"

#include "benchmarks/bare_rebuild.h"
#include "benchmarks/hosted_pane.h"

namespace qz::bench {

void MeasureSelecting(Report& report) {
    const HostedPane few(10'000, HostedPane::Shown::No);
    const HostedPane many(100'000, HostedPane::Shown::No);
    const auto putAndRead = [](const HostedPane& pane, const _variant_t& selection) {
        Check(pane.Pane()->put_SelectedPages(selection));
        _variant_t read;
        Check(pane.Pane()->get_SelectedPages(&read));
    };
    const _variant_t some = EverySecondPage(10'000);
    const _variant_t all = EverySecondPage(100'000);
    const Pair times = MeasureBoth([&] { putAndRead(many, all); }, [&] { putAndRead(few, some); });
    report.AddTime("50,000 pages selected and read to ten times 5,000",
                   {times.measured, 10 * times.reference}, 1.25);
}

}  // namespace qz::bench
