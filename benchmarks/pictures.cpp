#include "benchmarks/subjects.h"

#include "benchmarks/canvas.h"
#include "benchmarks/hosted_pane.h"
#include "panes/thumbnails/thumbnail_painter.h"

#include <algorithm>

namespace qz::bench {

namespace {

constexpr std::size_t recordLimit = 64;
constexpr SIZE pictureClient{660, 800};
/// Large thumbnails: the pictures of 400 pages would take three times the budget.
constexpr long pages = 400;
constexpr long largestFactor = 50;
constexpr PageSize pictureLetter{12240, 15840};

/// The most that pictures took at any time while a document was painted from its start to its end.
std::size_t PaintAllOf(ThumbnailModel& model, IVandraX* host) {
    const Canvas canvas(pictureClient.cx, pictureClient.cy);
    ThumbnailPainter painter(model);
    std::size_t most = 0;
    do {
        painter.Paint(canvas.Dc(), {0, 0, pictureClient.cx, pictureClient.cy}, host, largestFactor);
        most = std::max(most, painter.Pictures().Bytes());
    } while (model.ScrollBy(pictureClient.cy));
    return most;
}

}  // namespace

void MeasurePictures(Report& report) {
    report.AddSize("record of a page without its picture", sizeof(ThumbnailRecord), recordLimit);
    const ComPtr<IReferenceHost> host = MakeHost(pages);
    ThumbnailModel model;
    model.SetClientSize(pictureClient.cx, pictureClient.cy);
    model.SetRecords({pages, MakeThumbnail(pictureLetter, largestFactor)});
    report.AddSize("pictures kept while 400 large ones are painted", PaintAllOf(model, host.Get()),
                   PictureCache::defaultBudget);
}

}  // namespace qz::bench
