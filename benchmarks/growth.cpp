#include "benchmarks/subjects.h"

#include "benchmarks/canvas.h"
#include "benchmarks/hosted_pane.h"
#include "panes/thumbnails/thumbnail_painter.h"

namespace qz::bench {

namespace {

constexpr long fewPages = 1'000;
constexpr long manyPages = 100'000;
constexpr SIZE growthClient{220, 600};
constexpr PageSize growthLetter{12240, 15840};
constexpr long growthFactor = 14;

/// What a pane paints, without the window around it, which costs far more and would hide a walk over all
/// pages. Scrolled to the middle of the document, so that neither end is near.
class WindowlessPane {
  public:
    explicit WindowlessPane(long pages) : host_(MakeHost(pages)) {
        model_.SetClientSize(growthClient.cx, growthClient.cy);
        model_.SetRecords({static_cast<std::size_t>(pages), MakeThumbnail(growthLetter, growthFactor)});
        model_.ScrollTo(model_.ContentHeight() / 2);
    }

    void Paint() {
        painter_.Paint(canvas_.Dc(), {0, 0, growthClient.cx, growthClient.cy}, host_.Get(), growthFactor);
    }

    /// Two steps, so that every run finds the same place.
    void ScrollForthAndBack() {
        model_.ScrollBy(scrollLine);
        Paint();
        model_.ScrollBy(-scrollLine);
        Paint();
    }

    /// Tests 60 points all over the client area.
    std::size_t HitTestAll() const {
        std::size_t hits = 0;
        for (std::int32_t y = 0; y < growthClient.cy; y += 60) {
            for (std::int32_t x = 0; x < 210; x += 35) hits += model_.HitTest(x, y).has_value();
        }
        return hits;
    }

  private:
    ComPtr<IReferenceHost> host_;
    ThumbnailModel model_;
    ThumbnailPainter painter_{model_};
    Canvas canvas_{growthClient.cx, growthClient.cy};
};

void ScrollToMiddle(const HostedPane& pane, long pages) {
    ThrowIfFailed(pane.Pane()->ScrollPageThumbIntoView(pages / 2), L"The pane does not scroll");
}

void MeasureInWindow(Report& report) {
    const HostedPane few(fewPages, HostedPane::Shown::Yes);
    const HostedPane many(manyPages, HostedPane::Shown::Yes);
    ScrollToMiddle(few, fewPages);
    ScrollToMiddle(many, manyPages);
    report.AddTime("paint in a window, 100,000 pages to 1,000",
                   MeasureBoth([&] { many.Paint(); }, [&] { few.Paint(); }), 1.25);
}

void MeasureWindowless(Report& report) {
    WindowlessPane few(fewPages);
    WindowlessPane many(manyPages);
    report.AddTime("paint in memory, 100,000 pages to 1,000",
                   MeasureBoth([&] { many.Paint(); }, [&] { few.Paint(); }), 1.25);
    report.AddTime("two scroll steps and their paints, 100,000 pages to 1,000",
                   MeasureBoth([&] { many.ScrollForthAndBack(); }, [&] { few.ScrollForthAndBack(); }), 1.25);
    volatile std::size_t hits = 0;  // so that nothing is optimised away
    // A search by halves in a hundred times as many rows takes 1.7 times the steps; a walk would take 100.
    report.AddTime("60 hit tests, 100,000 pages to 1,000",
                   MeasureBoth([&] { hits = many.HitTestAll(); }, [&] { hits = few.HitTestAll(); }), 2.0);
}

}  // namespace

void MeasureGrowth(Report& report) {
    MeasureInWindow(report);
    MeasureWindowless(report);
}

}  // namespace qz::bench
