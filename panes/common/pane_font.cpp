#include "panes/common/pane_font.h"

#include <string_view>

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

Font MakeFont(const LOGFONTW& description) {
    Font font(CreateFontIndirectW(&description));
    ThrowLastErrorIf(!font, L"The font cannot be made");
    return font;
}

}  // namespace

Font MakePaneFont(const Ambient& ambients) {
    LOGFONTW description{};
    if (!AmbientFont(ambients, description)) description = MessageFont();
    return MakeFont(description);
}

Font MakeArial(int dpi) {
    constexpr int points = 9;
    constexpr int pointsPerInch = 72;
    constexpr std::wstring_view face = L"Arial";
    LOGFONTW description{};
    description.lfHeight = -MulDiv(points, dpi, pointsPerInch);
    description.lfWeight = FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    face.copy(description.lfFaceName, face.size());
    return MakeFont(description);
}

}  // namespace qz
