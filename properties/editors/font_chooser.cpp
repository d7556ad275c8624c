#include "properties/editors/font_chooser.h"

#include "com/error.h"
#include "ui/screen.h"

#include <commdlg.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace qz {

namespace {

constexpr double pointsPerInch = 72;

LOGFONTW LogicalFont(const FontValue& font) noexcept {
    LOGFONTW logical{};
    logical.lfHeight = -static_cast<LONG>(std::lround(font.size * ScreenDpi().height / pointsPerInch));
    logical.lfWeight = font.weight;
    logical.lfItalic = font.italic;
    logical.lfUnderline = font.underline;
    logical.lfStrikeOut = font.strikeOut;
    logical.lfCharSet = DEFAULT_CHARSET;
    const std::size_t length = std::min(font.face.size(), std::size(logical.lfFaceName) - 1);
    std::copy_n(font.face.begin(), length, logical.lfFaceName);
    return logical;
}

}  // namespace

std::optional<FontValue> ChooseSystemFont(HWND owner, const FontValue& start) {
    LOGFONTW logical = LogicalFont(start);
    CHOOSEFONTW dialog{};
    dialog.lStructSize = sizeof dialog;
    dialog.hwndOwner = owner;
    dialog.lpLogFont = &logical;
    dialog.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_NOSCRIPTSEL | CF_INITTOLOGFONTSTRUCT;
    if (!ChooseFontW(&dialog)) {
        if (CommDlgExtendedError() != 0) Throw(E_FAIL, L"The system's dialog for fonts cannot be shown");
        return std::nullopt;
    }
    FontValue chosen;
    chosen.face = logical.lfFaceName;
    chosen.size = dialog.iPointSize / 10.;
    chosen.weight = static_cast<int>(logical.lfWeight);
    chosen.italic = logical.lfItalic != 0;
    chosen.underline = logical.lfUnderline != 0;
    chosen.strikeOut = logical.lfStrikeOut != 0;
    return chosen;
}

}  // namespace qz
