#include "panes/common/pane_font.h"

namespace qz {

namespace {

bool AmbientFont(const Ambient& ambients, LOGFONTW& description) {
    const ComPtr<IFont> font = ambients.Font();
    HFONT handle = nullptr;
    return font && SUCCEEDED(font->get_hFont(&handle)) &&
           GetObjectW(handle, sizeof description, &description) != 0;
}

LOGFONTW MessageFont() {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    ThrowLastErrorIf(!SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0),
                     L"The system does not tell its fonts");
    return metrics.lfMessageFont;
}

}  // namespace

Font MakePaneFont(const Ambient& ambients) {
    LOGFONTW description{};
    if (!AmbientFont(ambients, description)) description = MessageFont();
    Font font(CreateFontIndirectW(&description));
    ThrowLastErrorIf(!font, L"The font cannot be made");
    return font;
}

}  // namespace qz
