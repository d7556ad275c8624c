#include "sample/container/fonts.h"

#include "sample/container/dpi.h"
#include "sample/container/error_text.h"

#include <olectl.h>

#include <cstdlib>
#include <string_view>

namespace qz {

namespace {

constexpr int pointsPerInch = 72;

/// In pixels of the primary screen's resolution.
LOGFONTW MessageFont() noexcept {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof metrics;
    if (SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0))
        return metrics.lfMessageFont;
    constexpr std::wstring_view face = L"Segoe UI";
    LOGFONTW fallback{};
    fallback.lfHeight = -MulDiv(9, DpiOf(nullptr), pointsPerInch);
    fallback.lfCharSet = DEFAULT_CHARSET;
    face.copy(fallback.lfFaceName, face.size());
    return fallback;
}

FontHandle MakeFont(const LOGFONTW& description) {
    FontHandle font(CreateFontIndirectW(&description));
    ThrowLastErrorIf(!font, L"A font cannot be made");
    return font;
}

ComPtr<IFontDisp> MakeAmbientFont(LOGFONTW& description, int dpi) {
    FONTDESC font{};
    font.cbSizeofstruct = sizeof font;
    font.lpstrName = description.lfFaceName;
    // Points as a currency amount: four decimals.
    font.cySize.int64 = std::abs(description.lfHeight) * 10000LL * pointsPerInch / dpi;
    font.sWeight = static_cast<SHORT>(description.lfWeight);
    font.sCharset = description.lfCharSet;
    ComPtr<IFontDisp> made;
    RequireSuccess(OleCreateFontIndirect(&font, IID_PPV_ARGS(&made)), L"The ambient font cannot be made");
    return made;
}

}  // namespace

Fonts MakeFonts(HWND window) {
    const int dpi = DpiOf(window);
    LOGFONTW description = MessageFont();
    description.lfHeight = MulDiv(description.lfHeight, dpi, DpiOf(nullptr));
    Fonts fonts;
    fonts.text = MakeFont(description);
    fonts.ambient = MakeAmbientFont(description, dpi);
    description.lfWeight = FW_SEMIBOLD;
    fonts.title = MakeFont(description);
    return fonts;
}

}  // namespace qz
