#include "panes/thumbnails/page_drawing.h"

#include "host/auto_refresh.h"
#include "host/host_calls.h"
#include "ui/gdi.h"

#include <string>

namespace qz {

namespace {

constexpr COLORREF frameColour = RGB(127, 127, 127);

/// Makes a page current and goes back at the end.
class CurrentPageScope {
  public:
    CurrentPageScope(IVandraX* host, long saved, long page) : host_(host), saved_(saved) {
        MakePageCurrent(host, page);
    }
    ~CurrentPageScope() {
        // The user must not find himself on another page: one failure is not taken as final.
        if (FAILED(host_->SetCurrentPage(saved_))) host_->SetCurrentPage(saved_);
    }
    CurrentPageScope(const CurrentPageScope&) = delete;
    CurrentPageScope& operator=(const CurrentPageScope&) = delete;

  private:
    IVandraX* host_;
    long saved_;
};

void DrawFrame(HDC dc, const ThumbnailRecord& record, HGDIOBJ inside) {
    const Pen pen = MakePen(1, frameColour);
    const SelectScope penScope(dc, pen.Get());
    const SelectScope insideScope(dc, inside);
    Rectangle(dc, 0, 0, record.width, record.height);
}

void DrawHostPage(HDC dc, IVandraX* host, long page, long factor) {
    const long current = CurrentPageOf(host);
    const qzVandraAutoRefresh suspended(host);
    const CurrentPageScope there(host, current, page);
    const SavedDc saved(dc);  // whatever the host selects or moves
    ThrowIfFailed(host->DrawCurrentPage(reinterpret_cast<HdcHandle>(dc), 1, factor),
                  L"The host does not draw the page");
}

void DrawLabel(HDC dc, std::size_t page) {
    const SavedDc saved(dc);
    const std::wstring text = std::to_wstring(page);
    SetBkMode(dc, OPAQUE);
    SetTextAlign(dc, TA_LEFT | TA_TOP);
    TextOutW(dc, 2, 2, text.c_str(), static_cast<int>(text.size()));
}

}  // namespace

bool DrawPageThumbnail(HDC dc, IVandraX* host, std::size_t index, const ThumbnailRecord& record,
                       long factor) {
    DrawFrame(dc, record, GetStockObject(WHITE_BRUSH));
    bool drawn = true;
    try {
        DrawHostPage(dc, host, static_cast<long>(index) + 1, factor);
    } catch (const ComError&) {
        drawn = false;  // a page that cannot be drawn shows as an empty sheet
    }
    // A host paints its page over the whole sheet: the outline goes on top again.
    DrawFrame(dc, record, GetStockObject(NULL_BRUSH));
    DrawLabel(dc, index + 1);
    return drawn;
}

}  // namespace qz
