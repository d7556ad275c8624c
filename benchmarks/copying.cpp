#include "benchmarks/subjects.h"

#include "benchmarks/canvas.h"
#include "benchmarks/hosted_pane.h"
#include "panes/thumbnails/thumbnail_painter.h"

namespace qz::bench {

namespace {

constexpr SIZE client{980, 1000};
constexpr PageSize letter{12240, 15840};
constexpr long factor = 14;

/// Every thumbnail of the client area by one bare copy each, from a bitmap that is selected once.
void CopyAll(HDC target, const ThumbnailModel& model, HDC source) {
    for (const ThumbnailRecord& record : model.Records()) {
        BitBlt(target, record.x + ThumbnailModel::drawMargin, record.y + ThumbnailModel::drawMargin,
               record.width, record.height, source, 0, 0, SRCCOPY);
    }
}

Pair TimeCopying(HDC target, const ThumbnailModel& model, IVandraX* host) {
    const ThumbnailRecord& first = model.Records().front();
    const Canvas source(first.width, first.height);
    ThumbnailPainter painter(model);
    const RECT all{0, 0, client.cx, client.cy};
    return MeasureBoth([&] { painter.Paint(target, all, host, factor); },
                       [&] { CopyAll(target, model, source.Dc()); });
}

}  // namespace

void MeasureCopying(Report& report) {
    constexpr long pages = 80;  // 10 a row, 8 rows
    const ComPtr<IReferenceHost> host = MakeHost(pages);
    ThumbnailModel model;
    model.SetClientSize(client.cx, client.cy);
    model.SetRecords({pages, MakeThumbnail(letter, factor)});

    const Canvas canvas(client.cx, client.cy);
    report.AddTime("80 cached thumbnails to bare copies, in memory",
                   TimeCopying(canvas.Dc(), model, host.Get()), 2.0);

    const HWND window = CreateWindowExW(0, L"STATIC", L"benchmarks", WS_POPUP | WS_VISIBLE, 0, 0, client.cx,
                                        client.cy, nullptr, nullptr, nullptr, nullptr);
    ThrowLastErrorIf(!window, L"No window could be made");
    {
        const WindowDc dc(window);
        report.AddTime("80 cached thumbnails to bare copies, in a window",
                       TimeCopying(dc.Get(), model, host.Get()), 2.0);
    }
    DestroyWindow(window);
}

}  // namespace qz::bench
